#ifndef ZEF_SMALL_BLOCK_HEAP_H
#define ZEF_SMALL_BLOCK_HEAP_H

#include <cstddef>

namespace Zef {

/// The validator's heap for small blocks, behind its global operator new
/// and delete. A run builds and releases one DOM after another: millions of
/// nodes, names and texts of a few sizes, each made and freed once. Here a
/// block of a size class is taken from and given back to a free list of
/// its class, without the general heap's bookkeeping of neighbours, bins
/// and consolidation.
///
/// Blocks of up to kLargestBlock bytes come from 64 KiB regions of one size
/// class each, taken from malloc in aligned batches; sizes are rounded up to a
/// multiple of 16 and every block is 16-byte aligned, as operator new
/// promises. A map from region to size class tells, for any block given
/// back, whether it is one of these and of which class; anything else (a
/// larger block, or one made when no region could be had) came from malloc
/// and goes back to free. Regions are kept for the life of the process, and
/// a freed block serves later blocks of its class only.
///
/// Thread-safe, and safe across fork: the lock is taken only while the
/// process may run more than one thread, and held over a fork.
class SmallBlockHeap {
public:
    static constexpr std::size_t kLargestBlock = 512;

    /// A block of at least `size` bytes, 16-byte aligned; null when neither
    /// a region nor malloc can provide it.
    static void* allocate(std::size_t size) noexcept;

    /// Gives back a block that allocate returned; null is ignored.
    static void release(void* block) noexcept;

    /// True when `block` lies in a region of this heap (not from malloc).
    static bool holds(const void* block) noexcept;
};

} // namespace Zef

#endif // ZEF_SMALL_BLOCK_HEAP_H
