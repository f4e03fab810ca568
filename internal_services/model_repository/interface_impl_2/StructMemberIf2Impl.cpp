#include "StructMemberIf2Impl.h"

#include "GeneralPropertiesIf2Impl.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"
#include "StructMemberWrapper.h"
#include "TypeContainerIf2Impl.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = StructMemberIf2Impl;

// One copy of each C function per interface version V.

template <int V>
ZefReturnT zefMrIfStructMemberGetGeneralProperties(uint64_t member, uint64_t* generalProperties)
{
    return If2CBoundary::call<Impl>(member, generalProperties, &Impl::getGeneralProperties);
}

template <int V>
ZefReturnT zefMrIfStructMemberGetTypeContainer(uint64_t member, uint64_t* typeContainer)
{
    return If2CBoundary::call<Impl>(member, typeContainer, &Impl::getTypeContainer);
}

template <int V>
ZefReturnT zefMrIfStructMemberGetNext(uint64_t member, uint64_t* next)
{
    return If2CBoundary::call<Impl>(member, next, &Impl::getNext);
}

} // namespace

StructMemberIf2Impl::StructMemberIf2Impl(StructMemberWrapper& record) : _member(record)
{
    If2Manager::instance().pushStructMember(this);
    _member.setHandle(getHandle());
    GeneralPropertiesIf2Impl::registerFor(_member);
    TypeContainerIf2Impl::registerFor(_member.getTypeContainer());
}

const StructMemberIf2Impl& StructMemberIf2Impl::lookup(uint64_t handle)
{
    return If2Manager::instance().getStructMember(handle);
}

ZefReturnT StructMemberIf2Impl::getGeneralProperties(uint64_t& generalProperties) const
{
    return If2Links::registeredHandle(_member.getGeneralPropertiesHandle(), generalProperties);
}

ZefReturnT StructMemberIf2Impl::getTypeContainer(uint64_t& typeContainer) const
{
    return If2Links::registeredHandle(_member.getTypeContainer().getHandle(), typeContainer);
}

ZefReturnT StructMemberIf2Impl::getNext(uint64_t& next) const
{
    return If2Links::handleOf(_member.getStruct().next, next);
}

void StructMemberIf2Impl::initInterface(ZefOamSpiStruct_2& table)
{
    table.memberGetGeneralProperties = &zefMrIfStructMemberGetGeneralProperties<2>;
    table.memberGetTypeContainer = &zefMrIfStructMemberGetTypeContainer<2>;
    table.memberGetNext = &zefMrIfStructMemberGetNext<2>;
}

void StructMemberIf2Impl::initInterface(ZefOamSpiMrStruct_3& table)
{
    table.memberGetGeneralProperties = &zefMrIfStructMemberGetGeneralProperties<3>;
    table.memberGetTypeContainer = &zefMrIfStructMemberGetTypeContainer<3>;
    table.memberGetNext = &zefMrIfStructMemberGetNext<3>;
}

void StructMemberIf2Impl::initInterface(ZefOamSpiMrStruct_4& table)
{
    table.memberGetGeneralProperties = &zefMrIfStructMemberGetGeneralProperties<4>;
    table.memberGetTypeContainer = &zefMrIfStructMemberGetTypeContainer<4>;
    table.memberGetNext = &zefMrIfStructMemberGetNext<4>;
}

} // namespace ZefModelRepositoryService
