#include "MoActionWrapper.h"

#include "MrUtil.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

MoActionWrapper::MoActionWrapper()
    : GeneralPropertiesWrapper(_action.generalProperties, &_action.generalPropertiesHandle),
      TypedElementWrapper(_action.returnType)
{
    setInitialValues();
    _action.moc = nullptr;
    MrUtil::resetDatatypeContainerHlp(_action.returnType);
    _action.parameters = nullptr;
    _action.next = nullptr;
    _action.handle = 0;
    _action.generalPropertiesHandle = 0;
}

MoActionWrapper::~MoActionWrapper()
{
    MrUtil::cleanGeneralPropertiesHlp(_action.generalProperties);
    MrUtil::cleanDatatypeContainerHlp(_action.returnType);
}

std::string MoActionWrapper::getMoActionId(const char* momName, const char* momVersion, const char* mocName,
                                           const char* actionName)
{
    // The null form of the mom name has no full stop; every other part
    // reads the same whether it is null or empty.
    static const char* const nullMessages[] = {
        "Can not get MoAction id, mom name is not set", "Can not get MoAction id, mom version is not set.",
        "Can not get MoAction id, moc name is not set.", "Can not get MoAction id, MoAction name is not set."};
    static const char* const emptyMessages[] = {
        "Can not get MoAction id, mom name is not set.", "Can not get MoAction id, mom version is not set.",
        "Can not get MoAction id, moc name is not set.", "Can not get MoAction id, MoAction name is not set."};
    bool isNull = false;
    const int missing = MrUtil::findMissingKeyPart({momName, momVersion, mocName, actionName}, isNull);
    if (missing >= 0) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "%s", (isNull ? nullMessages : emptyMessages)[missing]);
        return std::string();
    }
    return MrUtil::joinKey({momName, momVersion, mocName, actionName});
}

std::string MoActionWrapper::getMoActionId(const ZefOamSpiMoAction* action)
{
    if (action == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Can not get MoAction id, MoAction is not set.");
        return std::string();
    }
    if (action->moc == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Can not get MoAction id, moc is not set.");
        return std::string();
    }
    const ZefOamSpiMom* mom = action->moc->mom;
    if (mom == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Can not get MoAction id, mocs mom is not set.");
        return std::string();
    }
    return getMoActionId(mom->generalProperties.name, mom->version, action->moc->generalProperties.name,
                         action->generalProperties.name);
}

std::string MoActionWrapper::getId() const
{
    return _id.empty() ? _id.keep(getMoActionId(&_action)) : _id.str();
}

ZefReturnT MoActionWrapper::setMoc(const ZefOamSpiMoc* moc)
{
    _action.moc = moc;
    return ZefOk;
}

ZefReturnT MoActionWrapper::addParameter(ParameterWrapper* parameter)
{
    return _parameters.addMember(parameter, _action.parameters);
}

ZefReturnT MoActionWrapper::setNext(MoActionWrapper* next)
{
    _next = next;
    _action.next = next != nullptr ? &next->_action : nullptr;
    return ZefOk;
}

std::string MoActionWrapper::toString(const std::string& indent) const
{
    std::string out = MrUtil::headerToStringHlp("MoAction ", _action.generalProperties.name, indent)
                      + MrUtil::generalPropertiesToStringHlp(_action.generalProperties, indent)
                      + MrUtil::datatypeContainerToStringHlp(_action.returnType, indent);
    for (const ParameterWrapper* parameter : _parameters.getList()) {
        out += parameter->toString(indent + "    ");
    }
    return out;
}

} // namespace ZefModelRepositoryService
