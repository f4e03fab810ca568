#include "StructWrapper.h"

#include "MrUtil.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

StructWrapper::StructWrapper() : GeneralPropertiesWrapper(_struct.generalProperties, &_struct.generalPropertiesHandle)
{
    setInitialValues();
    _struct.mom = nullptr;
    _struct.members = nullptr;
    _struct.handle = 0;
    _struct.generalPropertiesHandle = 0;
}

StructWrapper::~StructWrapper()
{
    MrUtil::cleanGeneralPropertiesHlp(_struct.generalProperties);
}

std::string StructWrapper::getStructId(const char* momName, const char* momVersion, const char* structName)
{
    static const char* const nullMessages[] = {"Mom name is 'null', can not create struct id.",
                                               "Mom version is 'null', can not create struct id.",
                                               "Struct name is 'null', can not create struct id."};
    static const char* const emptyMessages[] = {"Mom name is empty, can not create struct id.",
                                                "Mom version is empty, can not create struct id.",
                                                "Struct name is empty, can not create struct id."};
    bool isNull = false;
    const int missing = MrUtil::findMissingKeyPart({momName, momVersion, structName}, isNull);
    if (missing >= 0) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "%s", (isNull ? nullMessages : emptyMessages)[missing]);
        return std::string();
    }
    return MrUtil::joinKey({momName, momVersion, structName});
}

std::string StructWrapper::getId() const
{
    if (_id.empty()) {
        const ZefOamSpiMom* mom = _struct.mom;
        _id = getStructId(mom != nullptr ? mom->generalProperties.name : nullptr,
                          mom != nullptr ? mom->version : nullptr, _struct.generalProperties.name);
    }
    return _id;
}

ZefReturnT StructWrapper::setMom(const ZefOamSpiMom* mom)
{
    _struct.mom = mom;
    return ZefOk;
}

ZefReturnT StructWrapper::addMember(StructMemberWrapper* member)
{
    return _members.addMember(member, _struct.members);
}

ZefReturnT StructWrapper::setIsExclusive(bool isExclusive)
{
    _isExclusive = isExclusive;
    return ZefOk;
}

ZefReturnT StructWrapper::getIsExclusive(bool& isExclusive) const
{
    isExclusive = _isExclusive;
    return ZefOk;
}

std::string StructWrapper::toString() const
{
    std::string out = MrUtil::headerToStringHlp("Struct ", _struct.generalProperties.name, "")
                      + MrUtil::generalPropertiesToStringHlp(_struct.generalProperties, "");
    for (const StructMemberWrapper* member : _members.getList()) {
        out += member->toString("    ");
    }
    return out;
}

} // namespace ZefModelRepositoryService
