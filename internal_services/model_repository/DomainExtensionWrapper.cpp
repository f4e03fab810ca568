#include "DomainExtensionWrapper.h"

namespace ZefModelRepositoryService {

DomainExtensionWrapper::DomainExtensionWrapper(const std::string& domain, const std::string& name,
                                               const std::string& value)
    : _domain(domain), _name(name), _value(value)
{
}

DomainExtensionWrapper* DomainExtensionWrapper::clone() const
{
    return new DomainExtensionWrapper(_domain, _name, _value);
}

} // namespace ZefModelRepositoryService
