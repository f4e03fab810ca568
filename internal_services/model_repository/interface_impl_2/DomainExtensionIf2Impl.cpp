#include "DomainExtensionIf2Impl.h"

#include <vector>

#include "DomainExtensionWrapper.h"
#include "GeneralPropertiesWrapper.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = DomainExtensionIf2Impl;

// One copy of each C function per interface version V.

template <int V>
ZefReturnT zefMrIfDomainExtensionGetName(uint64_t extension, const char** name)
{
    return If2CBoundary::call<Impl>(extension, name, &Impl::getName);
}

template <int V>
ZefReturnT zefMrIfDomainExtensionGetValue(uint64_t extension, const char** value)
{
    return If2CBoundary::call<Impl>(extension, value, &Impl::getValue);
}

template <int V>
ZefReturnT zefMrIfDomainExtensionGetDomain(uint64_t extension, const char** domain)
{
    return If2CBoundary::call<Impl>(extension, domain, &Impl::getDomain);
}

template <int V>
ZefReturnT zefMrIfDomainExtensionGetNext(uint64_t extension, uint64_t* next)
{
    return If2CBoundary::call<Impl>(extension, next, &Impl::getNext);
}

} // namespace

DomainExtensionIf2Impl::DomainExtensionIf2Impl(DomainExtensionWrapper& extension,
                                               const GeneralPropertiesWrapper& owner)
    : _extension(extension), _owner(owner)
{
    If2Manager::instance().pushDomainExtension(this);
    _extension.setHandle(getHandle());
}

const DomainExtensionIf2Impl& DomainExtensionIf2Impl::lookup(uint64_t handle)
{
    return If2Manager::instance().getDomainExtension(handle);
}

ZefReturnT DomainExtensionIf2Impl::getName(const char*& name) const
{
    return If2Links::text(_extension.getName().c_str(), name);
}

ZefReturnT DomainExtensionIf2Impl::getValue(const char*& value) const
{
    return If2Links::text(_extension.getValue().c_str(), value);
}

ZefReturnT DomainExtensionIf2Impl::getDomain(const char*& domain) const
{
    return If2Links::text(_extension.getDomain().c_str(), domain);
}

ZefReturnT DomainExtensionIf2Impl::getNext(uint64_t& next) const
{
    // The extensions know no neighbour; the owner's list gives the order.
    const DomainExtensionList& all = _owner.getDomainExtensions();
    for (size_t i = 0; i + 1 < all.size(); ++i) {
        if (all[i] == &_extension) {
            return If2Links::registeredHandle(all[i + 1]->getHandle(), next);
        }
    }
    return ZefNotFound;
}

void DomainExtensionIf2Impl::initInterface(ZefOamSpiMrGeneralProperties_3& table)
{
    table.domainExtensionGetName = &zefMrIfDomainExtensionGetName<3>;
    table.domainExtensionGetValue = &zefMrIfDomainExtensionGetValue<3>;
    table.domainExtensionGetDomain = &zefMrIfDomainExtensionGetDomain<3>;
    table.domainExtensionGetNext = &zefMrIfDomainExtensionGetNext<3>;
}

void DomainExtensionIf2Impl::initInterface(ZefOamSpiMrGeneralProperties_4& table)
{
    table.domainExtensionGetName = &zefMrIfDomainExtensionGetName<4>;
    table.domainExtensionGetValue = &zefMrIfDomainExtensionGetValue<4>;
    table.domainExtensionGetDomain = &zefMrIfDomainExtensionGetDomain<4>;
    table.domainExtensionGetNext = &zefMrIfDomainExtensionGetNext<4>;
}

} // namespace ZefModelRepositoryService
