#ifndef ZEF_BI_DIR_ASSOCIATION_WRAPPER_H
#define ZEF_BI_DIR_ASSOCIATION_WRAPPER_H

#include <cstdint>
#include <string>

#include "GeneralPropertiesWrapper.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class MocWrapper;

/// The record of one association navigable from both ends. Owns its
/// published ZefOamSpiBiDirAssociation. The parser gives it the keys of its
/// two ends; compilation links the ends' records into it and lists it with
/// the classes of its ends.
class BiDirAssociationWrapper : public GeneralPropertiesWrapper {
public:
    /// An empty association: no name, no MOM, no ends, status 1, handles 0.
    BiDirAssociationWrapper();
    /// Frees the strings of the record (the ends are not freed).
    ~BiDirAssociationWrapper() override;

    BiDirAssociationWrapper(const BiDirAssociationWrapper&) = delete;
    BiDirAssociationWrapper& operator=(const BiDirAssociationWrapper&) = delete;

    /// mom name ~ mom version ~ association name, built once the
    /// association has a name and a MOM with name and version, then cached;
    /// the empty string before (nothing is logged).
    std::string getId() const override;

    ZefOamSpiBiDirAssociation& getStruct() { return _assoc; }
    const ZefOamSpiBiDirAssociation& getStruct() const { return _assoc; }

    // Pointer setters always succeed (ZefOk).
    ZefReturnT setMom(const ZefOamSpiMom* mom);
    ZefReturnT setFirstAssociationEnd(const ZefOamSpiAssociationEnd* end);
    ZefReturnT setSecondAssociationEnd(const ZefOamSpiAssociationEnd* end);

    /// The keys of the two ends. First value wins: ZefAlreadyExists for a
    /// second value, ZefInvalidArgument for the empty text.
    ZefReturnT setFirstAssociationEndId(const std::string& endId);
    ZefReturnT setSecondAssociationEndId(const std::string& endId);
    const std::string& getFirstAssociationEndId() const { return _firstEndId; }
    const std::string& getSecondAssociationEndId() const { return _secondEndId; }

    /// The query handle of the bidirectional association listed after this
    /// one with `moc`, one of the classes at its ends: ZefOk, or ZefNotFound
    /// (`nextHandle` untouched) when this is the last one. When neither end
    /// belongs to `moc` the error "Neither first or second end association
    /// corresponds to the provided mocHandle" is logged and ZefNotFound
    /// returned.
    ZefReturnT getNextBidirectionalAssociation(const MocWrapper& moc, uint64_t& nextHandle) const;

    /// Query handle of the association; 0 until registered.
    uint64_t getHandle() const { return _assoc.handle; }
    void setHandle(uint64_t handle) { _assoc.handle = handle; }

    /// The dump: "-- Bidirectional Association (<name>) --", the general
    /// properties, then the keys of the first and of the second end.
    std::string toString() const;

private:
    ZefOamSpiBiDirAssociation _assoc;
    std::string _firstEndId;
    std::string _secondEndId;
    mutable std::string _id;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_BI_DIR_ASSOCIATION_WRAPPER_H
