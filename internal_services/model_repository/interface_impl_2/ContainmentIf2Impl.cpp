#include "ContainmentIf2Impl.h"

#include "ContWrapper.h"
#include "GeneralPropertiesIf2Impl.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = ContainmentIf2Impl;

// One copy of each C function per interface version V.

template <int V>
ZefReturnT zefMrIfContainmentGetGeneralProperties(uint64_t containment, uint64_t* generalProperties)
{
    return If2CBoundary::call<Impl>(containment, generalProperties, &Impl::getGeneralProperties);
}

template <int V>
ZefReturnT zefMrIfContainmentGetMom(uint64_t containment, uint64_t* mom)
{
    return If2CBoundary::call<Impl>(containment, mom, &Impl::getMom);
}

template <int V>
ZefReturnT zefMrIfContainmentGetChildMoc(uint64_t containment, uint64_t* moc)
{
    return If2CBoundary::call<Impl>(containment, moc, &Impl::getChildMoc);
}

template <int V>
ZefReturnT zefMrIfContainmentGetParentMoc(uint64_t containment, uint64_t* moc)
{
    return If2CBoundary::call<Impl>(containment, moc, &Impl::getParentMoc);
}

template <int V>
ZefReturnT zefMrIfContainmentGetNextContainmentSameChildMoc(uint64_t containment, uint64_t* next)
{
    return If2CBoundary::call<Impl>(containment, next, &Impl::getNextContainmentSameChildMoc);
}

template <int V>
ZefReturnT zefMrIfContainmentGetNextContainmentSameParentMoc(uint64_t containment, uint64_t* next)
{
    return If2CBoundary::call<Impl>(containment, next, &Impl::getNextContainmentSameParentMoc);
}

template <int V>
ZefReturnT zefMrIfContainmentGetIsSystemCreated(uint64_t containment, bool* isSystemCreated)
{
    return If2CBoundary::call<Impl>(containment, isSystemCreated, &Impl::getIsSystemCreated);
}

template <int V>
ZefReturnT zefMrIfContainmentGetCanCreate(uint64_t containment, bool* canCreate)
{
    return If2CBoundary::call<Impl>(containment, canCreate, &Impl::getCanCreate);
}

template <int V>
ZefReturnT zefMrIfContainmentGetCanDelete(uint64_t containment, bool* canDelete)
{
    return If2CBoundary::call<Impl>(containment, canDelete, &Impl::getCanDelete);
}

template <int V>
ZefReturnT zefMrIfContainmentGetCardinalityMin(uint64_t containment, uint64_t* min)
{
    return If2CBoundary::call<Impl>(containment, min, &Impl::getCardinalityMin);
}

template <int V>
ZefReturnT zefMrIfContainmentGetCardinalityMax(uint64_t containment, uint64_t* max)
{
    return If2CBoundary::call<Impl>(containment, max, &Impl::getCardinalityMax);
}

} // namespace

ContainmentIf2Impl::ContainmentIf2Impl(ContWrapper& record) : _containment(record)
{
    If2Manager::instance().pushContainment(this);
    _containment.setHandle(getHandle());
    GeneralPropertiesIf2Impl::registerFor(_containment);
}

const ContainmentIf2Impl& ContainmentIf2Impl::lookup(uint64_t handle)
{
    return If2Manager::instance().getContainment(handle);
}

ZefReturnT ContainmentIf2Impl::getGeneralProperties(uint64_t& generalProperties) const
{
    return If2Links::registeredHandle(_containment.getGeneralPropertiesHandle(), generalProperties);
}

ZefReturnT ContainmentIf2Impl::getMom(uint64_t& mom) const
{
    return If2Links::handleOf(_containment.getStruct().mom, mom);
}

ZefReturnT ContainmentIf2Impl::getChildMoc(uint64_t& moc) const
{
    return If2Links::handleOf(_containment.getStruct().childMoc, moc);
}

ZefReturnT ContainmentIf2Impl::getParentMoc(uint64_t& moc) const
{
    return If2Links::handleOf(_containment.getStruct().parentMoc, moc);
}

ZefReturnT ContainmentIf2Impl::getNextContainmentSameChildMoc(uint64_t& next) const
{
    return If2Links::handleOf(_containment.getStruct().nextContainmentSameChildMoc, next);
}

ZefReturnT ContainmentIf2Impl::getNextContainmentSameParentMoc(uint64_t& next) const
{
    return If2Links::handleOf(_containment.getStruct().nextContainmentSameParentMoc, next);
}

ZefReturnT ContainmentIf2Impl::getIsSystemCreated(bool& isSystemCreated) const
{
    return If2Links::value(_containment.getStruct().isSystemCreated, isSystemCreated);
}

ZefReturnT ContainmentIf2Impl::getCanCreate(bool& canCreate) const
{
    return If2Links::value(_containment.getCanCreate(), canCreate);
}

ZefReturnT ContainmentIf2Impl::getCanDelete(bool& canDelete) const
{
    return If2Links::value(_containment.getCanDelete(), canDelete);
}

ZefReturnT ContainmentIf2Impl::getCardinalityMin(uint64_t& min) const
{
    return If2Links::value(_containment.getStruct().cardinality.min, min);
}

ZefReturnT ContainmentIf2Impl::getCardinalityMax(uint64_t& max) const
{
    return If2Links::value(_containment.getStruct().cardinality.max, max);
}

void ContainmentIf2Impl::initInterface(ZefOamSpiContainment_2& table)
{
    table.getGeneralProperties = &zefMrIfContainmentGetGeneralProperties<2>;
    table.getMom = &zefMrIfContainmentGetMom<2>;
    table.getChildMoc = &zefMrIfContainmentGetChildMoc<2>;
    table.getParentMoc = &zefMrIfContainmentGetParentMoc<2>;
    table.getNextContainmentSameChildMoc = &zefMrIfContainmentGetNextContainmentSameChildMoc<2>;
    table.getNextContainmentSameParentMoc = &zefMrIfContainmentGetNextContainmentSameParentMoc<2>;
    table.getIsSystemCreated = &zefMrIfContainmentGetIsSystemCreated<2>;
    table.getCanCreate = &zefMrIfContainmentGetCanCreate<2>;
    table.getCanDelete = &zefMrIfContainmentGetCanDelete<2>;
    table.getCardinalityMin = &zefMrIfContainmentGetCardinalityMin<2>;
    table.getCardinalityMax = &zefMrIfContainmentGetCardinalityMax<2>;
}

void ContainmentIf2Impl::initInterface(ZefOamSpiMrContainment_3& table)
{
    table.getGeneralProperties = &zefMrIfContainmentGetGeneralProperties<3>;
    table.getMom = &zefMrIfContainmentGetMom<3>;
    table.getChildMoc = &zefMrIfContainmentGetChildMoc<3>;
    table.getParentMoc = &zefMrIfContainmentGetParentMoc<3>;
    table.getNextContainmentSameChildMoc = &zefMrIfContainmentGetNextContainmentSameChildMoc<3>;
    table.getNextContainmentSameParentMoc = &zefMrIfContainmentGetNextContainmentSameParentMoc<3>;
    table.getIsSystemCreated = &zefMrIfContainmentGetIsSystemCreated<3>;
    table.getCanCreate = &zefMrIfContainmentGetCanCreate<3>;
    table.getCanDelete = &zefMrIfContainmentGetCanDelete<3>;
    table.getCardinalityMin = &zefMrIfContainmentGetCardinalityMin<3>;
    table.getCardinalityMax = &zefMrIfContainmentGetCardinalityMax<3>;
}

void ContainmentIf2Impl::initInterface(ZefOamSpiMrContainment_4& table)
{
    table.getGeneralProperties = &zefMrIfContainmentGetGeneralProperties<4>;
    table.getMom = &zefMrIfContainmentGetMom<4>;
    table.getChildMoc = &zefMrIfContainmentGetChildMoc<4>;
    table.getParentMoc = &zefMrIfContainmentGetParentMoc<4>;
    table.getNextContainmentSameChildMoc = &zefMrIfContainmentGetNextContainmentSameChildMoc<4>;
    table.getNextContainmentSameParentMoc = &zefMrIfContainmentGetNextContainmentSameParentMoc<4>;
    table.getIsSystemCreated = &zefMrIfContainmentGetIsSystemCreated<4>;
    table.getCanCreate = &zefMrIfContainmentGetCanCreate<4>;
    table.getCanDelete = &zefMrIfContainmentGetCanDelete<4>;
    table.getCardinalityMin = &zefMrIfContainmentGetCardinalityMin<4>;
    table.getCardinalityMax = &zefMrIfContainmentGetCardinalityMax<4>;
}

} // namespace ZefModelRepositoryService
