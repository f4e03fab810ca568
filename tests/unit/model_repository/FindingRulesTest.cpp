#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <string>
#include <vector>

#include "FindingRules.h"
#include "MessageTemplate.h"

using ZefModelRepositoryService::FindingRule;
using ZefModelRepositoryService::FindingRules;
using ZefModelRepositoryService::FindingSeverity;
using ZefModelRepositoryService::MessageTemplate;
using ZefModelRepositoryService::RuleSubject;

namespace {

// A text made from `templateText` with "x1", "x2", ... for text arguments
// and 7 for numbers, and those arguments in order.
std::string sampleOf(const std::string& templateText, std::vector<std::string>& arguments) {
    std::string text;
    for (size_t at = 0; at < templateText.size(); ++at) {
        if (templateText[at] != '%') {
            text += templateText[at];
            continue;
        }
        std::string::size_type end = templateText.find_first_of("sdiu", at + 1);
        const char conversion = templateText[end];
        const std::string argument = conversion == 's' ? "x" + std::to_string(arguments.size() + 1) : "7";
        arguments.push_back(argument);
        text += argument;
        at = end;
    }
    return text;
}

TEST(FindingRulesTest, IdentifiersAreUniqueAndWrittenInLowerCaseWordsWithHyphens) {
    std::set<std::string> ids;
    for (const FindingRule& rule : FindingRules::all()) {
        EXPECT_TRUE(ids.insert(rule.id).second) << rule.id;
        const std::string id = rule.id;
        ASSERT_FALSE(id.empty());
        EXPECT_NE('-', id.front()) << id;
        EXPECT_NE('-', id.back()) << id;
        for (const char c : id) {
            EXPECT_TRUE(std::islower(static_cast<unsigned char>(c)) || std::isdigit(static_cast<unsigned char>(c)) ||
                        c == '-')
                << id;
        }
    }
}

TEST(FindingRulesTest, EveryTemplateBelongsToOneRule) {
    std::set<std::string> templates;
    for (const FindingRule& rule : FindingRules::all()) {
        EXPECT_TRUE(templates.insert(rule.messageTemplate).second) << rule.messageTemplate;
        EXPECT_EQ(&rule, FindingRules::byFormat(rule.messageTemplate)) << rule.id;
        EXPECT_EQ(&rule, FindingRules::byId(rule.id)) << rule.id;
    }
}

TEST(FindingRulesTest, ATextMadeFromATemplateIsKnownAsThatTemplatesRuleWithItsArguments) {
    for (const FindingRule& rule : FindingRules::all()) {
        std::vector<std::string> given;
        const std::string text = sampleOf(rule.messageTemplate, given);
        EXPECT_EQ(&rule, FindingRules::byText(text)) << rule.id << ": " << text;
        std::vector<std::string> read;
        EXPECT_TRUE(FindingRules::arguments(rule, text, read)) << rule.id;
        EXPECT_EQ(given, read) << rule.id;
    }
}

TEST(FindingRulesTest, TheSubjectArgumentIsOneOfTheTemplatesArguments) {
    for (const FindingRule& rule : FindingRules::all()) {
        const size_t count = MessageTemplate(rule.messageTemplate).argumentCount();
        EXPECT_LE(rule.subjectArgument, count) << rule.id;
        EXPECT_EQ(rule.subjectArgument == 0, rule.subject == RuleSubject::None) << rule.id;
    }
}

TEST(FindingRulesTest, AReporterAndASeverityForEveryRule) {
    for (const FindingRule& rule : FindingRules::all()) {
        const std::string reporter = rule.reporter;
        EXPECT_TRUE(reporter == "ModelParser" || reporter == "ModelRepository" || reporter == "plug-in") << rule.id;
        EXPECT_EQ(reporter == "plug-in" && rule.severity == FindingSeverity::Note,
                  rule.severity == FindingSeverity::Note)
            << rule.id;
    }
}

TEST(FindingRulesTest, TheMostSpecificTemplateOfATextWins) {
    const FindingRule* attribute =
        FindingRules::byText("Attribute (m~1.0~C~a) refers to a Moc (m~1.0~D) which could not be found.");
    ASSERT_NE(nullptr, attribute);
    EXPECT_EQ(std::string("attribute-moc-ref-not-found"), attribute->id);
    const FindingRule* parameter = FindingRules::byText("Parameter (p) refers to a Moc (m~1.0~D) which could not be found.");
    ASSERT_NE(nullptr, parameter);
    EXPECT_EQ(std::string("member-moc-ref-not-found"), parameter->id);
}

TEST(FindingRulesTest, KnownTextsHaveTheirPublishedIdentifiers) {
    const std::pair<const char*, const char*> known[] = {
        {"Moc (m~1.0~C) has no parent.", "moc-no-parent"},
        {"Mom not loaded:", "mom-not-loaded"},
        {"Empty model compiled.", "empty-model"},
        {"Mom m~1.0 not correct: The namespace is not set. The namespacePrefix is not set.",
         "mom-namespace-and-prefix-missing"},
        {"Numeric restriction range min (5) > max (1) for ddt (m~1.0~T)", "ddt-value-range-reversed"},
        {"Did not not find child Moc(m~1.0~X) for containment(m~1.0~c).", "cont-child-not-found"},
    };
    for (const auto& entry : known) {
        const FindingRule* rule = FindingRules::byText(entry.first);
        ASSERT_NE(nullptr, rule) << entry.first;
        EXPECT_EQ(std::string(entry.second), rule->id);
    }
}

TEST(FindingRulesTest, ATextOfNoTemplateHasNoRule) {
    EXPECT_EQ(nullptr, FindingRules::byText("Something else went wrong."));
    EXPECT_EQ(nullptr, FindingRules::byFormat("%s"));
    EXPECT_EQ(nullptr, FindingRules::byFormat(nullptr));
    EXPECT_EQ(nullptr, FindingRules::byId("no-such-rule"));
}

TEST(FindingRulesTest, ThePluginRulesAreInTheCatalog) {
    ASSERT_NE(nullptr, FindingRules::byId(FindingRules::pluginFailedId));
    EXPECT_EQ(FindingSeverity::Error, FindingRules::byId("plugin-validation-failed")->severity);
    ASSERT_NE(nullptr, FindingRules::byId(FindingRules::pluginInformationId));
    EXPECT_EQ(FindingSeverity::Note, FindingRules::byId("plugin-validation-information")->severity);
}

} // namespace
