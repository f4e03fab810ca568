// The literal getters of the query interface: literals RED 3017 (1) and
// GREEN 3018 (70000) of the hand-built model's enumeration Color.

#include <gtest/gtest.h>

#include "HandBuiltModel.h"

namespace {

class EnumLiteralIf2ImplTest : public ZefTest::HandBuiltModelTest {};

} // namespace

TEST_F(EnumLiteralIf2ImplTest, ReadsTheFullValueNotTheSixteenBitsOfTheRecord)
{
    int64_t value = 0;
    EXPECT_EQ(ZefOk, if4().enumType->literalGetValue(3017, &value));
    EXPECT_EQ(1, value);
    EXPECT_EQ(ZefOk, if2().enumType->literalGetValue(3018, &value));
    EXPECT_EQ(70000, value);
    EXPECT_EQ(4464, model.color.getLiteralsList().back()->getStruct().value);
}

TEST_F(EnumLiteralIf2ImplTest, WalksTheLiteralsInDefinitionOrder)
{
    uint64_t next = 0;
    EXPECT_EQ(ZefOk, if4_1().enumType->literalGetNext(3017, &next));
    EXPECT_EQ(3018u, next);
    next = 1;
    EXPECT_EQ(ZefNotFound, if4_1().enumType->literalGetNext(3018, &next));
    EXPECT_EQ(1u, next);
    uint64_t gp = 0;
    const char* name = nullptr;
    ASSERT_EQ(ZefOk, if3().enumType->literalGetGeneralProperties(3018, &gp));
    EXPECT_EQ(3023u, gp);
    ASSERT_EQ(ZefOk, if3().generalProperties->getName(gp, &name));
    EXPECT_STREQ("GREEN", name);
}

TEST_F(EnumLiteralIf2ImplTest, AnUnknownLiteralIsReportedWithTheEnumLiteralText)
{
    int64_t value = 0;
    EXPECT_EQ(ZefInvalidArgument, if4().enumType->literalGetValue(3019, &value));
    EXPECT_EQ("Failed to look up EnumLiteral [handle 3019 outside of 2 issued from 3017]", errorText());
}
