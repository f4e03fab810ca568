#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "EnumWrapper.h"
#include "LogCapture.h"
#include "MomWrapper.h"

using namespace ZefModelRepositoryService;

using Messages = std::vector<std::string>;

namespace {

/// An enumeration E of MOM m, version 1.0.
struct EnumFixture {
    EnumFixture()
    {
        mom.setName("m");
        mom.setVersion("1.0");
        enumeration.setName("E");
        enumeration.setMom(&mom.getStruct());
    }
    /// A new literal, not yet added; an empty value text leaves it without value.
    static LitWrapper* literal(const std::string& name, const std::string& value)
    {
        LitWrapper* lit = new LitWrapper();
        if (!name.empty()) {
            lit->setName(name);
        }
        if (!value.empty()) {
            lit->setValue(value);
        }
        return lit;
    }
    MomWrapper mom;
    EnumWrapper enumeration;
};

} // namespace

TEST(EnumWrapperTest, NewEnumDefaults)
{
    EnumWrapper e;
    const ZefOamSpiEnum& r = e.getStruct();
    EXPECT_EQ(nullptr, r.generalProperties.name);
    EXPECT_EQ(ZefOamSpiStatusCurrent, r.generalProperties.status);
    EXPECT_EQ(nullptr, r.mom);
    EXPECT_EQ(nullptr, r.literals);
    EXPECT_EQ(0u, r.handle);
    EXPECT_EQ(0u, r.generalPropertiesHandle);
    EXPECT_TRUE(e.getLiteralsList().empty());
    static_assert(std::has_virtual_destructor<EnumWrapper>::value, "records are polymorphic");
}

TEST(EnumWrapperTest, KeyOfMomAndName)
{
    ZefTest::LogCapture log;
    EnumFixture f;
    EXPECT_EQ("m~1.0~E", f.enumeration.getId());
    EXPECT_EQ("m~1.0~E", EnumWrapper::getEnumId("m", "1.0", "E"));
    EXPECT_TRUE(log.errors().empty());
}

TEST(EnumWrapperTest, KeyBuilderMessages)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("", EnumWrapper::getEnumId(nullptr, "1", "E"));
    EXPECT_EQ("", EnumWrapper::getEnumId("m", nullptr, "E"));
    EXPECT_EQ("", EnumWrapper::getEnumId("m", "1", nullptr));
    EXPECT_EQ("", EnumWrapper::getEnumId("", "1", "E"));
    EXPECT_EQ("", EnumWrapper::getEnumId("m", "", "E"));
    EXPECT_EQ("", EnumWrapper::getEnumId("m", "1", ""));
    const Messages expected{"Couldn't get enum id, mom name is NULL",   "Couldn't get enum id, mom version is NULL",
                            "Couldn't get enum id, enum name is NULL",  "Couldn't get enum id, mom name isn't set",
                            "Couldn't get enum id, mom version isn't set", "Couldn't get enum id, enum name isn't set"};
    EXPECT_EQ(expected, log.errors());
    EXPECT_EQ(expected, log.traces());
}

TEST(EnumWrapperTest, KeyWithoutMomIsEmptyUntilTheMomIsSet)
{
    ZefTest::LogCapture log;
    EnumWrapper e;
    e.setName("E");
    EXPECT_EQ("", e.getId());
    EXPECT_EQ(Messages{"Couldn't get enum id, mom name is NULL"}, log.errors());
    MomWrapper mom;
    mom.setName("m");
    mom.setVersion("2");
    e.setMom(&mom.getStruct());
    EXPECT_EQ("m~2~E", e.getId());
    // Cached: the key does not follow later changes of the links.
    e.setMom(nullptr);
    EXPECT_EQ("m~2~E", e.getId());
}

TEST(EnumWrapperTest, LiteralsChainInDefinitionOrder)
{
    EnumFixture f;
    LitWrapper* a = EnumFixture::literal("A", "1");
    LitWrapper* b = EnumFixture::literal("B", "2");
    LitWrapper* c = EnumFixture::literal("C", "3");
    EXPECT_EQ(ZefOk, f.enumeration.addLiteral(a));
    EXPECT_EQ(&a->getStruct(), f.enumeration.getStruct().literals);
    EXPECT_EQ(ZefOk, f.enumeration.addLiteral(b));
    EXPECT_EQ(ZefOk, f.enumeration.addLiteral(c));
    const ZefOamSpiEnumLiteral* first = f.enumeration.getStruct().literals;
    EXPECT_EQ(&b->getStruct(), first->next);
    EXPECT_EQ(&c->getStruct(), first->next->next);
    EXPECT_EQ(nullptr, first->next->next->next);
    ASSERT_EQ(3u, f.enumeration.getLiteralsList().size());
    EXPECT_EQ(a, f.enumeration.getLiteralsList().front());
}

TEST(EnumWrapperTest, DuplicateValueIsRefusedWithFailure)
{
    ZefTest::LogCapture log;
    EnumFixture f;
    LitWrapper* a = EnumFixture::literal("A", "1");
    LitWrapper* b = EnumFixture::literal("B", "1");
    EXPECT_EQ(ZefOk, f.enumeration.addLiteral(a));
    EXPECT_EQ(ZefFailure, f.enumeration.addLiteral(b));
    EXPECT_EQ(1u, f.enumeration.getLiteralsList().size());
    EXPECT_EQ(nullptr, a->getStruct().next);
    EXPECT_TRUE(log.errors().empty());
    EXPECT_EQ(Messages{"Could not add literal (m~1.0~E), the value of 1 already exists."}, log.traces());
    delete b;
}

TEST(EnumWrapperTest, ValuesAreComparedBeforeNames)
{
    ZefTest::LogCapture log;
    EnumFixture f;
    f.enumeration.addLiteral(EnumFixture::literal("A", "70000"));
    LitWrapper* sameNameAndValue = EnumFixture::literal("A", "70000");
    EXPECT_EQ(ZefFailure, f.enumeration.addLiteral(sameNameAndValue));
    // Same low 16 bits, different full value: not a duplicate.
    EXPECT_EQ(ZefOk, f.enumeration.addLiteral(EnumFixture::literal("B", "4464")));
    EXPECT_EQ(Messages{"Could not add literal (m~1.0~E), the value of 70000 already exists."}, log.traces());
    delete sameNameAndValue;
}

TEST(EnumWrapperTest, DuplicateNameIsRefused)
{
    EnumFixture f;
    f.enumeration.addLiteral(EnumFixture::literal("A", "1"));
    LitWrapper* again = EnumFixture::literal("A", "2");
    EXPECT_EQ(ZefAlreadyExists, f.enumeration.addLiteral(again));
    EXPECT_EQ(1u, f.enumeration.getLiteralsList().size());
    delete again;
}

TEST(EnumWrapperTest, DuplicatesAmongManyLiteralsAreRefused)
{
    ZefTest::LogCapture log;
    EnumFixture f;
    for (int i = 0; i < 200; ++i) {
        ASSERT_EQ(ZefOk, f.enumeration.addLiteral(EnumFixture::literal("L" + std::to_string(i), std::to_string(i))));
    }
    LitWrapper* sameValue = EnumFixture::literal("NEW", "150");
    LitWrapper* sameName = EnumFixture::literal("L42", "1000");
    EXPECT_EQ(ZefFailure, f.enumeration.addLiteral(sameValue));
    EXPECT_EQ(ZefAlreadyExists, f.enumeration.addLiteral(sameName));
    EXPECT_EQ(ZefOk, f.enumeration.addLiteral(EnumFixture::literal("NEW", "1000")));
    EXPECT_EQ(201u, f.enumeration.getLiteralsList().size());
    EXPECT_EQ(Messages{"Could not add literal (m~1.0~E), the value of 150 already exists."}, log.traces());
    delete sameValue;
    delete sameName;
}

TEST(EnumWrapperTest, LiteralWithoutValueIsRefused)
{
    ZefTest::LogCapture log;
    EnumFixture f;
    LitWrapper* noValue = EnumFixture::literal("A", "");
    EXPECT_EQ(ZefInvalidArgument, f.enumeration.addLiteral(noValue));
    EXPECT_EQ(ZefInvalidArgument, f.enumeration.addLiteral(nullptr));
    EXPECT_TRUE(f.enumeration.getLiteralsList().empty());
    EXPECT_EQ(nullptr, f.enumeration.getStruct().literals);
    EXPECT_EQ(Messages{"Value of the literal (A) is not set"}, log.errors());
    delete noValue;
}

TEST(EnumWrapperTest, LiteralWithoutNameIsRefused)
{
    ZefTest::LogCapture log;
    EnumFixture f;
    LitWrapper* unnamed = EnumFixture::literal("", "1");
    EXPECT_EQ(ZefInvalidArgument, f.enumeration.addLiteral(unnamed));
    EXPECT_TRUE(f.enumeration.getLiteralsList().empty());
    EXPECT_EQ(Messages{"Couldn't get lit id, lit name is NULL"}, log.errors());
    delete unnamed;
}

TEST(EnumWrapperTest, HandlesAreKeptInTheRecord)
{
    EnumWrapper e;
    e.setHandle(3021);
    e.setGeneralPropertiesHandle(3040);
    EXPECT_EQ(3021u, e.getHandle());
    EXPECT_EQ(3021u, e.getStruct().handle);
    EXPECT_EQ(3040u, e.getStruct().generalPropertiesHandle);
}

TEST(EnumWrapperTest, Dump)
{
    EnumFixture f;
    f.enumeration.setDescription("colours");
    f.enumeration.setHidden("h");
    f.enumeration.addLiteral(EnumFixture::literal("RED", "1"));
    f.enumeration.addLiteral(EnumFixture::literal("BLUE", "-2"));
    EXPECT_EQ("-- Enum (E)--\n"
              "Name:              E\n"
              "Description:       colours\n"
              "Specification:     \n"
              "Status:            1\n"
              "Hidden:            h\n"
              "    -- Literal (RED) -- \n"
              "    name:          RED\n"
              "    description:   \n"
              "    specification: \n"
              "    status:        1\n"
              "    hidden:        \n"
              "    value:         1\n"
              "    -- Literal (BLUE) -- \n"
              "    name:          BLUE\n"
              "    description:   \n"
              "    specification: \n"
              "    status:        1\n"
              "    hidden:        \n"
              "    value:         -2\n",
              f.enumeration.toString());
}
