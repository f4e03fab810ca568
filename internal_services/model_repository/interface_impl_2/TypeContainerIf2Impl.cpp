#include "TypeContainerIf2Impl.h"

#include "DerivedTypeIf2Impl.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"
#include "TypeContainerWrapper.h"
#include "ValueRangeIf2Impl.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = TypeContainerIf2Impl;

// One copy of each C function per interface version V.

template <int V, typename Code>
ZefReturnT zefMrIfTypeContainerGetType(uint64_t typeContainer, Code* type)
{
    return If2CBoundary::call<Impl>(typeContainer, type, &Impl::getType);
}

template <int V>
ZefReturnT zefMrIfTypeContainerGetDerived(uint64_t typeContainer, uint64_t* derivedType)
{
    return If2CBoundary::call<Impl>(typeContainer, derivedType, &Impl::getDerived);
}

template <int V>
ZefReturnT zefMrIfTypeContainerGetEnum(uint64_t typeContainer, uint64_t* enumType)
{
    return If2CBoundary::call<Impl>(typeContainer, enumType, &Impl::getEnum);
}

template <int V>
ZefReturnT zefMrIfTypeContainerGetStruct(uint64_t typeContainer, uint64_t* structType)
{
    return If2CBoundary::call<Impl>(typeContainer, structType, &Impl::getStruct);
}

template <int V>
ZefReturnT zefMrIfTypeContainerGetReferencedMoc(uint64_t typeContainer, uint64_t* moc)
{
    return If2CBoundary::call<Impl>(typeContainer, moc, &Impl::getReferencedMoc);
}

template <int V>
ZefReturnT zefMrIfTypeContainerGetDefaultValue(uint64_t typeContainer, const char* const** values)
{
    return If2CBoundary::call<Impl>(typeContainer, values, &Impl::getDefaultValue);
}

template <int V>
ZefReturnT zefMrIfTypeContainerGetIsOrdered(uint64_t typeContainer, bool* isOrdered)
{
    return If2CBoundary::call<Impl>(typeContainer, isOrdered, &Impl::getIsOrdered);
}

template <int V>
ZefReturnT zefMrIfTypeContainerGetIsUnique(uint64_t typeContainer, bool* isUnique)
{
    return If2CBoundary::call<Impl>(typeContainer, isUnique, &Impl::getIsUnique);
}

template <int V>
ZefReturnT zefMrIfTypeContainerGetMultiplicityMin(uint64_t typeContainer, uint64_t* min)
{
    return If2CBoundary::call<Impl>(typeContainer, min, &Impl::getMultiplicityMin);
}

template <int V>
ZefReturnT zefMrIfTypeContainerGetMultiplicityMax(uint64_t typeContainer, uint64_t* max)
{
    return If2CBoundary::call<Impl>(typeContainer, max, &Impl::getMultiplicityMax);
}

template <int V, typename Property>
ZefReturnT zefMrIfTypeMoRefGetHandleProperty(uint64_t typeContainer, Property property, uint64_t* handle)
{
    return If2CBoundary::call<Impl>(typeContainer, handle, &Impl::getMoRefHandleProperty, property);
}

template <int V, typename Property>
ZefReturnT zefMrIfTypeIntGetIntProperty(uint64_t typeContainer, Property property, int64_t* value)
{
    return If2CBoundary::call<Impl>(typeContainer, value, &Impl::getIntProperty, property);
}

template <int V, typename Property>
ZefReturnT zefMrIfTypeIntGetHandleProperty(uint64_t typeContainer, Property property, uint64_t* handle)
{
    return If2CBoundary::call<Impl>(typeContainer, handle, &Impl::getIntHandleProperty, property);
}

template <int V, typename Property>
ZefReturnT zefMrIfTypeStringGetStringProperty(uint64_t typeContainer, Property property, const char** value)
{
    return If2CBoundary::call<Impl>(typeContainer, value, &Impl::getStringTextProperty, property);
}

template <int V, typename Property>
ZefReturnT zefMrIfTypeStringGetIntProperty(uint64_t typeContainer, Property property, int64_t* value)
{
    return If2CBoundary::call<Impl>(typeContainer, value, &Impl::getStringIntProperty, property);
}

template <int V, typename Property>
ZefReturnT zefMrIfTypeStringGetBoolProperty(uint64_t typeContainer, Property property, bool* value)
{
    return If2CBoundary::call<Impl>(typeContainer, value, &Impl::getStringBoolProperty, property);
}

template <int V, typename Property>
ZefReturnT zefMrIfTypeStringGetHandleProperty(uint64_t typeContainer, Property property, uint64_t* handle)
{
    return If2CBoundary::call<Impl>(typeContainer, handle, &Impl::getStringHandleProperty, property);
}

template <int V, typename Property>
ZefReturnT zefMrIfTypeFloatGetFloatProperty(uint64_t typeContainer, Property property, double* value)
{
    return If2CBoundary::call<Impl>(typeContainer, value, &Impl::getFloatProperty, property);
}

template <int V, typename Property>
ZefReturnT zefMrIfTypeFloatGetStringProperty(uint64_t typeContainer, Property property, const char** value)
{
    // Unlike every other C function, the arguments are checked before the
    // service state: a float type has one string property, its resolution.
    if (value == nullptr) {
        return ZefInvalidArgument;
    }
    if (static_cast<int>(property) != 0) {
        return ZefNotFound;
    }
    return If2CBoundary::call<Impl>(typeContainer, value, &Impl::getFloatStringResolution);
}

template <int V, typename Property>
ZefReturnT zefMrIfTypeFloatGetHandleProperty(uint64_t typeContainer, Property property, uint64_t* handle)
{
    return If2CBoundary::call<Impl>(typeContainer, handle, &Impl::getFloatHandleProperty, property);
}

} // namespace

TypeContainerIf2Impl::TypeContainerIf2Impl(TypeContainerWrapper& typeContainer) : _typeContainer(typeContainer)
{
    If2Manager::instance().pushTypeContainer(this);
    _typeContainer.setHandle(getHandle());
}

uint64_t TypeContainerIf2Impl::registerFor(TypeContainerWrapper& typeContainer)
{
    // The manager owns the object from its construction on.
    return (new TypeContainerIf2Impl(typeContainer))->getHandle();
}

const TypeContainerIf2Impl& TypeContainerIf2Impl::lookup(uint64_t handle)
{
    return If2Manager::instance().getTypeContainer(handle);
}

ZefReturnT TypeContainerIf2Impl::getType(ZefOamSpiType_2& type) const
{
    return _typeContainer.getType(type);
}

ZefReturnT TypeContainerIf2Impl::getType(ZefOamSpiMrType_3& type) const
{
    return _typeContainer.getType(type);
}

ZefReturnT TypeContainerIf2Impl::getType(ZefOamSpiMrType_4& type) const
{
    // Version 4 keeps the numbers of version 3 and only appends new codes.
    ZefOamSpiMrType_3 stored = ZefMrType3NotSet;
    _typeContainer.getType(stored);
    return If2Links::value(stored, type);
}

ZefReturnT TypeContainerIf2Impl::getDerived(uint64_t& derivedType) const
{
    uint64_t found = 0;
    const ZefReturnT result = _typeContainer.getDerived(found);
    return If2Links::foundHandle(result, found, derivedType);
}

ZefReturnT TypeContainerIf2Impl::getEnum(uint64_t& enumType) const
{
    uint64_t found = 0;
    const ZefReturnT result = _typeContainer.getEnum(found);
    return If2Links::foundHandle(result, found, enumType);
}

ZefReturnT TypeContainerIf2Impl::getStruct(uint64_t& structType) const
{
    uint64_t found = 0;
    const ZefReturnT result = _typeContainer.getStruct(found);
    return If2Links::foundHandle(result, found, structType);
}

ZefReturnT TypeContainerIf2Impl::getReferencedMoc(uint64_t& moc) const
{
    uint64_t found = 0;
    const ZefReturnT result = _typeContainer.getReferencedMoc(found);
    return If2Links::foundHandle(result, found, moc);
}

ZefReturnT TypeContainerIf2Impl::getDefaultValue(const char* const*& values) const
{
    return _typeContainer.getDefaultValue(values);
}

ZefReturnT TypeContainerIf2Impl::getIsOrdered(bool& isOrdered) const
{
    return _typeContainer.getIsOrdered(isOrdered);
}

ZefReturnT TypeContainerIf2Impl::getIsUnique(bool& isUnique) const
{
    return _typeContainer.getIsUnique(isUnique);
}

ZefReturnT TypeContainerIf2Impl::getMultiplicityMin(uint64_t& min) const
{
    return _typeContainer.getMultiplicityMin(min);
}

ZefReturnT TypeContainerIf2Impl::getMultiplicityMax(uint64_t& max) const
{
    return _typeContainer.getMultiplicityMax(max);
}

template <typename Answer>
ZefReturnT TypeContainerIf2Impl::withDerivedType(Answer answer) const
{
    uint64_t handle = 0;
    const ZefReturnT result = getDerived(handle);
    if (result != ZefOk) {
        return result;
    }
    const DerivedTypeIf2Impl* derivedType = If2CBoundary::find<DerivedTypeIf2Impl>(handle);
    return derivedType == nullptr ? ZefInvalidArgument : answer(*derivedType);
}

template <typename Answer>
ZefReturnT TypeContainerIf2Impl::withFirstRange(ZefReturnT (DerivedTypeIf2Impl::*firstRange)(uint64_t&) const,
                                                Answer answer) const
{
    return withDerivedType([&](const DerivedTypeIf2Impl& derivedType) {
        uint64_t handle = 0;
        const ZefReturnT result = (derivedType.*firstRange)(handle);
        if (result != ZefOk) {
            return result;
        }
        const ValueRangeIf2Impl* range = If2CBoundary::find<ValueRangeIf2Impl>(handle);
        return range == nullptr ? ZefInvalidArgument : answer(*range);
    });
}

ZefReturnT TypeContainerIf2Impl::getMoRefHandleProperty(int property, uint64_t& handle) const
{
    return property == ZefMrMoRefProperty4Moc ? getReferencedMoc(handle) : ZefNotFound;
}

ZefReturnT TypeContainerIf2Impl::getIntProperty(int property, int64_t& value) const
{
    switch (property) {
    case ZefMrIntProperty4Resolution:
        return withDerivedType([&](const DerivedTypeIf2Impl& d) { return d.getResolution(value); });
    case ZefMrIntProperty4Min:
        return withFirstRange(&DerivedTypeIf2Impl::getNumericRestrictionRange,
                              [&](const ValueRangeIf2Impl& r) { return r.getMin(value); });
    case ZefMrIntProperty4Max:
        return withFirstRange(&DerivedTypeIf2Impl::getNumericRestrictionRange,
                              [&](const ValueRangeIf2Impl& r) { return r.getMax(value); });
    default:
        return ZefNotFound;
    }
}

ZefReturnT TypeContainerIf2Impl::getIntHandleProperty(int property, uint64_t& handle) const
{
    if (property != ZefMrIntProperty4FirstRange) {
        return ZefNotFound;
    }
    return withDerivedType([&](const DerivedTypeIf2Impl& d) { return d.getNumericRestrictionRange(handle); });
}

ZefReturnT TypeContainerIf2Impl::getStringTextProperty(int property, const char*& value) const
{
    switch (property) {
    case ZefMrStringProperty4Pattern:
        return withDerivedType([&](const DerivedTypeIf2Impl& d) { return d.getStringRestrictionPattern(value); });
    case ZefMrStringProperty4ExceptionText:
        return withDerivedType(
            [&](const DerivedTypeIf2Impl& d) { return d.getStringRestrictionExceptionText(value); });
    default:
        return ZefNotFound;
    }
}

ZefReturnT TypeContainerIf2Impl::getStringIntProperty(int property, int64_t& value) const
{
    switch (property) {
    case ZefMrStringProperty4MinLength:
        return withFirstRange(&DerivedTypeIf2Impl::getStringRestrictionLength,
                              [&](const ValueRangeIf2Impl& r) { return r.getMin(value); });
    case ZefMrStringProperty4MaxLength:
        return withFirstRange(&DerivedTypeIf2Impl::getStringRestrictionLength,
                              [&](const ValueRangeIf2Impl& r) { return r.getMax(value); });
    default:
        return ZefNotFound;
    }
}

ZefReturnT TypeContainerIf2Impl::getStringBoolProperty(int property, bool& value) const
{
    if (property != ZefMrStringProperty4IsPassphrase) {
        return ZefNotFound;
    }
    return withDerivedType([&](const DerivedTypeIf2Impl& d) { return d.getIsPassphrase(value); });
}

ZefReturnT TypeContainerIf2Impl::getStringHandleProperty(int property, uint64_t& handle) const
{
    if (property != ZefMrStringProperty4FirstLengthRange) {
        return ZefNotFound;
    }
    return withDerivedType([&](const DerivedTypeIf2Impl& d) { return d.getStringRestrictionLength(handle); });
}

ZefReturnT TypeContainerIf2Impl::getFloatProperty(int property, double& value) const
{
    switch (property) {
    case ZefMrFloatProperty4Resolution:
        return withDerivedType([&](const DerivedTypeIf2Impl& d) { return d.getFloatResolution(value); });
    case ZefMrFloatProperty4Min:
        return withFirstRange(&DerivedTypeIf2Impl::getNumericRestrictionRange,
                              [&](const ValueRangeIf2Impl& r) { return r.getMin(value); });
    case ZefMrFloatProperty4Max:
        return withFirstRange(&DerivedTypeIf2Impl::getNumericRestrictionRange,
                              [&](const ValueRangeIf2Impl& r) { return r.getMax(value); });
    default:
        return ZefNotFound;
    }
}

ZefReturnT TypeContainerIf2Impl::getFloatStringResolution(const char*& resolution) const
{
    return withDerivedType([&](const DerivedTypeIf2Impl& d) { return d.getFloatStringResolution(resolution); });
}

ZefReturnT TypeContainerIf2Impl::getFloatHandleProperty(int property, uint64_t& handle) const
{
    if (property != ZefMrFloatProperty4FirstRange) {
        return ZefNotFound;
    }
    return withDerivedType([&](const DerivedTypeIf2Impl& d) { return d.getNumericRestrictionRange(handle); });
}

void TypeContainerIf2Impl::initInterface(ZefOamSpiTypeContainer_2& table)
{
    table.getType = &zefMrIfTypeContainerGetType<2>;
    table.getDerived = &zefMrIfTypeContainerGetDerived<2>;
    table.getEnum = &zefMrIfTypeContainerGetEnum<2>;
    table.getStruct = &zefMrIfTypeContainerGetStruct<2>;
    table.getReferencedMoc = &zefMrIfTypeContainerGetReferencedMoc<2>;
    table.getDefaultValue = &zefMrIfTypeContainerGetDefaultValue<2>;
    table.getIsOrdered = &zefMrIfTypeContainerGetIsOrdered<2>;
    table.getIsUnique = &zefMrIfTypeContainerGetIsUnique<2>;
    table.getMultiplicityMin = &zefMrIfTypeContainerGetMultiplicityMin<2>;
    table.getMultiplicityMax = &zefMrIfTypeContainerGetMultiplicityMax<2>;
}

void TypeContainerIf2Impl::initInterface(ZefOamSpiMrTypeContainer_3& table)
{
    table.getType = &zefMrIfTypeContainerGetType<3>;
    table.getDerived = &zefMrIfTypeContainerGetDerived<3>;
    table.getEnum = &zefMrIfTypeContainerGetEnum<3>;
    table.getStruct = &zefMrIfTypeContainerGetStruct<3>;
    table.getReferencedMoc = &zefMrIfTypeContainerGetReferencedMoc<3>;
    table.getDefaultValue = &zefMrIfTypeContainerGetDefaultValue<3>;
    table.getIsOrdered = &zefMrIfTypeContainerGetIsOrdered<3>;
    table.getIsUnique = &zefMrIfTypeContainerGetIsUnique<3>;
    table.getMultiplicityMin = &zefMrIfTypeContainerGetMultiplicityMin<3>;
    table.getMultiplicityMax = &zefMrIfTypeContainerGetMultiplicityMax<3>;
}

void TypeContainerIf2Impl::initInterface(ZefOamSpiMrTypeContainer_4& table)
{
    table.getType = &zefMrIfTypeContainerGetType<4>;
    table.getDerived = &zefMrIfTypeContainerGetDerived<4>;
    table.getEnum = &zefMrIfTypeContainerGetEnum<4>;
    table.getStruct = &zefMrIfTypeContainerGetStruct<4>;
    table.getReferencedMoc = &zefMrIfTypeContainerGetReferencedMoc<4>;
    table.getDefaultValue = &zefMrIfTypeContainerGetDefaultValue<4>;
    table.getIsOrdered = &zefMrIfTypeContainerGetIsOrdered<4>;
    table.getIsUnique = &zefMrIfTypeContainerGetIsUnique<4>;
    table.getMultiplicityMin = &zefMrIfTypeContainerGetMultiplicityMin<4>;
    table.getMultiplicityMax = &zefMrIfTypeContainerGetMultiplicityMax<4>;
}

void TypeContainerIf2Impl::initInterface(ZefOamSpiMrMoRef_3& table)
{
    table.getHandleProperty = &zefMrIfTypeMoRefGetHandleProperty<3>;
}

void TypeContainerIf2Impl::initInterface(ZefOamSpiMrInt_3& table)
{
    table.getIntProperty = &zefMrIfTypeIntGetIntProperty<3>;
    table.getHandleProperty = &zefMrIfTypeIntGetHandleProperty<3>;
}

void TypeContainerIf2Impl::initInterface(ZefOamSpiMrString_3& table)
{
    table.getStringProperty = &zefMrIfTypeStringGetStringProperty<3>;
    table.getIntProperty = &zefMrIfTypeStringGetIntProperty<3>;
    table.getBoolProperty = &zefMrIfTypeStringGetBoolProperty<3>;
    table.getHandleProperty = &zefMrIfTypeStringGetHandleProperty<3>;
}

void TypeContainerIf2Impl::initInterface(ZefOamSpiMrFloat_3& table)
{
    table.getFloatProperty = &zefMrIfTypeFloatGetFloatProperty<3>;
    table.getStringProperty = &zefMrIfTypeFloatGetStringProperty<3>;
    table.getHandleProperty = &zefMrIfTypeFloatGetHandleProperty<3>;
}

void TypeContainerIf2Impl::initInterface(ZefOamSpiMrMoRef_4& table)
{
    table.getHandleProperty = &zefMrIfTypeMoRefGetHandleProperty<4>;
}

void TypeContainerIf2Impl::initInterface(ZefOamSpiMrInt_4& table)
{
    table.getIntProperty = &zefMrIfTypeIntGetIntProperty<4>;
    table.getHandleProperty = &zefMrIfTypeIntGetHandleProperty<4>;
}

void TypeContainerIf2Impl::initInterface(ZefOamSpiMrString_4& table)
{
    table.getStringProperty = &zefMrIfTypeStringGetStringProperty<4>;
    table.getIntProperty = &zefMrIfTypeStringGetIntProperty<4>;
    table.getBoolProperty = &zefMrIfTypeStringGetBoolProperty<4>;
    table.getHandleProperty = &zefMrIfTypeStringGetHandleProperty<4>;
}

void TypeContainerIf2Impl::initInterface(ZefOamSpiMrFloat_4& table)
{
    table.getFloatProperty = &zefMrIfTypeFloatGetFloatProperty<4>;
    table.getStringProperty = &zefMrIfTypeFloatGetStringProperty<4>;
    table.getHandleProperty = &zefMrIfTypeFloatGetHandleProperty<4>;
}

} // namespace ZefModelRepositoryService
