// checkMocs and checkAttrs: the five passes over the classes, the
// type/pointer table of attributes with the valid-values test, and the four
// rules on a class's attribute list.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ValidateTestSupport.h"

namespace ZefTest {
namespace {

using Strings = std::vector<std::string>;

/// A class of MOM "M" with one key attribute "a" of `type` and the four
/// kinds of record an attribute can point at, to be pointed at by hand.
class AttrTableTest : public ValidateTest {
protected:
    void SetUp() override {
        ValidateTest::SetUp();
        mom = addMom("M");
        moc = addRootMoc(mom, "A");
        target = addMoc(mom, "T");
        ddt = addDdt(mom, "D");
        enumeration = addEnum(mom, "E");
        structure = addStruct(mom, "S");
    }

    AttrWrapper* attrOf(ZefOamSpiMrType_3 type) { return addKeyAttr(moc, "a", type); }

    /// A class "C<type>" of its own whose only attribute is the key "a" of `type`.
    MocWrapper* classOf(ZefOamSpiMrType_3 type) {
        MocWrapper* owner = addRootMoc(mom, "C" + std::to_string(type));
        addKeyAttr(owner, "a", type);
        return owner;
    }

    void pointAtDdt(AttrWrapper* attr) { attr->setDerivedDatatype(&ddt->getStruct()); }
    void pointAtEnum(AttrWrapper* attr) { attr->setEnumDatatype(&enumeration->getStruct()); }
    void pointAtStruct(AttrWrapper* attr) { attr->setStructDatatype(&structure->getStruct()); }
    void pointAtMoc(AttrWrapper* attr) { attr->setReferencedMoc(&target->getStruct()); }

    /// The findings of checkAttrs on the class.
    Strings check() {
        repository.checkAttrs(*moc);
        return takeMessages();
    }

    MomWrapper* mom = nullptr;
    MocWrapper* moc = nullptr;
    MocWrapper* target = nullptr;
    DdtWrapper* ddt = nullptr;
    EnumWrapper* enumeration = nullptr;
    StructWrapper* structure = nullptr;
};

const ZefOamSpiMrType_3 basicTypes[] = {ZefMrType3Int8,   ZefMrType3Int16,  ZefMrType3Int32,  ZefMrType3Int64,
                                        ZefMrType3UInt8,  ZefMrType3UInt16, ZefMrType3UInt32, ZefMrType3UInt64,
                                        ZefMrType3String, ZefMrType3Bool,   ZefMrType3Double};

// ---- the type/pointer table: basic types ---------------------------------------------

TEST_F(AttrTableTest, BasicTypeWithoutPointersPasses) {
    for (ZefOamSpiMrType_3 type : basicTypes) {
        addQuietAttr(moc, "b" + std::to_string(type), type);
    }
    attrOf(ZefMrType3String);

    EXPECT_TRUE(check().empty());
    EXPECT_EQ((Strings{" >> Validating Attributes..", "Checking Attribute (M~1.0~A~b1)",
                       "Checking Attribute (M~1.0~A~b2)", "Checking Attribute (M~1.0~A~b3)",
                       "Checking Attribute (M~1.0~A~b4)", "Checking Attribute (M~1.0~A~b5)",
                       "Checking Attribute (M~1.0~A~b6)", "Checking Attribute (M~1.0~A~b7)",
                       "Checking Attribute (M~1.0~A~b8)", "Checking Attribute (M~1.0~A~b9)",
                       "Checking Attribute (M~1.0~A~b10)", "Checking Attribute (M~1.0~A~b16)",
                       "Checking Attribute (M~1.0~A~a)", " << Validation of Attributes is done"}),
              tracesOf("checkAttrs"));
}

TEST_F(AttrTableTest, BasicTypeWithDerivedType) {
    for (ZefOamSpiMrType_3 type : basicTypes) {
        MocWrapper* owner = classOf(type);
        pointAtDdt(owner->getAttrsList().front());

        repository.checkAttrs(*owner);

        const std::string code = std::to_string(type);
        EXPECT_EQ((Strings{error("Attribute (M~1.0~C" + code + "~a) type is " + code + " and the derivedDatatype is set.")}),
                  takeMessages());
    }
}

TEST_F(AttrTableTest, BasicTypeWithEnumeration) {
    for (ZefOamSpiMrType_3 type : basicTypes) {
        MocWrapper* owner = classOf(type);
        pointAtEnum(owner->getAttrsList().front());

        repository.checkAttrs(*owner);

        const std::string code = std::to_string(type);
        EXPECT_EQ((Strings{error("Attribute (M~1.0~C" + code + "~a) type is " + code + " and the enumDatatype is set.")}),
                  takeMessages());
    }
}

TEST_F(AttrTableTest, BasicTypeWithStruct) {
    for (ZefOamSpiMrType_3 type : basicTypes) {
        MocWrapper* owner = classOf(type);
        pointAtStruct(owner->getAttrsList().front());

        repository.checkAttrs(*owner);

        const std::string code = std::to_string(type);
        EXPECT_EQ((Strings{error("Attribute (M~1.0~C" + code + "~a) type is " + code + " and the structDatatype is set.")}),
                  takeMessages());
    }
}

TEST_F(AttrTableTest, BasicTypeWithReferencedClass) {
    for (ZefOamSpiMrType_3 type : basicTypes) {
        MocWrapper* owner = classOf(type);
        pointAtMoc(owner->getAttrsList().front());

        repository.checkAttrs(*owner);

        const std::string code = std::to_string(type);
        EXPECT_EQ((Strings{error("Attribute (M~1.0~C" + code + "~a) type is " + code + " and the referencedMoc is set.")}),
                  takeMessages());
    }
}

TEST_F(AttrTableTest, BasicTypeWithEveryPointerInTableOrder) {
    AttrWrapper* attr = attrOf(ZefMrType3UInt16);
    pointAtMoc(attr);
    pointAtStruct(attr);
    pointAtEnum(attr);
    pointAtDdt(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) type is 6 and the derivedDatatype is set."),
                       error("Attribute (M~1.0~A~a) type is 6 and the enumDatatype is set."),
                       error("Attribute (M~1.0~A~a) type is 6 and the structDatatype is set."),
                       error("Attribute (M~1.0~A~a) type is 6 and the referencedMoc is set.")}),
              check());
}

// ---- REFERENCE --------------------------------------------------------------------

TEST_F(AttrTableTest, ReferenceWithItsClassPasses) {
    pointAtMoc(attrOf(ZefMrType3Reference));

    EXPECT_TRUE(check().empty());
}

TEST_F(AttrTableTest, ReferenceToTheAnyClassPasses) {
    attrOf(ZefMrType3Reference)->setReferencedMoc(&repository.getAnyClassMoc().getStruct());

    EXPECT_TRUE(check().empty());
}

TEST_F(AttrTableTest, ReferenceWithDerivedType) {
    AttrWrapper* attr = attrOf(ZefMrType3Reference);
    pointAtMoc(attr);
    pointAtDdt(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type REFERENCE and the derivedDatatype is set.")}), check());
}

TEST_F(AttrTableTest, ReferenceWithEnumeration) {
    AttrWrapper* attr = attrOf(ZefMrType3Reference);
    pointAtMoc(attr);
    pointAtEnum(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type REFERENCE and the enumDatatype is set.")}), check());
}

TEST_F(AttrTableTest, ReferenceWithStruct) {
    AttrWrapper* attr = attrOf(ZefMrType3Reference);
    pointAtMoc(attr);
    pointAtStruct(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type REFERENCE and the structDatatype is set.")}), check());
}

TEST_F(AttrTableTest, ReferenceWithoutClass) {
    attrOf(ZefMrType3Reference);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type REFERENCE and the referencedMoc is not set.")}),
              check());
}

TEST_F(AttrTableTest, ReferenceRowsInTableOrder) {
    AttrWrapper* attr = attrOf(ZefMrType3Reference);
    pointAtStruct(attr);
    pointAtEnum(attr);
    pointAtDdt(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type REFERENCE and the derivedDatatype is set."),
                       error("Attribute (M~1.0~A~a) has type REFERENCE and the enumDatatype is set."),
                       error("Attribute (M~1.0~A~a) has type REFERENCE and the structDatatype is set."),
                       error("Attribute (M~1.0~A~a) has type REFERENCE and the referencedMoc is not set.")}),
              check());
}

// ---- ENUM -------------------------------------------------------------------------

TEST_F(AttrTableTest, EnumWithItsEnumerationPasses) {
    pointAtEnum(attrOf(ZefMrType3Enum));

    EXPECT_TRUE(check().empty());
}

TEST_F(AttrTableTest, EnumWithDerivedType) {
    AttrWrapper* attr = attrOf(ZefMrType3Enum);
    pointAtEnum(attr);
    pointAtDdt(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type ENUM and the derivedDatatype is set.")}), check());
}

TEST_F(AttrTableTest, EnumWithoutEnumeration) {
    attrOf(ZefMrType3Enum);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type ENUM and the enumDatatype (enumRef) is not set.")}),
              check());
}

TEST_F(AttrTableTest, EnumWithStruct) {
    AttrWrapper* attr = attrOf(ZefMrType3Enum);
    pointAtEnum(attr);
    pointAtStruct(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type ENUM and the structDatatype is set.")}), check());
}

TEST_F(AttrTableTest, EnumWithReferencedClass) {
    AttrWrapper* attr = attrOf(ZefMrType3Enum);
    pointAtEnum(attr);
    pointAtMoc(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type ENUM and the referencedMoc is set.")}), check());
}

TEST_F(AttrTableTest, EnumRowsInTableOrder) {
    AttrWrapper* attr = attrOf(ZefMrType3Enum);
    pointAtMoc(attr);
    pointAtStruct(attr);
    pointAtDdt(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type ENUM and the derivedDatatype is set."),
                       error("Attribute (M~1.0~A~a) has type ENUM and the enumDatatype (enumRef) is not set."),
                       error("Attribute (M~1.0~A~a) has type ENUM and the structDatatype is set."),
                       error("Attribute (M~1.0~A~a) has type ENUM and the referencedMoc is set.")}),
              check());
}

// ---- DERIVED ----------------------------------------------------------------------

TEST_F(AttrTableTest, DerivedWithItsTypePasses) {
    pointAtDdt(attrOf(ZefMrType3Derived));

    EXPECT_TRUE(check().empty());
}

TEST_F(AttrTableTest, DerivedWithEnumeration) {
    AttrWrapper* attr = attrOf(ZefMrType3Derived);
    pointAtDdt(attr);
    pointAtEnum(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type DERIVED and the enumDatatype is set.")}), check());
}

TEST_F(AttrTableTest, DerivedWithStruct) {
    AttrWrapper* attr = attrOf(ZefMrType3Derived);
    pointAtDdt(attr);
    pointAtStruct(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type DERIVED and the structDatatype is set.")}), check());
}

TEST_F(AttrTableTest, DerivedWithReferencedClass) {
    AttrWrapper* attr = attrOf(ZefMrType3Derived);
    pointAtDdt(attr);
    pointAtMoc(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type DERIVED and the referencedMoc is set.")}), check());
}

TEST_F(AttrTableTest, DerivedWithoutType) {
    attrOf(ZefMrType3Derived);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type DERIVED and the ddt (derivedDataTypeRef) is not set.")}),
              check());
}

TEST_F(AttrTableTest, DerivedRowsInTableOrder) {
    AttrWrapper* attr = attrOf(ZefMrType3Derived);
    pointAtMoc(attr);
    pointAtStruct(attr);
    pointAtEnum(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type DERIVED and the enumDatatype is set."),
                       error("Attribute (M~1.0~A~a) has type DERIVED and the structDatatype is set."),
                       error("Attribute (M~1.0~A~a) has type DERIVED and the referencedMoc is set."),
                       error("Attribute (M~1.0~A~a) has type DERIVED and the ddt (derivedDataTypeRef) is not set.")}),
              check());
}

// ---- DERIVED: the valid values --------------------------------------------------------

TEST_F(AttrTableTest, DefaultBreakingThePatternOfAStringType) {
    ddt->setPattern("^[a-z]+$");
    AttrWrapper* attr = attrOf(ZefMrType3Derived);
    pointAtDdt(attr);
    setDefaults(attr, {"abc1"});

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) type is a derived datatype and the default value (abc1) does "
                             "not conform to the valid values (^[a-z]+$).")}),
              check());
}

TEST_F(AttrTableTest, DefaultMatchingThePatternPassesAndIsTraced) {
    ddt->setPattern("^[a-z]+$");
    AttrWrapper* attr = attrOf(ZefMrType3Derived);
    pointAtDdt(attr);
    setDefaults(attr, {"abc"});

    EXPECT_TRUE(check().empty());
    EXPECT_TRUE(traced("Got a match of \"^[a-z]+$\" in \"abc\"."));
}

TEST_F(AttrTableTest, EveryDefaultOfASequenceIsTestedAndEachBreachReported) {
    ddt->setPattern("^[a-z]+$");
    AttrWrapper* attr = attrOf(ZefMrType3Derived);
    pointAtDdt(attr);
    setDefaults(attr, {"ok", "BAD", "fine", "n0"});

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) type is a derived datatype and the default value (BAD) does "
                             "not conform to the valid values (^[a-z]+$)."),
                       error("Attribute (M~1.0~A~a) type is a derived datatype and the default value (n0) does "
                             "not conform to the valid values (^[a-z]+$).")}),
              check());
}

TEST_F(AttrTableTest, PatternOfTheValidationRulesIsTheOneTested) {
    ddt->setPattern("^[a-z]+$");
    ddt->setValidationRulesPattern("^[0-9]+$");
    AttrWrapper* attr = attrOf(ZefMrType3Derived);
    pointAtDdt(attr);
    setDefaults(attr, {"abc"});

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) type is a derived datatype and the default value (abc) does "
                             "not conform to the valid values (^[0-9]+$).")}),
              check());
}

TEST_F(AttrTableTest, SingleDefaultWithoutValueListIsTested) {
    ddt->setPattern("^[a-z]+$");
    AttrWrapper* attr = attrOf(ZefMrType3Derived);
    pointAtDdt(attr);
    attr->setDefaultValue("X");

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) type is a derived datatype and the default value (X) does "
                             "not conform to the valid values (^[a-z]+$).")}),
              check());
}

TEST_F(AttrTableTest, PatternThatDoesNotCompileFailsEveryDefault) {
    ddt->setPattern("([a-z]");
    AttrWrapper* attr = attrOf(ZefMrType3Derived);
    pointAtDdt(attr);
    setDefaults(attr, {"abc"});

    EXPECT_EQ((Strings{error("Failed to compile posix regular expression \"([a-z]\" - got error Unmatched ( or \\("),
                       error("Attribute (M~1.0~A~a) type is a derived datatype and the default value (abc) does "
                             "not conform to the valid values (([a-z]).")}),
              check());
}

TEST_F(AttrTableTest, TypeOtherThanStringIsNotTestedAgainstItsPattern) {
    ddt->setType(ZefMrType3Int32);
    ddt->setPattern("^[a-z]+$");
    AttrWrapper* attr = attrOf(ZefMrType3Derived);
    pointAtDdt(attr);
    setDefaults(attr, {"12"});

    EXPECT_TRUE(check().empty());
}

TEST_F(AttrTableTest, StringTypeWithoutPatternConstrainsNothing) {
    AttrWrapper* attr = attrOf(ZefMrType3Derived);
    pointAtDdt(attr);
    setDefaults(attr, {"anything"});

    EXPECT_TRUE(check().empty());
}

TEST_F(AttrTableTest, AttributeWithoutDefaultIsNotTested) {
    ddt->setPattern("^[a-z]+$");
    pointAtDdt(attrOf(ZefMrType3Derived));

    EXPECT_TRUE(check().empty());
}

// ---- STRUCT -----------------------------------------------------------------------

TEST_F(AttrTableTest, StructWithItsStructPasses) {
    pointAtStruct(attrOf(ZefMrType3Struct));

    EXPECT_TRUE(check().empty());
}

TEST_F(AttrTableTest, StructWithDerivedType) {
    AttrWrapper* attr = attrOf(ZefMrType3Struct);
    pointAtStruct(attr);
    pointAtDdt(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type STRUCT and the derivedDatatype is set.")}), check());
}

TEST_F(AttrTableTest, StructWithEnumeration) {
    AttrWrapper* attr = attrOf(ZefMrType3Struct);
    pointAtStruct(attr);
    pointAtEnum(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type STRUCT and the enumDatatype is set.")}), check());
}

TEST_F(AttrTableTest, StructWithoutStruct) {
    attrOf(ZefMrType3Struct);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type STRUCT, but the structDatatype is not set.")}), check());
}

TEST_F(AttrTableTest, StructWithReferencedClass) {
    AttrWrapper* attr = attrOf(ZefMrType3Struct);
    pointAtStruct(attr);
    pointAtMoc(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type STRUCT and the referencedMoc is set.")}), check());
}

TEST_F(AttrTableTest, StructRowsInTableOrder) {
    AttrWrapper* attr = attrOf(ZefMrType3Struct);
    pointAtMoc(attr);
    pointAtEnum(attr);
    pointAtDdt(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) has type STRUCT and the derivedDatatype is set."),
                       error("Attribute (M~1.0~A~a) has type STRUCT and the enumDatatype is set."),
                       error("Attribute (M~1.0~A~a) has type STRUCT, but the structDatatype is not set."),
                       error("Attribute (M~1.0~A~a) has type STRUCT and the referencedMoc is set.")}),
              check());
}

// ---- void and unknown types ---------------------------------------------------------

TEST_F(AttrTableTest, VoidIsAlwaysAnError) {
    AttrWrapper* attr = attrOf(ZefMrType3Void);
    pointAtDdt(attr);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) can not have void data type")}), check());
}

TEST_F(AttrTableTest, UnsetTypeIsAnUnknownTypeWarning) {
    attrOf(ZefMrType3NotSet);

    EXPECT_EQ((Strings{warning("Attribute (M~1.0~A~a) has an unknown type 0.")}), check());
}

TEST_F(AttrTableTest, CodeBeyondTheTableIsAnUnknownTypeWarning) {
    AttrWrapper* attr = attrOf(static_cast<ZefOamSpiMrType_3>(17));
    pointAtMoc(attr);

    EXPECT_EQ((Strings{warning("Attribute (M~1.0~A~a) has an unknown type 17.")}), check());
}

TEST_F(AttrTableTest, EveryAttributeIsCheckedInListOrder) {
    addKeyAttr(moc, "z", ZefMrType3Void);
    addQuietAttr(moc, "b", ZefMrType3Enum);
    addQuietAttr(moc, "a", ZefMrType3NotSet);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~z) can not have void data type"),
                       error("Attribute (M~1.0~A~b) has type ENUM and the enumDatatype (enumRef) is not set."),
                       warning("Attribute (M~1.0~A~a) has an unknown type 0.")}),
              check());
}

// ---- the rules on the attribute list -------------------------------------------------

TEST_F(ValidateTest, OnlyTheFirstMandatoryAttributeWithADefaultIsReported) {
    MocWrapper* moc = addRootMoc(addMom("M"), "A");
    addKeyAttr(moc, "id");
    AttrWrapper* empty = addAttr(moc, "e", ZefMrType3String);
    empty->setIsMandatory(true);
    empty->setDefaultValue("");
    AttrWrapper* first = addAttr(moc, "f", ZefMrType3String);
    first->setIsMandatory(true);
    first->setDefaultValue("x");
    AttrWrapper* second = addAttr(moc, "g", ZefMrType3String);
    second->setIsMandatory(true);
    second->setDefaultValue("y");
    addQuietAttr(moc, "h", ZefMrType3String)->setDefaultValue("z");

    repository.checkAttrs(*moc);

    EXPECT_EQ((Strings{error("A mandatory attr (M~1.0~A~f) can not have default value (x).")}), takeMessages());
}

TEST_F(ValidateTest, ThreeNonPersistentWritableAttributesGiveOneErrorNamingTheFirst) {
    MocWrapper* moc = addRootMoc(addMom("M"), "A");
    addKeyAttr(moc, "id");
    AttrWrapper* readOnly = addQuietAttr(moc, "r", ZefMrType3String);
    readOnly->setIsPersistent(false);
    readOnly->setIsReadOnly(true);
    addQuietAttr(moc, "x", ZefMrType3String)->setIsPersistent(false);
    addQuietAttr(moc, "y", ZefMrType3String)->setIsPersistent(false);
    addQuietAttr(moc, "z", ZefMrType3String)->setIsPersistent(false);

    repository.checkAttrs(*moc);

    EXPECT_EQ((Strings{error("A non-persistent attribute (M~1.0~A~x) must be readonly.")}), takeMessages());
}

TEST_F(ValidateTest, OptionalAttributesWithAMinimumAreWarnedUntilTheFirstMandatoryWithoutOne) {
    MocWrapper* moc = addRootMoc(addMom("M"), "A");
    addKeyAttr(moc, "id");
    addAttr(moc, "a", ZefMrType3String);  // optional, minimum 1 as a new attribute has
    addAttr(moc, "b", ZefMrType3String)->setMin("2");
    AttrWrapper* mandatory = addAttr(moc, "m", ZefMrType3String);
    mandatory->setIsMandatory(true);
    AttrWrapper* loose = addAttr(moc, "n", ZefMrType3String);
    loose->setIsMandatory(true);
    loose->setMin("0");
    AttrWrapper* looser = addAttr(moc, "o", ZefMrType3String);
    looser->setIsMandatory(true);
    looser->setMin("0");
    addAttr(moc, "p", ZefMrType3String);

    repository.checkAttrs(*moc);

    EXPECT_EQ((Strings{warning("If attribute (M~1.0~A~a) multiplicity is grater than zero it must be mandatory."),
                       warning("If attribute (M~1.0~A~b) multiplicity is grater than zero it must be mandatory."),
                       warning("Mandatory attribute (M~1.0~A~n) multiplicity min should be grater than zero.")}),
              takeMessages());
}

TEST_F(ValidateTest, TwoKeysGiveOneErrorPerClass) {
    MocWrapper* moc = addRootMoc(addMom("M"), "A");
    addKeyAttr(moc, "k1");
    addKeyAttr(moc, "k2");
    addKeyAttr(moc, "k3");

    repository.checkAttrs(*moc);

    EXPECT_EQ((Strings{error("Moc (M~1.0~A) can not have more than one key attribute.")}), takeMessages());
}

TEST_F(ValidateTest, ClassWithAttributesButNoKey) {
    MocWrapper* moc = addRootMoc(addMom("M"), "A");
    addQuietAttr(moc, "a", ZefMrType3String);

    repository.checkAttrs(*moc);

    EXPECT_EQ((Strings{error("Moc (M~1.0~A) must have one key attribute.")}), takeMessages());
}

TEST_F(ValidateTest, ClassWithoutAttributesNeedsNoKey) {
    MocWrapper* moc = addRootMoc(addMom("M"), "A");

    repository.checkAttrs(*moc);

    EXPECT_TRUE(takeMessages().empty());
    EXPECT_EQ((Strings{" >> Validating Attributes..", " << Validation of Attributes is done"}),
              tracesOf("checkAttrs"));
}

TEST_F(ValidateTest, TableComesFirstThenTheFourRulesInOrder) {
    MocWrapper* moc = addRootMoc(addMom("M"), "A");
    AttrWrapper* a = addAttr(moc, "a", ZefMrType3Void);
    a->setIsMandatory(true);
    a->setDefaultValue("d");
    a->setIsPersistent(false);
    a->setMin("0");
    addAttr(moc, "b", ZefMrType3Enum);

    repository.checkAttrs(*moc);

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~a) can not have void data type"),
                       error("Attribute (M~1.0~A~b) has type ENUM and the enumDatatype (enumRef) is not set."),
                       error("A mandatory attr (M~1.0~A~a) can not have default value (d)."),
                       error("A non-persistent attribute (M~1.0~A~a) must be readonly."),
                       warning("Mandatory attribute (M~1.0~A~a) multiplicity min should be grater than zero."),
                       error("Moc (M~1.0~A) must have one key attribute.")}),
              takeMessages());
}

// ---- checkMocs ----------------------------------------------------------------------

TEST_F(ValidateTest, SoundClassesPass) {
    MomWrapper* mom = addMom("M");
    MocWrapper* root = addSoundMoc(mom, "R");
    MocWrapper* child = addMoc(mom, "C");
    addKeyAttr(child, "id");
    resolveCont(addCont(mom, "c", "R", "C"), root, child);

    repository.checkMocs();

    EXPECT_TRUE(takeMessages().empty());
    EXPECT_EQ((Strings{" >> Validating Mocs..", "Checking Moc (M~1.0~C)", "Checking Moc (M~1.0~R)",
                       " << Validation of Mocs is done"}),
              tracesOf("checkMocs"));
}

TEST_F(ValidateTest, ClassWithoutMom) {
    MocWrapper* moc = addSoundMoc(addMom("M"), "A");
    moc->setMom(nullptr);

    repository.checkMocs();

    EXPECT_EQ((Strings{error("Moc (M~1.0~A) has no Mom.")}), takeMessages());
}

TEST_F(ValidateTest, ClassWithoutParentThatIsNotRoot) {
    MomWrapper* mom = addMom("M");
    addSoundMoc(mom, "Root");
    addKeyAttr(addMoc(mom, "Lost"), "id");

    repository.checkMocs();

    EXPECT_EQ((Strings{error("Moc (M~1.0~Lost) has no parent.")}), takeMessages());
}

TEST_F(ValidateTest, ReadOnlyClassNamesEachWritableAttribute) {
    MocWrapper* moc = addSoundMoc(addMom("M"), "A");
    moc->setIsReadOnly(true);
    addQuietAttr(moc, "r", ZefMrType3String)->setIsReadOnly(true);
    addQuietAttr(moc, "w", ZefMrType3String);

    repository.checkMocs();

    EXPECT_EQ((Strings{error("Read only MOC (M~1.0~A) can not have not readonly attribute (M~1.0~A~id)"),
                       error("Read only MOC (M~1.0~A) can not have not readonly attribute (M~1.0~A~w)")}),
              takeMessages());
}

TEST_F(ValidateTest, WritableClassMayHaveWritableAttributes) {
    MocWrapper* moc = addSoundMoc(addMom("M"), "A");
    addQuietAttr(moc, "w", ZefMrType3String);

    repository.checkMocs();

    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ValidateTest, FivePassesEachOverEveryClassInKeyOrder) {
    MomWrapper* mom = addMom("M");
    MocWrapper* b = addMoc(mom, "B");
    MocWrapper* a = addMoc(mom, "A");
    for (MocWrapper* moc : {a, b}) {
        moc->setIsReadOnly(true);
        addAttr(moc, "v", ZefMrType3Void)->setMin("0");
        addAction(moc, "act", ZefMrType3Reference);
        moc->setMom(nullptr);
    }

    repository.checkMocs();

    EXPECT_EQ((Strings{error("Moc (M~1.0~A) has no Mom."), error("Moc (M~1.0~B) has no Mom."),
                       error("Attribute (M~1.0~A~v) can not have void data type"),
                       error("Moc (M~1.0~A) must have one key attribute."),
                       error("Attribute (M~1.0~B~v) can not have void data type"),
                       error("Moc (M~1.0~B) must have one key attribute."),
                       error("Action (M~1.0~A~act) has returnType REFERENCE but pointer to referencedMoc is not set."),
                       error("Action (M~1.0~B~act) has returnType REFERENCE but pointer to referencedMoc is not set."),
                       error("Moc (M~1.0~A) has no parent."), error("Moc (M~1.0~B) has no parent."),
                       error("Read only MOC (M~1.0~A) can not have not readonly attribute (M~1.0~A~v)"),
                       error("Read only MOC (M~1.0~B) can not have not readonly attribute (M~1.0~B~v)")}),
              takeMessages());
}

} // namespace
} // namespace ZefTest
