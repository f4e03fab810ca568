// The action getters of the query interface: action reset 3017 of the
// hand-built model's class Child (result bool, parameters force and level).

#include <gtest/gtest.h>

#include "HandBuiltModel.h"

namespace {

class ActionIf2ImplTest : public ZefTest::HandBuiltModelTest {};

} // namespace

TEST_F(ActionIf2ImplTest, LinksToItsClassGeneralPropertiesResultAndFirstParameter)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, if4().action->getMoc(3017, &handle));
    EXPECT_EQ(3018u, handle);
    EXPECT_EQ(ZefOk, if4().action->getGeneralProperties(3017, &handle));
    EXPECT_EQ(3035u, handle);
    EXPECT_EQ(ZefOk, if4().action->getTypeContainer(3017, &handle));
    EXPECT_EQ(3025u, handle);
    ZefOamSpiMrType_4 type = ZefMrType4NotSet;
    EXPECT_EQ(ZefOk, if4().typeContainer->getType(handle, &type));
    EXPECT_EQ(ZefMrType4Bool, type);
    EXPECT_EQ(ZefOk, if2().action->getParameter(3017, &handle));
    EXPECT_EQ(3017u, handle);
}

TEST_F(ActionIf2ImplTest, TheOnlyActionOfAClassHasNoNext)
{
    uint64_t next = 4;
    EXPECT_EQ(ZefNotFound, if3().action->getNext(3017, &next));
    EXPECT_EQ(4u, next);
}

TEST_F(ActionIf2ImplTest, AnActionWithoutParametersHasNoFirstParameter)
{
    ZefModelRepositoryService::MoActionWrapper bare;
    new ZefModelRepositoryService::ActionIf2Impl(bare);
    uint64_t parameter = 4;
    EXPECT_EQ(ZefNotFound, if4().action->getParameter(3018, &parameter));
    EXPECT_EQ(4u, parameter);
}

TEST_F(ActionIf2ImplTest, AnUnknownActionIsReportedWithTheActionText)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefInvalidArgument, if4().action->getMoc(3018, &handle));
    EXPECT_EQ("Failed to look up action [handle 3018 outside of 1 issued from 3017]", errorText());
}
