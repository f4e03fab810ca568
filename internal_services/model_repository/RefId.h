#ifndef ZEF_REF_ID_H
#define ZEF_REF_ID_H

#include <string>

#include "TextPool.h"

namespace ZefModelRepositoryService {

/// A reference by name from one element to another (a referenced class,
/// enumeration, derived type or struct), recorded by the parser and
/// resolved by compilation through the key of the target.
class RefId {
public:
    RefId() = default;
    virtual ~RefId() = default;

    RefId(const RefId&) = default;
    RefId& operator=(const RefId&) = default;

    void setRefName(const std::string& name) { _name = &TextPool::shared(name); }
    const std::string& getRefName() const { return *_name; }
    void setRefMomName(const std::string& momName) { _momName = &TextPool::shared(momName); }
    const std::string& getRefMomName() const { return *_momName; }
    void setRefMomVersion(const std::string& momVersion) { _momVersion = &TextPool::shared(momVersion); }
    const std::string& getRefMomVersion() const { return *_momVersion; }
    /// Takes the MOM name and version of `other`, whose texts are pooled
    /// already.
    void setRefMomFrom(const RefId& other)
    {
        _momName = other._momName;
        _momVersion = other._momVersion;
    }

    /// The target's identity key: mom name ~ mom version ~ name. Empty parts
    /// give empty segments; nothing is logged.
    std::string getRefId() const;

private:
    // Pooled texts: the elements of a model name the same few MOMs,
    // versions and targets over and over.
    const std::string* _name = &TextPool::empty();
    const std::string* _momName = &TextPool::empty();
    const std::string* _momVersion = &TextPool::empty();
};

} // namespace ZefModelRepositoryService

#endif // ZEF_REF_ID_H
