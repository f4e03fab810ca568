// The entry points of the query interface: where a reader starts, read from
// the repository of the started service.

#include <gtest/gtest.h>

#include "If2TestSupport.h"
#include "MocIf2Impl.h"
#include "MocWrapper.h"
#include "ModelRepository.h"
#include "MomIf2Impl.h"
#include "MomWrapper.h"

namespace {

using namespace ZefModelRepositoryService;

class EntryIf2ImplTest : public ZefTest::If2Test {
protected:
    ModelRepository& repository() { return *service->getModelRepository(); }

    /// A MOM "M" 1.0 with a class "Root", filed in the repository and
    /// registered with the query interface (both handles 3017).
    void addModel()
    {
        auto* mom = new MomWrapper();
        mom->setName("M");
        mom->setVersion("1.0");
        ASSERT_EQ(ZefOk, repository().addMom(mom));
        new MomIf2Impl(*mom);
        auto* root = new MocWrapper();
        root->setName("Root");
        root->setMom(&mom->getStruct());
        ASSERT_EQ(ZefOk, repository().addMoc(root));
        new MocIf2Impl(*root);
        repository().buildMocNameCache();
    }
};

} // namespace

TEST_F(EntryIf2ImplTest, GetMomHandsOutTheFirstMom)
{
    addModel();
    uint64_t mom = 0;
    EXPECT_EQ(ZefOk, if2().entry->getMom(&mom));
    EXPECT_EQ(3017u, mom);
    mom = 0;
    EXPECT_EQ(ZefOk, if4().entry->getMom(&mom));
    EXPECT_EQ(3017u, mom);
}

TEST_F(EntryIf2ImplTest, GetMomWithoutAnyMomAnswersTheRepositorysNotFound)
{
    uint64_t mom = 8;
    EXPECT_EQ(ZefNotFound, if3().entry->getMom(&mom));
    EXPECT_EQ(8u, mom);
}

TEST_F(EntryIf2ImplTest, GetMocFindsAClassByMimNameVersionAndClassName)
{
    addModel();
    uint64_t moc = 0;
    EXPECT_EQ(ZefOk, if4().entry->getMoc("M", "1.0", "Root", &moc));
    EXPECT_EQ(3017u, moc);
    moc = 6;
    EXPECT_EQ(ZefNotFound, if4().entry->getMoc("M", "1.0", "Other", &moc));
    EXPECT_EQ(ZefNotFound, if2().entry->getMoc("M", "2.0", "Root", &moc));
    EXPECT_EQ(ZefNotFound, if3().entry->getMoc(nullptr, "1.0", "Root", &moc));
    EXPECT_EQ(6u, moc);
    EXPECT_EQ(ZefInvalidArgument, if4().entry->getMoc("M", "1.0", "Root", nullptr));
}

TEST_F(EntryIf2ImplTest, GetMocFromDnFindsTheClassADistinguishedNameLeadsTo)
{
    addModel();
    uint64_t moc = 0;
    EXPECT_EQ(ZefOk, if4().entry->getMocFromDn("Root=1", false, &moc));
    EXPECT_EQ(3017u, moc);
    moc = 2;
    EXPECT_EQ(ZefNotFound, if3().entry->getMocFromDn("Other=1", false, &moc));
    EXPECT_EQ(2u, moc);
    EXPECT_EQ(ZefInvalidArgument, if4().entry->getMocFromDn(nullptr, false, &moc));
    EXPECT_EQ(ZefInvalidArgument, if4().entry->getMocFromDn("Root=1", false, nullptr));
    EXPECT_EQ(2u, moc);
}

TEST_F(EntryIf2ImplTest, GetRootWithoutTreeRootAnswersNotFound)
{
    addModel();
    uint64_t root = 4;
    EXPECT_EQ(ZefNotFound, if2().entry->getRoot(&root));
    EXPECT_EQ(ZefNotFound, if4().entry->getRoot(&root));
    EXPECT_EQ(4u, root);
}

TEST_F(EntryIf2ImplTest, TheEntryPointsAnswerNotStartedWithoutService)
{
    stopService();
    uint64_t handle = 1;
    EXPECT_EQ(ZefNotStarted, if4().entry->getMom(&handle));
    EXPECT_EQ(ZefNotStarted, if4().entry->getMoc("M", "1.0", "Root", &handle));
    EXPECT_EQ(ZefNotStarted, if4().entry->getMocFromDn("Root=1", true, &handle));
    EXPECT_EQ(ZefNotStarted, if4().entry->getRoot(&handle));
    EXPECT_EQ(1u, handle);
}

TEST_F(EntryIf2ImplTest, TheEntryPointsAnswerNotStartedBeforeStart)
{
    stopService();
    service.reset(new ModelRepositoryService(true));
    uint64_t handle = 1;
    EXPECT_EQ(ZefNotStarted, if2().entry->getMom(&handle));
    EXPECT_EQ(ZefNotStarted, if3().entry->getRoot(nullptr));
    EXPECT_EQ(ZefNotStarted, if2().moc->getMom(3017, &handle));
    EXPECT_EQ(1u, handle);
}

TEST_F(EntryIf2ImplTest, TheLookupsByNameOfVersion4_1AlwaysAnswerNotFound)
{
    addModel();
    uint64_t handle = 1;
    EXPECT_EQ(ZefNotFound, if4_1().entry->getEnum("M", "1.0", "E", &handle));
    EXPECT_EQ(ZefNotFound, if4_1().entry->getBiDirAssociation("M", "1.0", "A", &handle));
    EXPECT_EQ(ZefNotFound, if4_1().entry->getUniDirAssociation(nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(1u, handle);
}
