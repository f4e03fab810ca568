#include "BidirectionalAssociationIfImpl.h"

#include "BiDirAssociationWrapper.h"
#include "GeneralPropertiesIf2Impl.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"
#include "MocIf2Impl.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = BidirectionalAssociationIfImpl;

// One copy of each C function per interface version V (41 stands for "4_1").

template <int V>
ZefReturnT zefMrIfBiDirAssociationGetGeneralProperties(uint64_t association, uint64_t* generalProperties)
{
    return If2CBoundary::call<Impl>(association, generalProperties, &Impl::getGeneralProperties);
}

template <int V>
ZefReturnT zefMrIfBiDirAssociationGetMom(uint64_t association, uint64_t* mom)
{
    return If2CBoundary::call<Impl>(association, mom, &Impl::getMom);
}

template <int V>
ZefReturnT zefMrIfBiDirAssociationGetFirstAssociation(uint64_t association, uint64_t* associationEnd)
{
    return If2CBoundary::call<Impl>(association, associationEnd, &Impl::getFirstAssociation);
}

template <int V>
ZefReturnT zefMrIfBiDirAssociationGetSecondAssociation(uint64_t association, uint64_t* associationEnd)
{
    return If2CBoundary::call<Impl>(association, associationEnd, &Impl::getSecondAssociation);
}

template <int V>
ZefReturnT zefMrIfBiDirAssociationGetNextBidirectionalAssociation(uint64_t association, uint64_t moc,
                                                                  uint64_t* next)
{
    return If2CBoundary::call<Impl>(association, next, &Impl::getNextBidirectionalAssociation, moc);
}

} // namespace

BidirectionalAssociationIfImpl::BidirectionalAssociationIfImpl(BiDirAssociationWrapper& record) : _association(record)
{
    If2Manager::instance().pushBidirectionalAssociation(this);
    _association.setHandle(getHandle());
    GeneralPropertiesIf2Impl::registerFor(_association);
}

const BidirectionalAssociationIfImpl& BidirectionalAssociationIfImpl::lookup(uint64_t handle)
{
    return If2Manager::instance().getBidirectionalAssociation(handle);
}

ZefReturnT BidirectionalAssociationIfImpl::getGeneralProperties(uint64_t& generalProperties) const
{
    return If2Links::registeredHandle(_association.getGeneralPropertiesHandle(), generalProperties);
}

ZefReturnT BidirectionalAssociationIfImpl::getMom(uint64_t& mom) const
{
    return If2Links::handleOf(_association.getStruct().mom, mom);
}

ZefReturnT BidirectionalAssociationIfImpl::getFirstAssociation(uint64_t& associationEnd) const
{
    return If2Links::handleOf(_association.getStruct().firstAssociationEnd, associationEnd);
}

ZefReturnT BidirectionalAssociationIfImpl::getSecondAssociation(uint64_t& associationEnd) const
{
    return If2Links::handleOf(_association.getStruct().secondAssociationEnd, associationEnd);
}

ZefReturnT BidirectionalAssociationIfImpl::getNextBidirectionalAssociation(uint64_t moc, uint64_t& next) const
{
    const MocIf2Impl* mocImpl = If2CBoundary::find<MocIf2Impl>(moc);
    if (mocImpl == nullptr) {
        return ZefInvalidArgument;
    }
    return _association.getNextBidirectionalAssociation(mocImpl->getMocWrapper(), next);
}

void BidirectionalAssociationIfImpl::initInterface(ZefOamSpiMrBiDirAssociation_4& table)
{
    table.getGeneralProperties = &zefMrIfBiDirAssociationGetGeneralProperties<4>;
    table.getMom = &zefMrIfBiDirAssociationGetMom<4>;
    table.getFirstAssociation = &zefMrIfBiDirAssociationGetFirstAssociation<4>;
    table.getSecondAssociation = &zefMrIfBiDirAssociationGetSecondAssociation<4>;
    table.getNextBidirectionalAssociation = &zefMrIfBiDirAssociationGetNextBidirectionalAssociation<4>;
}

void BidirectionalAssociationIfImpl::initInterface(ZefOamSpiMrBiDirAssociation_4_1& table)
{
    table.getGeneralProperties = &zefMrIfBiDirAssociationGetGeneralProperties<41>;
    table.getMom = &zefMrIfBiDirAssociationGetMom<41>;
    table.getFirstAssociation = &zefMrIfBiDirAssociationGetFirstAssociation<41>;
    table.getSecondAssociation = &zefMrIfBiDirAssociationGetSecondAssociation<41>;
    table.getNextBidirectionalAssociation = &zefMrIfBiDirAssociationGetNextBidirectionalAssociation<41>;
}

} // namespace ZefModelRepositoryService
