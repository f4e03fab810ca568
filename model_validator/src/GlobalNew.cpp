// The validator's global operator new and delete, over its small-block heap
// (SmallBlockHeap.h). They replace the standard ones for the whole process:
// the XML reader's DOM, the strings and containers, and the plug-ins it
// loads. Only the command has them; the repository built into a management
// framework allocates as its host does.
//
// Left out of a build with AddressSanitizer, which must see every
// allocation to check it. Valgrind's memcheck puts its own in their place,
// as it does for the standard ones, and so still checks every block. The
// aligned forms are not replaced: the standard ones pair aligned_alloc with
// free between themselves.

#include <new>

#include "SmallBlockHeap.h"

#if !defined(__SANITIZE_ADDRESS__)

namespace {

void* allocateOrThrow(std::size_t size) {
    for (;;) {
        if (void* block = Zef::SmallBlockHeap::allocate(size)) {
            return block;
        }
        const std::new_handler handler = std::get_new_handler();
        if (handler == nullptr) {
            throw std::bad_alloc();
        }
        handler();
    }
}

void* allocateOrNull(std::size_t size) noexcept {
    try {
        return allocateOrThrow(size);
    } catch (...) {
        return nullptr;
    }
}

} // namespace

void* operator new(std::size_t size) { return allocateOrThrow(size); }
void* operator new[](std::size_t size) { return allocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return allocateOrNull(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return allocateOrNull(size); }

void operator delete(void* block) noexcept { Zef::SmallBlockHeap::release(block); }
void operator delete[](void* block) noexcept { Zef::SmallBlockHeap::release(block); }
void operator delete(void* block, std::size_t) noexcept { Zef::SmallBlockHeap::release(block); }
void operator delete[](void* block, std::size_t) noexcept { Zef::SmallBlockHeap::release(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { Zef::SmallBlockHeap::release(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { Zef::SmallBlockHeap::release(block); }

#endif
