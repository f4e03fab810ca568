// The name-pool limit of the reading chain's guard filter: it counts names
// the way the DOM document's pool does.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include <Poco/DOM/DOMParser.h>

#include "GuardChainTestSupport.h"
#include "InputLimits.h"

using ZefModelRepositoryService::XmlGuardFilter;

namespace {

ZefTest::GuardFactory namePool() {
    return ZefTest::guardWith(ZefModelRepositoryService::InputLimits());
}

/// Reads `text` through a guard filter; `names` receives the number of
/// distinct names it counted.
ZefTest::GuardedRead readCounting(const std::string& text, std::size_t& names) {
    return ZefTest::readGuarded(text, namePool(), [&names](XmlGuardFilter& filter) {
        names = filter.namesUsed();
    });
}

/// A document with `count` distinct names: the root "r" and count - 1 children.
std::string withNames(int count, const std::string& rootAttributes = "") {
    std::string text = "<r" + rootAttributes + ">";
    for (int i = 1; i < count; ++i) {
        text += "<n" + std::to_string(i) + "/>";
    }
    return text + "</r>";
}

} // namespace

TEST(XmlGuardFilterNamesTest, RepeatedNamesCountOnce) {
    std::size_t names = 0;
    const ZefTest::GuardedRead read = readCounting("<r a=\"1\"><e a=\"2\"/><e b=\"3\"/><r/></r>", names);
    EXPECT_EQ("", read.refusal);
    EXPECT_EQ(4u, names);  // r, a, e, b
}

TEST(XmlGuardFilterNamesTest, AsManyNamesAsThePoolHoldsPass) {
    std::size_t names = 0;
    const ZefTest::GuardedRead read = readCounting(withNames(509), names);
    EXPECT_EQ("", read.refusal);
    EXPECT_FALSE(read.document.isNull());
    EXPECT_EQ(509u, names);
}

TEST(XmlGuardFilterNamesTest, OneNameMoreIsRefused) {
    const ZefTest::GuardedRead read = ZefTest::readGuarded(withNames(510), namePool());
    EXPECT_EQ("more than 509 distinct element and attribute names, more than a DOM document holds", read.refusal);
}

TEST(XmlGuardFilterNamesTest, AttributeNamesCount) {
    const ZefTest::GuardedRead read = ZefTest::readGuarded(withNames(509, " extra=\"1\""), namePool());
    EXPECT_EQ("more than 509 distinct element and attribute names, more than a DOM document holds", read.refusal);
}

TEST(XmlGuardFilterNamesTest, NamespaceUriMakesADistinctName) {
    // "x" in no namespace, "p:x" and "x" in urn:a are three entries of the
    // pool; the reader does not report namespace declarations as attributes.
    std::size_t names = 0;
    const ZefTest::GuardedRead read = readCounting("<r><x/><p:x xmlns:p=\"urn:a\"/><x xmlns=\"urn:a\"/></r>", names);
    EXPECT_EQ("", read.refusal);
    EXPECT_EQ(4u, names);
}

TEST(XmlGuardFilterNamesTest, AFullCountFitsTheRealDomPool) {
    // 509 names as this filter counts them, namespaced ones among them: a DOM
    // parser without a name pool of its own takes the document (were its
    // pool to count a name more, it would overflow here).
    std::string text = "<r><x/><p:x xmlns:p=\"urn:a\" p:y=\"1\" y=\"2\"/><x xmlns=\"urn:a\"/>";
    for (int i = 6; i < 509; ++i) {
        text += "<n" + std::to_string(i) + "/>";
    }
    text += "</r>";
    std::size_t names = 0;
    const ZefTest::GuardedRead read = readCounting(text, names);
    EXPECT_EQ("", read.refusal);
    EXPECT_EQ(509u, names);
    Poco::XML::DOMParser parser;
    Poco::AutoPtr<Poco::XML::Document> document;
    EXPECT_NO_THROW(document = parser.parseMemory(text.data(), text.size()));
}

TEST(XmlGuardFilterNamesTest, ManyNamesInALargeDocumentStopTheReader) {
    std::string text = "<r>";
    for (int i = 0; i < 5000; ++i) {
        text += "<n" + std::to_string(i) + "/>";
    }
    const ZefTest::GuardedRead read = ZefTest::readGuarded(text + "</r>", namePool());
    EXPECT_EQ("more than 509 distinct element and attribute names, more than a DOM document holds", read.refusal);
    EXPECT_TRUE(read.document.isNull());
}
