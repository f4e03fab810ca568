#include "GeneralPropertiesIf2Impl.h"

#include "DomainExtensionIf2Impl.h"
#include "GeneralPropertiesWrapper.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = GeneralPropertiesIf2Impl;

// One copy of each C function per interface version V.

template <int V>
ZefReturnT zefMrIfGeneralPropertiesGetName(uint64_t generalProperties, const char** name)
{
    return If2CBoundary::call<Impl>(generalProperties, name, &Impl::getName);
}

template <int V>
ZefReturnT zefMrIfGeneralPropertiesGetDescription(uint64_t generalProperties, const char** description)
{
    return If2CBoundary::call<Impl>(generalProperties, description, &Impl::getDescription);
}

template <int V>
ZefReturnT zefMrIfGeneralPropertiesGetSpecification(uint64_t generalProperties, const char** specification)
{
    return If2CBoundary::call<Impl>(generalProperties, specification, &Impl::getSpecification);
}

template <int V>
ZefReturnT zefMrIfGeneralPropertiesGetHidden(uint64_t generalProperties, const char** hidden)
{
    return If2CBoundary::call<Impl>(generalProperties, hidden, &Impl::getHidden);
}

template <int V>
ZefReturnT zefMrIfGeneralPropertiesGetStatus(uint64_t generalProperties, ZefOamSpiStatus_2* status)
{
    return If2CBoundary::call<Impl>(generalProperties, status, &Impl::getStatus);
}

template <int V>
ZefReturnT zefMrIfGeneralPropertiesGetStatusText(uint64_t generalProperties, const char** status)
{
    return If2CBoundary::call<Impl>(generalProperties, status, &Impl::getStatus);
}

template <int V>
ZefReturnT zefMrIfGeneralPropertiesGetDomainExtention(uint64_t generalProperties, const char* domain, const char* name,
                                                      const char** value)
{
    return If2CBoundary::call<Impl>(generalProperties, value, &Impl::getDomainExtention, domain, name);
}

template <int V>
ZefReturnT zefMrIfGeneralPropertiesGetDomainExtensions(uint64_t generalProperties, const uint64_t** handles)
{
    return If2CBoundary::call<Impl>(generalProperties, handles, &Impl::getDomainExtensions);
}

} // namespace

GeneralPropertiesIf2Impl::GeneralPropertiesIf2Impl(GeneralPropertiesWrapper& gp) : _gp(gp)
{
    If2Manager::instance().pushGeneralProperties(this);
    _gp.setGeneralPropertiesHandle(getHandle());
    for (DomainExtensionWrapper* extension : _gp.getDomainExtensions()) {
        new DomainExtensionIf2Impl(*extension, _gp);
    }
}

uint64_t GeneralPropertiesIf2Impl::registerFor(GeneralPropertiesWrapper& gp)
{
    // The manager owns the object from its construction on.
    return (new GeneralPropertiesIf2Impl(gp))->getHandle();
}

const GeneralPropertiesIf2Impl& GeneralPropertiesIf2Impl::lookup(uint64_t handle)
{
    return If2Manager::instance().getGeneralProperties(handle);
}

ZefReturnT GeneralPropertiesIf2Impl::getName(const char*& name) const
{
    return If2Links::text(_gp.getStruct().name, name);
}

ZefReturnT GeneralPropertiesIf2Impl::getDescription(const char*& description) const
{
    return If2Links::text(_gp.getStruct().description, description);
}

ZefReturnT GeneralPropertiesIf2Impl::getSpecification(const char*& specification) const
{
    return If2Links::text(_gp.getStruct().specification, specification);
}

ZefReturnT GeneralPropertiesIf2Impl::getHidden(const char*& hidden) const
{
    return If2Links::text(_gp.getStruct().hidden, hidden);
}

ZefReturnT GeneralPropertiesIf2Impl::getStatus(ZefOamSpiStatus_2& status) const
{
    // The interface codes are the stored codes.
    return If2Links::value(_gp.getStruct().status, status);
}

ZefReturnT GeneralPropertiesIf2Impl::getStatus(const char*& status) const
{
    return If2Links::text(_gp.getStatus3().c_str(), status);
}

ZefReturnT GeneralPropertiesIf2Impl::getDomainExtention(const char* domain, const char* name, const char*& value) const
{
    if (domain == nullptr || name == nullptr) {
        return ZefInvalidArgument;
    }
    const DomainExtensionWrapper* extension = _gp.getDomainExtension(domain, name);
    if (extension == nullptr) {
        return ZefNotFound;
    }
    value = extension->getValue().c_str();
    return ZefOk;
}

ZefReturnT GeneralPropertiesIf2Impl::getDomainExtensions(const uint64_t*& handles) const
{
    // Rebuilt on every call: extensions may be added after registration.
    // Kept apart from the object, which every element of a model has while
    // few are ever asked for this list.
    if (!_domainExtensionHandles) {
        _domainExtensionHandles.reset(new std::vector<uint64_t>());
    }
    std::vector<uint64_t>& list = *_domainExtensionHandles;
    list.clear();
    for (const DomainExtensionWrapper* extension : _gp.getDomainExtensions()) {
        if (extension->getHandle() != 0) {
            list.push_back(extension->getHandle());
        }
    }
    list.push_back(0);
    handles = list.data();
    return ZefOk;
}

void GeneralPropertiesIf2Impl::initInterface(ZefOamSpiGeneralProperties_2& table)
{
    table.getName = &zefMrIfGeneralPropertiesGetName<2>;
    table.getDescription = &zefMrIfGeneralPropertiesGetDescription<2>;
    table.getSpecification = &zefMrIfGeneralPropertiesGetSpecification<2>;
    table.getHidden = &zefMrIfGeneralPropertiesGetHidden<2>;
    table.getStatus = &zefMrIfGeneralPropertiesGetStatus<2>;
    table.getDomainExtention = &zefMrIfGeneralPropertiesGetDomainExtention<2>;
}

void GeneralPropertiesIf2Impl::initInterface(ZefOamSpiMrGeneralProperties_3& table)
{
    table.getName = &zefMrIfGeneralPropertiesGetName<3>;
    table.getDescription = &zefMrIfGeneralPropertiesGetDescription<3>;
    table.getSpecification = &zefMrIfGeneralPropertiesGetSpecification<3>;
    table.getHidden = &zefMrIfGeneralPropertiesGetHidden<3>;
    table.getStatus = &zefMrIfGeneralPropertiesGetStatus<3>;
    table.getStatusText = &zefMrIfGeneralPropertiesGetStatusText<3>;
    table.getDomainExtention = &zefMrIfGeneralPropertiesGetDomainExtention<3>;
    table.getDomainExtensions = &zefMrIfGeneralPropertiesGetDomainExtensions<3>;
}

void GeneralPropertiesIf2Impl::initInterface(ZefOamSpiMrGeneralProperties_4& table)
{
    table.getName = &zefMrIfGeneralPropertiesGetName<4>;
    table.getDescription = &zefMrIfGeneralPropertiesGetDescription<4>;
    table.getSpecification = &zefMrIfGeneralPropertiesGetSpecification<4>;
    table.getHidden = &zefMrIfGeneralPropertiesGetHidden<4>;
    table.getStatus = &zefMrIfGeneralPropertiesGetStatus<4>;
    table.getStatusText = &zefMrIfGeneralPropertiesGetStatusText<4>;
    table.getDomainExtention = &zefMrIfGeneralPropertiesGetDomainExtention<4>;
    table.getDomainExtensions = &zefMrIfGeneralPropertiesGetDomainExtensions<4>;
}

} // namespace ZefModelRepositoryService
