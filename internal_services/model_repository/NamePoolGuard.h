#ifndef ZEF_NAME_POOL_GUARD_H
#define ZEF_NAME_POOL_GUARD_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ZefModelRepositoryService {

/// Counts the distinct element and attribute names of a document the way
/// the name pool of a DOM document made without one does, so that the
/// reading chain can refuse a document with more names than that pool
/// holds. Past that, the DOM builder would throw from inside the XML
/// reader, which leaves the reader's parser unfreed (see XmlParseStop);
/// refused by the chain, the document fails like any malformed one.
///
/// A name is what the pool keys it by: qualified name, namespace URI and
/// local name. Each name is hashed where it is met and compared in place, so
/// that counting costs no allocation once a name is known.
class NamePoolGuard {
public:
    /// The capacity of the name pool of a DOM document made without one.
    static const std::size_t kCapacity = 509;

    NamePoolGuard();

    /// Counts one name; false when it is a new name and the pool is full.
    bool use(const std::string& qname, const std::string& uri, std::string_view localName);

    /// The number of distinct names met so far.
    std::size_t size() const { return _names.size(); }

    /// Why a document is refused once use() returned false.
    static std::string reason();

private:
    struct Name {
        std::string qname;
        std::string uri;
        std::string localName;
    };
    struct Slot {
        std::uint64_t hash;
        std::uint32_t name;  // 1 + the index of the name in _names; 0 while free
    };

    // Open addressing over twice the capacity: never more than half full.
    // The slots are plain values, so that a document with a dozen names
    // costs no more than clearing them; the names are kept apart.
    std::vector<Slot> _slots;
    std::vector<Name> _names;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_NAME_POOL_GUARD_H
