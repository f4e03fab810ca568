#include "RecordPool.h"

#include <mutex>
#include <new>

#include "AddressSanitizerBuild.h"
#include "PoolLock.h"

namespace ZefModelRepositoryService {

namespace {

// Sizes are multiples of 8. A class whose size is a multiple of 16 may need
// 16-byte alignment, and gets it: each size class cuts its blocks from
// chunks of its own, which begin 16-byte aligned. A size of 8 modulo 16
// belongs to a class aligned to at most 8.
const std::size_t kGranule = 8;
const std::size_t kClassCount = RecordPool::kLargestBlock / kGranule;
const std::size_t kChunkSize = 64 * 1024;

struct FreeBlock {
    FreeBlock* next;
};

struct Chunk {
    Chunk* previous;
};

/// Per size class: the list of free blocks and the part of its newest
/// chunk not cut yet. A chunk's header takes its first 16 bytes.
struct Pool {
    std::mutex lock;
    FreeBlock* freeBlocks[kClassCount] = {};
    char* cutFrom[kClassCount] = {};
    char* cutEnd[kClassCount] = {};
    Chunk* chunks = nullptr;
    std::size_t reserved = 0;
};

const std::size_t kChunkHeader = 16;

// Never destroyed: objects in the pool may outlive any static destructor.
Pool& pool()
{
    static Pool* const instance = new Pool();
    return *instance;
}

std::size_t classOf(std::size_t size)
{
    return size == 0 ? 0 : (size - 1) / kGranule;
}

} // namespace

void* RecordPool::allocate(std::size_t size)
{
    if (kAddressSanitizerBuild || size > kLargestBlock) {
        return ::operator new(size);
    }
    const std::size_t sizeClass = classOf(size);
    const std::size_t blockSize = (sizeClass + 1) * kGranule;
    Pool& blocks = pool();
    PoolLock guard(blocks.lock);
    if (FreeBlock* block = blocks.freeBlocks[sizeClass]) {
        blocks.freeBlocks[sizeClass] = block->next;
        return block;
    }
    if (static_cast<std::size_t>(blocks.cutEnd[sizeClass] - blocks.cutFrom[sizeClass]) < blockSize) {
        // The rest of the chunk is too small for one more block: it stays
        // unused.
        char* chunk = static_cast<char*>(::operator new(kChunkSize));
        Chunk* header = reinterpret_cast<Chunk*>(chunk);
        header->previous = blocks.chunks;
        blocks.chunks = header;
        blocks.reserved += kChunkSize;
        blocks.cutFrom[sizeClass] = chunk + kChunkHeader;
        blocks.cutEnd[sizeClass] = chunk + kChunkSize;
    }
    void* block = blocks.cutFrom[sizeClass];
    blocks.cutFrom[sizeClass] += blockSize;
    return block;
}

void RecordPool::release(void* block, std::size_t size) noexcept
{
    if (block == nullptr) {
        return;
    }
    if (kAddressSanitizerBuild || size > kLargestBlock) {
        ::operator delete(block);
        return;
    }
    const std::size_t sizeClass = classOf(size);
    Pool& blocks = pool();
    PoolLock guard(blocks.lock);
    FreeBlock* freed = static_cast<FreeBlock*>(block);
    freed->next = blocks.freeBlocks[sizeClass];
    blocks.freeBlocks[sizeClass] = freed;
}

std::size_t RecordPool::reservedBytes()
{
    Pool& blocks = pool();
    PoolLock guard(blocks.lock);
    return blocks.reserved;
}

} // namespace ZefModelRepositoryService
