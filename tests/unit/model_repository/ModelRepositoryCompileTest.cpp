// compileModel as a whole: the order of its steps and of their findings,
// the root class of each MOM, the multiplicity defaults, the
// modelling-standard name map, the class name cache, and findTreeRoot.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "CompileTestSupport.h"
#include "ZefException.h"

namespace ZefTest {
namespace {

using Strings = std::vector<std::string>;

// ---- steps and their order ---------------------------------------------------

TEST_F(CompileTest, TracesEveryStepInOrder) {
    MomWrapper* mom = addMom("M");
    MocWrapper* a = addRootMoc(mom, "A");
    addMoc(mom, "B");
    addAttr(a, "a", ZefMrType3Int32);
    StructWrapper* s = addStruct(mom, "S");
    addMember(s, "m", ZefMrType3String);

    repository.compileModel();

    EXPECT_EQ((Strings{" >> ", "Compiling the MOMs", "Compiling the Containments", "Compiling the Mocs",
                       "Compiling the attributes in the Moc (M~1.0~A)", "Compiling the attributes in the Moc (M~1.0~B)",
                       "Compiling the Bidirectional associations", "Compiling the Unidirectional associations",
                       "Compiling the Structs", "Compiling the members in the Struct (M~1.0~S)", " << "}),
              tracesOf("compileModel"));
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(CompileTest, FindingsFollowTheOrderOfTheSteps) {
    MomWrapper* mom = addMom("M");
    MomWrapper* loose = looseMom("X");
    addRootMoc(loose, "R");
    MocWrapper* a = addRootMoc(mom, "A");
    addCont(mom, "c1", "A", "Missing");
    addAttr(a, "a", ZefMrType3Enum, Ref{"NoEnum"});
    addBidir(mom, "b", "M~1.0~e1~rel", "M~1.0~e2~rel");
    addUnidir(mom, "u", "M~1.0~e3~rel", "M~1.0~Nowhere");
    StructWrapper* s = addStruct(mom, "S");
    addMember(s, "m", ZefMrType3Struct, Ref{"NoStruct"});

    repository.compileModel();

    EXPECT_EQ((Strings{
                  // 1: MOMs
                  error("Could not find Mom (X~1.0) refered by the root Moc (X~1.0~R)."),
                  // 2: containments
                  error("Did not not find child Moc(M~1.0~Missing) for containment(M~1.0~c1)."),
                  error("compileChildListConts(), failed to find Moc(M~1.0~Missing)"),
                  // 3: classes
                  error("Attribute (M~1.0~A~a) refers to a Enum (M~1.0~NoEnum) which could not be found."),
                  // 4: bidirectional associations
                  error("Failed to resolve bidirectional (M~1.0~b)"),
                  error("Failed to resolve bidirectional (M~1.0~b)"),
                  error("Failed to resolve first association end moc for bidirectional (M~1.0~b)"),
                  error("Failed to resolve second association end moc for bidirectional (M~1.0~b)"),
                  error("Failed to resolve second association end moc for bidirectional (M~1.0~b)"),
                  error("Failed to resolve first association end moc for bidirectional (M~1.0~b)"),
                  // 5: unidirectional associations
                  error("Failed to resolve end association for unidirectional (M~1.0~u)"),
                  error("Did not find origin Moc for unidir association (M~1.0~u)."),
                  // 6: structs
                  error("StructMember (m) refers to a Struct(M~1.0~NoStruct) which can not be found."),
              }),
              takeMessages());
}

// ---- step 1: root classes ---------------------------------------------------

TEST_F(CompileTest, RootClassBecomesItsMomsRoot) {
    MomWrapper* m = addMom("M");
    MomWrapper* n = addMom("N", "2.0");
    MocWrapper* rm = addRootMoc(m, "R");
    MocWrapper* rn = addRootMoc(n, "Top");
    addMoc(m, "Other");

    repository.compileModel();

    EXPECT_EQ(&rm->getStruct(), m->getStruct().rootMoc);
    EXPECT_EQ(&rn->getStruct(), n->getStruct().rootMoc);
    EXPECT_TRUE(traced("Mom (M~1.0) has now root Moc (M~1.0~R) set."));
    EXPECT_TRUE(traced("Mom (N~2.0) has now root Moc (N~2.0~Top) set."));
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(CompileTest, SecondRootOfAMomInKeyOrderIsRefused) {
    MomWrapper* m = addMom("M");
    addRootMoc(m, "B");
    MocWrapper* a = addRootMoc(m, "A");

    repository.compileModel();

    EXPECT_EQ(&a->getStruct(), m->getStruct().rootMoc);
    EXPECT_EQ((Strings{error("Mom (M~1.0) can have only one root Moc (M~1.0~B).")}), takeMessages());
}

TEST_F(CompileTest, RootClassOfAnUnknownMomIsReported) {
    MomWrapper* loose = looseMom("X", "3");
    addRootMoc(loose, "R");

    repository.compileModel();

    EXPECT_EQ(nullptr, loose->getStruct().rootMoc);
    EXPECT_EQ((Strings{error("Could not find Mom (X~3) refered by the root Moc (X~3~R).")}), takeMessages());
}

// ---- step 3: multiplicity defaults ---------------------------------------------

TEST_F(CompileTest, ReadOnlyNillableAttributeWithoutBoundsGetsZeroToOne) {
    MomWrapper* m = addMom("M");
    MocWrapper* a = addMoc(m, "A");
    AttrWrapper* attr = addAttr(a, "a", ZefMrType3Int32);
    attr->setIsReadOnly(true);
    attr->push_back_domain_extension("QCIM", "isNillable", "true");

    repository.compileModel();

    EXPECT_EQ(0, attr->getStruct().multiplicityRange.min);
    EXPECT_EQ(1, attr->getStruct().multiplicityRange.max);
    EXPECT_TRUE(attr->getIsMinSet());
    EXPECT_TRUE(attr->getIsMaxSet());
}

TEST_F(CompileTest, WritableNonNillableAttributeWithoutBoundsGetsOneToOne) {
    MomWrapper* m = addMom("M");
    MocWrapper* a = addMoc(m, "A");
    AttrWrapper* attr = addAttr(a, "a", ZefMrType3Int32);
    // Make the bounds observable: the record starts at 1..1.
    attr->getStruct().multiplicityRange = {9, 9};

    repository.compileModel();

    EXPECT_EQ(1, attr->getStruct().multiplicityRange.min);
    EXPECT_EQ(1, attr->getStruct().multiplicityRange.max);
}

TEST_F(CompileTest, MultiplicityDefaultsOfEveryOtherKindOfAttribute) {
    MomWrapper* m = addMom("M");
    MocWrapper* a = addMoc(m, "A");
    AttrWrapper* writableNillable = addAttr(a, "wn", ZefMrType3Int32);
    writableNillable->push_back_domain_extension("QCIM", "isNillable", "true");
    AttrWrapper* readOnly = addAttr(a, "ro", ZefMrType3Int32);
    readOnly->setIsReadOnly(true);
    AttrWrapper* given = addAttr(a, "given", ZefMrType3Int32);
    given->setMin("3");
    given->setMax("7");
    AttrWrapper* onlyMax = addAttr(a, "onlyMax", ZefMrType3Int32);
    onlyMax->setMax("*");
    AttrWrapper* onlyMin = addAttr(a, "onlyMin", ZefMrType3Int32);
    onlyMin->setIsReadOnly(true);
    onlyMin->setMin("2");

    repository.compileModel();

    EXPECT_EQ(0, writableNillable->getStruct().multiplicityRange.min);
    EXPECT_EQ(1, writableNillable->getStruct().multiplicityRange.max);
    EXPECT_EQ(0, readOnly->getStruct().multiplicityRange.min);
    EXPECT_EQ(1, readOnly->getStruct().multiplicityRange.max);
    EXPECT_EQ(3, given->getStruct().multiplicityRange.min);
    EXPECT_EQ(7, given->getStruct().multiplicityRange.max);
    EXPECT_EQ(1, onlyMax->getStruct().multiplicityRange.min);
    EXPECT_EQ(32767, onlyMax->getStruct().multiplicityRange.max);
    EXPECT_EQ(2, onlyMin->getStruct().multiplicityRange.min);
    EXPECT_EQ(1, onlyMin->getStruct().multiplicityRange.max);
    EXPECT_TRUE(takeMessages().empty());
}

// ---- step 7: modelling-standard names ------------------------------------------

TEST_F(CompileTest, MomsAreFiledUnderTheirModellingStandardNames) {
    MomWrapper* m = addMom("M");
    setQcimName(m, "QM", "9");
    MomWrapper* n = addMom("N", "2.0");
    n->push_back_domain_extension("QCIM", "qcimMomName", "QN"); // no version: not filed
    MomWrapper* o = addMom("O", "3.0");
    o->push_back_domain_extension("QCIM", "qcimMomVersion", "1"); // no name: not filed
    MomWrapper* p = addMom("P", "4.0");
    setQcimName(p, "QP", "1");
    MomWrapper* later = addMom("L", "5.0");
    setQcimName(later, "QP", "1"); // the later MOM takes the name over

    EXPECT_TRUE(repository.getQcimNameMap().empty());
    repository.compileModel();

    const ZefModelRepositoryService::ModelRepository::QcimNameMap expected = {
        {"QM~9", {"M", "1.0"}},
        {"QP~1", {"L", "5.0"}},
    };
    EXPECT_EQ(expected, repository.getQcimNameMap());
}

TEST_F(CompileTest, ClassesCanBeAskedForByModellingStandardNameAfterCompilation) {
    MomWrapper* m = addMom("M");
    setQcimName(m, "QM", "9");
    MocWrapper* a = addMoc(m, "A");
    const ZefOamSpiMoc* found = nullptr;
    EXPECT_EQ(ZefNotFound, repository.getMoc("QM", "9", "A", &found));

    repository.compileModel();

    EXPECT_EQ(ZefOk, repository.getMoc("QM", "9", "A", &found));
    EXPECT_EQ(&a->getStruct(), found);
}

// ---- step 8: class name cache ---------------------------------------------------

TEST_F(CompileTest, ClassNameCacheHoldsEveryClassByPlainName) {
    MomWrapper* m = addMom("M");
    MomWrapper* n = addMom("N");
    MocWrapper* ma = addMoc(m, "A");
    MocWrapper* na = addMoc(n, "A");
    MocWrapper* mb = addMoc(m, "B");

    repository.compileModel();

    const auto& cache = repository.getMocNameCache();
    ASSERT_EQ(3u, cache.size());
    const auto as = cache.equal_range("A");
    std::vector<MocWrapper*> classesA;
    for (auto it = as.first; it != as.second; ++it) {
        classesA.push_back(it->second);
    }
    EXPECT_EQ((std::vector<MocWrapper*>{ma, na}), classesA);
    EXPECT_EQ(mb, cache.find("B")->second);
}

// ---- a model with an error ------------------------------------------------------

TEST_F(CompileTest, ModelWithOneErrorCompilesToTheEndAndHasNoTreeRoot) {
    MomWrapper* m = addMom("M");
    setQcimName(m, "QM", "1");
    MocWrapper* root = addRootMoc(m, "A");
    addAttr(root, "a", ZefMrType3Reference, Ref{"Nope"});
    EnumWrapper* e = addEnum(m, "E");
    StructWrapper* s = addStruct(m, "S");
    StructMemberWrapper* member = addMember(s, "m", ZefMrType3Enum, Ref{"E"});

    repository.compileModel();

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) refers to a Moc (M~1.0~Nope) which could not be found.")}),
              takeMessages());
    // The steps after the error still ran.
    EXPECT_EQ(&e->getStruct(), member->getEnumDatatype());
    EXPECT_EQ(1u, repository.getQcimNameMap().size());
    EXPECT_EQ(1u, repository.getMocNameCache().size());
    EXPECT_EQ(&root->getStruct(), m->getStruct().rootMoc);

    repository.findTreeRoot();

    const ZefOamSpiMoc* treeRoot = &root->getStruct();
    EXPECT_EQ(ZefOk, repository.getTreeRoot(&treeRoot));
    EXPECT_EQ(nullptr, treeRoot);
    const Strings errors = loggedErrors();
    ASSERT_GE(errors.size(), 2u);
    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) refers to a Moc (M~1.0~Nope) which could not be found."),
                       "The model contains errors. Setting tree root to NULL"}),
              Strings(errors.end() - 2, errors.end()));
}

TEST_F(CompileTest, OutsideStandaloneModeTheFirstErrorEndsCompilation) {
    repository.setStandalone(false);
    MomWrapper* m = addMom("M");
    setQcimName(m, "QM", "1");
    MocWrapper* a = addMoc(m, "A");
    addAttr(a, "a", ZefMrType3Reference, Ref{"Nope"});
    addAttr(a, "b", ZefMrType3Enum, Ref{"Nope"});
    StructWrapper* s = addStruct(m, "S");
    addMember(s, "m", ZefMrType3Struct, Ref{"Nope"});

    try {
        repository.compileModel();
        ADD_FAILURE() << "no exception";
    } catch (const Zef::ZefException& exception) {
        EXPECT_EQ("ModelRepository: invalid model", exception.getReason());
    }

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) refers to a Moc (M~1.0~Nope) which could not be found.")}),
              takeMessages());
    // The steps after the error did not run.
    EXPECT_TRUE(repository.getQcimNameMap().empty());
    EXPECT_TRUE(repository.getMocNameCache().empty());
}

// ---- findTreeRoot ---------------------------------------------------------------

class TreeRootTest : public CompileTest {
protected:
    /// Three MOMs: M's root R1 is the child of a containment, N's root is
    /// R2, O's root R3.
    void buildModel() {
        MomWrapper* m = addMom("M");
        r1 = addRootMoc(m, "R1");
        addMoc(m, "P");
        addCont(m, "c", "P", "R1");
        r2 = addRootMoc(addMom("N", "2.0"), "R2");
        r3 = addRootMoc(addMom("O", "3.0"), "R3");
        repository.compileModel();
        EXPECT_TRUE(takeMessages().empty());
    }

    const ZefOamSpiMoc* treeRoot() {
        const ZefOamSpiMoc* root = nullptr;
        EXPECT_EQ(ZefOk, repository.getTreeRoot(&root));
        return root;
    }

    MocWrapper* r1 = nullptr;
    MocWrapper* r2 = nullptr;
    MocWrapper* r3 = nullptr;
};

TEST_F(TreeRootTest, WithoutMainRootNameTheFirstRootWithoutParentIsTheTreeRoot) {
    buildModel();

    repository.findTreeRoot();

    EXPECT_EQ(&r2->getStruct(), treeRoot());
    EXPECT_TRUE(traced("Setting tree root to N+2.0+R2"));
}

TEST_F(TreeRootTest, WithMainRootNameTheRootOfThatNameIsTheTreeRoot) {
    buildModel();
    repository.setMainRootName("R3");

    repository.findTreeRoot();

    EXPECT_EQ(&r3->getStruct(), treeRoot());
    EXPECT_TRUE(traced("Found tree root"));
}

TEST_F(TreeRootTest, MainRootNameOfARootWithParentIsNotTaken) {
    buildModel();
    repository.setMainRootName("R1");

    repository.findTreeRoot();

    EXPECT_EQ(nullptr, treeRoot());
}

TEST_F(TreeRootTest, UnmatchedMainRootNameLeavesTheTreeRootAsItWas) {
    buildModel();
    repository.findTreeRoot();
    ASSERT_EQ(&r2->getStruct(), treeRoot());

    repository.setMainRootName("Nope");
    repository.findTreeRoot();

    EXPECT_EQ(&r2->getStruct(), treeRoot());
}

TEST_F(TreeRootTest, AnErrorInTheMessageListClearsTheTreeRoot) {
    buildModel();
    repository.findTreeRoot();
    ASSERT_EQ(&r2->getStruct(), treeRoot());
    addAttr(r3, "a", ZefMrType3Reference, Ref{"Nope"});
    repository.setAttrsDataType(*r3);
    EXPECT_EQ((Strings{error("Attribute (O~3.0~R3~a) refers to a Moc (O~3.0~Nope) which could not be found.")}),
              takeMessages());

    repository.findTreeRoot();

    EXPECT_EQ(nullptr, treeRoot());
    const Strings errors = loggedErrors();
    ASSERT_GE(errors.size(), 2u);
    EXPECT_EQ("The model contains errors. Setting tree root to NULL", errors.back());
}

TEST_F(TreeRootTest, WarningsAloneKeepTheTreeRoot) {
    buildModel();
    addAttr(r3, "a", static_cast<ZefOamSpiMrType_3>(17));
    repository.setAttrsDataType(*r3);
    EXPECT_EQ((Strings{warning("Attribute (O~3.0~R3~a) has an unknown/usupported type 17.")}), takeMessages());

    repository.findTreeRoot();

    EXPECT_EQ(&r2->getStruct(), treeRoot());
}

TEST_F(TreeRootTest, AnEntryContainingErrorAnywhereCountsAsError) {
    buildModel();
    addAttr(r3, "ERROR", static_cast<ZefOamSpiMrType_3>(0));
    repository.setAttrsDataType(*r3);
    EXPECT_EQ((Strings{warning("Attribute (O~3.0~R3~ERROR) has an unknown/usupported type 0.")}), takeMessages());

    repository.findTreeRoot();

    EXPECT_EQ(nullptr, treeRoot());
}

TEST_F(CompileTest, EmptyModelHasNoTreeRoot) {
    repository.compileModel();
    repository.findTreeRoot();

    const ZefOamSpiMoc* root = nullptr;
    EXPECT_EQ(ZefOk, repository.getTreeRoot(&root));
    EXPECT_EQ(nullptr, root);
    EXPECT_TRUE(takeMessages().empty());
}

} // namespace
} // namespace ZefTest
