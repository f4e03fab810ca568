// Compilation of containments: completing the mim names and versions of
// both ends, resolving the classes, chaining the containments of each class
// and copying the system-created flag.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "CompileTestSupport.h"

namespace ZefTest {
namespace {

using Strings = std::vector<std::string>;

class ContCompileTest : public CompileTest {
protected:
    /// The containments of a chain, from `first` along the next pointers
    /// with the same parent (byParent) or the same child.
    static std::vector<const ZefOamSpiContainment*> chain(const ZefOamSpiContainment* first, bool byParent) {
        std::vector<const ZefOamSpiContainment*> result;
        for (const ZefOamSpiContainment* cont = first; cont != nullptr && result.size() < 10;
             cont = byParent ? cont->nextContainmentSameParentMoc : cont->nextContainmentSameChildMoc) {
            result.push_back(cont);
        }
        return result;
    }
};

// ---- mim names and versions ------------------------------------------------------

TEST_F(ContCompileTest, ContainmentOfOneMomTakesItsMomsNameAndVersion) {
    MomWrapper* m = addMom("M");
    MocWrapper* a = addMoc(m, "A");
    MocWrapper* b = addMoc(m, "B");
    ContWrapper* cont = addCont(m, "c", "A", "B");

    repository.compileModel();

    EXPECT_EQ("M", cont->getParentMimName());
    EXPECT_EQ("1.0", cont->getParentMimVersion());
    EXPECT_EQ("M", cont->getChildMimName());
    EXPECT_EQ("1.0", cont->getChildMimVersion());
    EXPECT_EQ(&a->getStruct(), cont->getStruct().parentMoc);
    EXPECT_EQ(&b->getStruct(), cont->getStruct().childMoc);
    EXPECT_EQ(&cont->getStruct(), a->getStruct().childContainment);
    EXPECT_EQ(&cont->getStruct(), b->getStruct().parentContainment);
    EXPECT_EQ(nullptr, a->getStruct().parentContainment);
    EXPECT_EQ(nullptr, b->getStruct().childContainment);
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ContCompileTest, ContainmentOfOneMomWithAMissingVersionTakesBothFromItsMom) {
    MomWrapper* m = addMom("M");
    MomWrapper* n = addMom("N", "2.0");
    MocWrapper* a = addMoc(m, "A");
    MocWrapper* b = addMoc(n, "B");
    ContWrapper* cont = addCont(m, "c", "A", "B");
    cont->setParentMimName("Elsewhere"); // no version: replaced by the MOM's name and version
    cont->setChildMimName("N");          // complete: kept
    cont->setChildMimVersion("2.0");

    repository.compileModel();

    EXPECT_EQ("M", cont->getParentMimName());
    EXPECT_EQ("1.0", cont->getParentMimVersion());
    EXPECT_EQ("N", cont->getChildMimName());
    EXPECT_EQ("2.0", cont->getChildMimVersion());
    EXPECT_EQ(&a->getStruct(), cont->getStruct().parentMoc);
    EXPECT_EQ(&b->getStruct(), cont->getStruct().childMoc);
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ContCompileTest, ContainmentOfOneMomWithAMissingNameTakesBothFromItsMom) {
    MomWrapper* m = addMom("M");
    MocWrapper* b = addMoc(m, "B");
    addMoc(m, "A");
    ContWrapper* cont = addCont(m, "c", "A", "B");
    cont->setChildMimVersion("7"); // no name: replaced as well

    repository.compileModel();

    EXPECT_EQ("M", cont->getChildMimName());
    EXPECT_EQ("1.0", cont->getChildMimVersion());
    EXPECT_EQ(&b->getStruct(), cont->getStruct().childMoc);
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ContCompileTest, InterMimContainmentFindsTheMimOfAClassByItsName) {
    MomWrapper* m = addMom("M");
    MomWrapper* n = addMom("N", "2.0");
    MocWrapper* p = addMoc(m, "P");
    MocWrapper* c = addMoc(n, "C");
    ContWrapper* cont = addInterMimCont("c", Ref{"P"}, Ref{"C"});

    repository.compileModel();

    EXPECT_EQ("M", cont->getParentMimName());
    EXPECT_EQ("1.0", cont->getParentMimVersion());
    EXPECT_EQ("N", cont->getChildMimName());
    EXPECT_EQ("2.0", cont->getChildMimVersion());
    EXPECT_EQ(&p->getStruct(), cont->getStruct().parentMoc);
    EXPECT_EQ(&c->getStruct(), cont->getStruct().childMoc);
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ContCompileTest, InterMimContainmentTakesTheVersionOfTheOnlyMomOfItsName) {
    MomWrapper* m = addMom("M");
    MomWrapper* n = addMom("N", "2.0");
    MocWrapper* p = addMoc(m, "P");
    MocWrapper* c = addMoc(n, "C");
    ContWrapper* cont = addInterMimCont("c", Ref{"P", "M"}, Ref{"C", "N"});

    repository.compileModel();

    EXPECT_EQ("1.0", cont->getParentMimVersion());
    EXPECT_EQ("2.0", cont->getChildMimVersion());
    EXPECT_EQ(&p->getStruct(), cont->getStruct().parentMoc);
    EXPECT_EQ(&c->getStruct(), cont->getStruct().childMoc);
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ContCompileTest, InterMimContainmentKeepsAGivenVersion) {
    MomWrapper* m1 = addMom("M", "1.0");
    MomWrapper* m2 = addMom("M", "2.0");
    addMoc(m1, "P");
    MocWrapper* p2 = addMoc(m2, "P");
    MocWrapper* c = addMoc(m1, "C");
    ContWrapper* cont = addInterMimCont("c", Ref{"P", "M", "2.0"}, Ref{"C", "M", "1.0"});

    repository.compileModel();

    EXPECT_EQ(&p2->getStruct(), cont->getStruct().parentMoc);
    EXPECT_EQ(&c->getStruct(), cont->getStruct().childMoc);
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ContCompileTest, InterMimContainmentWithoutMimNameOfAClassNoMomHas) {
    MomWrapper* n = addMom("N", "2.0");
    MocWrapper* c = addMoc(n, "C");
    ContWrapper* cont = addInterMimCont("c", Ref{"Q"}, Ref{"C", "N", "2.0"});

    repository.compileModel();

    EXPECT_EQ("", cont->getParentMimName());
    EXPECT_EQ("", cont->getParentMimVersion());
    EXPECT_EQ(nullptr, cont->getStruct().parentMoc);
    EXPECT_EQ(&c->getStruct(), cont->getStruct().childMoc);
    EXPECT_EQ((Strings{error("Cannot resolve mim for Moc(Q), no such Moc."),
                       error("Did not find parent Moc() for containment(~c)."), error("Failed to find Moc().")}),
              takeMessages());
}

TEST_F(ContCompileTest, InterMimContainmentWithoutMimNameOfAClassOfSeveralMoms) {
    MomWrapper* m = addMom("M");
    MomWrapper* n = addMom("N");
    addMoc(m, "P");
    addMoc(n, "P");
    MocWrapper* c = addMoc(n, "C");
    ContWrapper* cont = addInterMimCont("c", Ref{"P"}, Ref{"C", "N", "1.0"});

    repository.compileModel();

    // The first class of that name in key order has named the mim.
    EXPECT_EQ("M", cont->getParentMimName());
    EXPECT_EQ("1.0", cont->getParentMimVersion());
    EXPECT_EQ(&c->getStruct(), cont->getStruct().childMoc);
    EXPECT_EQ((Strings{error("Cannot resolve mim for Moc(P), multiple possible Mims.")}), takeMessages());
}

TEST_F(ContCompileTest, InterMimContainmentWithAMimNameNoMomHas) {
    MomWrapper* n = addMom("N", "2.0");
    addMoc(n, "C");
    ContWrapper* cont = addInterMimCont("c", Ref{"P", "Z"}, Ref{"C", "N", "2.0"});

    repository.compileModel();

    EXPECT_EQ("Z", cont->getParentMimName());
    EXPECT_EQ("", cont->getParentMimVersion());
    EXPECT_EQ(nullptr, cont->getStruct().parentMoc);
    EXPECT_EQ((Strings{error("Did not find parent Moc() for containment(Z~c)."), error("Failed to find Moc().")}),
              takeMessages());
}

TEST_F(ContCompileTest, InterMimContainmentWithAMimNameOfSeveralMoms) {
    MomWrapper* m1 = addMom("M", "1.0");
    addMom("M", "2.0");
    addMoc(m1, "P");
    MocWrapper* c = addMoc(m1, "C");
    ContWrapper* cont = addInterMimCont("c", Ref{"P", "M"}, Ref{"C", "M", "1.0"});

    repository.compileModel();

    EXPECT_EQ("", cont->getParentMimVersion());
    EXPECT_EQ(nullptr, cont->getStruct().parentMoc);
    EXPECT_EQ(&c->getStruct(), cont->getStruct().childMoc);
    EXPECT_EQ((Strings{error("Did not find parent Moc() for containment(M~c)."), error("Failed to find Moc().")}),
              takeMessages());
}

TEST_F(ContCompileTest, InterMimContainmentWithMissingChildMimNameAndVersion) {
    MomWrapper* m = addMom("M");
    MomWrapper* n = addMom("N", "2.0");
    MocWrapper* p = addMoc(m, "P");
    MocWrapper* c = addMoc(n, "C");
    ContWrapper* named = addInterMimCont("c1", Ref{"P", "M", "1.0"}, Ref{"C", "N"});
    ContWrapper* unnamed = addInterMimCont("c2", Ref{"P", "M", "1.0"}, Ref{"C"});

    repository.compileModel();

    for (ContWrapper* cont : {named, unnamed}) {
        EXPECT_EQ("N", cont->getChildMimName());
        EXPECT_EQ("2.0", cont->getChildMimVersion());
        EXPECT_EQ(&p->getStruct(), cont->getStruct().parentMoc);
        EXPECT_EQ(&c->getStruct(), cont->getStruct().childMoc);
    }
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ContCompileTest, ModellingStandardMimNamesOfAContainmentAreTranslated) {
    MomWrapper* m = addMom("M");
    setQcimName(m, "QM", "9");
    MomWrapper* n = addMom("N", "2.0");
    setQcimName(n, "QN", "8");
    MocWrapper* p = addMoc(m, "P");
    MocWrapper* c = addMoc(n, "C");
    ContWrapper* cont = addInterMimCont("c", Ref{"P", "QM", "9"}, Ref{"C", "QN"});

    repository.compileModel();

    EXPECT_EQ("M", cont->getParentMimName());
    EXPECT_EQ("1.0", cont->getParentMimVersion());
    EXPECT_EQ("N", cont->getChildMimName());
    EXPECT_EQ("2.0", cont->getChildMimVersion());
    EXPECT_EQ(&p->getStruct(), cont->getStruct().parentMoc);
    EXPECT_EQ(&c->getStruct(), cont->getStruct().childMoc);
    EXPECT_TRUE(takeMessages().empty());
}

// ---- classes ---------------------------------------------------------------------

TEST_F(ContCompileTest, MissingParentAndChildClassesAreReported) {
    MomWrapper* m = addMom("M");
    ContWrapper* cont = addCont(m, "c", "X", "Y");

    repository.compileModel();

    EXPECT_EQ(nullptr, cont->getStruct().parentMoc);
    EXPECT_EQ(nullptr, cont->getStruct().childMoc);
    EXPECT_EQ((Strings{error("Did not find parent Moc(M~1.0~X) for containment(M~1.0~c)."),
                       error("Did not not find child Moc(M~1.0~Y) for containment(M~1.0~c)."),
                       error("Failed to find Moc(M~1.0~X)."),
                       error("compileChildListConts(), failed to find Moc(M~1.0~Y)")}),
              takeMessages());
}

TEST_F(ContCompileTest, MissingParentStillResolvesTheChild) {
    MomWrapper* m = addMom("M");
    MocWrapper* b = addMoc(m, "B");
    ContWrapper* cont = addCont(m, "c", "X", "B");

    repository.compileModel();

    EXPECT_EQ(&b->getStruct(), cont->getStruct().childMoc);
    EXPECT_EQ(&cont->getStruct(), b->getStruct().parentContainment);
    EXPECT_EQ((Strings{error("Did not find parent Moc(M~1.0~X) for containment(M~1.0~c)."),
                       error("Failed to find Moc(M~1.0~X).")}),
              takeMessages());
}

TEST_F(ContCompileTest, AllNamesAreCompletedBeforeAnyClassIsLookedUp) {
    MomWrapper* n = addMom("N", "2.0");
    addMoc(n, "C");
    addInterMimCont("a", Ref{"Q"}, Ref{"C", "N", "2.0"});
    addInterMimCont("b", Ref{"R"}, Ref{"C", "N", "2.0"});

    repository.compileModel();

    EXPECT_EQ((Strings{error("Cannot resolve mim for Moc(Q), no such Moc."),
                       error("Cannot resolve mim for Moc(R), no such Moc."),
                       error("Did not find parent Moc() for containment(~a)."),
                       error("Did not find parent Moc() for containment(~b)."), error("Failed to find Moc().")}),
              takeMessages());
}

// ---- chains ----------------------------------------------------------------------

TEST_F(ContCompileTest, TwoContainmentsOfOneParentAreChained) {
    MomWrapper* m = addMom("M");
    MocWrapper* p = addMoc(m, "P");
    MocWrapper* a = addMoc(m, "A");
    MocWrapper* b = addMoc(m, "B");
    ContWrapper* c2 = addCont(m, "c2", "P", "B");
    ContWrapper* c1 = addCont(m, "c1", "P", "A");

    repository.compileModel();

    EXPECT_EQ((std::vector<const ZefOamSpiContainment*>{&c1->getStruct(), &c2->getStruct()}),
              chain(p->getStruct().childContainment, true));
    EXPECT_EQ(&c1->getStruct(), a->getStruct().parentContainment);
    EXPECT_EQ(&c2->getStruct(), b->getStruct().parentContainment);
    EXPECT_EQ(nullptr, c1->getStruct().nextContainmentSameChildMoc);
    EXPECT_EQ(nullptr, c2->getStruct().nextContainmentSameChildMoc);
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ContCompileTest, ThreeContainmentsOfOneParentAreChainedInKeyOrder) {
    MomWrapper* m = addMom("M");
    MocWrapper* p = addMoc(m, "P");
    addMoc(m, "A");
    addMoc(m, "B");
    addMoc(m, "C");
    ContWrapper* c3 = addCont(m, "c3", "P", "C");
    ContWrapper* c1 = addCont(m, "c1", "P", "A");
    ContWrapper* c2 = addCont(m, "c2", "P", "B");

    repository.compileModel();

    EXPECT_EQ((std::vector<const ZefOamSpiContainment*>{&c1->getStruct(), &c2->getStruct(), &c3->getStruct()}),
              chain(p->getStruct().childContainment, true));
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ContCompileTest, TwoContainmentsOfOneChildAreChained) {
    MomWrapper* m = addMom("M");
    MocWrapper* p1 = addMoc(m, "P1");
    MocWrapper* p2 = addMoc(m, "P2");
    MocWrapper* x = addMoc(m, "X");
    ContWrapper* k2 = addCont(m, "k2", "P2", "X");
    ContWrapper* k1 = addCont(m, "k1", "P1", "X");

    repository.compileModel();

    EXPECT_EQ((std::vector<const ZefOamSpiContainment*>{&k1->getStruct(), &k2->getStruct()}),
              chain(x->getStruct().parentContainment, false));
    EXPECT_EQ(&k1->getStruct(), p1->getStruct().childContainment);
    EXPECT_EQ(&k2->getStruct(), p2->getStruct().childContainment);
    EXPECT_EQ(nullptr, k1->getStruct().nextContainmentSameParentMoc);
    EXPECT_EQ(nullptr, k2->getStruct().nextContainmentSameParentMoc);
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ContCompileTest, ThreeContainmentsOfOneChildAreChainedInKeyOrder) {
    MomWrapper* m = addMom("M");
    addMoc(m, "P1");
    addMoc(m, "P2");
    addMoc(m, "P3");
    MocWrapper* x = addMoc(m, "X");
    ContWrapper* k2 = addCont(m, "k2", "P2", "X");
    ContWrapper* k3 = addCont(m, "k3", "P3", "X");
    ContWrapper* k1 = addCont(m, "k1", "P1", "X");

    repository.compileModel();

    EXPECT_EQ((std::vector<const ZefOamSpiContainment*>{&k1->getStruct(), &k2->getStruct(), &k3->getStruct()}),
              chain(x->getStruct().parentContainment, false));
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ContCompileTest, ChainsOfParentsAndChildrenAreIndependent) {
    // P holds A and B; A is also held by Q.
    MomWrapper* m = addMom("M");
    MocWrapper* p = addMoc(m, "P");
    MocWrapper* q = addMoc(m, "Q");
    MocWrapper* a = addMoc(m, "A");
    MocWrapper* b = addMoc(m, "B");
    ContWrapper* pa = addCont(m, "pa", "P", "A");
    ContWrapper* pb = addCont(m, "pb", "P", "B");
    ContWrapper* qa = addCont(m, "qa", "Q", "A");

    repository.compileModel();

    EXPECT_EQ((std::vector<const ZefOamSpiContainment*>{&pa->getStruct(), &pb->getStruct()}),
              chain(p->getStruct().childContainment, true));
    EXPECT_EQ((std::vector<const ZefOamSpiContainment*>{&qa->getStruct()}),
              chain(q->getStruct().childContainment, true));
    EXPECT_EQ((std::vector<const ZefOamSpiContainment*>{&pa->getStruct(), &qa->getStruct()}),
              chain(a->getStruct().parentContainment, false));
    EXPECT_EQ((std::vector<const ZefOamSpiContainment*>{&pb->getStruct()}),
              chain(b->getStruct().parentContainment, false));
    EXPECT_TRUE(takeMessages().empty());
}

TEST_F(ContCompileTest, ContainmentsOfAMissingParentAreStillChained) {
    MomWrapper* m = addMom("M");
    addMoc(m, "A");
    addMoc(m, "B");
    ContWrapper* c1 = addCont(m, "c1", "X", "A");
    ContWrapper* c2 = addCont(m, "c2", "X", "B");

    repository.compileModel();

    EXPECT_EQ(&c2->getStruct(), c1->getStruct().nextContainmentSameParentMoc);
    EXPECT_EQ((Strings{error("Did not find parent Moc(M~1.0~X) for containment(M~1.0~c1)."),
                       error("Did not find parent Moc(M~1.0~X) for containment(M~1.0~c2)."),
                       error("Failed to find Moc(M~1.0~X).")}),
              takeMessages());
}

TEST_F(ContCompileTest, InterMimContainmentsJoinTheChainsOfTheirClasses) {
    MomWrapper* m = addMom("M");
    MomWrapper* n = addMom("N", "2.0");
    MocWrapper* p = addMoc(m, "P");
    addMoc(m, "A");
    addMoc(n, "C");
    ContWrapper* local = addCont(m, "a", "P", "A");
    ContWrapper* inter = addInterMimCont("b", Ref{"P", "M", "1.0"}, Ref{"C", "N", "2.0"});

    repository.compileModel();

    // Keys "M~1.0~a" < "M~b".
    EXPECT_EQ((std::vector<const ZefOamSpiContainment*>{&local->getStruct(), &inter->getStruct()}),
              chain(p->getStruct().childContainment, true));
    EXPECT_TRUE(takeMessages().empty());
}

// ---- system-created classes ----------------------------------------------------------

TEST_F(ContCompileTest, ContainmentCopiesTheSystemCreatedFlagOfItsChild) {
    MomWrapper* m = addMom("M");
    addMoc(m, "P");
    MocWrapper* system = addMoc(m, "S");
    system->setIsSystemCreated();
    addMoc(m, "U");
    ContWrapper* toSystem = addCont(m, "a", "P", "S");
    ContWrapper* toUser = addCont(m, "b", "P", "U");
    toUser->setIsSystemCreated(true);
    ContWrapper* toNothing = addCont(m, "c", "P", "Missing");
    toNothing->setIsSystemCreated(true);

    repository.compileModel();

    EXPECT_TRUE(toSystem->getIsSystemCreated());
    EXPECT_FALSE(toUser->getIsSystemCreated());
    EXPECT_TRUE(toNothing->getIsSystemCreated()); // no child class: left alone
    EXPECT_EQ((Strings{error("Did not not find child Moc(M~1.0~Missing) for containment(M~1.0~c)."),
                       error("compileChildListConts(), failed to find Moc(M~1.0~Missing)")}),
              takeMessages());
}

} // namespace
} // namespace ZefTest
