#include "GeneralPropertiesWrapper.h"

#include "MrUtil.h"
#include "TextPool.h"

namespace ZefModelRepositoryService {

namespace {

const std::string& statusCurrent()
{
    static const std::string& text = TextPool::shared("CURRENT");
    return text;
}

/// A first-value-wins string field of the fragment.
ZefReturnT setOnce(char*& field, const std::string& text)
{
    if (field != nullptr) {
        return ZefAlreadyExists;
    }
    field = MrUtil::toChar(text);
    return ZefOk;
}

char* copyOrNull(const char* text)
{
    return text != nullptr ? MrUtil::toChar(text) : nullptr;
}

} // namespace

GeneralPropertiesWrapper::GeneralPropertiesWrapper(ZefOamSpiGeneralProperties& gp, uint64_t* handleSlot)
    : _gp(gp), _status3(&statusCurrent()), _handleSlot(handleSlot != nullptr ? handleSlot : &_ownHandle)
{
}

GeneralPropertiesWrapper::GeneralPropertiesWrapper(ZefOamSpiGeneralProperties& gp,
                                                   const GeneralPropertiesWrapper& source)
    : _gp(gp), _status3(&statusCurrent()), _handleSlot(&_ownHandle)
{
    MrUtil::resetGeneralPropertiesHlp(_gp);
    copyGeneralPropertiesFrom(source);
}

void GeneralPropertiesWrapper::copyGeneralPropertiesFrom(const GeneralPropertiesWrapper& source)
{
    const ZefOamSpiGeneralProperties& from = source._gp;
    _gp.name = copyOrNull(from.name);
    _gp.description = copyOrNull(from.description);
    _gp.specification = copyOrNull(from.specification);
    _gp.status = from.status;
    _gp.hidden = copyOrNull(from.hidden);
    _status3 = source._status3;
    _sourceLocation = source._sourceLocation;
    _domainExtensions.reserve(_domainExtensions.size() + source._domainExtensions.size());
    for (const DomainExtensionWrapper* extension : source._domainExtensions) {
        _domainExtensions.push_back(extension->clone());
    }
}

GeneralPropertiesWrapper::~GeneralPropertiesWrapper()
{
    for (DomainExtensionWrapper* extension : _domainExtensions) {
        delete extension;
    }
}

ZefReturnT GeneralPropertiesWrapper::setName(const std::string& name)
{
    if (name.empty()) {
        return ZefInvalidArgument;
    }
    return setOnce(_gp.name, name);
}

ZefReturnT GeneralPropertiesWrapper::setDescription(const std::string& description)
{
    return setOnce(_gp.description, description);
}

ZefReturnT GeneralPropertiesWrapper::setSpecification(const std::string& specification)
{
    return setOnce(_gp.specification, specification);
}

ZefReturnT GeneralPropertiesWrapper::setHidden(const std::string& hidden)
{
    return setOnce(_gp.hidden, hidden);
}

ZefReturnT GeneralPropertiesWrapper::setStatus(ZefOamSpiStatus status)
{
    if (_gp.status != ZefOamSpiStatusObsolete) {
        _gp.status = status;
    }
    return ZefOk;
}

ZefReturnT GeneralPropertiesWrapper::setStatus_3(const std::string& status)
{
    if (status.empty()) {
        return ZefInvalidArgument;
    }
    _status3 = &TextPool::shared(status);
    return ZefOk;
}

void GeneralPropertiesWrapper::setInitialValues()
{
    MrUtil::resetGeneralPropertiesHlp(_gp);
    _status3 = &statusCurrent();
}

std::string GeneralPropertiesWrapper::getId() const
{
    return getName();
}

std::string GeneralPropertiesWrapper::getName() const
{
    return MrUtil::str(_gp.name);
}

void GeneralPropertiesWrapper::push_back_domain_extension(const std::string& domain, const std::string& name,
                                                          const std::string& value)
{
    _domainExtensions.push_back(new DomainExtensionWrapper(domain, name, value));
}

const DomainExtensionWrapper* GeneralPropertiesWrapper::getDomainExtension(const std::string& extensionName,
                                                                           const std::string& propertyName) const
{
    for (const DomainExtensionWrapper* extension : _domainExtensions) {
        if (extension->getDomain() == extensionName && extension->getName() == propertyName) {
            return extension;
        }
    }
    return nullptr;
}

bool GeneralPropertiesWrapper::isNillable() const
{
    // Asked for every attribute while compiling: the names are built once.
    static const std::string domain("QCIM");
    static const std::string name("isNillable");
    return getDomainExtension(domain, name) != nullptr;
}

} // namespace ZefModelRepositoryService
