// The name-pool limit of the reading chain's guard filter: a document with
// more distinct element and attribute names than the DOM document's pool
// holds is refused, without the pool's own error reaching the XML reader.

#include <gtest/gtest.h>

#include <string>

#include "GuardChainTestSupport.h"
#include "InputLimits.h"

namespace {

const char* const kRefusal = "more than 509 distinct element and attribute names, more than a DOM document holds";

ZefTest::GuardFactory guard() { return ZefTest::guardWith(ZefModelRepositoryService::InputLimits()); }

} // namespace

TEST(XmlGuardFilterNamesTest, AsManyNamesAsThePoolHoldsPass) {
    const ZefTest::GuardedRead read = ZefTest::readGuarded("<r>" + ZefTest::numberedElements(1, 508) + "</r>", guard());
    EXPECT_EQ("", read.refusal);
    ASSERT_FALSE(read.document.isNull()) << read.readerError;
    EXPECT_EQ("n508", read.document->documentElement()->lastChild()->nodeName());
}

TEST(XmlGuardFilterNamesTest, OneNameMoreIsRefused) {
    const ZefTest::GuardedRead read = ZefTest::readGuarded("<r>" + ZefTest::numberedElements(1, 509) + "</r>", guard());
    EXPECT_EQ(kRefusal, read.refusal);
    EXPECT_EQ("", read.readerError);
}

TEST(XmlGuardFilterNamesTest, RepeatedNamesCountOnce) {
    // r, a, e and n1 to n506: 509 names, most of them met more than once.
    const std::string repeated = "<e a=\"2\"/><e a=\"3\"/><r/>" + ZefTest::numberedElements(1, 506) + ZefTest::numberedElements(1, 506);
    const ZefTest::GuardedRead read = ZefTest::readGuarded("<r a=\"1\">" + repeated + "</r>", guard());
    EXPECT_EQ("", read.refusal);
    EXPECT_FALSE(read.document.isNull());
    const ZefTest::GuardedRead oneMore =
        ZefTest::readGuarded("<r a=\"1\">" + repeated + "<e b=\"1\"/></r>", guard());
    EXPECT_EQ(kRefusal, oneMore.refusal);
}

TEST(XmlGuardFilterNamesTest, AttributeNamesCount) {
    const ZefTest::GuardedRead read =
        ZefTest::readGuarded("<r extra=\"1\">" + ZefTest::numberedElements(1, 508) + "</r>", guard());
    EXPECT_EQ(kRefusal, read.refusal);
}

TEST(XmlGuardFilterNamesTest, NamespaceUriMakesADistinctName) {
    // "x" in no namespace, "p:x" and "x" in urn:a are three names besides
    // "r"; the reader does not report namespace declarations as attributes.
    const std::string namespaced = "<x/><p:x xmlns:p=\"urn:a\"/><x xmlns=\"urn:a\"/>";
    const ZefTest::GuardedRead read =
        ZefTest::readGuarded("<r>" + namespaced + ZefTest::numberedElements(1, 505) + "</r>", guard());
    EXPECT_EQ("", read.refusal);
    EXPECT_FALSE(read.document.isNull());
    const ZefTest::GuardedRead oneMore =
        ZefTest::readGuarded("<r>" + namespaced + ZefTest::numberedElements(1, 506) + "</r>", guard());
    EXPECT_EQ(kRefusal, oneMore.refusal);
}

TEST(XmlGuardFilterNamesTest, ARefusedAttributeNameLeavesItsElementOutOfTheTree) {
    // The last chunk holds the whole document: the reader ends without an
    // error of its own, and the tree it leaves stops before the element.
    const ZefTest::GuardedRead read =
        ZefTest::readGuarded("<r>" + ZefTest::numberedElements(1, 508) + "<n1 extra=\"1\"/><n2/></r>", guard());
    EXPECT_EQ(kRefusal, read.refusal);
    ASSERT_FALSE(read.document.isNull());
    EXPECT_EQ("n508", read.document->documentElement()->lastChild()->nodeName());
}

TEST(XmlGuardFilterNamesTest, ManyNamesInALargeDocumentStopTheReader) {
    const ZefTest::GuardedRead read = ZefTest::readGuarded("<r>" + ZefTest::numberedElements(0, 4999) + "</r>", guard());
    EXPECT_EQ(kRefusal, read.refusal);
    EXPECT_TRUE(read.document.isNull());
    EXPECT_NE("", read.readerError);
}
