// The class getters of the query interface, read from the hand-built model.

#include <gtest/gtest.h>

#include <vector>

#include "HandBuiltModel.h"

namespace {

class MocIf2ImplTest : public ZefTest::HandBuiltModelTest {};

const uint64_t kRoot = 3017;
const uint64_t kChild = 3018;

} // namespace

TEST_F(MocIf2ImplTest, LinksToItsMomAndGeneralProperties)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, if4().moc->getMom(kChild, &handle));
    EXPECT_EQ(3017u, handle);
    EXPECT_EQ(ZefOk, if4().moc->getGeneralProperties(kChild, &handle));
    EXPECT_EQ(3028u, handle);
}

TEST_F(MocIf2ImplTest, HandsOutTheFirstAttributeAndTheOthersFollowInDefinitionOrder)
{
    uint64_t attribute = 0;
    ASSERT_EQ(ZefOk, if4().moc->getAttribute(kRoot, &attribute));
    EXPECT_EQ(3017u, attribute);
    std::vector<uint64_t> walked{attribute};
    while (if4().attribute->getNext(attribute, &attribute) == ZefOk) {
        walked.push_back(attribute);
    }
    EXPECT_EQ((std::vector<uint64_t>{3017, 3018, 3019, 3020, 3021, 3022}), walked);
}

TEST_F(MocIf2ImplTest, AClassWithoutAttributesAnswersNotFoundAndLeavesTheOutValue)
{
    uint64_t attribute = 77;
    EXPECT_EQ(ZefNotFound, if4().moc->getAttribute(kChild, &attribute));
    EXPECT_EQ(77u, attribute);
    EXPECT_EQ(ZefNotFound, if2().moc->getAttribute(kChild, &attribute));
    EXPECT_EQ(ZefNotFound, if3().moc->getAttribute(kChild, &attribute));
    EXPECT_EQ(77u, attribute);
}

TEST_F(MocIf2ImplTest, HandsOutTheFirstActionOrNotFound)
{
    uint64_t action = 5;
    EXPECT_EQ(ZefOk, if4().moc->getAction(kChild, &action));
    EXPECT_EQ(3017u, action);
    action = 5;
    EXPECT_EQ(ZefNotFound, if4().moc->getAction(kRoot, &action));
    EXPECT_EQ(5u, action);
}

TEST_F(MocIf2ImplTest, HandsOutItsContainmentsAsParentAndAsChild)
{
    uint64_t containment = 9;
    EXPECT_EQ(ZefOk, if4().moc->getChildContainment(kRoot, &containment));
    EXPECT_EQ(3017u, containment);
    containment = 9;
    EXPECT_EQ(ZefNotFound, if4().moc->getParentContainment(kRoot, &containment));
    EXPECT_EQ(9u, containment);
    EXPECT_EQ(ZefOk, if4().moc->getParentContainment(kChild, &containment));
    EXPECT_EQ(3017u, containment);
    containment = 9;
    EXPECT_EQ(ZefNotFound, if4().moc->getChildContainment(kChild, &containment));
    EXPECT_EQ(9u, containment);
}

TEST_F(MocIf2ImplTest, HandsOutItsFirstAssociations)
{
    uint64_t association = 0;
    EXPECT_EQ(ZefOk, if4().moc->getFirstBiDirAssociation(kRoot, &association));
    EXPECT_EQ(3017u, association);
    EXPECT_EQ(ZefOk, if4().moc->getFirstBiDirAssociation(kChild, &association));
    EXPECT_EQ(3017u, association);
    EXPECT_EQ(ZefOk, if4().moc->getFirstUniDirAssociation(kRoot, &association));
    EXPECT_EQ(3017u, association);
    association = 1;
    EXPECT_EQ(ZefNotFound, if4().moc->getFirstUniDirAssociation(kChild, &association));
    EXPECT_EQ(1u, association);
}

TEST_F(MocIf2ImplTest, CopiesItsFlagsAndConstraint)
{
    bool flag = true;
    EXPECT_EQ(ZefOk, if4().moc->getIsReadOnly(kRoot, &flag));
    EXPECT_FALSE(flag);
    EXPECT_EQ(ZefOk, if4().moc->getIsReadOnly(kChild, &flag));
    EXPECT_TRUE(flag);
    EXPECT_EQ(ZefOk, if4().moc->getIsRoot(kRoot, &flag));
    EXPECT_TRUE(flag);
    EXPECT_EQ(ZefOk, if4().moc->getIsRoot(kChild, &flag));
    EXPECT_FALSE(flag);
    EXPECT_EQ(ZefOk, if4().moc->getIsSystemCreated(kChild, &flag));
    EXPECT_TRUE(flag);
    EXPECT_EQ(ZefOk, if4().moc->getIsSystemCreated(kRoot, &flag));
    EXPECT_FALSE(flag);
    const char* constraint = "untouched";
    EXPECT_EQ(ZefOk, if4().moc->getConstraint(kChild, &constraint));
    EXPECT_STREQ("x > 0", constraint);
    EXPECT_EQ(ZefOk, if4().moc->getConstraint(kRoot, &constraint));
    EXPECT_EQ(nullptr, constraint);
}

TEST_F(MocIf2ImplTest, Handle3017NamesTheFirstClassAnd3016Or0NoClass)
{
    uint64_t gp = 0;
    EXPECT_EQ(ZefOk, if4().moc->getGeneralProperties(3017, &gp));
    EXPECT_EQ(3027u, gp);
    EXPECT_EQ(ZefInvalidArgument, if4().moc->getGeneralProperties(3016, &gp));
    EXPECT_EQ("Failed to look up moc [handle 3016 outside of 2 issued from 3017]", errorText());
    EXPECT_EQ(ZefInvalidArgument, if4().moc->getGeneralProperties(0, &gp));
    EXPECT_EQ("Failed to look up moc [handle 0 outside of 2 issued from 3017]", errorText());
    EXPECT_EQ(ZefInvalidArgument, if4().moc->getGeneralProperties(3019, &gp));
    EXPECT_EQ("Failed to look up moc [handle 3019 outside of 2 issued from 3017]", errorText());
    EXPECT_EQ(3027u, gp);
}

TEST_F(MocIf2ImplTest, AClassHandlePassedToAnAttributeGetterIsLookedUpAmongTheAttributes)
{
    // 3017 is the class Root and also the attribute count: the attribute
    // getter answers for count, an element unrelated to the class.
    const char* name = nullptr;
    uint64_t gp = 0;
    ASSERT_EQ(ZefOk, if4().attribute->getGeneralProperties(kRoot, &gp));
    ASSERT_EQ(ZefOk, if4().generalProperties->getName(gp, &name));
    EXPECT_STREQ("count", name);

    // With more classes than attributes, a class handle names no attribute.
    for (int i = 0; i < 5; ++i) {
        new ZefModelRepositoryService::MocIf2Impl(model.child);
    }
    EXPECT_EQ(ZefInvalidArgument, if4().attribute->getGeneralProperties(3023, &gp));
    EXPECT_EQ("Failed to look up Attribute [handle 3023 outside of 6 issued from 3017]", errorText());
}

TEST_F(MocIf2ImplTest, EveryGetterAnswersNotStartedOnceTheServiceIsGone)
{
    stopService();
    uint64_t handle = 0;
    EXPECT_EQ(ZefNotStarted, if4().moc->getMom(kRoot, &handle));
    EXPECT_EQ(ZefNotStarted, if4().moc->getMom(kRoot, nullptr));
    EXPECT_EQ(ZefNotStarted, if2().moc->getAttribute(0, nullptr));
}
