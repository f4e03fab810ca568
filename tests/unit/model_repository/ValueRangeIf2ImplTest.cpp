// The value range getters of the query interface, through the derived type
// table of version 2. Ranges of the hand-built model: Counter 3017 (1..5)
// and 3018 (10..20), Ratio 3019 (0.5..1.5), Name's length range 3020 (1..8).

#include <gtest/gtest.h>

#include "HandBuiltModel.h"

namespace {

class ValueRangeIf2ImplTest : public ZefTest::HandBuiltModelTest {};

} // namespace

TEST_F(ValueRangeIf2ImplTest, ReadsTheIntegerBoundsAndWalksTheChain)
{
    const ZefOamSpiDerived_2& derived = *if2().derived;
    int64_t bound = 0;
    EXPECT_EQ(ZefOk, derived.valueRangeGetMin(3017, &bound));
    EXPECT_EQ(1, bound);
    EXPECT_EQ(ZefOk, derived.valueRangeGetMax(3017, &bound));
    EXPECT_EQ(5, bound);
    uint64_t next = 0;
    EXPECT_EQ(ZefOk, derived.valueRangeGetNext(3017, &next));
    EXPECT_EQ(3018u, next);
    next = 6;
    EXPECT_EQ(ZefNotFound, derived.valueRangeGetNext(3018, &next));
    EXPECT_EQ(6u, next);
}

TEST_F(ValueRangeIf2ImplTest, ReadsTheFloatingBounds)
{
    double bound = 0;
    EXPECT_EQ(ZefOk, if2().derived->valueRangeGetMinDouble(3019, &bound));
    EXPECT_DOUBLE_EQ(0.5, bound);
    EXPECT_EQ(ZefOk, if2().derived->valueRangeGetMaxDouble(3019, &bound));
    EXPECT_DOUBLE_EQ(1.5, bound);
    // The integer bounds of a floating range were never set.
    int64_t integer = 9;
    EXPECT_EQ(ZefOk, if2().derived->valueRangeGetMin(3019, &integer));
    EXPECT_EQ(0, integer);
}

TEST_F(ValueRangeIf2ImplTest, AnUnknownRangeIsReportedWithTheValueRangeText)
{
    int64_t bound = 0;
    EXPECT_EQ(ZefInvalidArgument, if4().stringType->rangeGetMin(3021, &bound));
    EXPECT_EQ("Failed to look up ValueRange [handle 3021 outside of 4 issued from 3017]", errorText());
}
