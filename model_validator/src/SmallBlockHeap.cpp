#include "SmallBlockHeap.h"

#include <pthread.h>

#include <cstdint>
#include <cstdlib>
#include <mutex>

#include "PoolLock.h"

namespace Zef {

namespace {

const std::size_t kGranule = 16;
const std::size_t kClassCount = SmallBlockHeap::kLargestBlock / kGranule;

// Regions of 64 KiB, aligned to their size, so that the region of a block
// is its address with the low bits cleared.
const unsigned kRegionBits = 16;
const std::size_t kRegionSize = std::size_t(1) << kRegionBits;
const std::size_t kRegionsPerBatch = 16;

// The map from region to size class has two levels: a leaf of one byte per
// region covers 4 GiB of addresses, and the root holds the leaves of the
// 48-bit address space that user processes get. A byte is 0 for a region
// that is not ours, else its size class plus one.
const unsigned kLeafBits = 16;
const std::size_t kLeafSize = std::size_t(1) << kLeafBits;
const unsigned kAddressBits = 48;
const std::size_t kRootSize = std::size_t(1) << (kAddressBits - kRegionBits - kLeafBits);

struct FreeBlock {
    FreeBlock* next;
};

// Plain data only, initialised before any code runs: the libraries the
// validator loads allocate while they are initialised, before any of its
// own static objects could be constructed.
struct Heap {
    std::mutex lock;
    FreeBlock* freeBlocks[kClassCount];
    char* cutFrom[kClassCount];
    char* cutEnd[kClassCount];
    char* batchFrom;
    char* batchEnd;
    bool forkHandled;
    unsigned char* leaves[kRootSize];
};

Heap heap;

// The lock is taken, as the record pools take theirs, only while other
// threads may run.
using ZefModelRepositoryService::PoolLock;

// A forked child must not start with the lock held by a thread that does
// not exist in it.
void lockForFork() { heap.lock.lock(); }
void unlockAfterFork() { heap.lock.unlock(); }

std::size_t rootIndex(std::uintptr_t address) { return address >> (kRegionBits + kLeafBits); }
std::size_t leafIndex(std::uintptr_t address) { return (address >> kRegionBits) & (kLeafSize - 1); }

unsigned char classMark(const void* block) {
    const std::uintptr_t address = reinterpret_cast<std::uintptr_t>(block);
    const std::size_t root = rootIndex(address);
    if (root >= kRootSize) {
        return 0;
    }
    const unsigned char* leaf = heap.leaves[root];
    return leaf != nullptr ? leaf[leafIndex(address)] : 0;
}

// Makes sure the leaf for every region of the batch at `batch` exists; a
// batch is aligned to its regions and may straddle two leaves.
bool addLeaves(const char* batch) {
    const std::uintptr_t first = reinterpret_cast<std::uintptr_t>(batch);
    const std::uintptr_t last = first + kRegionsPerBatch * kRegionSize - 1;
    if (rootIndex(last) >= kRootSize) {
        return false;
    }
    for (std::size_t root = rootIndex(first); root <= rootIndex(last); ++root) {
        if (heap.leaves[root] == nullptr) {
            heap.leaves[root] = static_cast<unsigned char*>(std::calloc(kLeafSize, 1));
            if (heap.leaves[root] == nullptr) {
                return false;
            }
        }
    }
    return true;
}

// Registered while the process starts, before any thread of the program
// can hold the lock. Until then, or if it fails, blocks come from malloc.
struct ForkHandlers {
    ForkHandlers() { heap.forkHandled = ::pthread_atfork(lockForFork, unlockAfterFork, unlockAfterFork) == 0; }
};
const ForkHandlers forkHandlers;

bool newBatch() {
    if (!heap.forkHandled) {
        return false;
    }
    // From malloc, which never comes back here: it is not operator new.
    void* memory = nullptr;
    if (::posix_memalign(&memory, kRegionSize, kRegionsPerBatch * kRegionSize) != 0) {
        return false;
    }
    char* batch = static_cast<char*>(memory);
    if (!addLeaves(batch)) {
        std::free(batch);
        return false;
    }
    heap.batchFrom = batch;
    heap.batchEnd = batch + kRegionsPerBatch * kRegionSize;
    return true;
}

bool newRegion(std::size_t sizeClass) {
    if (heap.batchFrom == heap.batchEnd && !newBatch()) {
        return false;
    }
    char* region = heap.batchFrom;
    heap.batchFrom += kRegionSize;
    const std::uintptr_t address = reinterpret_cast<std::uintptr_t>(region);
    heap.leaves[rootIndex(address)][leafIndex(address)] = static_cast<unsigned char>(sizeClass + 1);
    heap.cutFrom[sizeClass] = region;
    heap.cutEnd[sizeClass] = region + kRegionSize;
    return true;
}

void* takeBlock(std::size_t sizeClass) {
    if (FreeBlock* block = heap.freeBlocks[sizeClass]) {
        heap.freeBlocks[sizeClass] = block->next;
        // The next block to hand out was freed long ago, most likely: its
        // link is fetched now, while the caller uses this one.
        __builtin_prefetch(block->next);
        return block;
    }
    const std::size_t blockSize = (sizeClass + 1) * kGranule;
    // The end of a region too small for one more block stays unused.
    if (static_cast<std::size_t>(heap.cutEnd[sizeClass] - heap.cutFrom[sizeClass]) < blockSize &&
        !newRegion(sizeClass)) {
        return nullptr;
    }
    void* block = heap.cutFrom[sizeClass];
    heap.cutFrom[sizeClass] += blockSize;
    return block;
}

} // namespace

void* SmallBlockHeap::allocate(std::size_t size) noexcept {
    if (size > kLargestBlock) {
        return std::malloc(size);
    }
    const std::size_t sizeClass = size == 0 ? 0 : (size - 1) / kGranule;
    void* block;
    {
        const PoolLock guard(heap.lock);
        block = takeBlock(sizeClass);
    }
    // Without a region the block comes from malloc, and goes back there.
    return block != nullptr ? block : std::malloc(size == 0 ? 1 : size);
}

void SmallBlockHeap::release(void* block) noexcept {
    if (block == nullptr) {
        return;
    }
    const unsigned char mark = classMark(block);
    if (mark == 0) {
        std::free(block);
        return;
    }
    FreeBlock* freed = static_cast<FreeBlock*>(block);
    const PoolLock guard(heap.lock);
    freed->next = heap.freeBlocks[mark - 1];
    heap.freeBlocks[mark - 1] = freed;
}

bool SmallBlockHeap::holds(const void* block) noexcept {
    return classMark(block) != 0;
}

} // namespace Zef
