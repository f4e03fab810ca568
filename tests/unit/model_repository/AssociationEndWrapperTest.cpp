#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "AssociationEndWrapper.h"
#include "AttrWrapper.h"
#include "LogCapture.h"
#include "MocWrapper.h"
#include "MomWrapper.h"

using namespace ZefModelRepositoryService;

namespace {

/// An end e of the relationship r of MOM m, version 1.0, at class K of mim n.
struct EndFixture {
    EndFixture()
    {
        mom.setName("m");
        mom.setVersion("1.0");
        end.setName("e");
        end.setMom(&mom.getStruct());
        end.setIdentifier("r");
        end.setClassifier("K");
        end.setMimName("n");
    }
    MomWrapper mom;
    AssociationEndWrapper end;
};

} // namespace

TEST(AssociationEndWrapperTest, NewEndDefaults)
{
    AssociationEndWrapper end;
    const ZefOamSpiAssociationEnd& r = end.getStruct();
    EXPECT_EQ(nullptr, r.generalProperties.name);
    EXPECT_EQ(ZefOamSpiStatusCurrent, r.generalProperties.status);
    EXPECT_EQ(nullptr, r.mom);
    EXPECT_FALSE(r.isReserving);
    EXPECT_FALSE(r.isRestricted);
    EXPECT_EQ(0, r.lower);
    EXPECT_EQ(32767, r.upper);
    EXPECT_EQ(nullptr, r.moc);
    EXPECT_EQ(nullptr, r.attribute);
    EXPECT_EQ(0u, r.handle);
    EXPECT_EQ(0u, r.generalPropertiesHandle);
    EXPECT_EQ("", end.getIdentifier());
    EXPECT_EQ("", end.getClassifier());
    EXPECT_EQ("", end.getMimName());
    EXPECT_EQ("", end.getMimVersion());
    EXPECT_FALSE(end.reserving());
    EXPECT_FALSE(end.restricted());
    static_assert(std::has_virtual_destructor<AssociationEndWrapper>::value, "records are polymorphic");
}

TEST(AssociationEndWrapperTest, KeyOfMomNameAndIdentifier)
{
    ZefTest::LogCapture log;
    EndFixture f;
    EXPECT_EQ("m~1.0~e~r", f.end.getId());
    EXPECT_TRUE(log.errors().empty());
}

TEST(AssociationEndWrapperTest, KeyNeedsEveryPart)
{
    ZefTest::LogCapture log;
    MomWrapper mom;
    mom.setName("m");
    AssociationEndWrapper end;
    EXPECT_EQ("", end.getId());
    end.setName("e");
    EXPECT_EQ("", end.getId());
    end.setMom(&mom.getStruct());
    EXPECT_EQ("", end.getId());
    mom.setVersion("1.0");
    EXPECT_EQ("", end.getId());
    end.setIdentifier("r");
    EXPECT_EQ("m~1.0~e~r", end.getId());
    // Cached once built.
    end.setMom(nullptr);
    EXPECT_EQ("m~1.0~e~r", end.getId());
    EXPECT_TRUE(log.lines().empty());
}

TEST(AssociationEndWrapperTest, IdentifierAndClassifierFirstValueWins)
{
    AssociationEndWrapper end;
    EXPECT_EQ(ZefInvalidArgument, end.setIdentifier(""));
    EXPECT_EQ(ZefOk, end.setIdentifier("r"));
    EXPECT_EQ(ZefAlreadyExists, end.setIdentifier("s"));
    EXPECT_EQ(ZefInvalidArgument, end.setIdentifier(""));
    EXPECT_EQ("r", end.getIdentifier());
    EXPECT_EQ(ZefInvalidArgument, end.setClassifier(""));
    EXPECT_EQ(ZefOk, end.setClassifier("K"));
    EXPECT_EQ(ZefAlreadyExists, end.setClassifier("L"));
    EXPECT_EQ("K", end.getClassifier());
}

TEST(AssociationEndWrapperTest, MimNameAndVersionKeepTheLastValue)
{
    AssociationEndWrapper end;
    EXPECT_EQ(ZefOk, end.setMimName("a"));
    EXPECT_EQ(ZefOk, end.setMimName("b"));
    EXPECT_EQ(ZefOk, end.setMimVersion("1"));
    EXPECT_EQ(ZefOk, end.setMimVersion("2"));
    EXPECT_EQ("b", end.getMimName());
    EXPECT_EQ("2", end.getMimVersion());
}

TEST(AssociationEndWrapperTest, Multiplicity)
{
    AssociationEndWrapper end;
    EXPECT_EQ(ZefOk, end.setLower("1"));
    EXPECT_EQ(ZefOk, end.setUpper("3"));
    EXPECT_EQ(1, end.getLower());
    EXPECT_EQ(3, end.getUpper());
    EXPECT_EQ(ZefInvalidArgument, end.setLower("-1"));
    EXPECT_EQ(ZefInvalidArgument, end.setLower("one"));
    EXPECT_EQ(ZefInvalidArgument, end.setUpper("-2"));
    EXPECT_EQ(ZefInvalidArgument, end.setUpper("32768"));
    EXPECT_EQ(1, end.getLower());
    EXPECT_EQ(3, end.getUpper());
    EXPECT_EQ(ZefOk, end.setLower(""));
    EXPECT_EQ(ZefOk, end.setUpper(""));
    EXPECT_EQ(0, end.getStruct().lower);
    EXPECT_EQ(32767, end.getStruct().upper);
    EXPECT_EQ(ZefOk, end.setUpper("*"));
    EXPECT_EQ(32767, end.getUpper());
}

TEST(AssociationEndWrapperTest, Flags)
{
    AssociationEndWrapper end;
    EXPECT_EQ(ZefOk, end.setIsReserving());
    EXPECT_EQ(ZefOk, end.setIsRestricted());
    EXPECT_TRUE(end.reserving());
    EXPECT_TRUE(end.restricted());
    EXPECT_TRUE(end.getStruct().isReserving);
    EXPECT_TRUE(end.getStruct().isRestricted);
    EXPECT_EQ(ZefOk, end.setIsReserving(false));
    EXPECT_FALSE(end.reserving());
}

TEST(AssociationEndWrapperTest, ReservedClassMatchesClassifierAndMimName)
{
    EndFixture f;
    MomWrapper n;
    n.setName("n");
    n.setVersion("3");
    MomWrapper other;
    other.setName("o");
    other.setVersion("3");
    MocWrapper k;
    k.setName("K");
    k.setMom(&n.getStruct());
    MocWrapper kElsewhere;
    kElsewhere.setName("K");
    kElsewhere.setMom(&other.getStruct());
    MocWrapper l;
    l.setName("L");
    l.setMom(&n.getStruct());
    MocWrapper withoutMom;
    withoutMom.setName("K");
    EXPECT_TRUE(f.end.isReservedMoc(&k));
    EXPECT_TRUE(f.end.isReservedMoc(&k.getStruct()));
    EXPECT_FALSE(f.end.isReservedMoc(&kElsewhere));
    EXPECT_FALSE(f.end.isReservedMoc(&l));
    EXPECT_FALSE(f.end.isReservedMoc(&withoutMom));
    EXPECT_FALSE(f.end.isReservedMoc(static_cast<const MocWrapper*>(nullptr)));
    EXPECT_FALSE(f.end.isReservedMoc(static_cast<const ZefOamSpiMoc*>(nullptr)));
}

TEST(AssociationEndWrapperTest, ReservedAttributeMatchesTheEndsName)
{
    EndFixture f;
    AttrWrapper e;
    e.setName("e");
    AttrWrapper other;
    other.setName("f");
    EXPECT_TRUE(f.end.isReservedAttribute(&e));
    EXPECT_TRUE(f.end.isReservedAttribute(&e.getStruct()));
    EXPECT_FALSE(f.end.isReservedAttribute(&other));
    EXPECT_FALSE(f.end.isReservedAttribute(static_cast<const AttrWrapper*>(nullptr)));
    EXPECT_FALSE(f.end.isReservedAttribute(static_cast<const ZefOamSpiMoAttribute*>(nullptr)));
}

TEST(AssociationEndWrapperTest, LinksSetByCompilation)
{
    AssociationEndWrapper end;
    MocWrapper moc;
    AttrWrapper attr;
    EXPECT_EQ(ZefOk, end.setMoc(&moc.getStruct()));
    EXPECT_EQ(ZefOk, end.setAttribute(&attr.getStruct()));
    EXPECT_EQ(&moc.getStruct(), end.getStruct().moc);
    EXPECT_EQ(&attr.getStruct(), end.getStruct().attribute);
}

TEST(AssociationEndWrapperTest, HandlesAreKeptInTheRecord)
{
    AssociationEndWrapper end;
    end.setHandle(3022);
    end.setGeneralPropertiesHandle(3070);
    EXPECT_EQ(3022u, end.getHandle());
    EXPECT_EQ(3022u, end.getStruct().handle);
    EXPECT_EQ(3070u, end.getStruct().generalPropertiesHandle);
}

TEST(AssociationEndWrapperTest, Dump)
{
    EndFixture f;
    f.end.setLower("1");
    f.end.setIsReserving();
    EXPECT_EQ("-- Association end (e) --\n"
              "Name:              e\n"
              "Description:       \n"
              "Specification:     \n"
              "Status:            1\n"
              "Hidden:            \n"
              "Identifier         r\n"
              "Classifier         K\n"
              "Lower:               1\n"
              "Upper:               32767\n"
              "IsReserving:         1\n"
              "IsRestricted:        0\n",
              f.end.toString());
}
