#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "MessageTemplate.h"

using ZefModelRepositoryService::MessageTemplate;

namespace {

std::vector<std::string> argumentsOf(const char* templateText, const std::string& message) {
    std::vector<std::string> arguments;
    EXPECT_TRUE(MessageTemplate(templateText).match(message, &arguments)) << templateText << " / " << message;
    return arguments;
}

TEST(MessageTemplateTest, MatchesATextMadeFromItAndReadsTheArgumentBack) {
    EXPECT_EQ(std::vector<std::string>{"m~1.0~C"}, argumentsOf("Moc (%s) has no parent.", "Moc (m~1.0~C) has no parent."));
}

TEST(MessageTemplateTest, RefusesATextWithOtherFixedWords) {
    const MessageTemplate parent("Moc (%s) has no parent.");
    EXPECT_FALSE(parent.match("Moc (m~1.0~C) has no Mom."));
    EXPECT_FALSE(parent.match("Moc (m~1.0~C) has no parent"));
    EXPECT_FALSE(parent.match("Moc (m~1.0~C) has no parent.."));
}

TEST(MessageTemplateTest, ATextArgumentMayBeEmpty) {
    EXPECT_EQ(std::vector<std::string>{""}, argumentsOf("Moc (%s) has no parent.", "Moc () has no parent."));
}

TEST(MessageTemplateTest, ATextArgumentInTheMiddleTakesTheShortestTextThatLetsTheRestMatch) {
    EXPECT_EQ((std::vector<std::string>{"a (b)", "c"}),
              argumentsOf("Mom (%s) can have only one root Moc (%s).", "Mom (a (b)) can have only one root Moc (c)."));
}

TEST(MessageTemplateTest, TheLastTextArgumentTakesTheRest) {
    EXPECT_EQ(std::vector<std::string>{"1.5 and more"}, argumentsOf("Invalid resolution: %s", "Invalid resolution: 1.5 and more"));
}

TEST(MessageTemplateTest, NumbersAreDigitsWithAnOptionalMinusForSignedConversions) {
    EXPECT_EQ((std::vector<std::string>{"c", "10", "-1"}),
              argumentsOf("Containment(%s), cardinality min(%i) > max(%i).", "Containment(c), cardinality min(10) > max(-1)."));
    EXPECT_EQ((std::vector<std::string>{"-5", "-9", "d"}),
              argumentsOf("String restriction length min (%lld) > max (%lld) for ddt (%s)",
                          "String restriction length min (-5) > max (-9) for ddt (d)"));
    EXPECT_FALSE(MessageTemplate("Attribute (%s) has an unknown type %d.").match("Attribute (a) has an unknown type x."));
    EXPECT_FALSE(MessageTemplate("count %u").match("count -1"));
    EXPECT_TRUE(MessageTemplate("count %u").match("count 17"));
}

TEST(MessageTemplateTest, ADoubledPercentSignIsFixedText) {
    const MessageTemplate percent("%d%% done");
    EXPECT_EQ(1u, percent.argumentCount());
    EXPECT_TRUE(percent.match("50% done"));
    EXPECT_FALSE(percent.match("50%% done"));
}

TEST(MessageTemplateTest, CountsItsArgumentsAndFixedCharacters) {
    const MessageTemplate text("Mom (%s) can have only one root Moc (%s).");
    EXPECT_EQ(2u, text.argumentCount());
    EXPECT_EQ(std::string("Mom (").size() + std::string(") can have only one root Moc (").size() + 2, text.fixedLength());
    EXPECT_EQ("Mom (", text.prefix());
    EXPECT_EQ("", MessageTemplate("%s missing sub nodes").prefix());
}

TEST(MessageTemplateTest, ATemplateWithoutConversionsMatchesItsTextOnly) {
    const MessageTemplate empty("Empty model compiled.");
    EXPECT_EQ(0u, empty.argumentCount());
    EXPECT_TRUE(empty.match("Empty model compiled."));
    EXPECT_FALSE(empty.match("Empty model compiled. "));
}

} // namespace
