#ifndef ZEF_KEY_HASH_INDEX_H
#define ZEF_KEY_HASH_INDEX_H

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace ZefModelRepositoryService {

/// The hashes of the identity keys of an ordered list of records (the
/// attributes or actions of a class, the literals of an enumeration, the
/// members of a struct or the parameters of an action), kept in list order
/// beside the list. A duplicate check compares hashes and reads a listed
/// record's key only when its hash matches, instead of copying and
/// comparing the key of every listed record. The list owner adds the hash
/// of every record it appends, and never removes one.
///
/// A short list is checked by a scan of its hashes, which costs less than
/// any table; once the list is long, a table from hash to positions answers
/// without a scan, so that filling a list of n records stays linear in n.
class KeyHashIndex {
public:
    /// Lists up to this length are scanned.
    static constexpr std::size_t kScanLimit = 32;

    /// The hash under which `key` is indexed.
    static std::size_t hashOf(const std::string& key);

    /// Notes the key hash of the record just appended to the list.
    void add(std::size_t hash);

    /// True when `list` (whose records are indexed here, in order) holds a
    /// record whose getId() equals `key` of hash `hash`.
    template <typename List>
    bool contains(const List& list, const std::string& key, std::size_t hash) const
    {
        return positionOf(list, key, hash) != kNone;
    }

    /// The position in `list` of the first record whose getId() equals
    /// `key` of hash `hash`, or kNone.
    template <typename List>
    std::size_t positionOf(const List& list, const std::string& key, std::size_t hash) const
    {
        if (_hashes.size() <= kScanLimit) {
            for (std::size_t at = 0; at < _hashes.size(); ++at) {
                if (_hashes[at] == static_cast<uint32_t>(hash) && keyAt(list, at) == key) {
                    return at;
                }
            }
            return kNone;
        }
        // Duplicates are refused, so at most one listed record has the key.
        const auto candidates = _positions->equal_range(static_cast<uint32_t>(hash));
        for (auto candidate = candidates.first; candidate != candidates.second; ++candidate) {
            if (keyAt(list, candidate->second) == key) {
                return candidate->second;
            }
        }
        return kNone;
    }

    /// What positionOf() answers for a key that is not listed.
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    /// Number of records indexed.
    std::size_t size() const { return _hashes.size(); }

private:
    template <typename List>
    static std::string keyAt(const List& list, std::size_t at)
    {
        return (*std::next(list.begin(), static_cast<long>(at)))->getId();
    }

    /// The low 32 bits of each hash: a false match costs one key
    /// comparison, and the list of a class's attributes stays small.
    std::vector<uint32_t> _hashes;
    /// Hash to list position, made once the list outgrows kScanLimit (most
    /// lists never do, and an empty table is not small).
    std::unique_ptr<std::unordered_multimap<std::size_t, std::size_t>> _positions;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_KEY_HASH_INDEX_H
