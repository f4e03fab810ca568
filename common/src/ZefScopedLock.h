#ifndef ZEF_SCOPED_LOCK_H
#define ZEF_SCOPED_LOCK_H

namespace Zef {

class ZefThreadLock;

/// Holds a ZefThreadLock for the lifetime of a scope, so that every return
/// and every exception path releases it.
class ZefScopedLock {
public:
    /// Takes the lock; throws what ZefThreadLock::lock() throws.
    explicit ZefScopedLock(ZefThreadLock& lock);
    /// Releases the lock if it is still held; never throws.
    ~ZefScopedLock();

    ZefScopedLock(const ZefScopedLock&) = delete;
    ZefScopedLock& operator=(const ZefScopedLock&) = delete;

    /// Releases the lock early (e.g. before calling out into an interface
    /// that may log again); throws what ZefThreadLock::unlock() throws.
    void release();
    /// Whether this scope still holds the lock.
    bool holds() const { return _held; }

private:
    ZefThreadLock& _lock;
    bool _held;
};

} // namespace Zef

#endif // ZEF_SCOPED_LOCK_H
