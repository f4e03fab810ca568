#include "ZefThreadLock.h"

#include <cstring>

#include "ZefException.h"

namespace Zef {

ZefThreadLock::ZefThreadLock() {
    int rc = pthread_mutexattr_init(&_attr);
    if (rc != 0)
        throw ZefInternalErrorException("TxThreadLock::ZefThreadLock,pthread_mutexattr_init failed(%i,%s)", rc,
                                        std::strerror(rc));
    rc = pthread_mutexattr_settype(&_attr, PTHREAD_MUTEX_ERRORCHECK);
    if (rc != 0) {
        pthread_mutexattr_destroy(&_attr);
        throw ZefInternalErrorException("TxThreadLock::ZefThreadLock,pthread_mutexattr_settype failed(%i,%s)", rc,
                                        std::strerror(rc));
    }
    rc = pthread_mutex_init(&_mutex, &_attr);
    if (rc != 0) {
        pthread_mutexattr_destroy(&_attr);
        throw ZefInternalErrorException("TxThreadLock::ZefThreadLock,pthread_mutex_init failed(%i,%s)", rc,
                                        std::strerror(rc));
    }
}

ZefThreadLock::~ZefThreadLock() {
    pthread_mutex_destroy(&_mutex);
    pthread_mutexattr_destroy(&_attr);
}

void ZefThreadLock::lock() {
    int rc = pthread_mutex_lock(&_mutex);
    if (rc != 0)
        throw ZefInternalErrorException("TxThreadLock::put, pthread_mutex_lock failed(%i,%s)", rc, std::strerror(rc));
}

void ZefThreadLock::unlock() {
    int rc = pthread_mutex_unlock(&_mutex);
    // A failing release reports with the text of a failing lock, so that one
    // message stands for every fault of this mutex.
    if (rc != 0)
        throw ZefInternalErrorException("TxThreadLock::put, pthread_mutex_lock failed(%i,%s)", rc, std::strerror(rc));
}

void ZefThreadLock::errUnlock() { pthread_mutex_unlock(&_mutex); }

} // namespace Zef
