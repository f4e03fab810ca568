#ifndef ZEF_POOL_LOCK_H
#define ZEF_POOL_LOCK_H

#include <mutex>

#include <sys/single_threaded.h>

namespace ZefModelRepositoryService {

/// Holds a pool's mutex for one operation, but only while the process may
/// run more than one thread. The record and text pools are asked millions
/// of times for a large model, almost always by a process of one thread,
/// where no other thread can race the operation and the lock would only
/// cost. A process never becomes single-threaded again once a second
/// thread existed, and a thread cannot be started from inside the
/// operation, so the choice made on entry holds until the exit.
class PoolLock {
public:
    explicit PoolLock(std::mutex& mutex) : _mutex(__libc_single_threaded ? nullptr : &mutex) {
        if (_mutex != nullptr) {
            _mutex->lock();
        }
    }
    ~PoolLock() {
        if (_mutex != nullptr) {
            _mutex->unlock();
        }
    }

    PoolLock(const PoolLock&) = delete;
    PoolLock& operator=(const PoolLock&) = delete;

private:
    std::mutex* _mutex;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_POOL_LOCK_H
