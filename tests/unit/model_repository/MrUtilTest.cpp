#include <gtest/gtest.h>

#include <cfloat>
#include <cstring>

#include "LogCapture.h"
#include "MrUtil.h"

using namespace ZefModelRepositoryService;

namespace {

/// Runs a converter and expects success with the given value.
template <typename T, typename Fn>
void expectConverts(Fn convert, const std::string& text, T expected)
{
    T out{};
    EXPECT_EQ(ZefOk, convert(text, out)) << "text '" << text << "'";
    EXPECT_EQ(expected, out) << "text '" << text << "'";
}

/// Runs a converter and expects -8 with the result untouched.
template <typename T, typename Fn>
void expectRefuses(Fn convert, const std::string& text)
{
    T out = static_cast<T>(42);
    EXPECT_EQ(ZefInvalidArgument, convert(text, out)) << "text '" << text << "'";
    EXPECT_EQ(static_cast<T>(42), out) << "text '" << text << "'";
}

/// The refusals every integer converter shares.
template <typename T, typename Fn>
void expectCommonRefusals(Fn convert)
{
    expectRefuses<T>(convert, "");
    expectRefuses<T>(convert, " 5");
    expectRefuses<T>(convert, "\t5");
    expectRefuses<T>(convert, "5x");
    expectRefuses<T>(convert, "5 ");
    expectRefuses<T>(convert, "-");
    expectRefuses<T>(convert, "x");
    expectRefuses<T>(convert, "**");
    expectRefuses<T>(convert, "0x10");
}

} // namespace

TEST(MrUtilTest, ToInt8RangeEdges)
{
    auto f = MrUtil::toInt8;
    expectConverts<int8_t>(f, "-128", -128);
    expectConverts<int8_t>(f, "127", 127);
    expectConverts<int8_t>(f, "0", 0);
    expectConverts<int8_t>(f, "*", 127);
    expectRefuses<int8_t>(f, "-129");
    expectRefuses<int8_t>(f, "128");
    expectCommonRefusals<int8_t>(f);
}

TEST(MrUtilTest, ToInt16RangeEdges)
{
    auto f = MrUtil::toInt16;
    expectConverts<short>(f, "-32768", -32768);
    expectConverts<short>(f, "32767", 32767);
    expectConverts<short>(f, "*", 32767);
    expectRefuses<short>(f, "-32769");
    expectRefuses<short>(f, "32768");
    expectCommonRefusals<short>(f);
    // toInt16 is toInt<short>.
    short viaTemplate = 0;
    EXPECT_EQ(ZefOk, MrUtil::toInt<short>("-7", viaTemplate));
    EXPECT_EQ(-7, viaTemplate);
}

TEST(MrUtilTest, ToInt32RangeEdges)
{
    auto f = MrUtil::toInt32;
    expectConverts<int32_t>(f, "-2147483648", INT32_MIN);
    expectConverts<int32_t>(f, "2147483647", INT32_MAX);
    expectConverts<int32_t>(f, "*", 2147483647);
    expectConverts<int32_t>(f, "+12", 12);
    expectRefuses<int32_t>(f, "-2147483649");
    expectRefuses<int32_t>(f, "2147483648");
    expectCommonRefusals<int32_t>(f);
}

TEST(MrUtilTest, ToInt64RangeEdges)
{
    auto f = MrUtil::toInt64;
    expectConverts<long long>(f, "-9223372036854775808", INT64_MIN);
    expectConverts<long long>(f, "9223372036854775807", INT64_MAX);
    expectConverts<long long>(f, "*", 9223372036854775807LL);
    expectRefuses<long long>(f, "-9223372036854775809");
    expectRefuses<long long>(f, "9223372036854775808");
    expectCommonRefusals<long long>(f);
}

TEST(MrUtilTest, ToUInt8RangeEdges)
{
    auto f = MrUtil::toUInt8;
    expectConverts<uint8_t>(f, "0", 0);
    expectConverts<uint8_t>(f, "255", 255);
    expectConverts<uint8_t>(f, "*", 255);
    expectRefuses<uint8_t>(f, "-1");
    expectRefuses<uint8_t>(f, "256");
    expectRefuses<uint8_t>(f, "-0");
    expectCommonRefusals<uint8_t>(f);
}

TEST(MrUtilTest, ToUInt16RangeEdges)
{
    auto f = MrUtil::toUInt16;
    expectConverts<uint16_t>(f, "0", 0);
    expectConverts<uint16_t>(f, "65535", 65535);
    expectConverts<uint16_t>(f, "*", 65535);
    expectRefuses<uint16_t>(f, "-1");
    expectRefuses<uint16_t>(f, "65536");
    expectCommonRefusals<uint16_t>(f);
}

TEST(MrUtilTest, ToUInt32RangeEdges)
{
    auto f = MrUtil::toUInt32;
    expectConverts<uint32_t>(f, "0", 0);
    expectConverts<uint32_t>(f, "4294967295", 4294967295u);
    expectConverts<uint32_t>(f, "*", 4294967295u);
    expectRefuses<uint32_t>(f, "-1");
    expectRefuses<uint32_t>(f, "4294967296");
    expectCommonRefusals<uint32_t>(f);
}

TEST(MrUtilTest, ToUInt64RangeEdges)
{
    auto f = MrUtil::toUInt64;
    expectConverts<uint64_t>(f, "0", 0);
    expectConverts<uint64_t>(f, "18446744073709551615", UINT64_MAX);
    expectConverts<uint64_t>(f, "*", 18446744073709551615ULL);
    expectRefuses<uint64_t>(f, "-1");
    expectRefuses<uint64_t>(f, "18446744073709551616");
    expectCommonRefusals<uint64_t>(f);
}

TEST(MrUtilTest, ToDoubleRangeEdges)
{
    auto f = MrUtil::toDouble;
    expectConverts<double>(f, "1.5", 1.5);
    expectConverts<double>(f, "-2", -2.0);
    expectConverts<double>(f, "1e3", 1000.0);
    expectConverts<double>(f, "1.7976931348623157e308", DBL_MAX);
    expectConverts<double>(f, "-1.7976931348623157e308", -DBL_MAX);
    expectConverts<double>(f, "*", DBL_MAX);
    // The next decimal past the largest finite double overflows.
    expectRefuses<double>(f, "1.79769313486232e+308");
    expectRefuses<double>(f, "-1.79769313486232e+308");
    expectRefuses<double>(f, "1e309");
    expectRefuses<double>(f, "inf");
    expectRefuses<double>(f, "nan");
    expectRefuses<double>(f, "");
    expectRefuses<double>(f, " 1.5");
    expectRefuses<double>(f, "1.5x");
    expectRefuses<double>(f, "-");
}

// Edge cases of the converters as the records rely on them.
TEST(MrUtilTest, EdgeCasesOfTheConverters)
{
    int8_t i8 = 0;
    EXPECT_EQ(ZefInvalidArgument, MrUtil::toInt8("128", i8));
    uint8_t u8 = 0;
    EXPECT_EQ(ZefInvalidArgument, MrUtil::toUInt8("-1", u8));
    EXPECT_EQ(ZefInvalidArgument, MrUtil::toUInt8("256", u8));
    int32_t i32 = 0;
    EXPECT_EQ(ZefInvalidArgument, MrUtil::toInt32(" 5", i32));
    EXPECT_EQ(ZefInvalidArgument, MrUtil::toInt32("5x", i32));
    EXPECT_EQ(ZefInvalidArgument, MrUtil::toInt32("", i32));
    EXPECT_EQ(ZefOk, MrUtil::toInt8("*", i8));
    EXPECT_EQ(127, i8);
    uint64_t u64 = 0;
    EXPECT_EQ(ZefOk, MrUtil::toUInt64("*", u64));
    EXPECT_EQ(18446744073709551615ULL, u64);
}

TEST(MrUtilTest, ToCharCopiesWithTerminator)
{
    const std::string text("abc");
    char* copy = MrUtil::toChar(text);
    EXPECT_STREQ("abc", copy);
    EXPECT_NE(text.c_str(), copy);
    MrUtil::freeString(copy);
    EXPECT_EQ(nullptr, copy);
    char* empty = MrUtil::toChar("");
    EXPECT_STREQ("", empty);
    MrUtil::freeString(empty);
}

TEST(MrUtilTest, ToCharTplFormatsStreamableValues)
{
    char* number = MrUtil::toCharTpl(-42);
    EXPECT_STREQ("-42", number);
    MrUtil::freeString(number);
    char* real = MrUtil::toCharTpl(2.5);
    EXPECT_STREQ("2.5", real);
    MrUtil::freeString(real);
    char* text = MrUtil::toCharTpl(std::string("x y"));
    EXPECT_STREQ("x y", text);
    MrUtil::freeString(text);
}

TEST(MrUtilTest, SetMinHlpStoresConvertedValueSilently)
{
    ZefTest::LogCapture log;
    ZefOamSpiMultiplicityRange range{1, 1};
    bool isSet = false;
    EXPECT_EQ(ZefOk, MrUtil::setMinHlp(range, isSet, "0"));
    EXPECT_EQ(0, range.min);
    EXPECT_TRUE(isSet);

    ZefOamSpiMultiplicityRange other{1, 1};
    bool otherSet = false;
    EXPECT_EQ(ZefInvalidArgument, MrUtil::setMinHlp(other, otherSet, "abc"));
    EXPECT_EQ(ZefInvalidArgument, MrUtil::setMinHlp(other, otherSet, "40000"));
    EXPECT_EQ(ZefInvalidArgument, MrUtil::setMinHlp(other, otherSet, ""));
    EXPECT_EQ(1, other.min);
    EXPECT_FALSE(otherSet);
    EXPECT_EQ(ZefOk, MrUtil::setMinHlp(other, otherSet, "*"));
    EXPECT_EQ(32767, other.min);
    EXPECT_EQ("", log.text());
}

TEST(MrUtilTest, SetMaxHlpEmptyTextMeansUnbounded)
{
    ZefOamSpiMultiplicityRange range{1, 1};
    bool isSet = false;
    EXPECT_EQ(ZefOk, MrUtil::setMaxHlp(range, isSet, ""));
    EXPECT_EQ(32767, range.max);
    EXPECT_TRUE(isSet);
}

TEST(MrUtilTest, SetMaxHlpAsteriskMeansUnbounded)
{
    ZefOamSpiMultiplicityRange range{1, 1};
    bool isSet = false;
    EXPECT_EQ(ZefOk, MrUtil::setMaxHlp(range, isSet, "*"));
    EXPECT_EQ(32767, range.max);
    EXPECT_TRUE(isSet);
}

TEST(MrUtilTest, SetMaxHlpRefusesNegativeAndBadText)
{
    ZefOamSpiMultiplicityRange range{1, 1};
    bool isSet = false;
    EXPECT_EQ(ZefInvalidArgument, MrUtil::setMaxHlp(range, isSet, "-2"));
    EXPECT_EQ(1, range.max);
    EXPECT_FALSE(isSet);
    EXPECT_EQ(ZefInvalidArgument, MrUtil::setMaxHlp(range, isSet, "7x"));
    EXPECT_EQ(ZefInvalidArgument, MrUtil::setMaxHlp(range, isSet, "32768"));
    EXPECT_EQ(1, range.max);
    EXPECT_FALSE(isSet);
    EXPECT_EQ(ZefOk, MrUtil::setMaxHlp(range, isSet, "5"));
    EXPECT_EQ(5, range.max);
    EXPECT_TRUE(isSet);
}

TEST(MrUtilTest, SecondDefaultValueIsRefusedAndFirstStays)
{
    ZefTest::LogCapture log;
    ZefOamSpiDatatypeContainer container;
    MrUtil::resetDatatypeContainerHlp(container);
    EXPECT_EQ(ZefOk, MrUtil::setDefaultValueHlp("first", container));
    EXPECT_EQ(ZefAlreadyExists, MrUtil::setDefaultValueHlp("second", container));
    EXPECT_STREQ("first", container.defaultValue);
    EXPECT_EQ(std::vector<std::string>{"Default value (second) is already set to (first)."}, log.errors());
    MrUtil::cleanDatatypeContainerHlp(container);
    EXPECT_EQ(nullptr, container.defaultValue);
}

TEST(MrUtilTest, ResetAndCleanGeneralProperties)
{
    ZefOamSpiGeneralProperties gp;
    std::memset(&gp, 0xab, sizeof gp);
    MrUtil::resetGeneralPropertiesHlp(gp);
    EXPECT_EQ(nullptr, gp.name);
    EXPECT_EQ(nullptr, gp.description);
    EXPECT_EQ(nullptr, gp.specification);
    EXPECT_EQ(ZefOamSpiStatusCurrent, gp.status);
    EXPECT_EQ(nullptr, gp.hidden);

    gp.name = MrUtil::toChar("n");
    gp.description = MrUtil::toChar("d");
    gp.specification = MrUtil::toChar("s");
    gp.hidden = MrUtil::toChar("h");
    gp.status = ZefOamSpiStatusObsolete;
    MrUtil::cleanGeneralPropertiesHlp(gp);
    EXPECT_EQ(nullptr, gp.name);
    EXPECT_EQ(nullptr, gp.description);
    EXPECT_EQ(nullptr, gp.specification);
    EXPECT_EQ(nullptr, gp.hidden);
}

TEST(MrUtilTest, ResetDatatypeContainer)
{
    ZefOamSpiDatatypeContainer c;
    std::memset(&c, 0xab, sizeof c);
    MrUtil::resetDatatypeContainerHlp(c);
    EXPECT_EQ(ZefMrType3NotSet, c.type);
    EXPECT_EQ(nullptr, c.derivedDatatype);
    EXPECT_EQ(nullptr, c.enumDatatype);
    EXPECT_EQ(nullptr, c.structDatatype);
    EXPECT_EQ(nullptr, c.referencedMoc);
    EXPECT_EQ(nullptr, c.defaultValue);
    EXPECT_EQ(1, c.multiplicityRange.min);
    EXPECT_EQ(1, c.multiplicityRange.max);
    EXPECT_FALSE(c.isOrdered);
    EXPECT_TRUE(c.isUnique);
}

TEST(MrUtilTest, HeaderDump)
{
    EXPECT_EQ("  -- Moc (C1) --\n", MrUtil::headerToStringHlp("Moc ", "C1", "  "));
    EXPECT_EQ("-- Struct () --\n", MrUtil::headerToStringHlp("Struct ", nullptr, ""));
}

TEST(MrUtilTest, GeneralPropertiesDump)
{
    ZefOamSpiGeneralProperties gp;
    MrUtil::resetGeneralPropertiesHlp(gp);
    gp.name = MrUtil::toChar("N");
    gp.specification = MrUtil::toChar("S");
    gp.status = ZefOamSpiStatusDeprecated;
    EXPECT_EQ("    Name:              N\n"
              "    Description:       \n"
              "    Specification:     S\n"
              "    Status:            2\n"
              "    Hidden:            \n",
              MrUtil::generalPropertiesToStringHlp(gp, "    "));
    MrUtil::cleanGeneralPropertiesHlp(gp);
}

TEST(MrUtilTest, DatatypeContainerDump)
{
    ZefOamSpiDatatypeContainer c;
    MrUtil::resetDatatypeContainerHlp(c);
    c.type = ZefMrType3UInt32;
    c.defaultValue = MrUtil::toChar("7");
    c.multiplicityRange.min = 0;
    c.multiplicityRange.max = 32767;
    c.isOrdered = true;
    c.isUnique = false;
    EXPECT_EQ("  Type:              7\n"
              "  DefaultValue:      7\n"
              "  MultiplicityMin:   0\n"
              "  MultiplicityMax:   32767\n"
              "  IsOrdered:         1\n"
              "  IsUnique:          0\n",
              MrUtil::datatypeContainerToStringHlp(c, "  "));
    MrUtil::cleanDatatypeContainerHlp(c);
}

TEST(MrUtilTest, DumpLines)
{
    std::string out = "x\n";
    MrUtil::appendDumpLineHlp(out, "  ", "Text:   ", std::string("t"));
    MrUtil::appendDumpLineHlp(out, "  ", "Chars:  ", "c");
    MrUtil::appendDumpLineHlp(out, "", "Null:   ", static_cast<const char*>(nullptr));
    MrUtil::appendDumpLineHlp(out, "", "Number: ", -32768LL);
    MrUtil::appendDumpLineHlp(out, "", "Flag:   ", static_cast<long long>(true));
    EXPECT_EQ("x\n"
              "  Text:   t\n"
              "  Chars:  c\n"
              "Null:   \n"
              "Number: -32768\n"
              "Flag:   1\n",
              out);
}

TEST(MrUtilTest, TypeNames)
{
    const char* expected[] = {"",       "INT8",   "INT16",   "INT32",  "INT64", "UINT8",
                              "UINT16", "UINT32", "UINT64",  "STRING", "BOOL",  "REFERENCE",
                              "ENUM",   "DERIVED", "STRUCT", "VOID",   "DOUBLE"};
    for (int code = 0; code <= 16; ++code) {
        EXPECT_EQ(expected[code], MrUtil::typeName(code)) << code;
    }
    EXPECT_EQ("", MrUtil::typeName(17));
    EXPECT_EQ("", MrUtil::typeName(-1));
}

TEST(MrUtilTest, JoinKey)
{
    EXPECT_EQ("m~1.0~C", MrUtil::joinKey({"m", "1.0", "C"}));
    EXPECT_EQ("a", MrUtil::joinKey({"a"}));
    EXPECT_EQ("~x~", MrUtil::joinKey({"", "x", nullptr}));
}
