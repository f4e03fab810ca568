// The bidirectional association getters of the query interface:
// association RootChild 3017 of the hand-built model, ends toChild 3017 and
// toRoot 3018, listed with both classes.

#include <gtest/gtest.h>

#include "HandBuiltModel.h"

namespace {

class BidirectionalAssociationIfImplTest : public ZefTest::HandBuiltModelTest {
protected:
    /// A second association between Root and Child, registered after the first.
    void addSecondAssociation()
    {
        second.setName("Second");
        second.setMom(&model.mom.getStruct());
        second.setFirstAssociationEnd(&model.toChild.getStruct());
        second.setSecondAssociationEnd(&model.toRoot.getStruct());
        new ZefModelRepositoryService::BidirectionalAssociationIfImpl(second);
        model.root.addBiDirWrapper(&second);
        model.child.addBiDirWrapper(&second);
    }

    ZefModelRepositoryService::BiDirAssociationWrapper second;
};

} // namespace

TEST_F(BidirectionalAssociationIfImplTest, LinksToItsMomEndsAndGeneralProperties)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, if4().biDirAssociation->getGeneralProperties(3017, &handle));
    EXPECT_EQ(3042u, handle);
    EXPECT_EQ(ZefOk, if4().biDirAssociation->getMom(3017, &handle));
    EXPECT_EQ(3017u, handle);
    EXPECT_EQ(ZefOk, if4_1().biDirAssociation->getFirstAssociation(3017, &handle));
    EXPECT_EQ(3017u, handle);
    EXPECT_EQ(ZefOk, if4_1().biDirAssociation->getSecondAssociation(3017, &handle));
    EXPECT_EQ(3018u, handle);
}

TEST_F(BidirectionalAssociationIfImplTest, WalksTheAssociationsOfAClass)
{
    addSecondAssociation();
    uint64_t next = 0;
    EXPECT_EQ(ZefOk, if4().biDirAssociation->getNextBidirectionalAssociation(3017, 3017, &next));
    EXPECT_EQ(3018u, next);
    EXPECT_EQ(ZefOk, if4_1().biDirAssociation->getNextBidirectionalAssociation(3017, 3018, &next));
    EXPECT_EQ(3018u, next);
    next = 5;
    EXPECT_EQ(ZefNotFound, if4().biDirAssociation->getNextBidirectionalAssociation(3018, 3017, &next));
    EXPECT_EQ(5u, next);
}

TEST_F(BidirectionalAssociationIfImplTest, AnUnknownClassIsReportedWithTheClassText)
{
    uint64_t next = 5;
    EXPECT_EQ(ZefInvalidArgument, if4().biDirAssociation->getNextBidirectionalAssociation(3017, 3019, &next));
    EXPECT_EQ("Failed to look up moc [handle 3019 outside of 2 issued from 3017]", errorText());
    EXPECT_EQ(ZefInvalidArgument, if4().biDirAssociation->getNextBidirectionalAssociation(3018, 3017, &next));
    EXPECT_EQ("Failed to look up Bidirectional Association [handle 3018 outside of 1 issued from 3017]",
              errorText());
    EXPECT_EQ(5u, next);
}
