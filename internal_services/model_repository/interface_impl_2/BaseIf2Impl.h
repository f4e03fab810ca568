#ifndef ZEF_BASE_IF2_IMPL_H
#define ZEF_BASE_IF2_IMPL_H

#include <cstddef>
#include <cstdint>

#include "RecordPool.h"

namespace ZefModelRepositoryService {

/// Base of every interface object of the model query interface: the handle
/// under which the manager registered the object.
///
/// Interface objects refer back to their element records and are owned by
/// the manager's arrays, so they are neither copied nor assigned.
///
/// Each array holds and deletes objects of its one final class, never
/// through this base: the destructor is not virtual, which spares every
/// object a table pointer (a model has hundreds of thousands of them), and
/// protected, so that no code can delete an object through the base.
class BaseIf2Impl {
public:
    BaseIf2Impl() = default;

    BaseIf2Impl(const BaseIf2Impl&) = delete;
    BaseIf2Impl& operator=(const BaseIf2Impl&) = delete;

    /// Interface objects come from the record pool, beside their records
    /// (see RecordPool).
    static void* operator new(std::size_t size) { return RecordPool::allocate(size); }
    static void operator delete(void* block, std::size_t size) noexcept { RecordPool::release(block, size); }

    /// Stores the handle the manager assigned when the object was pushed.
    void pushedWithHandle(unsigned long long handle) { _handle = handle; }
    /// The assigned handle; 0 until the object has been pushed.
    uint64_t getHandle() const { return _handle; }

protected:
    ~BaseIf2Impl() = default;

private:
    uint64_t _handle = 0;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_BASE_IF2_IMPL_H
