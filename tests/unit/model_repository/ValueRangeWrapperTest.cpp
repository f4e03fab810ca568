#include <gtest/gtest.h>

#include "LogCapture.h"
#include "ValueRangeWrapper.h"

using namespace ZefModelRepositoryService;

TEST(ValueRangeWrapperTest, BoundsNeverSetAreZero)
{
    ValueRangeWrapper range;
    EXPECT_EQ(0, range.getStruct().min);
    EXPECT_EQ(0, range.getStruct().max);
    EXPECT_EQ(0.0, range.getStruct().minDouble);
    EXPECT_EQ(0.0, range.getStruct().maxDouble);
    EXPECT_EQ(nullptr, range.getStruct().next);
    EXPECT_EQ(nullptr, range.getNext());
    EXPECT_EQ(0u, range.getHandle());
}

TEST(ValueRangeWrapperTest, IntegerBoundsFollowTheTypeRange)
{
    ZefTest::LogCapture log;
    ValueRangeWrapper range;
    EXPECT_EQ(ZefOk, range.setMin("-128", ZefMrType3Int8, "m~1~D"));
    EXPECT_EQ(ZefOk, range.setMax("127", ZefMrType3Int8, "m~1~D"));
    EXPECT_EQ(-128, range.getStruct().min);
    EXPECT_EQ(127, range.getStruct().max);
    EXPECT_EQ(ZefInvalidArgument, range.setMax("128", ZefMrType3Int8, "m~1~D"));
    EXPECT_EQ(127, range.getStruct().max);
    EXPECT_EQ(ZefInvalidArgument, range.setMin("-1", ZefMrType3UInt32, "m~1~D"));
    EXPECT_EQ(-128, range.getStruct().min);
    EXPECT_EQ(std::vector<std::string>({"Invalid max value 128 set for attribute: m~1~D.",
                                        "Invalid min value -1 set for attribute: m~1~D."}),
              log.errors());
    // Every refusal is also traced.
    EXPECT_NE(std::string::npos, log.text().find(" TR "));
}

TEST(ValueRangeWrapperTest, EmptyTextLeavesTheBoundUntouched)
{
    ZefTest::LogCapture log;
    ValueRangeWrapper range;
    range.setMin("5", ZefMrType3Int32, "d");
    EXPECT_EQ(ZefOk, range.setMin("", ZefMrType3Int32, "d"));
    EXPECT_EQ(ZefOk, range.setMax("", ZefMrType3Int32, "d"));
    EXPECT_EQ(5, range.getStruct().min);
    EXPECT_EQ(0, range.getStruct().max);
    EXPECT_TRUE(log.errors().empty());
}

TEST(ValueRangeWrapperTest, DoubleBoundsForTypeSixteen)
{
    ZefTest::LogCapture log;
    ValueRangeWrapper range;
    EXPECT_EQ(ZefOk, range.setMin("-1.5", ZefMrType3Double, "d"));
    EXPECT_EQ(ZefOk, range.setMax("2.25", ZefMrType3Double, "d"));
    EXPECT_EQ(-1.5, range.getStruct().minDouble);
    EXPECT_EQ(2.25, range.getStruct().maxDouble);
    EXPECT_EQ(0, range.getStruct().min);
    EXPECT_EQ(0, range.getStruct().max);
    EXPECT_EQ(ZefInvalidArgument, range.setMax("2.5.1", ZefMrType3Double, "dd"));
    EXPECT_EQ(2.25, range.getStruct().maxDouble);
    EXPECT_EQ(std::vector<std::string>{"Invalid max value 2.5.1 set for attribute: dd."}, log.errors());
    EXPECT_EQ("    -- ValueRange -- \n"
              "    min:         -1.5\n"
              "    max:         2.25\n",
              range.toString());
}

TEST(ValueRangeWrapperTest, IntegerDump)
{
    ValueRangeWrapper range;
    range.setMin("1", ZefMrType3UInt8, "d");
    range.setMax("*", ZefMrType3UInt8, "d");
    EXPECT_EQ("    -- ValueRange -- \n"
              "    min:         1\n"
              "    max:         255\n",
              range.toString());
}

TEST(ValueRangeWrapperTest, ToIntAnyPicksTheConverterOfTheType)
{
    struct Case {
        ZefOamSpiMrType_3 type;
        const char* max;
        const char* pastMax;
        int64_t maxValue;
    };
    const Case cases[] = {
        {ZefMrType3Int8, "127", "128", 127},
        {ZefMrType3Int16, "32767", "32768", 32767},
        {ZefMrType3Int32, "2147483647", "2147483648", 2147483647},
        {ZefMrType3Int64, "9223372036854775807", "9223372036854775808", INT64_MAX},
        {ZefMrType3UInt8, "255", "256", 255},
        {ZefMrType3UInt16, "65535", "65536", 65535},
        {ZefMrType3UInt32, "4294967295", "4294967296", 4294967295LL},
        {ZefMrType3String, "9223372036854775807", "9223372036854775808", INT64_MAX},
        {ZefMrType3NotSet, "9223372036854775807", "9223372036854775808", INT64_MAX},
    };
    for (const Case& c : cases) {
        int64_t out = 0;
        EXPECT_EQ(ZefOk, ValueRangeWrapper::toIntAny(c.max, out, c.type)) << c.type;
        EXPECT_EQ(c.maxValue, out) << c.type;
        out = 11;
        EXPECT_EQ(ZefInvalidArgument, ValueRangeWrapper::toIntAny(c.pastMax, out, c.type)) << c.type;
        EXPECT_EQ(11, out) << c.type;
    }
    // The largest uint64 is widened into the signed 64-bit field.
    int64_t out = 0;
    EXPECT_EQ(ZefOk, ValueRangeWrapper::toIntAny("18446744073709551615", out, ZefMrType3UInt64));
    EXPECT_EQ(-1, out);
    EXPECT_EQ(ZefInvalidArgument, ValueRangeWrapper::toIntAny("-1", out, ZefMrType3UInt64));
    EXPECT_EQ(ZefInvalidArgument, ValueRangeWrapper::toIntAny("-129", out, ZefMrType3Int8));
    EXPECT_EQ(ZefOk, ValueRangeWrapper::toIntAny("-9223372036854775808", out, ZefMrType3Int64));
    EXPECT_EQ(INT64_MIN, out);
}

TEST(ValueRangeWrapperTest, ChainLinksWrappersAndRecords)
{
    ValueRangeWrapper first;
    ValueRangeWrapper second;
    first.setNext(&second);
    EXPECT_EQ(&second, first.getNext());
    EXPECT_EQ(&second.getStruct(), first.getStruct().next);
    first.setNext(nullptr);
    EXPECT_EQ(nullptr, first.getNext());
    EXPECT_EQ(nullptr, first.getStruct().next);
}

TEST(ValueRangeWrapperTest, AssignmentCopiesBoundsNotLinkOrHandle)
{
    ValueRangeWrapper source;
    ValueRangeWrapper other;
    source.setMin("3", ZefMrType3Int32, "d");
    source.setMax("9", ZefMrType3Int32, "d");
    source.setNext(&other);
    source.setHandle(3019);

    ValueRangeWrapper target;
    ValueRangeWrapper targetNext;
    target.setNext(&targetNext);
    target.setHandle(3020);
    target = source;
    EXPECT_EQ(3, target.getStruct().min);
    EXPECT_EQ(9, target.getStruct().max);
    EXPECT_EQ(&targetNext, target.getNext());
    EXPECT_EQ(3020u, target.getHandle());

    ValueRangeWrapper copy(source);
    EXPECT_EQ(3, copy.getStruct().min);
    EXPECT_EQ(9, copy.getStruct().max);
    EXPECT_EQ(nullptr, copy.getNext());
    EXPECT_EQ(nullptr, copy.getStruct().next);
    EXPECT_EQ(0u, copy.getHandle());
}
