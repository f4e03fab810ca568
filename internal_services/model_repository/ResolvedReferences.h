#ifndef ZEF_RESOLVED_REFERENCES_H
#define ZEF_RESOLVED_REFERENCES_H

#include <cstddef>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace ZefModelRepositoryService {

class GeneralPropertiesWrapper;
class RefId;

/// The registered targets that type references have been resolved to
/// during one compilation, by the kind of target and the reference's
/// pooled texts (name, MOM name, MOM version). Equal pooled texts are the
/// same objects, so a reference to a target met before is answered by
/// comparing three addresses, without its key being built and looked up in
/// a registry again. Only found targets are kept: a registry never loses a
/// record during compilation, but may gain one.
class ResolvedReferences {
public:
    /// The registry a reference is resolved in.
    enum class Kind { Moc, Enum, Ddt, Struct };

    /// The target found before for `ref` in the registry of `kind`, or null.
    const GeneralPropertiesWrapper* find(Kind kind, const RefId& ref) const;
    /// Notes that `ref` was resolved to `target` in the registry of `kind`.
    void add(Kind kind, const RefId& ref, const GeneralPropertiesWrapper* target);

    /// True when the pooled MOM name `momName` was noted as plain: no MOM
    /// has it as its modelling-standard name.
    bool isPlainMomName(const std::string& momName) const { return _plainMomNames.count(&momName) != 0; }
    /// Notes the pooled MOM name `momName` as plain.
    void addPlainMomName(const std::string& momName) { _plainMomNames.insert(&momName); }

private:
    struct Key {
        Kind kind;
        const std::string* name;
        const std::string* momName;
        const std::string* momVersion;
        bool operator==(const Key& other) const
        {
            return kind == other.kind && name == other.name && momName == other.momName
                   && momVersion == other.momVersion;
        }
    };
    struct KeyHash {
        std::size_t operator()(const Key& key) const;
    };
    static Key keyOf(Kind kind, const RefId& ref);

    std::unordered_map<Key, const GeneralPropertiesWrapper*, KeyHash> _targets;
    std::unordered_set<const std::string*> _plainMomNames;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_RESOLVED_REFERENCES_H
