// The parser's containments, inter-MOM containments and associations, read
// from inline documents.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "AssociationEndWrapper.h"
#include "BiDirAssociationWrapper.h"
#include "ContWrapper.h"
#include "MomWrapper.h"
#include "ParserTestSupport.h"
#include "UniDirAssociationWrapper.h"

using namespace ZefModelRepositoryService;

namespace {

class ModelParserRelationshipsTest : public ZefTest::ParserTest {
protected:
    ContWrapper* findCont(const std::string& key) {
        const auto found = repository.getContMap().find(key);
        return found == repository.getContMap().end() ? nullptr : found->second;
    }

    AssociationEndWrapper* findEnd(const std::string& key) {
        const auto found = repository.getAssocEndMap().find(key);
        return found == repository.getAssocEndMap().end() ? nullptr : found->second;
    }

    BiDirAssociationWrapper* findBidir(const std::string& key) {
        const auto found = repository.getBidirMap().find(key);
        return found == repository.getBidirMap().end() ? nullptr : found->second;
    }

    UniDirAssociationWrapper* findUnidir(const std::string& key) {
        const auto found = repository.getUnidirMap().find(key);
        return found == repository.getUnidirMap().end() ? nullptr : found->second;
    }

    /// Keys of a registry, in order.
    template <typename Map>
    static std::vector<std::string> keysOf(const Map& map) {
        std::vector<std::string> keys;
        for (const auto& entry : map) {
            keys.push_back(entry.first);
        }
        return keys;
    }

    /// A relationship "R" of the mim with the given containment body.
    void parseContainment(const std::string& body, const std::string& relationshipContent = "",
                          const std::string& relationshipAttributes = "name=\"R\"") {
        parseMim("<relationship " + relationshipAttributes + ">" + relationshipContent + "<containment>" + body +
                 "</containment></relationship>");
    }

    /// An "interMim" element after a mim (so that the document has a MOM).
    void parseInterMim(const std::string& content) {
        EXPECT_EQ(0, parseXml("<models><mim name=\"M\" version=\"1.0\"/><interMim>" + content + "</interMim></models>"));
    }

    static std::string parentAndChild(const std::string& parent = "Root", const std::string& child = "Leaf") {
        return "<parent><hasClass name=\"" + parent + "\"/></parent><child><hasClass name=\"" + child +
               "\"/><cardinality><min>0</min><max>10</max></cardinality></child>";
    }
};

// ---- containments ----------------------------------------------------------

TEST_F(ModelParserRelationshipsTest, ContainmentIsRegisteredWithItsEndsAndCardinality) {
    parseMim("<relationship name=\"RootHoldsLeaf\"><containment>"
             "<parent><hasClass name=\"Root\"><mimName>P</mimName><mimVersion>2</mimVersion></hasClass></parent>"
             "<child><hasClass name=\"Leaf\"/><cardinality><min>1</min><max>10</max></cardinality></child>"
             "</containment></relationship>");
    ContWrapper* cont = findCont("M~1.0~RootHoldsLeaf");
    ASSERT_NE(nullptr, cont);
    EXPECT_FALSE(cont->isInterMim());
    EXPECT_EQ(&findMom("M~1.0")->getStruct(), cont->getStruct().mom);
    EXPECT_EQ("Root", cont->getParentMocName());
    EXPECT_EQ("P", cont->getParentMimName());
    EXPECT_EQ("2", cont->getParentMimVersion());
    EXPECT_EQ("Leaf", cont->getChildMocName());
    EXPECT_EQ("", cont->getChildMimName());
    EXPECT_EQ(1, cont->getStruct().cardinality.min);
    EXPECT_EQ(10, cont->getStruct().cardinality.max);
    EXPECT_TRUE(cont->getCanCreate());
    EXPECT_TRUE(cont->getCanDelete());
    EXPECT_TRUE(logged(" >> Processing relationship: RootHoldsLeaf."));
    EXPECT_TRUE(logged(" << Processed relationship: RootHoldsLeaf."));
    EXPECT_TRUE(logged(" >> Processing containment's end: parent (kid=0)."));
    EXPECT_TRUE(logged(" << Processed containment's end: parent (kid=0)."));
    EXPECT_TRUE(logged(" >> Processing containment's end: child (kid=1)."));
    EXPECT_TRUE(logged(" << Processed containment's end: child (kid=1)."));
}

TEST_F(ModelParserRelationshipsTest, ChildMimNameAndVersionAreKept) {
    parseContainment("<parent><hasClass name=\"A\"/></parent>"
                     "<child><hasClass name=\"B\"><mimName>N</mimName><mimVersion>3</mimVersion></hasClass></child>");
    ContWrapper* cont = findCont("M~1.0~R");
    ASSERT_NE(nullptr, cont);
    EXPECT_EQ("N", cont->getChildMimName());
    EXPECT_EQ("3", cont->getChildMimVersion());
}

TEST_F(ModelParserRelationshipsTest, RelationshipPropertiesGoToTheContainment) {
    parseContainment(parentAndChild(),
                     "<description>d</description><specification>s</specification><filter>f</filter><deprecated/>"
                     "<domainExtension domain=\"QCIM\"><extension name=\"k\" value=\"v\"/></domainExtension>");
    ContWrapper* cont = findCont("M~1.0~R");
    ASSERT_NE(nullptr, cont);
    const ZefOamSpiGeneralProperties& gp = cont->getStruct().generalProperties;
    EXPECT_STREQ("d", gp.description);
    EXPECT_STREQ("s", gp.specification);
    EXPECT_STREQ("f", gp.hidden);
    EXPECT_EQ(ZefOamSpiStatusDeprecated, gp.status);
    EXPECT_EQ("DEPRECATED", cont->getStatus3());
    ASSERT_NE(nullptr, cont->getDomainExtension("QCIM", "k"));
}

TEST_F(ModelParserRelationshipsTest, RelationshipStatusWordsObsoleteAndPreliminary) {
    parseMim("<relationship name=\"A\"><obsolete/><containment>" + parentAndChild() + "</containment></relationship>"
             "<relationship name=\"B\"><preliminary/><containment>" + parentAndChild() +
             "</containment></relationship>");
    EXPECT_EQ(ZefOamSpiStatusObsolete, findCont("M~1.0~A")->getStruct().generalProperties.status);
    EXPECT_EQ("OBSOLETE", findCont("M~1.0~A")->getStatus3());
    EXPECT_EQ(ZefOamSpiStatusCurrent, findCont("M~1.0~B")->getStruct().generalProperties.status);
    EXPECT_EQ("PRELIMINARY", findCont("M~1.0~B")->getStatus3());
}

TEST_F(ModelParserRelationshipsTest, SecondDescriptionSpecificationAndFilterAreWarnings) {
    parseContainment(parentAndChild(), "<description>a</description><description>b</description>"
                                       "<specification>a</specification><specification>b</specification>"
                                       "<filter>a</filter><filter>b</filter>");
    const ZefOamSpiGeneralProperties& gp = findCont("M~1.0~R")->getStruct().generalProperties;
    EXPECT_STREQ("a", gp.description);
    EXPECT_STREQ("a", gp.specification);
    EXPECT_STREQ("a", gp.hidden);
    expectParserWarning("Description of cont (R) is already set.");
    expectParserWarning("Specification of cont (R) is already set.");
    expectParserWarning("Filter of cont (R) is already set.");
}

TEST_F(ModelParserRelationshipsTest, RelationshipUnsupportedAndUnknownItemsAreTraced) {
    parseContainment(parentAndChild(), "<applicationTag/><visibility/><colour/>", "name=\"R\" kind=\"k\"");
    EXPECT_NE(nullptr, findCont("M~1.0~R"));
    EXPECT_TRUE(logged("Ignoring unknown attribute: kind, k"));
    EXPECT_TRUE(logged("Ignoring unsupported element: applicationTag."));
    EXPECT_TRUE(logged("Ignoring unsupported element: visibility."));
    EXPECT_TRUE(logged("Ignoring unknown element: colour."));
}

TEST_F(ModelParserRelationshipsTest, ContainmentWithoutNameIsRefusedByTheRepository) {
    parseContainment(parentAndChild(), "", "");
    EXPECT_TRUE(repository.getContMap().empty());
    expectRepositoryError("Incomplete Containment, 'name' attribute is missing for the parent(Root) "
                          "child(Leaf)relation,could not add to the map");
}

TEST_F(ModelParserRelationshipsTest, ContainmentWithEmptyNameWarnsAndIsRefused) {
    parseContainment(parentAndChild(), "", "name=\"\"");
    EXPECT_TRUE(repository.getContMap().empty());
    expectParserWarning("Failed to set mom name ().");
    expectRepositoryError("Incomplete Containment, 'name' attribute is missing for the parent(Root) "
                          "child(Leaf)relation,could not add to the map");
}

TEST_F(ModelParserRelationshipsTest, CardinalityWithOnlyMinIsAnErrorAndSetsNeitherBound) {
    parseContainment("<parent><hasClass name=\"Root\"/></parent>"
                     "<child><hasClass name=\"Leaf\"/><cardinality><min>3</min></cardinality></child>");
    ContWrapper* cont = findCont("M~1.0~R");
    ASSERT_NE(nullptr, cont);
    EXPECT_EQ(0, cont->getStruct().cardinality.min);
    EXPECT_EQ(32767, cont->getStruct().cardinality.max);
    expectParserError("Must have min and max defined for containment: R.");
}

TEST_F(ModelParserRelationshipsTest, CardinalityWithOnlyMaxIsAnError) {
    parseContainment("<parent><hasClass name=\"Root\"/></parent>"
                     "<child><hasClass name=\"Leaf\"/><cardinality><max>3</max></cardinality></child>");
    EXPECT_EQ(32767, findCont("M~1.0~R")->getStruct().cardinality.max);
    expectParserError("Must have min and max defined for containment: R.");
}

TEST_F(ModelParserRelationshipsTest, InvalidCardinalityBoundsAreWarnings) {
    parseContainment("<parent><hasClass name=\"Root\"/></parent><child><hasClass name=\"Leaf\"/>"
                     "<cardinality kind=\"k\"><min>x</min><step/><max>-1</max></cardinality></child>");
    ContWrapper* cont = findCont("M~1.0~R");
    ASSERT_NE(nullptr, cont);
    EXPECT_EQ(0, cont->getStruct().cardinality.min);
    EXPECT_EQ(32767, cont->getStruct().cardinality.max);
    expectParserWarning("Cardinality should not have an attribute: kind.");
    expectParserWarning("Invalid cardinality min (x) value for containment (R).");
    expectParserWarning("Invalid cardinality max (-1) value for containment (R).");
    EXPECT_TRUE(logged("Ignoring unknown element: step."));
}

TEST_F(ModelParserRelationshipsTest, UnboundedCardinality) {
    parseContainment("<parent><hasClass name=\"Root\"/></parent>"
                     "<child><hasClass name=\"Leaf\"/><cardinality><min>1</min><max>*</max></cardinality></child>");
    EXPECT_EQ(1, findCont("M~1.0~R")->getStruct().cardinality.min);
    EXPECT_EQ(32767, findCont("M~1.0~R")->getStruct().cardinality.max);
}

TEST_F(ModelParserRelationshipsTest, EndNamingTwoClassesIsAnError) {
    parseContainment("<parent><hasClass name=\"A\"/><hasClass name=\"B\"/></parent>"
                     "<child><hasClass name=\"C\"/><hasClass name=\"D\"/></child>");
    ContWrapper* cont = findCont("M~1.0~R");
    ASSERT_NE(nullptr, cont);
    EXPECT_EQ("A", cont->getParentMocName());
    EXPECT_EQ("C", cont->getChildMocName());
    expectParserError("Containment (R) parent moc is already set.");
    expectParserError("Containment (R) child moc is already set.");
}

TEST_F(ModelParserRelationshipsTest, NotCreatableAndNotDeleteable) {
    parseMim("<relationship name=\"A\"><containment>" + parentAndChild() +
             "<notCreatable/></containment></relationship>"
             "<relationship name=\"B\"><containment>" + parentAndChild() +
             "<notDeleteable/></containment></relationship>");
    ContWrapper* a = findCont("M~1.0~A");
    ContWrapper* b = findCont("M~1.0~B");
    ASSERT_NE(nullptr, a);
    ASSERT_NE(nullptr, b);
    EXPECT_FALSE(a->getCanCreate());
    EXPECT_TRUE(a->getCanDelete());
    EXPECT_TRUE(b->getCanCreate());
    EXPECT_FALSE(b->getCanDelete());
}

TEST_F(ModelParserRelationshipsTest, NotCreatableAndNotDeleteableTogether) {
    parseContainment(parentAndChild() + "<notCreatable/><notDeleteable/>");
    EXPECT_FALSE(findCont("M~1.0~R")->getCanCreate());
    EXPECT_FALSE(findCont("M~1.0~R")->getCanDelete());
}

TEST_F(ModelParserRelationshipsTest, ContainmentAndEndItemsOutsideTheFormatAreTraced) {
    parseContainment("<parent kind=\"p\"><description>x</description><applicationTag/><colour/>"
                     "<hasClass name=\"Root\" size=\"1\"><other/></hasClass></parent>"
                     "<child><hasClass name=\"Leaf\"/></child><order/>",
                     "", "name=\"R\"");
    EXPECT_NE(nullptr, findCont("M~1.0~R"));
    EXPECT_TRUE(logged("Ignoring unknown attribute: kind, p"));
    EXPECT_TRUE(logged("Ignoring unsupported element: description."));
    EXPECT_TRUE(logged("Ignoring unsupported element: applicationTag."));
    EXPECT_TRUE(logged("Ignoring unknown element: colour."));
    EXPECT_TRUE(logged("Ignoring unknown attribute: size, 1"));
    EXPECT_TRUE(logged("Ignoring unknown element: other."));
    EXPECT_TRUE(logged("Ignoring unknown element: order."));
}

TEST_F(ModelParserRelationshipsTest, ContainmentAttributesAreUnknown) {
    parseMim("<relationship name=\"R\"><containment kind=\"c\">" + parentAndChild() +
             "</containment></relationship>");
    EXPECT_NE(nullptr, findCont("M~1.0~R"));
    EXPECT_TRUE(logged("Ignoring unknown attribute: kind, c"));
}

TEST_F(ModelParserRelationshipsTest, TwoContainmentsOfOneRelationshipShareTheName) {
    parseMim("<relationship name=\"R\"><containment>" + parentAndChild("A", "B") + "</containment><containment>" +
             parentAndChild("C", "D") + "</containment></relationship>");
    ContWrapper* cont = findCont("M~1.0~R");
    ASSERT_NE(nullptr, cont);
    EXPECT_EQ("A", cont->getParentMocName());
    EXPECT_EQ(1u, repository.getContMap().size());
    expectRepositoryError("Cont (M~1.0~R) is already added to the map.");
}

// ---- containments between MOMs ---------------------------------------------

TEST_F(ModelParserRelationshipsTest, InterMimWithOneContainment) {
    parseInterMim("<relationship name=\"R\"><deprecated/><containment>"
                  "<parent><hasClass name=\"Root\"><mimName>P</mimName><mimVersion>1</mimVersion></hasClass></parent>"
                  "<child><hasClass name=\"Leaf\"><mimName>C</mimName></hasClass>"
                  "<cardinality><min>0</min><max>5</max></cardinality></child>"
                  "<domainExtension domain=\"QCIM\"><extension name=\"k\" value=\"v\"/></domainExtension>"
                  "</containment></relationship>");
    ContWrapper* cont = findCont("P~R");
    ASSERT_NE(nullptr, cont);
    EXPECT_TRUE(cont->isInterMim());
    EXPECT_EQ("Root", cont->getParentMocName());
    EXPECT_EQ("1", cont->getParentMimVersion());
    EXPECT_EQ("Leaf", cont->getChildMocName());
    EXPECT_EQ("C", cont->getChildMimName());
    EXPECT_EQ(5, cont->getStruct().cardinality.max);
    EXPECT_EQ(ZefOamSpiStatusDeprecated, cont->getStruct().generalProperties.status);
    ASSERT_NE(nullptr, cont->getDomainExtension("QCIM", "k"));
    EXPECT_TRUE(logged(" >> Processing Intermim: interMim."));
    EXPECT_TRUE(logged(" << Processed Intermim: interMim."));
    EXPECT_TRUE(logged("processInterMimNode, Processing element (relationship)"));
}

TEST_F(ModelParserRelationshipsTest, InterMimRelationshipDomainExtensionIsNotStored) {
    parseInterMim("<relationship name=\"R\"><domainExtension domain=\"QCIM\"><extension name=\"k\" value=\"v\"/>"
                  "</domainExtension><containment><parent><hasClass name=\"Root\"><mimName>P</mimName></hasClass>"
                  "</parent><child><hasClass name=\"Leaf\"/></child></containment></relationship>");
    ContWrapper* cont = findCont("P~R");
    ASSERT_NE(nullptr, cont);
    EXPECT_TRUE(cont->getDomainExtensions().empty());
    EXPECT_TRUE(logged("domainExtension in relationship is handled as part of containment"));
}

TEST_F(ModelParserRelationshipsTest, InterMimWithTwoContainmentsKeepsTheFirst) {
    parseInterMim("<relationship name=\"R\"><containment><parent><hasClass name=\"A\"><mimName>P</mimName>"
                  "</hasClass></parent><child><hasClass name=\"B\"/></child></containment>"
                  "<containment><parent><hasClass name=\"X\"><mimName>Q</mimName></hasClass></parent>"
                  "<child><hasClass name=\"Y\"/></child></containment></relationship>");
    EXPECT_EQ(std::vector<std::string>{"P~R"}, keysOf(repository.getContMap()));
    EXPECT_EQ("A", findCont("P~R")->getParentMocName());
    EXPECT_EQ("B", findCont("P~R")->getChildMocName());
    expectParserWarning("Relationship (R) can have only one containment, taking first and ignoring rest.");
}

TEST_F(ModelParserRelationshipsTest, InterMimWithoutContainmentWarnsAndAddsNothing) {
    parseInterMim("<relationship name=\"R\"><description>x</description></relationship>");
    EXPECT_TRUE(repository.getContMap().empty());
    expectParserWarning("Relationship (R) has no containment.");
    // Only containments, status words and domain extensions belong to it.
    EXPECT_TRUE(logged("Ignoring unknown element: description."));
}

TEST_F(ModelParserRelationshipsTest, InterMimOtherChildrenAreUnsupported) {
    parseInterMim("<note/><relationship name=\"R\" kind=\"k\"><containment><parent><hasClass name=\"A\">"
                  "<mimName>P</mimName></hasClass></parent><child><hasClass name=\"B\"/></child></containment>"
                  "</relationship>");
    EXPECT_NE(nullptr, findCont("P~R"));
    EXPECT_TRUE(logged("Ignoring unsupported element: note."));
    EXPECT_TRUE(logged("Ignoring unknown attribute: kind, k"));
}

TEST_F(ModelParserRelationshipsTest, InterMimRelationshipWithEmptyNameIsAWarning) {
    parseInterMim("<relationship name=\"\"><containment><parent><hasClass name=\"A\"><mimName>P</mimName>"
                  "</hasClass></parent><child><hasClass name=\"B\"/></child></containment></relationship>");
    EXPECT_TRUE(repository.getContMap().empty());
    expectParserWarning("Failed to set name of the interMim ().");
    expectRepositoryError("Incomplete Containment, 'name' attribute is missing for the parent(A) "
                          "child(B)relation,could not add to the map");
}

// ---- bidirectional associations --------------------------------------------

TEST_F(ModelParserRelationshipsTest, BidirectionalAssociationWithTwoEnds) {
    parseMim("<relationship name=\"AB\"><description>both ways</description>"
             "<biDirectionalAssociation>"
             "<associationEnd name=\"toB\"><hasClass name=\"A\"><mimName>M</mimName><mimVersion>1.0</mimVersion>"
             "</hasClass><cardinality><min>0</min><max>1</max></cardinality><isReserving/></associationEnd>"
             "<associationEnd name=\"toA\"><hasClass name=\"B\"><mimName>M</mimName></hasClass>"
             "<cardinality><min>1</min><max>*</max></cardinality><restricted/></associationEnd>"
             "</biDirectionalAssociation></relationship>");
    BiDirAssociationWrapper* assoc = findBidir("M~1.0~AB");
    ASSERT_NE(nullptr, assoc);
    EXPECT_STREQ("both ways", assoc->getStruct().generalProperties.description);
    EXPECT_EQ("M~1.0~toB~AB", assoc->getFirstAssociationEndId());
    EXPECT_EQ("M~1.0~toA~AB", assoc->getSecondAssociationEndId());
    EXPECT_EQ(std::vector<std::string>({"M~1.0~toA~AB", "M~1.0~toB~AB"}), keysOf(repository.getAssocEndMap()));

    AssociationEndWrapper* toB = findEnd("M~1.0~toB~AB");
    ASSERT_NE(nullptr, toB);
    EXPECT_EQ("AB", toB->getIdentifier());
    EXPECT_EQ("A", toB->getClassifier());
    EXPECT_EQ("M", toB->getMimName());
    EXPECT_EQ("1.0", toB->getMimVersion());
    EXPECT_EQ(0, toB->getLower());
    EXPECT_EQ(1, toB->getUpper());
    EXPECT_TRUE(toB->reserving());
    EXPECT_FALSE(toB->restricted());
    EXPECT_EQ(&findMom("M~1.0")->getStruct(), toB->getStruct().mom);

    AssociationEndWrapper* toA = findEnd("M~1.0~toA~AB");
    ASSERT_NE(nullptr, toA);
    EXPECT_EQ("B", toA->getClassifier());
    EXPECT_EQ(1, toA->getLower());
    EXPECT_EQ(32767, toA->getUpper());
    EXPECT_FALSE(toA->reserving());
    EXPECT_TRUE(toA->restricted());

    EXPECT_TRUE(logged(" >> Processing bi/uni directional association end: AB."));
    EXPECT_TRUE(logged(" << Processed bi/uni directional association: AB ."));
    EXPECT_TRUE(logged(" >> Processing association end: toB."));
    EXPECT_TRUE(logged(" << Processed association end: toA ."));
    EXPECT_TRUE(logged(" >> Processing association's end: toB."));
}

TEST_F(ModelParserRelationshipsTest, BidirectionalAssociationWithThreeEndsKeepsTwo) {
    parseMim("<relationship name=\"AB\"><biDirectionalAssociation>"
             "<associationEnd name=\"e1\"><hasClass name=\"A\"/></associationEnd>"
             "<associationEnd name=\"e2\"><hasClass name=\"B\"/></associationEnd>"
             "<associationEnd name=\"e3\"><hasClass name=\"C\"/></associationEnd>"
             "</biDirectionalAssociation></relationship>");
    BiDirAssociationWrapper* assoc = findBidir("M~1.0~AB");
    ASSERT_NE(nullptr, assoc);
    EXPECT_EQ("M~1.0~e1~AB", assoc->getFirstAssociationEndId());
    EXPECT_EQ("M~1.0~e2~AB", assoc->getSecondAssociationEndId());
    EXPECT_EQ(std::vector<std::string>({"M~1.0~e1~AB", "M~1.0~e2~AB"}), keysOf(repository.getAssocEndMap()));
    expectParserWarning("Invalid number of associations ends for bidirectional assoc (AB).");
}

TEST_F(ModelParserRelationshipsTest, BidirectionalAssociationWithOneEndIsNotReportedByTheParser) {
    parseMim("<relationship name=\"AB\"><biDirectionalAssociation kind=\"k\">"
             "<associationEnd name=\"e1\"><hasClass name=\"A\"/></associationEnd><note/>"
             "</biDirectionalAssociation></relationship>");
    BiDirAssociationWrapper* assoc = findBidir("M~1.0~AB");
    ASSERT_NE(nullptr, assoc);
    EXPECT_EQ("M~1.0~e1~AB", assoc->getFirstAssociationEndId());
    EXPECT_EQ("", assoc->getSecondAssociationEndId());
    EXPECT_TRUE(logged("Ignoring unknown attribute: kind, k"));
    EXPECT_TRUE(logged("Ignoring unknown element: note."));
}

TEST_F(ModelParserRelationshipsTest, AssociationPropertiesAndItemsOutsideTheFormat) {
    parseMim("<relationship name=\"AB\" kind=\"k\"><specification>s</specification><filter>f</filter><obsolete/>"
             "<domainExtension domain=\"QCIM\"><extension name=\"x\" value=\"y\"/></domainExtension>"
             "<applicationTag/><visibility/><colour/><biDirectionalAssociation>"
             "<associationEnd name=\"e1\"><hasClass name=\"A\"/></associationEnd>"
             "<associationEnd name=\"e2\"><hasClass name=\"B\"/></associationEnd>"
             "</biDirectionalAssociation></relationship>");
    BiDirAssociationWrapper* assoc = findBidir("M~1.0~AB");
    ASSERT_NE(nullptr, assoc);
    const ZefOamSpiGeneralProperties& gp = assoc->getStruct().generalProperties;
    EXPECT_STREQ("s", gp.specification);
    EXPECT_STREQ("f", gp.hidden);
    EXPECT_EQ(ZefOamSpiStatusObsolete, gp.status);
    EXPECT_NE(nullptr, assoc->getDomainExtension("QCIM", "x"));
    EXPECT_TRUE(logged("Ignoring unknown attribute: kind, k"));
    EXPECT_TRUE(logged("Ignoring unsupported element: applicationTag."));
    EXPECT_TRUE(logged("Ignoring unsupported element: visibility."));
    EXPECT_TRUE(logged("Ignoring unknown element: colour."));
}

TEST_F(ModelParserRelationshipsTest, AssociationWithoutNameIsRefusedByTheRepository) {
    parseMim("<relationship><biDirectionalAssociation>"
             "<associationEnd name=\"e1\"><hasClass name=\"A\"/></associationEnd>"
             "<associationEnd name=\"e2\"><hasClass name=\"B\"/></associationEnd>"
             "</biDirectionalAssociation></relationship>");
    EXPECT_TRUE(repository.getBidirMap().empty());
    EXPECT_TRUE(repository.getAssocEndMap().empty());
    // Without the relationship's name the ends have no identifier either.
    expectRepositoryError("Incomplete Association end, could not add to the map.");
    expectRepositoryError("Incomplete Association end, could not add to the map.");
    expectRepositoryError("Incomplete Bidirectional association, 'name' attribute is missing for the association "
                          "end attribute(),could not add to the map");
}

TEST_F(ModelParserRelationshipsTest, AssociationEndItemsOutsideTheFormatAreTraced) {
    parseMim("<relationship name=\"AB\"><biDirectionalAssociation>"
             "<associationEnd name=\"e1\" kind=\"k\"><hasClass name=\"A\" size=\"1\"><other/></hasClass>"
             "<description/><noNotification/><ordered/><defaultValue/><colour/>"
             "<cardinality><min>0</min></cardinality></associationEnd>"
             "<associationEnd name=\"e2\"><hasClass name=\"B\"/><cardinality><min>x</min><max>2</max></cardinality>"
             "</associationEnd></biDirectionalAssociation></relationship>");
    AssociationEndWrapper* e1 = findEnd("M~1.0~e1~AB");
    ASSERT_NE(nullptr, e1);
    EXPECT_EQ("A", e1->getClassifier());
    EXPECT_TRUE(logged("Ignoring unknown attribute: kind, k"));
    EXPECT_TRUE(logged("Ignoring unknown attribute: size, 1"));
    EXPECT_TRUE(logged("Ignoring unknown element: other."));
    for (const char* name : {"description", "noNotification", "ordered", "defaultValue"}) {
        EXPECT_TRUE(logged(std::string("Ignoring unsupported element: ") + name + ".")) << name;
    }
    EXPECT_TRUE(logged("Ignoring unknown element: colour."));
    expectParserError("Must have min and max defined for containment: e1.");
    expectParserWarning("Invalid cardinality min (x) value for containment (e2).");
    EXPECT_EQ(2, findEnd("M~1.0~e2~AB")->getUpper());
}

TEST_F(ModelParserRelationshipsTest, AssociationEndNamingTwoClassesIsAnError) {
    parseMim("<relationship name=\"AB\"><biDirectionalAssociation>"
             "<associationEnd name=\"e1\"><hasClass name=\"A\"/><hasClass name=\"B\"/></associationEnd>"
             "<associationEnd name=\"e2\"><hasClass name=\"B\"/></associationEnd>"
             "</biDirectionalAssociation></relationship>");
    EXPECT_EQ("A", findEnd("M~1.0~e1~AB")->getClassifier());
    expectParserError("AssociationEnd (e1) associated classifier is already set.");
}

// ---- unidirectional associations -------------------------------------------

TEST_F(ModelParserRelationshipsTest, UnidirectionalAssociationWithoutIsExternal) {
    parseMim("<relationship name=\"U\"><uniDirectionalAssociation>"
             "<hasClass name=\"Origin\"><mimName>M</mimName><mimVersion>1.0</mimVersion></hasClass>"
             "<associationEnd name=\"target\"><hasClass name=\"T\"><mimName>M</mimName></hasClass>"
             "<cardinality><min>0</min><max>3</max></cardinality></associationEnd>"
             "</uniDirectionalAssociation></relationship>");
    UniDirAssociationWrapper* assoc = findUnidir("M~1.0~U");
    ASSERT_NE(nullptr, assoc);
    EXPECT_EQ("M~1.0~Origin", assoc->getOriginMocId());
    EXPECT_EQ("M~1.0~target~U", assoc->getAssociationEndId());
    EXPECT_FALSE(assoc->getIsExternal());
    EXPECT_EQ(&findMom("M~1.0")->getStruct(), assoc->getStruct().mom);
    AssociationEndWrapper* end = findEnd("M~1.0~target~U");
    ASSERT_NE(nullptr, end);
    EXPECT_EQ("T", end->getClassifier());
    EXPECT_EQ(3, end->getUpper());
}

TEST_F(ModelParserRelationshipsTest, UnidirectionalAssociationWithIsExternal) {
    parseMim("<relationship name=\"U\"><uniDirectionalAssociation kind=\"k\">"
             "<hasClass name=\"Origin\" size=\"1\"><mimName>N</mimName><mimVersion>2</mimVersion><other/></hasClass>"
             "<associationEnd name=\"target\"><hasClass name=\"T\"/></associationEnd><isExternal/><colour/>"
             "</uniDirectionalAssociation></relationship>");
    UniDirAssociationWrapper* assoc = findUnidir("M~1.0~U");
    ASSERT_NE(nullptr, assoc);
    EXPECT_EQ("N~2~Origin", assoc->getOriginMocId());
    EXPECT_TRUE(assoc->getIsExternal());
    EXPECT_TRUE(logged("Ignoring unknown attribute: kind, k"));
    EXPECT_TRUE(logged("Ignoring unknown attribute: size, 1"));
    EXPECT_TRUE(logged("Ignoring unknown element: other."));
    EXPECT_TRUE(logged("Ignoring unknown element: colour."));
}

TEST_F(ModelParserRelationshipsTest, UnidirectionalOriginWithoutNameIsAnError) {
    parseMim("<relationship name=\"U\"><uniDirectionalAssociation><hasClass><mimName>M</mimName></hasClass>"
             "<associationEnd name=\"target\"><hasClass name=\"T\"/></associationEnd>"
             "</uniDirectionalAssociation></relationship>");
    UniDirAssociationWrapper* assoc = findUnidir("M~1.0~U");
    ASSERT_NE(nullptr, assoc);
    EXPECT_EQ("", assoc->getOriginMocId());
    expectParserError("Origin MOC for unidir (U) not found");
}

TEST_F(ModelParserRelationshipsTest, UnidirectionalSecondEndIsAnError) {
    parseMim("<relationship name=\"U\"><uniDirectionalAssociation><hasClass name=\"O\"><mimName>M</mimName>"
             "<mimVersion>1.0</mimVersion></hasClass>"
             "<associationEnd name=\"e1\"><hasClass name=\"T\"/></associationEnd>"
             "<associationEnd name=\"e2\"><hasClass name=\"T\"/></associationEnd>"
             "</uniDirectionalAssociation></relationship>");
    EXPECT_EQ("M~1.0~e1~U", findUnidir("M~1.0~U")->getAssociationEndId());
    expectParserError("Association end (e2) associated name is already set for uni directional association. (U).");
}

TEST_F(ModelParserRelationshipsTest, UnidirectionalEndWithoutNameIsAnError) {
    parseMim("<relationship name=\"U\"><uniDirectionalAssociation><hasClass name=\"O\"><mimName>M</mimName>"
             "<mimVersion>1.0</mimVersion></hasClass><associationEnd><hasClass name=\"T\"/></associationEnd>"
             "</uniDirectionalAssociation></relationship>");
    EXPECT_EQ("", findUnidir("M~1.0~U")->getAssociationEndId());
    EXPECT_TRUE(repository.getAssocEndMap().empty());
    expectParserError("Invalid name for Association end (), unidir association end id not set  (U).");
    expectRepositoryError("Incomplete Association end, 'name' attribute is missing for the association end "
                          "attribute(T),could not add to the map");
}

TEST_F(ModelParserRelationshipsTest, RelationshipWithAllThreeBodies) {
    parseMim("<relationship name=\"R\"><containment>" + parentAndChild() + "</containment>"
             "<biDirectionalAssociation><associationEnd name=\"e1\"><hasClass name=\"A\"/></associationEnd>"
             "<associationEnd name=\"e2\"><hasClass name=\"B\"/></associationEnd></biDirectionalAssociation>"
             "<uniDirectionalAssociation><hasClass name=\"O\"><mimName>M</mimName><mimVersion>1.0</mimVersion>"
             "</hasClass><associationEnd name=\"e3\"><hasClass name=\"T\"/></associationEnd>"
             "</uniDirectionalAssociation></relationship>");
    EXPECT_NE(nullptr, findCont("M~1.0~R"));
    EXPECT_NE(nullptr, findBidir("M~1.0~R"));
    EXPECT_NE(nullptr, findUnidir("M~1.0~R"));
    EXPECT_EQ(3u, repository.getAssocEndMap().size());
}

} // namespace
