#ifndef ZEF_TEXT_ARENA_H
#define ZEF_TEXT_ARENA_H

#include <cstddef>

namespace ZefModelRepositoryService {

/// Storage for the C strings of the element records (names, descriptions,
/// default values, ...), of which a large model has hundreds of thousands.
/// Strings are cut one after the other from large chunks aligned to their
/// size, instead of one heap block each: a short string then costs its
/// length, not a heap block's header and rounding, and releasing it only
/// counts down the chunk its address falls in. A chunk serves later
/// strings once its last string is released (a long string has a chunk of
/// its own, which goes back to the heap), so a repository that is emptied
/// and loaded again reuses the memory.
///
/// Thread-safe. In a build with AddressSanitizer every string is a heap
/// block of its own, so that the sanitizer sees each one.
class TextArena {
public:
    /// A NUL-terminated copy of the `length` bytes at `text`. Throws
    /// std::bad_alloc.
    static char* copy(const char* text, std::size_t length);

    /// Gives back a string that copy() returned; null is ignored.
    static void release(char* text) noexcept;

    /// Bytes in the chunks that hold strings (0 in a build that bypasses the
    /// arena).
    static std::size_t reservedBytes();
};

} // namespace ZefModelRepositoryService

#endif // ZEF_TEXT_ARENA_H
