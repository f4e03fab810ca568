// The MOM getters of the query interface, read through the tables of each
// version from the hand-built model.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "HandBuiltModel.h"

namespace {

class MomIf2ImplTest : public ZefTest::HandBuiltModelTest {};

std::vector<std::string> textsOf(const char* const* texts)
{
    std::vector<std::string> result;
    for (; *texts != nullptr; ++texts) {
        result.push_back(*texts);
    }
    return result;
}

} // namespace

TEST_F(MomIf2ImplTest, ReadsTheTextsOfTheMom)
{
    const ZefOamSpiMrMom_4& mom = *if4().mom;
    const char* text = nullptr;
    EXPECT_EQ(ZefOk, mom.getVersion(3017, &text));
    EXPECT_STREQ("1.0", text);
    EXPECT_EQ(ZefOk, mom.getCorrection(3017, &text));
    EXPECT_STREQ("3", text);
    EXPECT_EQ(ZefOk, mom.getRelease(3017, &text));
    EXPECT_STREQ("2", text);
    EXPECT_EQ(ZefOk, mom.getNamespaceUri(3017, &text));
    EXPECT_STREQ("urn:m", text);
    EXPECT_EQ(ZefOk, mom.getNamespacePrefix(3017, &text));
    EXPECT_STREQ("m", text);
    EXPECT_EQ(ZefOk, mom.getDocNo(3017, &text));
    EXPECT_STREQ("1/155", text);
    EXPECT_EQ(ZefOk, mom.getRevision(3017, &text));
    EXPECT_STREQ("A", text);
    EXPECT_EQ(ZefOk, mom.getAuthor(3017, &text));
    EXPECT_STREQ("Ann", text);
    EXPECT_EQ(ZefOk, mom.getOrganization(3017, &text));
    EXPECT_STREQ("Org", text);
}

TEST_F(MomIf2ImplTest, TextsNotGivenAreNull)
{
    ZefModelRepositoryService::MomWrapper bare;
    new ZefModelRepositoryService::MomIf2Impl(bare);
    const char* text = "untouched";
    EXPECT_EQ(ZefOk, if4().mom->getRelease(3018, &text));
    EXPECT_EQ(nullptr, text);
    text = "untouched";
    EXPECT_EQ(ZefOk, if4().mom->getCorrection(3018, &text));
    EXPECT_EQ(nullptr, text);
}

TEST_F(MomIf2ImplTest, LinksToItsGeneralPropertiesAndRootClass)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, if4().mom->getGeneralProperties(3017, &handle));
    EXPECT_EQ(3017u, handle);
    EXPECT_EQ(ZefOk, if4().mom->getRootMoc(3017, &handle));
    EXPECT_EQ(3017u, handle);
    const char* name = nullptr;
    uint64_t gp = 0;
    ASSERT_EQ(ZefOk, if4().moc->getGeneralProperties(handle, &gp));
    ASSERT_EQ(ZefOk, if4().generalProperties->getName(gp, &name));
    EXPECT_STREQ("Root", name);
}

TEST_F(MomIf2ImplTest, AMomWithoutRootOrNextAnswersNotFoundAndLeavesTheHandle)
{
    uint64_t handle = 42;
    EXPECT_EQ(ZefNotFound, if4().mom->getNext(3017, &handle));
    EXPECT_EQ(42u, handle);

    model.mom.setRootMoc(nullptr);
    EXPECT_EQ(ZefNotFound, if4().mom->getRootMoc(3017, &handle));
    EXPECT_EQ(42u, handle);
}

TEST_F(MomIf2ImplTest, WalksTheChainOfMoms)
{
    ZefModelRepositoryService::MomWrapper second;
    second.setName("N");
    new ZefModelRepositoryService::MomIf2Impl(second);
    model.mom.setNext(&second);
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, if4().mom->getNext(3017, &handle));
    EXPECT_EQ(3018u, handle);
}

TEST_F(MomIf2ImplTest, AnUnknownMomWhenLookingForTheRootIsReportedAsRootMom)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefInvalidArgument, if4().mom->getRootMoc(3018, &handle));
    EXPECT_EQ("Failed to look up Root MOM [handle 3018 outside of 1 issued from 3017]", errorText());
    EXPECT_EQ(ZefInvalidArgument, if4().mom->getVersion(3018, nullptr));
    EXPECT_EQ(ZefInvalidArgument, if4().mom->getNext(3016, &handle));
    EXPECT_EQ("Failed to look up MOM [handle 3016 outside of 1 issued from 3017]", errorText());
}

TEST_F(MomIf2ImplTest, ListsTheModelFeatures)
{
    const char* const* features = nullptr;
    ASSERT_EQ(ZefOk, if4().mom->getModelFeatures(3017, &features));
    EXPECT_EQ((std::vector<std::string>{"f1", "f2"}), textsOf(features));
}

TEST_F(MomIf2ImplTest, EveryVersionReadsTheSameMom)
{
    const char* v2 = nullptr;
    const char* v3 = nullptr;
    const char* v4 = nullptr;
    EXPECT_EQ(ZefOk, if2().mom->getAuthor(3017, &v2));
    EXPECT_EQ(ZefOk, if3().mom->getAuthor(3017, &v3));
    EXPECT_EQ(ZefOk, if4().mom->getAuthor(3017, &v4));
    EXPECT_STREQ("Ann", v2);
    EXPECT_STREQ("Ann", v3);
    EXPECT_STREQ("Ann", v4);
}
