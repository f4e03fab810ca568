#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <set>
#include <thread>
#include <vector>

#include "SmallBlockHeap.h"

namespace {

using Zef::SmallBlockHeap;

bool alignedTo16(const void* block) { return reinterpret_cast<std::uintptr_t>(block) % 16 == 0; }

TEST(SmallBlockHeapTest, SmallBlocksComeFromTheHeapAlignedTo16Bytes) {
    for (const std::size_t size : {0, 1, 8, 15, 16, 17, 24, 48, 100, 511, 512}) {
        void* block = SmallBlockHeap::allocate(size);
        ASSERT_NE(nullptr, block) << size;
        EXPECT_TRUE(SmallBlockHeap::holds(block)) << size;
        EXPECT_TRUE(alignedTo16(block)) << size;
        std::memset(block, 0xA5, size);
        SmallBlockHeap::release(block);
    }
}

TEST(SmallBlockHeapTest, LargerBlocksComeFromMallocAndGoBackThere) {
    void* block = SmallBlockHeap::allocate(513);
    ASSERT_NE(nullptr, block);
    EXPECT_FALSE(SmallBlockHeap::holds(block));
    EXPECT_TRUE(alignedTo16(block));
    std::memset(block, 0x5A, 513);
    SmallBlockHeap::release(block);
}

TEST(SmallBlockHeapTest, OnlyItsOwnBlocksAreHeld) {
    int onTheStack = 0;
    void* fromMalloc = std::malloc(32);
    EXPECT_FALSE(SmallBlockHeap::holds(nullptr));
    EXPECT_FALSE(SmallBlockHeap::holds(&onTheStack));
    EXPECT_FALSE(SmallBlockHeap::holds(fromMalloc));
    std::free(fromMalloc);
}

// Null is on no free list afterwards: every class still hands out blocks.
TEST(SmallBlockHeapTest, ReleasingNullDoesNothing) {
    SmallBlockHeap::release(nullptr);
    for (std::size_t size = 16; size <= SmallBlockHeap::kLargestBlock; size += 16) {
        void* block = SmallBlockHeap::allocate(size);
        ASSERT_NE(nullptr, block) << size;
        EXPECT_TRUE(SmallBlockHeap::holds(block)) << size;
        SmallBlockHeap::release(block);
    }
}

TEST(SmallBlockHeapTest, AReleasedBlockServesTheNextBlockOfItsSizeClassOnly) {
    void* block = SmallBlockHeap::allocate(40);
    SmallBlockHeap::release(block);
    // 33 to 48 bytes share a class; 20 bytes are of another.
    void* other = SmallBlockHeap::allocate(20);
    EXPECT_NE(block, other);
    void* same = SmallBlockHeap::allocate(48);
    EXPECT_EQ(block, same);
    SmallBlockHeap::release(same);
    SmallBlockHeap::release(other);
}

TEST(SmallBlockHeapTest, ZeroBytesStillGiveDistinctBlocks) {
    void* first = SmallBlockHeap::allocate(0);
    void* second = SmallBlockHeap::allocate(0);
    EXPECT_NE(first, second);
    SmallBlockHeap::release(first);
    SmallBlockHeap::release(second);
}

// 48 bytes do not divide a region: the blocks run through many regions,
// each with a tail too small for one more block, and none may overlap.
TEST(SmallBlockHeapTest, BlocksAcrossManyRegionsKeepTheirContents) {
    const std::size_t count = 20000;
    std::vector<unsigned char*> blocks;
    for (std::size_t i = 0; i < count; ++i) {
        auto* block = static_cast<unsigned char*>(SmallBlockHeap::allocate(48));
        ASSERT_NE(nullptr, block);
        std::memset(block, static_cast<int>(i % 251), 48);
        blocks.push_back(block);
    }
    const std::set<unsigned char*> distinct(blocks.begin(), blocks.end());
    EXPECT_EQ(count, distinct.size());
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t byte = 0; byte < 48; ++byte) {
            ASSERT_EQ(i % 251, blocks[i][byte]) << i;
        }
    }
    for (unsigned char* block : blocks) {
        SmallBlockHeap::release(block);
    }
}

void churn(unsigned char pattern, std::atomic<bool>& corrupted) {
    std::vector<unsigned char*> held;
    for (int round = 0; round < 20000; ++round) {
        const std::size_t size = 16 + static_cast<std::size_t>(round % 7) * 16;
        auto* block = static_cast<unsigned char*>(SmallBlockHeap::allocate(size));
        std::memset(block, pattern, size);
        held.push_back(block);
        if (held.size() == 64) {
            for (unsigned char* kept : held) {
                if (kept[0] != pattern || kept[15] != pattern) {
                    corrupted = true;
                }
                SmallBlockHeap::release(kept);
            }
            held.clear();
        }
    }
    for (unsigned char* kept : held) {
        SmallBlockHeap::release(kept);
    }
}

TEST(SmallBlockHeapTest, TwoThreadsNeverShareABlock) {
    std::atomic<bool> corrupted(false);
    std::thread first(churn, 0x11, std::ref(corrupted));
    std::thread second(churn, 0x22, std::ref(corrupted));
    first.join();
    second.join();
    EXPECT_FALSE(corrupted);
}

// A fork while another thread works the heap must not leave the child with
// the heap's lock held. The child allocates and ends; a child that hangs is
// ended by its alarm and fails the test.
TEST(SmallBlockHeapTest, AChildForkedWhileAnotherThreadAllocatesCanAllocate) {
    std::atomic<bool> stop(false);
    std::thread worker([&stop] {
        while (!stop) {
            void* block = SmallBlockHeap::allocate(64);
            SmallBlockHeap::release(block);
        }
    });
    int failures = 0;
    for (int child = 0; child < 20; ++child) {
        const pid_t pid = ::fork();
        ASSERT_NE(-1, pid);
        if (pid == 0) {
            ::alarm(5);
            void* block = SmallBlockHeap::allocate(64);
            const bool held = SmallBlockHeap::holds(block);
            SmallBlockHeap::release(block);
            ::_exit(held ? 0 : 1);
        }
        int status = 0;
        ASSERT_EQ(pid, ::waitpid(pid, &status, 0));
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
            ++failures;
        }
    }
    stop = true;
    worker.join();
    EXPECT_EQ(0, failures);
}

} // namespace
