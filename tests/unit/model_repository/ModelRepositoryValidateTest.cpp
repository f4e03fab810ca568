// validateModel as a whole (its steps, the order of their findings, the
// tree root, the end of a run outside standalone mode), and the checks of
// MOMs, enumerations and derived types, and doRegexp.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "ValidateTestSupport.h"
#include "ZefException.h"

namespace ZefTest {
namespace {

using Strings = std::vector<std::string>;

// ---- the run -------------------------------------------------------------------

TEST_F(ValidateTest, TracesEveryStepInOrder) {
    repository.validateModel();

    EXPECT_EQ((Strings{" >> ", "Validating the Moms in the model.", "Validating the Enumerations in the model.",
                       "Validating the DerivedDatatypes in the model.", "Validating the Mocs in the model.",
                       "Validating the Containments in the model.", "Validating the Structs in the model.",
                       "Validating the Association Ends in the model.",
                       "Validating the BidirectionalAssociations in the model.",
                       "Validating the UnidirectionalAssociations in the model.", "Finding tree root", " << "}),
              tracesOf("validateModel"));
    EXPECT_EQ((Strings{warning("Empty model compiled.")}), takeMessages());
}

TEST_F(ValidateTest, EmptyRepositoryGivesOneWarningAndStillRunsEveryCheck) {
    repository.validateModel();

    EXPECT_EQ((Strings{warning("Empty model compiled.")}), takeMessages());
    EXPECT_EQ((Strings{" >> Validating Enumerations..", " << Compilation of Enumerations is done."}),
              tracesOf("checkEnums"));
    EXPECT_EQ((Strings{" >> Validating Derived Data Types..", " << Validation of Derived Data Type is done."}),
              tracesOf("checkDdts"));
    EXPECT_EQ((Strings{" >> Validating Mocs..", " << Validation of Mocs is done"}), tracesOf("checkMocs"));
    EXPECT_EQ((Strings{" >> Validating Containments..", " << Validation of Containments is done"}),
              tracesOf("checkConts"));
    EXPECT_EQ((Strings{" >> Validating Structs..", " << Validation of MoActions is done."}),
              tracesOf("checkStructs"));
    EXPECT_EQ((Strings{" >> Validating Association Ends..", " << Validation of Association Ends is done."}),
              tracesOf("checkAssociationEnds"));
    EXPECT_EQ((Strings{" >> Validating BidirectionalAssociations..",
                       " << Validation of BidirectionalAssociations is done."}),
              tracesOf("checkBiDirectionalAssociations"));
    EXPECT_EQ((Strings{" >> Validating UnidirectionalAssociations..",
                       " << Validation of UnidirectionalAssociations is done."}),
              tracesOf("checkUniDirectionalAssociations"));
    // A warning is not an error: the model keeps a chance of a tree root.
    EXPECT_FALSE(traced("The model contains errors. Setting tree root to NULL"));
}

TEST_F(ValidateTest, SoundModelGetsItsRootClassAsTreeRoot) {
    MomWrapper* mom = addMom("M");
    publish(mom);
    MocWrapper* root = addSoundMoc(mom, "Root");
    repository.compileModel();

    repository.validateModel();

    const ZefOamSpiMoc* treeRoot = nullptr;
    EXPECT_EQ(ZefOk, repository.getTreeRoot(&treeRoot));
    EXPECT_EQ(&root->getStruct(), treeRoot);
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ValidateTest, StandaloneModelWithErrorsListsEveryFindingInCheckOrderAndHasNoTreeRoot) {
    // One finding for each of the nine checks, built in the reverse order:
    // the findings come in the order of the checks.
    MomWrapper* mom = addMom("A");
    MocWrapper* root = addSoundMoc(mom, "Root");
    MocWrapper* orphan = addMoc(mom, "Orphan");
    addKeyAttr(orphan, "id");

    AssociationEndWrapper* end = addEnd(mom, "e", "rel", "Root", "A");
    resolveEnd(end, root, nullptr);
    UniDirAssociationWrapper* unidir = addUnidir(mom, "u", "A~1.0~e~rel", "A~1.0~Root");
    unidir->setAssociationEnd(&end->getStruct());
    unidir->setMom(nullptr);
    BiDirAssociationWrapper* bidir = addBidir(mom, "b", "A~1.0~e~rel", "A~1.0~e~rel");
    bidir->setFirstAssociationEnd(&end->getStruct());

    StructWrapper* structure = addStruct(mom, "S");
    addMember(structure, "m", ZefMrType3Enum);

    ContWrapper* cont = addCont(mom, "c", "Root", "Orphan");
    resolveCont(cont, root, orphan);
    cont->setMom(nullptr);

    addKeyAttr(addMoc(mom, "Lost"), "id");

    DdtWrapper* ddt = addDdt(mom, "D");
    ddt->addLengthMin("9");
    ddt->addLengthMax("1");

    EnumWrapper* enumeration = addEnum(mom, "E");
    LitWrapper* first = addLiteral(enumeration, "one", "1");
    std::unique_ptr<LitWrapper> valueless(new LitWrapper());
    valueless->setName("two");
    first->setNext(valueless.get());

    mom->setHasMocs(true);
    mom->setNamespaceURI("urn:A");

    repository.validateModel();

    EXPECT_EQ((Strings{
                  error("Mom A~1.0 not correct: The namespacePrefix is not set."),
                  warning("Value of literal (two) is not set."),
                  warning("String restriction length min (9) > max (1) for ddt (A~1.0~D)"),
                  error("Moc (A~1.0~Lost) has no parent."),
                  error("Containment (A~1.0~c) has no mom"),
                  error("Struct Member (m) has memberType ENUM but pointer to enumDatatype is not set."),
                  error("Association End (A~1.0~e~rel) has no attribute"),
                  error("Bidirectional association (A~1.0~b) has no second Association End"),
                  error("Unidirectional association (A~1.0~u) has no mom"),
              }),
              takeMessages());
    const ZefOamSpiMoc* treeRoot = &root->getStruct();
    EXPECT_EQ(ZefOk, repository.getTreeRoot(&treeRoot));
    EXPECT_EQ(nullptr, treeRoot);
    EXPECT_EQ((Strings{"Mom A~1.0 not correct: The namespacePrefix is not set.",
                       "Moc (A~1.0~Lost) has no parent.", "Containment (A~1.0~c) has no mom",
                       "Struct Member (m) has memberType ENUM but pointer to enumDatatype is not set.",
                       "Association End (A~1.0~e~rel) has no attribute",
                       "Bidirectional association (A~1.0~b) has no second Association End",
                       "Unidirectional association (A~1.0~u) has no mom",
                       "ERROR, ModelRepository: Mom A~1.0 not correct: The namespacePrefix is not set.",
                       "The model contains errors. Setting tree root to NULL"}),
              loggedErrors());
}

TEST_F(ValidateTest, OutsideStandaloneModeTheFirstErrorEndsTheRun) {
    repository.setStandalone(false);
    MomWrapper* mom = addMom("M");
    mom->setHasMocs(true);
    addMoc(mom, "Orphan");

    try {
        repository.validateModel();
        ADD_FAILURE() << "validateModel did not throw";
    } catch (const Zef::ZefException& e) {
        EXPECT_EQ("ModelRepository: invalid model", e.getReason());
    }

    EXPECT_EQ((Strings{error("Mom M~1.0 not correct: The namespace is not set. The namespacePrefix is not set.")}),
              takeMessages());
    EXPECT_FALSE(traced("Validating the Enumerations in the model."));
}

TEST_F(ValidateTest, OutsideStandaloneModeWarningsDoNotEndTheRun) {
    repository.setStandalone(false);

    repository.validateModel();

    EXPECT_EQ((Strings{warning("Empty model compiled.")}), takeMessages());
    EXPECT_TRUE(traced("Finding tree root"));
}

// ---- MOMs -----------------------------------------------------------------------

TEST_F(ValidateTest, MomWithClassesNeedsNamespaceAndPrefixInOneFinding) {
    MomWrapper* mom = addMom("M");
    mom->setHasMocs(true);

    repository.checkMoms();

    EXPECT_EQ((Strings{error("Mom M~1.0 not correct: The namespace is not set. The namespacePrefix is not set.")}),
              takeMessages());
    EXPECT_EQ((Strings{" >> Validating Moms..", "Checking Mom (M~1.0)", " << Validation of Moms is done."}),
              tracesOf("checkMoms"));
}

TEST_F(ValidateTest, MomWithoutNamespaceOnly) {
    MomWrapper* mom = addMom("M");
    mom->setHasMocs(true);
    mom->setNamespacePrefix("m");

    repository.checkMoms();

    EXPECT_EQ((Strings{error("Mom M~1.0 not correct: The namespace is not set.")}), takeMessages());
}

TEST_F(ValidateTest, MomWithoutPrefixOnly) {
    MomWrapper* mom = addMom("M");
    mom->setHasMocs(true);
    mom->setNamespaceURI("urn:m");

    repository.checkMoms();

    EXPECT_EQ((Strings{error("Mom M~1.0 not correct: The namespacePrefix is not set.")}), takeMessages());
}

TEST_F(ValidateTest, EmptyNamespaceAndPrefixCountAsMissing) {
    MomWrapper* mom = addMom("M");
    mom->setHasMocs(true);
    mom->setNamespaceURI("");
    mom->setNamespacePrefix("");

    repository.checkMoms();

    EXPECT_EQ((Strings{error("Mom M~1.0 not correct: The namespace is not set. The namespacePrefix is not set.")}),
              takeMessages());
}

TEST_F(ValidateTest, MomWithoutClassesIsNotChecked) {
    addMom("Types");

    repository.checkMoms();

    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ValidateTest, MomWithNamespaceAndPrefixPasses) {
    publish(addMom("M"));

    repository.checkMoms();

    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ValidateTest, MomsAreCheckedInTheOrderAdded) {
    addMom("Z")->setHasMocs(true);
    addMom("A")->setHasMocs(true);

    repository.checkMoms();

    EXPECT_EQ((Strings{error("Mom Z~1.0 not correct: The namespace is not set. The namespacePrefix is not set."),
                       error("Mom A~1.0 not correct: The namespace is not set. The namespacePrefix is not set.")}),
              takeMessages());
}

TEST_F(ValidateTest, EmptyMomListIsTheOnlyMomFinding) {
    repository.checkMoms();

    EXPECT_EQ((Strings{warning("Empty model compiled.")}), takeMessages());
}

// ---- enumerations -----------------------------------------------------------------

TEST_F(ValidateTest, LiteralsWithValuesPass) {
    MomWrapper* mom = addMom("M");
    EnumWrapper* enumeration = addEnum(mom, "E");
    addLiteral(enumeration, "a", "1");
    addLiteral(enumeration, "b", "2");

    repository.checkEnums();

    EXPECT_TRUE(takeMessages().empty());
    EXPECT_EQ((Strings{" >> Validating Enumerations..", "Checking Enumeration (M~1.0~E)",
                       " << Compilation of Enumerations is done."}),
              tracesOf("checkEnums"));
}

TEST_F(ValidateTest, EveryLiteralWithoutValueIsAWarningInChainOrder) {
    // The enumeration itself refuses a literal without value, so the
    // chain is extended by hand as a faulty producer might leave it.
    MomWrapper* mom = addMom("M");
    EnumWrapper* second = addEnum(mom, "F");
    EnumWrapper* first = addEnum(mom, "E");
    LitWrapper* valued = addLiteral(first, "a", "1");
    std::unique_ptr<LitWrapper> x(new LitWrapper());
    std::unique_ptr<LitWrapper> y(new LitWrapper());
    std::unique_ptr<LitWrapper> z(new LitWrapper());
    x->setName("x");
    y->setName("y");
    z->setName("z");
    valued->setNext(x.get());
    x->setNext(y.get());
    addLiteral(second, "b", "2")->setNext(z.get());

    repository.checkEnums();

    EXPECT_EQ((Strings{warning("Value of literal (x) is not set."), warning("Value of literal (y) is not set."),
                       warning("Value of literal (z) is not set.")}),
              takeMessages());
}

// ---- derived types ----------------------------------------------------------------

TEST_F(ValidateTest, ReversedLengthRangeIsAWarning) {
    DdtWrapper* ddt = addDdt(addMom("M"), "D");
    ddt->addLengthMin("5");
    ddt->addLengthMax("2");

    repository.checkDdts();

    EXPECT_EQ((Strings{warning("String restriction length min (5) > max (2) for ddt (M~1.0~D)")}), takeMessages());
    EXPECT_EQ((Strings{" >> Validating Derived Data Types..", "Checking Derived Data Type (M~1.0~D)",
                       " << Validation of Derived Data Type is done."}),
              tracesOf("checkDdts"));
}

TEST_F(ValidateTest, ReversedNumericRangeIsAWarningWithBothBoundsInBaseTen) {
    DdtWrapper* ddt = addDdt(addMom("M"), "N");
    ddt->setType(ZefMrType3Int64);
    ddt->addRangeMin("9223372036854775807");
    ddt->addRangeMax("-9223372036854775808");

    repository.checkDdts();

    EXPECT_EQ((Strings{warning("Numeric restriction range min (9223372036854775807) > max (-9223372036854775808) "
                               "for ddt (M~1.0~N)")}),
              takeMessages());
}

TEST_F(ValidateTest, BoundsAreComparedAsSignedNumbers) {
    // -1 > -2 only when compared as signed integers.
    DdtWrapper* ddt = addDdt(addMom("M"), "N");
    ddt->setType(ZefMrType3Int32);
    ddt->addRangeMin("-1");
    ddt->addRangeMax("-2");
    ddt->addRangeMin("-5");
    ddt->addRangeMax("3");

    repository.checkDdts();

    EXPECT_EQ((Strings{warning("Numeric restriction range min (-1) > max (-2) for ddt (M~1.0~N)")}), takeMessages());
}

TEST_F(ValidateTest, EqualOrOrderedBoundsPass) {
    DdtWrapper* ddt = addDdt(addMom("M"), "D");
    ddt->addLengthMin("3");
    ddt->addLengthMax("3");
    DdtWrapper* numbers = addDdt(addMom("N"), "D");
    numbers->setType(ZefMrType3Int8);
    numbers->addRangeMin("1");
    numbers->addRangeMax("5");

    repository.checkDdts();

    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ValidateTest, EveryReversedRangeIsReportedLengthsFirstAndTypesInKeyOrder) {
    MomWrapper* mom = addMom("M");
    DdtWrapper* later = addDdt(mom, "Z");
    later->setType(ZefMrType3Int16);
    later->addRangeMin("7");
    later->addRangeMax("6");
    DdtWrapper* ddt = addDdt(mom, "A");
    ddt->addLengthMin("4");
    ddt->addLengthMax("3");
    ddt->addLengthMin("1");
    ddt->addLengthMax("2");
    ddt->addLengthMin("20");
    ddt->addLengthMax("10");
    // A string type keeps no value ranges from its model, but a reversed
    // one is reported all the same, after the lengths.
    ddt->addRangeMin("2");
    ddt->addRangeMax("1");

    repository.checkDdts();

    EXPECT_EQ((Strings{warning("String restriction length min (4) > max (3) for ddt (M~1.0~A)"),
                       warning("String restriction length min (20) > max (10) for ddt (M~1.0~A)"),
                       warning("Numeric restriction range min (2) > max (1) for ddt (M~1.0~A)"),
                       warning("Numeric restriction range min (7) > max (6) for ddt (M~1.0~Z)")}),
              takeMessages());
}

// ---- patterns ---------------------------------------------------------------------

TEST_F(ValidateTest, PatternMatchAnywhereInTheTextIsTraced) {
    EXPECT_TRUE(repository.doRegexp("[0-9]+", "ab12cd"));

    EXPECT_TRUE(traced("Got a match of \"[0-9]+\" in \"ab12cd\"."));
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ValidateTest, PatternWithoutMatchIsNeitherReportedNorTraced) {
    EXPECT_FALSE(repository.doRegexp("^[0-9]+$", "12a"));

    EXPECT_FALSE(traced("Got a match of \"^[0-9]+$\" in \"12a\"."));
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ValidateTest, PatternsUseTheExtendedSyntax) {
    EXPECT_TRUE(repository.doRegexp("^(ab|cd)+$", "abcdab"));
    EXPECT_TRUE(repository.doRegexp("^a{2,3}$", "aaa"));
    EXPECT_FALSE(repository.doRegexp("^a{2,3}$", "aaaa"));
    EXPECT_TRUE(repository.doRegexp("^x?y+$", "yy"));
    // In the basic syntax "(" and "|" would be ordinary characters.
    EXPECT_FALSE(repository.doRegexp("^(ab|cd)$", "(ab|cd)"));
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ValidateTest, PatternThatDoesNotCompileIsAnErrorAndNoMatch) {
    EXPECT_FALSE(repository.doRegexp("(", "("));
    EXPECT_FALSE(repository.doRegexp("[a", "[a"));

    EXPECT_EQ((Strings{error("Failed to compile posix regular expression \"(\" - got error Unmatched ( or \\("),
                       error("Failed to compile posix regular expression \"[a\" - got error "
                             "Unmatched [, [^, [:, [., or [=")}),
              takeMessages());
}

TEST_F(ValidateTest, PatternThatDoesNotCompileIsReportedAtEveryUse) {
    EXPECT_FALSE(repository.doRegexp("(", "a"));
    EXPECT_TRUE(repository.doRegexp("^a+$", "aa"));
    EXPECT_FALSE(repository.doRegexp("(", "b"));
    EXPECT_FALSE(repository.doRegexp("^a+$", "ab"));
    EXPECT_TRUE(repository.doRegexp("^a+$", "a"));

    EXPECT_EQ((Strings{error("Failed to compile posix regular expression \"(\" - got error Unmatched ( or \\("),
                       error("Failed to compile posix regular expression \"(\" - got error Unmatched ( or \\(")}),
              takeMessages());
}

} // namespace
} // namespace ZefTest
