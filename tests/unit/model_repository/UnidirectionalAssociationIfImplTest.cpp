// The unidirectional association getters of the query interface:
// association RootRef 3017 of the hand-built model from Root, end refEnd
// 3019, external.

#include <gtest/gtest.h>

#include "HandBuiltModel.h"

namespace {

class UnidirectionalAssociationIfImplTest : public ZefTest::HandBuiltModelTest {};

} // namespace

TEST_F(UnidirectionalAssociationIfImplTest, LinksToItsMomEndAndGeneralProperties)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, if4().uniDirAssociation->getGeneralProperties(3017, &handle));
    EXPECT_EQ(3043u, handle);
    EXPECT_EQ(ZefOk, if4().uniDirAssociation->getMom(3017, &handle));
    EXPECT_EQ(3017u, handle);
    EXPECT_EQ(ZefOk, if4_1().uniDirAssociation->getAssociationEnd(3017, &handle));
    EXPECT_EQ(3019u, handle);
}

TEST_F(UnidirectionalAssociationIfImplTest, ReadsWhetherItIsExternal)
{
    bool external = false;
    EXPECT_EQ(ZefOk, if4().uniDirAssociation->getIsExternal(3017, &external));
    EXPECT_TRUE(external);
    EXPECT_EQ(ZefInvalidArgument, if4().uniDirAssociation->getIsExternal(3018, &external));
    EXPECT_EQ("Failed to look up Association isExternal [handle 3018 outside of 1 issued from 3017]", errorText());
}

TEST_F(UnidirectionalAssociationIfImplTest, WalksTheAssociationsOfItsOriginClass)
{
    ZefModelRepositoryService::UniDirAssociationWrapper second;
    second.setName("Second");
    second.setMom(&model.mom.getStruct());
    second.setOriginMoc(&model.root.getStruct());
    new ZefModelRepositoryService::UnidirectionalAssociationIfImpl(second);
    model.root.addUniDirWrapper(&second);

    uint64_t next = 0;
    EXPECT_EQ(ZefOk, if4().uniDirAssociation->getNextUnidirectionalAssociationSameMoc(3017, &next));
    EXPECT_EQ(3018u, next);
    next = 3;
    EXPECT_EQ(ZefNotFound, if4().uniDirAssociation->getNextUnidirectionalAssociationSameMoc(3018, &next));
    EXPECT_EQ(3u, next);
}

TEST_F(UnidirectionalAssociationIfImplTest, AnAssociationWithoutOriginClassHasNoNext)
{
    model.rootRef.setOriginMoc(nullptr);
    uint64_t next = 3;
    EXPECT_EQ(ZefNotFound, if4().uniDirAssociation->getNextUnidirectionalAssociationSameMoc(3017, &next));
    EXPECT_EQ(3u, next);
}
