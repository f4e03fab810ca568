#include "DerivedTypeIf2Impl.h"

#include <string>

#include "DdtWrapper.h"
#include "GeneralPropertiesIf2Impl.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"
#include "ValueRangeIf2Impl.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = DerivedTypeIf2Impl;

// One copy of each C function per interface version V.

template <int V>
ZefReturnT zefMrIfDerivedTypeGetGeneralProperties(uint64_t derivedType, uint64_t* generalProperties)
{
    return If2CBoundary::call<Impl>(derivedType, generalProperties, &Impl::getGeneralProperties);
}

template <int V>
ZefReturnT zefMrIfDerivedTypeGetMom(uint64_t derivedType, uint64_t* mom)
{
    return If2CBoundary::call<Impl>(derivedType, mom, &Impl::getMom);
}

template <int V, typename Code>
ZefReturnT zefMrIfDerivedTypeGetType(uint64_t derivedType, Code* type)
{
    return If2CBoundary::call<Impl>(derivedType, type, &Impl::getType);
}

template <int V>
ZefReturnT zefMrIfDerivedTypeGetResolution(uint64_t derivedType, int64_t* resolution)
{
    return If2CBoundary::call<Impl>(derivedType, resolution, &Impl::getResolution);
}

template <int V>
ZefReturnT zefMrIfDerivedTypeGetFloatResolution(uint64_t derivedType, double* resolution)
{
    return If2CBoundary::call<Impl>(derivedType, resolution, &Impl::getFloatResolution);
}

template <int V>
ZefReturnT zefMrIfDerivedTypeGetFloatStringResolution(uint64_t derivedType, const char** resolution)
{
    return If2CBoundary::call<Impl>(derivedType, resolution, &Impl::getFloatStringResolution);
}

template <int V>
ZefReturnT zefMrIfDerivedTypeGetStringRestrictionPattern(uint64_t derivedType, const char** pattern)
{
    return If2CBoundary::call<Impl>(derivedType, pattern, &Impl::getStringRestrictionPattern);
}

template <int V>
ZefReturnT zefMrIfDerivedTypeGetStringRestrictionExceptionText(uint64_t derivedType, const char** exceptionText)
{
    return If2CBoundary::call<Impl>(derivedType, exceptionText, &Impl::getStringRestrictionExceptionText);
}

template <int V>
ZefReturnT zefMrIfDerivedTypeGetStringRestrictionLength(uint64_t derivedType, uint64_t* valueRange)
{
    return If2CBoundary::call<Impl>(derivedType, valueRange, &Impl::getStringRestrictionLength);
}

template <int V>
ZefReturnT zefMrIfDerivedTypeGetNumericRestrictionRange(uint64_t derivedType, uint64_t* valueRange)
{
    return If2CBoundary::call<Impl>(derivedType, valueRange, &Impl::getNumericRestrictionRange);
}

template <int V>
ZefReturnT zefMrIfDerivedTypeGetIsPassphrase(uint64_t derivedType, bool* isPassphrase)
{
    return If2CBoundary::call<Impl>(derivedType, isPassphrase, &Impl::getIsPassphrase);
}

} // namespace

DerivedTypeIf2Impl::DerivedTypeIf2Impl(DdtWrapper& record) : _derivedType(record)
{
    If2Manager::instance().pushDerivedType(this);
    _derivedType.setHandle(getHandle());
    GeneralPropertiesIf2Impl::registerFor(_derivedType);
    for (ValueRangeWrapper* range : _derivedType.getValueRanges()) {
        new ValueRangeIf2Impl(*range);
    }
    for (ValueRangeWrapper* range : _derivedType.getLengthRanges()) {
        new ValueRangeIf2Impl(*range);
    }
}

const DerivedTypeIf2Impl& DerivedTypeIf2Impl::lookup(uint64_t handle)
{
    return If2Manager::instance().getDerivedType(handle);
}

namespace {

/// A text the record class keeps as a string: null when it was not given.
ZefReturnT textOrNull(const std::string& value, const char*& out)
{
    return If2Links::text(value.empty() ? nullptr : value.c_str(), out);
}

} // namespace

ZefReturnT DerivedTypeIf2Impl::getGeneralProperties(uint64_t& generalProperties) const
{
    return If2Links::registeredHandle(_derivedType.getGeneralPropertiesHandle(), generalProperties);
}

ZefReturnT DerivedTypeIf2Impl::getMom(uint64_t& mom) const
{
    return If2Links::handleOf(_derivedType.getStruct().mom, mom);
}

ZefReturnT DerivedTypeIf2Impl::getType(ZefOamSpiType_2& type) const
{
    const ZefOamSpiMoAttributeType stored = _derivedType.getStruct().type;
    if (stored < ZefMoAttributeTypeInt8 || stored > ZefMoAttributeTypeVoid) {
        return ZefInvalidArgument;
    }
    return If2Links::value(stored, type);
}

ZefReturnT DerivedTypeIf2Impl::getType(ZefOamSpiMrType_3& type) const
{
    return If2Links::value(_derivedType.getType(), type);
}

ZefReturnT DerivedTypeIf2Impl::getType(ZefOamSpiMrType_4& type) const
{
    return If2Links::value(_derivedType.getType4(), type);
}

ZefReturnT DerivedTypeIf2Impl::getResolution(int64_t& resolution) const
{
    return If2Links::value(_derivedType.getIntResolution(), resolution);
}

ZefReturnT DerivedTypeIf2Impl::getFloatResolution(double& resolution) const
{
    return If2Links::value(_derivedType.getFloatResolution(), resolution);
}

ZefReturnT DerivedTypeIf2Impl::getFloatStringResolution(const char*& resolution) const
{
    return textOrNull(_derivedType.getFloatStringResolution(), resolution);
}

ZefReturnT DerivedTypeIf2Impl::getStringRestrictionPattern(const char*& pattern) const
{
    return If2Links::text(_derivedType.getStruct().pattern, pattern);
}

ZefReturnT DerivedTypeIf2Impl::getStringRestrictionExceptionText(const char*& exceptionText) const
{
    return textOrNull(_derivedType.getExceptionText(), exceptionText);
}

ZefReturnT DerivedTypeIf2Impl::getStringRestrictionLength(uint64_t& valueRange) const
{
    uint64_t found = 0;
    const ZefReturnT result = _derivedType.getFirstStringRestrictionLengthHandle(found);
    return If2Links::foundHandle(result, found, valueRange);
}

ZefReturnT DerivedTypeIf2Impl::getNumericRestrictionRange(uint64_t& valueRange) const
{
    uint64_t found = 0;
    const ZefReturnT result = _derivedType.getFirstNumericRestrictionLengthHandle(found);
    return If2Links::foundHandle(result, found, valueRange);
}

ZefReturnT DerivedTypeIf2Impl::getIsPassphrase(bool& isPassphrase) const
{
    return If2Links::value(_derivedType.getIsPassphrase(), isPassphrase);
}

void DerivedTypeIf2Impl::initInterface(ZefOamSpiDerived_2& table)
{
    table.getGeneralProperties = &zefMrIfDerivedTypeGetGeneralProperties<2>;
    table.getMom = &zefMrIfDerivedTypeGetMom<2>;
    table.getType = &zefMrIfDerivedTypeGetType<2>;
    table.getResolution = &zefMrIfDerivedTypeGetResolution<2>;
    table.getFloatResolution = &zefMrIfDerivedTypeGetFloatResolution<2>;
    table.getFloatStringResolution = &zefMrIfDerivedTypeGetFloatStringResolution<2>;
    table.getStringRestrictionPattern = &zefMrIfDerivedTypeGetStringRestrictionPattern<2>;
    table.getStringRestrictionExceptionText = &zefMrIfDerivedTypeGetStringRestrictionExceptionText<2>;
    table.getStringRestrictionLength = &zefMrIfDerivedTypeGetStringRestrictionLength<2>;
    table.getNumericRestrictionRange = &zefMrIfDerivedTypeGetNumericRestrictionRange<2>;
    table.getIsPassphrase = &zefMrIfDerivedTypeGetIsPassphrase<2>;
}

void DerivedTypeIf2Impl::initInterface(ZefOamSpiMrTypeContainer_3& table)
{
    table.derivedTypeGetGeneralProperties = &zefMrIfDerivedTypeGetGeneralProperties<3>;
    table.derivedTypeGetMom = &zefMrIfDerivedTypeGetMom<3>;
    table.derivedTypeGetType = &zefMrIfDerivedTypeGetType<3>;
}

void DerivedTypeIf2Impl::initInterface(ZefOamSpiMrTypeContainer_4& table)
{
    table.derivedTypeGetGeneralProperties = &zefMrIfDerivedTypeGetGeneralProperties<4>;
    table.derivedTypeGetMom = &zefMrIfDerivedTypeGetMom<4>;
    table.derivedTypeGetType = &zefMrIfDerivedTypeGetType<4>;
}

} // namespace ZefModelRepositoryService
