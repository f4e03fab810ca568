#include <gtest/gtest.h>

#include <string>

#include "PatternCache.h"

using namespace ZefModelRepositoryService;

TEST(PatternCacheTest, CompiledPatternMatchesAnywhereInTheText)
{
    PatternCache cache;
    const PatternCache::Entry& digits = cache.get("[0-9]+");
    EXPECT_TRUE(digits.compiled());
    EXPECT_EQ("", digits.error());
    EXPECT_TRUE(digits.matches("ab12"));
    EXPECT_FALSE(digits.matches("abc"));
}

TEST(PatternCacheTest, PatternsUseTheExtendedSyntax)
{
    PatternCache cache;
    EXPECT_TRUE(cache.get("^(ab|cd)+$").matches("abcd"));
    EXPECT_FALSE(cache.get("^(ab|cd)$").matches("(ab|cd)"));
}

TEST(PatternCacheTest, EachPatternIsCompiledOnce)
{
    PatternCache cache;
    const PatternCache::Entry& first = cache.get("^a$");
    cache.get("^b$");
    EXPECT_EQ(&first, &cache.get("^a$"));
    EXPECT_NE(&first, &cache.get("^b$"));
}

TEST(PatternCacheTest, PatternThatDoesNotCompileKeepsTheCompilersText)
{
    PatternCache cache;
    const PatternCache::Entry& broken = cache.get("(");
    EXPECT_FALSE(broken.compiled());
    EXPECT_EQ("Unmatched ( or \\(", broken.error());
    EXPECT_FALSE(broken.matches("("));
    EXPECT_EQ(&broken, &cache.get("("));
}

TEST(PatternCacheTest, ClearForgetsThePatterns)
{
    PatternCache cache;
    cache.get("^a$");
    cache.clear();
    EXPECT_TRUE(cache.get("^a$").matches("a"));
}
