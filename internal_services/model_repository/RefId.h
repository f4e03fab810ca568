#ifndef ZEF_REF_ID_H
#define ZEF_REF_ID_H

#include <memory>
#include <string>

namespace ZefModelRepositoryService {

/// A reference by name from one element to another (a referenced class,
/// enumeration, derived type or struct), recorded by the parser and
/// resolved by compilation through the key of the target.
class RefId {
public:
    RefId() = default;
    virtual ~RefId() = default;

    RefId(const RefId& other) { *this = other; }
    RefId& operator=(const RefId& other)
    {
        if (this != &other) {
            _parts.reset(other._parts ? new Parts(*other._parts) : nullptr);
        }
        return *this;
    }

    void setRefName(const std::string& name) { parts().name = name; }
    const std::string& getRefName() const { return _parts ? _parts->name : none(); }
    void setRefMomName(const std::string& momName) { parts().momName = momName; }
    const std::string& getRefMomName() const { return _parts ? _parts->momName : none(); }
    void setRefMomVersion(const std::string& momVersion) { parts().momVersion = momVersion; }
    const std::string& getRefMomVersion() const { return _parts ? _parts->momVersion : none(); }

    /// The target's identity key: mom name ~ mom version ~ name. Empty parts
    /// give empty segments; nothing is logged.
    std::string getRefId() const;

private:
    struct Parts {
        std::string name;
        std::string momName;
        std::string momVersion;
    };

    /// The parts, created empty by the first setter: most typed elements
    /// of a model have a basic type and never name a target.
    Parts& parts()
    {
        if (!_parts) {
            _parts.reset(new Parts());
        }
        return *_parts;
    }
    static const std::string& none();

    std::unique_ptr<Parts> _parts;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_REF_ID_H
