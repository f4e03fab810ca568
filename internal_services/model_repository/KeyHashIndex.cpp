#include "KeyHashIndex.h"

#include <functional>

namespace ZefModelRepositoryService {

std::size_t KeyHashIndex::hashOf(const std::string& key)
{
    return std::hash<std::string>()(key);
}

void KeyHashIndex::add(std::size_t hash)
{
    _hashes.push_back(static_cast<uint32_t>(hash));
    if (_hashes.size() <= kScanLimit) {
        return;
    }
    if (!_positions) {
        // The list has just outgrown the scan: every position so far. The
        // table holds the same low 32 bits; the current hash is one of them.
        _positions.reset(new std::unordered_multimap<std::size_t, std::size_t>());
        _positions->reserve(_hashes.size() * 2);
        for (std::size_t at = 0; at < _hashes.size(); ++at) {
            _positions->emplace(_hashes[at], at);
        }
        return;
    }
    _positions->emplace(_hashes.back(), _hashes.size() - 1);
}

} // namespace ZefModelRepositoryService
