#ifndef ZEF_DOMAIN_EXTENSION_LIST_H
#define ZEF_DOMAIN_EXTENSION_LIST_H

#include <cstddef>
#include <cstdint>

namespace ZefModelRepositoryService {

class DomainExtensionWrapper;

/// The domain extensions of one element in the order added: a growing
/// array behind one pointer, null while the element has none. Most
/// elements of a model have none or one, and every element has a list, so
/// it is kept as small as a list can be. The list does not own the
/// extensions.
class DomainExtensionList {
public:
    using const_iterator = DomainExtensionWrapper* const*;

    DomainExtensionList() = default;
    ~DomainExtensionList();

    DomainExtensionList(const DomainExtensionList&) = delete;
    DomainExtensionList& operator=(const DomainExtensionList&) = delete;

    /// Appends `extension`.
    void push_back(DomainExtensionWrapper* extension);
    /// Makes room for `count` extensions in all.
    void reserve(std::size_t count);

    std::size_t size() const { return _block != nullptr ? _block->count : 0; }
    bool empty() const { return size() == 0; }
    /// The extension at `index` (< size()).
    DomainExtensionWrapper* operator[](std::size_t index) const { return _block->items()[index]; }

    const_iterator begin() const { return _block != nullptr ? _block->items() : nullptr; }
    const_iterator end() const { return _block != nullptr ? _block->items() + _block->count : nullptr; }

private:
    /// Count and room, followed by room pointers.
    struct Block {
        uint32_t count;
        uint32_t room;
        DomainExtensionWrapper** items() { return reinterpret_cast<DomainExtensionWrapper**>(this + 1); }
        DomainExtensionWrapper* const* items() const
        {
            return reinterpret_cast<DomainExtensionWrapper* const*>(this + 1);
        }
    };

    static std::size_t blockSize(std::size_t room) { return sizeof(Block) + room * sizeof(DomainExtensionWrapper*); }

    Block* _block = nullptr;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_DOMAIN_EXTENSION_LIST_H
