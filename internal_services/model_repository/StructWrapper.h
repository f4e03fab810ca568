#ifndef ZEF_STRUCT_WRAPPER_H
#define ZEF_STRUCT_WRAPPER_H

#include <cstdint>
#include <string>

#include "GeneralPropertiesWrapper.h"
#include "MrMemberListTpl.h"
#include "StructMemberWrapper.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// The record of one struct data type of a MOM. Owns its published
/// ZefOamSpiStruct and its members, kept in definition order and chained
/// through their next pointers.
class StructWrapper : public GeneralPropertiesWrapper {
public:
    using MemberList = MrMemberListTpl<StructMemberWrapper>::List;

    /// An empty struct: no name, no MOM, no members, not exclusive,
    /// status 1, handles 0.
    StructWrapper();
    /// Frees the strings of the record and destroys the members.
    ~StructWrapper() override;

    StructWrapper(const StructWrapper&) = delete;
    StructWrapper& operator=(const StructWrapper&) = delete;

    /// mom name ~ mom version ~ struct name. Logs (error) and returns the
    /// empty string for a null part ("Mom name is 'null', can not create
    /// struct id.", "Mom version is 'null', can not create struct id.",
    /// "Struct name is 'null', can not create struct id.") or an empty one
    /// ("Mom name is empty, can not create struct id.", "Mom version is
    /// empty, can not create struct id.", "Struct name is empty, can not
    /// create struct id.").
    static std::string getStructId(const char* momName, const char* momVersion, const char* structName);
    /// The identity key (through the record's MOM), built on the first
    /// successful call and cached.
    std::string getId() const override;

    ZefOamSpiStruct& getStruct() { return _struct; }
    const ZefOamSpiStruct& getStruct() const { return _struct; }

    /// The owning MOM. ZefOk.
    ZefReturnT setMom(const ZefOamSpiMom* mom);

    /// Appends a member and takes ownership of it (see
    /// MrMemberListTpl::addMember for the refusals, in which case the caller
    /// keeps it). The first member becomes the record's members field.
    ZefReturnT addMember(StructMemberWrapper* member);
    /// The first member, or null.
    StructMemberWrapper* getStructMemberListFront() const { return _members.front(); }
    const MemberList& getStructMemberList() const { return _members.getList(); }

    /// Whether exactly one member carries a value. ZefOk.
    ZefReturnT setIsExclusive(bool isExclusive);
    /// Writes the flag into `isExclusive`. ZefOk.
    ZefReturnT getIsExclusive(bool& isExclusive) const;

    /// Query handle of the struct; 0 until registered.
    uint64_t getHandle() const { return _struct.handle; }
    void setHandle(uint64_t handle) { _struct.handle = handle; }

    /// The dump: "-- Struct (<name>) --", the general properties, then the
    /// dump of every member indented by four blanks.
    std::string toString() const;

private:
    ZefOamSpiStruct _struct;
    MrMemberListTpl<StructMemberWrapper> _members;
    bool _isExclusive = false;
    mutable std::string _id;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_STRUCT_WRAPPER_H
