#ifndef ZEF_REF_ID_H
#define ZEF_REF_ID_H

#include <string>

namespace ZefModelRepositoryService {

/// A reference by name from one element to another (a referenced class,
/// enumeration, derived type or struct), recorded by the parser and
/// resolved by compilation through the key of the target.
class RefId {
public:
    RefId() = default;
    virtual ~RefId() = default;

    void setRefName(const std::string& name) { _refName = name; }
    const std::string& getRefName() const { return _refName; }
    void setRefMomName(const std::string& momName) { _refMomName = momName; }
    const std::string& getRefMomName() const { return _refMomName; }
    void setRefMomVersion(const std::string& momVersion) { _refMomVersion = momVersion; }
    const std::string& getRefMomVersion() const { return _refMomVersion; }

    /// The target's identity key: mom name ~ mom version ~ name. Empty parts
    /// give empty segments; nothing is logged.
    std::string getRefId() const;

private:
    std::string _refName;
    std::string _refMomName;
    std::string _refMomVersion;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_REF_ID_H
