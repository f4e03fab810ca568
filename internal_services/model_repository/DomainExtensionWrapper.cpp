#include "DomainExtensionWrapper.h"

#include "TextPool.h"

namespace ZefModelRepositoryService {

DomainExtensionWrapper::DomainExtensionWrapper(const std::string& domain, const std::string& name,
                                               const std::string& value)
    : _domain(&TextPool::shared(domain)), _name(&TextPool::shared(name)), _value(value)
{
}

DomainExtensionWrapper* DomainExtensionWrapper::clone() const
{
    return new DomainExtensionWrapper(*_domain, *_name, _value);
}

} // namespace ZefModelRepositoryService
