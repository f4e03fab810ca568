#include <gtest/gtest.h>

#include <type_traits>

#include "LogCapture.h"
#include "MocWrapper.h"
#include "MomWrapper.h"
#include "MrUtil.h"

using namespace ZefModelRepositoryService;

using Messages = std::vector<std::string>;

TEST(MomWrapperTest, NewRecordIsEmpty)
{
    MomWrapper mom;
    const ZefOamSpiMom& r = mom.getStruct();
    EXPECT_EQ(nullptr, r.generalProperties.name);
    EXPECT_EQ(ZefOamSpiStatusCurrent, r.generalProperties.status);
    EXPECT_EQ(nullptr, r.version);
    EXPECT_EQ(nullptr, r.release);
    EXPECT_EQ(nullptr, r.namespaceURI);
    EXPECT_EQ(nullptr, r.namespacePrefix);
    EXPECT_EQ(nullptr, r.rootMoc);
    EXPECT_EQ(nullptr, r.docNo);
    EXPECT_EQ(nullptr, r.revision);
    EXPECT_EQ(nullptr, r.author);
    EXPECT_EQ(nullptr, r.organization);
    EXPECT_EQ(nullptr, r.next);
    EXPECT_EQ(0u, r.handle);
    EXPECT_EQ(0u, r.generalPropertiesHandle);
    EXPECT_EQ(nullptr, mom.getNext());
    EXPECT_EQ(nullptr, mom.getCorrection());
    EXPECT_EQ("", mom.getFileName());
    EXPECT_FALSE(mom.getHasMocs());
    EXPECT_TRUE(mom.getModelFeatures().empty());
    EXPECT_EQ("CURRENT", mom.getStatus3());
    static_assert(std::has_virtual_destructor<MomWrapper>::value, "records are polymorphic");
}

TEST(MomWrapperTest, KeyOfNameAndVersion)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("m~1.0", MomWrapper::getMomId("m", "1.0"));
    EXPECT_TRUE(log.errors().empty());
}

TEST(MomWrapperTest, KeyBuilderMessages)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("", MomWrapper::getMomId(nullptr, "1.0"));
    EXPECT_EQ("", MomWrapper::getMomId("m", nullptr));
    EXPECT_EQ("", MomWrapper::getMomId("", "1.0"));
    EXPECT_EQ("", MomWrapper::getMomId("m", ""));
    // A null part is named before an empty one.
    EXPECT_EQ("", MomWrapper::getMomId("", nullptr));
    EXPECT_EQ("", MomWrapper::getMomId(static_cast<const ZefOamSpiMom*>(nullptr)));
    EXPECT_EQ(Messages({"Couldn't get mom id, mom name is NULL", "Couldn't get mom id, mom version is NULL",
                        "Couldn't get mom id, mom name isn't set", "Couldn't get mom id, mom version isn't set",
                        "Couldn't get mom id, mom version is NULL", "Couldn't get mom id, mom is NULL"}),
              log.errors());
    // Each failure is also traced under the builder's name.
    const Messages traces = log.traces();
    EXPECT_EQ(6u, traces.size());
    EXPECT_NE(std::string::npos, log.text().find("getMomId"));
}

TEST(MomWrapperTest, EmptyVersionGivesNoKey)
{
    ZefTest::LogCapture log;
    EXPECT_EQ("", MomWrapper::getMomId("m", ""));
    EXPECT_EQ(Messages{"Couldn't get mom id, mom version isn't set"}, log.errors());
}

TEST(MomWrapperTest, IdentityKeyIsCachedOnceBuilt)
{
    ZefTest::LogCapture log;
    MomWrapper mom;
    EXPECT_EQ("", mom.getId());
    EXPECT_EQ(Messages{"Couldn't get mom id, mom name is NULL"}, log.errors());
    mom.setName("m");
    mom.setVersion("1.0");
    EXPECT_EQ("m~1.0", mom.getId());
    // Changing the record behind the wrapper's back does not change the key.
    MrUtil::freeString(mom.getStruct().version);
    mom.getStruct().version = MrUtil::toChar("2.0");
    EXPECT_EQ("m~1.0", mom.getId());
    const GeneralPropertiesWrapper& base = mom;
    EXPECT_EQ("m~1.0", base.getId());
}

TEST(MomWrapperTest, VersionIsRequiredAndFirstValueWins)
{
    ZefTest::LogCapture log;
    MomWrapper mom;
    EXPECT_EQ(ZefInvalidArgument, mom.setVersion(""));
    EXPECT_EQ(nullptr, mom.getStruct().version);
    EXPECT_EQ(ZefOk, mom.setVersion("1.0"));
    EXPECT_EQ(ZefAlreadyExists, mom.setVersion("2.0"));
    EXPECT_EQ(ZefAlreadyExists, mom.setVersion(""));
    EXPECT_STREQ("1.0", mom.getStruct().version);
    EXPECT_EQ("1.0", mom.getVersion());
    EXPECT_EQ(Messages{"MOM version can not be empty, must be set."}, log.errors());
}

TEST(MomWrapperTest, CorrectionIsRequiredAndFirstValueWins)
{
    ZefTest::LogCapture log;
    MomWrapper mom;
    EXPECT_EQ(ZefInvalidArgument, mom.setCorrection(""));
    EXPECT_EQ(nullptr, mom.getCorrection());
    EXPECT_EQ(ZefOk, mom.setCorrection("A"));
    EXPECT_EQ(ZefAlreadyExists, mom.setCorrection("B"));
    EXPECT_STREQ("A", mom.getCorrection());
    EXPECT_EQ(Messages{"MOM correction can not be empty, must be set."}, log.errors());
    EXPECT_EQ(Messages{"value of correction in setcorrection is A"}, log.traces());
}

TEST(MomWrapperTest, OtherTextsFirstValueWinsAndAcceptEmpty)
{
    using Setter = ZefReturnT (MomWrapper::*)(const std::string&);
    struct Field {
        Setter setter;
        char* ZefOamSpiMom::*field;
    };
    const Field fields[] = {
        {&MomWrapper::setRelease, &ZefOamSpiMom::release},
        {&MomWrapper::setNamespaceURI, &ZefOamSpiMom::namespaceURI},
        {&MomWrapper::setNamespacePrefix, &ZefOamSpiMom::namespacePrefix},
        {&MomWrapper::setDocNo, &ZefOamSpiMom::docNo},
        {&MomWrapper::setRevision, &ZefOamSpiMom::revision},
        {&MomWrapper::setAuthor, &ZefOamSpiMom::author},
        {&MomWrapper::setOrganization, &ZefOamSpiMom::organization},
    };
    for (const Field& f : fields) {
        MomWrapper mom;
        EXPECT_EQ(ZefOk, (mom.*f.setter)(""));
        EXPECT_EQ(ZefAlreadyExists, (mom.*f.setter)("x"));
        EXPECT_STREQ("", mom.getStruct().*f.field);
        MomWrapper other;
        EXPECT_EQ(ZefOk, (other.*f.setter)("a"));
        EXPECT_EQ(ZefAlreadyExists, (other.*f.setter)("b"));
        EXPECT_STREQ("a", other.getStruct().*f.field);
    }
}

TEST(MomWrapperTest, NextLinksWrapperAndRecord)
{
    ZefTest::LogCapture log;
    MomWrapper first;
    first.setName("a");
    MomWrapper second;
    second.setName("b");
    second.setVersion("2");
    EXPECT_EQ(ZefOk, first.setNext(&second));
    EXPECT_EQ(&second, first.getNext());
    EXPECT_EQ(&second.getStruct(), first.getStruct().next);
    EXPECT_EQ("b~2", first.getNextId());
    EXPECT_EQ("", second.getNextId());
    EXPECT_EQ(Messages{"Next MOM is not set for 'b' MOM."}, log.errors());

    MomWrapper third;
    EXPECT_EQ(ZefOk, third.setNext(&second.getStruct()));
    EXPECT_EQ(&second.getStruct(), third.getStruct().next);
    EXPECT_EQ(nullptr, third.getNext());
    EXPECT_EQ(ZefOk, first.setNext(static_cast<MomWrapper*>(nullptr)));
    EXPECT_EQ(nullptr, first.getStruct().next);
}

TEST(MomWrapperTest, RootMocKey)
{
    ZefTest::LogCapture log;
    MomWrapper mom;
    mom.setName("m");
    mom.setVersion("1.0");
    EXPECT_EQ("", mom.getRootMocId());

    MocWrapper orphan;
    orphan.setName("X");
    mom.setRootMoc(&orphan.getStruct());
    EXPECT_EQ("", mom.getRootMocId());

    MocWrapper root;
    root.setName("R");
    root.setMom(&mom.getStruct());
    EXPECT_EQ(ZefOk, mom.setRootMoc(&root.getStruct()));
    EXPECT_EQ(&root.getStruct(), mom.getStruct().rootMoc);
    EXPECT_EQ("m~1.0~R", mom.getRootMocId());
    EXPECT_EQ(Messages({"Root MOC is not set for 'm' MOM.", "RootMoc mom is not set for 'm' MOM."}), log.errors());
}

TEST(MomWrapperTest, FileNameFeaturesAndHandles)
{
    MomWrapper mom;
    mom.setFileName("/models/a.xml");
    EXPECT_EQ("/models/a.xml", mom.getFileName());
    mom.setHasMocs(true);
    EXPECT_TRUE(mom.getHasMocs());
    mom.setModelFeatureNames("f1");
    mom.setModelFeatureNames("f2");
    std::vector<std::string> features = mom.getModelFeatures();
    EXPECT_EQ(std::vector<std::string>({"f1", "f2"}), features);
    features.push_back("changed copy");
    EXPECT_EQ(2u, mom.getModelFeatures().size());
    mom.setHandle(3017);
    mom.setGeneralPropertiesHandle(3018);
    EXPECT_EQ(3017u, mom.getHandle());
    EXPECT_EQ(3017u, mom.getStruct().handle);
    EXPECT_EQ(3018u, mom.getGeneralPropertiesHandle());
    EXPECT_EQ(3018u, mom.getStruct().generalPropertiesHandle);
}

TEST(MomWrapperTest, Dump)
{
    ZefTest::LogCapture log;
    MomWrapper mom;
    mom.setName("m");
    mom.setDescription("desc");
    mom.setSpecification("spec");
    mom.setStatus(ZefOamSpiStatusDeprecated);
    mom.setHidden("hid");
    mom.setVersion("1.0");
    mom.setRelease("R1");
    mom.setCorrection("C2");
    mom.setNamespaceURI("urn:x");
    mom.setNamespacePrefix("x");
    mom.setDocNo("D");
    mom.setRevision("A");
    mom.setAuthor("me");
    mom.setOrganization("org");
    MocWrapper root;
    root.setName("Root");
    root.setMom(&mom.getStruct());
    mom.setRootMoc(&root.getStruct());
    MomWrapper next;
    next.setName("n");
    next.setVersion("2");
    mom.setNext(&next);
    EXPECT_EQ("-- Mom (m) --\n"
              "name:              m\n"
              "description:       desc\n"
              "specification:     spec\n"
              "status:            2\n"
              "hidden:            hid\n"
              "version:           1.0\n"
              "release:           R1\n"
              "correction:        C2\n"
              "namespaceURI:      urn:x\n"
              "namespacePrefix:   x\n"
              "docNo:             D\n"
              "revision:          A\n"
              "author:            me\n"
              "organization:      org\n"
              "Moc:               m~1.0~Root\n"
              "Next:              n~2\n",
              mom.toString());
    EXPECT_TRUE(log.errors().empty());
}

TEST(MomWrapperTest, DumpOfAnEmptyRecord)
{
    ZefTest::LogCapture log;
    MomWrapper mom;
    EXPECT_EQ("-- Mom () --\n"
              "name:              \n"
              "description:       \n"
              "specification:     \n"
              "status:            1\n"
              "hidden:            \n"
              "version:           \n"
              "release:           \n"
              "correction:        \n"
              "namespaceURI:      \n"
              "namespacePrefix:   \n"
              "docNo:             \n"
              "revision:          \n"
              "author:            \n"
              "organization:      \n"
              "Moc:               \n"
              "Next:              \n",
              mom.toString());
    EXPECT_TRUE(log.errors().empty());
}
