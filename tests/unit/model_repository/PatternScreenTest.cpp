// The screen that keeps dangerous patterns away from the regex engine.

#include <gtest/gtest.h>

#include <string>

#include "InputLimits.h"
#include "PatternScreen.h"

using ZefModelRepositoryService::InputLimits;
using ZefModelRepositoryService::PatternScreen;

namespace {

std::string reasonFor(const std::string& pattern, const InputLimits& limits = InputLimits()) {
    return PatternScreen(limits).refusalReason(pattern);
}

TEST(PatternScreenTest, PatternsOfRealModelsPass) {
    EXPECT_EQ("", reasonFor("[a-zA-Z0-9_-]{1,64}"));
    EXPECT_EQ("", reasonFor("(([0-9]|[1-9][0-9]|1[0-9][0-9]|2[0-4][0-9]|25[0-5])\\.){3}"
                            "([0-9]|[1-9][0-9]|1[0-9][0-9]|2[0-4][0-9]|25[0-5])(%[a-zA-Z0-9_]+)?"));
    EXPECT_EQ("", reasonFor("((:|[0-9a-fA-F]{0,4}):)([0-9a-fA-F]{0,4}:){0,5}((([0-9a-fA-F]{0,4}:)?"
                            "(:|[0-9a-fA-F]{0,4}))|(((25[0-5]|2[0-4][0-9]|[01]?[0-9]?[0-9])\\.){3}"
                            "(25[0-5]|2[0-4][0-9]|[01]?[0-9]?[0-9])))(%[a-zA-Z0-9]+)?"));
    EXPECT_EQ("", reasonFor("((([a-zA-Z0-9_]([a-zA-Z0-9\\-_]){0,61})?[a-zA-Z0-9]\\.)*"
                            "([a-zA-Z0-9_]([a-zA-Z0-9\\-_]){0,61})?[a-zA-Z0-9]\\.?)|\\."));
    EXPECT_EQ("", reasonFor(".{1,255}"));
}

TEST(PatternScreenTest, BackReferencesAreRefused) {
    const std::string reason = "back-references (\\1 to \\9) are not supported";
    EXPECT_EQ(reason, reasonFor("(|)(\\1\\1)*"));
    EXPECT_EQ(reason, reasonFor("(a)\\1"));
    EXPECT_EQ(reason, reasonFor("(a)(b)(c)(d)(e)(f)(g)(h)(i)\\9"));
}

TEST(PatternScreenTest, DigitsAfterAnEscapedBackslashOrInABracketAreNoBackReference) {
    EXPECT_EQ("", reasonFor("\\\\1"));
    EXPECT_EQ("", reasonFor("[\\1]"));
    EXPECT_EQ("", reasonFor("a\\0"));
}

TEST(PatternScreenTest, LengthUpToTheLimitPasses) {
    InputLimits limits;
    limits.maxPatternLength = 10;
    EXPECT_EQ("", reasonFor("abcdefghij", limits));
    EXPECT_EQ("pattern longer than 10 characters", reasonFor("abcdefghijk", limits));
    EXPECT_EQ("pattern longer than 2048 characters", reasonFor(std::string(2049, 'a')));
}

TEST(PatternScreenTest, RepetitionBoundsUpToTheLimitPass) {
    EXPECT_EQ("", reasonFor("a{255}"));
    EXPECT_EQ("", reasonFor("^[a-z]{0,255}$"));
    EXPECT_EQ("repetition bound 256 is larger than 255", reasonFor("a{256}"));
    EXPECT_EQ("repetition bound 256 is larger than 255", reasonFor("a{256,}"));
    EXPECT_EQ("repetition bound 256 is larger than 255", reasonFor("a{,256}"));
    EXPECT_EQ("repetition bound 99999999999999999999 is larger than 255", reasonFor("a{99999999999999999999}"));
    EXPECT_EQ("repetition bound 2000 is larger than 255", reasonFor("a{5}(b{2000}){1,3}"));
    InputLimits limits;
    limits.maxPatternRepeat = 3;
    EXPECT_EQ("repetition bound 4 is larger than 3", reasonFor("a{2,4}", limits));
}

TEST(PatternScreenTest, BracesThatAreNoIntervalAreNoBound) {
    EXPECT_EQ("", reasonFor("[{5000}]"));
    EXPECT_EQ("", reasonFor("a\\{5000\\}"));
    EXPECT_EQ("", reasonFor("a{5000"));
}

TEST(PatternScreenTest, NestedRepetitionsAreTooComplex) {
    EXPECT_EQ("pattern too complex: its repetitions expand to more than 2000 regex nodes",
              reasonFor("((a|aa){0,50}){0,50}"));
    EXPECT_EQ("pattern too complex: its repetitions expand to more than 2000 regex nodes",
              reasonFor("((((((a{255}){255}){255}){255}){255}){255})"));
    EXPECT_EQ("", reasonFor("((a|aa){0,10}){0,10}"));
}

TEST(PatternScreenTest, ExpandedSizeCountsCopiesOfRepeatedTrees) {
    EXPECT_EQ(1u, PatternScreen::expandedSize("a"));
    EXPECT_EQ(2u, PatternScreen::expandedSize("ab"));
    EXPECT_EQ(3u, PatternScreen::expandedSize("a|b"));
    EXPECT_EQ(3u, PatternScreen::expandedSize("(a)"));
    EXPECT_EQ(1u, PatternScreen::expandedSize("[a-z]"));
    EXPECT_EQ(1u, PatternScreen::expandedSize("[]a]"));
    EXPECT_EQ(1u, PatternScreen::expandedSize("[^]a]"));
    EXPECT_EQ(1u, PatternScreen::expandedSize("[[:alpha:]]"));
    EXPECT_EQ(2u, PatternScreen::expandedSize("a*"));
    EXPECT_EQ(2u, PatternScreen::expandedSize("a?"));
    EXPECT_EQ(4u, PatternScreen::expandedSize("a+"));
    EXPECT_EQ(6u, PatternScreen::expandedSize("a{3}"));
    EXPECT_EQ(10u, PatternScreen::expandedSize("a{2,5}"));
    EXPECT_EQ(8u, PatternScreen::expandedSize("a{3,}"));
    EXPECT_EQ(15u, PatternScreen::expandedSize("(ab){2,}"));
    EXPECT_EQ(2u, PatternScreen::expandedSize("\\w\\."));
}

TEST(PatternScreenTest, MalformedPatternsAreLeftToTheEngine) {
    EXPECT_EQ("", reasonFor("("));
    EXPECT_EQ("", reasonFor("[a"));
    EXPECT_EQ("", reasonFor("a)"));
    EXPECT_EQ("", reasonFor("*a"));
    EXPECT_EQ("", reasonFor("\\"));
    EXPECT_EQ("", reasonFor("[[:alpha"));
}

TEST(PatternScreenTest, DeepGroupsAreSizedWithoutRecursion) {
    const std::string deep = std::string(100000, '(') + "a" + std::string(100000, ')');
    EXPECT_EQ(200001u, PatternScreen::expandedSize(deep));
}

} // namespace
