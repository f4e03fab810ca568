#include "RefId.h"

namespace ZefModelRepositoryService {

std::string RefId::getRefId() const
{
    return getRefMomName() + "~" + getRefMomVersion() + "~" + getRefName();
}

const std::string& RefId::none()
{
    static const std::string empty;
    return empty;
}

} // namespace ZefModelRepositoryService
