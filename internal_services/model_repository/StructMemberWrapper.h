#ifndef ZEF_STRUCT_MEMBER_WRAPPER_H
#define ZEF_STRUCT_MEMBER_WRAPPER_H

#include <cstdint>
#include <string>

#include "GeneralPropertiesWrapper.h"
#include "TypedElementWrapper.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// The record of one member of a struct. Owns its published
/// ZefOamSpiStructMember; the members of a struct are owned by it and
/// chained through next in definition order. Its key is its name, unique
/// only within its struct. The member keeps the name and version of the
/// struct's MOM, which compilation needs to resolve the member's type.
class StructMemberWrapper : public GeneralPropertiesWrapper, public TypedElementWrapper {
public:
    /// An empty member: no name, no type, multiplicity 1..1 (not given),
    /// unique, not ordered, status 1, handles 0.
    StructMemberWrapper();
    /// Frees the strings of the record.
    ~StructMemberWrapper() override;

    StructMemberWrapper(const StructMemberWrapper&) = delete;
    StructMemberWrapper& operator=(const StructMemberWrapper&) = delete;

    /// The member name itself. Logs (error) and returns the empty string for
    /// null ("Struct member name is 0, can not create id.") and for the
    /// empty name ("Struct member name is not set, can not create id.").
    static std::string getStructMemberId(const char* name);
    /// The identity key, built on the first successful call and cached.
    std::string getId() const override;

    ZefOamSpiStructMember& getStruct() { return _member; }
    const ZefOamSpiStructMember& getStruct() const { return _member; }

    /// Links `next` behind this member (wrapper and record); null ends the
    /// chain. ZefOk.
    ZefReturnT setNext(StructMemberWrapper* next);
    StructMemberWrapper* getNext() const { return _next; }

    /// Name and version of the MOM of the member's struct (later calls
    /// overwrite). ZefOk.
    ZefReturnT setMomName(const std::string& momName);
    ZefReturnT setMomVersion(const std::string& momVersion);
    const std::string& getMomName() const { return _momName; }
    const std::string& getMomVersion() const { return _momVersion; }

    /// Query handle of the member; 0 until registered.
    uint64_t getHandle() const { return _member.handle; }
    void setHandle(uint64_t handle) { _member.handle = handle; }

    /// The dump: "-- Struct Member (<name>) --", the general properties and
    /// the data type block, each line behind `indent`.
    std::string toString(const std::string& indent = std::string()) const;

private:
    ZefOamSpiStructMember _member;
    StructMemberWrapper* _next = nullptr;
    std::string _momName;
    std::string _momVersion;
    mutable std::string _id;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_STRUCT_MEMBER_WRAPPER_H
