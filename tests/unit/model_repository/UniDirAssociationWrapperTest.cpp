#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "AssociationEndWrapper.h"
#include "LogCapture.h"
#include "MocWrapper.h"
#include "MomWrapper.h"
#include "UniDirAssociationWrapper.h"

using namespace ZefModelRepositoryService;

using Messages = std::vector<std::string>;

namespace {

/// A MOM m, version 1.0, with the class A and the unidirectional
/// associations u1 and u2 that start at A.
struct UniDirFixture {
    UniDirFixture()
    {
        mom.setName("m");
        mom.setVersion("1.0");
        a.setName("A");
        a.setMom(&mom.getStruct());
        link(u1, "u1", 3017);
        link(u2, "u2", 3018);
        a.addUniDirWrapper(&u1);
        a.addUniDirWrapper(&u2);
    }
    void link(UniDirAssociationWrapper& assoc, const std::string& name, uint64_t handle)
    {
        assoc.setName(name);
        assoc.setMom(&mom.getStruct());
        assoc.setOriginMoc(&a.getStruct());
        assoc.setHandle(handle);
    }
    MomWrapper mom;
    MocWrapper a;
    MocWrapper b;
    UniDirAssociationWrapper u1;
    UniDirAssociationWrapper u2;
};

} // namespace

TEST(UniDirAssociationWrapperTest, NewAssociationDefaults)
{
    UniDirAssociationWrapper assoc;
    const ZefOamSpiUniDirAssociation& r = assoc.getStruct();
    EXPECT_EQ(nullptr, r.generalProperties.name);
    EXPECT_EQ(ZefOamSpiStatusCurrent, r.generalProperties.status);
    EXPECT_EQ(nullptr, r.mom);
    EXPECT_EQ(nullptr, r.associationEnd);
    EXPECT_EQ(nullptr, r.originMoc);
    EXPECT_EQ(0u, r.handle);
    EXPECT_EQ(0u, r.generalPropertiesHandle);
    EXPECT_EQ(0u, assoc.getHandle());
    EXPECT_FALSE(assoc.getIsExternal());
    EXPECT_EQ("", assoc.getAssociationEndId());
    EXPECT_EQ("", assoc.getOriginMocId());
    static_assert(std::has_virtual_destructor<UniDirAssociationWrapper>::value, "records are polymorphic");
}

TEST(UniDirAssociationWrapperTest, KeyOfMomAndName)
{
    ZefTest::LogCapture log;
    MomWrapper mom;
    mom.setName("m");
    mom.setVersion("1.0");
    UniDirAssociationWrapper assoc;
    assoc.setMom(&mom.getStruct());
    EXPECT_EQ("", assoc.getId());
    assoc.setName("u");
    EXPECT_EQ("m~1.0~u", assoc.getId());
    assoc.setMom(nullptr);
    EXPECT_EQ("m~1.0~u", assoc.getId());
    EXPECT_TRUE(log.lines().empty());
}

TEST(UniDirAssociationWrapperTest, EndAndOriginKeysFirstValueWins)
{
    UniDirAssociationWrapper assoc;
    EXPECT_EQ(ZefInvalidArgument, assoc.setAssociationEnd(std::string()));
    EXPECT_EQ(ZefOk, assoc.setAssociationEnd(std::string("m~1.0~e~u")));
    EXPECT_EQ(ZefAlreadyExists, assoc.setAssociationEnd(std::string("m~1.0~f~u")));
    EXPECT_EQ("m~1.0~e~u", assoc.getAssociationEndId());
    EXPECT_EQ(ZefInvalidArgument, assoc.setOriginMocId(""));
    EXPECT_EQ(ZefOk, assoc.setOriginMocId("m~1.0~A"));
    EXPECT_EQ(ZefAlreadyExists, assoc.setOriginMocId("m~1.0~B"));
    EXPECT_EQ("m~1.0~A", assoc.getOriginMocId());
}

TEST(UniDirAssociationWrapperTest, LinksAndExternalFlag)
{
    UniDirAssociationWrapper assoc;
    AssociationEndWrapper end;
    MocWrapper origin;
    EXPECT_EQ(ZefOk, assoc.setAssociationEnd(&end.getStruct()));
    EXPECT_EQ(ZefOk, assoc.setOriginMoc(&origin.getStruct()));
    EXPECT_EQ(&end.getStruct(), assoc.getStruct().associationEnd);
    EXPECT_EQ(&origin.getStruct(), assoc.getStruct().originMoc);
    EXPECT_EQ(ZefOk, assoc.setIsExternal());
    EXPECT_TRUE(assoc.getIsExternal());
    EXPECT_EQ(ZefOk, assoc.setIsExternal(false));
    EXPECT_FALSE(assoc.getIsExternal());
}

TEST(UniDirAssociationWrapperTest, NextAssociationOfTheOrigin)
{
    UniDirFixture f;
    uint64_t next = 0;
    EXPECT_EQ(ZefOk, f.u1.getNextUnidirectionalAssociation(f.a, next));
    EXPECT_EQ(3018u, next);
    next = 42;
    EXPECT_EQ(ZefNotFound, f.u2.getNextUnidirectionalAssociation(f.a, next));
    EXPECT_EQ(42u, next);
}

TEST(UniDirAssociationWrapperTest, ClassOtherThanTheOriginIsReported)
{
    ZefTest::LogCapture log;
    UniDirFixture f;
    uint64_t next = 42;
    EXPECT_EQ(ZefNotFound, f.u1.getNextUnidirectionalAssociation(f.b, next));
    EXPECT_EQ(42u, next);
    EXPECT_EQ(Messages{"Origin moc of the association does not correspond to the provided mocHandle"},
              log.errors());
}

TEST(UniDirAssociationWrapperTest, HandlesAreKeptInTheRecord)
{
    UniDirAssociationWrapper assoc;
    assoc.setHandle(3024);
    assoc.setGeneralPropertiesHandle(3090);
    EXPECT_EQ(3024u, assoc.getHandle());
    EXPECT_EQ(3024u, assoc.getStruct().handle);
    EXPECT_EQ(3090u, assoc.getStruct().generalPropertiesHandle);
}

TEST(UniDirAssociationWrapperTest, Dump)
{
    UniDirAssociationWrapper assoc;
    assoc.setName("u");
    assoc.setAssociationEnd(std::string("m~1.0~e~u"));
    assoc.setIsExternal();
    EXPECT_EQ("-- UniDirAssociation (u) --\n"
              "Name:              u\n"
              "Description:       \n"
              "Specification:     \n"
              "Status:            1\n"
              "Hidden:            \n"
              "associationEnd:     m~1.0~e~u\n"
              "isExternal:        1\n",
              assoc.toString());
}
