#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "LogCapture.h"
#include "StructMemberWrapper.h"

using namespace ZefModelRepositoryService;

using Messages = std::vector<std::string>;

TEST(StructMemberWrapperTest, NewMemberDefaults)
{
    StructMemberWrapper m;
    const ZefOamSpiStructMember& r = m.getStruct();
    EXPECT_EQ(nullptr, r.generalProperties.name);
    EXPECT_EQ(ZefOamSpiStatusCurrent, r.generalProperties.status);
    EXPECT_EQ(ZefMrType3NotSet, r.datatype.type);
    EXPECT_EQ(nullptr, r.datatype.defaultValue);
    EXPECT_EQ(1, r.datatype.multiplicityRange.min);
    EXPECT_EQ(1, r.datatype.multiplicityRange.max);
    EXPECT_FALSE(r.datatype.isOrdered);
    EXPECT_TRUE(r.datatype.isUnique);
    EXPECT_EQ(nullptr, r.next);
    EXPECT_EQ(0u, r.handle);
    EXPECT_EQ(0u, r.generalPropertiesHandle);
    EXPECT_EQ("", m.getMomName());
    EXPECT_EQ("", m.getMomVersion());
    EXPECT_FALSE(m.getIsMinSet());
    EXPECT_FALSE(m.getIsMaxSet());
    static_assert(std::has_virtual_destructor<StructMemberWrapper>::value, "records are polymorphic");
}

TEST(StructMemberWrapperTest, KeyIsTheNameAlone)
{
    ZefTest::LogCapture log;
    StructMemberWrapper m;
    m.setName("x");
    EXPECT_EQ("x", m.getId());
    EXPECT_EQ("x", StructMemberWrapper::getStructMemberId("x"));
    EXPECT_TRUE(log.errors().empty());
}

TEST(StructMemberWrapperTest, KeyBuilderMessages)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("", StructMemberWrapper::getStructMemberId(nullptr));
    EXPECT_EQ("", StructMemberWrapper::getStructMemberId(""));
    const Messages expected{"Struct member name is 0, can not create id.",
                            "Struct member name is not set, can not create id."};
    EXPECT_EQ(expected, log.errors());
    EXPECT_EQ(expected, log.traces());
}

TEST(StructMemberWrapperTest, KeyIsCachedOnFirstUse)
{
    StructMemberWrapper m;
    m.setName("x");
    EXPECT_EQ("x", m.getId());
    char other[] = "y";
    char* name = m.getStruct().generalProperties.name;
    m.getStruct().generalProperties.name = other;
    EXPECT_EQ("x", m.getId());
    m.getStruct().generalProperties.name = name;
}

TEST(StructMemberWrapperTest, MomNameAndVersionAreKept)
{
    StructMemberWrapper m;
    EXPECT_EQ(ZefOk, m.setMomName("m"));
    EXPECT_EQ(ZefOk, m.setMomVersion("1.0"));
    EXPECT_EQ(ZefOk, m.setMomVersion("2.0"));
    EXPECT_EQ("m", m.getMomName());
    EXPECT_EQ("2.0", m.getMomVersion());
}

TEST(StructMemberWrapperTest, DataTypeSetters)
{
    ZefTest::LogCapture log;
    StructMemberWrapper m;
    ZefOamSpiEnum enumeration{};
    EXPECT_EQ(ZefOk, m.setType(ZefMrType3Enum));
    EXPECT_EQ(ZefOk, m.setEnumDatatype(&enumeration));
    EXPECT_EQ(ZefOk, m.setDefaultValue("A"));
    EXPECT_EQ(ZefAlreadyExists, m.setDefaultValue("B"));
    EXPECT_EQ(ZefOk, m.setMin("0"));
    EXPECT_EQ(ZefOk, m.setMax("1"));
    EXPECT_EQ(ZefMrType3Enum, m.getStruct().datatype.type);
    EXPECT_EQ(&enumeration, m.getStruct().datatype.enumDatatype);
    EXPECT_STREQ("A", m.getStruct().datatype.defaultValue);
    EXPECT_TRUE(m.getIsMinSet());
    EXPECT_TRUE(m.getIsMaxSet());
    EXPECT_EQ(Messages{"Default value (B) is already set to (A)."}, log.errors());
    uint64_t handle = 7;
    EXPECT_EQ(ZefNotFound, m.getTypeContainer().getStruct(handle));
    EXPECT_EQ(7u, handle);
}

TEST(StructMemberWrapperTest, NextLinksWrapperAndRecord)
{
    StructMemberWrapper a;
    StructMemberWrapper b;
    EXPECT_EQ(ZefOk, a.setNext(&b));
    EXPECT_EQ(&b, a.getNext());
    EXPECT_EQ(&b.getStruct(), a.getStruct().next);
    EXPECT_EQ(ZefOk, a.setNext(nullptr));
    EXPECT_EQ(nullptr, a.getStruct().next);
}

TEST(StructMemberWrapperTest, HandlesAreKeptInTheRecord)
{
    StructMemberWrapper m;
    m.setHandle(3025);
    m.setGeneralPropertiesHandle(3026);
    EXPECT_EQ(3025u, m.getHandle());
    EXPECT_EQ(3025u, m.getStruct().handle);
    EXPECT_EQ(3026u, m.getStruct().generalPropertiesHandle);
}

TEST(StructMemberWrapperTest, Dump)
{
    StructMemberWrapper m;
    m.setName("x");
    m.setType(ZefMrType3UInt8);
    m.setIsOrdered(true);
    EXPECT_EQ("-- Struct Member (x) --\n"
              "Name:              x\n"
              "Description:       \n"
              "Specification:     \n"
              "Status:            1\n"
              "Hidden:            \n"
              "Type:              5\n"
              "DefaultValue:      \n"
              "MultiplicityMin:   1\n"
              "MultiplicityMax:   1\n"
              "IsOrdered:         1\n"
              "IsUnique:          1\n",
              m.toString());
}
