#include "RefId.h"

namespace ZefModelRepositoryService {

std::string RefId::getRefId() const
{
    return getRefMomName() + "~" + getRefMomVersion() + "~" + getRefName();
}

} // namespace ZefModelRepositoryService
