// The base of the guard filters: everything passes while the document is
// not refused, nothing after.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include <Poco/DOM/Comment.h>
#include <Poco/DOM/DocumentType.h>
#include <Poco/DOM/Element.h>
#include <Poco/DOM/NodeList.h>
#include <Poco/DOM/ProcessingInstruction.h>

#include "GuardChainTestSupport.h"
#include "XmlGuardFilter.h"

using ZefModelRepositoryService::XmlGuardFilter;
using ZefModelRepositoryService::XmlParseStop;

namespace {

/// Refuses the document at the start of the element named `stopAt`.
class StopAtFilter : public XmlGuardFilter {
public:
    StopAtFilter(Poco::XML::XMLReader* parent, XmlParseStop& stop, const std::string& stopAt)
        : XmlGuardFilter(parent, stop), _stopAt(stopAt) {}

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
