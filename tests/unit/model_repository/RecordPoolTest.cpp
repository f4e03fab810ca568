#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <set>
#include <vector>

#include "RecordPool.h"

using namespace ZefModelRepositoryService;

namespace {

bool pooling()
{
    // A build with AddressSanitizer hands every request to operator new.
    void* probe = RecordPool::allocate(40);
    const bool pooled = RecordPool::reservedBytes() > 0;
    RecordPool::release(probe, 40);
    return pooled;
}

uintptr_t address(const void* block) { return reinterpret_cast<uintptr_t>(block); }

} // namespace

TEST(RecordPoolTest, BlocksAreDistinctWritableAndAlignedForTheirSize)
{
    std::vector<std::pair<void*, std::size_t>> blocks;
    std::set<void*> seen;
    for (std::size_t size : {1u, 8u, 24u, 32u, 40u, 48u, 312u, 512u, 513u, 4096u}) {
        for (int i = 0; i < 100; ++i) {
            void* block = RecordPool::allocate(size);
            std::memset(block, 0xab, size);
            EXPECT_TRUE(seen.insert(block).second) << size;
            // A size that is a multiple of 16 may belong to a 16-aligned class.
            EXPECT_EQ(0u, address(block) % (size % 16 == 0 ? 16 : 8)) << size;
            blocks.emplace_back(block, size);
        }
    }
    for (const auto& block : blocks) {
        RecordPool::release(block.first, block.second);
    }
}

TEST(RecordPoolTest, AReleasedBlockServesTheNextRequestOfItsSize)
{
    if (!pooling()) {
        GTEST_SKIP() << "this build bypasses the pool";
    }
    void* first = RecordPool::allocate(312);
    RecordPool::release(first, 312);
    // 305 to 312 bytes share one size class.
    void* second = RecordPool::allocate(305);
    EXPECT_EQ(first, second);
    RecordPool::release(second, 305);
}

TEST(RecordPoolTest, BlocksOfOneSizeLieSideBySide)
{
    if (!pooling()) {
        GTEST_SKIP() << "this build bypasses the pool";
    }
    // Records of one kind made one after the other are neighbours, which is
    // what makes a pass over them cheap.
    std::vector<void*> blocks;
    for (int i = 0; i < 10; ++i) {
        blocks.push_back(RecordPool::allocate(200));
    }
    int neighbours = 0;
    for (size_t i = 0; i + 1 < blocks.size(); ++i) {
        neighbours += address(blocks[i + 1]) == address(blocks[i]) + 200 ? 1 : 0;
    }
    // At most one step crosses into a new chunk.
    EXPECT_GE(neighbours, 8);
    for (void* block : blocks) {
        RecordPool::release(block, 200);
    }
}

TEST(RecordPoolTest, ReleasingNullIsHarmless)
{
    RecordPool::release(nullptr, 64);
    RecordPool::release(nullptr, 100000);
}
