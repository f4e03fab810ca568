#ifndef ZEF_LIT_WRAPPER_H
#define ZEF_LIT_WRAPPER_H

#include <cstdint>
#include <string>

#include "GeneralPropertiesWrapper.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// The record of one literal of an enumeration. Owns its published
/// ZefOamSpiEnumLiteral; the literals of an enumeration are owned by it and
/// chained through next in definition order. Its key is its name, unique
/// only within its enumeration.
///
/// The literal's value is kept in full (64 bits); the published record,
/// whose value field has 16 bits, holds its low 16 bits.
class LitWrapper : public GeneralPropertiesWrapper {
public:
    /// An empty literal: no name, no value, status 1, handles 0.
    LitWrapper();
    /// Frees the strings of the record.
    ~LitWrapper() override;

    LitWrapper(const LitWrapper&) = delete;
    LitWrapper& operator=(const LitWrapper&) = delete;

    /// The literal name itself. Logs (error) and returns the empty string
    /// for null ("Couldn't get lit id, lit name is NULL") and for the empty
    /// name ("Couldn't get lit id, lit nam isn't set").
    static std::string getLitId(const char* name);
    /// The identity key, built on the first successful call and cached.
    std::string getId() const override;

    ZefOamSpiEnumLiteral& getStruct() { return _literal; }
    const ZefOamSpiEnumLiteral& getStruct() const { return _literal; }

    /// Sets the value from base-10 text (any 64-bit signed value); the
    /// published record receives its low 16 bits. ZefAlreadyExists when a
    /// value is set (the first stays), ZefInvalidArgument for a text that
    /// does not convert (nothing changes).
    ZefReturnT setValue(const std::string& text);
    /// The full value; 0 until set.
    int64_t getValue() const { return _value; }
    bool isValueSet() const { return _isValueSet; }

    /// Links `next` behind this literal (wrapper and record).
    /// ZefInvalidArgument for null.
    ZefReturnT setNext(LitWrapper* next);
    LitWrapper* getNext() const { return _next; }

    /// Query handle of the literal; 0 until registered.
    uint64_t getHandle() const { return _literal.handle; }
    void setHandle(uint64_t handle) { _literal.handle = handle; }

    /// The dump as part of its enumeration's: "    -- Literal (<name>) -- "
    /// and the lines name, description, specification, status, hidden and
    /// value (the full value).
    std::string toString() const;

private:
    ZefOamSpiEnumLiteral _literal;
    int64_t _value = 0;
    bool _isValueSet = false;
    LitWrapper* _next = nullptr;
    mutable std::string _id;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_LIT_WRAPPER_H
