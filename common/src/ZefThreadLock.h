#ifndef ZEF_THREAD_LOCK_H
#define ZEF_THREAD_LOCK_H

#include <pthread.h>

namespace Zef {

/// A POSIX mutex of the error-checking type: locking it twice from one
/// thread, or unlocking it without holding it, is reported instead of
/// deadlocking or passing silently.
class ZefThreadLock {
public:
    /// Creates the mutex. Throws ZefInternalErrorException when the attribute
    /// or the mutex cannot be set up.
    ZefThreadLock();
    ~ZefThreadLock();

    ZefThreadLock(const ZefThreadLock&) = delete;
    ZefThreadLock& operator=(const ZefThreadLock&) = delete;

    /// Takes the mutex. Throws ZefInternalErrorException when the C library
    /// refuses (e.g. the calling thread already holds it).
    void lock();
    /// Releases the mutex. Throws ZefInternalErrorException when the C
    /// library refuses (e.g. the calling thread does not hold it).
    void unlock();
    /// Releases the mutex without any check, for error paths that must not throw.
    void errUnlock();
    /// The underlying mutex.
    pthread_mutex_t* getMutex() { return &_mutex; }

private:
    pthread_mutexattr_t _attr;
    pthread_mutex_t _mutex;
};

} // namespace Zef

#endif // ZEF_THREAD_LOCK_H
