// checkConts, checkAssociationEnds, checkBiDirectionalAssociations and
// checkUniDirectionalAssociations.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ValidateTestSupport.h"

namespace ZefTest {
namespace {

using Strings = std::vector<std::string>;

/// MOM "M" with the classes P and Q (parents) and C and D (children).
class RelationTest : public ValidateTest {
protected:
    void SetUp() override {
        ValidateTest::SetUp();
        mom = addMom("M");
        p = addSoundMoc(mom, "P");
        q = addSoundMoc(mom, "Q");
        c = addMoc(mom, "C");
        d = addMoc(mom, "D");
    }

    /// A containment of M between two of its classes, resolved as compilation does.
    ContWrapper* contain(const std::string& name, MocWrapper* parent, MocWrapper* child) {
        ContWrapper* cont = addCont(mom, name, parent->getName(), child->getName());
        resolveCont(cont, parent, child);
        return cont;
    }

    /// An association end of M in relationship "rel" at class `at` (null:
    /// a class that was not found), resolved to the attribute `attr`.
    AssociationEndWrapper* endAt(const std::string& name, MocWrapper* at, AttrWrapper* attr) {
        AssociationEndWrapper* end = addEnd(mom, name, "rel", at != nullptr ? at->getName() : "Nowhere", "M");
        resolveEnd(end, at, attr);
        return end;
    }

    MomWrapper* mom = nullptr;
    MocWrapper* p = nullptr;
    MocWrapper* q = nullptr;
    MocWrapper* c = nullptr;
    MocWrapper* d = nullptr;
};

// ---- containments ----------------------------------------------------------------

TEST_F(RelationTest, SoundContainmentsPassAndAreTraced) {
    ContWrapper* first = contain("c1", p, c);
    ContWrapper* second = contain("c2", p, d);
    first->setNextContainmentSameParentMoc(second);
    first->setMin("1");
    first->setMax("1");

    repository.checkConts();

    EXPECT_TRUE(takeMessages().empty());
    EXPECT_EQ((Strings{" >> Validating Containments..", "Checking Containment(M~1.0~c1)",
                       "Checking Containment(M~1.0~c2)", " << Validation of Containments is done"}),
              tracesOf("checkConts"));
}

TEST_F(RelationTest, ContainmentWithoutMom) {
    contain("c", p, c)->setMom(nullptr);

    repository.checkConts();

    EXPECT_EQ((Strings{error("Containment (M~1.0~c) has no mom")}), takeMessages());
}

TEST_F(RelationTest, InterMimContainmentWithoutMomPasses) {
    ContWrapper* cont = addInterMimCont("x", Ref{"P", "M", "1.0"}, Ref{"C", "M", "1.0"});
    resolveCont(cont, p, c);

    repository.checkConts();

    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(RelationTest, InterMimContainmentWithMom) {
    ContWrapper* cont = addInterMimCont("x", Ref{"P", "M", "1.0"}, Ref{"C", "M", "1.0"});
    resolveCont(cont, p, c);
    cont->setMom(&mom->getStruct());

    repository.checkConts();

    EXPECT_EQ((Strings{error("IntermimContainment (M~x) has mom")}), takeMessages());
}

TEST_F(RelationTest, ContainmentWithoutParentSkipsEveryLaterCheck) {
    ContWrapper* cont = addCont(mom, "c", "P", "C");
    cont->setMin("5");
    cont->setMax("1");
    cont->setNextContainmentSameChildMoc(contain("other", q, d));
    cont->setMom(nullptr);

    repository.checkConts();

    EXPECT_EQ((Strings{error("Containment (M~1.0~c) has no mom"), error("Containment (M~1.0~c) has no parent")}),
              takeMessages());
}

TEST_F(RelationTest, ParentWithoutChildContainment) {
    contain("c", p, c);
    p->setChildContainment(nullptr);

    repository.checkConts();

    EXPECT_EQ((Strings{error("MOC (M~1.0~P) has no child containment to(M~1.0~c)")}), takeMessages());
}

TEST_F(RelationTest, ContainmentWithoutChildStillGoesThroughChainsAndCardinality) {
    ContWrapper* cont = addCont(mom, "c", "P", "Missing");
    resolveCont(cont, p, nullptr);
    ContWrapper* sibling = contain("d", q, d);
    cont->setNextContainmentSameParentMoc(sibling);
    cont->setNextContainmentSameChildMoc(sibling);
    cont->setMin("3");
    cont->setMax("2");

    repository.checkConts();

    EXPECT_EQ((Strings{error("Containment (M~1.0~c) has no child"),
                       error("Expected the same parent Moc in cont (M~1.0~c) and (M~1.0~d)."),
                       error("Expected the same child Moc in cont (M~1.0~c) and (M~1.0~d)."),
                       error("Containment(M~1.0~c), cardinality min(3) > max(2).")}),
              takeMessages());
}

TEST_F(RelationTest, TwoChildrenOfOneNameUnderOneParent) {
    // Two classes named C in different MOMs can not be told apart below P.
    MomWrapper* other = addMom("N");
    MocWrapper* namesake = addMoc(other, "C");
    contain("c1", p, c);
    contain("c2", p, namesake);
    contain("c3", q, namesake);

    repository.checkConts();

    EXPECT_EQ((Strings{error("Multiple children to 'P' with the same name 'C' detected")}), takeMessages());
}

TEST_F(RelationTest, ParentChainWithAnotherParentIsReportedOnce) {
    ContWrapper* first = contain("c1", p, c);
    ContWrapper* second = contain("c2", p, d);
    ContWrapper* stray = contain("c3", q, d);
    first->setNextContainmentSameParentMoc(second);
    second->setNextContainmentSameParentMoc(stray);

    repository.checkConts();

    EXPECT_EQ((Strings{error("Expected the same parent Moc in cont (M~1.0~c1) and (M~1.0~c3).")}), takeMessages());
}

TEST_F(RelationTest, ChildChainWithAnotherChildIsReportedOnce) {
    ContWrapper* first = contain("c1", p, c);
    ContWrapper* second = contain("c2", q, c);
    ContWrapper* stray = contain("c3", q, d);
    first->setNextContainmentSameChildMoc(second);
    second->setNextContainmentSameChildMoc(stray);

    repository.checkConts();

    EXPECT_EQ((Strings{error("Expected the same child Moc in cont (M~1.0~c1) and (M~1.0~c3).")}), takeMessages());
}

TEST_F(RelationTest, ChainThatLoopsBackEnds) {
    ContWrapper* first = contain("c1", p, c);
    ContWrapper* second = contain("c2", p, d);
    first->setNextContainmentSameParentMoc(second);
    second->setNextContainmentSameParentMoc(first);

    repository.checkConts();

    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(RelationTest, ReversedCardinality) {
    ContWrapper* cont = contain("c", p, c);
    cont->setMin("4");
    cont->setMax("2");

    repository.checkConts();

    EXPECT_EQ((Strings{error("Containment(M~1.0~c), cardinality min(4) > max(2).")}), takeMessages());
}

TEST_F(RelationTest, CardinalityWithoutMaximumIsUnbounded) {
    contain("c", p, c)->setMin("32767");
    contain("e", p, d)->setMax("");

    repository.checkConts();

    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(RelationTest, ContainmentFindingsInOrder) {
    // c1 comes first in key order and is the head of both chains.
    ContWrapper* cont = contain("c1", p, c);
    ContWrapper* twin = contain("c2", p, c);
    ContWrapper* stray = contain("c3", q, d);
    cont->setNextContainmentSameParentMoc(stray);
    cont->setNextContainmentSameChildMoc(stray);
    twin->setMin("2");
    twin->setMax("1");
    twin->setMom(nullptr);
    p->setChildContainment(nullptr);

    repository.checkConts();

    EXPECT_EQ((Strings{error("MOC (M~1.0~P) has no child containment to(M~1.0~c1)"),
                       error("Expected the same parent Moc in cont (M~1.0~c1) and (M~1.0~c3)."),
                       error("Expected the same child Moc in cont (M~1.0~c1) and (M~1.0~c3)."),
                       error("Containment (M~1.0~c2) has no mom"),
                       error("MOC (M~1.0~P) has no child containment to(M~1.0~c2)"),
                       error("Multiple children to 'P' with the same name 'C' detected"),
                       error("Containment(M~1.0~c2), cardinality min(2) > max(1).")}),
              takeMessages());
}

// ---- association ends --------------------------------------------------------------

TEST_F(RelationTest, SoundEndPassesAndIsTraced) {
    AttrWrapper* attr = addQuietAttr(p, "e", ZefMrType3Reference);
    endAt("e", p, attr)->setUpper("3");

    repository.checkAssociationEnds();

    EXPECT_TRUE(takeMessages().empty());
    EXPECT_EQ((Strings{" >> Validating Association Ends..", "Checking association End (M~1.0~e~rel)",
                       " << Validation of Association Ends is done."}),
              tracesOf("checkAssociationEnds"));
}

TEST_F(RelationTest, EndWithoutMom) {
    endAt("e", p, addQuietAttr(p, "e", ZefMrType3Reference))->setMom(nullptr);

    repository.checkAssociationEnds();

    EXPECT_EQ((Strings{error("Association End (M~1.0~e~rel) has no mom")}), takeMessages());
}

TEST_F(RelationTest, EndWithoutClass) {
    endAt("e", nullptr, addQuietAttr(p, "e", ZefMrType3Reference));

    repository.checkAssociationEnds();

    EXPECT_EQ((Strings{error("Association End (M~1.0~e~rel) has no moc")}), takeMessages());
}

TEST_F(RelationTest, EndOfAnExternalAssociationNeedsNoClass) {
    AssociationEndWrapper* end = addEnd(mom, "e", "rel", "Elsewhere", "X");
    end->setAttribute(&addQuietAttr(p, "e", ZefMrType3Reference)->getStruct());
    addUnidir(mom, "u", "M~1.0~e~rel", "M~1.0~P", true);

    repository.checkAssociationEnds();

    EXPECT_TRUE(takeMessages().empty());
    EXPECT_TRUE(traced("Association End (M~1.0~e~rel) is external, has no internal moc."));
}

TEST_F(RelationTest, EndOfAnInternalAssociationNeedsItsClass) {
    AssociationEndWrapper* end = addEnd(mom, "e", "rel", "Elsewhere", "X");
    end->setAttribute(&addQuietAttr(p, "e", ZefMrType3Reference)->getStruct());
    addUnidir(mom, "u", "M~1.0~e~rel", "M~1.0~P", false);

    repository.checkAssociationEnds();

    EXPECT_EQ((Strings{error("Association End (M~1.0~e~rel) has no moc")}), takeMessages());
}

TEST_F(RelationTest, EndWithoutAttribute) {
    endAt("e", p, nullptr);

    repository.checkAssociationEnds();

    EXPECT_EQ((Strings{error("Association End (M~1.0~e~rel) has no attribute")}), takeMessages());
}

TEST_F(RelationTest, EndWithReversedMultiplicity) {
    AssociationEndWrapper* end = endAt("e", p, addQuietAttr(p, "e", ZefMrType3Reference));
    end->setLower("4");
    end->setUpper("2");

    repository.checkAssociationEnds();

    EXPECT_EQ((Strings{error("Association end (M~1.0~e~rel), cardinality min(4) > max(2).")}), takeMessages());
}

TEST_F(RelationTest, EndWithoutUpperBoundIsUnbounded) {
    AssociationEndWrapper* end = endAt("e", p, addQuietAttr(p, "e", ZefMrType3Reference));
    end->setLower("32767");
    end->setUpper("");

    repository.checkAssociationEnds();

    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(RelationTest, EndFindingsInOrderAndEndsInKeyOrder) {
    endAt("z", p, nullptr);
    AssociationEndWrapper* end = endAt("a", nullptr, nullptr);
    end->setLower("1");
    end->setUpper("0");
    end->setMom(nullptr);

    repository.checkAssociationEnds();

    EXPECT_EQ((Strings{error("Association End (M~1.0~a~rel) has no mom"), error("Association End (M~1.0~a~rel) has no moc"),
                       error("Association End (M~1.0~a~rel) has no attribute"),
                       error("Association end (M~1.0~a~rel), cardinality min(1) > max(0)."),
                       error("Association End (M~1.0~z~rel) has no attribute")}),
              takeMessages());
}

// ---- bidirectional associations --------------------------------------------------------

TEST_F(RelationTest, SoundBidirectionalAssociationPassesAndIsTraced) {
    AssociationEndWrapper* first = endAt("a", p, nullptr);
    AssociationEndWrapper* second = endAt("b", q, nullptr);
    BiDirAssociationWrapper* assoc = addBidir(mom, "r", "M~1.0~a~rel", "M~1.0~b~rel");
    assoc->setFirstAssociationEnd(&first->getStruct());
    assoc->setSecondAssociationEnd(&second->getStruct());

    repository.checkBiDirectionalAssociations();

    EXPECT_TRUE(takeMessages().empty());
    EXPECT_EQ((Strings{" >> Validating BidirectionalAssociations..", "Checking Bidirectional association (M~1.0~r)",
                       " << Validation of BidirectionalAssociations is done."}),
              tracesOf("checkBiDirectionalAssociations"));
}

TEST_F(RelationTest, BidirectionalAssociationWithoutMom) {
    AssociationEndWrapper* end = endAt("a", p, nullptr);
    BiDirAssociationWrapper* assoc = addBidir(mom, "r", "M~1.0~a~rel", "M~1.0~a~rel");
    assoc->setFirstAssociationEnd(&end->getStruct());
    assoc->setSecondAssociationEnd(&end->getStruct());
    assoc->setMom(nullptr);

    repository.checkBiDirectionalAssociations();

    EXPECT_EQ((Strings{error("Bidirectional association (M~1.0~r) has no mom")}), takeMessages());
}

TEST_F(RelationTest, BidirectionalAssociationWithoutFirstEnd) {
    BiDirAssociationWrapper* assoc = addBidir(mom, "r", "M~1.0~a~rel", "M~1.0~b~rel");
    assoc->setSecondAssociationEnd(&endAt("b", q, nullptr)->getStruct());

    repository.checkBiDirectionalAssociations();

    EXPECT_EQ((Strings{error("Bidirectional association (M~1.0~r) has no first Association End")}), takeMessages());
}

TEST_F(RelationTest, BidirectionalAssociationWithoutSecondEnd) {
    BiDirAssociationWrapper* assoc = addBidir(mom, "r", "M~1.0~a~rel", "M~1.0~b~rel");
    assoc->setFirstAssociationEnd(&endAt("a", p, nullptr)->getStruct());

    repository.checkBiDirectionalAssociations();

    EXPECT_EQ((Strings{error("Bidirectional association (M~1.0~r) has no second Association End")}), takeMessages());
}

TEST_F(RelationTest, BidirectionalFindingsInOrderAndAssociationsInKeyOrder) {
    addBidir(mom, "z", "M~1.0~a~rel", "M~1.0~b~rel");
    addBidir(mom, "y", "M~1.0~a~rel", "M~1.0~b~rel")->setMom(nullptr);

    repository.checkBiDirectionalAssociations();

    EXPECT_EQ((Strings{error("Bidirectional association (M~1.0~y) has no mom"),
                       error("Bidirectional association (M~1.0~y) has no first Association End"),
                       error("Bidirectional association (M~1.0~y) has no second Association End"),
                       error("Bidirectional association (M~1.0~z) has no first Association End"),
                       error("Bidirectional association (M~1.0~z) has no second Association End")}),
              takeMessages());
}

// ---- unidirectional associations -------------------------------------------------------

TEST_F(RelationTest, SoundUnidirectionalAssociationPassesAndIsTraced) {
    UniDirAssociationWrapper* assoc = addUnidir(mom, "u", "M~1.0~e~rel", "M~1.0~P");
    assoc->setAssociationEnd(&endAt("e", q, nullptr)->getStruct());

    repository.checkUniDirectionalAssociations();

    EXPECT_TRUE(takeMessages().empty());
    EXPECT_EQ((Strings{" >> Validating UnidirectionalAssociations..", "Checking Unidirectional association (M~1.0~u)",
                       " << Validation of UnidirectionalAssociations is done."}),
              tracesOf("checkUniDirectionalAssociations"));
}

TEST_F(RelationTest, UnidirectionalAssociationWithoutMom) {
    UniDirAssociationWrapper* assoc = addUnidir(mom, "u", "M~1.0~e~rel", "M~1.0~P");
    assoc->setAssociationEnd(&endAt("e", q, nullptr)->getStruct());
    assoc->setMom(nullptr);

    repository.checkUniDirectionalAssociations();

    EXPECT_EQ((Strings{error("Unidirectional association (M~1.0~u) has no mom")}), takeMessages());
}

TEST_F(RelationTest, UnidirectionalAssociationWithoutEnd) {
    addUnidir(mom, "u", "M~1.0~e~rel", "M~1.0~P");

    repository.checkUniDirectionalAssociations();

    EXPECT_EQ((Strings{error("Unidirectional association (M~1.0~u) has no first Association End")}), takeMessages());
}

TEST_F(RelationTest, UnidirectionalAssociationWithoutDestinationClass) {
    UniDirAssociationWrapper* assoc = addUnidir(mom, "u", "M~1.0~e~rel", "M~1.0~P");
    assoc->setAssociationEnd(&endAt("e", nullptr, nullptr)->getStruct());

    repository.checkUniDirectionalAssociations();

    EXPECT_EQ((Strings{error("Unidirectional association (M~1.0~u) has no destination moc")}), takeMessages());
}

TEST_F(RelationTest, ExternalUnidirectionalAssociationNeedsNoDestinationClass) {
    UniDirAssociationWrapper* assoc = addUnidir(mom, "u", "M~1.0~e~rel", "M~1.0~P", true);
    assoc->setAssociationEnd(&endAt("e", nullptr, nullptr)->getStruct());

    repository.checkUniDirectionalAssociations();

    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(RelationTest, UnidirectionalFindingsInOrderAndAssociationsInKeyOrder) {
    addUnidir(mom, "z", "M~1.0~e~rel", "M~1.0~P")->setAssociationEnd(&endAt("e", nullptr, nullptr)->getStruct());
    addUnidir(mom, "y", "M~1.0~e~rel", "M~1.0~P")->setMom(nullptr);

    repository.checkUniDirectionalAssociations();

    EXPECT_EQ((Strings{error("Unidirectional association (M~1.0~y) has no mom"),
                       error("Unidirectional association (M~1.0~y) has no first Association End"),
                       error("Unidirectional association (M~1.0~z) has no destination moc")}),
              takeMessages());
}

} // namespace
} // namespace ZefTest
