#ifndef ZEF_ENUM_WRAPPER_H
#define ZEF_ENUM_WRAPPER_H

#include <cstdint>
#include <vector>
#include <string>
#include <unordered_set>

#include "GeneralPropertiesWrapper.h"
#include "KeyHashIndex.h"
#include "LitWrapper.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// The record of one enumeration of a MOM. Owns its published ZefOamSpiEnum
/// and its literals, which are kept in definition order and chained through
/// their next pointers. No two literals share a name or a value.
class EnumWrapper : public GeneralPropertiesWrapper {
public:
    using LiteralList = std::vector<LitWrapper*>;

    /// An empty enumeration: no name, no MOM, no literals, status 1, handles 0.
    EnumWrapper();
    /// Frees the strings of the record and destroys the literals.
    ~EnumWrapper() override;

    EnumWrapper(const EnumWrapper&) = delete;
    EnumWrapper& operator=(const EnumWrapper&) = delete;

    /// mom name ~ mom version ~ enum name. Logs (error) and returns the
    /// empty string for a null part ("Couldn't get enum id, mom name is
    /// NULL", "... mom version is NULL", "... enum name is NULL") or an empty
    /// one ("Couldn't get enum id, mom name isn't set", "... mom version
    /// isn't set", "... enum name isn't set").
    static std::string getEnumId(const char* momName, const char* momVersion, const char* enumName);
    /// The identity key (through the record's MOM), built on the first
    /// successful call and cached.
    std::string getId() const override;

    ZefOamSpiEnum& getStruct() { return _enum; }
    const ZefOamSpiEnum& getStruct() const { return _enum; }

    /// The owning MOM. ZefOk.
    ZefReturnT setMom(const ZefOamSpiMom* mom);

    /// Appends a literal and takes ownership of it; on any refusal the
    /// caller keeps it. Refusals, in this order: ZefInvalidArgument for null;
    /// ZefInvalidArgument for a literal without value (error "Value of the
    /// literal (%s) is not set"); ZefFailure for a value another literal
    /// already has (traced "Could not add literal (%s), the value of %lld
    /// already exists." with the enumeration's key); ZefInvalidArgument for
    /// a literal without key; ZefAlreadyExists for a name already listed.
    /// The first literal becomes the record's literals field.
    ZefReturnT addLiteral(LitWrapper* literal);
    const LiteralList& getLiteralsList() const { return _literals; }

    /// Query handle of the enumeration; 0 until registered.
    uint64_t getHandle() const { return _enum.handle; }
    void setHandle(uint64_t handle) { _enum.handle = handle; }

    /// The dump: "-- Enum (<name>)--", the general properties, then every
    /// literal's dump.
    std::string toString() const;

private:
    ZefOamSpiEnum _enum;
    LiteralList _literals;
    // The keys and values of the literals, for the duplicate checks of addLiteral.
    KeyHashIndex _literalKeys;
    std::unordered_set<int64_t> _literalValues;
    mutable std::string _id;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_ENUM_WRAPPER_H
