#include <gtest/gtest.h>

#include <chrono>

#include <memory>

#include "AttrWrapper.h"
#include "BiDirAssociationWrapper.h"
#include "ContWrapper.h"
#include "LogCapture.h"
#include "MoActionWrapper.h"
#include "MocWrapper.h"
#include "MomWrapper.h"
#include "UniDirAssociationWrapper.h"

using namespace ZefModelRepositoryService;

using Messages = std::vector<std::string>;

namespace {

/// A MOM m, version 1.0, with a class C.
struct ClassFixture {
    ClassFixture()
    {
        mom.setName("m");
        mom.setVersion("1.0");
        moc.setName("C");
        moc.setMom(&mom.getStruct());
    }
    /// A new attribute of the class (owned by the fixture).
    AttrWrapper* attr(const std::string& name)
    {
        attrs.emplace_back(new AttrWrapper());
        AttrWrapper* a = attrs.back().get();
        a->setName(name);
        a->setMoc(&moc.getStruct());
        return a;
    }
    /// A new action of the class (owned by the fixture).
    MoActionWrapper* action(const std::string& name)
    {
        actions.emplace_back(new MoActionWrapper());
        MoActionWrapper* a = actions.back().get();
        a->setName(name);
        a->setMoc(&moc.getStruct());
        return a;
    }
    /// A new association of the MOM with the given name and query handle.
    template <typename Assoc>
    Assoc* association(std::vector<std::unique_ptr<Assoc>>& owner, const std::string& name, uint64_t handle)
    {
        owner.emplace_back(new Assoc());
        Assoc* a = owner.back().get();
        a->setName(name);
        a->setMom(&mom.getStruct());
        a->setHandle(handle);
        return a;
    }
    /// A new containment of the MOM (owned by the fixture).
    ContWrapper* cont(const std::string& name)
    {
        conts.emplace_back(new ContWrapper(false));
        ContWrapper* c = conts.back().get();
        c->setName(name);
        c->setMom(&mom.getStruct());
        return c;
    }
    MomWrapper mom;
    MocWrapper moc;
    std::vector<std::unique_ptr<AttrWrapper>> attrs;
    std::vector<std::unique_ptr<MoActionWrapper>> actions;
    std::vector<std::unique_ptr<BiDirAssociationWrapper>> biDirs;
    std::vector<std::unique_ptr<UniDirAssociationWrapper>> uniDirs;
    std::vector<std::unique_ptr<ContWrapper>> conts;
};

} // namespace

TEST(MocWrapperTest, NewRecordIsEmpty)
{
    MocWrapper moc;
    const ZefOamSpiMoc& r = moc.getStruct();
    EXPECT_EQ(nullptr, r.generalProperties.name);
    EXPECT_EQ(ZefOamSpiStatusCurrent, r.generalProperties.status);
    EXPECT_EQ(nullptr, r.mom);
    EXPECT_FALSE(r.isReadOnly);
    EXPECT_FALSE(r.isRoot);
    EXPECT_EQ(nullptr, r.constraint);
    EXPECT_EQ(nullptr, r.moAttribute);
    EXPECT_EQ(nullptr, r.moAction);
    EXPECT_EQ(nullptr, r.childContainment);
    EXPECT_EQ(nullptr, r.parentContainment);
    EXPECT_EQ(0u, r.handle);
    EXPECT_EQ(0u, r.generalPropertiesHandle);
    EXPECT_FALSE(moc.getIsSystemCreated());
    EXPECT_FALSE(moc.getHasValidationRulesConstraint());
    EXPECT_TRUE(moc.getAttrsList().empty());
    EXPECT_TRUE(moc.getMoActionList().empty());
    EXPECT_EQ(0u, moc.getFirstBiDirHandle());
    EXPECT_EQ(0u, moc.getFirstUniDirHandle());
    EXPECT_EQ(0u, moc.getNextBiDirHandle(3017));
    EXPECT_EQ(0u, moc.getNextUniDirHandle(3017));
}

TEST(MocWrapperTest, KeyOfMomNameVersionAndClassName)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("m~1.0~C", MocWrapper::getMocId("m", "1.0", "C"));
    ClassFixture f;
    EXPECT_EQ("m~1.0~C", f.moc.getId());
    EXPECT_EQ("m~1.0~C", MocWrapper::getMocId(&f.moc.getStruct()));
    EXPECT_TRUE(log.errors().empty());
}

TEST(MocWrapperTest, KeyBuilderMessages)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("", MocWrapper::getMocId(nullptr, "1", "C"));
    EXPECT_EQ("", MocWrapper::getMocId("m", nullptr, "C"));
    EXPECT_EQ("", MocWrapper::getMocId("m", "1", nullptr));
    EXPECT_EQ("", MocWrapper::getMocId("", "1", "C"));
    EXPECT_EQ("", MocWrapper::getMocId("m", "", "C"));
    EXPECT_EQ("", MocWrapper::getMocId("m", "1", ""));
    EXPECT_EQ(Messages({"Couldn't get moc id, mom name is NULL", "Couldn't get moc id, mom version is NULL",
                        "Couldn't get moc id, moc name is NULL", "Couldn't get moc id, mom name isn't set",
                        "Couldn't get moc id, mom version isn't set", "Couldn't get moc id, moc name isn't set"}),
              log.errors());
    EXPECT_EQ(6u, log.traces().size());
}

TEST(MocWrapperTest, RecordKeyBuilderMessages)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("", MocWrapper::getMocId(static_cast<const ZefOamSpiMoc*>(nullptr)));
    MocWrapper named;
    named.setName("C");
    EXPECT_EQ("", MocWrapper::getMocId(&named.getStruct()));
    MocWrapper nameless;
    EXPECT_EQ("", MocWrapper::getMocId(&nameless.getStruct()));
    MomWrapper versionless;
    versionless.setName("m");
    named.setMom(&versionless.getStruct());
    EXPECT_EQ("", named.getId());
    EXPECT_EQ(Messages({"Couldn't get moc id, moc is NULL", "Couldn't get moc id, mom is NULL. moc name 'C'",
                        "Couldn't get moc id, mom is NULL. moc has no name.",
                        "Couldn't get moc id, mom version is NULL"}),
              log.errors());
}

TEST(MocWrapperTest, IdentityKeyIsCachedOnceBuilt)
{
    ClassFixture f;
    EXPECT_EQ("m~1.0~C", f.moc.getId());
    MomWrapper other;
    other.setName("o");
    other.setVersion("9");
    f.moc.setMom(&other.getStruct());
    EXPECT_EQ("m~1.0~C", f.moc.getId());
}

TEST(MocWrapperTest, FlagsAndLinks)
{
    MocWrapper moc;
    EXPECT_EQ(ZefOk, moc.setIsReadOnly(true));
    EXPECT_EQ(ZefOk, moc.setIsRoot(true));
    EXPECT_EQ(ZefOk, moc.setIsSystemCreated());
    EXPECT_TRUE(moc.getStruct().isReadOnly);
    EXPECT_TRUE(moc.getStruct().isRoot);
    EXPECT_TRUE(moc.getIsSystemCreated());
    ZefOamSpiContainment child{};
    ZefOamSpiContainment parent{};
    EXPECT_EQ(ZefOk, moc.setChildContainment(&child));
    EXPECT_EQ(ZefOk, moc.setParentContainment(&parent));
    EXPECT_EQ(&child, moc.getStruct().childContainment);
    EXPECT_EQ(&parent, moc.getStruct().parentContainment);
    ZefOamSpiMoAttribute attr{};
    EXPECT_EQ(ZefOk, moc.setMoAttribute(&attr));
    EXPECT_EQ(&attr, moc.getStruct().moAttribute);
    moc.setHandle(3017);
    moc.setGeneralPropertiesHandle(3018);
    EXPECT_EQ(3017u, moc.getStruct().handle);
    EXPECT_EQ(3018u, moc.getStruct().generalPropertiesHandle);
    EXPECT_EQ(3017u, moc.getHandle());
}

TEST(MocWrapperTest, MomKey)
{
    ZefTest::LogCapture log;
    ClassFixture f;
    EXPECT_EQ("m~1.0", f.moc.getMomId());
    MocWrapper orphan;
    EXPECT_EQ("", orphan.getMomId());
    EXPECT_EQ(Messages{"Couldn't get mom id, mom is NULL"}, log.errors());
}

TEST(MocWrapperTest, ConstraintAfterValidationRulesConstraintIsRefused)
{
    MocWrapper moc;
    EXPECT_EQ(ZefOk, moc.setValidationRulesConstraint("rules"));
    EXPECT_TRUE(moc.getHasValidationRulesConstraint());
    EXPECT_EQ(ZefAlreadyExists, moc.setConstraint("plain"));
    EXPECT_STREQ("rules", moc.getStruct().constraint);
}

TEST(MocWrapperTest, ValidationRulesConstraintReplacesPlainConstraint)
{
    MocWrapper moc;
    EXPECT_EQ(ZefOk, moc.setConstraint("plain"));
    EXPECT_FALSE(moc.getHasValidationRulesConstraint());
    EXPECT_EQ(ZefAlreadyExists, moc.setConstraint("second"));
    EXPECT_STREQ("plain", moc.getStruct().constraint);
    EXPECT_EQ(ZefOk, moc.setValidationRulesConstraint("rules"));
    EXPECT_STREQ("rules", moc.getStruct().constraint);
    EXPECT_TRUE(moc.getHasValidationRulesConstraint());
    EXPECT_EQ(ZefOk, moc.setValidationRulesConstraint("rules2"));
    EXPECT_STREQ("rules2", moc.getStruct().constraint);
}

TEST(MocWrapperTest, AddAttrRefusesNullAndKeylessAttributes)
{
    ZefTest::LogCapture log;
    ClassFixture f;
    EXPECT_EQ(ZefNotFound, f.moc.addAttr(nullptr));
    AttrWrapper keyless;
    EXPECT_EQ(ZefInvalidArgument, f.moc.addAttr(&keyless));
    EXPECT_TRUE(f.moc.getAttrsList().empty());
    EXPECT_EQ(nullptr, f.moc.getStruct().moAttribute);
    EXPECT_EQ(Messages{"Couldn't get attribute id, attr->moc is NULL"}, log.errors());
}

TEST(MocWrapperTest, FirstAttributeAndChainInDefinitionOrder)
{
    ClassFixture f;
    AttrWrapper* a = f.attr("a");
    AttrWrapper* b = f.attr("b");
    AttrWrapper* c = f.attr("c");
    EXPECT_EQ(ZefOk, f.moc.addAttr(a));
    EXPECT_EQ(&a->getStruct(), f.moc.getStruct().moAttribute);
    EXPECT_EQ(ZefOk, f.moc.addAttr(b));
    EXPECT_EQ(ZefOk, f.moc.addAttr(c));
    EXPECT_EQ(&a->getStruct(), f.moc.getStruct().moAttribute);
    const ZefOamSpiMoAttribute* first = f.moc.getStruct().moAttribute;
    ASSERT_NE(nullptr, first->next);
    ASSERT_NE(nullptr, first->next->next);
    EXPECT_EQ(&c->getStruct(), first->next->next);
    EXPECT_STREQ("c", first->next->next->generalProperties.name);
    EXPECT_EQ(nullptr, first->next->next->next);
    EXPECT_EQ(b, a->getNext());
    EXPECT_EQ(c, b->getNext());
    EXPECT_EQ((MocWrapper::AttrList{a, b, c}), f.moc.getAttrsList());
}

TEST(MocWrapperTest, DuplicateAttributeIsRefusedAndChainKeepsTheFirst)
{
    ClassFixture f;
    AttrWrapper* a = f.attr("a");
    AttrWrapper* again = f.attr("a");
    EXPECT_EQ(ZefOk, f.moc.addAttr(a));
    EXPECT_EQ(ZefAlreadyExists, f.moc.addAttr(again));
    EXPECT_EQ(MocWrapper::AttrList{a}, f.moc.getAttrsList());
    EXPECT_EQ(&a->getStruct(), f.moc.getStruct().moAttribute);
    EXPECT_EQ(nullptr, a->getStruct().next);
    AttrWrapper* b = f.attr("b");
    EXPECT_EQ(ZefOk, f.moc.addAttr(b));
    EXPECT_EQ(ZefAlreadyExists, f.moc.addAttr(f.attr("b")));
    EXPECT_EQ(&b->getStruct(), a->getStruct().next);
    EXPECT_EQ(nullptr, b->getStruct().next);
}

TEST(MocWrapperTest, DuplicateAmongManyAttributesAndActionsIsRefused)
{
    ClassFixture f;
    for (int i = 0; i < 300; ++i) {
        ASSERT_EQ(ZefOk, f.moc.addAttr(f.attr("a" + std::to_string(i))));
        ASSERT_EQ(ZefOk, f.moc.addMoAction(f.action("x" + std::to_string(i))));
    }
    EXPECT_EQ(ZefAlreadyExists, f.moc.addAttr(f.attr("a0")));
    EXPECT_EQ(ZefAlreadyExists, f.moc.addAttr(f.attr("a137")));
    EXPECT_EQ(ZefAlreadyExists, f.moc.addAttr(f.attr("a299")));
    EXPECT_EQ(ZefAlreadyExists, f.moc.addMoAction(f.action("x211")));
    // An attribute and an action of one name have different keys lists.
    EXPECT_EQ(ZefOk, f.moc.addAttr(f.attr("x5")));
    EXPECT_EQ(301u, f.moc.getAttrsList().size());
    EXPECT_EQ(300u, f.moc.getMoActionList().size());
    EXPECT_EQ("x5", f.moc.getAttrsList().back()->getName());
}

TEST(MocWrapperTest, FindAttrAndActionByKeyInShortAndLongLists)
{
    ClassFixture f;
    EXPECT_EQ(nullptr, f.moc.findAttr("m~1.0~C~a0"));
    for (int i = 0; i < 100000; ++i) {
        ASSERT_EQ(ZefOk, f.moc.addAttr(f.attr("a" + std::to_string(i))));
        if (i < 10) {
            ASSERT_EQ(ZefOk, f.moc.addMoAction(f.action("x" + std::to_string(i))));
        }
    }
    EXPECT_EQ(f.moc.getAttrsList()[0], f.moc.findAttr("m~1.0~C~a0"));
    EXPECT_EQ(f.moc.getAttrsList()[99999], f.moc.findAttr("m~1.0~C~a99999"));
    EXPECT_EQ(nullptr, f.moc.findAttr("m~1.0~C~a100000"));
    EXPECT_EQ(nullptr, f.moc.findAttr("m~1.0~C~x3"));
    EXPECT_EQ(f.moc.getMoActionList()[3], f.moc.findMoAction("m~1.0~C~x3"));
    EXPECT_EQ(nullptr, f.moc.findMoAction("m~1.0~C~a3"));
    // A hundred thousand lookups in a list as long: an index, not a scan.
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 100000; ++i) {
        ASSERT_NE(nullptr, f.moc.findAttr("m~1.0~C~a" + std::to_string(i)));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(MocWrapperTest, DumpWithoutContainmentsOrAttributes)
{
    ZefTest::LogCapture log;
    ClassFixture f;
    f.moc.setDescription("d");
    f.moc.setIsReadOnly(true);
    f.moc.setConstraint("x > 1");
    EXPECT_EQ("-- Moc (C)--\n"
              "Name:              C\n"
              "Description:       d\n"
              "Specification:     \n"
              "Status:            1\n"
              "Hidden:            \n"
              "IsReadOnly:        1\n"
              "Mom:               m~1.0\n"
              "IsRoot:            0\n"
              "Constraint:        x > 1\n"
              "ChildContainment:  null\n"
              "parentContainment: null\n",
              f.moc.toString());
    EXPECT_TRUE(log.errors().empty());
}

TEST(MocWrapperTest, DumpListsTheAttributes)
{
    ClassFixture f;
    f.moc.setIsRoot(true);
    AttrWrapper* a = f.attr("a");
    a->setType(ZefMrType3Int32);
    AttrWrapper* b = f.attr("b");
    b->setType(ZefMrType3String);
    f.moc.addAttr(a);
    f.moc.addAttr(b);
    EXPECT_EQ("-- Moc (C)--\n"
              "Name:              C\n"
              "Description:       \n"
              "Specification:     \n"
              "Status:            1\n"
              "Hidden:            \n"
              "IsReadOnly:        0\n"
              "Mom:               m~1.0\n"
              "IsRoot:            1\n"
              "Constraint:        \n"
              "ChildContainment:  null\n"
              "parentContainment: null\n"
                  + a->toString() + b->toString(),
              f.moc.toString());
    EXPECT_NE(std::string::npos, f.moc.toString().find("    -- Attribute (b) --\n"));
}

TEST(MocWrapperTest, AddMoActionChainsActionsInDefinitionOrder)
{
    ZefTest::LogCapture log;
    ClassFixture f;
    EXPECT_EQ(ZefNotFound, f.moc.addMoAction(nullptr));
    MoActionWrapper keyless;
    EXPECT_EQ(ZefInvalidArgument, f.moc.addMoAction(&keyless));
    MoActionWrapper* a = f.action("a");
    MoActionWrapper* b = f.action("b");
    EXPECT_EQ(ZefOk, f.moc.addMoAction(a));
    EXPECT_EQ(&a->getStruct(), f.moc.getStruct().moAction);
    EXPECT_EQ(ZefOk, f.moc.addMoAction(b));
    EXPECT_EQ(ZefAlreadyExists, f.moc.addMoAction(f.action("a")));
    EXPECT_EQ(&a->getStruct(), f.moc.getStruct().moAction);
    EXPECT_EQ(&b->getStruct(), a->getStruct().next);
    EXPECT_EQ(nullptr, b->getStruct().next);
    EXPECT_EQ((MocWrapper::MoActionList{a, b}), f.moc.getMoActionList());
    EXPECT_EQ(Messages{"Can not get MoAction id, moc is not set."}, log.errors());
}

TEST(MocWrapperTest, BiDirAssociationsAreWalkedInHandleOrder)
{
    ClassFixture f;
    BiDirAssociationWrapper* x = f.association(f.biDirs, "x", 3019);
    BiDirAssociationWrapper* y = f.association(f.biDirs, "y", 3017);
    BiDirAssociationWrapper* z = f.association(f.biDirs, "z", 3018);
    EXPECT_EQ(ZefOk, f.moc.addBiDirWrapper(x));
    EXPECT_EQ(ZefOk, f.moc.addBiDirWrapper(y));
    EXPECT_EQ(ZefOk, f.moc.addBiDirWrapper(z));
    // Before sorting the list keeps the order of addition.
    EXPECT_EQ(3019u, f.moc.getFirstBiDirHandle());
    EXPECT_EQ(3017u, f.moc.getNextBiDirHandle(3019));
    f.moc.sortBiDirAssociationWrappers();
    EXPECT_EQ((MocWrapper::BiDirList{y, z, x}), f.moc.getBiDirList());
    EXPECT_EQ(3017u, f.moc.getFirstBiDirHandle());
    EXPECT_EQ(3018u, f.moc.getNextBiDirHandle(3017));
    EXPECT_EQ(3019u, f.moc.getNextBiDirHandle(3018));
    EXPECT_EQ(0u, f.moc.getNextBiDirHandle(3019));
    EXPECT_EQ(0u, f.moc.getNextBiDirHandle(4000));
    EXPECT_TRUE(MocWrapper::sortOnHandles(y, x));
    EXPECT_FALSE(MocWrapper::sortOnHandles(x, y));
}

TEST(MocWrapperTest, NextBiDirHandleOfTheLastIsZero)
{
    ClassFixture f;
    f.moc.addBiDirWrapper(f.association(f.biDirs, "only", 3017));
    EXPECT_EQ(3017u, f.moc.getFirstBiDirHandle());
    EXPECT_EQ(0u, f.moc.getNextBiDirHandle(3017));
}

TEST(MocWrapperTest, AddBiDirWrapperRefusesNullAndKeylessButNotDuplicates)
{
    ClassFixture f;
    EXPECT_EQ(ZefNotFound, f.moc.addBiDirWrapper(nullptr));
    BiDirAssociationWrapper keyless;
    EXPECT_EQ(ZefInvalidArgument, f.moc.addBiDirWrapper(&keyless));
    BiDirAssociationWrapper* x = f.association(f.biDirs, "x", 3017);
    EXPECT_EQ(ZefOk, f.moc.addBiDirWrapper(x));
    EXPECT_EQ(ZefOk, f.moc.addBiDirWrapper(x));
    EXPECT_EQ(2u, f.moc.getBiDirList().size());
}

TEST(MocWrapperTest, UniDirAssociationsAreWalkedInHandleOrder)
{
    ClassFixture f;
    EXPECT_EQ(ZefNotFound, f.moc.addUniDirWrapper(nullptr));
    UniDirAssociationWrapper keyless;
    EXPECT_EQ(ZefInvalidArgument, f.moc.addUniDirWrapper(&keyless));
    UniDirAssociationWrapper* x = f.association(f.uniDirs, "x", 3020);
    UniDirAssociationWrapper* y = f.association(f.uniDirs, "y", 3017);
    EXPECT_EQ(ZefOk, f.moc.addUniDirWrapper(x));
    EXPECT_EQ(ZefOk, f.moc.addUniDirWrapper(y));
    EXPECT_EQ(3020u, f.moc.getFirstUniDirHandle());
    f.moc.sortUniDirAssociationWrappers();
    EXPECT_EQ((MocWrapper::UniDirList{y, x}), f.moc.getUniDirList());
    EXPECT_EQ(3017u, f.moc.getFirstUniDirHandle());
    EXPECT_EQ(3020u, f.moc.getNextUniDirHandle(3017));
    EXPECT_EQ(0u, f.moc.getNextUniDirHandle(3020));
    EXPECT_EQ(0u, f.moc.getNextUniDirHandle(1));
    EXPECT_TRUE(MocWrapper::sortOnUniDirHandles(y, x));
}

TEST(MocWrapperTest, ContainmentKeys)
{
    ZefTest::LogCapture log;
    ClassFixture f;
    ContWrapper* child = f.cont("c1");
    ContWrapper* parent = f.cont("c2");
    f.moc.setChildContainment(&child->getStruct());
    f.moc.setParentContainment(&parent->getStruct());
    EXPECT_EQ("m~1.0~c1", f.moc.getChildContId());
    EXPECT_EQ("m~1.0~c2", f.moc.getParentContId());
    EXPECT_TRUE(log.errors().empty());
    MocWrapper lonely;
    EXPECT_EQ("", lonely.getChildContId());
    EXPECT_EQ("", lonely.getParentContId());
    EXPECT_EQ(Messages({"Couldn't get containment id, cont is NULL", "Couldn't get containment id, cont is NULL"}),
              log.errors());
}

TEST(MocWrapperTest, DumpWithContainments)
{
    ZefTest::LogCapture log;
    ClassFixture f;
    f.moc.setChildContainment(&f.cont("c1")->getStruct());
    f.moc.setParentContainment(&f.cont("c2")->getStruct());
    EXPECT_EQ("-- Moc (C)--\n"
              "Name:              C\n"
              "Description:       \n"
              "Specification:     \n"
              "Status:            1\n"
              "Hidden:            \n"
              "IsReadOnly:        0\n"
              "Mom:               m~1.0\n"
              "IsRoot:            0\n"
              "Constraint:        \n"
              "ChildContainment:  m~1.0~c1\n"
              "ParentContainment: m~1.0~c2\n",
              f.moc.toString());
    EXPECT_TRUE(log.errors().empty());
}
