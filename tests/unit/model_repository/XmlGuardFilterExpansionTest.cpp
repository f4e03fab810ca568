// The entity expansion limits of the reading chain's guard filter.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include <Poco/DOM/Element.h>

#include "GuardChainTestSupport.h"
#include "InputLimits.h"

using ZefModelRepositoryService::InputLimits;

namespace {

ZefTest::GuardFactory expansionLimit(std::uint64_t limit) {
    InputLimits limits;
    limits.maxEntityExpansion = limit;
    return ZefTest::guardWith(limits);
}

std::string repeated(const std::string& text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i) {
        result += text;
    }
    return result;
}

} // namespace

TEST(XmlGuardFilterExpansionTest, EntitiesWithinTheLimitAreExpanded) {
    const ZefTest::GuardedRead read = ZefTest::readGuarded(
        "<!DOCTYPE r [<!ENTITY w \"0123456789\">]><r a=\"&w;\">&w;&w;</r>", expansionLimit(30));
    EXPECT_EQ("", read.refusal);
    ASSERT_FALSE(read.document.isNull());
    EXPECT_EQ("0123456789", read.document->documentElement()->getAttribute("a"));
    EXPECT_EQ("01234567890123456789", read.document->documentElement()->innerText());
}

TEST(XmlGuardFilterExpansionTest, ReferencesPastTheLimitAreRefusedBeforeTheElements) {
    const ZefTest::GuardedRead read = ZefTest::readGuarded(
        "<!DOCTYPE r [<!ENTITY w \"0123456789\">]><r a=\"&w;\">&w;&w;&w;</r>", expansionLimit(30));
    EXPECT_EQ("entity references expand to more than 30 bytes (ZEF_VALIDATOR_MAX_ENTITY_EXPANSION)", read.refusal);
    // Refused at the end of the document type: no element reached the DOM.
    EXPECT_TRUE(read.document.isNull() || read.document->documentElement() == nullptr);
}

TEST(XmlGuardFilterExpansionTest, EntityThatExpandsPastTheLimitIsNamed) {
    const ZefTest::GuardedRead read = ZefTest::readGuarded(
        "<!DOCTYPE r [<!ENTITY a \"0123456789\"><!ENTITY b \"&a;&a;&a;&a;\">]><r/>", expansionLimit(30));
    EXPECT_EQ("entity 'b' expands to more than 30 bytes (ZEF_VALIDATOR_MAX_ENTITY_EXPANSION)", read.refusal);
}

TEST(XmlGuardFilterExpansionTest, AttributeDefaultCopiedIntoEveryElementIsRefusedWhileReading) {
    const std::string text = "<!DOCTYPE r [<!ENTITY x \"" + std::string(1000, 'A') +
                             "\"><!ATTLIST e v CDATA \"&x;\">]><r>" + repeated("<e/>", 3000) + "</r>";
    const ZefTest::GuardedRead read = ZefTest::readGuarded(text, expansionLimit(100000));
    EXPECT_EQ("entity references expand to more than 100000 bytes (ZEF_VALIDATOR_MAX_ENTITY_EXPANSION)",
              read.refusal);
    EXPECT_TRUE(read.document.isNull());
}

TEST(XmlGuardFilterExpansionTest, LargeDocumentWithoutEntitiesIsNeverRefused) {
    // Text as large as the document itself, and a limit of one byte.
    const std::string text = "<r a=\"" + std::string(100000, 'v') + "\">" + std::string(100000, 't') + "</r>";
    const ZefTest::GuardedRead read = ZefTest::readGuarded(text, expansionLimit(1));
    EXPECT_EQ("", read.refusal);
    EXPECT_FALSE(read.document.isNull());
}

TEST(XmlGuardFilterExpansionTest, DocumentTypeWithoutEntitiesLetsLargeTextPass) {
    // Counted once a document type is seen, but text as written never
    // passes three bytes per input byte.
    const std::string text =
        "<!DOCTYPE r [<!ELEMENT r ANY>]><r a=\"" + std::string(100000, 'v') + "\">" + std::string(100000, 't') + "</r>";
    const ZefTest::GuardedRead read = ZefTest::readGuarded(text, expansionLimit(1));
    EXPECT_EQ("", read.refusal);
    EXPECT_FALSE(read.document.isNull());
}
