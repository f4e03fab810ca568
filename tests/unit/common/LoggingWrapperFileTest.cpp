// The log file is opened safely and rotation touches only its own numbered
// files: nothing planted at the log's name, and no input of the run, is ever
// written into, renamed or deleted.

#include "LoggingWrapper.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
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

/// Lowers the file size limit of the test process to `bytes` and ignores
/// SIGXFSZ, as the validator does, so that a write past the limit fails
/// with EFBIG; both are restored at the end of the scope. Meanwhile only the
/// log file and the captured standard error are written, the latter far
/// below the limit.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        _savedHandler = std::signal(SIGXFSZ, SIG_IGN);
        _saved.rlim_cur = _saved.rlim_max = RLIM_INFINITY;
        struct rlimit limit;
        _set = getrlimit(RLIMIT_FSIZE, &_saved) == 0 && bytes <= _saved.rlim_max;
        if (_set) {
            limit = _saved;
            limit.rlim_cur = bytes;
            _set = setrlimit(RLIMIT_FSIZE, &limit) == 0;
        }
    }
    ~FileSizeLimit() {
        if (_set)
            setrlimit(RLIMIT_FSIZE, &_saved);
        std::signal(SIGXFSZ, _savedHandler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

    bool isSet() const { return _set; }

private:
    struct rlimit _saved;
    void (*_savedHandler)(int);
    bool _set = false;
};

// A log file that has reached the file size limit.
const size_t kFullLogSize = 4096;

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

// ---- writes that fail -----------------------------------------------------------------------

TEST_F(LoggingWrapperFileTest, FailedWriteIsReportedOnceAndLinesGoToStandardError) {
    const std::string old(kFullLogSize, 'o');
    scratch.write("zef.log", old);
    std::string err;
    {
        FileSizeLimit limit(kFullLogSize);
        ASSERT_TRUE(limit.isSet());
        CaptureStderr();
        logger()->log_printf("f", 3, 1, "first");
        logger()->log_printf("f", 3, 1, "second");
        logger()->log_printf("f", 3, 1, "third");
        err = GetCapturedStderr();
    }
    const std::string failure = "Failed to write log file " + logPath() + ". Errno: 27: File too large\n";
    ASSERT_EQ(0u, err.find(failure)) << err;
    const std::string lines = err.substr(failure.size());
    const std::string first = "ER f                         first\n";
    const std::string second = "ER f                         second\n";
    const std::string third = "ER f                         third\n";
    ASSERT_EQ(3 * kStampLength + first.size() + second.size() + third.size(), lines.size()) << err;
    EXPECT_EQ(first, lines.substr(kStampLength, first.size()));
    EXPECT_EQ(second, lines.substr(2 * kStampLength + first.size(), second.size()));
    EXPECT_EQ(third, lines.substr(3 * kStampLength + first.size() + second.size()));
    EXPECT_FALSE(LoggingWrapperTestAccess::hasOpenFile());
    EXPECT_EQ(old, ScratchDir::read(logPath()));
}

TEST_F(LoggingWrapperFileTest, BufferedTracesThatCannotBeWrittenAreReportedAtClose) {
    const std::string old(kFullLogSize, 'o');
    scratch.write("zef.log", old);
    std::string err;
    {
        FileSizeLimit limit(kFullLogSize);
        ASSERT_TRUE(limit.isSet());
        // Capturing flushes every stream, so it starts before the trace
        // line is buffered.
        CaptureStderr();
        logger()->trace_printf("t.cpp", "f", 1, 8, 0, "%s", "buffered");
        LoggingWrapperTestAccess::release();
        err = GetCapturedStderr();
    }
    EXPECT_EQ("Failed to write log file " + logPath() + ". Errno: 27: File too large\n", err);
    EXPECT_EQ(old, ScratchDir::read(logPath()));
}

TEST_F(LoggingWrapperFileTest, AnotherLogFileIsWrittenAfterAFailedWrite) {
    scratch.write("zef.log", std::string(kFullLogSize, 'o'));
    {
        FileSizeLimit limit(kFullLogSize);
        ASSERT_TRUE(limit.isSet());
        CaptureStderr();
        logger()->log_printf("f", 3, 1, "lost");
        logger()->set_fname(scratch.file("other.log"));
        logger()->log_printf("f", 3, 1, "kept");
        GetCapturedStderr();
    }
    LoggingWrapperTestAccess::flush();
    const std::vector<std::string> lines = ScratchDir::lines(scratch.file("other.log"));
    ASSERT_EQ(1u, lines.size());
    EXPECT_EQ("ER f                         kept", lines[0].substr(kStampLength));
}

TEST_F(LoggingWrapperFileTest, FailureMetByAFlushOfEveryStreamIsReportedAtClose) {
    scratch.write("zef.log", std::string(kFullLogSize, 'o'));
    std::string err;
    {
        FileSizeLimit limit(kFullLogSize);
        ASSERT_TRUE(limit.isSet());
        CaptureStderr();
        logger()->trace_printf("t.cpp", "f", 1, 8, 0, "%s", "buffered");
        std::fflush(nullptr);
        LoggingWrapperTestAccess::release();
        err = GetCapturedStderr();
    }
    EXPECT_EQ("Failed to write log file " + logPath() + ". Errno: 5: Input/output error\n", err);
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
