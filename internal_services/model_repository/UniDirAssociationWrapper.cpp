#include "UniDirAssociationWrapper.h"

#include <sstream>

#include "AssociationKeyHlp.h"
#include "MocWrapper.h"
#include "MrUtil.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

UniDirAssociationWrapper::UniDirAssociationWrapper()
    : GeneralPropertiesWrapper(_assoc.generalProperties, &_assoc.generalPropertiesHandle)
{
    setInitialValues();
    _assoc.mom = nullptr;
    _assoc.associationEnd = nullptr;
    _assoc.originMoc = nullptr;
    _assoc.handle = 0;
    _assoc.generalPropertiesHandle = 0;
}

UniDirAssociationWrapper::~UniDirAssociationWrapper()
{
    MrUtil::cleanGeneralPropertiesHlp(_assoc.generalProperties);
}

std::string UniDirAssociationWrapper::getId() const
{
    if (_id.empty()) {
        _id = AssociationKeyHlp::build(_assoc.mom, {_assoc.generalProperties.name});
    }
    return _id;
}

ZefReturnT UniDirAssociationWrapper::setMom(const ZefOamSpiMom* mom)
{
    _assoc.mom = mom;
    return ZefOk;
}

ZefReturnT UniDirAssociationWrapper::setAssociationEnd(const ZefOamSpiAssociationEnd* end)
{
    _assoc.associationEnd = end;
    return ZefOk;
}

ZefReturnT UniDirAssociationWrapper::setOriginMoc(const ZefOamSpiMoc* moc)
{
    _assoc.originMoc = moc;
    return ZefOk;
}

ZefReturnT UniDirAssociationWrapper::setIsExternal(bool isExternal)
{
    _isExternal = isExternal;
    return ZefOk;
}

ZefReturnT UniDirAssociationWrapper::setAssociationEnd(const std::string& endId)
{
    return AssociationKeyHlp::setOnce(_endId, endId);
}

ZefReturnT UniDirAssociationWrapper::setOriginMocId(const std::string& mocId)
{
    return AssociationKeyHlp::setOnce(_originMocId, mocId);
}

ZefReturnT UniDirAssociationWrapper::getNextUnidirectionalAssociation(const MocWrapper& moc,
                                                                      uint64_t& nextHandle) const
{
    if (_assoc.originMoc != &moc.getStruct()) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR,
                          "Origin moc of the association does not correspond to the provided mocHandle");
        return ZefNotFound;
    }
    const uint64_t next = moc.getNextUniDirHandle(getHandle());
    if (next == 0) {
        return ZefNotFound;
    }
    nextHandle = next;
    return ZefOk;
}

std::string UniDirAssociationWrapper::toString() const
{
    std::ostringstream out;
    out << MrUtil::headerToStringHlp("UniDirAssociation ", _assoc.generalProperties.name, "")
        << MrUtil::generalPropertiesToStringHlp(_assoc.generalProperties, "")
        << "associationEnd:     " << _endId << '\n'
        << "isExternal:        " << _isExternal << '\n';
    return out.str();
}

} // namespace ZefModelRepositoryService
