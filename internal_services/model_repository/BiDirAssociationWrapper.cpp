#include "BiDirAssociationWrapper.h"

#include "AssociationKeyHlp.h"
#include "MocWrapper.h"
#include "MrUtil.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

BiDirAssociationWrapper::BiDirAssociationWrapper()
    : GeneralPropertiesWrapper(_assoc.generalProperties, &_assoc.generalPropertiesHandle)
{
    setInitialValues();
    _assoc.mom = nullptr;
    _assoc.firstAssociationEnd = nullptr;
    _assoc.secondAssociationEnd = nullptr;
    _assoc.handle = 0;
    _assoc.generalPropertiesHandle = 0;
}

BiDirAssociationWrapper::~BiDirAssociationWrapper()
{
    MrUtil::cleanGeneralPropertiesHlp(_assoc.generalProperties);
}

std::string BiDirAssociationWrapper::getId() const
{
    if (_id.empty()) {
        _id = AssociationKeyHlp::build(_assoc.mom, {_assoc.generalProperties.name});
    }
    return _id;
}

ZefReturnT BiDirAssociationWrapper::setMom(const ZefOamSpiMom* mom)
{
    _assoc.mom = mom;
    return ZefOk;
}

ZefReturnT BiDirAssociationWrapper::setFirstAssociationEnd(const ZefOamSpiAssociationEnd* end)
{
    _assoc.firstAssociationEnd = end;
    return ZefOk;
}

ZefReturnT BiDirAssociationWrapper::setSecondAssociationEnd(const ZefOamSpiAssociationEnd* end)
{
    _assoc.secondAssociationEnd = end;
    return ZefOk;
}

ZefReturnT BiDirAssociationWrapper::setFirstAssociationEndId(const std::string& endId)
{
    return AssociationKeyHlp::setOnce(_firstEndId, endId);
}

ZefReturnT BiDirAssociationWrapper::setSecondAssociationEndId(const std::string& endId)
{
    return AssociationKeyHlp::setOnce(_secondEndId, endId);
}

ZefReturnT BiDirAssociationWrapper::getNextBidirectionalAssociation(const MocWrapper& moc,
                                                                    uint64_t& nextHandle) const
{
    const ZefOamSpiMoc* record = &moc.getStruct();
    const ZefOamSpiAssociationEnd* first = _assoc.firstAssociationEnd;
    const ZefOamSpiAssociationEnd* second = _assoc.secondAssociationEnd;
    const bool atFirst = first != nullptr && first->moc == record;
    const bool atSecond = second != nullptr && second->moc == record;
    if (!atFirst && !atSecond) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR,
                          "Neither first or second end association corresponds to the provided mocHandle");
        return ZefNotFound;
    }
    const uint64_t next = moc.getNextBiDirHandle(getHandle());
    if (next == 0) {
        return ZefNotFound;
    }
    nextHandle = next;
    return ZefOk;
}

std::string BiDirAssociationWrapper::toString() const
{
    return MrUtil::headerToStringHlp("Bidirectional Association ", _assoc.generalProperties.name, "")
           + MrUtil::generalPropertiesToStringHlp(_assoc.generalProperties, "")
           + "FirstAssociationEnd:  " + _firstEndId + '\n' + "SecondAssociationEnd: " + _secondEndId + '\n';
}

} // namespace ZefModelRepositoryService
