// Compilation of associations: linking the ends, finding the class at each
// end and the attribute each end reserves, and listing the associations
// with their classes.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "CompileTestSupport.h"

namespace ZefTest {
namespace {

using Strings = std::vector<std::string>;

// ---- bidirectional -----------------------------------------------------------------

/// A bidirectional association "ab" of MOM M between A (first end "roleA")
/// and B (second end "roleB"): the first end's attribute is B's "roleA",
/// the second end's A's "roleB".
class BiDirCompileTest : public CompileTest {
protected:
    void SetUp() override {
        CompileTest::SetUp();
        m = addMom("M");
        a = addMoc(m, "A");
        b = addMoc(m, "B");
    }

    void addEnds(const std::string& firstClassifier = "A", const std::string& secondClassifier = "B",
                 const std::string& mimName = "M") {
        first = addEnd(m, "roleA", "rel", firstClassifier, mimName);
        second = addEnd(m, "roleB", "rel", secondClassifier, mimName);
    }

    void addAssoc() { assoc = addBidir(m, "ab", "M~1.0~roleA~rel", "M~1.0~roleB~rel"); }

    static bool lists(const MocWrapper* moc, const BiDirAssociationWrapper* assoc) {
        const auto& list = moc->getBiDirList();
        return std::count(list.begin(), list.end(), assoc) == 1;
    }

    MomWrapper* m = nullptr;
    MocWrapper* a = nullptr;
    MocWrapper* b = nullptr;
    AssociationEndWrapper* first = nullptr;
    AssociationEndWrapper* second = nullptr;
    BiDirAssociationWrapper* assoc = nullptr;
};

TEST_F(BiDirCompileTest, BothEndsAreResolvedCrosswise) {
    AttrWrapper* aRoleB = addAttr(a, "roleB", ZefMrType3Reference, Ref{"B"});
    addAttr(b, "other", ZefMrType3Int8);
    AttrWrapper* bRoleA = addAttr(b, "roleA", ZefMrType3Reference, Ref{"A"});
    addEnds();
    addAssoc();

    repository.compileModel();

    EXPECT_EQ(&first->getStruct(), assoc->getStruct().firstAssociationEnd);
    EXPECT_EQ(&second->getStruct(), assoc->getStruct().secondAssociationEnd);
    EXPECT_EQ(&a->getStruct(), first->getStruct().moc);
    EXPECT_EQ(&b->getStruct(), second->getStruct().moc);
    EXPECT_EQ(&bRoleA->getStruct(), first->getStruct().attribute);
    EXPECT_EQ(&aRoleB->getStruct(), second->getStruct().attribute);
    EXPECT_TRUE(lists(a, assoc));
    EXPECT_TRUE(lists(b, assoc));
    EXPECT_EQ((Strings{"Setting bidirectional association (M~1.0~ab)", "First association end (M~1.0~ab)",
                       "Second association end (M~1.0~ab)", "First association end moc (M~1.0~ab)",
                       "Second association end moc (M~1.0~ab)", "First association end attribute (M~1.0~ab)",
                       "Second association end attribute (M~1.0~ab)"}),
              [this] {
                  Strings traces;
                  for (const auto& line : traceLines()) {
                      const std::string& text = line.second;
                      if (text.find("association") != std::string::npos && text.find("ab)") != std::string::npos) {
                          traces.push_back(text);
                      }
                  }
                  return traces;
              }());
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(BiDirCompileTest, AssociationOfAClassWithItselfIsListedOnce) {
    AttrWrapper* roleA = addAttr(a, "roleA", ZefMrType3Reference, Ref{"A"});
    AttrWrapper* roleB = addAttr(a, "roleB", ZefMrType3Reference, Ref{"A"});
    addEnds("A", "A");
    addAssoc();

    repository.compileModel();

    EXPECT_EQ(&roleA->getStruct(), first->getStruct().attribute);
    EXPECT_EQ(&roleB->getStruct(), second->getStruct().attribute);
    EXPECT_EQ(1u, a->getBiDirList().size());
    EXPECT_TRUE(b->getBiDirList().empty());
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(BiDirCompileTest, MissingFirstEnd) {
    addAttr(a, "roleB", ZefMrType3Int8);
    addAttr(b, "roleA", ZefMrType3Int8);
    second = addEnd(m, "roleB", "rel", "B", "M");
    addAssoc();

    repository.compileModel();

    EXPECT_EQ(nullptr, assoc->getStruct().firstAssociationEnd);
    EXPECT_EQ(&second->getStruct(), assoc->getStruct().secondAssociationEnd);
    EXPECT_EQ(&b->getStruct(), second->getStruct().moc);
    EXPECT_EQ(nullptr, second->getStruct().attribute);
    EXPECT_FALSE(lists(a, assoc));
    EXPECT_TRUE(lists(b, assoc));
    EXPECT_EQ((Strings{error("Failed to resolve bidirectional (M~1.0~ab)"),
                       error("Failed to resolve first association end moc for bidirectional (M~1.0~ab)"),
                       error("Failed to resolve association end attribute for first association end (M~1.0~ab)"),
                       error("Failed to resolve first association end moc for bidirectional (M~1.0~ab)")}),
              takeMessages());
}

TEST_F(BiDirCompileTest, MissingSecondEnd) {
    addAttr(a, "roleB", ZefMrType3Int8);
    addAttr(b, "roleA", ZefMrType3Int8);
    first = addEnd(m, "roleA", "rel", "A", "M");
    addAssoc();

    repository.compileModel();

    EXPECT_EQ(&first->getStruct(), assoc->getStruct().firstAssociationEnd);
    EXPECT_EQ(nullptr, assoc->getStruct().secondAssociationEnd);
    EXPECT_EQ(&a->getStruct(), first->getStruct().moc);
    EXPECT_EQ(nullptr, first->getStruct().attribute);
    EXPECT_EQ((Strings{error("Failed to resolve bidirectional (M~1.0~ab)"),
                       error("Failed to resolve second association end moc for bidirectional (M~1.0~ab)"),
                       error("Failed to resolve second association end moc for bidirectional (M~1.0~ab)"),
                       error("Failed to resolve association end attribute for second association end (M~1.0~ab)")}),
              takeMessages());
}

TEST_F(BiDirCompileTest, MissingClassOfTheFirstEnd) {
    addAttr(a, "roleB", ZefMrType3Int8);
    AttrWrapper* bRoleA = addAttr(b, "roleA", ZefMrType3Int8);
    addEnds("Nope", "B");
    addAssoc();

    repository.compileModel();

    EXPECT_EQ(nullptr, first->getStruct().moc);
    EXPECT_EQ(&bRoleA->getStruct(), first->getStruct().attribute);
    EXPECT_EQ(nullptr, second->getStruct().attribute);
    EXPECT_EQ((Strings{error("Failed to resolve first association end moc for bidirectional (M~1.0~ab)"),
                       error("Failed to resolve first association end moc for bidirectional (M~1.0~ab)")}),
              takeMessages());
}

TEST_F(BiDirCompileTest, MissingClassOfTheSecondEnd) {
    AttrWrapper* aRoleB = addAttr(a, "roleB", ZefMrType3Int8);
    addEnds("A", "Nope");
    addAssoc();

    repository.compileModel();

    EXPECT_EQ(nullptr, second->getStruct().moc);
    EXPECT_EQ(nullptr, first->getStruct().attribute);
    EXPECT_EQ(&aRoleB->getStruct(), second->getStruct().attribute);
    EXPECT_EQ((Strings{error("Failed to resolve second association end moc for bidirectional (M~1.0~ab)"),
                       error("Failed to resolve second association end moc for bidirectional (M~1.0~ab)")}),
              takeMessages());
}

TEST_F(BiDirCompileTest, ClassOfAnEndInAnotherMomIsNotTheEndsClass) {
    MomWrapper* n = addMom("N", "2.0");
    addMoc(n, "C");
    addAttr(a, "roleB", ZefMrType3Int8);
    addEnds("A", "C"); // C is not in M
    addAssoc();

    repository.compileModel();

    EXPECT_EQ(nullptr, second->getStruct().moc);
    EXPECT_EQ((Strings{error("Failed to resolve second association end moc for bidirectional (M~1.0~ab)"),
                       error("Failed to resolve second association end moc for bidirectional (M~1.0~ab)")}),
              takeMessages());
}

TEST_F(BiDirCompileTest, EndsClassIsTheClassOfItsMimAmongClassesOfTheSameName) {
    MomWrapper* n = addMom("N", "2.0");
    MocWrapper* nb = addMoc(n, "B");
    addAttr(nb, "roleA", ZefMrType3Int8);
    addAttr(a, "roleB", ZefMrType3Int8);
    first = addEnd(m, "roleA", "rel", "A", "M");
    second = addEnd(m, "roleB", "rel", "B", "N");
    addAssoc();

    repository.compileModel();

    EXPECT_EQ(&nb->getStruct(), second->getStruct().moc);
    EXPECT_TRUE(lists(nb, assoc));
    EXPECT_FALSE(lists(b, assoc));
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(BiDirCompileTest, ModellingStandardMimNameOfAnEndIsTranslated) {
    MomWrapper* n = addMom("N", "2.0");
    setQcimName(n, "QN", "8");
    MocWrapper* nb = addMoc(n, "B");
    addAttr(nb, "roleA", ZefMrType3Int8);
    addAttr(a, "roleB", ZefMrType3Int8);
    first = addEnd(m, "roleA", "rel", "A", "M");
    second = addEnd(m, "roleB", "rel", "B", "QN");
    addAssoc();

    repository.compileModel();

    EXPECT_EQ("N", second->getMimName());
    EXPECT_EQ("2.0", second->getMimVersion());
    EXPECT_EQ(&nb->getStruct(), second->getStruct().moc);
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(BiDirCompileTest, ClassWithoutAttributes) {
    addAttr(a, "roleB", ZefMrType3Int8);
    addEnds();
    addAssoc();

    repository.compileModel();

    EXPECT_EQ(nullptr, first->getStruct().attribute);
    EXPECT_EQ((Strings{error("Failed to resolve second association end attributes for bidirectional (M~1.0~ab)")}),
              takeMessages());
}

TEST_F(BiDirCompileTest, ClassesWithoutTheEndsAttributes) {
    AttrWrapper* stale = addAttr(a, "other", ZefMrType3Int8);
    addAttr(b, "other", ZefMrType3Int8);
    addEnds();
    addAssoc();
    // Whatever an end held before is cleared first.
    first->setAttribute(&stale->getStruct());
    second->setAttribute(&stale->getStruct());

    repository.compileModel();

    EXPECT_EQ(nullptr, first->getStruct().attribute);
    EXPECT_EQ(nullptr, second->getStruct().attribute);
    EXPECT_EQ((Strings{error("Failed to resolve association end attribute for first association end (M~1.0~ab)"),
                       error("Failed to resolve association end attribute for second association end (M~1.0~ab)")}),
              takeMessages());
}

TEST_F(BiDirCompileTest, FirstClassWithoutAttributes) {
    addAttr(b, "roleA", ZefMrType3Int8);
    addEnds();
    addAssoc();

    repository.compileModel();

    EXPECT_EQ((Strings{error("Failed to resolve first association end attributes for bidirectional (M~1.0~ab)")}),
              takeMessages());
}

TEST_F(BiDirCompileTest, AssociationsAreCompiledInKeyOrder) {
    addEnds("Nope", "B");
    addAttr(a, "roleB", ZefMrType3Int8);
    addAttr(b, "roleA", ZefMrType3Int8);
    addBidir(m, "z", "M~1.0~roleA~rel", "M~1.0~missing~rel");
    addBidir(m, "y", "M~1.0~missing~rel", "M~1.0~roleB~rel");

    repository.compileModel();

    EXPECT_EQ((Strings{error("Failed to resolve bidirectional (M~1.0~y)"),
                       error("Failed to resolve first association end moc for bidirectional (M~1.0~y)"),
                       error("Failed to resolve association end attribute for first association end (M~1.0~y)"),
                       error("Failed to resolve first association end moc for bidirectional (M~1.0~y)"),
                       error("Failed to resolve bidirectional (M~1.0~z)"),
                       error("Failed to resolve first association end moc for bidirectional (M~1.0~z)"),
                       error("Failed to resolve second association end moc for bidirectional (M~1.0~z)"),
                       error("Failed to resolve second association end moc for bidirectional (M~1.0~z)"),
                       error("Failed to resolve first association end moc for bidirectional (M~1.0~z)")}),
              takeMessages());
}

TEST_F(BiDirCompileTest, ClassListsTheirAssociationsInHandleOrder) {
    addAttr(a, "roleB", ZefMrType3Int8);
    addAttr(b, "roleA", ZefMrType3Int8);
    addEnds();
    BiDirAssociationWrapper* x = addBidir(m, "x", "M~1.0~roleA~rel", "M~1.0~roleB~rel");
    BiDirAssociationWrapper* y = addBidir(m, "y", "M~1.0~roleA~rel", "M~1.0~roleB~rel");
    x->setHandle(3020);
    y->setHandle(3018);

    repository.compileModel();

    const std::vector<BiDirAssociationWrapper*> expected = {y, x};
    EXPECT_EQ(expected, std::vector<BiDirAssociationWrapper*>(a->getBiDirList().begin(), a->getBiDirList().end()));
    EXPECT_EQ(expected, std::vector<BiDirAssociationWrapper*>(b->getBiDirList().begin(), b->getBiDirList().end()));
    EXPECT_TRUE(takeMessages().empty());
}

// ---- unidirectional ----------------------------------------------------------------

/// A unidirectional association "u" of MOM M from A to the end "toB" at B;
/// the end's attribute is A's "toB".
class UniDirCompileTest : public CompileTest {
protected:
    void SetUp() override {
        CompileTest::SetUp();
        m = addMom("M");
        a = addMoc(m, "A");
        b = addMoc(m, "B");
    }

    void addEndAt(const std::string& classifier, const std::string& mimName = "M") {
        end = addEnd(m, "toB", "rel", classifier, mimName);
    }

    static bool lists(const MocWrapper* moc, const UniDirAssociationWrapper* assoc) {
        const auto& list = moc->getUniDirList();
        return std::count(list.begin(), list.end(), assoc) == 1;
    }

    MomWrapper* m = nullptr;
    MocWrapper* a = nullptr;
    MocWrapper* b = nullptr;
    AssociationEndWrapper* end = nullptr;
};

TEST_F(UniDirCompileTest, EndOriginClassAndAttributeAreResolved) {
    addAttr(a, "other", ZefMrType3Int8);
    AttrWrapper* toB = addAttr(a, "toB", ZefMrType3Reference, Ref{"B"});
    addEndAt("B");
    UniDirAssociationWrapper* u = addUnidir(m, "u", "M~1.0~toB~rel", "M~1.0~A");

    repository.compileModel();

    EXPECT_EQ(&end->getStruct(), u->getStruct().associationEnd);
    EXPECT_EQ(&a->getStruct(), u->getStruct().originMoc);
    EXPECT_EQ(&b->getStruct(), end->getStruct().moc);
    EXPECT_EQ(&toB->getStruct(), end->getStruct().attribute);
    EXPECT_TRUE(lists(a, u));
    EXPECT_TRUE(b->getUniDirList().empty());
    EXPECT_TRUE(traced("Setting unidirectional association (M~1.0~u)"));
    EXPECT_TRUE(traced("Uni Dir association end attribute"));
    EXPECT_TRUE(traced("found association end attribute (M~1.0~A~toB)"));
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(UniDirCompileTest, MissingEnd) {
    addAttr(a, "toB", ZefMrType3Int8);
    UniDirAssociationWrapper* u = addUnidir(m, "u", "M~1.0~toB~rel", "M~1.0~A");

    repository.compileModel();

    EXPECT_EQ(nullptr, u->getStruct().associationEnd);
    EXPECT_EQ(&a->getStruct(), u->getStruct().originMoc);
    EXPECT_FALSE(lists(a, u));
    EXPECT_EQ((Strings{error("Failed to resolve end association for unidirectional (M~1.0~u)"),
                       error("Failed to resolve association end moc for unidirectional (M~1.0~u)"),
                       error("Failed to resolve  association end attribute for unidirectional (M~1.0~u)")}),
              takeMessages());
}

TEST_F(UniDirCompileTest, MissingOriginEndsTheAssociation) {
    addEndAt("B");
    UniDirAssociationWrapper* u = addUnidir(m, "u", "M~1.0~toB~rel", "M~1.0~Nope");

    repository.compileModel();

    EXPECT_EQ(&end->getStruct(), u->getStruct().associationEnd);
    EXPECT_EQ(nullptr, u->getStruct().originMoc);
    EXPECT_EQ(nullptr, end->getStruct().moc);
    EXPECT_EQ((Strings{error("Did not find origin Moc for unidir association (M~1.0~u).")}), takeMessages());
}

TEST_F(UniDirCompileTest, MissingClassOfAnInternalEnd) {
    AttrWrapper* toB = addAttr(a, "toB", ZefMrType3Int8);
    addEndAt("Nope");
    UniDirAssociationWrapper* u = addUnidir(m, "u", "M~1.0~toB~rel", "M~1.0~A");

    repository.compileModel();

    EXPECT_EQ(nullptr, end->getStruct().moc);
    EXPECT_FALSE(lists(a, u));
    EXPECT_EQ(&toB->getStruct(), end->getStruct().attribute);
    EXPECT_EQ((Strings{error("Failed to resolve association end moc for unidirectional (M~1.0~u)")}), takeMessages());
}

TEST_F(UniDirCompileTest, ExternalEndNeedsNoClass) {
    AttrWrapper* toB = addAttr(a, "toB", ZefMrType3Int8);
    addEndAt("Far", "Elsewhere");
    UniDirAssociationWrapper* u = addUnidir(m, "u", "M~1.0~toB~rel", "M~1.0~A", true);

    repository.compileModel();

    EXPECT_EQ(nullptr, end->getStruct().moc);
    EXPECT_TRUE(lists(a, u));
    EXPECT_EQ(&toB->getStruct(), end->getStruct().attribute);
    EXPECT_TRUE(
        traced("UniDirAssociation (M~1.0~u) is external, association end moc (Far) is set with no attribute and moc"));
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(UniDirCompileTest, ExternalEndWithAClassIsListedOnce) {
    addAttr(a, "toB", ZefMrType3Int8);
    addEndAt("B");
    UniDirAssociationWrapper* u = addUnidir(m, "u", "M~1.0~toB~rel", "M~1.0~A", true);

    repository.compileModel();

    EXPECT_EQ(&b->getStruct(), end->getStruct().moc);
    EXPECT_EQ(1u, a->getUniDirList().size());
    EXPECT_TRUE(lists(a, u));
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(UniDirCompileTest, OriginWithoutAttributes) {
    addEndAt("B");
    addUnidir(m, "u", "M~1.0~toB~rel", "M~1.0~A");

    repository.compileModel();

    EXPECT_EQ(nullptr, end->getStruct().attribute);
    EXPECT_EQ((Strings{error("Failed to resolve  association end attribute for unidirectional (M~1.0~u)")}),
              takeMessages());
}

TEST_F(UniDirCompileTest, OriginWithoutTheEndsAttribute) {
    addAttr(a, "other", ZefMrType3Int8);
    addAttr(b, "toB", ZefMrType3Int8); // the end's class does not count
    addEndAt("B");
    addUnidir(m, "u", "M~1.0~toB~rel", "M~1.0~A");

    repository.compileModel();

    EXPECT_EQ(nullptr, end->getStruct().attribute);
    EXPECT_EQ((Strings{error("Failed to resolve  association end attribute for unidirectional (M~1.0~u)")}),
              takeMessages());
}

TEST_F(UniDirCompileTest, ModellingStandardMimNameOfTheEndIsTranslated) {
    MomWrapper* n = addMom("N", "2.0");
    setQcimName(n, "QN", "8");
    MocWrapper* nb = addMoc(n, "B");
    addAttr(a, "toB", ZefMrType3Int8);
    addEndAt("B", "QN");
    addUnidir(m, "u", "M~1.0~toB~rel", "M~1.0~A");

    repository.compileModel();

    EXPECT_EQ("N", end->getMimName());
    EXPECT_EQ("2.0", end->getMimVersion());
    EXPECT_EQ(&nb->getStruct(), end->getStruct().moc);
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(UniDirCompileTest, SeveralAssociationsOfOneOriginAreListedInHandleOrder) {
    addAttr(a, "toB", ZefMrType3Int8);
    addAttr(a, "toA", ZefMrType3Int8);
    addEndAt("B");
    addEnd(m, "toA", "rel", "A", "M");
    UniDirAssociationWrapper* u1 = addUnidir(m, "u1", "M~1.0~toB~rel", "M~1.0~A");
    UniDirAssociationWrapper* u2 = addUnidir(m, "u2", "M~1.0~toA~rel", "M~1.0~A");
    UniDirAssociationWrapper* u3 = addUnidir(m, "u3", "M~1.0~toA~rel", "M~1.0~A", true);
    // The lists follow handle order, not key order.
    u1->setHandle(3019);
    u2->setHandle(3017);
    u3->setHandle(3018);

    repository.compileModel();

    EXPECT_EQ((std::vector<UniDirAssociationWrapper*>{u2, u3, u1}),
              std::vector<UniDirAssociationWrapper*>(a->getUniDirList().begin(), a->getUniDirList().end()));
    EXPECT_TRUE(takeMessages().empty());
}

} // namespace
} // namespace ZefTest
