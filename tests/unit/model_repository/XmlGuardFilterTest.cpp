// The guard filter of the reading chain: everything passes while the
// document is not refused, nothing after; white-space-only text between
// elements is dropped.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include <Poco/DOM/Comment.h>
#include <Poco/DOM/DocumentType.h>
#include <Poco/DOM/Element.h>
#include <Poco/DOM/NodeList.h>
#include <Poco/DOM/ProcessingInstruction.h>

#include "GuardChainTestSupport.h"
#include "InputLimits.h"
#include "XmlGuardFilter.h"

using ZefModelRepositoryService::XmlGuardFilter;
using ZefModelRepositoryService::XmlParseStop;

namespace {

/// Refuses the document at the start of the element named `stopAt`.
class StopAtFilter : public XmlGuardFilter {
public:
    StopAtFilter(Poco::XML::XMLReader* parent, XmlParseStop& stop, const std::string& stopAt)
        : XmlGuardFilter(parent, stop, ZefModelRepositoryService::InputLimits()), _stopAt(stopAt) {}

    void startElement(const Poco::XML::XMLString& uri, const Poco::XML::XMLString& localName,
                      const Poco::XML::XMLString& qname, const Poco::XML::Attributes& attributes) override {
        if (qname == _stopAt) {
            refuse("stopped at " + qname);
        }
        XmlGuardFilter::startElement(uri, localName, qname, attributes);
    }

private:
    std::string _stopAt;
};

ZefTest::GuardFactory stopAt(const std::string& name) {
    return [name](Poco::XML::XMLReader* parent, XmlParseStop& stop) {
        return std::unique_ptr<XmlGuardFilter>(new StopAtFilter(parent, stop, name));
    };
}

/// Reads, with the depth limit `maxDepth`, a document whose 509 names fill
/// the pool and then an element with a new name at level 3.
ZefTest::GuardedRead readFullPoolThenANewNameAtLevel3(std::uint64_t maxDepth) {
    ZefModelRepositoryService::InputLimits limits;
    limits.maxDepth = maxDepth;
    return ZefTest::readGuarded("<r>" + ZefTest::numberedElements(1, 508) + "<n1><x/></n1></r>",
                                ZefTest::guardWith(limits));
}

} // namespace

TEST(XmlGuardFilterTest, EveryKindOfNodePassesWhileNotRefused) {
    const ZefTest::GuardedRead read = ZefTest::readGuarded(
        "<!DOCTYPE models [<!ENTITY e \"x\">]><?pi data?><models a=\"1\"><!-- note --><![CDATA[c]]>t&e;"
        "<x:m xmlns:x=\"urn:x\"/></models>",
        stopAt("none"));
    ASSERT_FALSE(read.document.isNull()) << read.readerError;
    EXPECT_EQ("", read.refusal);
    ASSERT_NE(nullptr, read.document->doctype());
    EXPECT_EQ("models", read.document->doctype()->name());
    EXPECT_EQ(Poco::XML::Node::PROCESSING_INSTRUCTION_NODE, read.document->firstChild()->nodeType());
    Poco::XML::Element* models = read.document->documentElement();
    EXPECT_EQ("1", models->getAttribute("a"));
    ASSERT_NE(nullptr, models->firstChild());
    EXPECT_EQ(Poco::XML::Node::COMMENT_NODE, models->firstChild()->nodeType());
    EXPECT_EQ(" note ", models->firstChild()->nodeValue());
    EXPECT_EQ("ctx", models->innerText());
    EXPECT_EQ("urn:x", models->lastChild()->namespaceURI());
}

TEST(XmlGuardFilterTest, NothingPassesAfterTheRefusal) {
    std::string text = "<models><a/><stop/><b/>";
    // Enough text behind the refusal to reach the reader's next chunk.
    for (int i = 0; i < 2000; ++i) {
        text += "<c/>";
    }
    text += "</models>";
    const ZefTest::GuardedRead read = ZefTest::readGuarded(text, stopAt("stop"));
    EXPECT_EQ("stopped at stop", read.refusal);
    EXPECT_TRUE(read.document.isNull());
    EXPECT_NE("", read.readerError);
    EXPECT_EQ(std::string(text.size(), '\0'), read.text);
}

TEST(XmlGuardFilterTest, RefusalInTheLastChunkLeavesADocumentTheCallerMustDrop) {
    // The reader has the whole short document in one chunk: it ends without
    // an error of its own, and only the stop tells that it was refused.
    const ZefTest::GuardedRead read = ZefTest::readGuarded("<models><a/><stop/><b/></models>", stopAt("stop"));
    EXPECT_EQ("stopped at stop", read.refusal);
    ASSERT_FALSE(read.document.isNull());
    Poco::AutoPtr<Poco::XML::NodeList> stops = read.document->getElementsByTagName("stop");
    Poco::AutoPtr<Poco::XML::NodeList> after = read.document->getElementsByTagName("b");
    EXPECT_EQ(0u, stops->length());
    EXPECT_EQ(0u, after->length());
}

TEST(XmlGuardFilterTest, WhiteSpaceOnlyTextBetweenElementsIsDropped) {
    const ZefTest::GuardedRead read =
        ZefTest::readGuarded("<models>\n  <a> x </a>\n\t<b/>\r\n</models>", stopAt("none"));
    ASSERT_FALSE(read.document.isNull()) << read.readerError;
    Poco::XML::Element* models = read.document->documentElement();
    ASSERT_NE(nullptr, models->firstChild());
    EXPECT_EQ("a", models->firstChild()->nodeName());
    EXPECT_EQ(" x ", models->firstChild()->innerText());
    EXPECT_EQ("b", models->lastChild()->nodeName());
    EXPECT_EQ(models->firstChild()->nextSibling(), models->lastChild());
}

TEST(XmlGuardFilterTest, TheFirstLimitPassedInOneStartTagIsTheReason) {
    // One element is both a level too deep and a name too many: the depth
    // is checked first.
    const ZefTest::GuardedRead read = readFullPoolThenANewNameAtLevel3(2);
    EXPECT_EQ("elements nested deeper than 2 levels (ZEF_VALIDATOR_MAX_DEPTH)", read.refusal);
}

TEST(XmlGuardFilterTest, ANameTooManyWithinTheDepthIsRefusedForTheNames) {
    const ZefTest::GuardedRead read = readFullPoolThenANewNameAtLevel3(3);
    EXPECT_EQ("more than 509 distinct element and attribute names, more than a DOM document holds", read.refusal);
}
