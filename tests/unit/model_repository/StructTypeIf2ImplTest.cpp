// The struct getters of the query interface: struct Pair 3017 of the
// hand-built model, members first 3017 and second 3018.

#include <gtest/gtest.h>

#include "HandBuiltModel.h"

namespace {

class StructTypeIf2ImplTest : public ZefTest::HandBuiltModelTest {};

} // namespace

TEST_F(StructTypeIf2ImplTest, LinksToItsGeneralPropertiesMomAndFirstMember)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, if4().structType->getGeneralProperties(3017, &handle));
    EXPECT_EQ(3024u, handle);
    EXPECT_EQ(ZefOk, if4().structType->getMom(3017, &handle));
    EXPECT_EQ(3017u, handle);
    EXPECT_EQ(ZefOk, if2().structType->getMember(3017, &handle));
    EXPECT_EQ(3017u, handle);
}

TEST_F(StructTypeIf2ImplTest, ReadsWhetherItIsExclusive)
{
    bool exclusive = false;
    EXPECT_EQ(ZefOk, if3().structType->getIsExclusive(3017, &exclusive));
    EXPECT_TRUE(exclusive);
    model.pair.setIsExclusive(false);
    EXPECT_EQ(ZefOk, if3().structType->getIsExclusive(3017, &exclusive));
    EXPECT_FALSE(exclusive);
}

TEST_F(StructTypeIf2ImplTest, TheGeneralPropertiesOfAnUnknownStructAreReportedAsStructHandle)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefInvalidArgument, if4().structType->getGeneralProperties(3018, &handle));
    EXPECT_EQ("Failed to look up StructHandle [handle 3018 outside of 1 issued from 3017]", errorText());
    EXPECT_EQ(ZefInvalidArgument, if4().structType->getMember(3018, &handle));
    EXPECT_EQ("Failed to look up StructType [handle 3018 outside of 1 issued from 3017]", errorText());
}
