#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "ContWrapper.h"
#include "LogCapture.h"
#include "MocWrapper.h"
#include "MomWrapper.h"

using namespace ZefModelRepositoryService;

using Messages = std::vector<std::string>;

namespace {

/// A containment c of MOM m, version 1.0, between the classes P and K.
struct ContFixture {
    ContFixture()
    {
        mom.setName("m");
        mom.setVersion("1.0");
        parent.setName("P");
        parent.setMom(&mom.getStruct());
        child.setName("K");
        child.setMom(&mom.getStruct());
        cont.setName("c");
        cont.setMom(&mom.getStruct());
    }
    MomWrapper mom;
    MocWrapper parent;
    MocWrapper child;
    ContWrapper cont;
};

} // namespace

TEST(ContWrapperTest, NewContainmentDefaults)
{
    ContWrapper cont;
    const ZefOamSpiContainment& r = cont.getStruct();
    EXPECT_EQ(nullptr, r.generalProperties.name);
    EXPECT_EQ(ZefOamSpiStatusCurrent, r.generalProperties.status);
    EXPECT_EQ(nullptr, r.mom);
    EXPECT_EQ(nullptr, r.parentMoc);
    EXPECT_EQ(nullptr, r.childMoc);
    EXPECT_EQ(0, r.cardinality.min);
    EXPECT_EQ(32767, r.cardinality.max);
    EXPECT_FALSE(r.isSystemCreated);
    EXPECT_EQ(nullptr, r.nextContainmentSameParentMoc);
    EXPECT_EQ(nullptr, r.nextContainmentSameChildMoc);
    EXPECT_EQ(0u, r.handle);
    EXPECT_EQ(0u, r.generalPropertiesHandle);
    EXPECT_FALSE(cont.isInterMim());
    EXPECT_TRUE(ContWrapper(true).isInterMim());
    EXPECT_EQ("", cont.getParentMimName());
    EXPECT_EQ("", cont.getParentMimVersion());
    EXPECT_EQ("", cont.getChildMimName());
    EXPECT_EQ("", cont.getChildMimVersion());
    EXPECT_EQ("", cont.getParentMocName());
    EXPECT_EQ("", cont.getChildMocName());
    EXPECT_TRUE(cont.getCanCreate());
    EXPECT_TRUE(cont.getCanDelete());
    static_assert(std::has_virtual_destructor<ContWrapper>::value, "records are polymorphic");
}

TEST(ContWrapperTest, KeyOfItsOwnMomAndName)
{
    ZefTest::LogCapture log;
    ContFixture f;
    EXPECT_EQ("m~1.0~c", f.cont.getId());
    EXPECT_EQ("m~1.0~c", ContWrapper::getContId("m", "1.0", "c"));
    EXPECT_EQ("m~1.0~c", ContWrapper::getContId(&f.cont.getStruct()));
    EXPECT_TRUE(log.errors().empty());
}

TEST(ContWrapperTest, KeyBuilderMessages)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("", ContWrapper::getContId(nullptr, "1", "c"));
    EXPECT_EQ("", ContWrapper::getContId("m", nullptr, "c"));
    EXPECT_EQ("", ContWrapper::getContId("m", "1", nullptr));
    EXPECT_EQ("", ContWrapper::getContId("", "1", "c"));
    EXPECT_EQ("", ContWrapper::getContId("m", "", "c"));
    EXPECT_EQ("", ContWrapper::getContId("m", "1", ""));
    const Messages expected{"Couldn't get containment id, because momName is NULL",
                            "Couldn't get containment id, because momVersion is NULL",
                            "Couldn't get containment id, because contName is NULL",
                            "Couldn't get containment id, because momName is empty",
                            "Couldn't get containment id, because momVersion is empty",
                            "Couldn't get containment id, because contName is empty"};
    EXPECT_EQ(expected, log.errors());
    EXPECT_EQ(expected, log.traces());
}

TEST(ContWrapperTest, RecordKeyBuilderMessages)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("", ContWrapper::getContId(static_cast<const ZefOamSpiContainment*>(nullptr)));
    // Neither a MOM of its own nor a resolved parent whose mim could name it.
    ContWrapper unowned;
    unowned.setName("c");
    EXPECT_EQ("", ContWrapper::getContId(&unowned.getStruct()));
    EXPECT_EQ("", unowned.getId());
    ContWrapper unnamed;
    MomWrapper mom;
    mom.setName("m");
    mom.setVersion("1.0");
    unnamed.setMom(&mom.getStruct());
    EXPECT_EQ("", unnamed.getId());
    EXPECT_EQ(Messages({"Couldn't get containment id, cont is NULL", "Could not get mim name for child moc",
                        "Could not get mim name for child moc",
                        "Couldn't get containment id, because contName is NULL"}),
              log.errors());
}

TEST(ContWrapperTest, KeyIsCachedOnFirstUse)
{
    ContFixture f;
    EXPECT_EQ("m~1.0~c", f.cont.getId());
    f.cont.setMom(nullptr);
    EXPECT_EQ("m~1.0~c", f.cont.getId());
}

TEST(ContWrapperTest, InterMimContainmentIsKeyedByItsParentMimName)
{
    ZefTest::LogCapture log;
    ContWrapper cont(true);
    cont.setParentMimName("P");
    cont.setName("c");
    EXPECT_EQ("P~c", cont.getId());
    EXPECT_TRUE(log.errors().empty());
}

TEST(ContWrapperTest, InterMimContainmentWithoutNameHasNoKey)
{
    ZefTest::LogCapture log;
    ContWrapper cont(true);
    cont.setParentMimName("P");
    EXPECT_EQ("", cont.getId());
    cont.setName("c");
    EXPECT_EQ("P~c", cont.getId());
    EXPECT_TRUE(log.errors().empty());
}

TEST(ContWrapperTest, PublishedInterMimContainmentIsKeyedThroughItsParentClass)
{
    ZefTest::LogCapture log;
    MomWrapper parentMom;
    parentMom.setName("P");
    parentMom.setVersion("1");
    MocWrapper parent;
    parent.setName("A");
    parent.setMom(&parentMom.getStruct());
    ContWrapper cont(true);
    cont.setName("c");
    cont.setParentMimName("P");
    cont.setParentMoc(&parent.getStruct());
    EXPECT_EQ(cont.getId(), ContWrapper::getContId(&cont.getStruct()));
    EXPECT_EQ("P~c", ContWrapper::getContId(&cont.getStruct()));
    EXPECT_TRUE(log.errors().empty());
}

TEST(ContWrapperTest, ParentMocNameFirstValueWins)
{
    ContWrapper cont;
    EXPECT_EQ(ZefOk, cont.setParentMocName("A"));
    EXPECT_EQ(ZefAlreadyExists, cont.setParentMocName("B"));
    EXPECT_EQ("A", cont.getParentMocName());
    EXPECT_EQ(ZefOk, cont.setChildMocName("K"));
    EXPECT_EQ(ZefAlreadyExists, cont.setChildMocName("L"));
    EXPECT_EQ("K", cont.getChildMocName());
}

TEST(ContWrapperTest, EmptyClassNamesAreRefused)
{
    ZefTest::LogCapture log;
    ContWrapper cont;
    EXPECT_EQ(ZefInvalidArgument, cont.setParentMocName(""));
    EXPECT_EQ(ZefInvalidArgument, cont.setChildMocName(""));
    EXPECT_EQ("", cont.getParentMocName());
    EXPECT_EQ(ZefOk, cont.setParentMocName("A"));
    EXPECT_EQ(ZefInvalidArgument, cont.setParentMocName(""));
    EXPECT_EQ("A", cont.getParentMocName());
    EXPECT_EQ(Messages({"Parent moc name of the containment can not be empty.",
                        "Child moc name of the containment can not be empty.",
                        "Parent moc name of the containment can not be empty."}),
              log.errors());
}

TEST(ContWrapperTest, MimNamesAndVersionsKeepTheLastValue)
{
    ZefTest::LogCapture log;
    ContWrapper cont;
    EXPECT_EQ(ZefOk, cont.setParentMimName("first"));
    EXPECT_EQ(ZefOk, cont.setParentMimName("second"));
    EXPECT_EQ("second", cont.getParentMimName());
    EXPECT_EQ(ZefOk, cont.setParentMimVersion("1"));
    EXPECT_EQ(ZefOk, cont.setChildMimName("k"));
    EXPECT_EQ(ZefOk, cont.setChildMimVersion("2"));
    EXPECT_EQ(ZefOk, cont.setChildMimVersion(""));
    EXPECT_EQ("1", cont.getParentMimVersion());
    EXPECT_EQ("k", cont.getChildMimName());
    EXPECT_EQ("", cont.getChildMimVersion());
    EXPECT_EQ(Messages({"setParentMimName(first)", "setParentMimName(second)", "setParentMimVersion(1)",
                        "setChildMimName(k)", "setChildMimVersion(2)", "setChildMimVersion()"}),
              log.traces());
    EXPECT_TRUE(log.errors().empty());
}

TEST(ContWrapperTest, ClassKeysAreBuiltFromTheNamesHeld)
{
    ZefTest::LogCapture log;
    ContWrapper cont;
    cont.setParentMimName("m");
    cont.setParentMimVersion("1.0");
    cont.setParentMocName("P");
    cont.setChildMimName("n");
    cont.setChildMimVersion("2.0");
    cont.setChildMocName("K");
    EXPECT_EQ("m~1.0~P", cont.getParentMocId());
    EXPECT_EQ("n~2.0~K", cont.getChildMocId());
    EXPECT_TRUE(log.errors().empty());
}

TEST(ContWrapperTest, ClassKeysReportMissingNames)
{
    ZefTest::LogCapture log;
    ContWrapper cont;
    cont.setParentMimName("m");
    cont.setChildMimName("n");
    cont.setChildMimVersion("2.0");
    EXPECT_EQ("", cont.getParentMocId());
    EXPECT_EQ("", cont.getChildMocId());
    EXPECT_EQ(Messages({"Couldn't get moc id, mom version isn't set", "Couldn't get moc id, moc name isn't set"}),
              log.errors());
}

TEST(ContWrapperTest, CardinalityMin)
{
    ContWrapper cont;
    EXPECT_EQ(ZefOk, cont.setMin("2"));
    EXPECT_EQ(2, cont.getStruct().cardinality.min);
    EXPECT_EQ(ZefInvalidArgument, cont.setMin("x"));
    EXPECT_EQ(ZefInvalidArgument, cont.setMin("40000"));
    EXPECT_EQ(2, cont.getStruct().cardinality.min);
    EXPECT_EQ(ZefOk, cont.setMin(""));
    EXPECT_EQ(0, cont.getStruct().cardinality.min);
    EXPECT_EQ(ZefOk, cont.setMin("-1"));
    EXPECT_EQ(-1, cont.getStruct().cardinality.min);
}

TEST(ContWrapperTest, CardinalityMax)
{
    ContWrapper cont;
    EXPECT_EQ(ZefOk, cont.setMax("4"));
    EXPECT_EQ(4, cont.getStruct().cardinality.max);
    EXPECT_EQ(ZefInvalidArgument, cont.setMax("-1"));
    EXPECT_EQ(ZefInvalidArgument, cont.setMax("4 "));
    EXPECT_EQ(4, cont.getStruct().cardinality.max);
    EXPECT_EQ(ZefOk, cont.setMax(""));
    EXPECT_EQ(32767, cont.getStruct().cardinality.max);
    EXPECT_EQ(ZefOk, cont.setMax("1"));
    EXPECT_EQ(ZefOk, cont.setMax("*"));
    EXPECT_EQ(32767, cont.getStruct().cardinality.max);
}

TEST(ContWrapperTest, OrdinaryContainmentReportsTheStatedRights)
{
    ZefTest::LogCapture log;
    ContWrapper cont;
    EXPECT_EQ(ZefOk, cont.setCanCreate(false));
    EXPECT_FALSE(cont.getCanCreate());
    EXPECT_TRUE(cont.getCanDelete());
    EXPECT_EQ(ZefOk, cont.setCanDelete(false));
    EXPECT_FALSE(cont.getCanDelete());
    EXPECT_EQ(Messages({"canCreate false", "canDelete true", "canDelete false"}), log.traces());
}

TEST(ContWrapperTest, SystemCreatedContainmentWithBothRightsReportsNeither)
{
    ZefTest::LogCapture log;
    ContWrapper cont;
    EXPECT_EQ(ZefOk, cont.setIsSystemCreated(true));
    EXPECT_TRUE(cont.getIsSystemCreated());
    EXPECT_TRUE(cont.getStruct().isSystemCreated);
    EXPECT_FALSE(cont.getCanCreate());
    EXPECT_FALSE(cont.getCanDelete());
    EXPECT_EQ(Messages({"canCreate false", "canDelete false"}), log.traces());
}

TEST(ContWrapperTest, SystemCreatedContainmentWithOneRightReportsIt)
{
    ContWrapper createOnly;
    createOnly.setIsSystemCreated(true);
    createOnly.setCanDelete(false);
    EXPECT_TRUE(createOnly.getCanCreate());
    EXPECT_FALSE(createOnly.getCanDelete());
    ContWrapper deleteOnly;
    deleteOnly.setIsSystemCreated(true);
    deleteOnly.setCanCreate(false);
    EXPECT_FALSE(deleteOnly.getCanCreate());
    EXPECT_TRUE(deleteOnly.getCanDelete());
    ContWrapper none;
    none.setIsSystemCreated(true);
    none.setCanCreate(false);
    none.setCanDelete(false);
    EXPECT_FALSE(none.getCanCreate());
    EXPECT_FALSE(none.getCanDelete());
}

TEST(ContWrapperTest, LinksToClassesAndChains)
{
    ContFixture f;
    ContWrapper next;
    EXPECT_EQ(ZefOk, f.cont.setParentMoc(&f.parent.getStruct()));
    EXPECT_EQ(ZefOk, f.cont.setChildMoc(&f.child.getStruct()));
    EXPECT_EQ(&f.parent.getStruct(), f.cont.getStruct().parentMoc);
    EXPECT_EQ(&f.child.getStruct(), f.cont.getStruct().childMoc);
    EXPECT_EQ(ZefOk, f.cont.setNextContainmentSameParentMoc(&next));
    EXPECT_EQ(ZefOk, f.cont.setNextContainmentSameChildMoc(&next));
    EXPECT_EQ(&next.getStruct(), f.cont.getStruct().nextContainmentSameParentMoc);
    EXPECT_EQ(&next.getStruct(), f.cont.getStruct().nextContainmentSameChildMoc);
    EXPECT_EQ(ZefNotFound, f.cont.setNextContainmentSameParentMoc(static_cast<const ContWrapper*>(nullptr)));
    EXPECT_EQ(ZefNotFound, f.cont.setNextContainmentSameChildMoc(static_cast<const ContWrapper*>(nullptr)));
    EXPECT_EQ(&next.getStruct(), f.cont.getStruct().nextContainmentSameParentMoc);
    EXPECT_EQ(ZefOk, f.cont.setNextContainmentSameParentMoc(static_cast<const ZefOamSpiContainment*>(nullptr)));
    EXPECT_EQ(nullptr, f.cont.getStruct().nextContainmentSameParentMoc);
}

TEST(ContWrapperTest, HandlesAreKeptInTheRecord)
{
    ContWrapper cont;
    cont.setHandle(3017);
    cont.setGeneralPropertiesHandle(3060);
    EXPECT_EQ(3017u, cont.getHandle());
    EXPECT_EQ(3017u, cont.getStruct().handle);
    EXPECT_EQ(3060u, cont.getStruct().generalPropertiesHandle);
}

TEST(ContWrapperTest, DumpOfAResolvedContainment)
{
    ContFixture f;
    ContWrapper sibling;
    sibling.setName("d");
    sibling.setMom(&f.mom.getStruct());
    f.cont.setDescription("holds K");
    f.cont.setParentMoc(&f.parent.getStruct());
    f.cont.setChildMoc(&f.child.getStruct());
    f.cont.setMin("1");
    f.cont.setMax("5");
    f.cont.setCanDelete(false);
    f.cont.setNextContainmentSameParentMoc(&sibling);
    EXPECT_EQ("-- Containment (c) --\n"
              "Name:              c\n"
              "Description:       holds K\n"
              "Specification:     \n"
              "Status:            1\n"
              "Hidden:            \n"
              "ParentMoc:          m~1.0~P\n"
              "ChildMoc:           m~1.0~K\n"
              "Min:               1\n"
              "Max:               5\n"
              "IsSystemCreated:   0\n"
              "CanCreate:         1\n"
              "CanDelete:         0\n"
              "NextContSamePMoc:  m~1.0~d\n"
              "NextContSameCMoc:  \n",
              f.cont.toString());
}

TEST(ContWrapperTest, DumpOfAnUnresolvedInterMimContainment)
{
    ZefTest::LogCapture log;
    ContWrapper cont(true);
    cont.setName("x");
    cont.setIsSystemCreated(true);
    EXPECT_EQ("-- InterMimContainment (x) --\n"
              "Name:              x\n"
              "Description:       \n"
              "Specification:     \n"
              "Status:            1\n"
              "Hidden:            \n"
              "ParentMoc:          \n"
              "ChildMoc:           \n"
              "Min:               0\n"
              "Max:               32767\n"
              "IsSystemCreated:   1\n"
              "CanCreate:         0\n"
              "CanDelete:         0\n"
              "NextContSamePMoc:  \n"
              "NextContSameCMoc:  \n",
              cont.toString());
    EXPECT_TRUE(log.errors().empty());
}
