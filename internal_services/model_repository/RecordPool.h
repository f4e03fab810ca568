#ifndef ZEF_RECORD_POOL_H
#define ZEF_RECORD_POOL_H

#include <cstddef>

namespace ZefModelRepositoryService {

/// Storage for the small objects a model has hundreds of thousands of (the
/// element records, their domain extensions and their query interface
/// objects): blocks of one size are cut from large chunks and kept on a
/// free list of their size when released, instead of one heap allocation
/// each. Objects of one size then lie side by side in the order they were
/// made (the attributes of a class one after the other), the order in
/// which compilation and validation visit them, and carry no allocation
/// header of their own.
///
/// Chunks are kept for the life of the process and a released block only
/// serves a later object of its size class. Sizes are rounded up to a
/// multiple of 8; a block whose size is a multiple of 16 is 16-byte
/// aligned, any other is 8-byte aligned, which is all an object of that
/// size can require. Thread-safe.
///
/// The classes that use the pool declare operator new and delete in terms
/// of allocate and release. In a build with AddressSanitizer the pool hands
/// every request to the global operator new, so that the sanitizer sees
/// every object.
class RecordPool {
public:
    /// Requests up to this size are served from the pool; larger ones by
    /// the global operator new.
    static constexpr std::size_t kLargestBlock = 512;

    /// Storage for an object of `size` bytes. Throws std::bad_alloc.
    static void* allocate(std::size_t size);

    /// Gives back storage that allocate(size) returned, with the same size.
    static void release(void* block, std::size_t size) noexcept;

    /// Bytes the pool holds in chunks (0 in a build that bypasses it).
    static std::size_t reservedBytes();
};

} // namespace ZefModelRepositoryService

#endif // ZEF_RECORD_POOL_H
