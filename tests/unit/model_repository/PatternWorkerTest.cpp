// The child process that runs pattern checks: answers, bounds, and its
// replacement after it ended.

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>

#include <chrono>
#include <string>

#include "PatternWorker.h"

using ZefModelRepositoryService::PatternWorker;

namespace {

using Outcome = PatternWorker::Outcome;


TEST(PatternWorkerTest, StartsOnTheFirstCheckAndAnswers) {
    PatternWorker checker(std::chrono::milliseconds(5000), 256u << 20);
    EXPECT_EQ(-1, checker.childId());
    EXPECT_EQ(Outcome::Match, checker.check("[0-9]+", "ab12").outcome);
    EXPECT_NE(-1, checker.childId());
    EXPECT_EQ(Outcome::NoMatch, checker.check("^[0-9]+$", "ab12").outcome);
    const PatternWorker::Reply error = checker.check("(", "(");
    EXPECT_EQ(Outcome::CompileError, error.outcome);
    EXPECT_EQ("Unmatched ( or \\(", error.text);
}

TEST(PatternWorkerTest, OneChildServesEveryCheck) {
    PatternWorker checker(std::chrono::milliseconds(5000), 256u << 20);
    checker.check("a", "a");
    const pid_t child = checker.childId();
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(Outcome::Match, checker.check("^x" + std::to_string(i) + "$", "x" + std::to_string(i)).outcome);
    }
    EXPECT_EQ(child, checker.childId());
}

TEST(PatternWorkerTest, ValuesAndPatternsAreSentWhole) {
    PatternWorker checker(std::chrono::milliseconds(5000), 256u << 20);
    const std::string value(100000, 'z');
    EXPECT_EQ(Outcome::Match, checker.check("^z+$", value).outcome);
    EXPECT_EQ(Outcome::NoMatch, checker.check("^z+$", value + "y").outcome);
}

TEST(PatternWorkerTest, ChildThatDiedIsReportedAndReplaced) {
    PatternWorker checker(std::chrono::milliseconds(5000), 256u << 20);
    checker.check("a", "a");
    const pid_t child = checker.childId();
    ASSERT_EQ(0, kill(child, SIGKILL));
    // The validator learns of it at the next check.
    const PatternWorker::Reply reply = checker.check("a", "a");
    EXPECT_EQ(Outcome::Failed, reply.outcome);
    EXPECT_TRUE(reply.text == "the pattern checker ended (signal 9)" ||
                reply.text == "the regex engine ended abnormally (signal 9)")
        << reply.text;
    EXPECT_EQ(Outcome::Match, checker.check("a", "a").outcome);
    EXPECT_NE(child, checker.childId());
}

TEST(PatternWorkerTest, StopEndsTheChild) {
    PatternWorker checker(std::chrono::milliseconds(5000), 256u << 20);
    checker.check("a", "a");
    const pid_t child = checker.childId();
    checker.stop();
    EXPECT_EQ(-1, checker.childId());
    // Collected: no such process is left.
    EXPECT_EQ(-1, waitpid(child, nullptr, WNOHANG));
    EXPECT_EQ(Outcome::Match, checker.check("a", "a").outcome);
}

TEST(PatternWorkerTest, EndlessCheckIsEndedAtTheTimeLimit) {
    PatternWorker checker(std::chrono::milliseconds(100), 256u << 20);
    // On a value without pattern the engine builds a new automaton state
    // at nearly every character.
    std::string text;
    unsigned int state = 1;
    for (int i = 0; i < 4096; ++i) {
        state = state * 1103515245u + 12345u;
        text += (state >> 16) % 2 == 0 ? 'a' : 'b';
    }
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(Outcome::TooSlow, checker.check("(a|b)*a(a|b){120}c", text).outcome);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    EXPECT_EQ(-1, checker.childId());
}

} // namespace

TEST(PatternWorkerTest, PrepareStartsTheChildThatServesTheChecks) {
    PatternWorker checker(std::chrono::milliseconds(5000), 256u << 20);
    checker.prepare();
    const pid_t child = checker.childId();
    EXPECT_NE(-1, child);
    // A second prepare keeps the running child.
    checker.prepare();
    EXPECT_EQ(child, checker.childId());
    EXPECT_EQ(Outcome::Match, checker.check("^[a-z]+$", "abc").outcome);
    EXPECT_EQ(child, checker.childId());
    checker.stop();
    EXPECT_EQ(-1, checker.childId());
}
