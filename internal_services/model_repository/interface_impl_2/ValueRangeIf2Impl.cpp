#include "ValueRangeIf2Impl.h"

#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"
#include "ValueRangeWrapper.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = ValueRangeIf2Impl;

// One copy of each C function per interface version V.

template <int V>
ZefReturnT zefMrIfValueRangeGetMin(uint64_t valueRange, int64_t* min)
{
    return If2CBoundary::call<Impl>(valueRange, min, &Impl::getMin);
}

template <int V>
ZefReturnT zefMrIfValueRangeGetMax(uint64_t valueRange, int64_t* max)
{
    return If2CBoundary::call<Impl>(valueRange, max, &Impl::getMax);
}

template <int V>
ZefReturnT zefMrIfValueRangeGetMinDouble(uint64_t valueRange, double* min)
{
    return If2CBoundary::call<Impl>(valueRange, min, &Impl::getMin);
}

template <int V>
ZefReturnT zefMrIfValueRangeGetMaxDouble(uint64_t valueRange, double* max)
{
    return If2CBoundary::call<Impl>(valueRange, max, &Impl::getMax);
}

template <int V>
ZefReturnT zefMrIfValueRangeGetNext(uint64_t valueRange, uint64_t* next)
{
    return If2CBoundary::call<Impl>(valueRange, next, &Impl::getNext);
}

} // namespace

ValueRangeIf2Impl::ValueRangeIf2Impl(ValueRangeWrapper& range) : _range(range)
{
    If2Manager::instance().pushValueRange(this);
    _range.setHandle(getHandle());
}

const ValueRangeIf2Impl& ValueRangeIf2Impl::lookup(uint64_t handle)
{
    return If2Manager::instance().getValueRange(handle);
}

ZefReturnT ValueRangeIf2Impl::getMin(int64_t& min) const
{
    return If2Links::value(_range.getStruct().min, min);
}

ZefReturnT ValueRangeIf2Impl::getMax(int64_t& max) const
{
    return If2Links::value(_range.getStruct().max, max);
}

ZefReturnT ValueRangeIf2Impl::getMin(double& min) const
{
    return If2Links::value(_range.getStruct().minDouble, min);
}

ZefReturnT ValueRangeIf2Impl::getMax(double& max) const
{
    return If2Links::value(_range.getStruct().maxDouble, max);
}

ZefReturnT ValueRangeIf2Impl::getNext(uint64_t& next) const
{
    return If2Links::handleOf(_range.getStruct().next, next);
}

void ValueRangeIf2Impl::initInterface(ZefOamSpiDerived_2& table)
{
    table.valueRangeGetMin = &zefMrIfValueRangeGetMin<2>;
    table.valueRangeGetMax = &zefMrIfValueRangeGetMax<2>;
    table.valueRangeGetMinDouble = &zefMrIfValueRangeGetMinDouble<2>;
    table.valueRangeGetMaxDouble = &zefMrIfValueRangeGetMaxDouble<2>;
    table.valueRangeGetNext = &zefMrIfValueRangeGetNext<2>;
}

void ValueRangeIf2Impl::initInterface(ZefOamSpiMrInt_3& table)
{
    table.rangeGetMin = &zefMrIfValueRangeGetMin<3>;
    table.rangeGetMax = &zefMrIfValueRangeGetMax<3>;
    table.rangeGetNext = &zefMrIfValueRangeGetNext<3>;
}

void ValueRangeIf2Impl::initInterface(ZefOamSpiMrString_3& table)
{
    table.rangeGetMin = &zefMrIfValueRangeGetMin<3>;
    table.rangeGetMax = &zefMrIfValueRangeGetMax<3>;
    table.rangeGetNext = &zefMrIfValueRangeGetNext<3>;
}

void ValueRangeIf2Impl::initInterface(ZefOamSpiMrFloat_3& table)
{
    table.rangeGetMin = &zefMrIfValueRangeGetMinDouble<3>;
    table.rangeGetMax = &zefMrIfValueRangeGetMaxDouble<3>;
    table.rangeGetNext = &zefMrIfValueRangeGetNext<3>;
}

void ValueRangeIf2Impl::initInterface(ZefOamSpiMrInt_4& table)
{
    table.rangeGetMin = &zefMrIfValueRangeGetMin<4>;
    table.rangeGetMax = &zefMrIfValueRangeGetMax<4>;
    table.rangeGetNext = &zefMrIfValueRangeGetNext<4>;
}

void ValueRangeIf2Impl::initInterface(ZefOamSpiMrString_4& table)
{
    table.rangeGetMin = &zefMrIfValueRangeGetMin<4>;
    table.rangeGetMax = &zefMrIfValueRangeGetMax<4>;
    table.rangeGetNext = &zefMrIfValueRangeGetNext<4>;
}

void ValueRangeIf2Impl::initInterface(ZefOamSpiMrFloat_4& table)
{
    table.rangeGetMin = &zefMrIfValueRangeGetMinDouble<4>;
    table.rangeGetMax = &zefMrIfValueRangeGetMaxDouble<4>;
    table.rangeGetNext = &zefMrIfValueRangeGetNext<4>;
}

} // namespace ZefModelRepositoryService
