#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "LogCapture.h"
#include "MoActionWrapper.h"
#include "MocWrapper.h"
#include "MomWrapper.h"
#include "ParameterWrapper.h"

using namespace ZefModelRepositoryService;

using Messages = std::vector<std::string>;

TEST(ParameterWrapperTest, NewParameterDefaults)
{
    ParameterWrapper p;
    const ZefOamSpiParameter& r = p.getStruct();
    EXPECT_EQ(nullptr, r.generalProperties.name);
    EXPECT_EQ(ZefOamSpiStatusCurrent, r.generalProperties.status);
    EXPECT_EQ(nullptr, r.moAction);
    EXPECT_EQ(ZefMrType3NotSet, r.datatype.type);
    EXPECT_EQ(nullptr, r.datatype.derivedDatatype);
    EXPECT_EQ(nullptr, r.datatype.enumDatatype);
    EXPECT_EQ(nullptr, r.datatype.structDatatype);
    EXPECT_EQ(nullptr, r.datatype.referencedMoc);
    EXPECT_EQ(nullptr, r.datatype.defaultValue);
    EXPECT_EQ(1, r.datatype.multiplicityRange.min);
    EXPECT_EQ(1, r.datatype.multiplicityRange.max);
    EXPECT_FALSE(r.datatype.isOrdered);
    EXPECT_TRUE(r.datatype.isUnique);
    EXPECT_EQ(nullptr, r.next);
    EXPECT_EQ(0u, r.handle);
    EXPECT_EQ(0u, r.generalPropertiesHandle);
    EXPECT_FALSE(p.getIsMinSet());
    EXPECT_FALSE(p.getIsMaxSet());
    EXPECT_EQ(nullptr, p.getNext());
    EXPECT_EQ(nullptr, p.getMoAction());
    static_assert(std::has_virtual_destructor<ParameterWrapper>::value, "records are polymorphic");
}

TEST(ParameterWrapperTest, KeyIsTheNameAlone)
{
    ZefTest::LogCapture log;
    ParameterWrapper p;
    p.setName("p1");
    EXPECT_EQ("p1", p.getId());
    EXPECT_EQ("p1", ParameterWrapper::getParameterId("p1"));
    EXPECT_TRUE(log.errors().empty());
}

TEST(ParameterWrapperTest, KeyBuilderMessages)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("", ParameterWrapper::getParameterId(nullptr));
    EXPECT_EQ("", ParameterWrapper::getParameterId(""));
    ParameterWrapper unnamed;
    EXPECT_EQ("", unnamed.getId());
    const Messages expected{"Can not get id, patameter name is 0.", "Can not get id, parameter name is not set.",
                            "Can not get id, patameter name is 0."};
    EXPECT_EQ(expected, log.errors());
    EXPECT_EQ(expected, log.traces());
}

TEST(ParameterWrapperTest, KeyIsCachedOnFirstUse)
{
    ParameterWrapper p;
    p.setName("p1");
    EXPECT_EQ("p1", p.getId());
    char other[] = "other";
    char* name = p.getStruct().generalProperties.name;
    p.getStruct().generalProperties.name = other;
    EXPECT_EQ("p1", p.getId());
    p.getStruct().generalProperties.name = name;
}

TEST(ParameterWrapperTest, DataTypeSetters)
{
    ParameterWrapper p;
    ZefOamSpiDerivedDatatype ddt{};
    ZefOamSpiEnum enumeration{};
    ZefOamSpiStruct structure{};
    ZefOamSpiMoc moc{};
    EXPECT_EQ(ZefOk, p.setType(ZefMrType3Reference));
    EXPECT_EQ(ZefOk, p.setDerivedDatatype(&ddt));
    EXPECT_EQ(ZefOk, p.setEnumDatatype(&enumeration));
    EXPECT_EQ(ZefOk, p.setStructDatatype(&structure));
    EXPECT_EQ(ZefOk, p.setReferencedMoc(&moc));
    EXPECT_EQ(ZefOk, p.setIsOrdered(true));
    EXPECT_EQ(ZefOk, p.setIsUnique(false));
    const ZefOamSpiDatatypeContainer& d = p.getStruct().datatype;
    EXPECT_EQ(ZefMrType3Reference, d.type);
    EXPECT_EQ(ZefMrType3Reference, p.getType());
    EXPECT_EQ(&ddt, p.getDerivedDatatype());
    EXPECT_EQ(&enumeration, p.getEnumDatatype());
    EXPECT_EQ(&structure, p.getStructDatatype());
    EXPECT_EQ(&moc, p.getReferencedMoc());
    EXPECT_EQ(&d, &p.getDatatype());
    EXPECT_TRUE(d.isOrdered);
    EXPECT_FALSE(d.isUnique);
    bool ordered = false;
    EXPECT_EQ(ZefOk, p.getTypeContainer().getIsOrdered(ordered));
    EXPECT_TRUE(ordered);
}

TEST(ParameterWrapperTest, MultiplicityBoundsAreMarkedWhenGiven)
{
    ParameterWrapper p;
    EXPECT_EQ(ZefInvalidArgument, p.setMin("x"));
    EXPECT_FALSE(p.getIsMinSet());
    EXPECT_EQ(ZefOk, p.setMin("0"));
    EXPECT_TRUE(p.getIsMinSet());
    EXPECT_EQ(0, p.getStruct().datatype.multiplicityRange.min);
    EXPECT_EQ(ZefInvalidArgument, p.setMax("-1"));
    EXPECT_FALSE(p.getIsMaxSet());
    EXPECT_EQ(1, p.getStruct().datatype.multiplicityRange.max);
    EXPECT_EQ(ZefOk, p.setMax(""));
    EXPECT_TRUE(p.getIsMaxSet());
    EXPECT_EQ(32767, p.getStruct().datatype.multiplicityRange.max);
}

TEST(ParameterWrapperTest, DefaultValueFirstValueWins)
{
    ZefTest::LogCapture log;
    ParameterWrapper p;
    EXPECT_EQ(ZefOk, p.setDefaultValue("7"));
    EXPECT_EQ(ZefAlreadyExists, p.setDefaultValue("8"));
    EXPECT_STREQ("7", p.getStruct().datatype.defaultValue);
    EXPECT_EQ(Messages{"Default value (8) is already set to (7)."}, log.errors());
}

TEST(ParameterWrapperTest, ReferenceByNameIsCarried)
{
    ParameterWrapper p;
    p.setRefName("E");
    p.setRefMomName("m");
    p.setRefMomVersion("1.0");
    EXPECT_EQ("m~1.0~E", p.getRefId());
}

TEST(ParameterWrapperTest, ActionLinkAndMomThroughIt)
{
    MomWrapper mom;
    mom.setName("m");
    mom.setVersion("1.0");
    MocWrapper moc;
    moc.setName("C");
    moc.setMom(&mom.getStruct());
    MoActionWrapper action;
    action.setName("act");
    action.setMoc(&moc.getStruct());
    ParameterWrapper p;
    EXPECT_EQ(ZefOk, p.setMoAction(&action));
    EXPECT_EQ(&action, p.getMoAction());
    EXPECT_EQ(&action.getStruct(), p.getStruct().moAction);
    EXPECT_EQ("m", p.getMomName());
    EXPECT_EQ("1.0", p.getMomVersion());
}

TEST(ParameterWrapperTest, MomNameReportsTheMissingLink)
{
    ZefTest::LogCapture log;
    ParameterWrapper p;
    EXPECT_EQ("", p.getMomName());
    MoActionWrapper action;
    p.setMoAction(&action);
    EXPECT_EQ("", p.getMomVersion());
    MocWrapper moc;
    action.setMoc(&moc.getStruct());
    EXPECT_EQ("", p.getMomName());
    EXPECT_EQ(Messages({"MoAction is not set", "MOC is not set", "MOM is not set"}), log.errors());
}

TEST(ParameterWrapperTest, NextLinksWrapperAndRecord)
{
    ParameterWrapper a;
    ParameterWrapper b;
    EXPECT_EQ(ZefOk, a.setNext(&b));
    EXPECT_EQ(&b, a.getNext());
    EXPECT_EQ(&b.getStruct(), a.getStruct().next);
    EXPECT_EQ(ZefOk, a.setNext(nullptr));
    EXPECT_EQ(nullptr, a.getNext());
    EXPECT_EQ(nullptr, a.getStruct().next);
}

TEST(ParameterWrapperTest, HandlesAreKeptInTheRecord)
{
    ParameterWrapper p;
    p.setHandle(3020);
    p.setGeneralPropertiesHandle(3021);
    EXPECT_EQ(3020u, p.getHandle());
    EXPECT_EQ(3020u, p.getStruct().handle);
    EXPECT_EQ(3021u, p.getStruct().generalPropertiesHandle);
}

TEST(ParameterWrapperTest, TypeNames)
{
    EXPECT_EQ("INT8", ParameterWrapper::toString(ZefMrType3Int8));
    EXPECT_EQ("INT16", ParameterWrapper::toString(ZefMrType3Int16));
    EXPECT_EQ("INT32", ParameterWrapper::toString(ZefMrType3Int32));
    EXPECT_EQ("INT64", ParameterWrapper::toString(ZefMrType3Int64));
    EXPECT_EQ("UINT8", ParameterWrapper::toString(ZefMrType3UInt8));
    EXPECT_EQ("UINT16", ParameterWrapper::toString(ZefMrType3UInt16));
    EXPECT_EQ("UINT32", ParameterWrapper::toString(ZefMrType3UInt32));
    EXPECT_EQ("UINT64", ParameterWrapper::toString(ZefMrType3UInt64));
    EXPECT_EQ("STRING", ParameterWrapper::toString(ZefMrType3String));
    EXPECT_EQ("BOOL", ParameterWrapper::toString(ZefMrType3Bool));
    EXPECT_EQ("REFERENCE", ParameterWrapper::toString(ZefMrType3Reference));
    EXPECT_EQ("ENUM", ParameterWrapper::toString(ZefMrType3Enum));
    EXPECT_EQ("DERIVED", ParameterWrapper::toString(ZefMrType3Derived));
    EXPECT_EQ("STRUCT", ParameterWrapper::toString(ZefMrType3Struct));
    EXPECT_EQ("VOID", ParameterWrapper::toString(ZefMrType3Void));
    EXPECT_EQ("DOUBLE", ParameterWrapper::toString(ZefMrType3Double));
    EXPECT_EQ("", ParameterWrapper::toString(ZefMrType3NotSet));
    EXPECT_EQ("", ParameterWrapper::toString(static_cast<ZefOamSpiMrType_3>(17)));
}

TEST(ParameterWrapperTest, Dump)
{
    ParameterWrapper p;
    p.setName("p1");
    p.setDescription("the count");
    p.setType(ZefMrType3Int32);
    p.setDefaultValue("5");
    p.setMax("3");
    EXPECT_EQ("  -- Parameter (p1) --\n"
              "  Name:              p1\n"
              "  Description:       the count\n"
              "  Specification:     \n"
              "  Status:            1\n"
              "  Hidden:            \n"
              "  Type:              3\n"
              "  DefaultValue:      5\n"
              "  MultiplicityMin:   1\n"
              "  MultiplicityMax:   3\n"
              "  IsOrdered:         0\n"
              "  IsUnique:          1\n",
              p.toString("  "));
}
