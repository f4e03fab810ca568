#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "LitWrapper.h"
#include "LogCapture.h"

using namespace ZefModelRepositoryService;

using Messages = std::vector<std::string>;

TEST(LitWrapperTest, NewLiteralDefaults)
{
    LitWrapper lit;
    const ZefOamSpiEnumLiteral& r = lit.getStruct();
    EXPECT_EQ(nullptr, r.generalProperties.name);
    EXPECT_EQ(ZefOamSpiStatusCurrent, r.generalProperties.status);
    EXPECT_EQ(0, r.value);
    EXPECT_EQ(nullptr, r.next);
    EXPECT_EQ(0u, r.handle);
    EXPECT_EQ(0u, r.generalPropertiesHandle);
    EXPECT_FALSE(lit.isValueSet());
    EXPECT_EQ(0, lit.getValue());
    EXPECT_EQ(nullptr, lit.getNext());
    static_assert(std::has_virtual_destructor<LitWrapper>::value, "records are polymorphic");
}

TEST(LitWrapperTest, KeyIsTheNameAlone)
{
    ZefTest::LogCapture log;
    LitWrapper lit;
    lit.setName("RED");
    EXPECT_EQ("RED", lit.getId());
    EXPECT_EQ("RED", lit.getName());
    EXPECT_EQ("RED", LitWrapper::getLitId("RED"));
    EXPECT_TRUE(log.errors().empty());
}

TEST(LitWrapperTest, KeyBuilderMessages)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("", LitWrapper::getLitId(nullptr));
    EXPECT_EQ("", LitWrapper::getLitId(""));
    const Messages expected{"Couldn't get lit id, lit name is NULL", "Couldn't get lit id, lit nam isn't set"};
    EXPECT_EQ(expected, log.errors());
    EXPECT_EQ(expected, log.traces());
}

TEST(LitWrapperTest, KeyIsCachedOnFirstUse)
{
    LitWrapper lit;
    lit.setName("RED");
    EXPECT_EQ("RED", lit.getId());
    char other[] = "BLUE";
    char* name = lit.getStruct().generalProperties.name;
    lit.getStruct().generalProperties.name = other;
    EXPECT_EQ("RED", lit.getId());
    lit.getStruct().generalProperties.name = name;
}

TEST(LitWrapperTest, ValueBeyond16BitsIsKeptInFull)
{
    LitWrapper lit;
    EXPECT_EQ(ZefOk, lit.setValue("70000"));
    EXPECT_TRUE(lit.isValueSet());
    EXPECT_EQ(70000, lit.getValue());
    EXPECT_EQ(4464, lit.getStruct().value);
}

TEST(LitWrapperTest, RecordHoldsTheLow16BitsOfAnyValue)
{
    LitWrapper negative;
    EXPECT_EQ(ZefOk, negative.setValue("-1"));
    EXPECT_EQ(-1, negative.getValue());
    EXPECT_EQ(-1, negative.getStruct().value);
    LitWrapper wide;
    EXPECT_EQ(ZefOk, wide.setValue("9223372036854775807"));
    EXPECT_EQ(INT64_MAX, wide.getValue());
    EXPECT_EQ(-1, wide.getStruct().value);
    LitWrapper signBit;
    EXPECT_EQ(ZefOk, signBit.setValue("32768"));
    EXPECT_EQ(-32768, signBit.getStruct().value);
}

TEST(LitWrapperTest, SecondValueIsRefused)
{
    LitWrapper lit;
    EXPECT_EQ(ZefOk, lit.setValue("3"));
    EXPECT_EQ(ZefAlreadyExists, lit.setValue("4"));
    EXPECT_EQ(3, lit.getValue());
    EXPECT_EQ(3, lit.getStruct().value);
}

TEST(LitWrapperTest, TextThatDoesNotConvertLeavesNoValue)
{
    LitWrapper lit;
    EXPECT_EQ(ZefInvalidArgument, lit.setValue("1x"));
    EXPECT_EQ(ZefInvalidArgument, lit.setValue(""));
    EXPECT_EQ(ZefInvalidArgument, lit.setValue("9223372036854775808"));
    EXPECT_FALSE(lit.isValueSet());
    EXPECT_EQ(0, lit.getValue());
    EXPECT_EQ(ZefOk, lit.setValue("2"));
}

TEST(LitWrapperTest, NextLinksWrapperAndRecord)
{
    LitWrapper a;
    LitWrapper b;
    EXPECT_EQ(ZefInvalidArgument, a.setNext(nullptr));
    EXPECT_EQ(ZefOk, a.setNext(&b));
    EXPECT_EQ(&b, a.getNext());
    EXPECT_EQ(&b.getStruct(), a.getStruct().next);
}

TEST(LitWrapperTest, HandlesAreKeptInTheRecord)
{
    LitWrapper lit;
    lit.setHandle(3018);
    lit.setGeneralPropertiesHandle(3030);
    EXPECT_EQ(3018u, lit.getHandle());
    EXPECT_EQ(3018u, lit.getStruct().handle);
    EXPECT_EQ(3030u, lit.getStruct().generalPropertiesHandle);
}

TEST(LitWrapperTest, Dump)
{
    LitWrapper lit;
    lit.setName("RED");
    lit.setSpecification("spec");
    lit.setStatus(ZefOamSpiStatusDeprecated);
    lit.setValue("70000");
    EXPECT_EQ("    -- Literal (RED) -- \n"
              "    name:          RED\n"
              "    description:   \n"
              "    specification: spec\n"
              "    status:        2\n"
              "    hidden:        \n"
              "    value:         70000\n",
              lit.toString());
}
