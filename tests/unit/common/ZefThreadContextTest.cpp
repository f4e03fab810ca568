#include "ZefThreadContext.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <string>
#include <thread>

#include "LoggingWrapperTestAccess.h"
#include "ScratchDir.h"
#include "TextPattern.h"
#include "ZefMgmtSpi.h"

namespace {

class ZefThreadContextTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(0, zefMgmtSpiThreadContextSetErrorText(nullptr)); }
};

std::string errorText() {
    const char* text = zefMgmtSpiThreadContextGetErrorText();
    return text != nullptr ? std::string(text) : std::string("<null>");
}

} // namespace

TEST_F(ZefThreadContextTest, InitReturnsZero) { EXPECT_EQ(0, zefMgmtSpiThreadContextInit()); }

TEST_F(ZefThreadContextTest, GetGivesTheSameBlockOnOneThread) {
    ZefMgmtSpiThreadContext_1* first = nullptr;
    ZefMgmtSpiThreadContext_1* second = nullptr;
    ASSERT_EQ(0, zefMgmtSpiThreadContextGet(&first));
    ASSERT_EQ(0, zefMgmtSpiThreadContextGet(&second));
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(first, second);
}

TEST_F(ZefThreadContextTest, SetFormatsTheErrorText) {
    EXPECT_EQ(0, zefMgmtSpiThreadContextSetErrorText("handle %d unknown (%s)", 3017, "moc"));
    EXPECT_EQ("handle 3017 unknown (moc)", errorText());
}

TEST_F(ZefThreadContextTest, SetWithNullEmptiesTheErrorText) {
    ASSERT_EQ(0, zefMgmtSpiThreadContextSetErrorText("something"));
    const char* none = nullptr;
    EXPECT_EQ(0, zefMgmtSpiThreadContextSetErrorText(none));
    EXPECT_EQ("", errorText());
}

TEST_F(ZefThreadContextTest, SetCutsAt4095Characters) {
    const std::string longText(5000, 'e');
    ASSERT_EQ(0, zefMgmtSpiThreadContextSetErrorText("%s", longText.c_str()));
    EXPECT_EQ(std::string(4095, 'e'), errorText());
}

TEST_F(ZefThreadContextTest, PrependPutsTheNewTextDirectlyBeforeTheOld) {
    ASSERT_EQ(0, zefMgmtSpiThreadContextSetErrorText("O"));
    EXPECT_EQ(0, zefMgmtSpiThreadContextPrependErrorText("N"));
    EXPECT_EQ("NO", errorText());
    EXPECT_EQ(0, zefMgmtSpiThreadContextPrependErrorText("getMoc(%d): ", 7));
    EXPECT_EQ("getMoc(7): NO", errorText());
}

TEST_F(ZefThreadContextTest, PrependToEmptyText) {
    EXPECT_EQ(0, zefMgmtSpiThreadContextPrependErrorText("only %s", "new"));
    EXPECT_EQ("only new", errorText());
}

TEST_F(ZefThreadContextTest, PrependMayUseTheTextJustRead) {
    ASSERT_EQ(0, zefMgmtSpiThreadContextSetErrorText("old"));
    const char* current = zefMgmtSpiThreadContextGetErrorText();
    EXPECT_EQ(0, zefMgmtSpiThreadContextPrependErrorText("[%s] ", current));
    EXPECT_EQ("[old] old", errorText());
}

TEST_F(ZefThreadContextTest, PrependIsCutAt4095Characters) {
    ASSERT_EQ(0, zefMgmtSpiThreadContextSetErrorText("%s", std::string(3000, 'o').c_str()));
    EXPECT_EQ(0, zefMgmtSpiThreadContextPrependErrorText("%s", std::string(2000, 'n').c_str()));
    EXPECT_EQ(std::string(2000, 'n') + std::string(2095, 'o'), errorText());
}

TEST_F(ZefThreadContextTest, PrependWithNullFormatReturnsMinus8AndKeepsTheText) {
    ASSERT_EQ(0, zefMgmtSpiThreadContextSetErrorText("kept"));
    ZefMgmtSpiThreadContext_1* block = nullptr;
    ASSERT_EQ(0, zefMgmtSpiThreadContextGet(&block));
    ASSERT_STREQ("kept", zefMgmtSpiThreadContextGetErrorText());  // fills the copy buffer
    const char* none = nullptr;
    EXPECT_EQ(-8, zefMgmtSpiThreadContextPrependErrorText(none));
    EXPECT_STREQ("", block->copyBuffer);
    EXPECT_STREQ("kept", block->errorText);
}

TEST_F(ZefThreadContextTest, PrependWithEmptyFormatReturnsMinus8AndKeepsTheText) {
    ASSERT_EQ(0, zefMgmtSpiThreadContextSetErrorText("kept"));
    ZefMgmtSpiThreadContext_1* block = nullptr;
    ASSERT_EQ(0, zefMgmtSpiThreadContextGet(&block));
    ASSERT_STREQ("kept", zefMgmtSpiThreadContextGetErrorText());
    const std::string empty;
    EXPECT_EQ(-8, zefMgmtSpiThreadContextPrependErrorText(empty.c_str()));
    EXPECT_STREQ("", block->copyBuffer);
    EXPECT_STREQ("kept", block->errorText);
}

TEST_F(ZefThreadContextTest, GetErrorTextReturnsACopyValidUntilTheNextCall) {
    ASSERT_EQ(0, zefMgmtSpiThreadContextSetErrorText("first"));
    const char* copy = zefMgmtSpiThreadContextGetErrorText();
    ASSERT_STREQ("first", copy);
    ASSERT_EQ(0, zefMgmtSpiThreadContextSetErrorText("second"));
    EXPECT_STREQ("first", copy);
    EXPECT_STREQ("second", zefMgmtSpiThreadContextGetErrorText());
}

TEST_F(ZefThreadContextTest, ThreadsHaveSeparateTexts) {
    ASSERT_EQ(0, zefMgmtSpiThreadContextSetErrorText("main"));
    ZefMgmtSpiThreadContext_1* mainBlock = nullptr;
    ASSERT_EQ(0, zefMgmtSpiThreadContextGet(&mainBlock));

    std::string seenA, seenB;
    ZefMgmtSpiThreadContext_1* blockA = nullptr;
    ZefMgmtSpiThreadContext_1* blockB = nullptr;
    std::thread a([&] {
        seenA = "start:" + errorText();
        zefMgmtSpiThreadContextSetErrorText("text of %s", "A");
        zefMgmtSpiThreadContextGet(&blockA);
        seenA += " end:" + errorText();
    });
    a.join();
    std::thread b([&] {
        seenB = "start:" + errorText();
        zefMgmtSpiThreadContextSetErrorText("text of %s", "B");
        zefMgmtSpiThreadContextPrependErrorText("B: ");
        zefMgmtSpiThreadContextGet(&blockB);
        seenB += " end:" + errorText();
    });
    b.join();

    EXPECT_EQ("start: end:text of A", seenA);
    EXPECT_EQ("start: end:B: text of B", seenB);
    EXPECT_EQ("main", errorText());
    EXPECT_NE(nullptr, blockA);
    EXPECT_NE(mainBlock, blockA);
    EXPECT_NE(mainBlock, blockB);
}

TEST_F(ZefThreadContextTest, ConcurrentThreadsKeepTheirOwnTexts) {
    const int kThreads = 4;
    bool ok[kThreads] = {false, false, false, false};
    std::thread threads[kThreads];
    for (int t = 0; t < kThreads; ++t) {
        threads[t] = std::thread([t, &ok] {
            bool good = true;
            for (int i = 0; i < 2000; ++i) {
                zefMgmtSpiThreadContextSetErrorText("%d", t);
                zefMgmtSpiThreadContextPrependErrorText("%d:", i);
                good = good && std::to_string(i) + ":" + std::to_string(t) == zefMgmtSpiThreadContextGetErrorText();
            }
            ok[t] = good;
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (int t = 0; t < kThreads; ++t)
        EXPECT_TRUE(ok[t]) << "thread " << t;
}

TEST_F(ZefThreadContextTest, StoreFailuresAreLoggedAsErrors) {
    ScratchDir scratch("thread-context");
    Zef::LoggingWrapperTestAccess::useDirectory(scratch.path());
    Zef::logThreadContextStoreFailure(ENOMEM);
    Zef::logThreadContextStoreFailure(EINVAL);
    Zef::logThreadContextStoreFailure(EAGAIN);
    Zef::LoggingWrapperTestAccess::release();

    const std::vector<std::string> lines = ScratchDir::lines(scratch.file("zef.log"));
    ASSERT_EQ(3u, lines.size());
    for (const std::string& line : lines)
        EXPECT_TRUE(matchesPattern(line.substr(0, 24), std::string(timeStampPattern()) + " ")) << line;
    EXPECT_EQ("ER logThreadContextStoreFailure Failed to set a Thread specific data : Insufficient memory",
              lines[0].substr(24));
    EXPECT_EQ("ER logThreadContextStoreFailure Failed to set a Thread specific data : Invalid key",
              lines[1].substr(24));
    EXPECT_EQ("ER logThreadContextStoreFailure Failed to set a Thread specific data : Unknown Error",
              lines[2].substr(24));
}

TEST_F(ZefThreadContextTest, StoreFailuresFollowTheLogLevel) {
    ScratchDir scratch("thread-context");
    Zef::LoggingWrapperTestAccess::useDirectory(scratch.path());
    Zef::LoggingWrapper::instance()->set_level(2);
    Zef::logThreadContextStoreFailure(ENOMEM);
    Zef::LoggingWrapperTestAccess::release();
    EXPECT_FALSE(ScratchDir::exists(scratch.file("zef.log")));
}
