#include "TextArena.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <new>
#include <vector>

#include "AddressSanitizerBuild.h"
#include "PoolLock.h"

namespace ZefModelRepositoryService {

namespace {

// Every chunk begins at a multiple of its size, so the chunk of a string
// is its address with the low bits cleared: releasing a string reads only
// its chunk's header, which the strings cut from it share, and never the
// string itself.
const std::size_t kChunkSize = 64 * 1024;
// A string longer than this gets a chunk of its own, so that the shared
// chunks are not left part-used by one long text. Such a chunk is aligned
// the same way but only as large as its string.
const std::size_t kLongString = kChunkSize / 8;

struct Chunk {
    std::size_t live;  // strings cut from this chunk and not yet released
    std::size_t size;  // of the whole chunk, header included
};

Chunk* chunkOf(const char* text) {
    return reinterpret_cast<Chunk*>(reinterpret_cast<std::uintptr_t>(text) &
                                    ~static_cast<std::uintptr_t>(kChunkSize - 1));
}

// Shared chunks are cut from batches of this many, each one aligned
// block from the heap, and kept for later strings once they are empty.
const std::size_t kChunksPerBatch = 16;

struct Arena {
    std::mutex lock;
    Chunk* current = nullptr;
    char* cutFrom = nullptr;
    char* cutEnd = nullptr;
    std::size_t reserved = 0;
    // Empty shared chunks, linked through their first word.
    Chunk* spare = nullptr;
    char* batchFrom = nullptr;
    char* batchEnd = nullptr;
    // Every batch, kept for the life of the process; this also tells a
    // leak checker that the chunks inside them are held.
    std::vector<void*> batches;
};

// Never destroyed: records may release their strings after any static
// destructor has run.
Arena& arena() {
    static Arena* const instance = new Arena();
    return *instance;
}

void* alignedBlock(std::size_t size) {
    void* block = nullptr;
    if (::posix_memalign(&block, kChunkSize, size) != 0) {
        throw std::bad_alloc();
    }
    return block;
}

void* sharedChunk(Arena& texts) {
    if (texts.spare != nullptr) {
        Chunk* chunk = texts.spare;
        std::memcpy(&texts.spare, chunk, sizeof(Chunk*));
        return chunk;
    }
    if (texts.batchFrom == texts.batchEnd) {
        texts.batches.reserve(texts.batches.size() + 1);
        texts.batchFrom = static_cast<char*>(alignedBlock(kChunksPerBatch * kChunkSize));
        texts.batchEnd = texts.batchFrom + kChunksPerBatch * kChunkSize;
        texts.batches.push_back(texts.batchFrom);
    }
    void* chunk = texts.batchFrom;
    texts.batchFrom += kChunkSize;
    return chunk;
}

// A shared chunk, or for a long string a block of `size` bytes of its own.
Chunk* newChunk(Arena& texts, std::size_t size) {
    Chunk* chunk = static_cast<Chunk*>(size == kChunkSize ? sharedChunk(texts) : alignedBlock(size));
    chunk->live = 0;
    chunk->size = size;
    texts.reserved += size;
    return chunk;
}

void freeChunk(Arena& texts, Chunk* chunk) {
    texts.reserved -= chunk->size;
    if (chunk->size == kChunkSize) {
        std::memcpy(chunk, &texts.spare, sizeof(Chunk*));
        texts.spare = chunk;
    } else {
        std::free(chunk);
    }
}

char* cut(Chunk* chunk, char* copy, const char* text, std::size_t length) {
    std::memcpy(copy, text, length);
    copy[length] = '\0';
    ++chunk->live;
    return copy;
}

} // namespace

char* TextArena::copy(const char* text, std::size_t length) {
    if (kAddressSanitizerBuild) {
        char* copy = new char[length + 1];
        std::memcpy(copy, text, length);
        copy[length] = '\0';
        return copy;
    }
    const std::size_t need = length + 1;
    Arena& texts = arena();
    PoolLock guard(texts.lock);
    if (length > kLongString) {
        Chunk* own = newChunk(texts, sizeof(Chunk) + need);
        return cut(own, reinterpret_cast<char*>(own + 1), text, length);
    }
    if (texts.current == nullptr || static_cast<std::size_t>(texts.cutEnd - texts.cutFrom) < need) {
        // The chunk that stops being current goes now if nothing in it is
        // in use any more; otherwise with its last string.
        if (texts.current != nullptr && texts.current->live == 0) {
            freeChunk(texts, texts.current);
        }
        texts.current = newChunk(texts, kChunkSize);
        texts.cutFrom = reinterpret_cast<char*>(texts.current + 1);
        texts.cutEnd = reinterpret_cast<char*>(texts.current) + kChunkSize;
    }
    char* copy = cut(texts.current, texts.cutFrom, text, length);
    texts.cutFrom += need;
    return copy;
}

void TextArena::release(char* text) noexcept {
    if (text == nullptr) {
        return;
    }
    if (kAddressSanitizerBuild) {
        delete[] text;
        return;
    }
    Chunk* chunk = chunkOf(text);
    Arena& texts = arena();
    PoolLock guard(texts.lock);
    if (--chunk->live > 0) {
        return;
    }
    if (chunk == texts.current) {
        // Empty but current: cut from its start again.
        texts.cutFrom = reinterpret_cast<char*>(chunk + 1);
        return;
    }
    freeChunk(texts, chunk);
}

std::size_t TextArena::reservedBytes() {
    Arena& texts = arena();
    PoolLock guard(texts.lock);
    return texts.reserved;
}

} // namespace ZefModelRepositoryService
