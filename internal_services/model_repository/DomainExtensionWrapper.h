#ifndef ZEF_DOMAIN_EXTENSION_WRAPPER_H
#define ZEF_DOMAIN_EXTENSION_WRAPPER_H

#include <cstddef>
#include <cstdint>
#include <string>

#include "RecordPool.h"

namespace ZefModelRepositoryService {

/// One domain extension of a model element: a (domain, name, value) triple,
/// the open-ended key/value data of the model format, looked up by domain
/// and name.
///
/// Not copyable: once registered with the query interface an interface
/// object refers back to this record, and a copy would carry a handle that
/// names the original. Code that needs a second record with the same content
/// (a cloned element) asks for it explicitly with clone().
class DomainExtensionWrapper {
public:
    /// A record holding copies of the three texts; handle 0.
    DomainExtensionWrapper(const std::string& domain, const std::string& name, const std::string& value);

    DomainExtensionWrapper(const DomainExtensionWrapper&) = delete;
    DomainExtensionWrapper& operator=(const DomainExtensionWrapper&) = delete;

    /// Extensions come from the record pool (see RecordPool).
    static void* operator new(std::size_t size) { return RecordPool::allocate(size); }
    static void operator delete(void* block, std::size_t size) noexcept { RecordPool::release(block, size); }

    /// A new record with the same domain, name and value and handle 0; owned by the caller.
    DomainExtensionWrapper* clone() const;

    const std::string& getDomain() const { return *_domain; }
    const std::string& getName() const { return *_name; }
    const std::string& getValue() const { return _value; }

    /// Query handle; 0 until the query interface has registered the record.
    uint64_t getHandle() const { return _handle; }
    void setHandle(uint64_t handle) { _handle = handle; }

private:
    // Domains and names repeat across a model ("QCIM", "isNillable"): one
    // pooled copy each.
    const std::string* _domain;
    const std::string* _name;
    std::string _value;
    uint64_t _handle = 0;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_DOMAIN_EXTENSION_WRAPPER_H
