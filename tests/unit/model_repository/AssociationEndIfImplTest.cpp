// The association end getters of the query interface: ends toChild 3017
// (Child, reserving, 1..3), toRoot 3018 (Root, holding attribute ref) and
// refEnd 3019 (Child, restricted) of the hand-built model.

#include <gtest/gtest.h>

#include "HandBuiltModel.h"

namespace {

class AssociationEndIfImplTest : public ZefTest::HandBuiltModelTest {};

} // namespace

TEST_F(AssociationEndIfImplTest, LinksToItsClassAttributeAndGeneralProperties)
{
    const ZefOamSpiMrAssociationEnd_4& end = *if4().associationEnd;
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, end.getMoc(3017, &handle));
    EXPECT_EQ(3018u, handle);
    EXPECT_EQ(ZefOk, end.getMoc(3018, &handle));
    EXPECT_EQ(3017u, handle);
    EXPECT_EQ(ZefOk, end.getAttribute(3018, &handle));
    EXPECT_EQ(3020u, handle);
    handle = 1;
    EXPECT_EQ(ZefNotFound, end.getAttribute(3017, &handle));
    EXPECT_EQ(1u, handle);
    EXPECT_EQ(ZefOk, end.getGeneralProperties(3019, &handle));
    EXPECT_EQ(3041u, handle);
}

TEST_F(AssociationEndIfImplTest, ReadsNameClassifierFlagsAndMultiplicity)
{
    const ZefOamSpiMrAssociationEnd_4& end = *if4().associationEnd;
    const char* text = nullptr;
    EXPECT_EQ(ZefOk, end.getName(3017, &text));
    EXPECT_STREQ("toChild", text);
    EXPECT_EQ(ZefOk, end.getClassifier(3018, &text));
    EXPECT_STREQ("Root", text);
    bool flag = false;
    EXPECT_EQ(ZefOk, end.isReserving(3017, &flag));
    EXPECT_TRUE(flag);
    EXPECT_EQ(ZefOk, end.isRestricted(3017, &flag));
    EXPECT_FALSE(flag);
    EXPECT_EQ(ZefOk, end.isRestricted(3019, &flag));
    EXPECT_TRUE(flag);
    uint64_t bound = 0;
    EXPECT_EQ(ZefOk, end.getLower(3017, &bound));
    EXPECT_EQ(1u, bound);
    EXPECT_EQ(ZefOk, end.getUpper(3017, &bound));
    EXPECT_EQ(3u, bound);
}

TEST_F(AssociationEndIfImplTest, AnUnknownEndIsReportedWithTheAssociationEndText)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefInvalidArgument, if4().associationEnd->getMoc(3020, &handle));
    EXPECT_EQ("Failed to look up Association End [handle 3020 outside of 3 issued from 3017]", errorText());
}
