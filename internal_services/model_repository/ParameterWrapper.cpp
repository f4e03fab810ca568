#include "ParameterWrapper.h"

#include "MoActionWrapper.h"
#include "MrUtil.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

ParameterWrapper::ParameterWrapper()
    : GeneralPropertiesWrapper(_parameter.generalProperties, &_parameter.generalPropertiesHandle),
      TypedElementWrapper(_parameter.datatype)
{
    setInitialValues();
    _parameter.moAction = nullptr;
    MrUtil::resetDatatypeContainerHlp(_parameter.datatype);
    _parameter.next = nullptr;
    _parameter.handle = 0;
    _parameter.generalPropertiesHandle = 0;
}

ParameterWrapper::~ParameterWrapper()
{
    MrUtil::cleanGeneralPropertiesHlp(_parameter.generalProperties);
    MrUtil::cleanDatatypeContainerHlp(_parameter.datatype);
}

std::string ParameterWrapper::getParameterId(const char* name)
{
    if (name == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Can not get id, patameter name is 0.");
        return std::string();
    }
    if (*name == '\0') {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Can not get id, parameter name is not set.");
        return std::string();
    }
    return name;
}

std::string ParameterWrapper::getId() const
{
    if (_id.empty()) {
        _id = getParameterId(_parameter.generalProperties.name);
    }
    return _id;
}

ZefReturnT ParameterWrapper::setMoAction(MoActionWrapper* action)
{
    _action = action;
    _parameter.moAction = action != nullptr ? &action->getStruct() : nullptr;
    return ZefOk;
}

ZefReturnT ParameterWrapper::setNext(ParameterWrapper* next)
{
    _next = next;
    _parameter.next = next != nullptr ? &next->_parameter : nullptr;
    return ZefOk;
}

const ZefOamSpiMom* ParameterWrapper::findMom() const
{
    if (_parameter.moAction == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "MoAction is not set");
        return nullptr;
    }
    if (_parameter.moAction->moc == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "MOC is not set");
        return nullptr;
    }
    if (_parameter.moAction->moc->mom == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "MOM is not set");
        return nullptr;
    }
    return _parameter.moAction->moc->mom;
}

std::string ParameterWrapper::getMomName() const
{
    const ZefOamSpiMom* mom = findMom();
    return mom != nullptr ? MrUtil::str(mom->generalProperties.name) : std::string();
}

std::string ParameterWrapper::getMomVersion() const
{
    const ZefOamSpiMom* mom = findMom();
    return mom != nullptr ? MrUtil::str(mom->version) : std::string();
}

std::string ParameterWrapper::toString(const std::string& indent) const
{
    return MrUtil::headerToStringHlp("Parameter ", _parameter.generalProperties.name, indent)
           + MrUtil::generalPropertiesToStringHlp(_parameter.generalProperties, indent)
           + MrUtil::datatypeContainerToStringHlp(_parameter.datatype, indent);
}

std::string ParameterWrapper::toString(ZefOamSpiMrType_3 type)
{
    return MrUtil::typeName(type);
}

} // namespace ZefModelRepositoryService
