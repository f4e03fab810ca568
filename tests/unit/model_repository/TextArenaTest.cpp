// The storage of the records' C strings: copies that stay put, and chunks
// that go back once their last string is released.

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "TextArena.h"

using ZefModelRepositoryService::TextArena;

namespace {

// A build with AddressSanitizer gives every string a heap block of its own
// and holds no chunks: the chunk figures are not checked there.
bool arenaHoldsChunks() {
    char* probe = TextArena::copy("x", 1);
    const bool holds = TextArena::reservedBytes() > 0;
    TextArena::release(probe);
    return holds;
}

} // namespace

TEST(TextArenaTest, ACopyHoldsTheBytesAndATerminator) {
    const char text[] = "abc\0def";
    char* copy = TextArena::copy(text, 7);
    EXPECT_EQ(0, std::memcmp(text, copy, 7));
    EXPECT_EQ('\0', copy[7]);
    EXPECT_NE(text, copy);
    TextArena::release(copy);
}

TEST(TextArenaTest, AnEmptyCopyIsAnEmptyString) {
    char* copy = TextArena::copy("", 0);
    EXPECT_STREQ("", copy);
    TextArena::release(copy);
}

TEST(TextArenaTest, ReleasingNullDoesNothing) { TextArena::release(nullptr); }

TEST(TextArenaTest, ManyStringsStayAsTheyWereCopied) {
    std::vector<char*> copies;
    for (int i = 0; i < 20000; ++i) {
        const std::string text = "text number " + std::to_string(i);
        copies.push_back(TextArena::copy(text.data(), text.size()));
    }
    for (int i = 0; i < 20000; ++i) {
        EXPECT_EQ("text number " + std::to_string(i), copies[static_cast<std::size_t>(i)]);
    }
    for (char* copy : copies) {
        TextArena::release(copy);
    }
}

TEST(TextArenaTest, ALongStringIsCopiedWhole) {
    const std::string text(200000, 'q');
    char* copy = TextArena::copy(text.data(), text.size());
    EXPECT_EQ(text, copy);
    TextArena::release(copy);
}

TEST(TextArenaTest, ChunksGoBackOnceTheirStringsAreReleased) {
    if (!arenaHoldsChunks()) {
        GTEST_SKIP() << "every string is a heap block of its own in this build";
    }
    const std::size_t before = TextArena::reservedBytes();
    std::vector<char*> copies;
    for (int i = 0; i < 50000; ++i) {
        const std::string text = "a string of some length, number " + std::to_string(i);
        copies.push_back(TextArena::copy(text.data(), text.size()));
    }
    const std::string longText(100000, 'l');
    copies.push_back(TextArena::copy(longText.data(), longText.size()));
    EXPECT_GT(TextArena::reservedBytes(), before + 2000000);
    for (char* copy : copies) {
        TextArena::release(copy);
    }
    // At most the chunk strings are cut from now stays.
    EXPECT_LE(TextArena::reservedBytes(), before + 64 * 1024);
}

TEST(TextArenaTest, StringsReleasedInAnyOrderLeaveTheOthersIntact) {
    std::vector<char*> copies;
    for (int i = 0; i < 10000; ++i) {
        const std::string text = std::to_string(i);
        copies.push_back(TextArena::copy(text.data(), text.size()));
    }
    for (std::size_t i = 0; i < copies.size(); i += 2) {
        TextArena::release(copies[i]);
    }
    for (std::size_t i = 1; i < copies.size(); i += 2) {
        EXPECT_EQ(std::to_string(i), copies[i]);
        TextArena::release(copies[i]);
    }
}
