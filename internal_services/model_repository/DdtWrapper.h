#ifndef ZEF_DDT_WRAPPER_H
#define ZEF_DDT_WRAPPER_H

#include <cstdint>
#include <list>
#include <string>

#include "GeneralPropertiesWrapper.h"
#include "ValueRangeWrapper.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// The record of one derived (restricted) data type of a MOM. Owns its
/// published ZefOamSpiDerivedDatatype and its range records: the value
/// ranges (numeric restriction; the record points at the first) and the
/// length ranges (string restriction; the record holds a copy of the first).
///
/// The model states ranges as a sequence of min and max values; each list
/// pairs them into ranges in the order given (see addRangeMax).
class DdtWrapper : public GeneralPropertiesWrapper {
public:
    using RangeList = std::list<ValueRangeWrapper*>;

    /// An empty type: no name, no MOM, type 0, no pattern, no ranges, not a
    /// passphrase, resolutions 0, status 1, handles 0.
    DdtWrapper();
    /// A copy of `source` under another name (a substitute type): the same
    /// general properties, domain extensions, MOM, types, pattern, ranges,
    /// default value, passphrase flag, resolutions and exception text, but
    /// its own range records, no cached key and handles 0. The key is built
    /// from the MOM and `newName` like any type's.
    DdtWrapper(const DdtWrapper& source, const std::string& newName);
    /// Frees the strings of the record and destroys the range records.
    ~DdtWrapper() override;

    DdtWrapper(const DdtWrapper&) = delete;
    DdtWrapper& operator=(const DdtWrapper&) = delete;

    /// mom name ~ mom version ~ ddt name. Logs (error) and returns the empty
    /// string for a null part ("Couldn't get ddt id, mom name is NULL", "...
    /// mom version is NULL", "... ddt name is NULL") or an empty one
    /// ("Couldn't get ddt id, mom name isn't set", "... mom version isn't
    /// set", "... ddt name isn't set").
    static std::string getDdtId(const char* momName, const char* momVersion, const char* ddtName);
    /// The identity key (through the record's MOM), built on the first
    /// successful call and cached.
    std::string getId() const override;

    ZefOamSpiDerivedDatatype& getStruct() { return _ddt; }
    const ZefOamSpiDerivedDatatype& getStruct() const { return _ddt; }

    /// The owning MOM. ZefOk.
    ZefReturnT setMom(const ZefOamSpiMom* mom);

    /// Writes the basic type of the record only. ZefOk.
    ZefReturnT setType(ZefOamSpiMoAttributeType type);
    /// Writes the basic type and keeps the version 3 code; the version 4
    /// code, whose set extends version 3 with the same numbers, follows it.
    /// ZefOk.
    ZefReturnT setType(ZefOamSpiMrType_3 type);
    /// Writes the basic type and keeps both codes. ZefOk.
    ZefReturnT setType(ZefOamSpiMrType_4 type);
    ZefOamSpiMrType_3 getType() const { return _type3; }
    ZefOamSpiMrType_4 getType4() const { return _type4; }

    /// First value wins: ZefAlreadyExists when a pattern is set.
    ZefReturnT setPattern(const std::string& pattern);
    /// Replaces any pattern: the pattern of the validation rules wins over
    /// a plain one whatever their order. ZefOk.
    ZefReturnT setValidationRulesPattern(const std::string& pattern);
    /// The pattern, or the empty string when none is set.
    std::string getPattern() const;

    /// Adds a bound to the value ranges (see addRangeMax). ZefOk.
    ZefReturnT addRangeMin(const std::string& text);
    /// Adds an upper bound to the value ranges. Without ranges a first one
    /// is created; when the last range has a lower bound only, the bound
    /// completes it; when it has an upper bound only, the bound replaces
    /// it; when it has both, a new range is chained behind it. The text is
    /// converted for the type's version 3 code; a text that does not
    /// convert is logged by the range and leaves the bound unset. ZefOk.
    ZefReturnT addRangeMax(const std::string& text);
    /// The same pairing on the length ranges; the record's string length
    /// follows the first length range. ZefOk.
    ZefReturnT addLengthMin(const std::string& text);
    ZefReturnT addLengthMax(const std::string& text);
    /// Copies the first length range into the record's string length, where
    /// version 1 readers look for it (0..0 without length ranges).
    void updateV1stringRestrictionLength();
    /// Appends a new range to `list`, chained behind the previous one, and
    /// returns it; the range belongs to the owner of the list. A range that
    /// opens this type's own value-range list becomes the record's
    /// valueRange.
    ValueRangeWrapper* createValueRangeWrapper(RangeList& list);
    /// Destroys every range record and forgets both lists.
    void clearLists();
    /// Creates the type's query interface object, which registers the type,
    /// its general properties and its ranges and stores their handles in
    /// the records (the interface's manager owns the object). Called once
    /// the type and its ranges are complete.
    void registerIf2();
    const RangeList& getValueRanges() const { return _valueRanges; }
    const RangeList& getLengthRanges() const { return _lengthRanges; }

    /// Query handle of the first length range (ZefOk), or ZefNotFound when
    /// there is none (handle untouched).
    ZefReturnT getFirstStringRestrictionLengthHandle(uint64_t& handle) const;
    /// Query handle of the first value range, or ZefNotFound.
    ZefReturnT getFirstNumericRestrictionLengthHandle(uint64_t& handle) const;

    /// First value wins: ZefAlreadyExists (and the error "Default value (%s)
    /// is already set to (%s).") for a second value.
    ZefReturnT setDefaultValue(const std::string& text);
    /// The default value, or the empty string.
    std::string getDefaultValue() const;

    ZefReturnT setIsPassphrase(bool isPassphrase);
    /// Marks the type as a passphrase. ZefOk.
    ZefReturnT setIsPassphrase();
    bool getIsPassphrase() const { return _isPassphrase; }

    /// Integer resolution from text (unsigned 64 bits, "*" the largest).
    /// ZefInvalidArgument (nothing changes) for a text that does not convert.
    ZefReturnT setIntResolution(const std::string& text);
    uint64_t getIntResolution() const { return _intResolution; }
    /// Floating resolution from text; the text is kept as well.
    /// ZefInvalidArgument (nothing changes) for a text that does not convert.
    ZefReturnT setFloatResolution(const std::string& text);
    double getFloatResolution() const { return _floatResolution; }
    const std::string& getFloatStringResolution() const { return _floatStringResolution; }

    /// The text shown when a value breaks the pattern (later calls overwrite). ZefOk.
    ZefReturnT setExceptionText(const std::string& text);
    const std::string& getExceptionText() const { return _exceptionText; }

    /// Query handle of the type; 0 until registered.
    uint64_t getHandle() const { return _ddt.handle; }
    void setHandle(uint64_t handle) { _ddt.handle = handle; }

    /// The dump: "-- Ddt (<name>)--", the general properties, Type,
    /// isPassphrase, Mom, Pattern, the string restriction and the value ranges.
    std::string toString() const;

private:
    /// Whether the last range of a list has its lower and its upper bound.
    struct PendingBounds {
        bool hasMin = false;
        bool hasMax = false;
    };

    /// Resets the record's own fields (not the general properties).
    void resetRecord();
    /// Adds one bound to a list by the pairing rules.
    void addBound(RangeList& list, PendingBounds& pending, const std::string& text, bool isMin);
    /// The name bound conversion failures are reported under: the key, or
    /// the plain name while the key cannot be built.
    std::string boundsElementName() const;
    /// Deep copy of a list of `source` into `list` (empty), chained in order.
    void copyRanges(const RangeList& source, RangeList& list);

    ZefOamSpiDerivedDatatype _ddt;
    RangeList _valueRanges;
    RangeList _lengthRanges;
    PendingBounds _valuePending;
    PendingBounds _lengthPending;
    ZefOamSpiMrType_3 _type3 = ZefMrType3NotSet;
    ZefOamSpiMrType_4 _type4 = ZefMrType4NotSet;
    char* _defaultValue = nullptr;
    bool _isPassphrase = false;
    uint64_t _intResolution = 0;
    double _floatResolution = 0.0;
    std::string _floatStringResolution;
    std::string _exceptionText;
    mutable std::string _id;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_DDT_WRAPPER_H
