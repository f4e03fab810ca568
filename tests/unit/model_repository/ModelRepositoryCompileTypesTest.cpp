// Compilation of data type references: attributes, action results,
// parameters and struct members, for every type code. The four kinds share
// one resolution and differ in their texts, the same-class rule and the
// passphrase rule, so every case runs for each kind against that kind's
// own texts.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "CompileTestSupport.h"
#include "DerivedTypeIf2Impl.h"

namespace ZefTest {
namespace {

using Strings = std::vector<std::string>;

enum class Kind { Attribute, Action, Parameter, StructMember };

/// The texts one kind reports for the element "x" (class A of MOM M 1.0,
/// action "act", struct S) whose target is named "Nope" where it is missing.
struct KindTexts {
    const char* mimVersion;
    const char* mocAlreadySet;
    const char* mocNotSet;
    const char* mocNotFound;
    const char* enumAlreadySet;
    const char* enumNotSet;
    const char* enumNotFound;
    const char* ddtAlreadySet;
    const char* ddtNotSet;
    const char* ddtNotFound;
    const char* structAlreadySet;
    const char* structNotSet;
    const char* structNotFound;
    const char* unknownType0;
    const char* unknownType17;
    const char* sameMoc;    // null: a reference to the holding class resolves
    const char* passphrase; // null: no passphrase rule
    // traces
    const char* basicType3;
    const char* anyClass;
    const char* mocResolved; // to M~1.0~B
};

const KindTexts attributeTexts = {
    "Failed to resolve mimVersion for attribute (M~1.0~A~x)",
    "Attribute (M~1.0~A~x) has type moRef and the referencedMoc is already set.",
    "Attribute (M~1.0~A~x) has type moRef and the referencedMoc is not set.",
    "Attribute (M~1.0~A~x) refers to a Moc (M~1.0~Nope) which could not be found.",
    "Attribute (M~1.0~A~x) has type enumRef and the enumDataType is already set.",
    "Attribute (M~1.0~A~x) has type enumRef and the enumDataType is not set.",
    "Attribute (M~1.0~A~x) refers to a Enum (M~1.0~Nope) which could not be found.",
    "Attribute (M~1.0~A~x) has type derivedDataTypeRef and the is already set.",
    "Attribute (M~1.0~A~x) has type derivedDataTypeRef and the derivedDataType is not set.",
    "Attribute (M~1.0~A~x) refers to a Ddt (M~1.0~Nope) which could not be found.",
    "Attribute(M~1.0~A~x) has type structDatatypeRef and the structDatatype is already set.",
    "Attribute(M~1.0~A~x) has type structDatatypeRef and the structDatatype is not set.",
    "Attribute(M~1.0~A~x) refers to a Struct(M~1.0~Nope) which can not be found.",
    "Attribute (M~1.0~A~x) has an unknown/usupported type 0.",
    "Attribute (M~1.0~A~x) has an unknown/usupported type 17.",
    nullptr,
    "Attribute (M~1.0~A~x) is Key and has Passphrase property set. Ignoring the Passphrase property.",
    "Attribute (M~1.0~A~x) has a basic type (3), nothing to resolve here.",
    "Setting any class reference (ManagedObject) for attribute (M~1.0~A~x)",
    "Attribute (M~1.0~A~x) refers to the Moc (M~1.0~B) -- reference resolved.",
};

const KindTexts actionTexts = {
    "Failed to resolve mimVersion for action (M~1.0~A~x)",
    "Action (M~1.0~A~x) has type moRef and the referencedMoc is already set.",
    "Action (M~1.0~A~x) has type moRef and the referencedMoc is not set.",
    "Action (M~1.0~A~x) refers to a Moc (M~1.0~Nope) which could not be found.",
    "Action (M~1.0~A~x) has type enumRef and the enumDataType is already set.",
    "Action (M~1.0~A~x) has type enumRef and the enumDataType is not set.",
    "Action (M~1.0~A~x) refers to a Enum (M~1.0~Nope) which could not be found.",
    "Action (M~1.0~A~x) has type derivedDataTypeRef and the is already set.",
    "Action (M~1.0~A~x) has type derivedDataTypeRef and the derivedDataType is not set.",
    "Action (M~1.0~A~x) refers to a Ddt (M~1.0~Nope) which could not be found.",
    "Action(M~1.0~A~x) has type structDatatypeRef and the structDatatype is already set.",
    "Action(M~1.0~A~x) has type structDatatypeRef and the structDatatype is not set.",
    "Action(M~1.0~A~x) refers to a Struct(M~1.0~Nope) which can not be found.",
    "Action (M~1.0~A~x) has an unknown/usupported type 0.",
    "Action (M~1.0~A~x) has an unknown/usupported type 17.",
    "Action (M~1.0~A~x) refers to the same Moc (M~1.0~A) which contains it.",
    nullptr,
    "Action (M~1.0~A~x) has a basic type (3), nothing to resolve here.",
    "Setting any class reference (ManagedObject) for action (M~1.0~A~x)",
    "Action (M~1.0~A~x) refers to the Moc (M~1.0~B) -- reference resolved.",
};

const KindTexts parameterTexts = {
    "Failed to resolve mimVersion for Parameter (x)",
    "Parameter (x) has type moRef and the referencedMoc is already set.",
    "Parameter (x) has type moRef and the referencedMoc is not set.",
    "Parameter (x) refers to a Moc (M~1.0~Nope) which could not be found.",
    "Parameter (x) has type enumRef and the enumDataType is already set.",
    "Parameter (x) has type enumRef and the enumDataType is not set.",
    "Parameter (x) refers to a Enum (M~1.0~Nope) which could not be found.",
    "Parameter (x) has type derivedDataTypeRef and the is already set.",
    "Parameter (x) has type derivedDataTypeRef and the derivedDataType is not set.",
    "Parameter (x) refers to a Ddt (M~1.0~Nope) which could not be found.",
    "Parameter (x) has type structDatatypeRef and the structDatatype is already set.",
    "Parameter (x) has type structDatatypeRef and the structDatatype is not set.",
    "Parameter (x) refers to a Struct(M~1.0~Nope) which can not be found.",
    "Parameter (x) has an unknown/usupported type 0.",
    "Parameter (x) has an unknown/usupported type 17.",
    // The rule compares with the action's key, which no class has.
    nullptr,
    "(x) is Key and has Passphrase property set.Ignoring the Passphrase property.",
    "Parameter (x) has a basic type (3), nothing to resolve here.",
    "Setting any class reference (ManagedObject) for Parameter (x)",
    "Parameter (x) refers to the Moc (M~1.0~B) -- reference resolved.",
};

const KindTexts memberTexts = {
    "Failed to resolve mimVersion for StructMember (x)",
    "StructMember (x) has type moRef and the referencedMoc is already set.",
    "StructMember (x) has type moRef and the referencedMoc is not set.",
    "StructMember (x) refers to a Moc (M~1.0~Nope) which could not be found.",
    "StructMember (x) has type enumRef and the enumDataType is already set.",
    "StructMember (x) has type enumRef and the enumDataType is not set.",
    "StructMember (x) refers to a Enum (M~1.0~Nope) which could not be found.",
    "StructMember (x) has type derivedDataTypeRef and the is already set.",
    "StructMember (x) has type derivedDataTypeRef and the derivedDataType is not set.",
    "StructMember (x) refers to a Ddt (M~1.0~Nope) which could not be found.",
    "StructMember (x) has type structDatatypeRef and the structDatatype is already set.",
    "StructMember (x) has type structDatatypeRef and the structDatatype is not set.",
    "StructMember (x) refers to a Struct(M~1.0~Nope) which can not be found.",
    "StructMember (x) has an unknown/usupported type 0.",
    "StructMember (x) has an unknown/usupported type 17.",
    "StructMember (x) refers to the same Moc (M~1.0~S) which contains it.",
    "(x) is Key and has Passphrase property set.Ignoring the Passphrase property.",
    "StructMember (x) has a basic type (3), nothing to resolve here.",
    "Setting any class reference (ManagedObject) for StructMember (x)",
    "StructMember (x) refers to the Moc (M~1.0~B) -- reference resolved.",
};

/// The four type pointers of an element.
struct Targets {
    const ZefOamSpiMoc* moc = nullptr;
    const ZefOamSpiEnum* enumeration = nullptr;
    const ZefOamSpiDerivedDatatype* ddt = nullptr;
    const ZefOamSpiStruct* structure = nullptr;

    bool operator==(const Targets& other) const {
        return moc == other.moc && enumeration == other.enumeration && ddt == other.ddt
               && structure == other.structure;
    }
};

void PrintTo(const Targets& targets, std::ostream* out) {
    *out << "{moc " << targets.moc << ", enum " << targets.enumeration << ", ddt " << targets.ddt << ", struct "
         << targets.structure << "}";
}

std::string kindName(const ::testing::TestParamInfo<Kind>& info) {
    switch (info.param) {
    case Kind::Attribute:
        return "Attribute";
    case Kind::Action:
        return "Action";
    case Kind::Parameter:
        return "Parameter";
    case Kind::StructMember:
        return "StructMember";
    }
    return "Unknown";
}

class TypeResolutionTest : public CompileTest, public ::testing::WithParamInterface<Kind> {
protected:
    void SetUp() override {
        CompileTest::SetUp();
        m = addMom("M");
        a = addMoc(m, "A");
        s = addStruct(m, "S");
    }

    const KindTexts& texts() const {
        switch (GetParam()) {
        case Kind::Attribute:
            return attributeTexts;
        case Kind::Action:
            return actionTexts;
        case Kind::Parameter:
            return parameterTexts;
        case Kind::StructMember:
            break;
        }
        return memberTexts;
    }

    /// Creates the element "x" of the kind under test.
    void make(ZefOamSpiMrType_3 type, const Ref& ref = Ref()) {
        switch (GetParam()) {
        case Kind::Attribute:
            attr = addAttr(a, "x", type, ref);
            gp = attr;
            break;
        case Kind::Action:
            typed = addAction(a, "x", type, ref);
            gp = static_cast<MoActionWrapper*>(typed);
            break;
        case Kind::Parameter: {
            ParameterWrapper* parameter = addParameter(addAction(a, "act", ZefMrType3Void), "x", type, ref);
            typed = parameter;
            gp = parameter;
            break;
        }
        case Kind::StructMember: {
            StructMemberWrapper* member = addMember(s, "x", type, ref);
            typed = member;
            gp = member;
            break;
        }
        }
    }

    /// The reference by name of "x".
    const RefId& ref() const {
        return attr != nullptr ? static_cast<const RefId&>(*attr) : static_cast<const RefId&>(*typed);
    }

    Targets targets() const {
        Targets result;
        if (attr != nullptr) {
            const ZefOamSpiMoAttribute& record = attr->getStruct();
            result.moc = record.referencedMoc;
            result.enumeration = record.enumDatatype;
            result.ddt = record.derivedDatatype;
            result.structure = record.structDatatype;
        } else {
            result.moc = typed->getReferencedMoc();
            result.enumeration = typed->getEnumDatatype();
            result.ddt = typed->getDerivedDatatype();
            result.structure = typed->getStructDatatype();
        }
        return result;
    }

    void preset(const Targets& targets) {
        if (attr != nullptr) {
            attr->setReferencedMoc(targets.moc);
            attr->setEnumDatatype(targets.enumeration);
            attr->setDerivedDatatype(targets.ddt);
            attr->setStructDatatype(targets.structure);
        } else {
            typed->setReferencedMoc(targets.moc);
            typed->setEnumDatatype(targets.enumeration);
            typed->setDerivedDatatype(targets.ddt);
            typed->setStructDatatype(targets.structure);
        }
    }

    /// Makes "x" a key: the flag of an attribute, the domain extension of
    /// the other kinds.
    void makeKey() {
        if (attr != nullptr) {
            attr->setIsKey(true);
        } else {
            gp->push_back_domain_extension("QCIM", "isKey", "true");
        }
    }

    /// Pointers of the other kinds, to see them cleared.
    Targets strayTargets() {
        if (_stray.moc == nullptr) {
            _stray.moc = &addMoc(m, "Stray")->getStruct();
            _stray.enumeration = &addEnum(m, "StrayE")->getStruct();
            _stray.ddt = &addDdt(m, "StrayD")->getStruct();
            _stray.structure = &addStruct(m, "StrayS")->getStruct();
        }
        return _stray;
    }

    static Targets onlyMoc(const ZefOamSpiMoc* moc) {
        Targets t;
        t.moc = moc;
        return t;
    }
    static Targets onlyEnum(const ZefOamSpiEnum* e) {
        Targets t;
        t.enumeration = e;
        return t;
    }
    static Targets onlyDdt(const ZefOamSpiDerivedDatatype* d) {
        Targets t;
        t.ddt = d;
        return t;
    }
    static Targets onlyStruct(const ZefOamSpiStruct* st) {
        Targets t;
        t.structure = st;
        return t;
    }

    MomWrapper* m = nullptr;
    MocWrapper* a = nullptr;
    StructWrapper* s = nullptr;
    AttrWrapper* attr = nullptr;
    ZefModelRepositoryService::TypedElementWrapper* typed = nullptr;
    ZefModelRepositoryService::GeneralPropertiesWrapper* gp = nullptr;

private:
    Targets _stray;
};

INSTANTIATE_TEST_SUITE_P(EveryKind, TypeResolutionTest,
                         ::testing::Values(Kind::Attribute, Kind::Action, Kind::Parameter, Kind::StructMember),
                         kindName);

// ---- basic and unknown types -------------------------------------------------------

TEST_P(TypeResolutionTest, BasicTypesHaveNothingToResolve) {
    const ZefOamSpiMrType_3 basics[] = {ZefMrType3Int8,   ZefMrType3Int16,  ZefMrType3Int32,  ZefMrType3Int64,
                                        ZefMrType3UInt8,  ZefMrType3UInt16, ZefMrType3UInt32, ZefMrType3UInt64,
                                        ZefMrType3String, ZefMrType3Bool,   ZefMrType3Void,   ZefMrType3Double};
    make(ZefMrType3Int32, Ref{"B"});
    for (ZefOamSpiMrType_3 type : basics) {
        if (attr != nullptr) {
            attr->setType(type);
        } else {
            typed->setType(type);
        }
        repository.setAttrsDataType(*a);
        repository.setMoActionDataType(*a);
        repository.setMoAttributeDatatypeTpl(*s, s->getStructMemberListFront());
        EXPECT_EQ(Targets(), targets()) << "type " << type;
        // A basic type leaves the reference as it was.
        EXPECT_EQ("", ref().getRefMomName());
    }
    EXPECT_TRUE(takeMessages().empty());
}

TEST_P(TypeResolutionTest, BasicTypeIsTraced) {
    make(ZefMrType3Int32);

    repository.compileModel();

    EXPECT_TRUE(traced(texts().basicType3));
    EXPECT_TRUE(takeMessages().empty());
}

TEST_P(TypeResolutionTest, UnknownTypesAreWarnedAndClearEveryPointer) {
    make(ZefMrType3NotSet);
    preset(strayTargets());

    repository.compileModel();

    EXPECT_EQ(Targets(), targets());
    EXPECT_EQ((Strings{warning(texts().unknownType0)}), takeMessages());
}

TEST_P(TypeResolutionTest, TypeCodesBeyondTheTableAreUnknown) {
    make(static_cast<ZefOamSpiMrType_3>(17));
    preset(strayTargets());

    repository.compileModel();

    EXPECT_EQ(Targets(), targets());
    EXPECT_EQ((Strings{warning(texts().unknownType17)}), takeMessages());
}

// ---- references to classes -------------------------------------------------------------

TEST_P(TypeResolutionTest, ReferenceToAClassOfTheSameMom) {
    MocWrapper* b = addMoc(m, "B");
    make(ZefMrType3Reference, Ref{"B"});

    repository.compileModel();

    EXPECT_EQ(onlyMoc(&b->getStruct()), targets());
    EXPECT_TRUE(traced(texts().mocResolved));
    EXPECT_TRUE(takeMessages().empty());
}

TEST_P(TypeResolutionTest, ReferenceFillsInTheElementsOwnMom) {
    addMoc(m, "B");
    make(ZefMrType3Reference, Ref{"B"});

    repository.compileModel();

    EXPECT_EQ("M", ref().getRefMomName());
    EXPECT_EQ("1.0", ref().getRefMomVersion());
}

TEST_P(TypeResolutionTest, ReferenceToAClassOfAnotherMom) {
    MomWrapper* n = addMom("N", "2.0");
    addMoc(m, "B");
    MocWrapper* nb = addMoc(n, "B");
    make(ZefMrType3Reference, Ref{"B", "N", "2.0"});

    repository.compileModel();

    EXPECT_EQ(onlyMoc(&nb->getStruct()), targets());
    EXPECT_TRUE(takeMessages().empty());
}

TEST_P(TypeResolutionTest, ReferenceTakesTheVersionOfTheOnlyMomOfItsName) {
    MomWrapper* n = addMom("N", "2.0");
    MocWrapper* nb = addMoc(n, "B");
    make(ZefMrType3Reference, Ref{"B", "N"});

    repository.compileModel();

    EXPECT_EQ(onlyMoc(&nb->getStruct()), targets());
    EXPECT_TRUE(takeMessages().empty());
}

TEST_P(TypeResolutionTest, ReferenceToAMomNameNoMomHas) {
    make(ZefMrType3Reference, Ref{"B", "Z"});

    repository.compileModel();

    EXPECT_EQ(Targets(), targets());
    EXPECT_EQ((Strings{error(texts().mimVersion), error(texts().mocNotSet)}), takeMessages());
}

TEST_P(TypeResolutionTest, ReferenceToAMomNameOfSeveralMoms) {
    addMoc(addMom("N", "1.0"), "B");
    addMom("N", "2.0");
    make(ZefMrType3Reference, Ref{"B", "N"});

    repository.compileModel();

    EXPECT_EQ(Targets(), targets());
    EXPECT_EQ((Strings{error(texts().mimVersion), error(texts().mocNotSet)}), takeMessages());
}

TEST_P(TypeResolutionTest, ReferenceByModellingStandardMomName) {
    MomWrapper* n = addMom("N", "2.0");
    setQcimName(n, "QN", "8");
    MocWrapper* nb = addMoc(n, "B");
    make(ZefMrType3Reference, Ref{"B", "QN", "8"});

    repository.compileModel();

    EXPECT_EQ(onlyMoc(&nb->getStruct()), targets());
    EXPECT_EQ("N", ref().getRefMomName());
    EXPECT_EQ("2.0", ref().getRefMomVersion());
    EXPECT_TRUE(takeMessages().empty());
}

TEST_P(TypeResolutionTest, ReferenceByModellingStandardMomNameWithoutVersion) {
    MomWrapper* n = addMom("N", "2.0");
    setQcimName(n, "QN", "8");
    MocWrapper* nb = addMoc(n, "B");
    make(ZefMrType3Reference, Ref{"B", "QN"});

    repository.compileModel();

    EXPECT_EQ(onlyMoc(&nb->getStruct()), targets());
    EXPECT_TRUE(takeMessages().empty());
}

TEST_P(TypeResolutionTest, ReferenceToAMissingClass) {
    make(ZefMrType3Reference, Ref{"Nope"});

    repository.compileModel();

    EXPECT_EQ(Targets(), targets());
    EXPECT_EQ((Strings{error(texts().mocNotFound)}), takeMessages());
}

TEST_P(TypeResolutionTest, ReferenceWithoutName) {
    make(ZefMrType3Reference);

    repository.compileModel();

    EXPECT_EQ(Targets(), targets());
    EXPECT_EQ((Strings{error(texts().mocNotSet)}), takeMessages());
}

TEST_P(TypeResolutionTest, ReferenceAlreadySetIsKept) {
    MocWrapper* b = addMoc(m, "B");
    MocWrapper* c = addMoc(m, "C");
    make(ZefMrType3Reference, Ref{"B"});
    preset(onlyMoc(&c->getStruct()));

    repository.compileModel();

    EXPECT_EQ(onlyMoc(&c->getStruct()), targets());
    EXPECT_NE(&b->getStruct(), targets().moc);
    EXPECT_EQ((Strings{error(texts().mocAlreadySet)}), takeMessages());
}

TEST_P(TypeResolutionTest, ManagedObjectIsTheAnyClassWithoutLookup) {
    make(ZefMrType3Reference, Ref{"ManagedObject"});

    repository.compileModel();

    EXPECT_EQ(onlyMoc(&repository.getAnyClassMoc().getStruct()), targets());
    EXPECT_TRUE(traced(texts().anyClass));
    EXPECT_TRUE(takeMessages().empty());
}

TEST_P(TypeResolutionTest, ManagedObjectOfAnotherMomIsTheAnyClassToo) {
    addMom("N", "2.0");
    make(ZefMrType3Reference, Ref{"ManagedObject", "N", "2.0"});

    repository.compileModel();

    EXPECT_EQ(onlyMoc(&repository.getAnyClassMoc().getStruct()), targets());
    EXPECT_TRUE(takeMessages().empty());
}

TEST_P(TypeResolutionTest, ReferenceToTheHoldingClass) {
    // The class that holds "x": A for attributes, actions and parameters,
    // a class of the struct's name for struct members.
    MocWrapper* holder = GetParam() == Kind::StructMember ? addMoc(m, "S") : a;
    make(ZefMrType3Reference, Ref{GetParam() == Kind::StructMember ? "S" : "A"});

    repository.compileModel();

    if (texts().sameMoc == nullptr) {
        EXPECT_EQ(onlyMoc(&holder->getStruct()), targets());
        EXPECT_TRUE(takeMessages().empty());
    } else {
        EXPECT_EQ(Targets(), targets());
        EXPECT_EQ((Strings{error(texts().sameMoc)}), takeMessages());
    }
}

// ---- enumerations --------------------------------------------------------------------

TEST_P(TypeResolutionTest, EnumerationFoundClearsTheOtherPointers) {
    EnumWrapper* e = addEnum(m, "E");
    make(ZefMrType3Enum, Ref{"E"});
    Targets stray = strayTargets();
    stray.enumeration = nullptr;
    preset(stray);

    repository.compileModel();

    EXPECT_EQ(onlyEnum(&e->getStruct()), targets());
    EXPECT_TRUE(takeMessages().empty());
}

TEST_P(TypeResolutionTest, EnumerationOfAnotherMomByModellingStandardName) {
    MomWrapper* n = addMom("N", "2.0");
    setQcimName(n, "QN", "8");
    EnumWrapper* e = addEnum(n, "E");
    make(ZefMrType3Enum, Ref{"E", "QN", "8"});

    repository.compileModel();

    EXPECT_EQ(onlyEnum(&e->getStruct()), targets());
    EXPECT_TRUE(takeMessages().empty());
}

TEST_P(TypeResolutionTest, EnumerationMissing) {
    make(ZefMrType3Enum, Ref{"Nope"});

    repository.compileModel();

    EXPECT_EQ(Targets(), targets());
    EXPECT_EQ((Strings{error(texts().enumNotFound)}), takeMessages());
}

TEST_P(TypeResolutionTest, EnumerationWithoutName) {
    make(ZefMrType3Enum);

    repository.compileModel();

    EXPECT_EQ((Strings{error(texts().enumNotSet)}), takeMessages());
}

TEST_P(TypeResolutionTest, EnumerationWithoutVersion) {
    addEnum(m, "E");
    make(ZefMrType3Enum, Ref{"E", "Z"});

    repository.compileModel();

    EXPECT_EQ(Targets(), targets());
    EXPECT_EQ((Strings{error(texts().mimVersion), error(texts().enumNotSet)}), takeMessages());
}

TEST_P(TypeResolutionTest, EnumerationAlreadySetIsKept) {
    addEnum(m, "E");
    EnumWrapper* other = addEnum(m, "Other");
    make(ZefMrType3Enum, Ref{"E"});
    preset(onlyEnum(&other->getStruct()));

    repository.compileModel();

    EXPECT_EQ(onlyEnum(&other->getStruct()), targets());
    EXPECT_EQ((Strings{error(texts().enumAlreadySet)}), takeMessages());
}

// ---- derived data types --------------------------------------------------------------

TEST_P(TypeResolutionTest, DerivedTypeFoundClearsTheOtherPointers) {
    DdtWrapper* d = addDdt(m, "D");
    make(ZefMrType3Derived, Ref{"D"});
    Targets stray = strayTargets();
    stray.ddt = nullptr;
    preset(stray);

    repository.compileModel();

    EXPECT_EQ(onlyDdt(&d->getStruct()), targets());
    EXPECT_TRUE(takeMessages().empty());
}

TEST_P(TypeResolutionTest, DerivedTypeOfAnotherMomByModellingStandardName) {
    MomWrapper* n = addMom("N", "2.0");
    setQcimName(n, "QN", "8");
    DdtWrapper* d = addDdt(n, "D");
    make(ZefMrType3Derived, Ref{"D", "QN"});

    repository.compileModel();

    EXPECT_EQ(onlyDdt(&d->getStruct()), targets());
    EXPECT_TRUE(takeMessages().empty());
}

TEST_P(TypeResolutionTest, DerivedTypeMissing) {
    make(ZefMrType3Derived, Ref{"Nope"});

    repository.compileModel();

    EXPECT_EQ(Targets(), targets());
    EXPECT_EQ((Strings{error(texts().ddtNotFound)}), takeMessages());
}

TEST_P(TypeResolutionTest, DerivedTypeWithoutName) {
    make(ZefMrType3Derived);

    repository.compileModel();

    EXPECT_EQ((Strings{error(texts().ddtNotSet)}), takeMessages());
}

TEST_P(TypeResolutionTest, DerivedTypeWithoutVersion) {
    addDdt(m, "D");
    make(ZefMrType3Derived, Ref{"D", "Z"});

    repository.compileModel();

    EXPECT_EQ((Strings{error(texts().mimVersion), error(texts().ddtNotSet)}), takeMessages());
}

TEST_P(TypeResolutionTest, DerivedTypeAlreadySetIsKept) {
    addDdt(m, "D");
    DdtWrapper* other = addDdt(m, "Other");
    make(ZefMrType3Derived, Ref{"D"});
    preset(onlyDdt(&other->getStruct()));

    repository.compileModel();

    EXPECT_EQ(onlyDdt(&other->getStruct()), targets());
    EXPECT_EQ((Strings{error(texts().ddtAlreadySet)}), takeMessages());
}

// ---- structs ---------------------------------------------------------------------------

TEST_P(TypeResolutionTest, StructFoundClearsTheOtherPointers) {
    StructWrapper* t = addStruct(m, "T");
    make(ZefMrType3Struct, Ref{"T"});
    Targets stray = strayTargets();
    stray.structure = nullptr;
    preset(stray);

    repository.compileModel();

    EXPECT_EQ(onlyStruct(&t->getStruct()), targets());
    EXPECT_TRUE(takeMessages().empty());
}

TEST_P(TypeResolutionTest, StructOfAnotherMomByModellingStandardName) {
    MomWrapper* n = addMom("N", "2.0");
    setQcimName(n, "QN", "8");
    StructWrapper* t = addStruct(n, "T");
    make(ZefMrType3Struct, Ref{"T", "QN", "8"});

    repository.compileModel();

    EXPECT_EQ(onlyStruct(&t->getStruct()), targets());
    EXPECT_TRUE(takeMessages().empty());
}

TEST_P(TypeResolutionTest, StructMissing) {
    make(ZefMrType3Struct, Ref{"Nope"});

    repository.compileModel();

    EXPECT_EQ(Targets(), targets());
    EXPECT_EQ((Strings{error(texts().structNotFound)}), takeMessages());
}

TEST_P(TypeResolutionTest, StructWithoutName) {
    make(ZefMrType3Struct);

    repository.compileModel();

    EXPECT_EQ((Strings{error(texts().structNotSet)}), takeMessages());
}

TEST_P(TypeResolutionTest, StructWithoutVersion) {
    addStruct(m, "T");
    make(ZefMrType3Struct, Ref{"T", "Z"});

    repository.compileModel();

    EXPECT_EQ((Strings{error(texts().mimVersion), error(texts().structNotSet)}), takeMessages());
}

TEST_P(TypeResolutionTest, StructAlreadySetIsKept) {
    addStruct(m, "T");
    StructWrapper* other = addStruct(m, "Other");
    make(ZefMrType3Struct, Ref{"T"});
    preset(onlyStruct(&other->getStruct()));

    repository.compileModel();

    EXPECT_EQ(onlyStruct(&other->getStruct()), targets());
    EXPECT_EQ((Strings{error(texts().structAlreadySet)}), takeMessages());
}

// ---- passphrase types --------------------------------------------------------------

TEST_P(TypeResolutionTest, KeyTypedByAPassphraseTypeGetsASubstitute) {
    DdtWrapper* pw = addDdt(m, "Pw", true);
    make(ZefMrType3Derived, Ref{"Pw"});
    makeKey();

    repository.compileModel();

    if (texts().passphrase == nullptr) {
        EXPECT_EQ(onlyDdt(&pw->getStruct()), targets());
        EXPECT_EQ(1u, repository.getDdtMap().size()); // no substitute
        EXPECT_TRUE(takeMessages().empty());
        return;
    }
    const auto substitute = repository.getDdtMap().find("M~1.0~M~1.0~Pw_forPassphraseMOCKey_StructKey");
    ASSERT_NE(repository.getDdtMap().end(), substitute);
    EXPECT_EQ(onlyDdt(&substitute->second->getStruct()), targets());
    EXPECT_FALSE(substitute->second->getIsPassphrase());
    EXPECT_TRUE(pw->getIsPassphrase());
    EXPECT_STREQ("M~1.0~Pw_forPassphraseMOCKey_StructKey", substitute->second->getStruct().generalProperties.name);
    EXPECT_EQ(&m->getStruct(), substitute->second->getStruct().mom);
    // The substitute is published to the query interface like any type.
    const uint64_t handle = substitute->second->getHandle();
    EXPECT_NE(0u, handle);
    uint64_t generalProperties = 0;
    EXPECT_EQ(ZefOk,
              ZefModelRepositoryService::DerivedTypeIf2Impl::lookup(handle).getGeneralProperties(generalProperties));
    EXPECT_NE(0u, generalProperties);
    EXPECT_EQ((Strings{warning(texts().passphrase)}), takeMessages());
}

TEST_P(TypeResolutionTest, NonKeyTypedByAPassphraseTypeKeepsIt) {
    DdtWrapper* pw = addDdt(m, "Pw", true);
    make(ZefMrType3Derived, Ref{"Pw"});
    if (attr == nullptr) {
        gp->push_back_domain_extension("QCIM", "isKey", "false");
    }

    repository.compileModel();

    EXPECT_EQ(onlyDdt(&pw->getStruct()), targets());
    EXPECT_EQ(1u, repository.getDdtMap().size());
    EXPECT_TRUE(takeMessages().empty());
}

TEST_P(TypeResolutionTest, KeyTypedByAnOrdinaryTypeKeepsIt) {
    DdtWrapper* d = addDdt(m, "D");
    make(ZefMrType3Derived, Ref{"D"});
    makeKey();

    repository.compileModel();

    EXPECT_EQ(onlyDdt(&d->getStruct()), targets());
    EXPECT_EQ(1u, repository.getDdtMap().size());
    EXPECT_TRUE(takeMessages().empty());
}

// ---- kinds together ------------------------------------------------------------------

TEST_F(CompileTest, TwoKeyAttributesOfOnePassphraseTypeShareOneSubstitute) {
    MomWrapper* m = addMom("M");
    MocWrapper* a = addMoc(m, "A");
    DdtWrapper* pw = addDdt(m, "Pw", true);
    AttrWrapper* k1 = addAttr(a, "k1", ZefMrType3Derived, Ref{"Pw"});
    k1->setIsKey(true);
    AttrWrapper* k2 = addAttr(a, "k2", ZefMrType3Derived, Ref{"Pw"});
    k2->setIsKey(true);

    repository.compileModel();

    ASSERT_EQ(2u, repository.getDdtMap().size());
    const DdtWrapper* substitute = repository.getDdtMap().at("M~1.0~M~1.0~Pw_forPassphraseMOCKey_StructKey");
    EXPECT_NE(pw, substitute);
    EXPECT_EQ(&substitute->getStruct(), k1->getStruct().derivedDatatype);
    EXPECT_EQ(&substitute->getStruct(), k2->getStruct().derivedDatatype);
    EXPECT_EQ((Strings{warning("Attribute (M~1.0~A~k1) is Key and has Passphrase property set. Ignoring the "
                               "Passphrase property."),
                       warning("Attribute (M~1.0~A~k2) is Key and has Passphrase property set. Ignoring the "
                               "Passphrase property.")}),
              takeMessages());
}

TEST_F(CompileTest, KeysOfEveryKindShareTheSubstituteOfAPassphraseType) {
    MomWrapper* m = addMom("M");
    MocWrapper* a = addMoc(m, "A");
    addDdt(m, "Pw", true);
    AttrWrapper* key = addAttr(a, "k", ZefMrType3Derived, Ref{"Pw"});
    key->setIsKey(true);
    StructWrapper* s = addStruct(m, "S");
    StructMemberWrapper* member = addMember(s, "mk", ZefMrType3Derived, Ref{"Pw"});
    member->push_back_domain_extension("QCIM", "isKey", "true");
    MoActionWrapper* action = addAction(a, "act", ZefMrType3Void);
    ParameterWrapper* parameter = addParameter(action, "pk", ZefMrType3Derived, Ref{"Pw"});
    parameter->push_back_domain_extension("QCIM", "isKey", "true");

    repository.compileModel();

    ASSERT_EQ(2u, repository.getDdtMap().size());
    const DdtWrapper* substitute = repository.getDdtMap().at("M~1.0~M~1.0~Pw_forPassphraseMOCKey_StructKey");
    EXPECT_EQ(&substitute->getStruct(), key->getStruct().derivedDatatype);
    EXPECT_EQ(&substitute->getStruct(), member->getDerivedDatatype());
    EXPECT_EQ(&substitute->getStruct(), parameter->getDerivedDatatype());
    // Classes first (attributes, then actions with their parameters), structs last.
    EXPECT_EQ(
        (Strings{
            warning("Attribute (M~1.0~A~k) is Key and has Passphrase property set. Ignoring the Passphrase property."),
            warning("(pk) is Key and has Passphrase property set.Ignoring the Passphrase property."),
            warning("(mk) is Key and has Passphrase property set.Ignoring the Passphrase property.")}),
        takeMessages());
}

TEST_F(CompileTest, ActionWithoutReturnTypeIsUnknownTypeZero) {
    MomWrapper* m = addMom("M");
    MocWrapper* a = addMoc(m, "A");
    MoActionWrapper* action = new MoActionWrapper();
    action->setName("act");
    action->setMoc(&a->getStruct());
    ASSERT_EQ(ZefOk, a->addMoAction(action));

    repository.compileModel();

    EXPECT_EQ((Strings{warning("Action (M~1.0~A~act) has an unknown/usupported type 0.")}), takeMessages());
}

TEST_F(CompileTest, ResultTypeOfEachActionIsResolvedBeforeItsParameters) {
    MomWrapper* m = addMom("M");
    MocWrapper* a = addMoc(m, "A");
    MoActionWrapper* first = addAction(a, "a1", ZefMrType3Enum, Ref{"E1"});
    addParameter(first, "p1", ZefMrType3Enum, Ref{"E2"});
    addParameter(first, "p2", ZefMrType3Enum, Ref{"E3"});
    MoActionWrapper* second = addAction(a, "a2", ZefMrType3Enum, Ref{"E4"});
    addParameter(second, "p3", ZefMrType3Enum, Ref{"E5"});
    addAttr(a, "attr", ZefMrType3Enum, Ref{"E0"});

    repository.compileModel();

    EXPECT_EQ((Strings{error("Attribute (M~1.0~A~attr) refers to a Enum (M~1.0~E0) which could not be found."),
                       error("Action (M~1.0~A~a1) refers to a Enum (M~1.0~E1) which could not be found."),
                       error("Parameter (p1) refers to a Enum (M~1.0~E2) which could not be found."),
                       error("Parameter (p2) refers to a Enum (M~1.0~E3) which could not be found."),
                       error("Action (M~1.0~A~a2) refers to a Enum (M~1.0~E4) which could not be found."),
                       error("Parameter (p3) refers to a Enum (M~1.0~E5) which could not be found.")}),
              takeMessages());
}

TEST_F(CompileTest, StructMembersAreResolvedInStructKeyAndMemberOrder) {
    MomWrapper* m = addMom("M");
    StructWrapper* t = addStruct(m, "T");
    StructWrapper* s = addStruct(m, "S");
    addMember(t, "t1", ZefMrType3Enum, Ref{"E3"});
    addMember(s, "s2", ZefMrType3Enum, Ref{"E1"});
    addMember(s, "s1", ZefMrType3Enum, Ref{"E2"});

    repository.compileModel();

    EXPECT_EQ((Strings{error("StructMember (s2) refers to a Enum (M~1.0~E1) which could not be found."),
                       error("StructMember (s1) refers to a Enum (M~1.0~E2) which could not be found."),
                       error("StructMember (t1) refers to a Enum (M~1.0~E3) which could not be found.")}),
              takeMessages());
}

TEST_F(CompileTest, MemberOfAStructOfAnotherMomResolvesInItsOwnMom) {
    MomWrapper* m = addMom("M");
    MomWrapper* n = addMom("N", "2.0");
    addEnum(m, "E");
    EnumWrapper* ne = addEnum(n, "E");
    StructWrapper* s = addStruct(n, "S");
    StructMemberWrapper* member = addMember(s, "x", ZefMrType3Enum, Ref{"E"});

    repository.compileModel();

    EXPECT_EQ(&ne->getStruct(), member->getEnumDatatype());
    EXPECT_TRUE(takeMessages().empty());
}

} // namespace
} // namespace ZefTest
