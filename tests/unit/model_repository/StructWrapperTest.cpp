#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "LogCapture.h"
#include "MomWrapper.h"
#include "StructWrapper.h"

using namespace ZefModelRepositoryService;

using Messages = std::vector<std::string>;

namespace {

/// A struct S of MOM m, version 1.0.
struct StructFixture {
    StructFixture()
    {
        mom.setName("m");
        mom.setVersion("1.0");
        structure.setName("S");
        structure.setMom(&mom.getStruct());
    }
    /// A new member of the given name, not yet added.
    static StructMemberWrapper* member(const std::string& name)
    {
        StructMemberWrapper* m = new StructMemberWrapper();
        m->setName(name);
        return m;
    }
    MomWrapper mom;
    StructWrapper structure;
};

} // namespace

TEST(StructWrapperTest, NewStructDefaults)
{
    StructWrapper s;
    const ZefOamSpiStruct& r = s.getStruct();
    EXPECT_EQ(nullptr, r.generalProperties.name);
    EXPECT_EQ(ZefOamSpiStatusCurrent, r.generalProperties.status);
    EXPECT_EQ(nullptr, r.mom);
    EXPECT_EQ(nullptr, r.members);
    EXPECT_EQ(0u, r.handle);
    EXPECT_EQ(0u, r.generalPropertiesHandle);
    EXPECT_EQ(nullptr, s.getStructMemberListFront());
    bool exclusive = true;
    EXPECT_EQ(ZefOk, s.getIsExclusive(exclusive));
    EXPECT_FALSE(exclusive);
    static_assert(std::has_virtual_destructor<StructWrapper>::value, "records are polymorphic");
}

TEST(StructWrapperTest, KeyOfMomAndName)
{
    ZefTest::LogCapture log;
    StructFixture f;
    EXPECT_EQ("m~1.0~S", f.structure.getId());
    EXPECT_EQ("m~1.0~S", StructWrapper::getStructId("m", "1.0", "S"));
    EXPECT_TRUE(log.errors().empty());
}

TEST(StructWrapperTest, KeyBuilderMessages)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("", StructWrapper::getStructId(nullptr, "1", "S"));
    EXPECT_EQ("", StructWrapper::getStructId("m", nullptr, "S"));
    EXPECT_EQ("", StructWrapper::getStructId("m", "1", nullptr));
    EXPECT_EQ("", StructWrapper::getStructId("", "1", "S"));
    EXPECT_EQ("", StructWrapper::getStructId("m", "", "S"));
    EXPECT_EQ("", StructWrapper::getStructId("m", "1", ""));
    const Messages expected{"Mom name is 'null', can not create struct id.",
                            "Mom version is 'null', can not create struct id.",
                            "Struct name is 'null', can not create struct id.",
                            "Mom name is empty, can not create struct id.",
                            "Mom version is empty, can not create struct id.",
                            "Struct name is empty, can not create struct id."};
    EXPECT_EQ(expected, log.errors());
    EXPECT_EQ(expected, log.traces());
}

TEST(StructWrapperTest, KeyIsCachedOnFirstUse)
{
    StructFixture f;
    EXPECT_EQ("m~1.0~S", f.structure.getId());
    f.structure.setMom(nullptr);
    EXPECT_EQ("m~1.0~S", f.structure.getId());
}

TEST(StructWrapperTest, MembersChainInDefinitionOrder)
{
    StructFixture f;
    StructMemberWrapper* a = StructFixture::member("a");
    StructMemberWrapper* b = StructFixture::member("b");
    EXPECT_EQ(ZefOk, f.structure.addMember(a));
    EXPECT_EQ(&a->getStruct(), f.structure.getStruct().members);
    EXPECT_EQ(ZefOk, f.structure.addMember(b));
    EXPECT_EQ(&b->getStruct(), f.structure.getStruct().members->next);
    EXPECT_EQ(a, f.structure.getStructMemberListFront());
    EXPECT_EQ(2u, f.structure.getStructMemberList().size());
}

TEST(StructWrapperTest, RefusedMembers)
{
    ZefTest::LogCapture log;
    StructFixture f;
    StructMemberWrapper* a = StructFixture::member("a");
    StructMemberWrapper* again = StructFixture::member("a");
    StructMemberWrapper unnamed;
    EXPECT_EQ(ZefOk, f.structure.addMember(a));
    EXPECT_EQ(ZefAlreadyExists, f.structure.addMember(again));
    EXPECT_EQ(ZefInvalidArgument, f.structure.addMember(&unnamed));
    EXPECT_EQ(ZefInvalidArgument, f.structure.addMember(nullptr));
    EXPECT_EQ(1u, f.structure.getStructMemberList().size());
    EXPECT_EQ(nullptr, a->getStruct().next);
    EXPECT_EQ(Messages({"Member (a) already exist.", "Struct member name is 0, can not create id.",
                        "Member id is empty, can not add to the list.",
                        "Pointer of the member is 0, can not add to the list."}),
              log.errors());
    delete again;
}

TEST(StructWrapperTest, ExclusiveFlag)
{
    StructWrapper s;
    EXPECT_EQ(ZefOk, s.setIsExclusive(true));
    bool exclusive = false;
    EXPECT_EQ(ZefOk, s.getIsExclusive(exclusive));
    EXPECT_TRUE(exclusive);
}

TEST(StructWrapperTest, HandlesAreKeptInTheRecord)
{
    StructWrapper s;
    s.setHandle(3017);
    s.setGeneralPropertiesHandle(3050);
    EXPECT_EQ(3017u, s.getHandle());
    EXPECT_EQ(3017u, s.getStruct().handle);
    EXPECT_EQ(3050u, s.getStruct().generalPropertiesHandle);
}

TEST(StructWrapperTest, Dump)
{
    StructFixture f;
    StructMemberWrapper* x = StructFixture::member("x");
    x->setType(ZefMrType3String);
    x->setDefaultValue("abc");
    f.structure.addMember(x);
    EXPECT_EQ("-- Struct (S) --\n"
              "Name:              S\n"
              "Description:       \n"
              "Specification:     \n"
              "Status:            1\n"
              "Hidden:            \n"
              "    -- Struct Member (x) --\n"
              "    Name:              x\n"
              "    Description:       \n"
              "    Specification:     \n"
              "    Status:            1\n"
              "    Hidden:            \n"
              "    Type:              9\n"
              "    DefaultValue:      abc\n"
              "    MultiplicityMin:   1\n"
              "    MultiplicityMax:   1\n"
              "    IsOrdered:         0\n"
              "    IsUnique:          1\n",
              f.structure.toString());
}
