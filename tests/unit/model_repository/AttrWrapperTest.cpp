#include <gtest/gtest.h>

#include <type_traits>

#include "AttrWrapper.h"
#include "DdtWrapper.h"
#include "EnumWrapper.h"
#include "LogCapture.h"
#include "MocWrapper.h"
#include "MomWrapper.h"

using namespace ZefModelRepositoryService;

using Messages = std::vector<std::string>;

namespace {

/// An attribute a of class C of MOM m, version 1.0.
struct AttrFixture {
    AttrFixture()
    {
        mom.setName("m");
        mom.setVersion("1.0");
        moc.setName("C");
        moc.setMom(&mom.getStruct());
        attr.setName("a");
        attr.setMoc(&moc.getStruct());
    }
    MomWrapper mom;
    MocWrapper moc;
    AttrWrapper attr;
};

} // namespace

TEST(AttrWrapperTest, NewAttributeDefaults)
{
    AttrWrapper attr;
    const ZefOamSpiMoAttribute& r = attr.getStruct();
    EXPECT_EQ(nullptr, r.generalProperties.name);
    EXPECT_EQ(ZefOamSpiStatusCurrent, r.generalProperties.status);
    EXPECT_EQ(nullptr, r.moc);
    EXPECT_EQ(ZefMrType3NotSet, r.type);
    EXPECT_EQ(nullptr, r.derivedDatatype);
    EXPECT_EQ(nullptr, r.enumDatatype);
    EXPECT_EQ(nullptr, r.structDatatype);
    EXPECT_EQ(nullptr, r.referencedMoc);
    EXPECT_FALSE(r.isKey);
    EXPECT_FALSE(r.isMandatory);
    EXPECT_TRUE(r.isPersistent);
    EXPECT_FALSE(r.isReadOnly);
    EXPECT_FALSE(r.isOrdered);
    EXPECT_TRUE(r.isUnique);
    EXPECT_EQ(nullptr, r.defaultValue);
    EXPECT_EQ(nullptr, r.unit);
    EXPECT_EQ(nullptr, r.next);
    EXPECT_EQ(0u, r.handle);
    EXPECT_EQ(0u, r.generalPropertiesHandle);
    EXPECT_TRUE(attr.getIsNotifiable());
    EXPECT_FALSE(attr.getIsRestricted());
    EXPECT_FALSE(attr.getIsMinSet());
    EXPECT_FALSE(attr.getIsMaxSet());
    EXPECT_EQ(ZefMrType3NotSet, attr.getType());
    EXPECT_EQ(nullptr, attr.getNext());
    EXPECT_EQ("~~", attr.getRefId());
    static_assert(std::has_virtual_destructor<AttrWrapper>::value, "records are polymorphic");
}

TEST(AttrWrapperTest, KeyOfMomClassAndName)
{
    ZefTest::LogCapture log;
    AttrFixture f;
    EXPECT_EQ("m~1.0~C~a", f.attr.getId());
    EXPECT_EQ("m~1.0~C~a", AttrWrapper::getAttrId("m", "1.0", "C", "a"));
    EXPECT_EQ("m~1.0~C~a", AttrWrapper::getAttrId(&f.attr.getStruct()));
    EXPECT_TRUE(log.errors().empty());
}

TEST(AttrWrapperTest, KeyBuilderMessages)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("", AttrWrapper::getAttrId(nullptr, "1", "C", "a"));
    EXPECT_EQ("", AttrWrapper::getAttrId("m", nullptr, "C", "a"));
    EXPECT_EQ("", AttrWrapper::getAttrId("m", "1", nullptr, "a"));
    EXPECT_EQ("", AttrWrapper::getAttrId("m", "1", "C", nullptr));
    EXPECT_EQ("", AttrWrapper::getAttrId("", "1", "C", "a"));
    EXPECT_EQ("", AttrWrapper::getAttrId("m", "", "C", "a"));
    EXPECT_EQ("", AttrWrapper::getAttrId("m", "1", "", "a"));
    EXPECT_EQ("", AttrWrapper::getAttrId("m", "1", "C", ""));
    EXPECT_EQ(Messages({"Couldn't get attribute id, momName is NULL", "Couldn't get attribute id, momVersion is NULL",
                        "Couldn't get attribute id, moc name is NULL", "Couldn't get attribute id, attr name is NULL",
                        "Couldn't get attribute id, momName is no set",
                        "Couldn't get attribute id, momVersion is no set",
                        "Couldn't get attribute id, moc name is not set",
                        "Couldn't get attribute id, attribute name is not set"}),
              log.errors());
    EXPECT_EQ(8u, log.traces().size());
}

TEST(AttrWrapperTest, RecordKeyBuilderMessages)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("", AttrWrapper::getAttrId(static_cast<const ZefOamSpiMoAttribute*>(nullptr)));
    AttrWrapper attr;
    attr.setName("a");
    EXPECT_EQ("", AttrWrapper::getAttrId(&attr.getStruct()));
    MocWrapper moc;
    moc.setName("C");
    attr.setMoc(&moc.getStruct());
    EXPECT_EQ("", attr.getId());
    EXPECT_EQ(Messages({"Couldn't get attribute id, attr is NULL", "Couldn't get attribute id, attr->moc is NULL",
                        "Couldn't get attribute id, attr->moc->mom is NULL"}),
              log.errors());
    // An empty key is not cached: once the links exist the key is built.
    MomWrapper mom;
    mom.setName("m");
    mom.setVersion("2");
    moc.setMom(&mom.getStruct());
    EXPECT_EQ("m~2~C~a", attr.getId());
}

TEST(AttrWrapperTest, FlagsAndLinks)
{
    AttrWrapper attr;
    ZefOamSpiDerivedDatatype ddt{};
    ZefOamSpiEnum enumeration{};
    ZefOamSpiStruct structure{};
    ZefOamSpiMoc moc{};
    EXPECT_EQ(ZefOk, attr.setType(ZefMrType3Struct));
    EXPECT_EQ(ZefMrType3Struct, attr.getStruct().type);
    EXPECT_EQ(ZefMrType3Struct, attr.getType());
    EXPECT_EQ(ZefOk, attr.setDerivedDatatype(&ddt));
    EXPECT_EQ(ZefOk, attr.setEnumDatatype(&enumeration));
    EXPECT_EQ(ZefOk, attr.setStructDatatype(&structure));
    EXPECT_EQ(ZefOk, attr.setReferencedMoc(&moc));
    EXPECT_EQ(&ddt, attr.getStruct().derivedDatatype);
    EXPECT_EQ(&enumeration, attr.getStruct().enumDatatype);
    EXPECT_EQ(&structure, attr.getStruct().structDatatype);
    EXPECT_EQ(&moc, attr.getStruct().referencedMoc);
    EXPECT_EQ(ZefOk, attr.setIsKey(true));
    EXPECT_EQ(ZefOk, attr.setIsMandatory(true));
    EXPECT_EQ(ZefOk, attr.setIsPersistent(false));
    EXPECT_EQ(ZefOk, attr.setIsReadOnly(true));
    EXPECT_EQ(ZefOk, attr.setIsOrdered(true));
    EXPECT_EQ(ZefOk, attr.setIsUnique(false));
    EXPECT_EQ(ZefOk, attr.setIsRestricted(true));
    EXPECT_EQ(ZefOk, attr.setIsNotifiable(false));
    const ZefOamSpiMoAttribute& r = attr.getStruct();
    EXPECT_TRUE(r.isKey);
    EXPECT_TRUE(r.isMandatory);
    EXPECT_FALSE(r.isPersistent);
    EXPECT_TRUE(r.isReadOnly);
    EXPECT_TRUE(r.isOrdered);
    EXPECT_FALSE(r.isUnique);
    EXPECT_TRUE(attr.getIsRestricted());
    EXPECT_FALSE(attr.getIsNotifiable());
    attr.setHandle(3017);
    attr.setGeneralPropertiesHandle(3018);
    EXPECT_EQ(3017u, r.handle);
    EXPECT_EQ(3018u, r.generalPropertiesHandle);
    EXPECT_EQ(3017u, attr.getHandle());
}

TEST(AttrWrapperTest, MultiplicityBounds)
{
    AttrWrapper attr;
    EXPECT_EQ(ZefInvalidArgument, attr.setMin("x"));
    EXPECT_FALSE(attr.getIsMinSet());
    EXPECT_EQ(1, attr.getStruct().multiplicityRange.min);
    EXPECT_EQ(ZefOk, attr.setMin("0"));
    EXPECT_TRUE(attr.getIsMinSet());
    EXPECT_EQ(0, attr.getStruct().multiplicityRange.min);
    EXPECT_EQ(ZefInvalidArgument, attr.setMax("-2"));
    EXPECT_FALSE(attr.getIsMaxSet());
    EXPECT_EQ(1, attr.getStruct().multiplicityRange.max);
    EXPECT_EQ(ZefOk, attr.setMax(""));
    EXPECT_TRUE(attr.getIsMaxSet());
    EXPECT_EQ(32767, attr.getStruct().multiplicityRange.max);
    EXPECT_EQ(ZefOk, attr.setMax("5"));
    EXPECT_EQ(5, attr.getStruct().multiplicityRange.max);
}

TEST(AttrWrapperTest, MultiplicityBoundsAsNumbers)
{
    AttrWrapper attr;
    attr.setMinValue(0);
    EXPECT_TRUE(attr.getIsMinSet());
    EXPECT_FALSE(attr.getIsMaxSet());
    EXPECT_EQ(0, attr.getStruct().multiplicityRange.min);
    EXPECT_EQ(1, attr.getStruct().multiplicityRange.max);
    attr.setMaxValue(7);
    EXPECT_TRUE(attr.getIsMaxSet());
    EXPECT_EQ(7, attr.getStruct().multiplicityRange.max);
    EXPECT_EQ(0, attr.getStruct().multiplicityRange.min);
}

TEST(AttrWrapperTest, DefaultValueAndUnitFirstValueWins)
{
    ZefTest::LogCapture log;
    AttrWrapper attr;
    EXPECT_EQ(ZefOk, attr.setDefaultValue("1"));
    EXPECT_EQ(ZefAlreadyExists, attr.setDefaultValue("2"));
    EXPECT_STREQ("1", attr.getStruct().defaultValue);
    EXPECT_EQ(ZefOk, attr.setUnit("ms"));
    EXPECT_EQ(ZefAlreadyExists, attr.setUnit("s"));
    EXPECT_STREQ("ms", attr.getStruct().unit);
    EXPECT_EQ(Messages{"Default value (2) is already set to (1)."}, log.errors());
}

TEST(AttrWrapperTest, NextLinksWrapperAndRecord)
{
    ZefTest::LogCapture log;
    AttrWrapper a;
    AttrWrapper b;
    EXPECT_EQ(ZefOk, a.setNext(&b));
    EXPECT_EQ(&b, a.getNext());
    EXPECT_EQ(&b.getStruct(), a.getStruct().next);
    EXPECT_TRUE(log.traces().empty());
    EXPECT_EQ(ZefOk, a.setNext(nullptr));
    EXPECT_EQ(nullptr, a.getNext());
    EXPECT_EQ(nullptr, a.getStruct().next);
    EXPECT_EQ(Messages{"This happens only at init of Attribute list for a Moc"}, log.traces());
    EXPECT_TRUE(log.errors().empty());
}

TEST(AttrWrapperTest, MomNameAndVersionThroughTheClass)
{
    ZefTest::LogCapture log;
    AttrFixture f;
    EXPECT_EQ("m", f.attr.getMomName());
    EXPECT_EQ("1.0", f.attr.getMomVersion());
    AttrWrapper classless;
    EXPECT_EQ("", classless.getMomName());
    EXPECT_EQ("", classless.getMomVersion());
    MocWrapper momless;
    classless.setMoc(&momless.getStruct());
    EXPECT_EQ("", classless.getMomName());
    EXPECT_EQ("", classless.getMomVersion());
    EXPECT_EQ(Messages({"MOC is not set", "MOC is not set", "MOM is not set", "MOM is not set"}), log.errors());
}

TEST(AttrWrapperTest, IsItsOwnReferenceByName)
{
    AttrWrapper attr;
    RefId& ref = attr;
    ref.setRefName("E");
    ref.setRefMomName("m");
    ref.setRefMomVersion("1.0");
    EXPECT_EQ("m~1.0~E", attr.getRefId());
}

TEST(AttrWrapperTest, TypeContainerReadsTheAttribute)
{
    AttrFixture f;
    ZefOamSpiEnum enumeration{};
    enumeration.handle = 3033;
    f.attr.setType(ZefMrType3Enum);
    f.attr.setEnumDatatype(&enumeration);
    f.attr.setMin("0");
    f.attr.setMax("*");
    f.attr.setIsOrdered(true);
    TypeContainerWrapper& tc = f.attr.getTypeContainer();
    ZefOamSpiMrType_3 type = ZefMrType3NotSet;
    EXPECT_EQ(ZefOk, tc.getType(type));
    EXPECT_EQ(ZefMrType3Enum, type);
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, tc.getEnum(handle));
    EXPECT_EQ(3033u, handle);
    EXPECT_EQ(ZefNotFound, tc.getStruct(handle));
    uint64_t bound = 9;
    EXPECT_EQ(ZefOk, tc.getMultiplicityMin(bound));
    EXPECT_EQ(0u, bound);
    EXPECT_EQ(ZefOk, tc.getMultiplicityMax(bound));
    EXPECT_EQ(32767u, bound);
    bool flag = false;
    EXPECT_EQ(ZefOk, tc.getIsOrdered(flag));
    EXPECT_TRUE(flag);
    EXPECT_EQ(ZefOk, tc.getIsUnique(flag));
    EXPECT_TRUE(flag);
    EXPECT_EQ(ZefOk, tc.addDefaultValue("A"));
    const char* const* values = nullptr;
    tc.getDefaultValue(values);
    EXPECT_STREQ("A", values[0]);
    EXPECT_EQ(nullptr, values[1]);
}

TEST(AttrWrapperTest, DumpOfABasicAttribute)
{
    ZefTest::LogCapture log;
    AttrFixture f;
    AttrWrapper next;
    next.setName("b");
    next.setMoc(&f.moc.getStruct());
    f.attr.setDescription("desc");
    f.attr.setStatus(ZefOamSpiStatusObsolete);
    f.attr.setType(ZefMrType3UInt8);
    f.attr.setIsKey(true);
    f.attr.setIsMandatory(true);
    f.attr.setMin("0");
    f.attr.setMax("4");
    f.attr.setDefaultValue("3");
    f.attr.setUnit("s");
    f.attr.setNext(&next);
    EXPECT_EQ("    -- Attribute (a) --\n"
              "    Name:              a\n"
              "    Description:       desc\n"
              "    Specification:     \n"
              "    Status:            3\n"
              "    Hidden:            \n"
              "    Moc:               m~1.0~C\n"
              "    Type:              5\n"
              "    IsKey:             1\n"
              "    IsMandatory:       1\n"
              "    IsPersistent:      1\n"
              "    IsReadOnly:        0\n"
              "    IsRetricted:       0\n"
              "    IsNotifiable:  1\n"
              "    MultiplicityMin:   0\n"
              "    MultiplicityMax:   4\n"
              "    IsOrdered:         0\n"
              "    IsUnique:          1\n"
              "    DefaultValue:      3\n"
              "    Unit:              s\n"
              "    NextAttribute:     m~1.0~C~b\n",
              f.attr.toString());
    EXPECT_TRUE(log.errors().empty());
}

TEST(AttrWrapperTest, DumpOfAReferenceToAClass)
{
    AttrFixture f;
    f.attr.setType(ZefMrType3Reference);
    f.attr.setIsRestricted(true);
    f.attr.setIsNotifiable(false);
    f.attr.setIsPersistent(false);
    f.attr.setIsReadOnly(true);
    f.attr.setReferencedMoc(&f.moc.getStruct());
    const std::string expected = "    -- Attribute (a) --\n"
                                 "    Name:              a\n"
                                 "    Description:       \n"
                                 "    Specification:     \n"
                                 "    Status:            1\n"
                                 "    Hidden:            \n"
                                 "    Moc:               m~1.0~C\n"
                                 "    Type:              11\n"
                                 "    ReferencedMoc:     m~1.0~C\n"
                                 "    IsKey:             0\n"
                                 "    IsMandatory:       0\n"
                                 "    IsPersistent:      0\n"
                                 "    IsReadOnly:        1\n"
                                 "    IsRetricted:       1\n"
                                 "    IsNotifiable:  0\n"
                                 "    MultiplicityMin:   1\n"
                                 "    MultiplicityMax:   1\n"
                                 "    IsOrdered:         0\n"
                                 "    IsUnique:          1\n"
                                 "    DefaultValue:      \n"
                                 "    Unit:              \n"
                                 "    NextAttribute:     \n";
    EXPECT_EQ(expected, f.attr.toString());
}

TEST(AttrWrapperTest, DumpOfAReferenceToAnyClass)
{
    ZefTest::LogCapture log;
    AttrFixture f;
    f.attr.setType(ZefMrType3Reference);
    EXPECT_NE(std::string::npos, f.attr.toString().find("    Type:              11\n"
                                                        "    ReferencedMoc:     ManagedObject\n"
                                                        "    IsKey:             0\n"));
    MocWrapper nameless;
    f.attr.setReferencedMoc(&nameless.getStruct());
    EXPECT_NE(std::string::npos, f.attr.toString().find("    ReferencedMoc:     ManagedObject\n"));
    // The any-class record of the repository: named, but of no MOM.
    MocWrapper anyClass;
    anyClass.setName("ManagedObject");
    f.attr.setReferencedMoc(&anyClass.getStruct());
    EXPECT_NE(std::string::npos, f.attr.toString().find("    ReferencedMoc:     ManagedObject\n"));
    EXPECT_TRUE(log.errors().empty());
}

TEST(AttrWrapperTest, DumpOfAStructAttributeHasNoTypeLine)
{
    AttrFixture f;
    f.attr.setType(ZefMrType3Struct);
    EXPECT_NE(std::string::npos, f.attr.toString().find("    Type:              14\n"
                                                        "    IsKey:             0\n"));
}

TEST(AttrWrapperTest, DumpOfAnEnumAttribute)
{
    ZefTest::LogCapture log;
    AttrFixture f;
    EnumWrapper enumeration;
    enumeration.setName("E");
    enumeration.setMom(&f.mom.getStruct());
    f.attr.setType(ZefMrType3Enum);
    f.attr.setEnumDatatype(&enumeration.getStruct());
    EXPECT_NE(std::string::npos, f.attr.toString().find("    Type:              12\n"
                                                        "    EnumDatatype:      m~1.0~E\n"
                                                        "    IsKey:             0\n"));
    EXPECT_TRUE(log.errors().empty());
}

TEST(AttrWrapperTest, DumpOfADerivedAttribute)
{
    ZefTest::LogCapture log;
    AttrFixture f;
    DdtWrapper ddt;
    ddt.setName("D");
    ddt.setMom(&f.mom.getStruct());
    f.attr.setType(ZefMrType3Derived);
    f.attr.setDerivedDatatype(&ddt.getStruct());
    EXPECT_NE(std::string::npos, f.attr.toString().find("    Type:              13\n"
                                                        "    DerivedDatatype:   m~1.0~D\n"
                                                        "    IsKey:             0\n"));
    EXPECT_TRUE(log.errors().empty());
}

TEST(AttrWrapperTest, DumpOfAnUnresolvedEnumAttributeLeavesTheKeyEmpty)
{
    ZefTest::LogCapture log;
    AttrFixture f;
    f.attr.setType(ZefMrType3Enum);
    EXPECT_NE(std::string::npos, f.attr.toString().find("    EnumDatatype:      \n"));
    EXPECT_TRUE(log.errors().empty());
}
