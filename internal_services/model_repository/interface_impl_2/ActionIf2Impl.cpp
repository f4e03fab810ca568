#include "ActionIf2Impl.h"

#include "GeneralPropertiesIf2Impl.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"
#include "MoActionWrapper.h"
#include "ParameterIf2Impl.h"
#include "TypeContainerIf2Impl.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = ActionIf2Impl;

// One copy of each C function per interface version V.

template <int V>
ZefReturnT zefMrIfActionGetGeneralProperties(uint64_t action, uint64_t* generalProperties)
{
    return If2CBoundary::call<Impl>(action, generalProperties, &Impl::getGeneralProperties);
}

template <int V>
ZefReturnT zefMrIfActionGetMoc(uint64_t action, uint64_t* moc)
{
    return If2CBoundary::call<Impl>(action, moc, &Impl::getMoc);
}

template <int V>
ZefReturnT zefMrIfActionGetTypeContainer(uint64_t action, uint64_t* typeContainer)
{
    return If2CBoundary::call<Impl>(action, typeContainer, &Impl::getTypeContainer);
}

template <int V>
ZefReturnT zefMrIfActionGetNext(uint64_t action, uint64_t* next)
{
    return If2CBoundary::call<Impl>(action, next, &Impl::getNext);
}

template <int V>
ZefReturnT zefMrIfActionGetParameter(uint64_t action, uint64_t* parameter)
{
    return If2CBoundary::call<Impl>(action, parameter, &Impl::getParameter);
}

} // namespace

ActionIf2Impl::ActionIf2Impl(MoActionWrapper& record) : _action(record)
{
    If2Manager::instance().pushAction(this);
    _action.setHandle(getHandle());
    GeneralPropertiesIf2Impl::registerFor(_action);
    TypeContainerIf2Impl::registerFor(_action.getTypeContainer());
    for (ParameterWrapper* parameter : _action.getParameterList()) {
        new ParameterIf2Impl(*parameter);
    }
}

const ActionIf2Impl& ActionIf2Impl::lookup(uint64_t handle)
{
    return If2Manager::instance().getAction(handle);
}

ZefReturnT ActionIf2Impl::getGeneralProperties(uint64_t& generalProperties) const
{
    return If2Links::registeredHandle(_action.getGeneralPropertiesHandle(), generalProperties);
}

ZefReturnT ActionIf2Impl::getMoc(uint64_t& moc) const
{
    return If2Links::handleOf(_action.getStruct().moc, moc);
}

ZefReturnT ActionIf2Impl::getTypeContainer(uint64_t& typeContainer) const
{
    return If2Links::registeredHandle(_action.getTypeContainer().getHandle(), typeContainer);
}

ZefReturnT ActionIf2Impl::getNext(uint64_t& next) const
{
    return If2Links::handleOf(_action.getStruct().next, next);
}

ZefReturnT ActionIf2Impl::getParameter(uint64_t& parameter) const
{
    return If2Links::handleOf(_action.getStruct().parameters, parameter);
}

void ActionIf2Impl::initInterface(ZefOamSpiAction_2& table)
{
    table.getGeneralProperties = &zefMrIfActionGetGeneralProperties<2>;
    table.getMoc = &zefMrIfActionGetMoc<2>;
    table.getTypeContainer = &zefMrIfActionGetTypeContainer<2>;
    table.getNext = &zefMrIfActionGetNext<2>;
    table.getParameter = &zefMrIfActionGetParameter<2>;
}

void ActionIf2Impl::initInterface(ZefOamSpiMrAction_3& table)
{
    table.getGeneralProperties = &zefMrIfActionGetGeneralProperties<3>;
    table.getMoc = &zefMrIfActionGetMoc<3>;
    table.getTypeContainer = &zefMrIfActionGetTypeContainer<3>;
    table.getNext = &zefMrIfActionGetNext<3>;
    table.getParameter = &zefMrIfActionGetParameter<3>;
}

void ActionIf2Impl::initInterface(ZefOamSpiMrAction_4& table)
{
    table.getGeneralProperties = &zefMrIfActionGetGeneralProperties<4>;
    table.getMoc = &zefMrIfActionGetMoc<4>;
    table.getTypeContainer = &zefMrIfActionGetTypeContainer<4>;
    table.getNext = &zefMrIfActionGetNext<4>;
    table.getParameter = &zefMrIfActionGetParameter<4>;
}

} // namespace ZefModelRepositoryService
