#ifndef ZEF_ASSOCIATION_END_WRAPPER_H
#define ZEF_ASSOCIATION_END_WRAPPER_H

#include <cstdint>
#include <string>

#include "GeneralPropertiesWrapper.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class AttrWrapper;
class MocWrapper;

/// The record of one end of an association. Owns its published
/// ZefOamSpiAssociationEnd. The parser names the class at this end
/// (classifier, mim name and version) and the relationship it belongs to
/// (identifier); compilation finds the class and the attribute that the
/// end reserves and links them into the record.
class AssociationEndWrapper : public GeneralPropertiesWrapper {
public:
    /// An empty end: no names, no links, multiplicity 0..32767, neither
    /// reserving nor restricted, status 1, handles 0.
    AssociationEndWrapper();
    /// Frees the strings of the record (linked records are not freed).
    ~AssociationEndWrapper() override;

    AssociationEndWrapper(const AssociationEndWrapper&) = delete;
    AssociationEndWrapper& operator=(const AssociationEndWrapper&) = delete;

    /// mom name ~ mom version ~ end name ~ identifier, built once the end
    /// has a name, a MOM with name and version and an identifier, then
    /// cached; the empty string before (nothing is logged: the repository
    /// reports an incomplete end).
    std::string getId() const override;

    ZefOamSpiAssociationEnd& getStruct() { return _end; }
    const ZefOamSpiAssociationEnd& getStruct() const { return _end; }

    // Pointer and flag setters always succeed (ZefOk).
    ZefReturnT setMom(const ZefOamSpiMom* mom);
    /// The class this end resolves to.
    ZefReturnT setMoc(const ZefOamSpiMoc* moc);
    /// The attribute this end resolves to.
    ZefReturnT setAttribute(const ZefOamSpiMoAttribute* attr);
    ZefReturnT setIsReserving(bool isReserving = true);
    ZefReturnT setIsRestricted(bool isRestricted = true);
    bool reserving() const { return _end.isReserving; }
    bool restricted() const { return _end.isRestricted; }

    /// Lower multiplicity: the empty text means 0; otherwise int16 text.
    /// ZefInvalidArgument (nothing changes) for a text that does not convert
    /// or a negative value.
    ZefReturnT setLower(const std::string& text);
    /// Upper multiplicity: the empty text means unbounded (32767); otherwise
    /// as setLower.
    ZefReturnT setUpper(const std::string& text);
    int32_t getLower() const { return _end.lower; }
    int32_t getUpper() const { return _end.upper; }

    /// The end's identity within its association (the relationship's
    /// name). First value wins: ZefAlreadyExists for a second value,
    /// ZefInvalidArgument for the empty text.
    ZefReturnT setIdentifier(const std::string& identifier);
    const std::string& getIdentifier() const { return _identifier; }
    /// The name of the class at this end, with the same first-value rule.
    ZefReturnT setClassifier(const std::string& classifier);
    const std::string& getClassifier() const { return _classifier; }
    /// The mim of the class at this end (later calls overwrite: compilation
    /// translates modelling-standard names). ZefOk.
    ZefReturnT setMimName(const std::string& mimName);
    ZefReturnT setMimVersion(const std::string& mimVersion);
    const std::string& getMimName() const { return _mimName; }
    const std::string& getMimVersion() const { return _mimVersion; }

    /// True when the class is the one at this end: its name equals the
    /// classifier and its MOM's name the end's mim name. False for null.
    bool isReservedMoc(const ZefOamSpiMoc* moc) const;
    bool isReservedMoc(const MocWrapper* moc) const;
    /// True when the attribute's name equals the end's name. False for null.
    bool isReservedAttribute(const ZefOamSpiMoAttribute* attr) const;
    bool isReservedAttribute(const AttrWrapper* attr) const;

    /// Query handle of the end; 0 until registered.
    uint64_t getHandle() const { return _end.handle; }
    void setHandle(uint64_t handle) { _end.handle = handle; }

    /// The dump: "-- Association end (<name>) --", the general properties,
    /// identifier, classifier, multiplicity and the two flags.
    std::string toString() const;

private:
    ZefOamSpiAssociationEnd _end;
    std::string _identifier;
    std::string _classifier;
    std::string _mimName;
    std::string _mimVersion;
    mutable std::string _id;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_ASSOCIATION_END_WRAPPER_H
