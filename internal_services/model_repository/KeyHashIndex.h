#ifndef ZEF_KEY_HASH_INDEX_H
#define ZEF_KEY_HASH_INDEX_H

#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

namespace ZefModelRepositoryService {

/// The hashes of the identity keys of an ordered list of records (the
/// attributes or actions of a class, the literals of an enumeration, the
/// members of a struct or the parameters of an action), kept in list order
/// beside the list. A duplicate check compares hashes and reads a listed
/// record's key only when its hash matches, instead of copying and
/// comparing the key of every listed record. The list owner adds the hash
/// of every record it appends, and never removes one.
class KeyHashIndex {
public:
    /// The hash under which `key` is indexed.
    static std::size_t hashOf(const std::string& key);

    /// Notes the key hash of the record just appended to the list.
    void add(std::size_t hash) { _hashes.push_back(hash); }

    /// True when `list` (whose records are indexed here, in order) holds a
    /// record whose getId() equals `key` of hash `hash`.
    template <typename List>
    bool contains(const List& list, const std::string& key, std::size_t hash) const
    {
        for (std::size_t at = 0; at < _hashes.size(); ++at) {
            if (_hashes[at] == hash && (*std::next(list.begin(), static_cast<long>(at)))->getId() == key) {
                return true;
            }
        }
        return false;
    }

private:
    std::vector<std::size_t> _hashes;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_KEY_HASH_INDEX_H
