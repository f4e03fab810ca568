// The enumeration getters of the query interface: enumeration Color 3017
// of the hand-built model, literals RED 3017 and GREEN 3018.

#include <gtest/gtest.h>

#include "HandBuiltModel.h"

namespace {

class EnumTypeIf2ImplTest : public ZefTest::HandBuiltModelTest {};

} // namespace

TEST_F(EnumTypeIf2ImplTest, LinksToItsGeneralPropertiesMomAndFirstLiteral)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, if4().enumType->getGeneralProperties(3017, &handle));
    EXPECT_EQ(3021u, handle);
    EXPECT_EQ(ZefOk, if4_1().enumType->getMom(3017, &handle));
    EXPECT_EQ(3017u, handle);
    EXPECT_EQ(ZefOk, if2().enumType->getLiteral(3017, &handle));
    EXPECT_EQ(3017u, handle);
}

TEST_F(EnumTypeIf2ImplTest, AnEnumerationWithoutLiteralsHasNoFirstLiteral)
{
    ZefModelRepositoryService::EnumWrapper empty;
    new ZefModelRepositoryService::EnumTypeIf2Impl(empty);
    uint64_t handle = 12;
    EXPECT_EQ(ZefNotFound, if3().enumType->getLiteral(3018, &handle));
    EXPECT_EQ(ZefNotFound, if3().enumType->getMom(3018, &handle));
    EXPECT_EQ(12u, handle);
}

TEST_F(EnumTypeIf2ImplTest, TheGeneralPropertiesOfAnUnknownEnumerationAreReportedAsEnumHandle)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefInvalidArgument, if4().enumType->getGeneralProperties(3018, &handle));
    EXPECT_EQ("Failed to look up EnumHandle [handle 3018 outside of 1 issued from 3017]", errorText());
    EXPECT_EQ(ZefInvalidArgument, if4().enumType->getLiteral(3018, &handle));
    EXPECT_EQ("Failed to look up EnumType [handle 3018 outside of 1 issued from 3017]", errorText());
}
