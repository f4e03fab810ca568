// checkActions, checkParameters and checkStructs: the typed elements that
// are not attributes.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ValidateTestSupport.h"

namespace ZefTest {
namespace {

using Strings = std::vector<std::string>;

/// A class "A" of MOM "M", a class to refer to, and a derived string type
/// "D" with the valid values "^[a-z]+$".
class TypedElementTest : public ValidateTest {
protected:
    void SetUp() override {
        ValidateTest::SetUp();
        mom = addMom("M");
        moc = addSoundMoc(mom, "A");
        target = addSoundMoc(mom, "T");
        ddt = addPatternDdt(mom, "D", "^[a-z]+$");
        enumeration = addEnum(mom, "E");
        structure = addStruct(mom, "S");
    }

    MomWrapper* mom = nullptr;
    MocWrapper* moc = nullptr;
    MocWrapper* target = nullptr;
    DdtWrapper* ddt = nullptr;
    EnumWrapper* enumeration = nullptr;
    StructWrapper* structure = nullptr;
};

// ---- actions ----------------------------------------------------------------------

TEST_F(TypedElementTest, SoundActionsPassAndAreTraced) {
    addAction(moc, "plain", ZefMrType3Int32);
    addAction(moc, "ref", ZefMrType3Reference)->setReferencedMoc(&target->getStruct());
    MoActionWrapper* derived = addAction(moc, "derived", ZefMrType3Derived);
    derived->setDerivedDatatype(&ddt->getStruct());
    setDefaults(derived, {"abc"});

    repository.checkActions(*moc);

    EXPECT_TRUE(takeMessages().empty());
    EXPECT_EQ((Strings{" >> Validating MoActions..", "Checking MoAction (M~1.0~A~plain)",
                       "Checking MoAction (M~1.0~A~ref)", "Checking MoAction (M~1.0~A~derived)",
                       " << Validation of MoActions is done."}),
              tracesOf("checkActions"));
}

TEST_F(TypedElementTest, ActionDefaultBreakingThePattern) {
    MoActionWrapper* action = addAction(moc, "act", ZefMrType3Derived);
    action->setDerivedDatatype(&ddt->getStruct());
    setDefaults(action, {"Abc", "def", "1"});

    repository.checkActions(*moc);

    EXPECT_EQ((Strings{error("Action (M~1.0~A~act) return type is a derived datatype and the default value (Abc) "
                             "does not conform to the valid values (^[a-z]+$)."),
                       error("Action (M~1.0~A~act) return type is a derived datatype and the default value (1) "
                             "does not conform to the valid values (^[a-z]+$).")}),
              takeMessages());
}

TEST_F(TypedElementTest, ActionDefaultOfATypeOtherThanStringIsNotTested) {
    DdtWrapper* numbers = addPatternDdt(mom, "N", "^[a-z]+$");
    numbers->setType(ZefMrType3Int32);
    MoActionWrapper* action = addAction(moc, "act", ZefMrType3Derived);
    action->setDerivedDatatype(&numbers->getStruct());
    setDefaults(action, {"12"});

    repository.checkActions(*moc);

    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(TypedElementTest, ActionReturningAReferenceWithoutClass) {
    addAction(moc, "act", ZefMrType3Reference);

    repository.checkActions(*moc);

    EXPECT_EQ((Strings{error("Action (M~1.0~A~act) has returnType REFERENCE but pointer to referencedMoc is not set.")}),
              takeMessages());
}

TEST_F(TypedElementTest, ActionsAreCheckedInListOrderEachFollowedByItsParameters) {
    MoActionWrapper* second = addAction(moc, "b", ZefMrType3Reference);
    addParameter(second, "p", ZefMrType3Reference);
    MoActionWrapper* first = addAction(moc, "a", ZefMrType3Reference);
    addParameter(first, "q", ZefMrType3Derived);

    repository.checkActions(*moc);

    EXPECT_EQ((Strings{error("Action (M~1.0~A~b) has returnType REFERENCE but pointer to referencedMoc is not set."),
                       error("Parameter (p) has parameterType REFERENCE but pointer to referencedMoc is not set."),
                       error("Action (M~1.0~A~a) has returnType REFERENCE but pointer to referencedMoc is not set."),
                       error("Parameter (q) has parameterType DERIVED but pointer to derivedDatatype is not set.")}),
              takeMessages());
}

// ---- parameters -------------------------------------------------------------------

TEST_F(TypedElementTest, SoundParametersPassAndAreTraced) {
    MoActionWrapper* action = addAction(moc, "act", ZefMrType3Void);
    addParameter(action, "plain", ZefMrType3String);
    addParameter(action, "ref", ZefMrType3Reference)->setReferencedMoc(&target->getStruct());
    ParameterWrapper* derived = addParameter(action, "derived", ZefMrType3Derived);
    derived->setDerivedDatatype(&ddt->getStruct());
    setDefaults(derived, {"abc"});

    repository.checkParameters(*action);

    EXPECT_TRUE(takeMessages().empty());
    EXPECT_EQ((Strings{" >> Validating Parameters..", "Checking Parameter (plain)", "Checking Parameter (ref)",
                       "Checking Parameter (derived)", " << Validation of Parameters is done."}),
              tracesOf("checkParameters"));
}

TEST_F(TypedElementTest, ParameterOfDerivedTypeWithoutType) {
    MoActionWrapper* action = addAction(moc, "act", ZefMrType3Void);
    addParameter(action, "p", ZefMrType3Derived);

    repository.checkParameters(*action);

    EXPECT_EQ((Strings{error("Parameter (p) has parameterType DERIVED but pointer to derivedDatatype is not set.")}),
              takeMessages());
}

TEST_F(TypedElementTest, ParameterDefaultBreakingThePattern) {
    MoActionWrapper* action = addAction(moc, "act", ZefMrType3Void);
    ParameterWrapper* parameter = addParameter(action, "p", ZefMrType3Derived);
    parameter->setDerivedDatatype(&ddt->getStruct());
    setDefaults(parameter, {"NO"});

    repository.checkParameters(*action);

    EXPECT_EQ((Strings{error("Parameter (p) type is a derived datatype and the default value (NO) does not conform "
                             "to the valid values (^[a-z]+$).")}),
              takeMessages());
}

TEST_F(TypedElementTest, ParameterOfReferenceTypeWithoutClass) {
    MoActionWrapper* action = addAction(moc, "act", ZefMrType3Void);
    addParameter(action, "p", ZefMrType3Reference);

    repository.checkParameters(*action);

    EXPECT_EQ((Strings{error("Parameter (p) has parameterType REFERENCE but pointer to referencedMoc is not set.")}),
              takeMessages());
}

TEST_F(TypedElementTest, ParametersAreCheckedInListOrder) {
    MoActionWrapper* action = addAction(moc, "act", ZefMrType3Void);
    addParameter(action, "z", ZefMrType3Reference);
    ParameterWrapper* bad = addParameter(action, "y", ZefMrType3Derived);
    bad->setDerivedDatatype(&ddt->getStruct());
    setDefaults(bad, {"7"});
    addParameter(action, "x", ZefMrType3Derived);

    repository.checkParameters(*action);

    EXPECT_EQ((Strings{error("Parameter (z) has parameterType REFERENCE but pointer to referencedMoc is not set."),
                       error("Parameter (y) type is a derived datatype and the default value (7) does not conform "
                             "to the valid values (^[a-z]+$)."),
                       error("Parameter (x) has parameterType DERIVED but pointer to derivedDatatype is not set.")}),
              takeMessages());
}

// ---- structs ----------------------------------------------------------------------

TEST_F(TypedElementTest, SoundMembersPassAndAreTraced) {
    addMember(structure, "plain", ZefMrType3Int8);
    addMember(structure, "e", ZefMrType3Enum)->setEnumDatatype(&enumeration->getStruct());
    addMember(structure, "s", ZefMrType3Struct)->setStructDatatype(&structure->getStruct());
    StructMemberWrapper* derived = addMember(structure, "d", ZefMrType3Derived);
    derived->setDerivedDatatype(&ddt->getStruct());
    setDefaults(derived, {"abc"});
    addMember(structure, "r", ZefMrType3Reference)->setReferencedMoc(&target->getStruct());

    repository.checkStructs();

    EXPECT_TRUE(takeMessages().empty());
    EXPECT_EQ((Strings{" >> Validating Structs..", "Checking Struct Member (plain)", "Checking Struct Member (e)",
                       "Checking Struct Member (s)", "Checking Struct Member (d)", "Checking Struct Member (r)",
                       " << Validation of MoActions is done."}),
              tracesOf("checkStructs"));
}

TEST_F(TypedElementTest, MemberOfEnumTypeWithoutEnumeration) {
    addMember(structure, "m", ZefMrType3Enum);

    repository.checkStructs();

    EXPECT_EQ((Strings{error("Struct Member (m) has memberType ENUM but pointer to enumDatatype is not set.")}),
              takeMessages());
}

TEST_F(TypedElementTest, MemberOfStructTypeWithoutStruct) {
    addMember(structure, "m", ZefMrType3Struct);

    repository.checkStructs();

    EXPECT_EQ((Strings{error("Struct Member (m) has memberType STRUCT but pointer to structDatatype is not set.")}),
              takeMessages());
}

TEST_F(TypedElementTest, MemberOfDerivedTypeWithoutType) {
    addMember(structure, "m", ZefMrType3Derived);

    repository.checkStructs();

    EXPECT_EQ((Strings{error("Struct Member (m) has memberType DERIVED but pointer to derivedDatatype is not set.")}),
              takeMessages());
}

TEST_F(TypedElementTest, MemberDefaultBreakingThePattern) {
    StructMemberWrapper* member = addMember(structure, "m", ZefMrType3Derived);
    member->setDerivedDatatype(&ddt->getStruct());
    setDefaults(member, {"a b"});

    repository.checkStructs();

    EXPECT_EQ((Strings{error("Struct member (m) type is a derived datatype and the default value (a b) does not "
                             "conform to the valid values (^[a-z]+$).")}),
              takeMessages());
}

TEST_F(TypedElementTest, MemberOfReferenceTypeWithoutClass) {
    addMember(structure, "m", ZefMrType3Reference);

    repository.checkStructs();

    EXPECT_EQ((Strings{error("Struct Member (m) has memberType REFERENCE but pointer to referencedMoc is not set.")}),
              takeMessages());
}

TEST_F(TypedElementTest, MembersInListOrderStructsInKeyOrder) {
    StructWrapper* later = addStruct(mom, "Z");
    addMember(later, "first", ZefMrType3Enum);
    addMember(structure, "r", ZefMrType3Reference);
    addMember(structure, "s", ZefMrType3Struct);
    StructWrapper* earlier = addStruct(mom, "B");
    addMember(earlier, "d", ZefMrType3Derived);

    repository.checkStructs();

    EXPECT_EQ((Strings{error("Struct Member (d) has memberType DERIVED but pointer to derivedDatatype is not set."),
                       error("Struct Member (r) has memberType REFERENCE but pointer to referencedMoc is not set."),
                       error("Struct Member (s) has memberType STRUCT but pointer to structDatatype is not set."),
                       error("Struct Member (first) has memberType ENUM but pointer to enumDatatype is not set.")}),
              takeMessages());
}

} // namespace
} // namespace ZefTest
