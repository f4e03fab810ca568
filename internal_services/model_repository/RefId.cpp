#include "RefId.h"

namespace ZefModelRepositoryService {

std::string RefId::getRefId() const
{
    return _refMomName + "~" + _refMomVersion + "~" + _refName;
}

} // namespace ZefModelRepositoryService
