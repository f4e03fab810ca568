#ifndef ZEF_REGISTRY_INDEX_H
#define ZEF_REGISTRY_INDEX_H

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace ZefModelRepositoryService {

/// The records of one registry (a map from key to wrapper) by the address
/// of their published record: a pointer that compilation has set between
/// records leads back to the registered wrapper, its key and its place in
/// key order without the key being built and looked up again.
template <typename Map>
class RegistryIndex {
public:
    using Wrapper = std::remove_pointer_t<typename Map::mapped_type>;
    using Record = std::decay_t<decltype(std::declval<Wrapper&>().getStruct())>;

    struct Entry {
        const Record* record;
        Wrapper* wrapper;
        const std::string* key;  // the registry's own key string
        std::size_t rank;        // place in key order
    };

    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    explicit RegistryIndex(const Map& map)
    {
        _entries.reserve(map.size());
        for (const auto& entry : map) {
            _entries.push_back({&entry.second->getStruct(), entry.second, &entry.first, _entries.size()});
        }
        std::sort(_entries.begin(), _entries.end(),
                  [](const Entry& a, const Entry& b) { return std::less<const Record*>()(a.record, b.record); });
    }

    /// The number of registered records; each has a place below it.
    std::size_t size() const { return _entries.size(); }

    /// The place of `record` among the registered ones (in address order),
    /// or kNone when it is in no registry.
    std::size_t indexOf(const Record* record) const
    {
        const auto found = std::lower_bound(_entries.begin(), _entries.end(), record,
                                            [](const Entry& entry, const Record* wanted) {
                                                return std::less<const Record*>()(entry.record, wanted);
                                            });
        return found != _entries.end() && found->record == record ? static_cast<std::size_t>(found - _entries.begin())
                                                                  : kNone;
    }

    /// The registered record `record`, or null.
    const Entry* find(const Record* record) const
    {
        const std::size_t index = indexOf(record);
        return index != kNone ? &_entries[index] : nullptr;
    }

    /// The registry's key of `record`, or null when it is in no registry.
    const std::string* keyOf(const Record* record) const
    {
        const Entry* entry = find(record);
        return entry != nullptr ? entry->key : nullptr;
    }

private:
    std::vector<Entry> _entries;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_REGISTRY_INDEX_H
