#ifndef ZEF_BASE_IF2_IMPL_H
#define ZEF_BASE_IF2_IMPL_H

#include <cstdint>

namespace ZefModelRepositoryService {

/// Base of every interface object of the model query interface: the handle
/// under which the manager registered the object.
///
/// Interface objects refer back to their element records and are owned by
/// the manager's arrays, so they are neither copied nor assigned.
class BaseIf2Impl {
public:
    BaseIf2Impl() = default;
    virtual ~BaseIf2Impl() = default;

    BaseIf2Impl(const BaseIf2Impl&) = delete;
    BaseIf2Impl& operator=(const BaseIf2Impl&) = delete;

    /// Stores the handle the manager assigned when the object was pushed.
    void pushedWithHandle(unsigned long long handle) { _handle = handle; }
    /// The assigned handle; 0 until the object has been pushed.
    uint64_t getHandle() const { return _handle; }

private:
    uint64_t _handle = 0;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_BASE_IF2_IMPL_H
