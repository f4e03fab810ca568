#include "AssociationEndIfImpl.h"

#include "AssociationEndWrapper.h"
#include "GeneralPropertiesIf2Impl.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = AssociationEndIfImpl;

// One copy of each C function per interface version V.

template <int V>
ZefReturnT zefMrIfAssociationEndGetMoc(uint64_t associationEnd, uint64_t* moc)
{
    return If2CBoundary::call<Impl>(associationEnd, moc, &Impl::getMoc);
}

template <int V>
ZefReturnT zefMrIfAssociationEndGetAttribute(uint64_t associationEnd, uint64_t* attribute)
{
    return If2CBoundary::call<Impl>(associationEnd, attribute, &Impl::getAttribute);
}

template <int V>
ZefReturnT zefMrIfAssociationEndGetGeneralProperties(uint64_t associationEnd, uint64_t* generalProperties)
{
    return If2CBoundary::call<Impl>(associationEnd, generalProperties, &Impl::getGeneralProperties);
}

template <int V>
ZefReturnT zefMrIfAssociationEndGetName(uint64_t associationEnd, const char** name)
{
    return If2CBoundary::call<Impl>(associationEnd, name, &Impl::getName);
}

template <int V>
ZefReturnT zefMrIfAssociationEndGetClassifier(uint64_t associationEnd, const char** classifier)
{
    return If2CBoundary::call<Impl>(associationEnd, classifier, &Impl::getClassifier);
}

template <int V>
ZefReturnT zefMrIfAssociationEndIsReserving(uint64_t associationEnd, bool* isReserving)
{
    return If2CBoundary::call<Impl>(associationEnd, isReserving, &Impl::isReserving);
}

template <int V>
ZefReturnT zefMrIfAssociationEndIsRestricted(uint64_t associationEnd, bool* isRestricted)
{
    return If2CBoundary::call<Impl>(associationEnd, isRestricted, &Impl::isRestricted);
}

template <int V>
ZefReturnT zefMrIfAssociationEndGetLower(uint64_t associationEnd, uint64_t* lower)
{
    return If2CBoundary::call<Impl>(associationEnd, lower, &Impl::getLower);
}

template <int V>
ZefReturnT zefMrIfAssociationEndGetUpper(uint64_t associationEnd, uint64_t* upper)
{
    return If2CBoundary::call<Impl>(associationEnd, upper, &Impl::getUpper);
}

} // namespace

AssociationEndIfImpl::AssociationEndIfImpl(AssociationEndWrapper& record) : _end(record)
{
    If2Manager::instance().pushAssociationEnd(this);
    _end.setHandle(getHandle());
    GeneralPropertiesIf2Impl::registerFor(_end);
}

const AssociationEndIfImpl& AssociationEndIfImpl::lookup(uint64_t handle)
{
    return If2Manager::instance().getAssociationEnd(handle);
}

ZefReturnT AssociationEndIfImpl::getMoc(uint64_t& moc) const
{
    return If2Links::handleOf(_end.getStruct().moc, moc);
}

ZefReturnT AssociationEndIfImpl::getAttribute(uint64_t& attribute) const
{
    return If2Links::handleOf(_end.getStruct().attribute, attribute);
}

ZefReturnT AssociationEndIfImpl::getGeneralProperties(uint64_t& generalProperties) const
{
    return If2Links::registeredHandle(_end.getGeneralPropertiesHandle(), generalProperties);
}

ZefReturnT AssociationEndIfImpl::getName(const char*& name) const
{
    return If2Links::text(_end.getStruct().generalProperties.name, name);
}

ZefReturnT AssociationEndIfImpl::getClassifier(const char*& classifier) const
{
    return If2Links::text(_end.getClassifier().empty() ? nullptr : _end.getClassifier().c_str(), classifier);
}

ZefReturnT AssociationEndIfImpl::isReserving(bool& isReserving) const
{
    return If2Links::value(_end.reserving(), isReserving);
}

ZefReturnT AssociationEndIfImpl::isRestricted(bool& isRestricted) const
{
    return If2Links::value(_end.restricted(), isRestricted);
}

ZefReturnT AssociationEndIfImpl::getLower(uint64_t& lower) const
{
    return If2Links::value(_end.getLower(), lower);
}

ZefReturnT AssociationEndIfImpl::getUpper(uint64_t& upper) const
{
    return If2Links::value(_end.getUpper(), upper);
}

void AssociationEndIfImpl::initInterface(ZefOamSpiMrAssociationEnd_4& table)
{
    table.getMoc = &zefMrIfAssociationEndGetMoc<4>;
    table.getAttribute = &zefMrIfAssociationEndGetAttribute<4>;
    table.getGeneralProperties = &zefMrIfAssociationEndGetGeneralProperties<4>;
    table.getName = &zefMrIfAssociationEndGetName<4>;
    table.getClassifier = &zefMrIfAssociationEndGetClassifier<4>;
    table.isReserving = &zefMrIfAssociationEndIsReserving<4>;
    table.isRestricted = &zefMrIfAssociationEndIsRestricted<4>;
    table.getLower = &zefMrIfAssociationEndGetLower<4>;
    table.getUpper = &zefMrIfAssociationEndGetUpper<4>;
}

} // namespace ZefModelRepositoryService
