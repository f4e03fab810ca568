// The log file is opened safely and rotation touches only its own numbered
// files: nothing planted at the log's name, and no input of the run, is ever
// written into, renamed or deleted.

#include "LoggingWrapper.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <string>
#include <vector>

#include "LoggingWrapperTestAccess.h"
#include "ScratchDir.h"

using Zef::LoggingWrapper;
using Zef::LoggingWrapperTestAccess;
using testing::internal::CaptureStderr;
using testing::internal::GetCapturedStderr;

namespace {

LoggingWrapper* logger() { return LoggingWrapper::instance(); }

// "YYYY-MM-DD hh:mm:ss.mmm " in front of every line.
const size_t kStampLength = 24;

class LoggingWrapperFileTest : public ::testing::Test {
protected:
    void SetUp() override { LoggingWrapperTestAccess::useDirectory(scratch.path()); }
    void TearDown() override { LoggingWrapperTestAccess::release(); }

    std::string logPath() const { return scratch.file("zef.log"); }

    /// Writes one error line and returns what went to standard error.
    static std::string logAndCaptureStderr(const char* message) {
        CaptureStderr();
        logger()->log_printf("f", 3, 1, "%s", message);
        return GetCapturedStderr();
    }

    /// The message of a log line on standard error after its first
    /// `prefixLength` characters and the time stamp.
    static std::string lineAfter(const std::string& err, size_t prefixLength) {
        return err.size() > prefixLength + kStampLength ? err.substr(prefixLength + kStampLength) : std::string();
    }

    ScratchDir scratch{"logfile"};
};

// ---- opening ------------------------------------------------------------------------------

TEST_F(LoggingWrapperFileTest, SymbolicLinkAtTheLogNameIsNotFollowed) {
    scratch.write("victim.txt", "precious\n");
    ASSERT_EQ(0, symlink(scratch.file("victim.txt").c_str(), logPath().c_str()));
    const std::string err = logAndCaptureStderr("planted");
    const std::string failure = "Failed to open log file!: Too many levels of symbolic links\n";
    ASSERT_EQ(0u, err.find(failure)) << err;
    EXPECT_EQ("ER f                         planted\n", lineAfter(err, failure.size()));
    EXPECT_EQ("precious\n", ScratchDir::read(scratch.file("victim.txt")));
}

TEST_F(LoggingWrapperFileTest, DanglingSymbolicLinkAtTheLogNameCreatesNothing) {
    ASSERT_EQ(0, symlink(scratch.file("elsewhere.txt").c_str(), logPath().c_str()));
    logAndCaptureStderr("planted");
    EXPECT_FALSE(ScratchDir::exists(scratch.file("elsewhere.txt")));
}

TEST_F(LoggingWrapperFileTest, FifoAtTheLogNameWithoutReaderNeverBlocks) {
    ASSERT_EQ(0, mkfifo(logPath().c_str(), 0600));
    const auto start = std::chrono::steady_clock::now();
    const std::string err = logAndCaptureStderr("no reader");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
    EXPECT_EQ(0u, err.find("Failed to open log file!: No such device or address\n")) << err;
}

TEST_F(LoggingWrapperFileTest, FifoAtTheLogNameWithReaderIsNotWrittenInto) {
    ASSERT_EQ(0, mkfifo(logPath().c_str(), 0600));
    const int reader = open(logPath().c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    const std::string err = logAndCaptureStderr("reader waits");
    char buffer[16];
    EXPECT_EQ(0, read(reader, buffer, sizeof(buffer)));
    close(reader);
    EXPECT_EQ(0u, err.find("Failed to open log file!: " + logPath() + ": not a regular file\n")) << err;
}

TEST_F(LoggingWrapperFileTest, LogNameWithASecondHardLinkIsNotWrittenInto) {
    scratch.write("victim.txt", "precious\n");
    ASSERT_EQ(0, link(scratch.file("victim.txt").c_str(), logPath().c_str()));
    const std::string err = logAndCaptureStderr("linked");
    EXPECT_EQ(0u, err.find("Failed to open log file!: " + logPath() + ": the file has other names (hard links)\n"))
        << err;
    EXPECT_EQ("precious\n", ScratchDir::read(scratch.file("victim.txt")));
}

TEST_F(LoggingWrapperFileTest, NewLogFileIsCreatedForTheOwnerOnly) {
    logger()->log_printf("f", 3, 1, "created");
    struct stat info;
    ASSERT_EQ(0, stat(logPath().c_str(), &info));
    EXPECT_TRUE(S_ISREG(info.st_mode));
    EXPECT_EQ(0u, info.st_mode & 0022);
}

// ---- files the log must not write into ------------------------------------------------------

TEST_F(LoggingWrapperFileTest, RefusingTheActiveFileSendsLaterLinesToStandardError) {
    logger()->log_printf("f", 3, 1, "before");
    CaptureStderr();
    logger()->refuse_file(logPath());
    logger()->log_printf("f", 3, 1, "after");
    const std::string err = GetCapturedStderr();
    const std::string refusal = "Failed to open log file!: " + logPath() + ": the file is an input of this run\n";
    ASSERT_EQ(0u, err.find(refusal + refusal)) << err;
    EXPECT_EQ("ER f                         after\n", lineAfter(err, 2 * refusal.size()));
    const std::vector<std::string> lines = ScratchDir::lines(logPath());
    ASSERT_EQ(1u, lines.size());
    EXPECT_EQ("ER f                         before", lines[0].substr(kStampLength));
}

TEST_F(LoggingWrapperFileTest, RefusedFileIsNotOpenedUnderAnotherName) {
    scratch.write("model.xml", "<models/>\n");
    ASSERT_EQ(0, symlink("model.xml", scratch.file("alias.xml").c_str()));
    logger()->refuse_file(scratch.file("alias.xml"));
    CaptureStderr();
    logger()->set_fname(scratch.path() + "/./model.xml");
    logger()->log_printf("f", 3, 1, "not into the model");
    const std::string err = GetCapturedStderr();
    EXPECT_EQ(0u, err.find("Failed to open log file!: " + scratch.path() +
                           "/./model.xml: the file is an input of this run\n"))
        << err;
    EXPECT_EQ("<models/>\n", ScratchDir::read(scratch.file("model.xml")));
}

TEST_F(LoggingWrapperFileTest, RefusingAnotherFileKeepsTheLog) {
    scratch.write("model.xml", "<models/>\n");
    logger()->log_printf("f", 3, 1, "one");
    CaptureStderr();
    logger()->refuse_file(scratch.file("model.xml"));
    logger()->refuse_file(scratch.file("missing.xml"));
    logger()->log_printf("f", 3, 1, "two");
    EXPECT_EQ("", GetCapturedStderr());
    EXPECT_EQ(2u, ScratchDir::lines(logPath()).size());
}

// ---- rotation --------------------------------------------------------------------------------

TEST_F(LoggingWrapperFileTest, OnlyBaseNameDotDigitsIsAnOldLogFile) {
    const std::vector<std::string> others = {"zef.log-1", "zef.log_2", "zef.logX3", "zef.log~4", "zef.log..5"};
    for (const std::string& name : others)
        scratch.write(name, "keep");
    scratch.write("zef.log.01", "old");
    LoggingWrapperTestAccess::setMaxCount(0);
    scratch.write("zef.log", "active\n");
    logger()->rotateLogs();
    for (const std::string& name : others)
        EXPECT_EQ("keep", ScratchDir::read(scratch.file(name))) << name;
    EXPECT_FALSE(ScratchDir::exists(scratch.file("zef.log.01")));
}

TEST_F(LoggingWrapperFileTest, EmptyBaseNameNeverRenamesOrDeletes) {
    LoggingWrapperTestAccess::useDirectory(scratch.path(), "");
    LoggingWrapperTestAccess::setMaxCount(0);
    const std::vector<std::string> names = {".1", "a.2", "3", "x"};
    for (const std::string& name : names)
        scratch.write(name, "keep");
    logger()->rotateLogs();
    EXPECT_EQ(names.size(), scratch.entries().size());
    for (const std::string& name : names)
        EXPECT_EQ("keep", ScratchDir::read(scratch.file(name))) << name;
}

TEST_F(LoggingWrapperFileTest, LogPathEndingInASlashIsNotOpenedNorRotated) {
    ASSERT_EQ(0, mkdir(scratch.file("logs").c_str(), 0700));
    scratch.write("logs/.1", "keep");
    CaptureStderr();
    logger()->set_fname(scratch.file("logs/"));
    logger()->set_max_size(1);
    logger()->log_printf("f", 3, 1, "one");
    logger()->log_printf("f", 3, 1, "two");
    const std::string err = GetCapturedStderr();
    EXPECT_EQ(0u, err.find("Failed to open log file!: Is a directory\n")) << err;
    EXPECT_EQ("keep", ScratchDir::read(scratch.file("logs/.1")));
}

TEST_F(LoggingWrapperFileTest, MaxCountZeroDeletesEveryOldFileAndRenamesNothing) {
    scratch.write("zef.log.2", "two");
    scratch.write("zef.log.7", "seven");
    scratch.write("zef.log", "active\n");
    LoggingWrapperTestAccess::setMaxCount(0);
    logger()->rotateLogs();
    EXPECT_TRUE(scratch.entries().empty());
}

TEST_F(LoggingWrapperFileTest, SymbolicLinkAsNumberedFileIsReplacedNotItsTarget) {
    scratch.write("victim.txt", "precious\n");
    ASSERT_EQ(0, symlink(scratch.file("victim.txt").c_str(), scratch.file("zef.log.1").c_str()));
    scratch.write("zef.log", "active\n");
    logger()->rotateLogs();
    EXPECT_EQ("precious\n", ScratchDir::read(scratch.file("victim.txt")));
    struct stat info;
    ASSERT_EQ(0, lstat(scratch.file("zef.log.1").c_str(), &info));
    EXPECT_TRUE(S_ISREG(info.st_mode));
    EXPECT_EQ("active\n", ScratchDir::read(scratch.file("zef.log.1")));
}

} // namespace
