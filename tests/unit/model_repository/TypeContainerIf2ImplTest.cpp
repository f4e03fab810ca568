// The type container getters of the query interface and the class
// reference, integer, string and floating point tables that read the
// derived type of a type container. Type containers of the hand-built
// model: struct members first 3017 (int8) and second 3018 (string);
// attributes count 3019 (Counter), color 3020 (Color), pair 3021 (Pair),
// ref 3022 (reference to Child, 0..*, ordered), ratio 3023 (Ratio),
// name 3024 (Name, defaults abc and xyz); action result 3025 (bool);
// parameters 3026 (bool) and 3027 (uint8).

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "HandBuiltModel.h"

namespace {

class TypeContainerIf2ImplTest : public ZefTest::HandBuiltModelTest {};

const uint64_t kFirst = 3017;
const uint64_t kCount = 3019;
const uint64_t kColor = 3020;
const uint64_t kPair = 3021;
const uint64_t kRef = 3022;
const uint64_t kRatio = 3023;
const uint64_t kName = 3024;
const uint64_t kLevel = 3027;

std::vector<std::string> textsOf(const char* const* texts)
{
    std::vector<std::string> result;
    for (; *texts != nullptr; ++texts) {
        result.push_back(*texts);
    }
    return result;
}

} // namespace

TEST_F(TypeContainerIf2ImplTest, Version2AnswersTheBaseTypeOfADerivedType)
{
    ZefOamSpiType_2 type = ZefType2NotSet;
    EXPECT_EQ(ZefOk, if2().typeContainer->getType(kCount, &type));
    EXPECT_EQ(ZefType2Int32, type);
    EXPECT_EQ(ZefOk, if2().typeContainer->getType(kName, &type));
    EXPECT_EQ(ZefType2String, type);
    EXPECT_EQ(ZefOk, if2().typeContainer->getType(kColor, &type));
    EXPECT_EQ(ZefType2Enum, type);
    EXPECT_EQ(ZefOk, if2().typeContainer->getType(kLevel, &type));
    EXPECT_EQ(ZefType2UInt8, type);
}

TEST_F(TypeContainerIf2ImplTest, Versions3And4AnswerTheElementsOwnType)
{
    ZefOamSpiMrType_3 type3 = ZefMrType3NotSet;
    EXPECT_EQ(ZefOk, if3().typeContainer->getType(kCount, &type3));
    EXPECT_EQ(ZefMrType3Derived, type3);
    ZefOamSpiMrType_4 type4 = ZefMrType4NotSet;
    EXPECT_EQ(ZefOk, if4().typeContainer->getType(kRatio, &type4));
    EXPECT_EQ(ZefMrType4Derived, type4);
    EXPECT_EQ(ZefOk, if4().typeContainer->getType(kRef, &type4));
    EXPECT_EQ(ZefMrType4Reference, type4);
    EXPECT_EQ(ZefOk, if4().typeContainer->getType(kFirst, &type4));
    EXPECT_EQ(ZefMrType4Int8, type4);
}

TEST_F(TypeContainerIf2ImplTest, HandsOutTheReferencedTypesOrNotFound)
{
    const ZefOamSpiMrTypeContainer_4& tc = *if4().typeContainer;
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, tc.getDerived(kRatio, &handle));
    EXPECT_EQ(3018u, handle);
    EXPECT_EQ(ZefOk, tc.getEnum(kColor, &handle));
    EXPECT_EQ(3017u, handle);
    EXPECT_EQ(ZefOk, tc.getStruct(kPair, &handle));
    EXPECT_EQ(3017u, handle);
    EXPECT_EQ(ZefOk, tc.getReferencedMoc(kRef, &handle));
    EXPECT_EQ(3018u, handle);
    handle = 99;
    EXPECT_EQ(ZefNotFound, tc.getDerived(kColor, &handle));
    EXPECT_EQ(ZefNotFound, tc.getEnum(kCount, &handle));
    EXPECT_EQ(ZefNotFound, tc.getStruct(kCount, &handle));
    EXPECT_EQ(ZefNotFound, tc.getReferencedMoc(kCount, &handle));
    EXPECT_EQ(99u, handle);
}

TEST_F(TypeContainerIf2ImplTest, ReadsDefaultsMultiplicityAndFlags)
{
    const ZefOamSpiMrTypeContainer_4& tc = *if4().typeContainer;
    const char* const* values = nullptr;
    ASSERT_EQ(ZefOk, tc.getDefaultValue(kName, &values));
    EXPECT_EQ((std::vector<std::string>{"abc", "xyz"}), textsOf(values));
    ASSERT_EQ(ZefOk, tc.getDefaultValue(kCount, &values));
    EXPECT_EQ(std::vector<std::string>{}, textsOf(values));

    uint64_t bound = 0;
    EXPECT_EQ(ZefOk, tc.getMultiplicityMin(kRef, &bound));
    EXPECT_EQ(0u, bound);
    EXPECT_EQ(ZefOk, tc.getMultiplicityMax(kRef, &bound));
    EXPECT_EQ(32767u, bound);
    EXPECT_EQ(ZefOk, tc.getMultiplicityMin(kLevel, &bound));
    EXPECT_EQ(1u, bound);
    EXPECT_EQ(ZefOk, tc.getMultiplicityMax(kLevel, &bound));
    EXPECT_EQ(1u, bound);

    bool flag = false;
    EXPECT_EQ(ZefOk, tc.getIsOrdered(kRef, &flag));
    EXPECT_TRUE(flag);
    EXPECT_EQ(ZefOk, tc.getIsOrdered(kLevel, &flag));
    EXPECT_FALSE(flag);
    EXPECT_EQ(ZefOk, tc.getIsUnique(kLevel, &flag));
    EXPECT_TRUE(flag);
}

TEST_F(TypeContainerIf2ImplTest, TheClassReferenceTableHandsOutTheReferencedClass)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, if4().moRef->getHandleProperty(kRef, ZefMrMoRefProperty4Moc, &handle));
    EXPECT_EQ(3018u, handle);
    EXPECT_EQ(ZefOk, if3().moRef->getHandleProperty(kRef, ZefMrMoRefProperty3Moc, &handle));
    EXPECT_EQ(3018u, handle);
    handle = 5;
    EXPECT_EQ(ZefNotFound, if4().moRef->getHandleProperty(kRef, static_cast<ZefOamSpiMrMoRefProperty_4>(1), &handle));
    EXPECT_EQ(ZefNotFound, if4().moRef->getHandleProperty(kCount, ZefMrMoRefProperty4Moc, &handle));
    EXPECT_EQ(5u, handle);
}

TEST_F(TypeContainerIf2ImplTest, TheIntegerTableReadsTheDerivedType)
{
    const ZefOamSpiMrInt_4& ints = *if4().intType;
    int64_t value = 0;
    EXPECT_EQ(ZefOk, ints.getIntProperty(kCount, ZefMrIntProperty4Resolution, &value));
    EXPECT_EQ(2, value);
    EXPECT_EQ(ZefOk, ints.getIntProperty(kCount, ZefMrIntProperty4Min, &value));
    EXPECT_EQ(1, value);
    EXPECT_EQ(ZefOk, ints.getIntProperty(kCount, ZefMrIntProperty4Max, &value));
    EXPECT_EQ(5, value);
    uint64_t range = 0;
    EXPECT_EQ(ZefOk, ints.getHandleProperty(kCount, ZefMrIntProperty4FirstRange, &range));
    EXPECT_EQ(3017u, range);
    ASSERT_EQ(ZefOk, ints.rangeGetNext(range, &range));
    EXPECT_EQ(3018u, range);
    EXPECT_EQ(ZefOk, ints.rangeGetMin(range, &value));
    EXPECT_EQ(10, value);
    EXPECT_EQ(ZefOk, ints.rangeGetMax(range, &value));
    EXPECT_EQ(20, value);
    EXPECT_EQ(ZefNotFound, ints.rangeGetNext(range, &range));
    EXPECT_EQ(3018u, range);

    value = 7;
    EXPECT_EQ(ZefNotFound, ints.getIntProperty(kCount, ZefMrIntProperty4FirstRange, &value));
    EXPECT_EQ(ZefNotFound, ints.getHandleProperty(kCount, ZefMrIntProperty4Min, &range));
    EXPECT_EQ(ZefNotFound, if3().intType->getIntProperty(kLevel, ZefMrIntProperty3Min, &value));
    EXPECT_EQ(7, value);
}

TEST_F(TypeContainerIf2ImplTest, TheStringTableReadsTheDerivedType)
{
    const ZefOamSpiMrString_4& strings = *if4().stringType;
    const char* text = nullptr;
    EXPECT_EQ(ZefOk, strings.getStringProperty(kName, ZefMrStringProperty4Pattern, &text));
    EXPECT_STREQ("[a-z]+", text);
    EXPECT_EQ(ZefOk, strings.getStringProperty(kName, ZefMrStringProperty4ExceptionText, &text));
    EXPECT_STREQ("lower case only", text);
    int64_t length = 0;
    EXPECT_EQ(ZefOk, strings.getIntProperty(kName, ZefMrStringProperty4MinLength, &length));
    EXPECT_EQ(1, length);
    EXPECT_EQ(ZefOk, strings.getIntProperty(kName, ZefMrStringProperty4MaxLength, &length));
    EXPECT_EQ(8, length);
    bool passphrase = false;
    EXPECT_EQ(ZefOk, strings.getBoolProperty(kName, ZefMrStringProperty4IsPassphrase, &passphrase));
    EXPECT_TRUE(passphrase);
    uint64_t range = 0;
    EXPECT_EQ(ZefOk, strings.getHandleProperty(kName, ZefMrStringProperty4FirstLengthRange, &range));
    EXPECT_EQ(3020u, range);
    EXPECT_EQ(ZefOk, strings.rangeGetMax(range, &length));
    EXPECT_EQ(8, length);

    EXPECT_EQ(ZefNotFound, strings.getStringProperty(kName, ZefMrStringProperty4MinLength, &text));
    EXPECT_EQ(ZefNotFound, strings.getBoolProperty(kName, ZefMrStringProperty4Pattern, &passphrase));
    EXPECT_EQ(ZefNotFound, strings.getHandleProperty(kCount, ZefMrStringProperty4FirstLengthRange, &range));
    EXPECT_EQ(ZefNotFound, if3().stringType->getStringProperty(kFirst, ZefMrStringProperty3Pattern, &text));
}

TEST_F(TypeContainerIf2ImplTest, TheFloatTableReadsTheDerivedType)
{
    const ZefOamSpiMrFloat_4& floats = *if4().floatType;
    double value = 0;
    EXPECT_EQ(ZefOk, floats.getFloatProperty(kRatio, ZefMrFloatProperty4Resolution, &value));
    EXPECT_DOUBLE_EQ(0.25, value);
    EXPECT_EQ(ZefOk, floats.getFloatProperty(kRatio, ZefMrFloatProperty4Min, &value));
    EXPECT_DOUBLE_EQ(0.5, value);
    EXPECT_EQ(ZefOk, floats.getFloatProperty(kRatio, ZefMrFloatProperty4Max, &value));
    EXPECT_DOUBLE_EQ(1.5, value);
    const char* text = nullptr;
    EXPECT_EQ(ZefOk, floats.getStringProperty(kRatio, ZefMrFloatProperty4Resolution, &text));
    EXPECT_STREQ("0.25", text);
    uint64_t range = 0;
    EXPECT_EQ(ZefOk, floats.getHandleProperty(kRatio, ZefMrFloatProperty4FirstRange, &range));
    EXPECT_EQ(3019u, range);
    EXPECT_EQ(ZefOk, floats.rangeGetMax(range, &value));
    EXPECT_DOUBLE_EQ(1.5, value);
    EXPECT_EQ(ZefNotFound, floats.rangeGetNext(range, &range));
}

TEST_F(TypeContainerIf2ImplTest, FloatStringPropertyChecksItsArgumentsBeforeTheServiceState)
{
    const char* text = "untouched";
    const auto second = static_cast<ZefOamSpiMrFloatProperty_4>(1);
    stopService();
    // A null out pointer first, then a property other than the resolution,
    // only then the service state.
    EXPECT_EQ(ZefInvalidArgument, if4().floatType->getStringProperty(kRatio, second, nullptr));
    EXPECT_EQ(ZefInvalidArgument, if3().floatType->getStringProperty(kRatio, ZefMrFloatProperty3Resolution, nullptr));
    EXPECT_EQ(ZefNotFound, if4().floatType->getStringProperty(kRatio, second, &text));
    EXPECT_EQ(ZefNotFound, if3().floatType->getStringProperty(0, static_cast<ZefOamSpiMrFloatProperty_3>(1), &text));
    EXPECT_EQ(ZefNotStarted, if4().floatType->getStringProperty(kRatio, ZefMrFloatProperty4Resolution, &text));
    EXPECT_STREQ("untouched", text);
}

TEST_F(TypeContainerIf2ImplTest, FloatStringPropertyThenLooksUpTheTypeContainerAndItsDerivedType)
{
    const char* text = "untouched";
    EXPECT_EQ(ZefInvalidArgument, if4().floatType->getStringProperty(3028, ZefMrFloatProperty4Resolution, &text));
    EXPECT_EQ("Failed to look up TypeContainer [handle 3028 outside of 11 issued from 3017]", errorText());
    // Without a derived type the code of getDerived is answered as it stands.
    EXPECT_EQ(ZefNotFound, if4().floatType->getStringProperty(kColor, ZefMrFloatProperty4Resolution, &text));
    EXPECT_STREQ("untouched", text);
    // A derived type without floating resolution has no text.
    EXPECT_EQ(ZefOk, if4().floatType->getStringProperty(kCount, ZefMrFloatProperty4Resolution, &text));
    EXPECT_EQ(nullptr, text);
}

TEST_F(TypeContainerIf2ImplTest, ADerivedTypeThatIsNotRegisteredCannotBeRead)
{
    ZefModelRepositoryService::DdtWrapper unregistered;
    model.attrs[0]->setDerivedDatatype(&unregistered.getStruct());
    uint64_t handle = 4;
    EXPECT_EQ(ZefNotFound, if4().typeContainer->getDerived(kCount, &handle));
    EXPECT_EQ(4u, handle);
}
