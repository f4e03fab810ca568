// The bounds on what an input may cost, and how the environment changes them.

#include <gtest/gtest.h>

#include "InputLimits.h"
#include "ScopedEnv.h"

using ZefModelRepositoryService::InputLimits;

namespace {

// Every variable unset for the scope of a test.
struct CleanLimitEnvironment {
    ScopedEnv fileSize = ScopedEnv::unset("ZEF_VALIDATOR_MAX_FILE_SIZE");
    ScopedEnv depth = ScopedEnv::unset("ZEF_VALIDATOR_MAX_DEPTH");
    ScopedEnv expansion = ScopedEnv::unset("ZEF_VALIDATOR_MAX_ENTITY_EXPANSION");
    ScopedEnv patternLength = ScopedEnv::unset("ZEF_VALIDATOR_MAX_PATTERN_LENGTH");
    ScopedEnv patternRepeat = ScopedEnv::unset("ZEF_VALIDATOR_MAX_PATTERN_REPEAT");
    ScopedEnv patternSize = ScopedEnv::unset("ZEF_VALIDATOR_MAX_PATTERN_SIZE");
    ScopedEnv patternValue = ScopedEnv::unset("ZEF_VALIDATOR_MAX_PATTERN_VALUE");
    ScopedEnv patternTime = ScopedEnv::unset("ZEF_VALIDATOR_MAX_PATTERN_TIME");
    ScopedEnv patternMemory = ScopedEnv::unset("ZEF_VALIDATOR_MAX_PATTERN_MEMORY");
    ScopedEnv patternTotalTime = ScopedEnv::unset("ZEF_VALIDATOR_MAX_PATTERN_TOTAL_TIME");
};

TEST(InputLimitsTest, DefaultsWithoutEnvironment) {
    CleanLimitEnvironment clean;
    const InputLimits limits = InputLimits::fromEnvironment();
    EXPECT_EQ(268435456u, limits.maxFileSize);
    EXPECT_EQ(10000u, limits.maxDepth);
    EXPECT_EQ(16777216u, limits.maxEntityExpansion);
    EXPECT_EQ(2048u, limits.maxPatternLength);
    EXPECT_EQ(255u, limits.maxPatternRepeat);
    EXPECT_EQ(2000u, limits.maxPatternSize);
    EXPECT_EQ(4096u, limits.maxPatternValue);
    EXPECT_EQ(2000u, limits.maxPatternTime);
    EXPECT_EQ(256u, limits.maxPatternMemory);
    EXPECT_EQ(60u, limits.maxPatternTotalTime);
}

TEST(InputLimitsTest, EveryVariableSetsItsLimit) {
    CleanLimitEnvironment clean;
    ScopedEnv fileSize("ZEF_VALIDATOR_MAX_FILE_SIZE", "11");
    ScopedEnv depth("ZEF_VALIDATOR_MAX_DEPTH", "12");
    ScopedEnv expansion("ZEF_VALIDATOR_MAX_ENTITY_EXPANSION", "13");
    ScopedEnv patternLength("ZEF_VALIDATOR_MAX_PATTERN_LENGTH", "14");
    ScopedEnv patternRepeat("ZEF_VALIDATOR_MAX_PATTERN_REPEAT", "15");
    ScopedEnv patternSize("ZEF_VALIDATOR_MAX_PATTERN_SIZE", "16");
    ScopedEnv patternValue("ZEF_VALIDATOR_MAX_PATTERN_VALUE", "17");
    ScopedEnv patternTime("ZEF_VALIDATOR_MAX_PATTERN_TIME", "18");
    ScopedEnv patternMemory("ZEF_VALIDATOR_MAX_PATTERN_MEMORY", "19");
    ScopedEnv patternTotalTime("ZEF_VALIDATOR_MAX_PATTERN_TOTAL_TIME", "20");
    const InputLimits limits = InputLimits::fromEnvironment();
    EXPECT_EQ(11u, limits.maxFileSize);
    EXPECT_EQ(12u, limits.maxDepth);
    EXPECT_EQ(13u, limits.maxEntityExpansion);
    EXPECT_EQ(14u, limits.maxPatternLength);
    EXPECT_EQ(15u, limits.maxPatternRepeat);
    EXPECT_EQ(16u, limits.maxPatternSize);
    EXPECT_EQ(17u, limits.maxPatternValue);
    EXPECT_EQ(18u, limits.maxPatternTime);
    EXPECT_EQ(19u, limits.maxPatternMemory);
    EXPECT_EQ(20u, limits.maxPatternTotalTime);
}

TEST(InputLimitsTest, ValuesThatAreNotPositiveNumbersKeepTheDefault) {
    CleanLimitEnvironment clean;
    for (const char* value : {"", "0", "-5", "+5", " 5", "5 ", "5k", "abc", "0x10", "99999999999999999999999"}) {
        ScopedEnv depth("ZEF_VALIDATOR_MAX_DEPTH", value);
        EXPECT_EQ(10000u, InputLimits::fromEnvironment().maxDepth) << "value '" << value << "'";
    }
}

TEST(InputLimitsTest, HugeValuesAreCappedSoThatSumsCannotOverflow) {
    CleanLimitEnvironment clean;
    ScopedEnv expansion("ZEF_VALIDATOR_MAX_ENTITY_EXPANSION", "18446744073709551615");
    EXPECT_EQ(4611686018427387904u, InputLimits::fromEnvironment().maxEntityExpansion);
}

} // namespace
