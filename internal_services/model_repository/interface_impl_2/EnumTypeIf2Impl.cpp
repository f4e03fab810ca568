#include "EnumTypeIf2Impl.h"

#include "EnumLiteralIf2Impl.h"
#include "EnumWrapper.h"
#include "GeneralPropertiesIf2Impl.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = EnumTypeIf2Impl;

// One copy of each C function per interface version V (41 stands for "4_1").

template <int V>
ZefReturnT zefMrIfEnumTypeGetGeneralProperties(uint64_t enumType, uint64_t* generalProperties)
{
    return If2CBoundary::callAs<Impl>(Impl::kHandleLookupFailureText,
                                      enumType, generalProperties, &Impl::getGeneralProperties);
}

template <int V>
ZefReturnT zefMrIfEnumTypeGetMom(uint64_t enumType, uint64_t* mom)
{
    return If2CBoundary::call<Impl>(enumType, mom, &Impl::getMom);
}

template <int V>
ZefReturnT zefMrIfEnumTypeGetLiteral(uint64_t enumType, uint64_t* literal)
{
    return If2CBoundary::call<Impl>(enumType, literal, &Impl::getLiteral);
}

} // namespace

EnumTypeIf2Impl::EnumTypeIf2Impl(EnumWrapper& record) : _enum(record)
{
    If2Manager::instance().pushEnumType(this);
    _enum.setHandle(getHandle());
    GeneralPropertiesIf2Impl::registerFor(_enum);
    for (LitWrapper* literal : _enum.getLiteralsList()) {
        new EnumLiteralIf2Impl(*literal);
    }
}

const EnumTypeIf2Impl& EnumTypeIf2Impl::lookup(uint64_t handle)
{
    return If2Manager::instance().getEnumType(handle);
}

ZefReturnT EnumTypeIf2Impl::getGeneralProperties(uint64_t& generalProperties) const
{
    return If2Links::registeredHandle(_enum.getGeneralPropertiesHandle(), generalProperties);
}

ZefReturnT EnumTypeIf2Impl::getMom(uint64_t& mom) const
{
    return If2Links::handleOf(_enum.getStruct().mom, mom);
}

ZefReturnT EnumTypeIf2Impl::getLiteral(uint64_t& literal) const
{
    return If2Links::handleOf(_enum.getStruct().literals, literal);
}

void EnumTypeIf2Impl::initInterface(ZefOamSpiEnum_2& table)
{
    table.getGeneralProperties = &zefMrIfEnumTypeGetGeneralProperties<2>;
    table.getMom = &zefMrIfEnumTypeGetMom<2>;
    table.getLiteral = &zefMrIfEnumTypeGetLiteral<2>;
}

void EnumTypeIf2Impl::initInterface(ZefOamSpiMrEnum_3& table)
{
    table.getGeneralProperties = &zefMrIfEnumTypeGetGeneralProperties<3>;
    table.getMom = &zefMrIfEnumTypeGetMom<3>;
    table.getLiteral = &zefMrIfEnumTypeGetLiteral<3>;
}

void EnumTypeIf2Impl::initInterface(ZefOamSpiMrEnum_4& table)
{
    table.getGeneralProperties = &zefMrIfEnumTypeGetGeneralProperties<4>;
    table.getMom = &zefMrIfEnumTypeGetMom<4>;
    table.getLiteral = &zefMrIfEnumTypeGetLiteral<4>;
}

void EnumTypeIf2Impl::initInterface(ZefOamSpiMrEnum_4_1& table)
{
    table.getGeneralProperties = &zefMrIfEnumTypeGetGeneralProperties<41>;
    table.getMom = &zefMrIfEnumTypeGetMom<41>;
    table.getLiteral = &zefMrIfEnumTypeGetLiteral<41>;
}

} // namespace ZefModelRepositoryService
