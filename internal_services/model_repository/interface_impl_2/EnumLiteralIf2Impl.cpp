#include "EnumLiteralIf2Impl.h"

#include "GeneralPropertiesIf2Impl.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"
#include "LitWrapper.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = EnumLiteralIf2Impl;

// One copy of each C function per interface version V (41 stands for "4_1").

template <int V>
ZefReturnT zefMrIfEnumLiteralGetGeneralProperties(uint64_t literal, uint64_t* generalProperties)
{
    return If2CBoundary::call<Impl>(literal, generalProperties, &Impl::getGeneralProperties);
}

template <int V>
ZefReturnT zefMrIfEnumLiteralGetValue(uint64_t literal, int64_t* value)
{
    return If2CBoundary::call<Impl>(literal, value, &Impl::getValue);
}

template <int V>
ZefReturnT zefMrIfEnumLiteralGetNext(uint64_t literal, uint64_t* next)
{
    return If2CBoundary::call<Impl>(literal, next, &Impl::getNext);
}

} // namespace

EnumLiteralIf2Impl::EnumLiteralIf2Impl(LitWrapper& record) : _literal(record)
{
    If2Manager::instance().pushEnumLiteral(this);
    _literal.setHandle(getHandle());
    GeneralPropertiesIf2Impl::registerFor(_literal);
}

const EnumLiteralIf2Impl& EnumLiteralIf2Impl::lookup(uint64_t handle)
{
    return If2Manager::instance().getEnumLiteral(handle);
}

ZefReturnT EnumLiteralIf2Impl::getGeneralProperties(uint64_t& generalProperties) const
{
    return If2Links::registeredHandle(_literal.getGeneralPropertiesHandle(), generalProperties);
}

ZefReturnT EnumLiteralIf2Impl::getValue(int64_t& value) const
{
    return If2Links::value(_literal.getValue(), value);
}

ZefReturnT EnumLiteralIf2Impl::getNext(uint64_t& next) const
{
    return If2Links::handleOf(_literal.getStruct().next, next);
}

void EnumLiteralIf2Impl::initInterface(ZefOamSpiEnum_2& table)
{
    table.literalGetGeneralProperties = &zefMrIfEnumLiteralGetGeneralProperties<2>;
    table.literalGetValue = &zefMrIfEnumLiteralGetValue<2>;
    table.literalGetNext = &zefMrIfEnumLiteralGetNext<2>;
}

void EnumLiteralIf2Impl::initInterface(ZefOamSpiMrEnum_3& table)
{
    table.literalGetGeneralProperties = &zefMrIfEnumLiteralGetGeneralProperties<3>;
    table.literalGetValue = &zefMrIfEnumLiteralGetValue<3>;
    table.literalGetNext = &zefMrIfEnumLiteralGetNext<3>;
}

void EnumLiteralIf2Impl::initInterface(ZefOamSpiMrEnum_4& table)
{
    table.literalGetGeneralProperties = &zefMrIfEnumLiteralGetGeneralProperties<4>;
    table.literalGetValue = &zefMrIfEnumLiteralGetValue<4>;
    table.literalGetNext = &zefMrIfEnumLiteralGetNext<4>;
}

void EnumLiteralIf2Impl::initInterface(ZefOamSpiMrEnum_4_1& table)
{
    table.literalGetGeneralProperties = &zefMrIfEnumLiteralGetGeneralProperties<41>;
    table.literalGetValue = &zefMrIfEnumLiteralGetValue<41>;
    table.literalGetNext = &zefMrIfEnumLiteralGetNext<41>;
}

} // namespace ZefModelRepositoryService
