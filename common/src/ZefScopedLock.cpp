#include "ZefScopedLock.h"

#include "ZefThreadLock.h"

namespace Zef {

ZefScopedLock::ZefScopedLock(ZefThreadLock& lock) : _lock(lock), _held(false) {
    _lock.lock();
    _held = true;
}

ZefScopedLock::~ZefScopedLock() {
    // A destructor must not throw; this scope holds the lock, so the
    // unchecked release cannot fail anyway.
    if (_held)
        _lock.errUnlock();
}

void ZefScopedLock::release() {
    if (!_held)
        return;
    _held = false;
    _lock.unlock();
}

} // namespace Zef
