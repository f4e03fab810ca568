#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "LogCapture.h"
#include "MoActionWrapper.h"
#include "MocWrapper.h"
#include "MomWrapper.h"

using namespace ZefModelRepositoryService;

using Messages = std::vector<std::string>;

namespace {

/// An action act of class C of MOM m, version 1.0.
struct ActionFixture {
    ActionFixture()
    {
        mom.setName("m");
        mom.setVersion("1.0");
        moc.setName("C");
        moc.setMom(&mom.getStruct());
        action.setName("act");
        action.setMoc(&moc.getStruct());
    }
    /// A new parameter of the given name, not yet added.
    static ParameterWrapper* parameter(const std::string& name)
    {
        ParameterWrapper* p = new ParameterWrapper();
        p->setName(name);
        return p;
    }
    MomWrapper mom;
    MocWrapper moc;
    MoActionWrapper action;
};

} // namespace

TEST(MoActionWrapperTest, NewActionDefaults)
{
    MoActionWrapper action;
    const ZefOamSpiMoAction& r = action.getStruct();
    EXPECT_EQ(nullptr, r.generalProperties.name);
    EXPECT_EQ(ZefOamSpiStatusCurrent, r.generalProperties.status);
    EXPECT_EQ(nullptr, r.moc);
    EXPECT_EQ(ZefMrType3NotSet, r.returnType.type);
    EXPECT_EQ(nullptr, r.returnType.defaultValue);
    EXPECT_EQ(1, r.returnType.multiplicityRange.min);
    EXPECT_EQ(1, r.returnType.multiplicityRange.max);
    EXPECT_TRUE(r.returnType.isUnique);
    EXPECT_FALSE(r.returnType.isOrdered);
    EXPECT_EQ(nullptr, r.parameters);
    EXPECT_EQ(nullptr, r.next);
    EXPECT_EQ(0u, r.handle);
    EXPECT_EQ(0u, r.generalPropertiesHandle);
    EXPECT_EQ(nullptr, action.getParameterListFront());
    EXPECT_TRUE(action.getParameterList().empty());
    EXPECT_EQ(nullptr, action.getNext());
    EXPECT_FALSE(action.getIsMinSet());
    EXPECT_FALSE(action.getIsMaxSet());
    static_assert(std::has_virtual_destructor<MoActionWrapper>::value, "records are polymorphic");
}

TEST(MoActionWrapperTest, KeyOfMomClassAndName)
{
    ZefTest::LogCapture log;
    ActionFixture f;
    EXPECT_EQ("m~1.0~C~act", f.action.getId());
    EXPECT_EQ("m~1.0~C~act", MoActionWrapper::getMoActionId("m", "1.0", "C", "act"));
    EXPECT_EQ("m~1.0~C~act", MoActionWrapper::getMoActionId(&f.action.getStruct()));
    EXPECT_TRUE(log.errors().empty());
}

TEST(MoActionWrapperTest, KeyBuilderMessages)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("", MoActionWrapper::getMoActionId(nullptr, "1", "C", "a"));
    EXPECT_EQ("", MoActionWrapper::getMoActionId("m", nullptr, "C", "a"));
    EXPECT_EQ("", MoActionWrapper::getMoActionId("m", "1", nullptr, "a"));
    EXPECT_EQ("", MoActionWrapper::getMoActionId("m", "1", "C", nullptr));
    EXPECT_EQ("", MoActionWrapper::getMoActionId("", "1", "C", "a"));
    EXPECT_EQ("", MoActionWrapper::getMoActionId("m", "", "C", "a"));
    EXPECT_EQ("", MoActionWrapper::getMoActionId("m", "1", "", "a"));
    EXPECT_EQ("", MoActionWrapper::getMoActionId("m", "1", "C", ""));
    const Messages expected{"Can not get MoAction id, mom name is not set",
                            "Can not get MoAction id, mom version is not set.",
                            "Can not get MoAction id, moc name is not set.",
                            "Can not get MoAction id, MoAction name is not set.",
                            "Can not get MoAction id, mom name is not set.",
                            "Can not get MoAction id, mom version is not set.",
                            "Can not get MoAction id, moc name is not set.",
                            "Can not get MoAction id, MoAction name is not set."};
    EXPECT_EQ(expected, log.errors());
    EXPECT_EQ(expected, log.traces());
}

TEST(MoActionWrapperTest, RecordKeyBuilderMessages)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("", MoActionWrapper::getMoActionId(static_cast<const ZefOamSpiMoAction*>(nullptr)));
    MoActionWrapper action;
    action.setName("act");
    EXPECT_EQ("", action.getId());
    MocWrapper moc;
    moc.setName("C");
    action.setMoc(&moc.getStruct());
    EXPECT_EQ("", action.getId());
    EXPECT_EQ(Messages({"Can not get MoAction id, MoAction is not set.", "Can not get MoAction id, moc is not set.",
                        "Can not get MoAction id, mocs mom is not set."}),
              log.errors());
    // An empty key is not cached: once the links exist the key is built.
    MomWrapper mom;
    mom.setName("m");
    mom.setVersion("2");
    moc.setMom(&mom.getStruct());
    EXPECT_EQ("m~2~C~act", action.getId());
}

TEST(MoActionWrapperTest, KeyIsCachedOnFirstUse)
{
    ActionFixture f;
    EXPECT_EQ("m~1.0~C~act", f.action.getId());
    f.moc.getStruct().mom = nullptr;
    EXPECT_EQ("m~1.0~C~act", f.action.getId());
}

TEST(MoActionWrapperTest, FirstParameterBecomesTheRecordsParameters)
{
    ActionFixture f;
    ParameterWrapper* a = ActionFixture::parameter("a");
    EXPECT_EQ(ZefOk, f.action.addParameter(a));
    EXPECT_EQ(&a->getStruct(), f.action.getStruct().parameters);
    EXPECT_EQ(a, f.action.getParameterListFront());
}

TEST(MoActionWrapperTest, ParametersChainInDefinitionOrder)
{
    ActionFixture f;
    ParameterWrapper* a = ActionFixture::parameter("a");
    ParameterWrapper* b = ActionFixture::parameter("b");
    ParameterWrapper* c = ActionFixture::parameter("c");
    f.action.addParameter(a);
    f.action.addParameter(b);
    f.action.addParameter(c);
    const ZefOamSpiParameter* first = f.action.getStruct().parameters;
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(&b->getStruct(), first->next);
    EXPECT_EQ(&c->getStruct(), first->next->next);
    EXPECT_EQ(nullptr, first->next->next->next);
    EXPECT_EQ(b, a->getNext());
    EXPECT_EQ(3u, f.action.getParameterList().size());
}

TEST(MoActionWrapperTest, SameParameterNameTwiceIsRefused)
{
    ZefTest::LogCapture log;
    ActionFixture f;
    ParameterWrapper* a = ActionFixture::parameter("a");
    ParameterWrapper* again = ActionFixture::parameter("a");
    EXPECT_EQ(ZefOk, f.action.addParameter(a));
    EXPECT_EQ(ZefAlreadyExists, f.action.addParameter(again));
    EXPECT_EQ(1u, f.action.getParameterList().size());
    EXPECT_EQ(nullptr, a->getStruct().next);
    EXPECT_EQ(Messages{"Member (a) already exist."}, log.errors());
    delete again;
}

TEST(MoActionWrapperTest, NullAndUnnamedParametersAreRefused)
{
    ZefTest::LogCapture log;
    ActionFixture f;
    ParameterWrapper unnamed;
    EXPECT_EQ(ZefInvalidArgument, f.action.addParameter(nullptr));
    EXPECT_EQ(ZefInvalidArgument, f.action.addParameter(&unnamed));
    EXPECT_EQ(nullptr, f.action.getStruct().parameters);
    EXPECT_EQ(Messages({"Pointer of the member is 0, can not add to the list.",
                        "Can not get id, patameter name is 0.", "Member id is empty, can not add to the list."}),
              log.errors());
}

TEST(MoActionWrapperTest, ReturnTypeSetters)
{
    ZefTest::LogCapture log;
    MoActionWrapper action;
    ZefOamSpiMoc target{};
    EXPECT_EQ(ZefOk, action.setType(ZefMrType3Reference));
    EXPECT_EQ(ZefOk, action.setReferencedMoc(&target));
    EXPECT_EQ(ZefOk, action.setDefaultValue("x"));
    EXPECT_EQ(ZefAlreadyExists, action.setDefaultValue("y"));
    EXPECT_EQ(ZefOk, action.setMin("0"));
    EXPECT_EQ(ZefOk, action.setMax("*"));
    const ZefOamSpiDatatypeContainer& t = action.getStruct().returnType;
    EXPECT_EQ(ZefMrType3Reference, t.type);
    EXPECT_EQ(&target, t.referencedMoc);
    EXPECT_STREQ("x", t.defaultValue);
    EXPECT_EQ(0, t.multiplicityRange.min);
    EXPECT_EQ(32767, t.multiplicityRange.max);
    EXPECT_TRUE(action.getIsMinSet());
    EXPECT_TRUE(action.getIsMaxSet());
    EXPECT_EQ(Messages{"Default value (y) is already set to (x)."}, log.errors());
}

TEST(MoActionWrapperTest, DomainExtensionsAreKept)
{
    MoActionWrapper action;
    action.push_back_domain_extension("QCIM", "isNillable", "true");
    EXPECT_TRUE(action.isNillable());
}

TEST(MoActionWrapperTest, NextLinksWrapperAndRecord)
{
    MoActionWrapper a;
    MoActionWrapper b;
    EXPECT_EQ(ZefOk, a.setNext(&b));
    EXPECT_EQ(&b, a.getNext());
    EXPECT_EQ(&b.getStruct(), a.getStruct().next);
    EXPECT_EQ(ZefOk, a.setNext(nullptr));
    EXPECT_EQ(nullptr, a.getStruct().next);
}

TEST(MoActionWrapperTest, HandlesAreKeptInTheRecord)
{
    MoActionWrapper action;
    action.setHandle(3017);
    action.setGeneralPropertiesHandle(3019);
    EXPECT_EQ(3017u, action.getHandle());
    EXPECT_EQ(3017u, action.getStruct().handle);
    EXPECT_EQ(3019u, action.getStruct().generalPropertiesHandle);
}

TEST(MoActionWrapperTest, Dump)
{
    ActionFixture f;
    f.action.setType(ZefMrType3Void);
    ParameterWrapper* p = ActionFixture::parameter("p");
    p->setType(ZefMrType3String);
    f.action.addParameter(p);
    EXPECT_EQ("-- MoAction (act) --\n"
              "Name:              act\n"
              "Description:       \n"
              "Specification:     \n"
              "Status:            1\n"
              "Hidden:            \n"
              "Type:              15\n"
              "DefaultValue:      \n"
              "MultiplicityMin:   1\n"
              "MultiplicityMax:   1\n"
              "IsOrdered:         0\n"
              "IsUnique:          1\n"
              "    -- Parameter (p) --\n"
              "    Name:              p\n"
              "    Description:       \n"
              "    Specification:     \n"
              "    Status:            1\n"
              "    Hidden:            \n"
              "    Type:              9\n"
              "    DefaultValue:      \n"
              "    MultiplicityMin:   1\n"
              "    MultiplicityMax:   1\n"
              "    IsOrdered:         0\n"
              "    IsUnique:          1\n",
              f.action.toString());
}
