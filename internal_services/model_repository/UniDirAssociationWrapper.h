#ifndef ZEF_UNI_DIR_ASSOCIATION_WRAPPER_H
#define ZEF_UNI_DIR_ASSOCIATION_WRAPPER_H

#include <cstdint>
#include <string>

#include "GeneralPropertiesWrapper.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class MocWrapper;

/// The record of one association navigable from its origin class to its
/// one end. Owns its published ZefOamSpiUniDirAssociation. The parser gives
/// it the keys of its end and of its origin class; compilation links the
/// records into it and lists it with the origin class.
class UniDirAssociationWrapper : public GeneralPropertiesWrapper {
public:
    /// An empty association: no name, no MOM, no end, no origin, not
    /// external, status 1, handles 0.
    UniDirAssociationWrapper();
    /// Frees the strings of the record (linked records are not freed).
    ~UniDirAssociationWrapper() override;

    UniDirAssociationWrapper(const UniDirAssociationWrapper&) = delete;
    UniDirAssociationWrapper& operator=(const UniDirAssociationWrapper&) = delete;

    /// mom name ~ mom version ~ association name, built once the
    /// association has a name and a MOM with name and version, then cached;
    /// the empty string before (nothing is logged).
    std::string getId() const override;

    ZefOamSpiUniDirAssociation& getStruct() { return _assoc; }
    const ZefOamSpiUniDirAssociation& getStruct() const { return _assoc; }

    // Pointer and flag setters always succeed (ZefOk).
    ZefReturnT setMom(const ZefOamSpiMom* mom);
    /// Links the record of the end.
    ZefReturnT setAssociationEnd(const ZefOamSpiAssociationEnd* end);
    /// Links the record of the origin class.
    ZefReturnT setOriginMoc(const ZefOamSpiMoc* moc);
    ZefReturnT setIsExternal(bool isExternal = true);
    bool getIsExternal() const { return _isExternal; }

    /// The key of the end. First value wins: ZefAlreadyExists for a second
    /// value, ZefInvalidArgument for the empty text.
    ZefReturnT setAssociationEnd(const std::string& endId);
    const std::string& getAssociationEndId() const { return _endId; }
    /// The key of the origin class, with the same first-value rule.
    ZefReturnT setOriginMocId(const std::string& mocId);
    const std::string& getOriginMocId() const { return _originMocId; }

    /// The query handle of the unidirectional association listed after this
    /// one with `moc`, its origin class: ZefOk, or ZefNotFound (`nextHandle`
    /// untouched) when this is the last one. When `moc` is not the origin
    /// the error "Origin moc of the association does not correspond to the
    /// provided mocHandle" is logged and ZefNotFound returned.
    ZefReturnT getNextUnidirectionalAssociation(const MocWrapper& moc, uint64_t& nextHandle) const;

    /// Query handle of the association; 0 until registered.
    uint64_t getHandle() const { return _assoc.handle; }
    void setHandle(uint64_t handle) { _assoc.handle = handle; }

    /// The dump: "-- UniDirAssociation (<name>) --", the general
    /// properties, the end's key and the external flag.
    std::string toString() const;

private:
    ZefOamSpiUniDirAssociation _assoc;
    std::string _endId;
    std::string _originMocId;
    bool _isExternal = false;
    mutable std::string _id;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_UNI_DIR_ASSOCIATION_WRAPPER_H
