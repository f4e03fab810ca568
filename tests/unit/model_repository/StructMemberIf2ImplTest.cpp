// The struct member getters of the query interface: members first 3017
// (int8) and second 3018 (string) of the hand-built model's struct Pair.

#include <gtest/gtest.h>

#include "HandBuiltModel.h"

namespace {

class StructMemberIf2ImplTest : public ZefTest::HandBuiltModelTest {};

} // namespace

TEST_F(StructMemberIf2ImplTest, LinksToItsGeneralPropertiesAndTypeContainer)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, if4().structType->memberGetGeneralProperties(3018, &handle));
    EXPECT_EQ(3026u, handle);
    EXPECT_EQ(ZefOk, if4().structType->memberGetTypeContainer(3018, &handle));
    EXPECT_EQ(3018u, handle);
    ZefOamSpiMrType_4 type = ZefMrType4NotSet;
    EXPECT_EQ(ZefOk, if4().typeContainer->getType(handle, &type));
    EXPECT_EQ(ZefMrType4String, type);
}

TEST_F(StructMemberIf2ImplTest, WalksTheMembersInDefinitionOrder)
{
    uint64_t next = 0;
    EXPECT_EQ(ZefOk, if2().structType->memberGetNext(3017, &next));
    EXPECT_EQ(3018u, next);
    next = 2;
    EXPECT_EQ(ZefNotFound, if2().structType->memberGetNext(3018, &next));
    EXPECT_EQ(2u, next);
}

TEST_F(StructMemberIf2ImplTest, AnUnknownMemberIsReportedWithTheStructMemberText)
{
    uint64_t next = 0;
    EXPECT_EQ(ZefInvalidArgument, if3().structType->memberGetNext(3019, &next));
    EXPECT_EQ("Failed to look up StructMember [handle 3019 outside of 2 issued from 3017]", errorText());
}
