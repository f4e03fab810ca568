#include "StructTypeIf2Impl.h"

#include "GeneralPropertiesIf2Impl.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"
#include "StructMemberIf2Impl.h"
#include "StructWrapper.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = StructTypeIf2Impl;

// One copy of each C function per interface version V.

template <int V>
ZefReturnT zefMrIfStructTypeGetGeneralProperties(uint64_t structType, uint64_t* generalProperties)
{
    return If2CBoundary::callAs<Impl>(Impl::kHandleLookupFailureText,
                                      structType, generalProperties, &Impl::getGeneralProperties);
}

template <int V>
ZefReturnT zefMrIfStructTypeGetMom(uint64_t structType, uint64_t* mom)
{
    return If2CBoundary::call<Impl>(structType, mom, &Impl::getMom);
}

template <int V>
ZefReturnT zefMrIfStructTypeGetMember(uint64_t structType, uint64_t* member)
{
    return If2CBoundary::call<Impl>(structType, member, &Impl::getMember);
}

template <int V>
ZefReturnT zefMrIfStructTypeGetIsExclusive(uint64_t structType, bool* isExclusive)
{
    return If2CBoundary::call<Impl>(structType, isExclusive, &Impl::getIsExclusive);
}

} // namespace

StructTypeIf2Impl::StructTypeIf2Impl(StructWrapper& record) : _struct(record)
{
    If2Manager::instance().pushStructType(this);
    _struct.setHandle(getHandle());
    GeneralPropertiesIf2Impl::registerFor(_struct);
    for (StructMemberWrapper* member : _struct.getStructMemberList()) {
        new StructMemberIf2Impl(*member);
    }
}

const StructTypeIf2Impl& StructTypeIf2Impl::lookup(uint64_t handle)
{
    return If2Manager::instance().getStructType(handle);
}

ZefReturnT StructTypeIf2Impl::getGeneralProperties(uint64_t& generalProperties) const
{
    return If2Links::registeredHandle(_struct.getGeneralPropertiesHandle(), generalProperties);
}

ZefReturnT StructTypeIf2Impl::getMom(uint64_t& mom) const
{
    return If2Links::handleOf(_struct.getStruct().mom, mom);
}

ZefReturnT StructTypeIf2Impl::getMember(uint64_t& member) const
{
    return If2Links::handleOf(_struct.getStruct().members, member);
}

ZefReturnT StructTypeIf2Impl::getIsExclusive(bool& isExclusive) const
{
    return _struct.getIsExclusive(isExclusive);
}

void StructTypeIf2Impl::initInterface(ZefOamSpiStruct_2& table)
{
    table.getGeneralProperties = &zefMrIfStructTypeGetGeneralProperties<2>;
    table.getMom = &zefMrIfStructTypeGetMom<2>;
    table.getMember = &zefMrIfStructTypeGetMember<2>;
    table.getIsExclusive = &zefMrIfStructTypeGetIsExclusive<2>;
}

void StructTypeIf2Impl::initInterface(ZefOamSpiMrStruct_3& table)
{
    table.getGeneralProperties = &zefMrIfStructTypeGetGeneralProperties<3>;
    table.getMom = &zefMrIfStructTypeGetMom<3>;
    table.getMember = &zefMrIfStructTypeGetMember<3>;
    table.getIsExclusive = &zefMrIfStructTypeGetIsExclusive<3>;
}

void StructTypeIf2Impl::initInterface(ZefOamSpiMrStruct_4& table)
{
    table.getGeneralProperties = &zefMrIfStructTypeGetGeneralProperties<4>;
    table.getMom = &zefMrIfStructTypeGetMom<4>;
    table.getMember = &zefMrIfStructTypeGetMember<4>;
    table.getIsExclusive = &zefMrIfStructTypeGetIsExclusive<4>;
}

} // namespace ZefModelRepositoryService
