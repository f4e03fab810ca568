#include <gtest/gtest.h>

#include <string>

#include "ReportText.h"

namespace {

TEST(ReportTextTest, JsonQuotesAndEscapesQuoteBackslashAndControlCharacters) {
    EXPECT_EQ("\"plain\"", ReportText::json("plain"));
    EXPECT_EQ("\"say \\\"hi\\\" \\\\ there\"", ReportText::json("say \"hi\" \\ there"));
    EXPECT_EQ("\"a\\nb\\tc\\rd\\be\\ff\"", ReportText::json("a\nb\tc\rd\be\ff"));
    EXPECT_EQ("\"\\u0001\\u001f\\u007f\"", ReportText::json(std::string("\x01\x1f\x7f")));
    EXPECT_EQ("\"\\u0000\"", ReportText::json(std::string(1, '\0')));
}

TEST(ReportTextTest, WellFormedUtf8IsKept) {
    EXPECT_EQ("\"Gr\xC3\xBC\xC3\x9F\x65 \xE2\x82\xAC \xF0\x9F\x98\x80\"",
              ReportText::json("Gr\xC3\xBC\xC3\x9F\x65 \xE2\x82\xAC \xF0\x9F\x98\x80"));
}

TEST(ReportTextTest, MalformedUtf8BecomesTheReplacementCharacter) {
    const std::string replacement = "\xEF\xBF\xBD";
    EXPECT_EQ("a" + replacement + "b", ReportText::validUtf8("a\xFF" "b"));
    // A sequence cut short is one replacement; an overlong form and an
    // encoded surrogate are one for each byte.
    EXPECT_EQ(replacement + "x", ReportText::validUtf8("\xE2\x82x"));
    EXPECT_EQ(replacement + replacement, ReportText::validUtf8("\xC0\xAF"));
    EXPECT_EQ(replacement + replacement + replacement, ReportText::validUtf8("\xED\xA0\x80"));
    EXPECT_EQ(replacement, ReportText::validUtf8("\xF0\x9F\x98"));
}

TEST(ReportTextTest, XmlTextEscapesMarkupAndKeepsLineBreaks) {
    EXPECT_EQ("a &lt;b&gt; &amp; &quot;c&quot; &apos;d&apos;\ne\tf&#13;", ReportText::xmlText("a <b> & \"c\" 'd'\ne\tf\r"));
}

TEST(ReportTextTest, XmlAttributesKeepLineBreaksAsCharacterReferences) {
    EXPECT_EQ("a&#10;b&#9;c&#13;", ReportText::xmlAttribute("a\nb\tc\r"));
}

TEST(ReportTextTest, ControlCharactersXmlCannotHoldBecomeTheReplacementCharacter) {
    EXPECT_EQ("a\xEF\xBF\xBD" "b", ReportText::xmlText("a\x01" "b"));
    EXPECT_EQ("\xEF\xBF\xBD", ReportText::xmlAttribute(std::string(1, '\0')));
}

} // namespace
