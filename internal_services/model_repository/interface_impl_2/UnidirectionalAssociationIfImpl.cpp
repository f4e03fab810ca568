#include "UnidirectionalAssociationIfImpl.h"

#include "GeneralPropertiesIf2Impl.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"
#include "MocIf2Impl.h"
#include "UniDirAssociationWrapper.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = UnidirectionalAssociationIfImpl;

// One copy of each C function per interface version V (41 stands for "4_1").

template <int V>
ZefReturnT zefMrIfUniDirAssociationGetGeneralProperties(uint64_t association, uint64_t* generalProperties)
{
    return If2CBoundary::call<Impl>(association, generalProperties, &Impl::getGeneralProperties);
}

template <int V>
ZefReturnT zefMrIfUniDirAssociationGetMom(uint64_t association, uint64_t* mom)
{
    return If2CBoundary::call<Impl>(association, mom, &Impl::getMom);
}

template <int V>
ZefReturnT zefMrIfUniDirAssociationGetAssociationEnd(uint64_t association, uint64_t* associationEnd)
{
    return If2CBoundary::call<Impl>(association, associationEnd, &Impl::getAssociationEnd);
}

template <int V>
ZefReturnT zefMrIfUniDirAssociationGetNextUnidirectionalAssociationSameMoc(uint64_t association, uint64_t* next)
{
    return If2CBoundary::call<Impl>(association, next, &Impl::getNextUnidirectionalAssociationSameMoc);
}

template <int V>
ZefReturnT zefMrIfUniDirAssociationGetIsExternal(uint64_t association, bool* isExternal)
{
    return If2CBoundary::callAs<Impl>(Impl::kIsExternalLookupFailureText,
                                      association, isExternal, &Impl::getIsExternal);
}

} // namespace

UnidirectionalAssociationIfImpl::UnidirectionalAssociationIfImpl(UniDirAssociationWrapper& record)
    : _association(record)
{
    If2Manager::instance().pushUnidirectionalAssociation(this);
    _association.setHandle(getHandle());
    GeneralPropertiesIf2Impl::registerFor(_association);
}

const UnidirectionalAssociationIfImpl& UnidirectionalAssociationIfImpl::lookup(uint64_t handle)
{
    return If2Manager::instance().getUnidirectionalAssociation(handle);
}

ZefReturnT UnidirectionalAssociationIfImpl::getGeneralProperties(uint64_t& generalProperties) const
{
    return If2Links::registeredHandle(_association.getGeneralPropertiesHandle(), generalProperties);
}

ZefReturnT UnidirectionalAssociationIfImpl::getMom(uint64_t& mom) const
{
    return If2Links::handleOf(_association.getStruct().mom, mom);
}

ZefReturnT UnidirectionalAssociationIfImpl::getAssociationEnd(uint64_t& associationEnd) const
{
    return If2Links::handleOf(_association.getStruct().associationEnd, associationEnd);
}

ZefReturnT UnidirectionalAssociationIfImpl::getNextUnidirectionalAssociationSameMoc(uint64_t& next) const
{
    // The list to walk is the origin class's, found through its query handle.
    uint64_t origin = 0;
    const ZefReturnT result = If2Links::handleOf(_association.getStruct().originMoc, origin);
    if (result != ZefOk) {
        return result;
    }
    const MocIf2Impl* mocImpl = If2CBoundary::find<MocIf2Impl>(origin);
    if (mocImpl == nullptr) {
        return ZefInvalidArgument;
    }
    return _association.getNextUnidirectionalAssociation(mocImpl->getMocWrapper(), next);
}

ZefReturnT UnidirectionalAssociationIfImpl::getIsExternal(bool& isExternal) const
{
    return If2Links::value(_association.getIsExternal(), isExternal);
}

void UnidirectionalAssociationIfImpl::initInterface(ZefOamSpiMrUniDirAssociation_4& table)
{
    table.getGeneralProperties = &zefMrIfUniDirAssociationGetGeneralProperties<4>;
    table.getMom = &zefMrIfUniDirAssociationGetMom<4>;
    table.getAssociationEnd = &zefMrIfUniDirAssociationGetAssociationEnd<4>;
    table.getNextUnidirectionalAssociationSameMoc = &zefMrIfUniDirAssociationGetNextUnidirectionalAssociationSameMoc<4>;
    table.getIsExternal = &zefMrIfUniDirAssociationGetIsExternal<4>;
}

void UnidirectionalAssociationIfImpl::initInterface(ZefOamSpiMrUniDirAssociation_4_1& table)
{
    table.getGeneralProperties = &zefMrIfUniDirAssociationGetGeneralProperties<41>;
    table.getMom = &zefMrIfUniDirAssociationGetMom<41>;
    table.getAssociationEnd = &zefMrIfUniDirAssociationGetAssociationEnd<41>;
    table.getNextUnidirectionalAssociationSameMoc = &zefMrIfUniDirAssociationGetNextUnidirectionalAssociationSameMoc<41>;
    table.getIsExternal = &zefMrIfUniDirAssociationGetIsExternal<41>;
}

} // namespace ZefModelRepositoryService
