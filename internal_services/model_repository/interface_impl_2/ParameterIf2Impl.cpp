#include "ParameterIf2Impl.h"

#include "GeneralPropertiesIf2Impl.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"
#include "ParameterWrapper.h"
#include "TypeContainerIf2Impl.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = ParameterIf2Impl;

// One copy of each C function per interface version V.

template <int V>
ZefReturnT zefMrIfParameterGetGeneralProperties(uint64_t parameter, uint64_t* generalProperties)
{
    return If2CBoundary::call<Impl>(parameter, generalProperties, &Impl::getGeneralProperties);
}

template <int V>
ZefReturnT zefMrIfParameterGetAction(uint64_t parameter, uint64_t* action)
{
    return If2CBoundary::call<Impl>(parameter, action, &Impl::getAction);
}

template <int V>
ZefReturnT zefMrIfParameterGetTypeContainer(uint64_t parameter, uint64_t* typeContainer)
{
    return If2CBoundary::call<Impl>(parameter, typeContainer, &Impl::getTypeContainer);
}

template <int V>
ZefReturnT zefMrIfParameterGetNext(uint64_t parameter, uint64_t* next)
{
    return If2CBoundary::call<Impl>(parameter, next, &Impl::getNext);
}

} // namespace

ParameterIf2Impl::ParameterIf2Impl(ParameterWrapper& record) : _parameter(record)
{
    If2Manager::instance().pushParameter(this);
    _parameter.setHandle(getHandle());
    GeneralPropertiesIf2Impl::registerFor(_parameter);
    TypeContainerIf2Impl::registerFor(_parameter.getTypeContainer());
}

const ParameterIf2Impl& ParameterIf2Impl::lookup(uint64_t handle)
{
    return If2Manager::instance().getParameter(handle);
}

ZefReturnT ParameterIf2Impl::getGeneralProperties(uint64_t& generalProperties) const
{
    return If2Links::registeredHandle(_parameter.getGeneralPropertiesHandle(), generalProperties);
}

ZefReturnT ParameterIf2Impl::getAction(uint64_t& action) const
{
    return If2Links::handleOf(_parameter.getStruct().moAction, action);
}

ZefReturnT ParameterIf2Impl::getTypeContainer(uint64_t& typeContainer) const
{
    return If2Links::registeredHandle(_parameter.getTypeContainer().getHandle(), typeContainer);
}

ZefReturnT ParameterIf2Impl::getNext(uint64_t& next) const
{
    return If2Links::handleOf(_parameter.getStruct().next, next);
}

void ParameterIf2Impl::initInterface(ZefOamSpiAction_2& table)
{
    table.parameterGetGeneralProperties = &zefMrIfParameterGetGeneralProperties<2>;
    table.parameterGetAction = &zefMrIfParameterGetAction<2>;
    table.parameterGetTypeContainer = &zefMrIfParameterGetTypeContainer<2>;
    table.parameterGetNext = &zefMrIfParameterGetNext<2>;
}

void ParameterIf2Impl::initInterface(ZefOamSpiMrAction_3& table)
{
    table.parameterGetGeneralProperties = &zefMrIfParameterGetGeneralProperties<3>;
    table.parameterGetAction = &zefMrIfParameterGetAction<3>;
    table.parameterGetTypeContainer = &zefMrIfParameterGetTypeContainer<3>;
    table.parameterGetNext = &zefMrIfParameterGetNext<3>;
}

void ParameterIf2Impl::initInterface(ZefOamSpiMrAction_4& table)
{
    table.parameterGetGeneralProperties = &zefMrIfParameterGetGeneralProperties<4>;
    table.parameterGetAction = &zefMrIfParameterGetAction<4>;
    table.parameterGetTypeContainer = &zefMrIfParameterGetTypeContainer<4>;
    table.parameterGetNext = &zefMrIfParameterGetNext<4>;
}

} // namespace ZefModelRepositoryService
