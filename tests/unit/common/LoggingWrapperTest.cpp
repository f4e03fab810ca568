#include "LoggingWrapper.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "LoggingWrapperTestAccess.h"
#include "ScopedEnv.h"
#include "ScratchDir.h"
#include "TextPattern.h"
#include "ZefException.h"
#include "ZefLog.h"

using Zef::LoggingWrapper;
using Zef::LoggingWrapperTestAccess;
using testing::internal::CaptureStderr;
using testing::internal::GetCapturedStderr;

namespace {

LoggingWrapper* logger() { return LoggingWrapper::instance(); }

// "YYYY-MM-DD hh:mm:ss.mmm " in front of every line written to the file.
const size_t kStampLength = 24;

// ---- Test doubles of the management framework's interfaces ----

// Whether the logger's lock is free while it calls out: get_fname() takes
// the error-checking lock, which throws on the thread that still holds it.
bool loggerLockIsFree() {
    try {
        logger()->get_fname();
        return true;
    } catch (const Zef::ZefInternalErrorException&) {
        return false;
    }
}

struct LogCall {
    int version;
    unsigned int level;
    int facility;
    std::string line;
    bool lockFree;
};
std::vector<LogCall> logCalls;
ZefReturnT logResult = ZefOk;

ZefReturnT recordLog(int version, unsigned int level, int facility, const char* line) {
    logCalls.push_back({version, level, facility, line, loggerLockIsFree()});
    return logResult;
}

ZefMwSpiLog_1 logSpi = {{"testFramework", "ZefMwSpiLog", "1"}, recordLog};

struct Trace1Call {
    std::string kind;
    unsigned int level;
    std::string line;
    bool lockFree;
};
std::vector<Trace1Call> trace1Calls;

void recordEnter(const char* line) { trace1Calls.push_back({"enter", 0, line, loggerLockIsFree()}); }
void recordLeave(const char* line) { trace1Calls.push_back({"leave", 0, line, loggerLockIsFree()}); }
void recordPrint(unsigned int level, const char* line) {
    trace1Calls.push_back({"print", level, line, loggerLockIsFree()});
}

ZefMwSpiTrace_1 trace1Spi = {{"testFramework", "ZefMwSpiTrace", "1"}, recordEnter, recordLeave, recordPrint};

std::vector<std::string> registeredNames;
std::set<std::string> refusedNames;

ZefReturnT recordRegister(const char* name, ZefMwSpiTraceSubsystemHandle_2T* handle) {
    registeredNames.push_back(name);
    if (refusedNames.count(name) != 0)
        return ZefFailure;
    *handle = static_cast<ZefMwSpiTraceSubsystemHandle_2T>(100 + registeredNames.size());
    return ZefOk;
}

struct Trace2Call {
    ZefMwSpiTraceSubsystemHandle_2T subsystem;
    ZefMwSpiTraceLevelT level;
    std::string file;
    std::string function;
    unsigned int line;
    std::string message;
};
std::vector<Trace2Call> trace2Calls;

void recordPrint2(ZefMwSpiTraceSubsystemHandle_2T subsystem, ZefMwSpiTraceLevelT level, const char* file,
                  const char* function, unsigned int line, const char* format, va_list args) {
    char message[256];
    std::vsnprintf(message, sizeof(message), format, args);
    trace2Calls.push_back({subsystem, level, file, function, line, message});
}

ZefMwSpiTrace_2 trace2Spi = {{"testFramework", "ZefMwSpiTrace", "2"}, recordRegister, recordPrint2};

ZefMgmtSpiInterface_1 trace3Spi = {"testFramework", "ZefMwSpiTrace", "3"};

ZefMgmtSpiInterface_1* asInterface(void* spi) { return static_cast<ZefMgmtSpiInterface_1*>(spi); }

// ---- Fixture ----

class LoggingWrapperTest : public ::testing::Test {
protected:
    void SetUp() override {
        logCalls.clear();
        trace1Calls.clear();
        trace2Calls.clear();
        registeredNames.clear();
        refusedNames.clear();
        logResult = ZefOk;
        LoggingWrapperTestAccess::useDirectory(scratch.path());
    }

    void TearDown() override { LoggingWrapperTestAccess::release(); }

    std::string logPath() const { return scratch.file("zef.log"); }

    /// The lines of the active log file, with buffered traces written out first.
    std::vector<std::string> logLines() const {
        LoggingWrapperTestAccess::flush();
        return ScratchDir::lines(logPath());
    }

    /// A line without its time stamp; fails the test when the stamp is malformed.
    static std::string withoutStamp(const std::string& line) {
        EXPECT_TRUE(matchesPattern(line.substr(0, kStampLength), std::string(timeStampPattern()) + " ")) << line;
        return line.size() >= kStampLength ? line.substr(kStampLength) : std::string();
    }

    /// Numbers of the files zef.log.<n> in the scratch folder, ascending.
    std::vector<int> numberedFiles() const {
        std::vector<int> numbers;
        const std::string prefix = "zef.log.";
        for (const std::string& name : scratch.entries())
            if (matchesPattern(name, "zef\\.log\\.[0-9]+"))
                numbers.push_back(std::stoi(name.substr(prefix.size())));
        std::sort(numbers.begin(), numbers.end());
        return numbers;
    }

    /// Writes raw lines "seq NNNNNN" (11 bytes with the newline) from `from` to `to`.
    static void writeSequence(int from, int to) {
        for (int i = from; i <= to; ++i)
            logger()->log_printf("seq", 6, 13, "seq %06d", i);
    }

    static std::string sequenceLine(int i) {
        char text[16];
        std::snprintf(text, sizeof(text), "seq %06d", i);
        return text;
    }

    /// Lines "seq <from>" ... "seq <to>".
    static std::vector<std::string> sequence(int from, int to) {
        std::vector<std::string> lines;
        for (int i = from; i <= to; ++i)
            lines.push_back(sequenceLine(i));
        return lines;
    }

    ScratchDir scratch{"logging"};
};

// A log line from a named function, for the macro tests.
void reportBrokenModel() { ZEF_LOG_ERROR("model %s is broken", "Lm"); }
void warnAboutModel() { ZEF_LOG_WARNING("model %s looks odd", "Lm"); }

} // namespace

// ---- Free helpers ----

TEST(LoggingWrapperHelpersTest, LevelWords) {
    EXPECT_STREQ("EM", Zef::_get_level_str(0));
    EXPECT_STREQ("AL", Zef::_get_level_str(1));
    EXPECT_STREQ("CR", Zef::_get_level_str(2));
    EXPECT_STREQ("ER", Zef::_get_level_str(3));
    EXPECT_STREQ("WA", Zef::_get_level_str(4));
    EXPECT_STREQ("NO", Zef::_get_level_str(5));
    EXPECT_STREQ("IN", Zef::_get_level_str(6));
    EXPECT_STREQ("TR", Zef::_get_level_str(7));
    EXPECT_STREQ("TR", Zef::_get_level_str(8));
    EXPECT_STREQ("TR", Zef::_get_level_str(4000000000u));
}

TEST(LoggingWrapperHelpersTest, TimeStampIsLocalTimeWithMilliseconds) {
    char text[24];
    const time_t before = time(nullptr);
    Zef::fill_in_time_str(text, sizeof(text));
    const time_t after = time(nullptr);
    ASSERT_TRUE(matchesPattern(text, timeStampPattern())) << text;

    struct tm parts = {};
    int millis = 0;
    ASSERT_EQ(7, std::sscanf(text, "%d-%d-%d %d:%d:%d.%d", &parts.tm_year, &parts.tm_mon, &parts.tm_mday,
                             &parts.tm_hour, &parts.tm_min, &parts.tm_sec, &millis));
    parts.tm_year -= 1900;
    parts.tm_mon -= 1;
    parts.tm_isdst = -1;
    const time_t stamped = mktime(&parts);
    EXPECT_GE(stamped, before);
    EXPECT_LE(stamped, after);
}

TEST(LoggingWrapperHelpersTest, TimeStampsFollowEachOther) {
    char first[24];
    char second[24];
    Zef::fill_in_time_str(first, sizeof(first));
    usleep(3000);
    Zef::fill_in_time_str(second, sizeof(second));
    EXPECT_LT(std::string(first), std::string(second));
}

TEST(LoggingWrapperHelpersTest, TimeStampIsCutToTheBuffer) {
    char text[11];
    Zef::fill_in_time_str(text, sizeof(text));
    EXPECT_TRUE(matchesPattern(text, "[0-9]{4}-[0-9]{2}-[0-9]{2}")) << text;
}

TEST(LoggingWrapperHelpersTest, PathTail) {
    char buf[65];
    EXPECT_STREQ("MocWrapper.cpp", Zef::path_tail("/src/internal/MocWrapper.cpp", buf, sizeof(buf)));
    EXPECT_STREQ("MocWrapper.cpp", Zef::path_tail("MocWrapper.cpp", buf, sizeof(buf)));
    EXPECT_STREQ("MocWrapper.cpp", Zef::path_tail("   /src/MocWrapper.cpp", buf, sizeof(buf)));
    EXPECT_STREQ("model_repository", Zef::path_tail("/src/model_repository/ /", buf, sizeof(buf)));
    EXPECT_STREQ("dir", Zef::path_tail("dir//", buf, sizeof(buf)));
    EXPECT_STREQ("", Zef::path_tail("/", buf, sizeof(buf)));
    EXPECT_STREQ("", Zef::path_tail("", buf, sizeof(buf)));
    EXPECT_STREQ("", Zef::path_tail("   ", buf, sizeof(buf)));
}

TEST(LoggingWrapperHelpersTest, PathTailKeepsAtMostBufferMinusOneCharacters) {
    char buf[65];
    const std::string longName(100, 'n');
    EXPECT_EQ(std::string(64, 'n'), Zef::path_tail(("/a/" + longName).c_str(), buf, sizeof(buf)));
    char small[5];
    EXPECT_STREQ("File", Zef::path_tail("/x/File.cpp", small, sizeof(small)));
}

// ---- Singleton and constructor ----

TEST_F(LoggingWrapperTest, InstanceIsOneObjectForAllThreads) {
    LoggingWrapper* seen[4] = {};
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([i, &seen] { seen[i] = LoggingWrapper::instance(); });
    for (std::thread& thread : threads)
        thread.join();
    for (LoggingWrapper* wrapper : seen)
        EXPECT_EQ(LoggingWrapper::instance(), wrapper);
}

namespace {

/// Environment of the constructor tests: every logging variable unset and
/// TMPDIR set as given; the instance is freed at the end.
class ConstructedWrapper {
public:
    explicit ConstructedWrapper(const std::string& tmpDir)
        : _tmpDir("TMPDIR", tmpDir), _fname(ScopedEnv::unset("ZEF_LOGGING_FNAME")),
          _level(ScopedEnv::unset("ZEF_LOGGING_LEVEL")), _count(ScopedEnv::unset("ZEF_LOGGING_FMAXCOUNT")),
          _size(ScopedEnv::unset("ZEF_LOGGING_FMAXSIZE")) {}
    ~ConstructedWrapper() { LoggingWrapperTestAccess::destroy(_wrapper); }

    LoggingWrapper* build() {
        LoggingWrapperTestAccess::destroy(_wrapper);
        _wrapper = LoggingWrapperTestAccess::construct();
        return _wrapper;
    }

private:
    ScopedEnv _tmpDir, _fname, _level, _count, _size;
    LoggingWrapper* _wrapper = nullptr;
};

/// A death-test pattern that matches `text` literally.
std::string literally(const std::string& text) {
    std::string pattern;
    for (char c : text) {
        if (std::strchr(".[]{}()\\*+?^$|", c) != nullptr)
            pattern += '\\';
        pattern += c;
    }
    return pattern;
}

std::string canonical(const std::string& path) {
    char* resolved = realpath(path.c_str(), nullptr);
    std::string result = resolved != nullptr ? resolved : path;
    free(resolved);
    return result;
}

/// A folder the current user cannot write to, or "" when there is none.
std::string unwritableDirectory(const ScratchDir& scratch) {
    const std::string own = scratch.file("read-only");
    mkdir(own.c_str(), 0555);
    chmod(own.c_str(), 0555);
    // The superuser may write anywhere but on read-only file systems.
    for (const std::string& candidate : {own, std::string("/proc/sys"), std::string("/proc/1")}) {
        struct stat info;
        if (stat(candidate.c_str(), &info) == 0 && S_ISDIR(info.st_mode) && access(candidate.c_str(), W_OK) != 0)
            return candidate;
    }
    return "";
}

} // namespace

TEST_F(LoggingWrapperTest, ConstructorDefaultsFollowTmpdir) {
    ConstructedWrapper env(scratch.path());
    LoggingWrapper* wrapper = env.build();
    EXPECT_EQ(scratch.path() + "/zef.log", wrapper->get_fname());
    EXPECT_EQ(scratch.path(), LoggingWrapperTestAccess::directory(wrapper));
    EXPECT_EQ("zef.log", LoggingWrapperTestAccess::baseName(wrapper));
    EXPECT_EQ(6u, wrapper->get_level());
    EXPECT_EQ(5242880u, LoggingWrapperTestAccess::maxSize(wrapper));
    EXPECT_EQ(5u, LoggingWrapperTestAccess::maxCount(wrapper));
    EXPECT_EQ(1, LoggingWrapperTestAccess::firstIndex(wrapper));
    EXPECT_EQ(999999, LoggingWrapperTestAccess::lastIndex(wrapper));
    // Nothing is written before the first line.
    EXPECT_FALSE(ScratchDir::exists(scratch.file("zef.log")));
}

TEST_F(LoggingWrapperTest, ConstructorUsesTmpWithoutTmpdir) {
    ConstructedWrapper env(scratch.path());
    ScopedEnv noTmpDir = ScopedEnv::unset("TMPDIR");
    LoggingWrapper* wrapper = env.build();
    EXPECT_EQ("/tmp/zef.log", wrapper->get_fname());
    EXPECT_EQ("/tmp", LoggingWrapperTestAccess::directory(wrapper));
}

TEST_F(LoggingWrapperTest, FnameWithSlashSetsDirectoryBaseNameAndFileName) {
    ConstructedWrapper env(scratch.path());
    mkdir(scratch.file("sub").c_str(), 0755);
    const std::string value = scratch.path() + "/sub/../my.log";
    ScopedEnv fname("ZEF_LOGGING_FNAME", value);
    LoggingWrapper* wrapper = env.build();
    EXPECT_EQ(value, wrapper->get_fname());
    EXPECT_EQ(canonical(scratch.path()), LoggingWrapperTestAccess::directory(wrapper));
    EXPECT_EQ("my.log", LoggingWrapperTestAccess::baseName(wrapper));
}

TEST_F(LoggingWrapperTest, FnameDirectoryThatDoesNotResolveIsKeptAsWritten) {
    ConstructedWrapper env(scratch.path());
    ScopedEnv fname("ZEF_LOGGING_FNAME", "/no/such/folder/app.log");
    LoggingWrapper* wrapper = env.build();
    EXPECT_EQ("/no/such/folder/app.log", wrapper->get_fname());
    EXPECT_EQ("/no/such/folder/", LoggingWrapperTestAccess::directory(wrapper));
    EXPECT_EQ("app.log", LoggingWrapperTestAccess::baseName(wrapper));
}

TEST_F(LoggingWrapperTest, BareFnameWithoutSlashIsIgnored) {
    ConstructedWrapper env(scratch.path());
    ScopedEnv fname("ZEF_LOGGING_FNAME", "bare.log");
    LoggingWrapper* wrapper = env.build();
    EXPECT_EQ(scratch.path() + "/zef.log", wrapper->get_fname());
    EXPECT_EQ(scratch.path(), LoggingWrapperTestAccess::directory(wrapper));
    EXPECT_EQ("zef.log", LoggingWrapperTestAccess::baseName(wrapper));
}

TEST_F(LoggingWrapperTest, EmptyFnameIsIgnored) {
    ConstructedWrapper env(scratch.path());
    ScopedEnv fname("ZEF_LOGGING_FNAME", "");
    LoggingWrapper* wrapper = env.build();
    EXPECT_EQ(scratch.path() + "/zef.log", wrapper->get_fname());
    EXPECT_EQ("zef.log", LoggingWrapperTestAccess::baseName(wrapper));
}

TEST_F(LoggingWrapperTest, LevelCountAndSizeFromEnvironment) {
    ConstructedWrapper env(scratch.path());
    ScopedEnv level("ZEF_LOGGING_LEVEL", "8");
    ScopedEnv count("ZEF_LOGGING_FMAXCOUNT", "12");
    ScopedEnv size("ZEF_LOGGING_FMAXSIZE", "4096");
    LoggingWrapper* wrapper = env.build();
    EXPECT_EQ(8u, wrapper->get_level());
    EXPECT_EQ(12u, LoggingWrapperTestAccess::maxCount(wrapper));
    EXPECT_EQ(4096u, LoggingWrapperTestAccess::maxSize(wrapper));
}

TEST_F(LoggingWrapperTest, EnvironmentNumbersAreReadLikeStrtol) {
    ConstructedWrapper env(scratch.path());
    ScopedEnv level("ZEF_LOGGING_LEVEL", "3abc");
    ScopedEnv count("ZEF_LOGGING_FMAXCOUNT", "many");
    ScopedEnv size("ZEF_LOGGING_FMAXSIZE", " 1000 bytes");
    LoggingWrapper* wrapper = env.build();
    EXPECT_EQ(3u, wrapper->get_level());
    EXPECT_EQ(0u, LoggingWrapperTestAccess::maxCount(wrapper));
    EXPECT_EQ(1000u, LoggingWrapperTestAccess::maxSize(wrapper));
}

TEST_F(LoggingWrapperTest, MissingDefaultDirectoryAborts) {
    ConstructedWrapper env(scratch.file("missing"));
    const std::string expected = "Logging directory " + scratch.file("missing") + " does not exist, aborting.\n";
    EXPECT_DEATH(env.build(), literally(expected));
}

TEST_F(LoggingWrapperTest, DefaultDirectoryThatIsAFileAborts) {
    scratch.write("plain", "x");
    ConstructedWrapper env(scratch.file("plain"));
    const std::string expected = "Logging directory " + scratch.file("plain") + " does not exist, aborting.\n";
    EXPECT_DEATH(env.build(), literally(expected));
}

TEST_F(LoggingWrapperTest, UnwritableDefaultDirectoryAborts) {
    const std::string dir = unwritableDirectory(scratch);
    if (dir.empty())
        GTEST_SKIP() << "no folder here is closed to writing for this user";
    ConstructedWrapper env(dir);
    const std::string expected = "Logging directory " + dir + " is not writable, aborting.\n";
    EXPECT_DEATH(env.build(), literally(expected));
}

TEST_F(LoggingWrapperTest, DirectoryCheckIsMadeBeforeFnameIsRead) {
    ConstructedWrapper env(scratch.file("missing"));
    ScopedEnv fname("ZEF_LOGGING_FNAME", scratch.file("fine.log"));
    const std::string expected = "Logging directory " + scratch.file("missing") + " does not exist, aborting.\n";
    EXPECT_DEATH(env.build(), literally(expected));
}

TEST_F(LoggingWrapperTest, FnameDirectoryIsNotChecked) {
    ConstructedWrapper env(scratch.path());
    ScopedEnv fname("ZEF_LOGGING_FNAME", scratch.file("missing/app.log"));
    CaptureStderr();
    LoggingWrapper* wrapper = env.build();
    EXPECT_EQ("", GetCapturedStderr());
    EXPECT_EQ(scratch.file("missing/app.log"), wrapper->get_fname());
}

// ---- Log lines ----

TEST_F(LoggingWrapperTest, LogLineFormat) {
    logger()->log_printf("myFunction", 3, 1, "value %d", 7);
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_EQ("ER myFunction                value 7", withoutStamp(lines[0]));
}

TEST_F(LoggingWrapperTest, LogLineOfEveryLevel) {
    for (unsigned int level = 0; level <= 6; ++level)
        logger()->log_printf("f", level, 1, "level %u", level);
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(7u, lines.size());
    EXPECT_EQ("EM f                         level 0", withoutStamp(lines[0]));
    EXPECT_EQ("AL f                         level 1", withoutStamp(lines[1]));
    EXPECT_EQ("CR f                         level 2", withoutStamp(lines[2]));
    EXPECT_EQ("ER f                         level 3", withoutStamp(lines[3]));
    EXPECT_EQ("WA f                         level 4", withoutStamp(lines[4]));
    EXPECT_EQ("NO f                         level 5", withoutStamp(lines[5]));
    EXPECT_EQ("IN f                         level 6", withoutStamp(lines[6]));
}

TEST_F(LoggingWrapperTest, LongFunctionNameIsNotCut) {
    logger()->log_printf("aVeryLongFunctionNameOfThirtyTwo", 4, 1, "x");
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_EQ("WA aVeryLongFunctionNameOfThirtyTwo x", withoutStamp(lines[0]));
}

TEST_F(LoggingWrapperTest, LevelsAboveSixAreDroppedByLogPrintf) {
    logger()->set_level(8);
    logger()->log_printf("f", 7, 1, "seven");
    logger()->log_printf("f", 8, 1, "eight");
    EXPECT_FALSE(ScratchDir::exists(logPath()));
    logger()->log_printf("f", 6, 1, "six");
    EXPECT_EQ(1u, logLines().size());
}

TEST_F(LoggingWrapperTest, MacrosNameTheCallingFunction) {
    reportBrokenModel();
    warnAboutModel();
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(2u, lines.size());
    EXPECT_EQ("ER reportBrokenModel         model Lm is broken", withoutStamp(lines[0]));
    EXPECT_EQ("WA warnAboutModel            model Lm looks odd", withoutStamp(lines[1]));
}

TEST_F(LoggingWrapperTest, LevelTwoSuppressesErrorsInTheLog) {
    logger()->set_level(2);
    reportBrokenModel();
    warnAboutModel();
    EXPECT_FALSE(ScratchDir::exists(logPath()));
}

TEST_F(LoggingWrapperTest, LevelThreeShowsErrorsButNotWarnings) {
    logger()->set_level(3);
    reportBrokenModel();
    warnAboutModel();
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_EQ("ER reportBrokenModel         model Lm is broken", withoutStamp(lines[0]));
}

TEST_F(LoggingWrapperTest, DefaultLevelShowsErrorsAndWarningsButNoTraces) {
    EXPECT_EQ(6u, logger()->get_level());
    reportBrokenModel();
    warnAboutModel();
    ZEF_TRACE("not shown");
    EXPECT_EQ(2u, logLines().size());
}

TEST_F(LoggingWrapperTest, RawFacilityWritesTheMessageAlone) {
    logger()->log_printf("f", 3, 13, "raw %s", "text");
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_EQ("raw text", lines[0]);
}

TEST_F(LoggingWrapperTest, MessageIsCutAt799Characters) {
    const std::string longText(1000, 'm');
    logger()->log_printf("f", 6, 1, "%s", longText.c_str());
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_EQ("IN f                         " + std::string(799, 'm'), withoutStamp(lines[0]));
}

TEST_F(LoggingWrapperTest, LineIsCutAt999Characters) {
    const std::string function(300, 'f');
    logger()->log_printf(function.c_str(), 6, 1, "%s", std::string(1000, 'm').c_str());
    logger()->log_printf("f", 6, 13, "%s", std::string(1500, 'r').c_str());
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(2u, lines.size());
    EXPECT_EQ(999u, lines[0].size());
    EXPECT_EQ("IN " + function + " " + std::string(999 - 24 - 3 - 301, 'm'), withoutStamp(lines[0]));
    EXPECT_EQ(std::string(999, 'r'), lines[1]);
}

TEST_F(LoggingWrapperTest, LinesAreAppendedToAnExistingFile) {
    scratch.write("zef.log", "earlier run\n");
    logger()->log_printf("f", 6, 13, "this run");
    const std::vector<std::string> lines = logLines();
    EXPECT_EQ((std::vector<std::string>{"earlier run", "this run"}), lines);
}

TEST_F(LoggingWrapperTest, LinesFromManyThreadsStayWhole) {
    const int kThreads = 4;
    const int kLines = 500;
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t)
        threads.emplace_back([t] {
            for (int i = 0; i < kLines; ++i)
                logger()->log_printf("worker", 6, 13, "thread %d line %04d %s", t, i, std::string(60, 'w').c_str());
        });
    for (std::thread& thread : threads)
        thread.join();
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(static_cast<size_t>(kThreads * kLines), lines.size());
    for (const std::string& line : lines)
        ASSERT_TRUE(matchesPattern(line, "thread [0-3] line [0-9]{4} w{60}")) << line;
}

// ---- Traces ----

TEST_F(LoggingWrapperTest, TraceLineFormat) {
    logger()->trace_printf("  /src/dir/MyFile.cpp", "myFunction", 42, 8, 0, "hello %s", "world");
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_EQ("TR MyFile.cpp              :42    - myFunction                hello world", withoutStamp(lines[0]));
}

TEST_F(LoggingWrapperTest, LongTraceMessageIsWrittenWhole) {
    const std::string dump(5000, 'd');
    logger()->trace_printf("f.cpp", "dumpModel", 1, 8, 0, "%s", dump.c_str());
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_EQ("TR f.cpp                   :1     - dumpModel                 " + dump, withoutStamp(lines[0]));
}

TEST_F(LoggingWrapperTest, TraceFieldsLongerThanTheirWidthAreNotCut) {
    logger()->trace_printf("/src/AVeryLongSourceFileNameOfThirtyTwo.cpp", "aFunctionWhoseNameIsLongerThan25", 1234567, 8,
                           0, "%d items", 3);
    logger()->trace_printf("f.cpp", "g", -12, 8, 0, "negative");
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(2u, lines.size());
    EXPECT_EQ("TR AVeryLongSourceFileNameOfThirtyTwo.cpp:1234567 - aFunctionWhoseNameIsLongerThan25 3 items",
              withoutStamp(lines[0]));
    EXPECT_EQ("TR f.cpp                   :-12   - g                         negative", withoutStamp(lines[1]));
}

TEST_F(LoggingWrapperTest, TraceOfANullTextWritesNull) {
    const char* volatile nothing = nullptr;
    logger()->trace_printf("f.cpp", "f", 1, 8, 0, "%s", nothing);
    logger()->trace_printf("f.cpp", nullptr, 2, 8, 0, "plain");
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(2u, lines.size());
    EXPECT_EQ("TR f.cpp                   :1     - f                         (null)", withoutStamp(lines[0]));
    EXPECT_EQ("TR f.cpp                   :2     - (null)                    plain", withoutStamp(lines[1]));
}

TEST_F(LoggingWrapperTest, TraceMessageIsCutAt65535Characters) {
    const std::string huge(70000, 'h');
    logger()->trace_printf("f.cpp", "f", 1, 8, 0, "%s", huge.c_str());
    logger()->trace_printf("f.cpp", "f", 2, 8, 0, "<%s>", huge.c_str());
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(2u, lines.size());
    const std::string prefix = "TR f.cpp                   :1     - f                         ";
    EXPECT_EQ(prefix + std::string(65535, 'h'), withoutStamp(lines[0]));
    const std::string second = "TR f.cpp                   :2     - f                         <" + std::string(65534, 'h');
    EXPECT_EQ(second, withoutStamp(lines[1]));
}

TEST_F(LoggingWrapperTest, TraceMessagesOfTextArgumentsAreFormattedAsPrintfDoes) {
    const char* volatile nothing = nullptr;
    logger()->trace_printf("f.cpp", "f", 1, 8, 0, "Found attribute: %s=%s.", "name", "value");
    logger()->trace_printf("f.cpp", "f", 2, 8, 0, "100%% of %s, %s and %s", "a", nothing, "");
    logger()->trace_printf("f.cpp", "f", 3, 8, 0, "%s%s%s", "x", "y", "z");
    logger()->trace_printf("f.cpp", "f", 4, 8, 0, "[%5s|%-3s|%.2s]", "ab", "c", "def");
    logger()->trace_printf("f.cpp", "f", 5, 8, 0, "%s has %u of %s", "m", 7u, "n");
    logger()->trace_printf("f.cpp", "f", 6, 8, 0, "no arguments %%");
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(6u, lines.size());
    const std::string prefix = "TR f.cpp                   :";
    EXPECT_EQ(prefix + "1     - f                         Found attribute: name=value.", withoutStamp(lines[0]));
    EXPECT_EQ(prefix + "2     - f                         100% of a, (null) and ", withoutStamp(lines[1]));
    EXPECT_EQ(prefix + "3     - f                         xyz", withoutStamp(lines[2]));
    EXPECT_EQ(prefix + "4     - f                         [   ab|c  |de]", withoutStamp(lines[3]));
    EXPECT_EQ(prefix + "5     - f                         m has 7 of n", withoutStamp(lines[4]));
    EXPECT_EQ(prefix + "6     - f                         no arguments %", withoutStamp(lines[5]));
}

TEST_F(LoggingWrapperTest, TraceMessageOfTextArgumentsIsCutWhereverTheLimitFalls) {
    // Cut inside the literal text, inside an argument and right after one.
    const std::string head(65530, 'h');
    logger()->trace_printf("f.cpp", "f", 1, 8, 0, "%s ab %s", head.c_str(), "tail");
    logger()->trace_printf("f.cpp", "f", 2, 8, 0, "%s%s", head.c_str(), "0123456789");
    logger()->trace_printf("f.cpp", "f", 3, 8, 0, "%s%s%%", head.c_str(), "12345");
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(3u, lines.size());
    const std::string prefix = "TR f.cpp                   :";
    EXPECT_EQ(prefix + "1     - f                         " + head + " ab t", withoutStamp(lines[0]));
    EXPECT_EQ(prefix + "2     - f                         " + head + "01234", withoutStamp(lines[1]));
    EXPECT_EQ(prefix + "3     - f                         " + head + "12345", withoutStamp(lines[2]));
}

TEST_F(LoggingWrapperTest, TraceKindsWriteTheSameLineToTheFile) {
    logger()->trace_printf("MyFile.cpp", "myFunction", 42, 8, 9, " >> in");
    logger()->trace_printf("MyFile.cpp", "myFunction", 43, 8, 10, " << out");
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(2u, lines.size());
    EXPECT_EQ("TR MyFile.cpp              :42    - myFunction                 >> in", withoutStamp(lines[0]));
    EXPECT_EQ("TR MyFile.cpp              :43    - myFunction                 << out", withoutStamp(lines[1]));
}

TEST_F(LoggingWrapperTest, TraceFileNameIsCutTo64Characters) {
    const std::string file = "/x/" + std::string(80, 'a');
    logger()->trace_printf(file.c_str(), "f", 7, 8, 0, "m");
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_EQ("TR " + std::string(64, 'a') + ":7     - f                         m", withoutStamp(lines[0]));
}

TEST_F(LoggingWrapperTest, TraceIsWrittenOnlyAtLevelEight) {
    logger()->trace_printf("F.cpp", "f", 1, 7, 0, "seven");
    logger()->trace_printf("F.cpp", "f", 1, 9, 0, "nine");
    logger()->trace_printf("F.cpp", "f", 1, 3, 0, "three");
    EXPECT_FALSE(ScratchDir::exists(logPath()));
}

TEST_F(LoggingWrapperTest, TraceMacrosNeedLevelEight) {
    ZEF_TRACE_ENTER(" >> %s", "enter");
    EXPECT_FALSE(ScratchDir::exists(logPath()));
    logger()->set_level(8);
    const int line = __LINE__ + 1;
    ZEF_TRACE_ENTER(" >> %s", "enter");
    ZEF_TRACE_LEAVE(" << %s", "leave");
    ZEF_TRACE("plain");
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(3u, lines.size());
    char expected[200];
    std::snprintf(expected, sizeof(expected), "TR LoggingWrapperTest.cpp  :%-5d - TestBody                   >> enter",
                  line);
    EXPECT_EQ(expected, withoutStamp(lines[0]));
    std::snprintf(expected, sizeof(expected), "TR LoggingWrapperTest.cpp  :%-5d - TestBody                   << leave",
                  line + 1);
    EXPECT_EQ(expected, withoutStamp(lines[1]));
    std::snprintf(expected, sizeof(expected), "TR LoggingWrapperTest.cpp  :%-5d - TestBody                  plain",
                  line + 2);
    EXPECT_EQ(expected, withoutStamp(lines[2]));
}

TEST_F(LoggingWrapperTest, LogAndTraceMacroWritesBoth) {
    logger()->set_level(8);
    ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_WARNING, "odd %d", 1);
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(2u, lines.size());
    EXPECT_EQ("WA TestBody                  odd 1", withoutStamp(lines[0]));
    EXPECT_TRUE(matchesPattern(withoutStamp(lines[1]), "TR LoggingWrapperTest\\.cpp  :[0-9]+ +- TestBody {18}odd 1"))
        << lines[1];
}

// ---- Log interface ----

TEST_F(LoggingWrapperTest, LogInterfaceGetsTheLineWithoutTimeAndLevel) {
    logger()->log_printf("f", 6, 1, "before");
    ASSERT_TRUE(LoggingWrapperTestAccess::hasOpenFile());
    logger()->set_log_spi(asInterface(&logSpi));
    logger()->log_printf("myFunction", 3, 1, "value %d", 7);
    ASSERT_EQ(1u, logCalls.size());
    EXPECT_EQ(1, logCalls[0].version);
    EXPECT_EQ(3u, logCalls[0].level);
    EXPECT_EQ(1, logCalls[0].facility);
    EXPECT_EQ(" myFunction                value 7", logCalls[0].line);
    EXPECT_TRUE(logCalls[0].lockFree);
    EXPECT_FALSE(LoggingWrapperTestAccess::hasOpenFile());
    EXPECT_EQ(1u, logLines().size());
}

TEST_F(LoggingWrapperTest, LogInterfaceGetsRawLinesAsTheyStand) {
    logger()->set_log_spi(asInterface(&logSpi));
    logger()->log_printf("f", 4, 13, "raw %d", 13);
    ASSERT_EQ(1u, logCalls.size());
    EXPECT_EQ("raw 13", logCalls[0].line);
    EXPECT_EQ(13, logCalls[0].facility);
    EXPECT_FALSE(ScratchDir::exists(logPath()));
}

TEST_F(LoggingWrapperTest, LogInterfaceFailureIsReported) {
    logger()->set_log_spi(asInterface(&logSpi));
    logResult = ZefFailure;
    CaptureStderr();
    logger()->log_printf("myFunction", 3, 1, "lost");
    EXPECT_EQ("Failed to write ' myFunction                lost' to log interface!\n", GetCapturedStderr());
}

TEST_F(LoggingWrapperTest, LogInterfaceDoesNotGetLevelsAboveSix) {
    logger()->set_log_spi(asInterface(&logSpi));
    logger()->log_printf("f", 7, 1, "seven");
    EXPECT_TRUE(logCalls.empty());
}

TEST_F(LoggingWrapperTest, DetachingTheLogInterfaceReturnsToTheFile) {
    logger()->set_log_spi(asInterface(&logSpi));
    logger()->log_printf("f", 6, 13, "to interface");
    logger()->set_log_spi(nullptr);
    logger()->log_printf("f", 6, 13, "to file");
    EXPECT_EQ(1u, logCalls.size());
    EXPECT_EQ((std::vector<std::string>{"to file"}), logLines());
}

TEST_F(LoggingWrapperTest, TracesStillGoToTheFileWithOnlyALogInterface) {
    logger()->set_log_spi(asInterface(&logSpi));
    logger()->trace_printf("F.cpp", "f", 1, 8, 0, "trace");
    const std::vector<std::string> lines = logLines();
    ASSERT_EQ(1u, lines.size());
    EXPECT_EQ("TR F.cpp                   :1     - f                         trace", withoutStamp(lines[0]));
}

// ---- Trace interface version 1 ----

TEST_F(LoggingWrapperTest, TraceInterfaceOneGetsEnterLeaveAndPrint) {
    logger()->set_trace_spi(asInterface(&trace1Spi));
    logger()->trace_printf("/src/MyFile.cpp", "myFunction", 42, 8, 9, ">> in");
    logger()->trace_printf("/src/MyFile.cpp", "myFunction", 43, 8, 10, "<< out");
    logger()->trace_printf("/src/MyFile.cpp", "myFunction", 44, 8, 0, "plain %d", 1);
    ASSERT_EQ(3u, trace1Calls.size());
    EXPECT_EQ("enter", trace1Calls[0].kind);
    EXPECT_EQ("MyFile.cpp              :42    - myFunction                >> in", trace1Calls[0].line);
    EXPECT_EQ("leave", trace1Calls[1].kind);
    EXPECT_EQ("MyFile.cpp              :43    - myFunction                << out", trace1Calls[1].line);
    EXPECT_EQ("print", trace1Calls[2].kind);
    EXPECT_EQ(8u, trace1Calls[2].level);
    EXPECT_EQ("MyFile.cpp              :44    - myFunction                plain 1", trace1Calls[2].line);
    for (const Trace1Call& call : trace1Calls)
        EXPECT_TRUE(call.lockFree);
    EXPECT_FALSE(ScratchDir::exists(logPath()));
}

TEST_F(LoggingWrapperTest, TraceInterfaceOneGetsOnlyLevelEight) {
    logger()->set_trace_spi(asInterface(&trace1Spi));
    logger()->trace_printf("F.cpp", "f", 1, 6, 0, "six");
    EXPECT_TRUE(trace1Calls.empty());
}

TEST_F(LoggingWrapperTest, LogLinesStillGoToTheFileWithOnlyATraceInterface) {
    logger()->set_trace_spi(asInterface(&trace1Spi));
    logger()->log_printf("f", 6, 13, "log line");
    EXPECT_EQ((std::vector<std::string>{"log line"}), logLines());
}

// ---- Trace interface version 2 ----

TEST_F(LoggingWrapperTest, TraceInterfaceTwoRegistersElevenSubsystemsInOrder) {
    CaptureStderr();
    logger()->set_trace_spi(asInterface(&trace2Spi));
    EXPECT_EQ("", GetCapturedStderr());
    EXPECT_EQ((std::vector<std::string>{"ZefCommon", "ZefCore", "ZefAc", "ZefCmRouter", "ZefEventRouter",
                                        "ZefModelRepository", "ZefThreadContext", "ZefTransaction", "ZefSession",
                                        "ZefSvs", "ZefOther"}),
              registeredNames);
    // The double hands out 101, 102, ... in registration order.
    EXPECT_EQ(106u, Zef::ZefModelRepositoryTraceHandle);
}

TEST_F(LoggingWrapperTest, FailedRegistrationsAreReportedAndTheRestGoesOn) {
    refusedNames = {"ZefCommon", "ZefCore", "ZefAc", "ZefCmRouter", "ZefEventRouter", "ZefModelRepository",
                    "ZefThreadContext", "ZefTransaction", "ZefSession", "ZefSvs", "ZefOther"};
    CaptureStderr();
    logger()->set_trace_spi(asInterface(&trace2Spi));
    EXPECT_EQ("Could not register ZefCommon subsystem in v2 of trace if\n"
              "Could not register ZefCore subsystem in v2 of trace if\n"
              "Could not register ZefAc subsystem in v2 of trace if\n"
              "Could not register ZefCmRouter subsystem in v2 of trace if\n"
              "Could not register ZefEventRouter subsystem in v2 of trace if\n"
              "Could not register ZefModelRepository subsystem in v2 of trace if\n"
              "Could not register ZefThreadContext subsystem in v2 of trace if\n"
              "Could not register ZefTransactionService subsystem in v2 of trace if\n"
              "Could not register ZefSession subsystem in v2 of trace if\n"
              "Could not register ZefSvs subsystem in v2 of trace if\n"
              "Could not register ZefOther subsystem in v2 of trace if\n",
              GetCapturedStderr());
    EXPECT_EQ(11u, registeredNames.size());
}

TEST_F(LoggingWrapperTest, TransactionRegistrationFailureNamesTheService) {
    refusedNames = {"ZefTransaction"};
    CaptureStderr();
    logger()->set_trace_spi(asInterface(&trace2Spi));
    EXPECT_EQ("Could not register ZefTransactionService subsystem in v2 of trace if\n", GetCapturedStderr());
}

TEST_F(LoggingWrapperTest, TraceInterfaceTwoGetsTraceV2PrintAndTheFileIsClosed) {
    logger()->log_printf("f", 6, 13, "before");
    ASSERT_TRUE(LoggingWrapperTestAccess::hasOpenFile());
    logger()->set_trace_spi(asInterface(&trace2Spi));
    logger()->trace_v2_printf(106, 8, "/src/MyFile.cpp", "myFunction", 42, "value %d of %s", 5, "x");
    ASSERT_EQ(1u, trace2Calls.size());
    EXPECT_EQ(106u, trace2Calls[0].subsystem);
    EXPECT_EQ(8u, trace2Calls[0].level);
    EXPECT_EQ("/src/MyFile.cpp", trace2Calls[0].file);
    EXPECT_EQ("myFunction", trace2Calls[0].function);
    EXPECT_EQ(42u, trace2Calls[0].line);
    EXPECT_EQ("value 5 of x", trace2Calls[0].message);
    EXPECT_FALSE(LoggingWrapperTestAccess::hasOpenFile());
}

TEST_F(LoggingWrapperTest, TracePrintfWritesNothingWithTraceInterfaceTwo) {
    logger()->set_trace_spi(asInterface(&trace2Spi));
    logger()->trace_printf("F.cpp", "f", 1, 8, 0, "not here");
    EXPECT_FALSE(ScratchDir::exists(logPath()));
    EXPECT_TRUE(trace2Calls.empty());
}

TEST_F(LoggingWrapperTest, TraceMacroGoesOnlyToTraceInterfaceTwo) {
    logger()->set_level(8);
    logger()->set_trace_spi(asInterface(&trace2Spi));
    ZEF_TRACE("macro %d", 2);
    ASSERT_EQ(1u, trace2Calls.size());
    EXPECT_EQ(Zef::ZefModelRepositoryTraceHandle, trace2Calls[0].subsystem);
    EXPECT_EQ(8u, trace2Calls[0].level);
    EXPECT_EQ("TestBody", trace2Calls[0].function);
    EXPECT_EQ("macro 2", trace2Calls[0].message);
    EXPECT_FALSE(ScratchDir::exists(logPath()));
}

TEST_F(LoggingWrapperTest, TraceV2PrintfWithoutTraceInterfaceTwoDoesNothing) {
    logger()->log_printf("f", 6, 13, "before");
    logger()->set_trace_spi(asInterface(&trace1Spi));
    logger()->trace_v2_printf(1, 8, "F.cpp", "f", 1, "nothing");
    EXPECT_TRUE(trace2Calls.empty());
    EXPECT_TRUE(trace1Calls.empty());
    EXPECT_TRUE(LoggingWrapperTestAccess::hasOpenFile());
}

TEST_F(LoggingWrapperTest, VersionOneReplacesVersionTwo) {
    logger()->set_trace_spi(asInterface(&trace2Spi));
    logger()->set_trace_spi(asInterface(&trace1Spi));
    logger()->trace_printf("F.cpp", "f", 1, 8, 0, "to one");
    logger()->trace_v2_printf(1, 8, "F.cpp", "f", 1, "to two");
    EXPECT_EQ(1u, trace1Calls.size());
    EXPECT_TRUE(trace2Calls.empty());
}

TEST_F(LoggingWrapperTest, UnsupportedTraceVersionDetachesBoth) {
    logger()->set_trace_spi(asInterface(&trace1Spi));
    CaptureStderr();
    logger()->set_trace_spi(&trace3Spi);
    EXPECT_EQ("Not a supported trace SPI version [3]\n", GetCapturedStderr());
    logger()->trace_printf("F.cpp", "f", 1, 8, 0, "to file");
    EXPECT_TRUE(trace1Calls.empty());
    EXPECT_EQ(1u, logLines().size());
}

TEST_F(LoggingWrapperTest, NullTraceInterfaceDetachesBoth) {
    logger()->set_trace_spi(asInterface(&trace2Spi));
    logger()->set_trace_spi(nullptr);
    logger()->trace_printf("F.cpp", "f", 1, 8, 0, "to file");
    logger()->trace_v2_printf(1, 8, "F.cpp", "f", 1, "nowhere");
    EXPECT_TRUE(trace2Calls.empty());
    EXPECT_EQ(1u, logLines().size());
}

// ---- close() ----

TEST_F(LoggingWrapperTest, LogAfterCloseComplainsAndWritesNothing) {
    logger()->log_printf("f", 6, 13, "before");
    logger()->close();
    EXPECT_TRUE(LoggingWrapperTestAccess::isClosed());
    EXPECT_FALSE(LoggingWrapperTestAccess::hasOpenFile());
    CaptureStderr();
    logger()->log_printf("myFunction", 3, 1, "after");
    EXPECT_EQ("Logging after loggingWrapper has been closed! (:myFunction)\n", GetCapturedStderr());
    EXPECT_EQ((std::vector<std::string>{"before"}), ScratchDir::lines(logPath()));
}

TEST_F(LoggingWrapperTest, LogAboveSixAfterCloseStillComplains) {
    logger()->close();
    CaptureStderr();
    logger()->log_printf("f", 8, 1, "after");
    EXPECT_EQ("Logging after loggingWrapper has been closed! (:f)\n", GetCapturedStderr());
}

TEST_F(LoggingWrapperTest, TraceAfterCloseComplains) {
    logger()->close();
    CaptureStderr();
    logger()->trace_printf("MyFile.cpp", "myFunction", 42, 8, 0, "after");
    EXPECT_EQ("Logging after loggingWrapper has been closed! (MyFile.cpp:myFunction:42)\n", GetCapturedStderr());
    EXPECT_FALSE(ScratchDir::exists(logPath()));
}

TEST_F(LoggingWrapperTest, RotationCheckAfterCloseComplains) {
    logger()->close();
    CaptureStderr();
    logger()->check_and_rotate_log_file();
    EXPECT_EQ("LoggingWrapper::check_and_rotate_log_file: LoggingWrapper has been closed!\n", GetCapturedStderr());
}

TEST_F(LoggingWrapperTest, CloseFlushesBufferedTraces) {
    logger()->trace_printf("F.cpp", "f", 1, 8, 0, "buffered");
    logger()->close();
    EXPECT_EQ(1u, ScratchDir::lines(logPath()).size());
}

TEST_F(LoggingWrapperTest, CloseDetachesEveryInterface) {
    logger()->set_log_spi(asInterface(&logSpi));
    logger()->set_trace_spi(asInterface(&trace2Spi));
    logger()->close();
    CaptureStderr();
    logger()->log_printf("f", 3, 1, "after");
    logger()->trace_v2_printf(1, 8, "F.cpp", "f", 1, "after");
    EXPECT_EQ("Logging after loggingWrapper has been closed! (:f)\n", GetCapturedStderr());
    EXPECT_TRUE(logCalls.empty());
    EXPECT_TRUE(trace2Calls.empty());
}

TEST_F(LoggingWrapperTest, SecondCloseIsHarmless) {
    logger()->close();
    CaptureStderr();
    logger()->close();
    EXPECT_EQ("", GetCapturedStderr());
    EXPECT_TRUE(LoggingWrapperTestAccess::isClosed());
}

TEST_F(LoggingWrapperTest, NewFileNameAfterCloseCreatesNoFile) {
    logger()->close();
    logger()->set_fname(scratch.file("late.log"));
    EXPECT_EQ(scratch.file("late.log"), logger()->get_fname());
    EXPECT_FALSE(ScratchDir::exists(scratch.file("late.log")));
}

// ---- File name ----

TEST_F(LoggingWrapperTest, SetFnameSwitchesToTheNewFileAtOnce) {
    logger()->trace_printf("F.cpp", "f", 1, 8, 0, "first file");
    logger()->set_fname(scratch.file("second.log"));
    EXPECT_EQ(scratch.file("second.log"), logger()->get_fname());
    EXPECT_TRUE(ScratchDir::exists(scratch.file("second.log")));
    EXPECT_EQ(1u, ScratchDir::lines(logPath()).size());
    logger()->log_printf("f", 6, 13, "second file");
    EXPECT_EQ((std::vector<std::string>{"second file"}), ScratchDir::lines(scratch.file("second.log")));
    EXPECT_EQ(1u, ScratchDir::lines(logPath()).size());
}

TEST_F(LoggingWrapperTest, SetFnameWithTheSameNameKeepsTheFile) {
    logger()->trace_printf("F.cpp", "f", 1, 8, 0, "buffered");
    logger()->set_fname(logPath());
    EXPECT_TRUE(LoggingWrapperTestAccess::hasOpenFile());
    // Still buffered: the file was neither closed nor reopened.
    EXPECT_EQ("", ScratchDir::read(logPath()));
}

TEST_F(LoggingWrapperTest, UnopenableFileSendsLinesToStandardError) {
    CaptureStderr();
    logger()->set_fname(scratch.file("missing/app.log"));
    logger()->log_printf("myFunction", 3, 1, "to stderr");
    const std::string err = GetCapturedStderr();
    // Once from set_fname, once more when the line finds no open file.
    const std::string openFailure = "Failed to open log file!: No such file or directory\n";
    ASSERT_EQ(0u, err.find(openFailure + openFailure)) << err;
    const std::string line = err.substr(2 * openFailure.size());
    ASSERT_GT(line.size(), kStampLength);
    EXPECT_TRUE(matchesPattern(line.substr(0, kStampLength), std::string(timeStampPattern()) + " ")) << line;
    EXPECT_EQ("ER myFunction                to stderr\n", line.substr(kStampLength));
}

// ---- Rotation ----

TEST_F(LoggingWrapperTest, RotatesOnlyWhenStrictlyAboveMaxSize) {
    logger()->set_max_size(22);
    writeSequence(1, 3);  // 11, 22 (not above), 33 bytes
    EXPECT_TRUE(numberedFiles().empty());
    writeSequence(4, 4);  // 33 > 22: rotated before the line is written
    EXPECT_EQ((std::vector<int>{1}), numberedFiles());
    EXPECT_EQ(sequence(1, 3), ScratchDir::lines(scratch.file("zef.log.1")));
    EXPECT_EQ(sequence(4, 4), logLines());
}

TEST_F(LoggingWrapperTest, SizeOfAnExistingFileCountsFromTheStart) {
    scratch.write("zef.log", std::string(99, 'o') + "\n");
    logger()->set_max_size(50);
    writeSequence(1, 1);
    EXPECT_EQ((std::vector<int>{1}), numberedFiles());
    EXPECT_EQ(std::string(99, 'o') + "\n", ScratchDir::read(scratch.file("zef.log.1")));
    EXPECT_EQ(sequence(1, 1), logLines());
}

TEST_F(LoggingWrapperTest, TracesCountTowardsTheSize) {
    logger()->set_max_size(100);
    for (int i = 0; i < 3; ++i)
        logger()->trace_printf("F.cpp", "f", i, 8, 0, "trace");
    EXPECT_EQ((std::vector<int>{1}), numberedFiles());
    EXPECT_EQ(2u, ScratchDir::lines(scratch.file("zef.log.1")).size());
    EXPECT_EQ(1u, logLines().size());
}

TEST_F(LoggingWrapperTest, KeepsAtMostMaxCountConsecutiveFilesDroppingTheOldest) {
    logger()->set_max_size(100);
    // Ten lines (110 bytes) per file; the check before lines 11, 21, ..., 191 rotates.
    writeSequence(1, 200);
    EXPECT_EQ((std::vector<int>{15, 16, 17, 18, 19}), numberedFiles());
    EXPECT_EQ((std::vector<std::string>{"zef.log", "zef.log.15", "zef.log.16", "zef.log.17", "zef.log.18",
                                        "zef.log.19"}),
              scratch.entries());
    for (int n = 15; n <= 19; ++n)
        EXPECT_EQ(sequence(141 + (n - 15) * 10, 150 + (n - 15) * 10),
                  ScratchDir::lines(scratch.file("zef.log." + std::to_string(n))))
            << n;
    EXPECT_EQ(sequence(191, 200), logLines());
}

TEST_F(LoggingWrapperTest, MaxCountIsHonouredWhenChanged) {
    LoggingWrapperTestAccess::setMaxCount(2);
    logger()->set_max_size(100);
    writeSequence(1, 60);
    EXPECT_EQ((std::vector<int>{4, 5}), numberedFiles());
    EXPECT_EQ(sequence(31, 40), ScratchDir::lines(scratch.file("zef.log.4")));
}

TEST_F(LoggingWrapperTest, MaxCountZeroKeepsNoOldFiles) {
    LoggingWrapperTestAccess::setMaxCount(0);
    logger()->set_max_size(100);
    writeSequence(1, 25);
    EXPECT_EQ((std::vector<std::string>{"zef.log"}), scratch.entries());
    EXPECT_EQ(sequence(21, 25), logLines());
}

TEST_F(LoggingWrapperTest, DefaultLimitsLeaveFiveFilesOfFiveMebibytes) {
    // Lines of 999 characters plus newline: 5243 lines (5243000 bytes) are
    // the first size above 5242880, so every old file holds 5243 lines.
    const std::string pad(993, 'p');
    const int perFile = 5243;
    const int total = 8 * perFile + 100;
    for (int i = 1; i <= total; ++i)
        logger()->log_printf("f", 6, 13, "%06d%s", i, pad.c_str());
    EXPECT_EQ((std::vector<int>{4, 5, 6, 7, 8}), numberedFiles());
    for (int n = 4; n <= 8; ++n) {
        const std::string path = scratch.file("zef.log." + std::to_string(n));
        struct stat info;
        ASSERT_EQ(0, stat(path.c_str(), &info));
        EXPECT_EQ(5243000, info.st_size) << path;
        char first[8];
        std::snprintf(first, sizeof(first), "%06d", (n - 1) * perFile + 1);
        EXPECT_EQ(first, ScratchDir::read(path).substr(0, 6)) << path;
    }
    const std::vector<std::string> active = logLines();
    ASSERT_EQ(100u, active.size());
    EXPECT_EQ("041945", active.front().substr(0, 6));
    EXPECT_EQ("042044", active.back().substr(0, 6));
}

TEST_F(LoggingWrapperTest, ActiveFileReplacesAHighestFileThatHasRoom) {
    scratch.write("zef.log.3", "old\n");
    logger()->set_max_size(100);
    writeSequence(1, 11);
    EXPECT_EQ((std::vector<std::string>{"zef.log", "zef.log.3"}), scratch.entries());
    EXPECT_EQ(sequence(1, 10), ScratchDir::lines(scratch.file("zef.log.3")));
    EXPECT_EQ(sequence(11, 11), logLines());
}

TEST_F(LoggingWrapperTest, FullHighestFileGetsASuccessor) {
    scratch.write("zef.log.3", std::string(100, 'f'));
    logger()->set_max_size(100);
    writeSequence(1, 11);
    EXPECT_EQ((std::vector<int>{3, 4}), numberedFiles());
    EXPECT_EQ(std::string(100, 'f'), ScratchDir::read(scratch.file("zef.log.3")));
    EXPECT_EQ(sequence(1, 10), ScratchDir::lines(scratch.file("zef.log.4")));
}

TEST_F(LoggingWrapperTest, NumbersAreRenumberedFromOneAfterTheLastIndex) {
    scratch.write("zef.log.999998", std::string(200, 'a'));
    scratch.write("zef.log.999999", std::string(200, 'b'));
    logger()->set_max_size(100);
    writeSequence(1, 11);
    EXPECT_EQ((std::vector<int>{1, 2, 3}), numberedFiles());
    EXPECT_EQ(std::string(200, 'a'), ScratchDir::read(scratch.file("zef.log.1")));
    EXPECT_EQ(std::string(200, 'b'), ScratchDir::read(scratch.file("zef.log.2")));
    EXPECT_EQ(sequence(1, 10), ScratchDir::lines(scratch.file("zef.log.3")));
    EXPECT_EQ(sequence(11, 11), logLines());
}

TEST_F(LoggingWrapperTest, OtherFilesOfTheFolderAreLeftAlone) {
    const std::vector<std::string> others = {"zef.log.abc", "zef.log.1x", "zef.log.",   "zef.log.-2", "zef.log.+3",
                                             "zef.log. 4",  "zef.logs",   "app.log.5", "old.zef.log.6"};
    for (const std::string& name : others)
        scratch.write(name, "keep");
    logger()->set_max_size(100);
    LoggingWrapperTestAccess::setMaxCount(1);
    writeSequence(1, 21);
    EXPECT_EQ((std::vector<int>{2}), numberedFiles());
    for (const std::string& name : others)
        EXPECT_EQ("keep", ScratchDir::read(scratch.file(name))) << name;
}

TEST_F(LoggingWrapperTest, RotateLogsOfAnEmptyFolderTakesTheFirstIndex) {
    scratch.write("zef.log", "active\n");
    logger()->rotateLogs();
    EXPECT_EQ((std::vector<std::string>{"zef.log.1"}), scratch.entries());
    EXPECT_EQ("active\n", ScratchDir::read(scratch.file("zef.log.1")));
}

TEST_F(LoggingWrapperTest, RotationFollowsTheFileNameWhenItChanges) {
    scratch.write("zef.log.1", "another program's old log\n");
    logger()->set_fname(scratch.file("validator.log"));
    logger()->set_max_size(100);
    writeSequence(1, 11);
    EXPECT_EQ((std::vector<std::string>{"validator.log", "validator.log.1", "zef.log.1"}), scratch.entries());
    EXPECT_EQ(sequence(1, 10), ScratchDir::lines(scratch.file("validator.log.1")));
    EXPECT_EQ(sequence(11, 11), ScratchDir::lines(scratch.file("validator.log")));
    EXPECT_EQ("another program's old log\n", ScratchDir::read(scratch.file("zef.log.1")));
}

TEST_F(LoggingWrapperTest, RotationOfABareFileNameHappensInTheCurrentFolder) {
    char cwd[4096];
    ASSERT_NE(nullptr, getcwd(cwd, sizeof(cwd)));
    ASSERT_EQ(0, chdir(scratch.file("").c_str()));
    logger()->set_fname("bare.log");
    logger()->set_max_size(100);
    writeSequence(1, 11);
    logger()->set_fname(logPath());
    ASSERT_EQ(0, chdir(cwd));
    EXPECT_EQ(sequence(1, 10), ScratchDir::lines(scratch.file("bare.log.1")));
    EXPECT_EQ(sequence(11, 11), ScratchDir::lines(scratch.file("bare.log")));
}

TEST_F(LoggingWrapperTest, UnreadableLogDirectoryIsReported) {
    logger()->set_fname(logPath());
    LoggingWrapperTestAccess::setDirectoryOnly(scratch.file("gone"));
    logger()->set_max_size(10);
    writeSequence(1, 1);
    CaptureStderr();
    writeSequence(2, 2);
    EXPECT_EQ("Failed to open dir " + scratch.file("gone") + "\n\n", GetCapturedStderr());
    // The file could not move, so it simply grows.
    EXPECT_EQ(sequence(1, 2), logLines());
}
