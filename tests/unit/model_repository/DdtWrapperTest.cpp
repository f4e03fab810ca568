#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "DdtWrapper.h"
#include "LogCapture.h"
#include "MomWrapper.h"

using namespace ZefModelRepositoryService;

using Messages = std::vector<std::string>;

namespace {

/// A derived type T of MOM m, version 1.0, with the given basic type.
struct DdtFixture {
    explicit DdtFixture(ZefOamSpiMrType_3 type = ZefMrType3Int32)
    {
        mom.setName("m");
        mom.setVersion("1.0");
        ddt.setName("T");
        ddt.setMom(&mom.getStruct());
        ddt.setType(type);
    }
    /// The (min, max) pairs of a range list, in chain order of the records.
    static std::vector<std::pair<int64_t, int64_t>> bounds(const ZefOamSpiValueRange* range)
    {
        std::vector<std::pair<int64_t, int64_t>> result;
        for (; range != nullptr; range = range->next) {
            result.emplace_back(range->min, range->max);
        }
        return result;
    }
    MomWrapper mom;
    DdtWrapper ddt;
};

using Bounds = std::vector<std::pair<int64_t, int64_t>>;

} // namespace

TEST(DdtWrapperTest, NewTypeDefaults)
{
    DdtWrapper ddt;
    const ZefOamSpiDerivedDatatype& r = ddt.getStruct();
    EXPECT_EQ(nullptr, r.generalProperties.name);
    EXPECT_EQ(ZefOamSpiStatusCurrent, r.generalProperties.status);
    EXPECT_EQ(nullptr, r.mom);
    EXPECT_EQ(ZefMoAttributeTypeNotSet, r.type);
    EXPECT_EQ(nullptr, r.pattern);
    EXPECT_EQ(0, r.stringLength.min);
    EXPECT_EQ(0, r.stringLength.max);
    EXPECT_EQ(nullptr, r.valueRange);
    EXPECT_EQ(0u, r.handle);
    EXPECT_EQ(0u, r.generalPropertiesHandle);
    EXPECT_EQ(ZefMrType3NotSet, ddt.getType());
    EXPECT_EQ(ZefMrType4NotSet, ddt.getType4());
    EXPECT_FALSE(ddt.getIsPassphrase());
    EXPECT_EQ(0u, ddt.getIntResolution());
    EXPECT_EQ(0.0, ddt.getFloatResolution());
    EXPECT_EQ("", ddt.getFloatStringResolution());
    EXPECT_EQ("", ddt.getDefaultValue());
    EXPECT_EQ("", ddt.getExceptionText());
    EXPECT_EQ("", ddt.getPattern());
    EXPECT_TRUE(ddt.getValueRanges().empty());
    EXPECT_TRUE(ddt.getLengthRanges().empty());
    static_assert(std::has_virtual_destructor<DdtWrapper>::value, "records are polymorphic");
}

TEST(DdtWrapperTest, KeyOfMomAndName)
{
    ZefTest::LogCapture log;
    DdtFixture f;
    EXPECT_EQ("m~1.0~T", f.ddt.getId());
    EXPECT_EQ("m~1.0~T", DdtWrapper::getDdtId("m", "1.0", "T"));
    EXPECT_TRUE(log.errors().empty());
}

TEST(DdtWrapperTest, KeyBuilderMessages)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("", DdtWrapper::getDdtId(nullptr, "1", "T"));
    EXPECT_EQ("", DdtWrapper::getDdtId("m", nullptr, "T"));
    EXPECT_EQ("", DdtWrapper::getDdtId("m", "1", nullptr));
    EXPECT_EQ("", DdtWrapper::getDdtId("", "1", "T"));
    EXPECT_EQ("", DdtWrapper::getDdtId("m", "", "T"));
    EXPECT_EQ("", DdtWrapper::getDdtId("m", "1", ""));
    const Messages expected{"Couldn't get ddt id, mom name is NULL",   "Couldn't get ddt id, mom version is NULL",
                            "Couldn't get ddt id, ddt name is NULL",   "Couldn't get ddt id, mom name isn't set",
                            "Couldn't get ddt id, mom version isn't set", "Couldn't get ddt id, ddt name isn't set"};
    EXPECT_EQ(expected, log.errors());
    EXPECT_EQ(expected, log.traces());
}

TEST(DdtWrapperTest, KeyIsCachedOnFirstUse)
{
    DdtFixture f;
    EXPECT_EQ("m~1.0~T", f.ddt.getId());
    f.ddt.setMom(nullptr);
    EXPECT_EQ("m~1.0~T", f.ddt.getId());
}

TEST(DdtWrapperTest, TypeForms)
{
    DdtWrapper basic;
    EXPECT_EQ(ZefOk, basic.setType(ZefMoAttributeTypeString));
    EXPECT_EQ(ZefMoAttributeTypeString, basic.getStruct().type);
    EXPECT_EQ(ZefMrType3NotSet, basic.getType());
    EXPECT_EQ(ZefMrType4NotSet, basic.getType4());

    DdtWrapper v3;
    EXPECT_EQ(ZefOk, v3.setType(ZefMrType3Double));
    EXPECT_EQ(ZefMoAttributeTypeDouble, v3.getStruct().type);
    EXPECT_EQ(ZefMrType3Double, v3.getType());
    EXPECT_EQ(ZefMrType4Double, v3.getType4());

    DdtWrapper v4;
    EXPECT_EQ(ZefOk, v4.setType(ZefMrType4UInt16));
    EXPECT_EQ(ZefMoAttributeTypeUInt16, v4.getStruct().type);
    EXPECT_EQ(ZefMrType3UInt16, v4.getType());
    EXPECT_EQ(ZefMrType4UInt16, v4.getType4());
}

TEST(DdtWrapperTest, ValidationRulesPatternWinsAfterAPlainOne)
{
    DdtWrapper ddt;
    EXPECT_EQ(ZefOk, ddt.setPattern("[a-z]*"));
    EXPECT_EQ(ZefAlreadyExists, ddt.setPattern("[0-9]*"));
    EXPECT_STREQ("[a-z]*", ddt.getStruct().pattern);
    EXPECT_EQ(ZefOk, ddt.setValidationRulesPattern("^x$"));
    EXPECT_STREQ("^x$", ddt.getStruct().pattern);
    EXPECT_EQ("^x$", ddt.getPattern());
}

TEST(DdtWrapperTest, ValidationRulesPatternWinsBeforeAPlainOne)
{
    DdtWrapper ddt;
    EXPECT_EQ(ZefOk, ddt.setValidationRulesPattern("^x$"));
    EXPECT_EQ(ZefAlreadyExists, ddt.setPattern("[a-z]*"));
    EXPECT_STREQ("^x$", ddt.getStruct().pattern);
}

TEST(DdtWrapperTest, TwoRangesChainInTheOrderGiven)
{
    DdtFixture f;
    EXPECT_EQ(ZefOk, f.ddt.addRangeMin("1"));
    EXPECT_EQ(ZefOk, f.ddt.addRangeMax("5"));
    EXPECT_EQ(ZefOk, f.ddt.addRangeMin("10"));
    EXPECT_EQ(ZefOk, f.ddt.addRangeMax("20"));
    EXPECT_EQ(Bounds({{1, 5}, {10, 20}}), DdtFixture::bounds(f.ddt.getStruct().valueRange));
    ASSERT_EQ(2u, f.ddt.getValueRanges().size());
    EXPECT_EQ(&f.ddt.getValueRanges().front()->getStruct(), f.ddt.getStruct().valueRange);
    EXPECT_EQ(f.ddt.getValueRanges().back(), f.ddt.getValueRanges().front()->getNext());
}

TEST(DdtWrapperTest, RepeatedMaxReplacesThePreviousOne)
{
    DdtFixture f;
    f.ddt.addRangeMax("5");
    f.ddt.addRangeMax("6");
    EXPECT_EQ(Bounds({{0, 6}}), DdtFixture::bounds(f.ddt.getStruct().valueRange));
}

TEST(DdtWrapperTest, RepeatedMinReplacesThePreviousOne)
{
    DdtFixture f;
    f.ddt.addRangeMin("5");
    f.ddt.addRangeMin("-6");
    f.ddt.addRangeMax("9");
    EXPECT_EQ(Bounds({{-6, 9}}), DdtFixture::bounds(f.ddt.getStruct().valueRange));
}

TEST(DdtWrapperTest, MaxFirstThenMinCompletesTheRange)
{
    DdtFixture f;
    f.ddt.addRangeMax("5");
    f.ddt.addRangeMin("1");
    f.ddt.addRangeMax("8");
    f.ddt.addRangeMin("7");
    EXPECT_EQ(Bounds({{1, 5}, {7, 8}}), DdtFixture::bounds(f.ddt.getStruct().valueRange));
}

TEST(DdtWrapperTest, BoundOfACompleteRangeOpensTheNext)
{
    DdtFixture f;
    f.ddt.addRangeMin("1");
    f.ddt.addRangeMax("2");
    f.ddt.addRangeMax("4");
    f.ddt.addRangeMin("3");
    EXPECT_EQ(Bounds({{1, 2}, {3, 4}}), DdtFixture::bounds(f.ddt.getStruct().valueRange));
}

TEST(DdtWrapperTest, BoundsAreConvertedForTheType)
{
    ZefTest::LogCapture log;
    DdtFixture f(ZefMrType3Int8);
    EXPECT_EQ(ZefOk, f.ddt.addRangeMin("-129"));
    EXPECT_EQ(ZefOk, f.ddt.addRangeMax("*"));
    EXPECT_EQ(Bounds({{0, 127}}), DdtFixture::bounds(f.ddt.getStruct().valueRange));
    EXPECT_EQ(Messages{"Invalid min value -129 set for attribute: m~1.0~T."}, log.errors());
}

TEST(DdtWrapperTest, DoubleBounds)
{
    DdtFixture f(ZefMrType3Double);
    f.ddt.addRangeMin("-0.5");
    f.ddt.addRangeMax("2.25");
    const ZefOamSpiValueRange* range = f.ddt.getStruct().valueRange;
    ASSERT_NE(nullptr, range);
    EXPECT_EQ(-0.5, range->minDouble);
    EXPECT_EQ(2.25, range->maxDouble);
}

TEST(DdtWrapperTest, LengthRangesPairLikeValueRanges)
{
    DdtFixture f(ZefMrType3String);
    f.ddt.addLengthMin("1");
    f.ddt.addLengthMax("8");
    f.ddt.addLengthMin("10");
    f.ddt.addLengthMax("12");
    ASSERT_EQ(2u, f.ddt.getLengthRanges().size());
    EXPECT_EQ(Bounds({{1, 8}, {10, 12}}), DdtFixture::bounds(&f.ddt.getLengthRanges().front()->getStruct()));
    // The record's string length follows the first length range; the
    // value ranges are untouched.
    EXPECT_EQ(1, f.ddt.getStruct().stringLength.min);
    EXPECT_EQ(8, f.ddt.getStruct().stringLength.max);
    EXPECT_EQ(nullptr, f.ddt.getStruct().valueRange);
    f.ddt.addLengthMax("9");
    f.ddt.getLengthRanges().front()->setMax("30", ZefMrType3String, "T");
    f.ddt.updateV1stringRestrictionLength();
    EXPECT_EQ(30, f.ddt.getStruct().stringLength.max);
}

TEST(DdtWrapperTest, FirstRangeHandles)
{
    DdtFixture f(ZefMrType3String);
    uint64_t handle = 5;
    EXPECT_EQ(ZefNotFound, f.ddt.getFirstStringRestrictionLengthHandle(handle));
    EXPECT_EQ(ZefNotFound, f.ddt.getFirstNumericRestrictionLengthHandle(handle));
    EXPECT_EQ(5u, handle);
    f.ddt.addLengthMax("3");
    f.ddt.addRangeMax("4");
    f.ddt.getLengthRanges().front()->setHandle(3017);
    f.ddt.getValueRanges().front()->setHandle(3018);
    EXPECT_EQ(ZefOk, f.ddt.getFirstStringRestrictionLengthHandle(handle));
    EXPECT_EQ(3017u, handle);
    EXPECT_EQ(ZefOk, f.ddt.getFirstNumericRestrictionLengthHandle(handle));
    EXPECT_EQ(3018u, handle);
}

TEST(DdtWrapperTest, CreateValueRangeWrapperChainsBehindThePrevious)
{
    DdtWrapper ddt;
    DdtWrapper::RangeList list;
    ValueRangeWrapper* first = ddt.createValueRangeWrapper(list);
    ValueRangeWrapper* second = ddt.createValueRangeWrapper(list);
    ASSERT_EQ(2u, list.size());
    EXPECT_EQ(first, list.front());
    EXPECT_EQ(second, first->getNext());
    EXPECT_EQ(&second->getStruct(), first->getStruct().next);
    // Only the type's own value ranges are published as its first range.
    EXPECT_EQ(nullptr, ddt.getStruct().valueRange);
    for (ValueRangeWrapper* range : list) {
        delete range;
    }
}

TEST(DdtWrapperTest, ClearListsForgetsEveryRange)
{
    DdtFixture f(ZefMrType3String);
    f.ddt.addRangeMin("1");
    f.ddt.addLengthMax("3");
    f.ddt.clearLists();
    EXPECT_TRUE(f.ddt.getValueRanges().empty());
    EXPECT_TRUE(f.ddt.getLengthRanges().empty());
    EXPECT_EQ(nullptr, f.ddt.getStruct().valueRange);
    EXPECT_EQ(0, f.ddt.getStruct().stringLength.max);
    // Pairing starts afresh.
    f.ddt.addRangeMax("7");
    EXPECT_EQ(Bounds({{0, 7}}), DdtFixture::bounds(f.ddt.getStruct().valueRange));
}

TEST(DdtWrapperTest, Resolutions)
{
    DdtWrapper ddt;
    EXPECT_EQ(ZefOk, ddt.setIntResolution("10"));
    EXPECT_EQ(10u, ddt.getIntResolution());
    EXPECT_EQ(ZefInvalidArgument, ddt.setIntResolution("-1"));
    EXPECT_EQ(10u, ddt.getIntResolution());
    EXPECT_EQ(ZefOk, ddt.setIntResolution("*"));
    EXPECT_EQ(UINT64_MAX, ddt.getIntResolution());
    EXPECT_EQ(ZefOk, ddt.setFloatResolution("0.25"));
    EXPECT_EQ(0.25, ddt.getFloatResolution());
    EXPECT_EQ("0.25", ddt.getFloatStringResolution());
    EXPECT_EQ(ZefInvalidArgument, ddt.setFloatResolution("0.5x"));
    EXPECT_EQ(0.25, ddt.getFloatResolution());
    EXPECT_EQ("0.25", ddt.getFloatStringResolution());
}

TEST(DdtWrapperTest, DefaultValuePassphraseAndExceptionText)
{
    ZefTest::LogCapture log;
    DdtWrapper ddt;
    EXPECT_EQ(ZefOk, ddt.setDefaultValue("true"));
    EXPECT_EQ(ZefAlreadyExists, ddt.setDefaultValue("false"));
    EXPECT_EQ("true", ddt.getDefaultValue());
    EXPECT_EQ(Messages{"Default value (false) is already set to (true)."}, log.errors());
    EXPECT_EQ(ZefOk, ddt.setIsPassphrase());
    EXPECT_TRUE(ddt.getIsPassphrase());
    EXPECT_EQ(ZefOk, ddt.setIsPassphrase(false));
    EXPECT_FALSE(ddt.getIsPassphrase());
    EXPECT_EQ(ZefOk, ddt.setExceptionText("bad"));
    EXPECT_EQ("bad", ddt.getExceptionText());
}

TEST(DdtWrapperTest, SubstituteCopiesEverythingUnderTheNewName)
{
    ZefTest::LogCapture log;
    DdtFixture f(ZefMrType3String);
    f.ddt.setDescription("secret");
    f.ddt.setStatus(ZefOamSpiStatusDeprecated);
    f.ddt.push_back_domain_extension("QCIM", "isNillable", "true");
    f.ddt.setPattern("[a-z]+");
    f.ddt.setDefaultValue("abc");
    f.ddt.setIsPassphrase();
    f.ddt.setExceptionText("bad");
    f.ddt.setIntResolution("2");
    f.ddt.setFloatResolution("0.5");
    f.ddt.addLengthMin("1");
    f.ddt.addLengthMax("8");
    f.ddt.addRangeMin("3");
    f.ddt.addRangeMax("4");
    f.ddt.setHandle(3017);
    f.ddt.setGeneralPropertiesHandle(3018);
    ASSERT_EQ("m~1.0~T", f.ddt.getId());

    DdtWrapper copy(f.ddt, "T_copy");
    const ZefOamSpiDerivedDatatype& r = copy.getStruct();
    EXPECT_EQ("m~1.0~T_copy", copy.getId());
    EXPECT_STREQ("T_copy", r.generalProperties.name);
    EXPECT_STREQ("secret", r.generalProperties.description);
    EXPECT_EQ(ZefOamSpiStatusDeprecated, r.generalProperties.status);
    EXPECT_TRUE(copy.isNillable());
    EXPECT_EQ(&f.mom.getStruct(), r.mom);
    EXPECT_EQ(ZefMoAttributeTypeString, r.type);
    EXPECT_EQ(ZefMrType3String, copy.getType());
    EXPECT_EQ(ZefMrType4String, copy.getType4());
    EXPECT_STREQ("[a-z]+", r.pattern);
    EXPECT_NE(f.ddt.getStruct().pattern, r.pattern);
    EXPECT_EQ("abc", copy.getDefaultValue());
    EXPECT_TRUE(copy.getIsPassphrase());
    EXPECT_EQ("bad", copy.getExceptionText());
    EXPECT_EQ(2u, copy.getIntResolution());
    EXPECT_EQ("0.5", copy.getFloatStringResolution());
    EXPECT_EQ(1, r.stringLength.min);
    EXPECT_EQ(8, r.stringLength.max);
    EXPECT_EQ(Bounds({{3, 4}}), DdtFixture::bounds(r.valueRange));
    EXPECT_NE(f.ddt.getStruct().valueRange, r.valueRange);
    ASSERT_EQ(1u, copy.getLengthRanges().size());
    EXPECT_NE(f.ddt.getLengthRanges().front(), copy.getLengthRanges().front());
    EXPECT_EQ(0u, copy.getHandle());
    EXPECT_EQ(0u, r.generalPropertiesHandle);
    EXPECT_EQ(0u, copy.getGeneralPropertiesHandle());
    EXPECT_EQ(0u, copy.getValueRanges().front()->getHandle());
    // The copy pairs further bounds where the source left off.
    copy.addRangeMin("5");
    EXPECT_EQ(Bounds({{3, 4}, {5, 0}}), DdtFixture::bounds(r.valueRange));
    EXPECT_EQ(Bounds({{3, 4}}), DdtFixture::bounds(f.ddt.getStruct().valueRange));
    copy.setGeneralPropertiesHandle(3020);
    EXPECT_EQ(3020u, r.generalPropertiesHandle);
    EXPECT_TRUE(log.errors().empty());
}

TEST(DdtWrapperTest, HandlesAreKeptInTheRecord)
{
    DdtWrapper ddt;
    ddt.setHandle(3019);
    ddt.setGeneralPropertiesHandle(3044);
    EXPECT_EQ(3019u, ddt.getHandle());
    EXPECT_EQ(3019u, ddt.getStruct().handle);
    EXPECT_EQ(3044u, ddt.getStruct().generalPropertiesHandle);
}

TEST(DdtWrapperTest, DumpOfARestrictedInteger)
{
    DdtFixture f(ZefMrType3Int16);
    f.ddt.addRangeMin("1");
    f.ddt.addRangeMax("5");
    f.ddt.addRangeMin("10");
    f.ddt.addRangeMax("20");
    EXPECT_EQ("-- Ddt (T)--\n"
              "Name:              T\n"
              "Description:       \n"
              "Specification:     \n"
              "Status:            1\n"
              "Hidden:            \n"
              "Type:              2\n"
              "isPassphrase:      false\n"
              "Mom:               m~1.0\n"
              "Pattern:           \n"
              "String restriction :\n"
              "StringLengthMin:         0\n"
              "StringLengthMax:         0\n"
              "    -- ValueRange -- \n"
              "    min:         1\n"
              "    max:         5\n"
              "    -- ValueRange -- \n"
              "    min:         10\n"
              "    max:         20\n",
              f.ddt.toString());
}

TEST(DdtWrapperTest, DumpOfARestrictedString)
{
    DdtFixture f(ZefMrType3String);
    f.ddt.setDescription("a password");
    f.ddt.setIsPassphrase();
    f.ddt.setValidationRulesPattern("[a-z]{4,}");
    f.ddt.addLengthMin("4");
    f.ddt.addLengthMax("16");
    EXPECT_EQ("-- Ddt (T)--\n"
              "Name:              T\n"
              "Description:       a password\n"
              "Specification:     \n"
              "Status:            1\n"
              "Hidden:            \n"
              "Type:              9\n"
              "isPassphrase:      true\n"
              "Mom:               m~1.0\n"
              "Pattern:           [a-z]{4,}\n"
              "String restriction :\n"
              "StringLengthMin:         4\n"
              "StringLengthMax:         16\n",
              f.ddt.toString());
}

TEST(DdtWrapperTest, DumpWithoutMom)
{
    ZefTest::LogCapture log;
    DdtWrapper ddt;
    EXPECT_EQ("-- Ddt ()--\n"
              "Name:              \n"
              "Description:       \n"
              "Specification:     \n"
              "Status:            1\n"
              "Hidden:            \n"
              "Type:              0\n"
              "isPassphrase:      false\n"
              "Mom:               \n"
              "Pattern:           \n"
              "String restriction :\n"
              "StringLengthMin:         0\n"
              "StringLengthMax:         0\n",
              ddt.toString());
    EXPECT_TRUE(log.errors().empty());
}
