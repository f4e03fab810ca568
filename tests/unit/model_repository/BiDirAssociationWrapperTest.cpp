#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "AssociationEndWrapper.h"
#include "BiDirAssociationWrapper.h"
#include "LogCapture.h"
#include "MocWrapper.h"
#include "MomWrapper.h"

using namespace ZefModelRepositoryService;

using Messages = std::vector<std::string>;

namespace {

/// A MOM m, version 1.0, with the classes A and B and the bidirectional
/// associations ab1 and ab2 between them, each with an end at A and one at B.
struct BiDirFixture {
    BiDirFixture()
    {
        mom.setName("m");
        mom.setVersion("1.0");
        a.setName("A");
        a.setMom(&mom.getStruct());
        b.setName("B");
        b.setMom(&mom.getStruct());
        link(ab1, "ab1", atA1, atB1, 3017);
        link(ab2, "ab2", atA2, atB2, 3018);
        a.addBiDirWrapper(&ab1);
        a.addBiDirWrapper(&ab2);
        b.addBiDirWrapper(&ab1);
    }
    void link(BiDirAssociationWrapper& assoc, const std::string& name, AssociationEndWrapper& first,
              AssociationEndWrapper& second, uint64_t handle)
    {
        assoc.setName(name);
        assoc.setMom(&mom.getStruct());
        first.setMoc(&a.getStruct());
        second.setMoc(&b.getStruct());
        assoc.setFirstAssociationEnd(&first.getStruct());
        assoc.setSecondAssociationEnd(&second.getStruct());
        assoc.setHandle(handle);
    }
    MomWrapper mom;
    MocWrapper a;
    MocWrapper b;
    MocWrapper c;
    AssociationEndWrapper atA1;
    AssociationEndWrapper atB1;
    AssociationEndWrapper atA2;
    AssociationEndWrapper atB2;
    BiDirAssociationWrapper ab1;
    BiDirAssociationWrapper ab2;
};

} // namespace

TEST(BiDirAssociationWrapperTest, NewAssociationDefaults)
{
    BiDirAssociationWrapper assoc;
    const ZefOamSpiBiDirAssociation& r = assoc.getStruct();
    EXPECT_EQ(nullptr, r.generalProperties.name);
    EXPECT_EQ(ZefOamSpiStatusCurrent, r.generalProperties.status);
    EXPECT_EQ(nullptr, r.mom);
    EXPECT_EQ(nullptr, r.firstAssociationEnd);
    EXPECT_EQ(nullptr, r.secondAssociationEnd);
    EXPECT_EQ(0u, r.handle);
    EXPECT_EQ(0u, r.generalPropertiesHandle);
    EXPECT_EQ(0u, assoc.getHandle());
    EXPECT_EQ("", assoc.getFirstAssociationEndId());
    EXPECT_EQ("", assoc.getSecondAssociationEndId());
    static_assert(std::has_virtual_destructor<BiDirAssociationWrapper>::value, "records are polymorphic");
}

TEST(BiDirAssociationWrapperTest, KeyOfMomAndName)
{
    ZefTest::LogCapture log;
    MomWrapper mom;
    mom.setName("m");
    mom.setVersion("1.0");
    BiDirAssociationWrapper assoc;
    assoc.setMom(&mom.getStruct());
    EXPECT_EQ("", assoc.getId());
    assoc.setName("ab");
    EXPECT_EQ("m~1.0~ab", assoc.getId());
    assoc.setMom(nullptr);
    EXPECT_EQ("m~1.0~ab", assoc.getId());
    EXPECT_TRUE(log.lines().empty());
}

TEST(BiDirAssociationWrapperTest, KeyNeedsAMom)
{
    BiDirAssociationWrapper assoc;
    assoc.setName("ab");
    EXPECT_EQ("", assoc.getId());
}

TEST(BiDirAssociationWrapperTest, EndKeysFirstValueWins)
{
    BiDirAssociationWrapper assoc;
    EXPECT_EQ(ZefInvalidArgument, assoc.setFirstAssociationEndId(""));
    EXPECT_EQ(ZefOk, assoc.setFirstAssociationEndId("m~1.0~e1~r"));
    EXPECT_EQ(ZefAlreadyExists, assoc.setFirstAssociationEndId("m~1.0~x~r"));
    EXPECT_EQ("m~1.0~e1~r", assoc.getFirstAssociationEndId());
    EXPECT_EQ(ZefInvalidArgument, assoc.setSecondAssociationEndId(""));
    EXPECT_EQ(ZefOk, assoc.setSecondAssociationEndId("m~1.0~e2~r"));
    EXPECT_EQ(ZefAlreadyExists, assoc.setSecondAssociationEndId("m~1.0~y~r"));
    EXPECT_EQ("m~1.0~e2~r", assoc.getSecondAssociationEndId());
}

TEST(BiDirAssociationWrapperTest, EndRecordsAreLinked)
{
    BiDirAssociationWrapper assoc;
    AssociationEndWrapper first;
    AssociationEndWrapper second;
    EXPECT_EQ(ZefOk, assoc.setFirstAssociationEnd(&first.getStruct()));
    EXPECT_EQ(ZefOk, assoc.setSecondAssociationEnd(&second.getStruct()));
    EXPECT_EQ(&first.getStruct(), assoc.getStruct().firstAssociationEnd);
    EXPECT_EQ(&second.getStruct(), assoc.getStruct().secondAssociationEnd);
}

TEST(BiDirAssociationWrapperTest, NextAssociationOfTheClass)
{
    BiDirFixture f;
    uint64_t next = 0;
    EXPECT_EQ(ZefOk, f.ab1.getNextBidirectionalAssociation(f.a, next));
    EXPECT_EQ(3018u, next);
}

TEST(BiDirAssociationWrapperTest, LastAssociationOfTheClassHasNoNext)
{
    ZefTest::LogCapture log;
    BiDirFixture f;
    uint64_t next = 42;
    EXPECT_EQ(ZefNotFound, f.ab2.getNextBidirectionalAssociation(f.a, next));
    EXPECT_EQ(ZefNotFound, f.ab1.getNextBidirectionalAssociation(f.b, next));
    EXPECT_EQ(42u, next);
    EXPECT_TRUE(log.errors().empty());
}

TEST(BiDirAssociationWrapperTest, ClassAtNeitherEndIsReported)
{
    ZefTest::LogCapture log;
    BiDirFixture f;
    uint64_t next = 42;
    EXPECT_EQ(ZefNotFound, f.ab1.getNextBidirectionalAssociation(f.c, next));
    EXPECT_EQ(42u, next);
    EXPECT_EQ(Messages{"Neither first or second end association corresponds to the provided mocHandle"},
              log.errors());
}

TEST(BiDirAssociationWrapperTest, HandlesAreKeptInTheRecord)
{
    BiDirAssociationWrapper assoc;
    assoc.setHandle(3023);
    assoc.setGeneralPropertiesHandle(3080);
    EXPECT_EQ(3023u, assoc.getHandle());
    EXPECT_EQ(3023u, assoc.getStruct().handle);
    EXPECT_EQ(3080u, assoc.getStruct().generalPropertiesHandle);
}

TEST(BiDirAssociationWrapperTest, Dump)
{
    BiDirAssociationWrapper assoc;
    assoc.setName("ab");
    assoc.setSpecification("both ways");
    assoc.setFirstAssociationEndId("m~1.0~e1~ab");
    assoc.setSecondAssociationEndId("m~1.0~e2~ab");
    EXPECT_EQ("-- Bidirectional Association (ab) --\n"
              "Name:              ab\n"
              "Description:       \n"
              "Specification:     both ways\n"
              "Status:            1\n"
              "Hidden:            \n"
              "FirstAssociationEnd:  m~1.0~e1~ab\n"
              "SecondAssociationEnd: m~1.0~e2~ab\n",
              assoc.toString());
}
