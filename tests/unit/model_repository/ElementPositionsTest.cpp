// Where the elements of a document begin, as the document holder reads
// them while it builds the document (through the real reader chain).

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <Poco/DOM/Document.h>
#include <Poco/DOM/Element.h>
#include <Poco/DOM/Node.h>

#include "ElementPositions.h"
#include "ZefConfiguration.h"

using ZefModelRepositoryService::ElementPositions;

namespace {

// "line:column" of every element in document order.
std::vector<std::string> positionsOf(const Zef::ZefConfiguration& holder) {
    std::vector<std::string> result;
    const Poco::XML::Node* root = holder.getDocument();
    const Poco::XML::Node* node = root->firstChild();
    while (node != nullptr) {
        if (node->nodeType() == Poco::XML::Node::ELEMENT_NODE) {
            const ElementPositions::Position position = holder.positions().positionOf(node);
            result.push_back(node->nodeName() + "@" + std::to_string(position.line) + ":" +
                             std::to_string(position.column));
        }
        if (node->firstChild() != nullptr) {
            node = node->firstChild();
            continue;
        }
        while (node != root && node->nextSibling() == nullptr) {
            node = node->parentNode();
        }
        node = node != root ? node->nextSibling() : nullptr;
    }
    return result;
}

TEST(ElementPositionsTest, EachElementIsWhereItsStartTagBeginsCountedFromOne) {
    Zef::ZefConfiguration holder;
    holder.load("<models>\n"
                "  <mim name=\"A\">\n"
                "\t<class name=\"C\"/><class name=\"D\">\n"
                "  </class>\n"
                "  </mim>\n"
                "</models>\n");
    EXPECT_EQ((std::vector<std::string>{"models@1:1", "mim@2:3", "class@3:2", "class@3:19"}), positionsOf(holder));
}

TEST(ElementPositionsTest, ADeclarationCommentsAndTextBeforeDoNotShiftTheElements) {
    Zef::ZefConfiguration holder;
    holder.load("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                "<!-- a comment\n over two lines -->\n"
                "<models><!-- x --><mim\n"
                "    name=\"A\"\n"
                "    version=\"1\"><description><![CDATA[<not an element>]]></description></mim></models>\n");
    EXPECT_EQ((std::vector<std::string>{"models@4:1", "mim@4:19", "description@6:17"}), positionsOf(holder));
}

TEST(ElementPositionsTest, CommentsStayInTheDocument) {
    Zef::ZefConfiguration holder;
    holder.load("<models><!-- kept --><mim/></models>");
    const Poco::XML::Node* models = holder.getDocument()->documentElement();
    ASSERT_NE(nullptr, models->firstChild());
    EXPECT_EQ(Poco::XML::Node::COMMENT_NODE, models->firstChild()->nodeType());
    EXPECT_EQ(" kept ", models->firstChild()->nodeValue());
}

TEST(ElementPositionsTest, WhiteSpaceBetweenElementsIsStillDropped) {
    Zef::ZefConfiguration holder;
    holder.load("<models>\n  <mim/>\n</models>");
    const Poco::XML::Node* models = holder.getDocument()->documentElement();
    ASSERT_NE(nullptr, models->firstChild());
    EXPECT_EQ(Poco::XML::Node::ELEMENT_NODE, models->firstChild()->nodeType());
    EXPECT_EQ(nullptr, models->firstChild()->nextSibling());
}

TEST(ElementPositionsTest, ANextDocumentHasPositionsOfItsOwn) {
    Zef::ZefConfiguration holder;
    holder.load("<a><b/></a>");
    holder.load("\n\n<c/>");
    EXPECT_EQ(std::vector<std::string>{"c@3:1"}, positionsOf(holder));
}

TEST(ElementPositionsTest, AnElementOfAnotherDocumentHasNoPosition) {
    Zef::ZefConfiguration holder;
    holder.load("<a/>");
    Zef::ZefConfiguration other;
    other.load("<b/>");
    const ElementPositions::Position position = holder.positions().positionOf(other.getDocument()->documentElement());
    EXPECT_EQ(0u, position.line);
    EXPECT_EQ(0u, position.column);
}

TEST(ElementPositionsTest, WhilePositionsAreNotNotedTheDocumentIsTheSameAndHasNone) {
    ASSERT_TRUE(Zef::ZefConfiguration::notesPositions());
    Zef::ZefConfiguration::setNotePositions(false);
    Zef::ZefConfiguration holder;
    holder.load("<models>\n  <!-- c -->\n  <mim/>\n</models>");
    Zef::ZefConfiguration::setNotePositions(true);
    EXPECT_EQ((std::vector<std::string>{"models@0:0", "mim@0:0"}), positionsOf(holder));
    const Poco::XML::Node* models = holder.getDocument()->documentElement();
    ASSERT_NE(nullptr, models->firstChild());
    EXPECT_EQ(Poco::XML::Node::COMMENT_NODE, models->firstChild()->nodeType());
    ASSERT_NE(nullptr, models->firstChild()->nextSibling());
    EXPECT_EQ(nullptr, models->firstChild()->nextSibling()->nextSibling());
}

TEST(ElementPositionsTest, AssigningGivesThePositionsNotedInDocumentOrder) {
    Zef::ZefConfiguration holder;
    holder.load("<a><b/><c><d/></c></a>");
    ElementPositions positions;
    positions.noteStartTag(10, 1);
    positions.noteStartTag(11, 2);
    positions.noteStartTag(12, 3);
    // Fewer noted than elements: the rest have none.
    positions.assignTo(holder.getDocument());
    const Poco::XML::Element* a = holder.getDocument()->documentElement();
    EXPECT_EQ(10u, positions.positionOf(a).line);
    EXPECT_EQ(11u, positions.positionOf(a->firstChild()).line);
    EXPECT_EQ(3u, positions.positionOf(a->firstChild()->nextSibling()).column);
    EXPECT_EQ(0u, positions.positionOf(a->firstChild()->nextSibling()->firstChild()).line);
}

} // namespace
