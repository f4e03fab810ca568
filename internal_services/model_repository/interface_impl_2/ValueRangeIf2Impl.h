#ifndef ZEF_VALUE_RANGE_IF2_IMPL_H
#define ZEF_VALUE_RANGE_IF2_IMPL_H

#include <cstdint>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class ValueRangeWrapper;

/// Query interface object of one value or length range of a derived type,
/// reached through the derived type (version 2) or through the integer,
/// string and floating point tables of a type container (versions 3 and 4).
class ValueRangeIf2Impl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up ValueRange [%s]";

    /// Registers the range (pushValueRange) and stores the handle in it.
    /// `range` must outlive the object.
    explicit ValueRangeIf2Impl(ValueRangeWrapper& range);

    /// The object of `handle`; std::out_of_range when there is none.
    static const ValueRangeIf2Impl& lookup(uint64_t handle);

    /// The integer bounds (0 when never set). Always ZefOk.
    ZefReturnT getMin(int64_t& min) const;
    ZefReturnT getMax(int64_t& max) const;
    /// The bounds of a floating point type (0 when never set). Always ZefOk.
    ZefReturnT getMin(double& min) const;
    ZefReturnT getMax(double& max) const;
    /// The next range of the same list; ZefNotFound after the last.
    ZefReturnT getNext(uint64_t& next) const;

    /// Fill the range slots of the tables that reach ranges.
    static void initInterface(ZefOamSpiDerived_2& table);
    static void initInterface(ZefOamSpiMrInt_3& table);
    static void initInterface(ZefOamSpiMrString_3& table);
    static void initInterface(ZefOamSpiMrFloat_3& table);
    static void initInterface(ZefOamSpiMrInt_4& table);
    static void initInterface(ZefOamSpiMrString_4& table);
    static void initInterface(ZefOamSpiMrFloat_4& table);

private:
    ValueRangeWrapper& _range;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_VALUE_RANGE_IF2_IMPL_H
