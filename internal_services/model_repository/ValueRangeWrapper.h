#ifndef ZEF_VALUE_RANGE_WRAPPER_H
#define ZEF_VALUE_RANGE_WRAPPER_H

#include <cstdint>
#include <string>

#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// One value or length range of a derived data type. The ranges of one type
/// form a singly linked chain in the order they were defined, both between
/// the wrappers and between their published records. Bounds never set are 0.
class ValueRangeWrapper {
public:
    ValueRangeWrapper();
    /// Copies the bounds (and the type they were read for), not the chain
    /// link nor the handle: the copy starts unlinked and unregistered.
    ValueRangeWrapper(const ValueRangeWrapper& other);
    /// Assigns the bounds (and their type); keeps this range's link and handle.
    ValueRangeWrapper& operator=(const ValueRangeWrapper& other);
    virtual ~ValueRangeWrapper() = default;

    /// Sets the lower bound from text read for an element of the given type
    /// code: the double bound for 16 (toDouble), the integer bound otherwise
    /// (toIntAny). The empty text leaves the bound untouched (ZefOk). A text
    /// that does not convert logs "Invalid min value %s set for attribute: %s."
    /// (text, elementName), leaves the bound unchanged and returns ZefInvalidArgument.
    ZefReturnT setMin(const std::string& text, ZefOamSpiMrType_3 type, const std::string& elementName);
    /// The upper bound, as setMin ("Invalid max value %s set for attribute: %s.").
    ZefReturnT setMax(const std::string& text, ZefOamSpiMrType_3 type, const std::string& elementName);

    /// Converts text with the converter of the type code (INT8 ... UINT64
    /// with their ranges, any other code as a 64-bit signed integer) and
    /// widens the result into `out`. ZefOk or ZefInvalidArgument (out untouched).
    static ZefReturnT toIntAny(const std::string& text, int64_t& out, ZefOamSpiMrType_3 type);

    ZefOamSpiValueRange& getStruct() { return _range; }
    const ZefOamSpiValueRange& getStruct() const { return _range; }

    /// Links `next` behind this range (wrapper and record); null ends the chain.
    void setNext(ValueRangeWrapper* next);
    ValueRangeWrapper* getNext() const { return _next; }

    /// Query handle; 0 until registered.
    uint64_t getHandle() const { return _range.handle; }
    void setHandle(uint64_t handle) { _range.handle = handle; }

    /// "    -- ValueRange -- ", "    min:         ", "    max:         ",
    /// one line each; the double bounds when the last bound was read for
    /// type 16, the integer bounds otherwise.
    std::string toString() const;

private:
    ZefReturnT setBound(const std::string& text, ZefOamSpiMrType_3 type, const std::string& elementName,
                        bool isMin);

    ZefOamSpiValueRange _range;
    ValueRangeWrapper* _next = nullptr;
    ZefOamSpiMrType_3 _type = ZefMrType3NotSet;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_VALUE_RANGE_WRAPPER_H
