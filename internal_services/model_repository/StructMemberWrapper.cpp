#include "StructMemberWrapper.h"

#include "MrUtil.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

StructMemberWrapper::StructMemberWrapper()
    : GeneralPropertiesWrapper(_member.generalProperties, &_member.generalPropertiesHandle),
      TypedElementWrapper(_member.datatype)
{
    setInitialValues();
    MrUtil::resetDatatypeContainerHlp(_member.datatype);
    _member.next = nullptr;
    _member.handle = 0;
    _member.generalPropertiesHandle = 0;
}

StructMemberWrapper::~StructMemberWrapper()
{
    MrUtil::cleanGeneralPropertiesHlp(_member.generalProperties);
    MrUtil::cleanDatatypeContainerHlp(_member.datatype);
}

std::string StructMemberWrapper::getStructMemberId(const char* name)
{
    if (name == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Struct member name is 0, can not create id.");
        return std::string();
    }
    if (*name == '\0') {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Struct member name is not set, can not create id.");
        return std::string();
    }
    return name;
}

std::string StructMemberWrapper::getId() const
{
    if (_id.empty()) {
        _id = getStructMemberId(_member.generalProperties.name);
    }
    return _id;
}

ZefReturnT StructMemberWrapper::setNext(StructMemberWrapper* next)
{
    _next = next;
    _member.next = next != nullptr ? &next->_member : nullptr;
    return ZefOk;
}

ZefReturnT StructMemberWrapper::setMomName(const std::string& momName)
{
    _momName = momName;
    return ZefOk;
}

ZefReturnT StructMemberWrapper::setMomVersion(const std::string& momVersion)
{
    _momVersion = momVersion;
    return ZefOk;
}

std::string StructMemberWrapper::toString(const std::string& indent) const
{
    return MrUtil::headerToStringHlp("Struct Member ", _member.generalProperties.name, indent)
           + MrUtil::generalPropertiesToStringHlp(_member.generalProperties, indent)
           + MrUtil::datatypeContainerToStringHlp(_member.datatype, indent);
}

} // namespace ZefModelRepositoryService
