// Pattern checks within bounds: what the repository reports for a pattern
// it refuses, and the time budget of the checks.

#include <gtest/gtest.h>

#include <dirent.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "InputLimits.h"
#include "ModelRepository.h"
#include "PatternGuard.h"
#include "ScopedEnv.h"

using ZefModelRepositoryService::InputLimits;
using ZefModelRepositoryService::ModelRepository;
using ZefModelRepositoryService::PatternGuard;

namespace {

using Outcome = PatternGuard::Outcome;

// A fresh standalone repository whose findings a test reads back.
class PatternGuardTest : public ::testing::Test {
protected:
    PatternGuardTest() { repository.setStandalone(true); }

    std::list<std::string> messages() const { return repository.getMessages(); }

    ScopedEnv _value = ScopedEnv::unset("ZEF_VALIDATOR_MAX_PATTERN_VALUE");
    ScopedEnv _time = ScopedEnv::unset("ZEF_VALIDATOR_MAX_PATTERN_TIME");
    ScopedEnv _memory = ScopedEnv::unset("ZEF_VALIDATOR_MAX_PATTERN_MEMORY");
    ScopedEnv _totalTime = ScopedEnv::unset("ZEF_VALIDATOR_MAX_PATTERN_TOTAL_TIME");
    ModelRepository repository;
};

TEST_F(PatternGuardTest, BackReferencePatternIsAnErrorAndNoMatch) {
    // This pattern crashes the regex engine when it is compiled.
    EXPECT_FALSE(repository.doRegexp("(|)(\\1\\1)*", "x"));
    EXPECT_EQ((std::list<std::string>{"ERROR, ModelRepository: Failed to compile posix regular expression "
                                      "\"(|)(\\1\\1)*\" - got error back-references (\\1 to \\9) are not supported"}),
              messages());
}

TEST_F(PatternGuardTest, LongPatternIsAnErrorAndNoMatch) {
    const std::string pattern(3000, 'a');
    EXPECT_FALSE(repository.doRegexp(pattern, pattern));
    EXPECT_EQ((std::list<std::string>{"ERROR, ModelRepository: Failed to compile posix regular expression \"" +
                                      pattern + "\" - got error pattern longer than 2048 characters"}),
              messages());
}

TEST_F(PatternGuardTest, LargeRepetitionBoundIsAnErrorAndNoMatch) {
    EXPECT_FALSE(repository.doRegexp("^a{0,5000}$", "aaa"));
    EXPECT_EQ((std::list<std::string>{"ERROR, ModelRepository: Failed to compile posix regular expression "
                                      "\"^a{0,5000}$\" - got error repetition bound 5000 is larger than 255"}),
              messages());
}

TEST_F(PatternGuardTest, NestedBoundsThatWouldTakeGigabytesAreAnErrorAndNoMatch) {
    const std::string pattern = "((((a{0,255}){0,255}){0,255}){0,255})";
    EXPECT_FALSE(repository.doRegexp(pattern, "a"));
    EXPECT_EQ((std::list<std::string>{"ERROR, ModelRepository: Failed to compile posix regular expression \"" +
                                      pattern +
                                      "\" - got error pattern too complex: its repetitions expand to more than "
                                      "2000 regex nodes"}),
              messages());
}

TEST_F(PatternGuardTest, LongValueIsAnErrorAndNoMatch) {
    ScopedEnv value("ZEF_VALIDATOR_MAX_PATTERN_VALUE", "8");
    ModelRepository limited;
    limited.setStandalone(true);
    EXPECT_TRUE(limited.doRegexp("^a+$", "aaaaaaaa"));
    EXPECT_FALSE(limited.doRegexp("^a+$", "aaaaaaaaa"));
    EXPECT_EQ((std::list<std::string>{"ERROR, ModelRepository: Failed to compile posix regular expression "
                                      "\"^a+$\" - got error value longer than 8 characters is not matched"}),
              limited.getMessages());
}

TEST_F(PatternGuardTest, EnginesOwnCompileErrorIsStillReported) {
    EXPECT_FALSE(repository.doRegexp("a{2,1}", "aa"));
    EXPECT_EQ((std::list<std::string>{"ERROR, ModelRepository: Failed to compile posix regular expression "
                                      "\"a{2,1}\" - got error Invalid content of \\{\\}"}),
              messages());
}

TEST_F(PatternGuardTest, PatternsWithinTheLimitsMatchAsBefore) {
    EXPECT_TRUE(repository.doRegexp("^[a-z]{1,255}$", std::string(255, 'q')));
    EXPECT_FALSE(repository.doRegexp("^[a-z]{1,255}$", std::string(256, 'q')));
    EXPECT_TRUE(repository.doRegexp("^((a|aa){0,10}){0,10}$", std::string(50, 'a')));
    EXPECT_TRUE(messages().empty());
}

TEST(PatternGuardDirectTest, OutcomesAndReasons) {
    PatternGuard guard{InputLimits()};
    EXPECT_EQ(Outcome::Match, guard.match("b+", "abba").outcome);
    EXPECT_EQ(Outcome::NoMatch, guard.match("^b+$", "abba").outcome);
    const PatternGuard::Result refused = guard.match("(a)\\1", "aa");
    EXPECT_EQ(Outcome::Refused, refused.outcome);
    EXPECT_EQ("back-references (\\1 to \\9) are not supported", refused.reason);
    EXPECT_EQ("Unmatched ( or \\(", guard.match("(", "").reason);
}

TEST(PatternGuardDirectTest, WorstPatternWithinTheLimitsTakesWellUnderASecond) {
    // Among the slowest patterns the limits let through, on the longest value.
    PatternGuard guard{InputLimits()};
    const std::string value(4096, 'a');
    for (const char* pattern : {"(a|aa){0,255}c", "((a|aa){0,16}){0,16}c", "(([a-b]|[a-c]a?){0,15}){0,15}c"}) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(Outcome::NoMatch, guard.match(pattern, value).outcome) << pattern;
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2)) << pattern;
    }
}

TEST(PatternGuardDirectTest, ChecksBeyondTheTotalTimeAreRefused) {
    InputLimits limits;
    limits.maxPatternTotalTime = 1;
    PatternGuard guard{limits};
    const std::string value(4000, 'a');
    const auto start = std::chrono::steady_clock::now();
    PatternGuard::Result result{Outcome::NoMatch, ""};
    int checks = 0;
    while (result.outcome != Outcome::Refused && checks < 1000) {
        result = guard.match("((a|aa){0,16}){0,16}c", value + std::to_string(checks));
        ++checks;
    }
    EXPECT_EQ(Outcome::Refused, result.outcome);
    EXPECT_EQ("pattern checks took longer than 1 s in total", result.reason);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    // Cheap checks are refused too once the time is used up; a new model
    // starts afresh.
    EXPECT_EQ(Outcome::Refused, guard.match("a", "a").outcome);
    guard.clear();
    EXPECT_EQ(Outcome::Match, guard.match("a", "a").outcome);
}

// A value on which the engine builds an automaton of millions of states for
// a pattern that looks small. The checker grows by hundreds of MB a second
// meanwhile: the time limits below are short, so that the time limit and
// not the memory limit ends the check, also on a much faster machine.
std::string randomAbText(size_t length) {
    std::string text;
    unsigned int state = 1;
    for (size_t i = 0; i < length; ++i) {
        state = state * 1103515245u + 12345u;
        text += (state >> 16) % 2 == 0 ? 'a' : 'b';
    }
    return text;
}

TEST(PatternGuardDirectTest, CheckThatTakesTooLongIsRefused) {
    InputLimits limits;
    limits.maxPatternTime = 100;
    PatternGuard guard{limits};
    const auto start = std::chrono::steady_clock::now();
    const PatternGuard::Result result = guard.match("(a|b)*a(a|b){80}c", randomAbText(4096));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    EXPECT_EQ(Outcome::Refused, result.outcome);
    EXPECT_EQ("pattern check took longer than 100 ms", result.reason);
    // The next check gets a new checker.
    EXPECT_EQ(Outcome::Match, guard.match("^a+$", "aaa").outcome);
}

TEST(PatternGuardDirectTest, CheckThatGrowsTooLargeIsRefused) {
    InputLimits limits;
    limits.maxPatternTime = 60000;
    limits.maxPatternMemory = 16;
    PatternGuard guard{limits};
    const auto start = std::chrono::steady_clock::now();
    const PatternGuard::Result result = guard.match("(a|b)*a(a|b){80}c", randomAbText(4096));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_EQ(Outcome::Refused, result.outcome);
    EXPECT_EQ("pattern check needed more than 16 MiB", result.reason);
    EXPECT_EQ(Outcome::NoMatch, guard.match("^a+$", "b").outcome);
}

TEST(PatternGuardDirectTest, RepeatedPairIsCheckedOnce) {
    InputLimits limits;
    limits.maxPatternTime = 100;
    PatternGuard guard{limits};
    const std::string value = randomAbText(4096);
    EXPECT_EQ("pattern check took longer than 100 ms", guard.match("(a|b)*a(a|b){80}c", value).reason);
    EXPECT_EQ(-1, guard.worker().childId());
    // The same pair again: the kept outcome, without a checker. Checked
    // again, the pair would take the whole time limit once more.
    const auto start = std::chrono::steady_clock::now();
    const PatternGuard::Result again = guard.match("(a|b)*a(a|b){80}c", value);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(100));
    EXPECT_EQ(Outcome::Refused, again.outcome);
    EXPECT_EQ("pattern check took longer than 100 ms", again.reason);
    EXPECT_EQ(-1, guard.worker().childId());
    // Matches are kept as well, and forgotten with the model.
    EXPECT_EQ(Outcome::Match, guard.match("^a+$", "aa").outcome);
    const pid_t checker = guard.worker().childId();
    EXPECT_NE(-1, checker);
    EXPECT_EQ(Outcome::Match, guard.match("^a+$", "aa").outcome);
    EXPECT_EQ(checker, guard.worker().childId());
    guard.clear();
    EXPECT_EQ(-1, guard.worker().childId());
    EXPECT_EQ(Outcome::NoMatch, guard.match("^a+$", "ab").outcome);
}

TEST_F(PatternGuardTest, SlowPatternIsAnErrorAndNoMatch) {
    ScopedEnv time("ZEF_VALIDATOR_MAX_PATTERN_TIME", "100");
    ModelRepository limited;
    limited.setStandalone(true);
    EXPECT_FALSE(limited.doRegexp("(a|b)*a(a|b){80}c", randomAbText(4096)));
    EXPECT_EQ((std::list<std::string>{"ERROR, ModelRepository: Failed to compile posix regular expression "
                                      "\"(a|b)*a(a|b){80}c\" - got error pattern check took longer than 100 ms"}),
              limited.getMessages());
}

// The processes whose parent is this test process.
int childProcesses() {
    int children = 0;
    DIR* proc = opendir("/proc");
    while (proc != nullptr) {
        struct dirent* entry = readdir(proc);
        if (entry == nullptr) {
            break;
        }
        if (entry->d_name[0] < '0' || entry->d_name[0] > '9') {
            continue;
        }
        FILE* stat = std::fopen((std::string("/proc/") + entry->d_name + "/stat").c_str(), "r");
        if (stat == nullptr) {
            continue;
        }
        // pid (name) state ppid: the name may hold blanks, the ppid follows
        // the last ')'.
        char line[1024] = "";
        const bool read = std::fgets(line, sizeof(line), stat) != nullptr;
        std::fclose(stat);
        const char* end = read ? std::strrchr(line, ')') : nullptr;
        char state = 0;
        int parent = 0;
        if (end != nullptr && std::sscanf(end + 1, " %c %d", &state, &parent) == 2 && parent == getpid()) {
            ++children;
        }
    }
    if (proc != nullptr) {
        closedir(proc);
    }
    return children;
}

TEST_F(PatternGuardTest, ValidationEndsThePatternChecker) {
    // Whatever runs after validation writes to the whole process; a checker
    // child still forked from it would make every such page a copy.
    const int before = childProcesses();
    EXPECT_TRUE(repository.doRegexp("^[0-9]+$", "42"));
    EXPECT_EQ(before + 1, childProcesses());
    repository.validateModel();
    EXPECT_EQ(before, childProcesses());
    EXPECT_EQ((std::list<std::string>{"WARNING, ModelRepository: Empty model compiled."}), messages());
}

TEST_F(PatternGuardTest, PreparedCheckerServesTheChecks) {
    const int before = childProcesses();
    repository.preparePatternChecks();
    EXPECT_EQ(before + 1, childProcesses());
    EXPECT_TRUE(repository.doRegexp("^[0-9]+$", "42"));
    EXPECT_FALSE(repository.doRegexp("^[0-9]+$", "4x2"));
    EXPECT_EQ(before + 1, childProcesses());
    EXPECT_TRUE(messages().empty());
}

} // namespace
