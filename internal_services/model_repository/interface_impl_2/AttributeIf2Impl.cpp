#include "AttributeIf2Impl.h"

#include "AttrWrapper.h"
#include "GeneralPropertiesIf2Impl.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"
#include "TypeContainerIf2Impl.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = AttributeIf2Impl;

// One copy of each C function per interface version V.

template <int V>
ZefReturnT zefMrIfAttributeGetGeneralProperties(uint64_t attribute, uint64_t* generalProperties)
{
    return If2CBoundary::call<Impl>(attribute, generalProperties, &Impl::getGeneralProperties);
}

template <int V>
ZefReturnT zefMrIfAttributeGetMoc(uint64_t attribute, uint64_t* moc)
{
    return If2CBoundary::call<Impl>(attribute, moc, &Impl::getMoc);
}

template <int V>
ZefReturnT zefMrIfAttributeGetTypeContainer(uint64_t attribute, uint64_t* typeContainer)
{
    return If2CBoundary::call<Impl>(attribute, typeContainer, &Impl::getTypeContainer);
}

template <int V>
ZefReturnT zefMrIfAttributeGetNext(uint64_t attribute, uint64_t* next)
{
    return If2CBoundary::call<Impl>(attribute, next, &Impl::getNext);
}

template <int V>
ZefReturnT zefMrIfAttributeGetIsKey(uint64_t attribute, bool* isKey)
{
    return If2CBoundary::call<Impl>(attribute, isKey, &Impl::getIsKey);
}

template <int V>
ZefReturnT zefMrIfAttributeGetIsMandatory(uint64_t attribute, bool* isMandatory)
{
    return If2CBoundary::call<Impl>(attribute, isMandatory, &Impl::getIsMandatory);
}

template <int V>
ZefReturnT zefMrIfAttributeGetIsPersistent(uint64_t attribute, bool* isPersistent)
{
    return If2CBoundary::call<Impl>(attribute, isPersistent, &Impl::getIsPersistent);
}

template <int V>
ZefReturnT zefMrIfAttributeGetIsReadOnly(uint64_t attribute, bool* isReadOnly)
{
    return If2CBoundary::call<Impl>(attribute, isReadOnly, &Impl::getIsReadOnly);
}

template <int V>
ZefReturnT zefMrIfAttributeGetIsRestricted(uint64_t attribute, bool* isRestricted)
{
    return If2CBoundary::call<Impl>(attribute, isRestricted, &Impl::getIsRestricted);
}

template <int V>
ZefReturnT zefMrIfAttributeGetIsNotifiable(uint64_t attribute, bool* isNotifiable)
{
    return If2CBoundary::call<Impl>(attribute, isNotifiable, &Impl::getIsNotifiable);
}

template <int V>
ZefReturnT zefMrIfAttributeGetUnit(uint64_t attribute, const char** unit)
{
    return If2CBoundary::call<Impl>(attribute, unit, &Impl::getUnit);
}

} // namespace

AttributeIf2Impl::AttributeIf2Impl(AttrWrapper& attr) : _attr(attr)
{
    If2Manager::instance().pushAttribute(this);
    _attr.setHandle(getHandle());
    GeneralPropertiesIf2Impl::registerFor(_attr);
    TypeContainerIf2Impl::registerFor(_attr.getTypeContainer());
}

const AttributeIf2Impl& AttributeIf2Impl::lookup(uint64_t handle)
{
    return If2Manager::instance().getAttribute(handle);
}

ZefReturnT AttributeIf2Impl::getGeneralProperties(uint64_t& generalProperties) const
{
    return If2Links::registeredHandle(_attr.getGeneralPropertiesHandle(), generalProperties);
}

ZefReturnT AttributeIf2Impl::getMoc(uint64_t& moc) const
{
    return If2Links::handleOf(_attr.getStruct().moc, moc);
}

ZefReturnT AttributeIf2Impl::getTypeContainer(uint64_t& typeContainer) const
{
    return If2Links::registeredHandle(_attr.getTypeContainer().getHandle(), typeContainer);
}

ZefReturnT AttributeIf2Impl::getNext(uint64_t& next) const
{
    return If2Links::handleOf(_attr.getStruct().next, next);
}

ZefReturnT AttributeIf2Impl::getIsKey(bool& isKey) const
{
    return If2Links::value(_attr.getStruct().isKey, isKey);
}

ZefReturnT AttributeIf2Impl::getIsMandatory(bool& isMandatory) const
{
    return If2Links::value(_attr.getStruct().isMandatory, isMandatory);
}

ZefReturnT AttributeIf2Impl::getIsPersistent(bool& isPersistent) const
{
    return If2Links::value(_attr.getStruct().isPersistent, isPersistent);
}

ZefReturnT AttributeIf2Impl::getIsReadOnly(bool& isReadOnly) const
{
    return If2Links::value(_attr.getStruct().isReadOnly, isReadOnly);
}

ZefReturnT AttributeIf2Impl::getIsRestricted(bool& isRestricted) const
{
    // Restricted and notifiable are kept by the record class, not published.
    return If2Links::value(_attr.getIsRestricted(), isRestricted);
}

ZefReturnT AttributeIf2Impl::getIsNotifiable(bool& isNotifiable) const
{
    return If2Links::value(_attr.getIsNotifiable(), isNotifiable);
}

ZefReturnT AttributeIf2Impl::getUnit(const char*& unit) const
{
    return If2Links::text(_attr.getStruct().unit, unit);
}

void AttributeIf2Impl::initInterface(ZefOamSpiAttribute_2& table)
{
    table.getGeneralProperties = &zefMrIfAttributeGetGeneralProperties<2>;
    table.getMoc = &zefMrIfAttributeGetMoc<2>;
    table.getTypeContainer = &zefMrIfAttributeGetTypeContainer<2>;
    table.getNext = &zefMrIfAttributeGetNext<2>;
    table.getIsKey = &zefMrIfAttributeGetIsKey<2>;
    table.getIsMandatory = &zefMrIfAttributeGetIsMandatory<2>;
    table.getIsPersistent = &zefMrIfAttributeGetIsPersistent<2>;
    table.getIsReadOnly = &zefMrIfAttributeGetIsReadOnly<2>;
    table.getIsRestricted = &zefMrIfAttributeGetIsRestricted<2>;
    table.getIsNotifiable = &zefMrIfAttributeGetIsNotifiable<2>;
    table.getUnit = &zefMrIfAttributeGetUnit<2>;
}

void AttributeIf2Impl::initInterface(ZefOamSpiMrAttribute_3& table)
{
    table.getGeneralProperties = &zefMrIfAttributeGetGeneralProperties<3>;
    table.getMoc = &zefMrIfAttributeGetMoc<3>;
    table.getTypeContainer = &zefMrIfAttributeGetTypeContainer<3>;
    table.getNext = &zefMrIfAttributeGetNext<3>;
    table.getIsKey = &zefMrIfAttributeGetIsKey<3>;
    table.getIsMandatory = &zefMrIfAttributeGetIsMandatory<3>;
    table.getIsPersistent = &zefMrIfAttributeGetIsPersistent<3>;
    table.getIsReadOnly = &zefMrIfAttributeGetIsReadOnly<3>;
    table.getIsRestricted = &zefMrIfAttributeGetIsRestricted<3>;
    table.getIsNotifiable = &zefMrIfAttributeGetIsNotifiable<3>;
    table.getUnit = &zefMrIfAttributeGetUnit<3>;
}

void AttributeIf2Impl::initInterface(ZefOamSpiMrAttribute_4& table)
{
    table.getGeneralProperties = &zefMrIfAttributeGetGeneralProperties<4>;
    table.getMoc = &zefMrIfAttributeGetMoc<4>;
    table.getTypeContainer = &zefMrIfAttributeGetTypeContainer<4>;
    table.getNext = &zefMrIfAttributeGetNext<4>;
    table.getIsKey = &zefMrIfAttributeGetIsKey<4>;
    table.getIsMandatory = &zefMrIfAttributeGetIsMandatory<4>;
    table.getIsPersistent = &zefMrIfAttributeGetIsPersistent<4>;
    table.getIsReadOnly = &zefMrIfAttributeGetIsReadOnly<4>;
    table.getIsRestricted = &zefMrIfAttributeGetIsRestricted<4>;
    table.getIsNotifiable = &zefMrIfAttributeGetIsNotifiable<4>;
    table.getUnit = &zefMrIfAttributeGetUnit<4>;
}

} // namespace ZefModelRepositoryService
