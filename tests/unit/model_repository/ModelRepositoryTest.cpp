#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "AssociationEndWrapper.h"
#include "AttrWrapper.h"
#include "BiDirAssociationWrapper.h"
#include "ContWrapper.h"
#include "DdtWrapper.h"
#include "EnumWrapper.h"
#include "FindingRuleCheck.h"
#include "LogCapture.h"
#include "MoActionWrapper.h"
#include "ModelRepository.h"
#include "MomWrapper.h"
#include "StructWrapper.h"
#include "UniDirAssociationWrapper.h"
#include "ZefException.h"

using namespace ZefModelRepositoryService;

namespace {

class ModelRepositoryTest : public ::testing::Test {
protected:
    void SetUp() override { repository.setStandalone(true); }
    void TearDown() override {
        if (findingsHaveRules) {
            ZefTest::expectEveryFindingHasItsRule(repository);
        }
    }

    std::vector<std::string> messages() const {
        return std::vector<std::string>(repository.getMessages().begin(), repository.getMessages().end());
    }

    MomWrapper* newMom(const std::string& name, const std::string& version) {
        MomWrapper* mom = new MomWrapper();
        mom->setName(name);
        mom->setVersion(version);
        return mom;
    }

    MocWrapper* newMoc(MomWrapper* mom, const std::string& name) {
        MocWrapper* moc = new MocWrapper();
        moc->setMom(&mom->getStruct());
        moc->setName(name);
        return moc;
    }

    ZefTest::LogCapture log;
    ModelRepository repository;
    // Cleared by a test that reports made-up texts of no rule.
    bool findingsHaveRules = true;
};

TEST_F(ModelRepositoryTest, SecondMocOfOneKeyIsRefusedAndTheFirstKept) {
    MomWrapper* mom = newMom("m", "1.0");
    ASSERT_EQ(ZefOk, repository.addMom(mom));
    MocWrapper* first = newMoc(mom, "C");
    MocWrapper* second = newMoc(mom, "C");
    EXPECT_EQ(ZefOk, repository.addMoc(first));
    EXPECT_EQ(ZefAlreadyExists, repository.addMoc(second));
    delete second;
    EXPECT_EQ(first, repository.getMocMap().at("m~1.0~C"));
    EXPECT_EQ(std::vector<std::string>{"ERROR, ModelRepository: Moc (m~1.0~C) is already added to the map."},
              messages());
    EXPECT_EQ(std::vector<std::string>{"Moc (m~1.0~C) is already added to the map."}, log.errors());
}

TEST_F(ModelRepositoryTest, OutsideStandaloneModeAnErrorThrows) {
    repository.setStandalone(false);
    MomWrapper* mom = newMom("m", "1.0");
    ASSERT_EQ(ZefOk, repository.addMom(mom));
    ASSERT_EQ(ZefOk, repository.addMoc(newMoc(mom, "C")));
    MocWrapper* second = newMoc(mom, "C");
    try {
        repository.addMoc(second);
        ADD_FAILURE() << "no exception";
    } catch (const Zef::ZefException& e) {
        EXPECT_EQ("ModelRepository: invalid model", e.getReason());
    }
    delete second;
    EXPECT_EQ(std::vector<std::string>{"ERROR, ModelRepository: Moc (m~1.0~C) is already added to the map."},
              messages());
}

TEST_F(ModelRepositoryTest, NullRecordsAreRefused) {
    EXPECT_EQ(ZefInvalidArgument, repository.addMom(nullptr));
    EXPECT_EQ(ZefInvalidArgument, repository.addMoc(nullptr));
    EXPECT_EQ(ZefInvalidArgument, repository.addDdt(nullptr));
    EXPECT_EQ(ZefInvalidArgument, repository.addEnum(nullptr));
    EXPECT_EQ(ZefInvalidArgument, repository.addStruct(nullptr));
    EXPECT_EQ(ZefInvalidArgument, repository.addCont(nullptr));
    EXPECT_EQ(ZefInvalidArgument, repository.addAssocEnd(nullptr));
    EXPECT_EQ(ZefInvalidArgument, repository.addBidir(nullptr));
    EXPECT_EQ(ZefInvalidArgument, repository.addUnidir(nullptr));
    EXPECT_EQ((std::vector<std::string>{
                  "ERROR, ModelRepository: Mom is 'null', can not add to the map.",
                  "ERROR, ModelRepository: Moc is 'null', can not add to the map.",
                  "ERROR, ModelRepository: Ddt is 'null', can not add to the map.",
                  "ERROR, ModelRepository: Enum is 'null', can not add to the map.",
                  "ERROR, ModelRepository: Struct is 'null', can not add to the map.",
                  "ERROR, ModelRepository: Containment is 'null', can not add to the map.",
                  "ERROR, ModelRepository: Association end is 'null', can not add to the map.",
                  "ERROR, ModelRepository: Bidirectional association is 'null', can not add to the map.",
                  "ERROR, ModelRepository: Unidirectional association is 'null', can not add to the map.",
              }),
              messages());
}

TEST_F(ModelRepositoryTest, IncompleteRecordsAreRefused) {
    MomWrapper mom;
    MocWrapper moc;
    DdtWrapper ddt;
    EnumWrapper enumeration;
    StructWrapper structure;
    EXPECT_EQ(ZefFailure, repository.addMom(&mom));
    EXPECT_EQ(ZefFailure, repository.addMoc(&moc));
    EXPECT_EQ(ZefFailure, repository.addDdt(&ddt));
    EXPECT_EQ(ZefFailure, repository.addEnum(&enumeration));
    EXPECT_EQ(ZefFailure, repository.addStruct(&structure));
    std::vector<std::string> all = messages();
    // The key builders log their own reasons; the repository reports its texts.
    EXPECT_EQ((std::vector<std::string>{
                  "ERROR, ModelRepository: Incomplete Mom, could not add to the list.",
                  "ERROR, ModelRepository: Incomplete Moc, could not add to the map.",
                  "ERROR, ModelRepository: Incomplete Ddt, could not add to the map.",
                  "ERROR, ModelRepository: Incomplete Enum, could not add to the map.",
                  "ERROR, ModelRepository: Incomplete struct, can not add to the map.",
              }),
              all);
    EXPECT_TRUE(repository.getMomList().empty());
    EXPECT_TRUE(repository.getMocMap().empty());
}

TEST_F(ModelRepositoryTest, ContainmentWithoutNameNamesItsClasses) {
    MomWrapper* mom = newMom("m", "1.0");
    ASSERT_EQ(ZefOk, repository.addMom(mom));
    ContWrapper unnamed;
    unnamed.setMom(&mom->getStruct());
    unnamed.setParentMocName("Parent");
    unnamed.setChildMocName("Child");
    EXPECT_EQ(ZefFailure, repository.addCont(&unnamed));

    ContWrapper named;
    named.setName("holds");
    EXPECT_EQ(ZefFailure, repository.addCont(&named));

    EXPECT_EQ((std::vector<std::string>{
                  "ERROR, ModelRepository: Incomplete Containment, 'name' attribute is missing for the "
                  "parent(Parent) child(Child)relation,could not add to the map",
                  "ERROR, ModelRepository: Incomplete Cont, could not add to the map.",
              }),
              messages());
}

TEST_F(ModelRepositoryTest, DuplicateMomIsRefusedAndMomsAreChainedInOrder) {
    MomWrapper* a = newMom("a", "1");
    MomWrapper* b = newMom("b", "1");
    MomWrapper* again = newMom("a", "1");
    EXPECT_EQ(ZefOk, repository.addMom(a));
    EXPECT_EQ(ZefOk, repository.addMom(b));
    EXPECT_EQ(ZefAlreadyExists, repository.addMom(again));
    delete again;
    EXPECT_EQ(std::vector<std::string>{"ERROR, ModelRepository: Mom (a~1) already added to the list."}, messages());
    const ZefOamSpiMom* first = nullptr;
    ASSERT_EQ(ZefOk, repository.getMoms(&first));
    EXPECT_EQ(&a->getStruct(), first);
    EXPECT_EQ(&b->getStruct(), first->next);
    EXPECT_EQ(nullptr, first->next->next);
}

TEST_F(ModelRepositoryTest, GetMomsOfAnEmptyRepository) {
    const ZefOamSpiMom* untouched = reinterpret_cast<const ZefOamSpiMom*>(0x1);
    EXPECT_EQ(ZefNotFound, repository.getMoms(&untouched));
    EXPECT_EQ(reinterpret_cast<const ZefOamSpiMom*>(0x1), untouched);
    std::vector<std::string> traces = log.traces();
    EXPECT_NE(traces.end(), std::find(traces.begin(), traces.end(), "No MOM is available."));
}

TEST_F(ModelRepositoryTest, LongMessagesAreCut) {
    findingsHaveRules = false;
    std::string longText(5000, 'x');
    repository.checkThrowException(4, "%s", longText.c_str());
    ASSERT_EQ(1u, repository.getMessages().size());
    const std::string& entry = repository.getMessages().front();
    EXPECT_EQ("WARNING, ModelRepository: " + std::string(4095, 'x'), entry);
}

TEST_F(ModelRepositoryTest, OtherLevelsAreRecordedWithoutPrefix) {
    findingsHaveRules = false;
    repository.checkThrowException(6, "note %d", 7);
    EXPECT_EQ(std::vector<std::string>{"note 7"}, messages());
}

TEST_F(ModelRepositoryTest, GetMocByItsMomNameAndVersion) {
    MomWrapper* mom = newMom("m", "1.0");
    ASSERT_EQ(ZefOk, repository.addMom(mom));
    MocWrapper* moc = newMoc(mom, "C");
    ASSERT_EQ(ZefOk, repository.addMoc(moc));
    const ZefOamSpiMoc* found = nullptr;
    EXPECT_EQ(ZefOk, repository.getMoc("m", "1.0", "C", &found));
    EXPECT_EQ(&moc->getStruct(), found);
    EXPECT_EQ(ZefNotFound, repository.getMoc("m", "2.0", "C", &found));
    EXPECT_EQ(ZefInvalidArgument, repository.getMoc("m", "", "C", &found));
}

TEST_F(ModelRepositoryTest, FileNameOfAMomWithAnotherVersionIsNotFound) {
    MomWrapper* mom = newMom("m", "1.0");
    mom->setFileName("models/m.xml");
    ASSERT_EQ(ZefOk, repository.addMom(mom));
    const char* file = nullptr;
    EXPECT_EQ(ZefOk, repository.getFileName("m", "1.0", &file));
    EXPECT_STREQ("models/m.xml", file);
    EXPECT_EQ(ZefNotFound, repository.getFileName("m", "2.0", &file));
    EXPECT_EQ(ZefInvalidArgument, repository.getFileName(nullptr, "1.0", &file));
    EXPECT_EQ(ZefInvalidArgument, repository.getFileName("m", "1.0", nullptr));
}

TEST_F(ModelRepositoryTest, MimVersionOfAUniqueAmbiguousAndMissingMom) {
    ASSERT_EQ(ZefOk, repository.addMom(newMom("a", "1")));
    ASSERT_EQ(ZefOk, repository.addMom(newMom("b", "1")));
    ASSERT_EQ(ZefOk, repository.addMom(newMom("b", "2")));
    std::string version = "old";
    repository.getMimVersion("a", version);
    EXPECT_EQ("1", version);
    repository.getMimVersion("b", version);
    EXPECT_EQ("", version);
    version = "kept";
    repository.getMimVersion("c", version);
    EXPECT_EQ("kept", version);
    EXPECT_EQ((std::vector<std::string>{"Can not resolve mimVersion, multiple possible MIMs (b)",
                                        "Cannot find Mim(c), no such Mim."}),
              log.errors());
    // Log entries only: nothing reaches the message list.
    EXPECT_TRUE(messages().empty());
}

TEST_F(ModelRepositoryTest, MimVersionSeesMomsAddedAfterALookup) {
    ASSERT_EQ(ZefOk, repository.addMom(newMom("a", "1")));
    std::string version;
    repository.getMimVersion("a", version);
    EXPECT_EQ("1", version);
    repository.getMimVersion("b", version);
    EXPECT_EQ("1", version);
    ASSERT_EQ(ZefOk, repository.addMom(newMom("b", "7")));
    ASSERT_EQ(ZefOk, repository.addMom(newMom("a", "2")));
    repository.getMimVersion("b", version);
    EXPECT_EQ("7", version);
    repository.getMimVersion("a", version);
    EXPECT_EQ("", version);
    EXPECT_EQ((std::vector<std::string>{"Cannot find Mim(b), no such Mim.",
                                        "Can not resolve mimVersion, multiple possible MIMs (a)"}),
              log.errors());
}

TEST_F(ModelRepositoryTest, MimNameAndVersionOfAClass) {
    MomWrapper* a = newMom("a", "1");
    MomWrapper* b = newMom("b", "2");
    ASSERT_EQ(ZefOk, repository.addMom(a));
    ASSERT_EQ(ZefOk, repository.addMom(b));
    ASSERT_EQ(ZefOk, repository.addMoc(newMoc(a, "Unique")));
    ASSERT_EQ(ZefOk, repository.addMoc(newMoc(a, "Twice")));
    ASSERT_EQ(ZefOk, repository.addMoc(newMoc(b, "Twice")));
    std::string name = "x";
    std::string version = "y";
    repository.getMimNameAndVersion("Unique", name, version);
    EXPECT_EQ("a", name);
    EXPECT_EQ("1", version);
    repository.getMimNameAndVersion("Twice", name, version);
    EXPECT_EQ("a", name);
    EXPECT_EQ("1", version);
    repository.getMimNameAndVersion("None", name, version);
    EXPECT_EQ("", name);
    EXPECT_EQ("", version);
    EXPECT_EQ((std::vector<std::string>{
                  "ERROR, ModelRepository: Cannot resolve mim for Moc(Twice), multiple possible Mims.",
                  "ERROR, ModelRepository: Cannot resolve mim for Moc(None), no such Moc.",
              }),
              messages());
}

TEST_F(ModelRepositoryTest, ModellingStandardMomNamesAreTranslated) {
    MomWrapper* mom = newMom("own", "3");
    mom->push_back_domain_extension("QCIM", "qcimMomName", "Standard");
    ASSERT_EQ(ZefOk, repository.addMom(mom));
    std::string name;
    std::string version;
    EXPECT_TRUE(repository.getMimInfoFromQcimName("Standard", name, version));
    EXPECT_EQ("own", name);
    EXPECT_EQ("3", version);
    EXPECT_FALSE(repository.getMimInfoFromQcimName("own", name, version));

    RefId ref;
    ref.setRefMomName("Standard");
    ref.setRefName("C");
    repository.translateMimName(ref);
    EXPECT_EQ("own~3~C", ref.getRefId());

    ContWrapper cont;
    cont.setParentMimName("Standard");
    cont.setChildMimName("Other");
    cont.setChildMimVersion("9");
    repository.translateMimNames(cont);
    EXPECT_EQ("own", cont.getParentMimName());
    EXPECT_EQ("3", cont.getParentMimVersion());
    EXPECT_EQ("Other", cont.getChildMimName());
    EXPECT_EQ("9", cont.getChildMimVersion());
}

// A tree Root -> Mid -> Leaf, and a second class named Leaf directly under Root.
class DistinguishedNameTest : public ModelRepositoryTest {
protected:
    void SetUp() override {
        ModelRepositoryTest::SetUp();
        mom = newMom("m", "1");
        ASSERT_EQ(ZefOk, repository.addMom(mom));
        root = newMoc(mom, "Root");
        mid = newMoc(mom, "Mid");
        leaf = newMoc(mom, "Leaf");
        ASSERT_EQ(ZefOk, repository.addMoc(root));
        ASSERT_EQ(ZefOk, repository.addMoc(mid));
        ASSERT_EQ(ZefOk, repository.addMoc(leaf));
        link(rootMid, root, mid);
        link(midLeaf, mid, leaf);
    }

    static void link(ContWrapper& cont, MocWrapper* parent, MocWrapper* child) {
        cont.setParentMoc(&parent->getStruct());
        cont.setChildMoc(&child->getStruct());
        child->setParentContainment(&cont.getStruct());
        parent->setChildContainment(&cont.getStruct());
    }

    MomWrapper* mom = nullptr;
    MocWrapper* root = nullptr;
    MocWrapper* mid = nullptr;
    MocWrapper* leaf = nullptr;
    ContWrapper rootMid;
    ContWrapper midLeaf;
};

TEST_F(DistinguishedNameTest, UniqueClassNameIsEnoughWithoutTheFlag) {
    repository.buildMocNameCache();
    const ZefOamSpiMoc* found = nullptr;
    EXPECT_EQ(ZefOk, repository.getMocFromDn("Nowhere=1,Leaf=2", false, &found));
    EXPECT_EQ(&leaf->getStruct(), found);
}

TEST_F(DistinguishedNameTest, WithTheFlagTheContainmentPathMustMatch) {
    repository.buildMocNameCache();
    const ZefOamSpiMoc* found = nullptr;
    EXPECT_EQ(ZefNotFound, repository.getMocFromDn("Nowhere=1,Leaf=2", true, &found));
    EXPECT_EQ(ZefOk, repository.getMocFromDn("Root=1,Mid=1,Leaf=2", true, &found));
    EXPECT_EQ(&leaf->getStruct(), found);
    EXPECT_EQ(ZefNotFound, repository.getMocFromDn("Root=1,Leaf=2", true, &found));
    EXPECT_EQ(ZefOk, repository.getMocFromDn("Root=1", true, &found));
    EXPECT_EQ(&root->getStruct(), found);
}

TEST_F(DistinguishedNameTest, TwoClassesOfOneNameAreTellApartByTheirPath) {
    MomWrapper* other = newMom("o", "1");
    ASSERT_EQ(ZefOk, repository.addMom(other));
    MocWrapper* otherLeaf = newMoc(other, "Leaf");
    ASSERT_EQ(ZefOk, repository.addMoc(otherLeaf));
    ContWrapper rootOtherLeaf;
    link(rootOtherLeaf, root, otherLeaf);
    repository.buildMocNameCache();

    const ZefOamSpiMoc* found = nullptr;
    EXPECT_EQ(ZefOk, repository.getMocFromDn("Root=1,Leaf=2", false, &found));
    EXPECT_EQ(&otherLeaf->getStruct(), found);
    EXPECT_EQ(ZefOk, repository.getMocFromDn("Root=1,Mid=1,Leaf=2", false, &found));
    EXPECT_EQ(&leaf->getStruct(), found);
}

TEST_F(DistinguishedNameTest, NameCacheKeepsClassesOfOneName) {
    MomWrapper* other = newMom("o", "1");
    ASSERT_EQ(ZefOk, repository.addMom(other));
    ASSERT_EQ(ZefOk, repository.addMoc(newMoc(other, "Leaf")));
    repository.buildMocNameCache();
    EXPECT_EQ(2u, repository.getMocNameCache().count("Leaf"));
    EXPECT_EQ(4u, repository.getMocNameCache().size());
}

TEST_F(ModelRepositoryTest, CleanupKeepsMessagesAndTheAnyClassMoc) {
    findingsHaveRules = false;
    MomWrapper* mom = newMom("m", "1");
    ASSERT_EQ(ZefOk, repository.addMom(mom));
    ASSERT_EQ(ZefOk, repository.addMoc(newMoc(mom, "C")));
    repository.checkThrowException(4, "kept");
    repository.cleanup();
    EXPECT_TRUE(repository.getMomList().empty());
    EXPECT_TRUE(repository.getMocMap().empty());
    EXPECT_EQ(std::vector<std::string>{"WARNING, ModelRepository: kept"}, messages());
    EXPECT_STREQ("ManagedObject", repository.getAnyClassMoc().getStruct().generalProperties.name);
    // The same key can be added again afterwards.
    ASSERT_EQ(ZefOk, repository.addMom(newMom("m", "1")));
}

// The sanitizer build reports a leak here if cleanup forgets the members of
// a class.
TEST_F(ModelRepositoryTest, CleanupDestroysTheAttributesAndActionsOfEachClass) {
    MomWrapper* mom = newMom("m", "1");
    ASSERT_EQ(ZefOk, repository.addMom(mom));
    MocWrapper* moc = newMoc(mom, "C");
    AttrWrapper* attr = new AttrWrapper();
    attr->setName("a");
    attr->setMoc(&moc->getStruct());
    ASSERT_EQ(ZefOk, moc->addAttr(attr));
    MoActionWrapper* action = new MoActionWrapper();
    action->setName("act");
    action->setMoc(&moc->getStruct());
    ASSERT_EQ(ZefOk, moc->addMoAction(action));
    ASSERT_EQ(ZefOk, repository.addMoc(moc));
    repository.cleanup();
    EXPECT_TRUE(repository.getMocMap().empty());
}

TEST_F(ModelRepositoryTest, DumpWritesEveryRecord) {
    MomWrapper* mom = newMom("m", "1");
    ASSERT_EQ(ZefOk, repository.addMom(mom));
    MocWrapper* moc = newMoc(mom, "C");
    ASSERT_EQ(ZefOk, repository.addMoc(moc));
    repository.dumpModel();
    std::string text = log.text();
    EXPECT_NE(std::string::npos, text.find("-- Mom (m) --"));
    EXPECT_NE(std::string::npos, text.find("-- Moc (C)--"));
}

} // namespace
