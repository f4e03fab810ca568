#ifndef ZEF_TEST_HAND_BUILT_MODEL_H
#define ZEF_TEST_HAND_BUILT_MODEL_H

// A small model with one element of every kind, built by hand through the
// record setters and linked the way compilation links it, then registered
// with the query interface in a fixed order, so that every handle below is
// known:
//
//   MOM "M" 1.0 (domain extension QCIM/qcimMomName=QM, features f1, f2)
//     derived types: Counter (int32, ranges 1..5 and 10..20, resolution 2),
//                    Ratio (double, range 0.5..1.5, resolution "0.25"),
//                    Name (string, pattern, exception text, length 1..8,
//                    passphrase)
//     enum Color: RED = 1, GREEN = 70000
//     struct Pair (exclusive): first int8, second string
//     class Root (root): attributes count (Counter, key), color (Color),
//                        pair (Pair), ref (reference to Child), ratio
//                        (Ratio), name (Name)
//     class Child (read-only, constraint): action reset (result bool,
//                        parameters force bool, level uint8)
//     containment Root_to_Child: Root holds 0..5 Child
//     bidirectional association RootChild: ends toChild (Child) and
//                        toRoot (Root)
//     unidirectional association RootRef from Root: end refEnd (Child),
//                        external
//
// Handles (3017 + registration order within each kind):
//   MOM 3017; derived types Counter 3017, Ratio 3018, Name 3019; value
//   ranges Counter 3017 (1..5) and 3018 (10..20), Ratio 3019, Name's
//   length range 3020;
//   enum 3017, literals 3017, 3018; struct 3017, members 3017, 3018;
//   classes Root 3017, Child 3018; attributes count 3017 ... name 3022;
//   action 3017; parameters 3017, 3018; containment 3017; association ends
//   toChild 3017, toRoot 3018, refEnd 3019; bidirectional 3017;
//   unidirectional 3017. Type containers: members 3017, 3018, attributes
//   3019..3024, action result 3025, parameters 3026, 3027. General
//   properties: MOM 3017, Counter 3018, Ratio 3019, Name 3020, Color 3021,
//   RED 3022, GREEN 3023, Pair 3024, first 3025, second 3026, Root 3027,
//   Child 3028, count 3029 ... name 3034, reset 3035, force 3036, level
//   3037, Root_to_Child 3038, toChild 3039, toRoot 3040, refEnd 3041,
//   RootChild 3042, RootRef 3043. Domain extension 3017.

#include <memory>
#include <string>
#include <vector>

#include "ActionIf2Impl.h"
#include "AssociationEndIfImpl.h"
#include "AssociationEndWrapper.h"
#include "AttrWrapper.h"
#include "AttributeIf2Impl.h"
#include "BiDirAssociationWrapper.h"
#include "BidirectionalAssociationIfImpl.h"
#include "ContWrapper.h"
#include "ContainmentIf2Impl.h"
#include "DdtWrapper.h"
#include "DerivedTypeIf2Impl.h"
#include "EnumTypeIf2Impl.h"
#include "EnumWrapper.h"
#include "If2TestSupport.h"
#include "LitWrapper.h"
#include "MoActionWrapper.h"
#include "ModelRepository.h"
#include "MocIf2Impl.h"
#include "MocWrapper.h"
#include "MomIf2Impl.h"
#include "MomWrapper.h"
#include "ParameterWrapper.h"
#include "StructMemberWrapper.h"
#include "StructTypeIf2Impl.h"
#include "StructWrapper.h"
#include "UniDirAssociationWrapper.h"
#include "UnidirectionalAssociationIfImpl.h"

namespace ZefTest {

class HandBuiltModel {
public:
    HandBuiltModel() : mom(*_mom)
    {
        buildMom();
        buildTypes();
        buildClasses();
        buildRelationships();
    }

    HandBuiltModel(const HandBuiltModel&) = delete;
    HandBuiltModel& operator=(const HandBuiltModel&) = delete;

    /// Files the MOM in `repository`, which owns it from then on, so that the
    /// entry points find it.
    void fileMomIn(ZefModelRepositoryService::ModelRepository& repository)
    {
        repository.addMom(_mom.release());
    }

    /// Creates the interface objects in the order the handles above assume.
    void registerAll()
    {
        using namespace ZefModelRepositoryService;
        new MomIf2Impl(mom);
        new DerivedTypeIf2Impl(counter);
        new DerivedTypeIf2Impl(ratio);
        new DerivedTypeIf2Impl(name);
        new EnumTypeIf2Impl(color);
        new StructTypeIf2Impl(pair);
        new MocIf2Impl(root);
        new MocIf2Impl(child);
        for (const auto& attr : attrs) {
            new AttributeIf2Impl(*attr);
        }
        new ActionIf2Impl(reset);
        new ContainmentIf2Impl(rootToChild);
        new AssociationEndIfImpl(toChild);
        new AssociationEndIfImpl(toRoot);
        new AssociationEndIfImpl(refEnd);
        new BidirectionalAssociationIfImpl(rootChild);
        new UnidirectionalAssociationIfImpl(rootRef);
        // The lists of a class follow handle order once handles exist.
        root.sortBiDirAssociationWrappers();
        root.sortUniDirAssociationWrappers();
        child.sortBiDirAssociationWrappers();
    }

private:
    // Declared first: the MOM outlives the records that point at it.
    std::unique_ptr<ZefModelRepositoryService::MomWrapper> _mom{new ZefModelRepositoryService::MomWrapper()};

public:
    ZefModelRepositoryService::MomWrapper& mom;
    ZefModelRepositoryService::DdtWrapper counter;
    ZefModelRepositoryService::DdtWrapper ratio;
    ZefModelRepositoryService::DdtWrapper name;
    ZefModelRepositoryService::EnumWrapper color;
    ZefModelRepositoryService::StructWrapper pair;
    ZefModelRepositoryService::MocWrapper root;
    ZefModelRepositoryService::MocWrapper child;
    /// count, color, pair, ref, ratio, name (attributes of Root).
    std::vector<std::unique_ptr<ZefModelRepositoryService::AttrWrapper>> attrs;
    ZefModelRepositoryService::MoActionWrapper reset;
    ZefModelRepositoryService::ContWrapper rootToChild;
    ZefModelRepositoryService::AssociationEndWrapper toChild;
    ZefModelRepositoryService::AssociationEndWrapper toRoot;
    ZefModelRepositoryService::AssociationEndWrapper refEnd;
    ZefModelRepositoryService::BiDirAssociationWrapper rootChild;
    ZefModelRepositoryService::UniDirAssociationWrapper rootRef;

private:
    void buildMom()
    {
        mom.setName("M");
        mom.setVersion("1.0");
        mom.setCorrection("3");
        mom.setRelease("2");
        mom.setNamespaceURI("urn:m");
        mom.setNamespacePrefix("m");
        mom.setDocNo("1/155");
        mom.setRevision("A");
        mom.setAuthor("Ann");
        mom.setOrganization("Org");
        mom.setDescription("The model");
        mom.setModelFeatureNames("f1");
        mom.setModelFeatureNames("f2");
        mom.push_back_domain_extension("QCIM", "qcimMomName", "QM");
    }

    void buildTypes()
    {
        counter.setName("Counter");
        counter.setMom(&mom.getStruct());
        counter.setType(ZefMrType3Int32);
        counter.addRangeMin("1");
        counter.addRangeMax("5");
        counter.addRangeMin("10");
        counter.addRangeMax("20");
        counter.setIntResolution("2");

        ratio.setName("Ratio");
        ratio.setMom(&mom.getStruct());
        ratio.setType(ZefMrType3Double);
        ratio.addRangeMin("0.5");
        ratio.addRangeMax("1.5");
        ratio.setFloatResolution("0.25");

        name.setName("Name");
        name.setMom(&mom.getStruct());
        name.setType(ZefMrType3String);
        name.setPattern("[a-z]+");
        name.setExceptionText("lower case only");
        name.addLengthMin("1");
        name.addLengthMax("8");
        name.updateV1stringRestrictionLength();
        name.setIsPassphrase();

        color.setName("Color");
        color.setMom(&mom.getStruct());
        addLiteral("RED", "1");
        addLiteral("GREEN", "70000");

        pair.setName("Pair");
        pair.setMom(&mom.getStruct());
        pair.setIsExclusive(true);
        addMember("first", ZefMrType3Int8);
        addMember("second", ZefMrType3String);
    }

    void buildClasses()
    {
        root.setName("Root");
        root.setMom(&mom.getStruct());
        root.setIsRoot(true);
        mom.setRootMoc(&root.getStruct());

        child.setName("Child");
        child.setMom(&mom.getStruct());
        child.setIsReadOnly(true);
        child.setConstraint("x > 0");
        child.setIsSystemCreated();

        using ZefModelRepositoryService::AttrWrapper;
        AttrWrapper& count = addAttr("count", ZefMrType3Derived);
        count.setDerivedDatatype(&counter.getStruct());
        count.setIsKey(true);
        count.setUnit("pieces");
        count.setDescription("How many");
        addAttr("color", ZefMrType3Enum).setEnumDatatype(&color.getStruct());
        addAttr("pair", ZefMrType3Struct).setStructDatatype(&pair.getStruct());
        AttrWrapper& ref = addAttr("ref", ZefMrType3Reference);
        ref.setReferencedMoc(&child.getStruct());
        ref.setMin("0");
        ref.setMax("*");
        ref.setIsOrdered(true);
        ref.setIsRestricted(true);
        addAttr("ratio", ZefMrType3Derived).setDerivedDatatype(&ratio.getStruct());
        AttrWrapper& text = addAttr("name", ZefMrType3Derived);
        text.setDerivedDatatype(&name.getStruct());
        text.getTypeContainer().addDefaultValue("abc");
        text.getTypeContainer().addDefaultValue("xyz");
        text.setIsNotifiable(false);

        reset.setName("reset");
        reset.setMoc(&child.getStruct());
        reset.setType(ZefMrType3Bool);
        addParameter("force", ZefMrType3Bool);
        addParameter("level", ZefMrType3UInt8);
        child.addMoAction(&reset);
    }

    void buildRelationships()
    {
        rootToChild.setName("Root_to_Child");
        rootToChild.setMom(&mom.getStruct());
        rootToChild.setParentMoc(&root.getStruct());
        rootToChild.setChildMoc(&child.getStruct());
        rootToChild.setMin("0");
        rootToChild.setMax("5");
        root.setChildContainment(&rootToChild.getStruct());
        child.setParentContainment(&rootToChild.getStruct());

        buildEnd(toChild, "toChild", "Child", child);
        toChild.setIsReserving();
        toChild.setLower("1");
        toChild.setUpper("3");
        buildEnd(toRoot, "toRoot", "Root", root);
        toRoot.setAttribute(&attrs[3]->getStruct());
        buildEnd(refEnd, "refEnd", "Child", child);
        refEnd.setIsRestricted();

        rootChild.setName("RootChild");
        rootChild.setMom(&mom.getStruct());
        rootChild.setFirstAssociationEnd(&toChild.getStruct());
        rootChild.setSecondAssociationEnd(&toRoot.getStruct());
        root.addBiDirWrapper(&rootChild);
        child.addBiDirWrapper(&rootChild);

        rootRef.setName("RootRef");
        rootRef.setMom(&mom.getStruct());
        rootRef.setAssociationEnd(&refEnd.getStruct());
        rootRef.setOriginMoc(&root.getStruct());
        rootRef.setIsExternal();
        root.addUniDirWrapper(&rootRef);
    }

    void addLiteral(const std::string& literalName, const std::string& value)
    {
        auto* literal = new ZefModelRepositoryService::LitWrapper();
        literal->setName(literalName);
        literal->setValue(value);
        color.addLiteral(literal);
    }

    void addMember(const std::string& memberName, ZefOamSpiMrType_3 type)
    {
        auto* member = new ZefModelRepositoryService::StructMemberWrapper();
        member->setName(memberName);
        member->setType(type);
        pair.addMember(member);
    }

    ZefModelRepositoryService::AttrWrapper& addAttr(const std::string& attrName, ZefOamSpiMrType_3 type)
    {
        attrs.emplace_back(new ZefModelRepositoryService::AttrWrapper());
        ZefModelRepositoryService::AttrWrapper& attr = *attrs.back();
        attr.setName(attrName);
        attr.setMoc(&root.getStruct());
        attr.setType(type);
        root.addAttr(&attr);
        return attr;
    }

    void addParameter(const std::string& parameterName, ZefOamSpiMrType_3 type)
    {
        auto* parameter = new ZefModelRepositoryService::ParameterWrapper();
        parameter->setName(parameterName);
        parameter->setType(type);
        parameter->setMoAction(&reset);
        reset.addParameter(parameter);
    }

    void buildEnd(ZefModelRepositoryService::AssociationEndWrapper& end, const std::string& endName,
                  const std::string& classifier, ZefModelRepositoryService::MocWrapper& moc)
    {
        end.setName(endName);
        end.setMom(&mom.getStruct());
        end.setIdentifier(endName == "refEnd" ? "RootRef" : "RootChild");
        end.setClassifier(classifier);
        end.setMimName("M");
        end.setMimVersion("1.0");
        end.setMoc(&moc.getStruct());
    }
};

/// A started service with the hand-built model registered.
class HandBuiltModelTest : public If2Test {
protected:
    void SetUp() override
    {
        If2Test::SetUp();
        model.registerAll();
    }

    HandBuiltModel model;
};

} // namespace ZefTest

#endif // ZEF_TEST_HAND_BUILT_MODEL_H
