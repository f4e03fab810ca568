// The parameter getters of the query interface: parameters force 3017
// (bool) and level 3018 (uint8) of the hand-built model's action reset.

#include <gtest/gtest.h>

#include "HandBuiltModel.h"

namespace {

class ParameterIf2ImplTest : public ZefTest::HandBuiltModelTest {};

} // namespace

TEST_F(ParameterIf2ImplTest, LinksToItsActionGeneralPropertiesAndTypeContainer)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, if4().action->parameterGetAction(3018, &handle));
    EXPECT_EQ(3017u, handle);
    EXPECT_EQ(ZefOk, if4().action->parameterGetGeneralProperties(3018, &handle));
    EXPECT_EQ(3037u, handle);
    EXPECT_EQ(ZefOk, if4().action->parameterGetTypeContainer(3018, &handle));
    EXPECT_EQ(3027u, handle);
}

TEST_F(ParameterIf2ImplTest, WalksTheParametersInDefinitionOrder)
{
    uint64_t next = 0;
    EXPECT_EQ(ZefOk, if2().action->parameterGetNext(3017, &next));
    EXPECT_EQ(3018u, next);
    next = 8;
    EXPECT_EQ(ZefNotFound, if2().action->parameterGetNext(3018, &next));
    EXPECT_EQ(8u, next);
}

TEST_F(ParameterIf2ImplTest, AnUnknownParameterIsReportedWithTheParameterText)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefInvalidArgument, if3().action->parameterGetAction(3019, &handle));
    EXPECT_EQ("Failed to look up Parameter [handle 3019 outside of 2 issued from 3017]", errorText());
}
