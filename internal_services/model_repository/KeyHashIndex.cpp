#include "KeyHashIndex.h"

#include <functional>

namespace ZefModelRepositoryService {

std::size_t KeyHashIndex::hashOf(const std::string& key)
{
    return std::hash<std::string>()(key);
}

} // namespace ZefModelRepositoryService
