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
    std::size_t copied = 0;
    for (int i = 0; i < 50000; ++i) {
        const std::string text = "a string of some length, number " + std::to_string(i);
        copies.push_back(TextArena::copy(text.data(), text.size()));
        copied += text.size() + 1;
    }
    const std::string longText(100000, 'l');
    copies.push_back(TextArena::copy(longText.data(), longText.size()));
    copied += longText.size() + 1;
    // The chunk current before may take the first strings.
    EXPECT_GE(TextArena::reservedBytes() + 64 * 1024, before + copied);
    // A string costs its bytes and no more, but for the chunk headers and
    // the unused ends of full chunks.
    EXPECT_LT(TextArena::reservedBytes(), before + copied + copied / 10);
    for (char* copy : copies) {
        TextArena::release(copy);
    }
    // At most the chunk strings are cut from now stays.
    EXPECT_LE(TextArena::reservedBytes(), before + 64 * 1024);
}

TEST(TextArenaTest, StringsOfOneChunkAndOfTheirOwnAreReleasedThroughTheirAddress) {
    // Strings at the very start and end of chunks, and long ones whose own
    // chunk is as large as they are.
    std::vector<char*> copies;
    for (int i = 0; i < 3000; ++i) {
        const std::string text(static_cast<std::size_t>(i % 200), static_cast<char>('a' + i % 26));
        copies.push_back(TextArena::copy(text.data(), text.size()));
        if (i % 500 == 0) {
            const std::string longText(70000 + static_cast<std::size_t>(i), 'z');
            copies.push_back(TextArena::copy(longText.data(), longText.size()));
        }
    }
    for (char* copy : copies) {
        TextArena::release(copy);
    }
    char* again = TextArena::copy("again", 5);
    EXPECT_STREQ("again", again);
    TextArena::release(again);
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
