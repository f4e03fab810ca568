// The containment getters of the query interface: containment
// Root_to_Child 3017 of the hand-built model (Root holds 0..5 Child).

#include <gtest/gtest.h>

#include "HandBuiltModel.h"

namespace {

class ContainmentIf2ImplTest : public ZefTest::HandBuiltModelTest {};

} // namespace

TEST_F(ContainmentIf2ImplTest, LinksToItsMomClassesAndGeneralProperties)
{
    const ZefOamSpiMrContainment_4& containment = *if4().containment;
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, containment.getGeneralProperties(3017, &handle));
    EXPECT_EQ(3038u, handle);
    EXPECT_EQ(ZefOk, containment.getMom(3017, &handle));
    EXPECT_EQ(3017u, handle);
    EXPECT_EQ(ZefOk, containment.getParentMoc(3017, &handle));
    EXPECT_EQ(3017u, handle);
    EXPECT_EQ(ZefOk, containment.getChildMoc(3017, &handle));
    EXPECT_EQ(3018u, handle);
}

TEST_F(ContainmentIf2ImplTest, ChainsContainmentsThatShareAClass)
{
    ZefModelRepositoryService::ContWrapper second;
    new ZefModelRepositoryService::ContainmentIf2Impl(second);
    model.rootToChild.setNextContainmentSameParentMoc(&second.getStruct());
    uint64_t next = 0;
    EXPECT_EQ(ZefOk, if2().containment->getNextContainmentSameParentMoc(3017, &next));
    EXPECT_EQ(3018u, next);
    next = 6;
    EXPECT_EQ(ZefNotFound, if2().containment->getNextContainmentSameChildMoc(3017, &next));
    EXPECT_EQ(6u, next);
}

TEST_F(ContainmentIf2ImplTest, ReadsCardinalityAndRights)
{
    uint64_t bound = 9;
    EXPECT_EQ(ZefOk, if4().containment->getCardinalityMin(3017, &bound));
    EXPECT_EQ(0u, bound);
    EXPECT_EQ(ZefOk, if4().containment->getCardinalityMax(3017, &bound));
    EXPECT_EQ(5u, bound);
    bool flag = true;
    EXPECT_EQ(ZefOk, if4().containment->getIsSystemCreated(3017, &flag));
    EXPECT_FALSE(flag);
    EXPECT_EQ(ZefOk, if4().containment->getCanCreate(3017, &flag));
    EXPECT_TRUE(flag);
    EXPECT_EQ(ZefOk, if4().containment->getCanDelete(3017, &flag));
    EXPECT_TRUE(flag);
}

TEST_F(ContainmentIf2ImplTest, ASystemCreatedContainmentStatingBothRightsReportsNeither)
{
    model.rootToChild.setIsSystemCreated(true);
    bool flag = true;
    EXPECT_EQ(ZefOk, if3().containment->getIsSystemCreated(3017, &flag));
    EXPECT_TRUE(flag);
    EXPECT_EQ(ZefOk, if3().containment->getCanCreate(3017, &flag));
    EXPECT_FALSE(flag);
    flag = true;
    EXPECT_EQ(ZefOk, if3().containment->getCanDelete(3017, &flag));
    EXPECT_FALSE(flag);
}

TEST_F(ContainmentIf2ImplTest, AnUnknownContainmentIsReportedWithTheContainmentText)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefInvalidArgument, if4().containment->getMom(3018, &handle));
    EXPECT_EQ("Failed to look up Containment [handle 3018 outside of 1 issued from 3017]", errorText());
}
