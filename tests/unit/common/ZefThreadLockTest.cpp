#include "ZefThreadLock.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <thread>

#include "ZefException.h"

using Zef::ZefInternalErrorException;
using Zef::ZefThreadLock;

namespace {

// Whether another thread could take the mutex right now.
bool freeForOtherThread(ZefThreadLock& lock) {
    int rc = -1;
    std::thread other([&] {
        rc = pthread_mutex_trylock(lock.getMutex());
        if (rc == 0)
            pthread_mutex_unlock(lock.getMutex());
    });
    other.join();
    return rc == 0;
}

} // namespace

TEST(ZefThreadLockTest, LockAndUnlock) {
    ZefThreadLock lock;
    EXPECT_TRUE(freeForOtherThread(lock));
    lock.lock();
    EXPECT_FALSE(freeForOtherThread(lock));
    lock.unlock();
    EXPECT_TRUE(freeForOtherThread(lock));
}

TEST(ZefThreadLockTest, GetMutexIsTheLockedMutex) {
    ZefThreadLock lock;
    lock.lock();
    EXPECT_EQ(EBUSY, pthread_mutex_trylock(lock.getMutex()));
    lock.unlock();
    EXPECT_EQ(0, pthread_mutex_trylock(lock.getMutex()));
    EXPECT_EQ(0, pthread_mutex_unlock(lock.getMutex()));
}

TEST(ZefThreadLockTest, LockingTwiceThrows) {
    ZefThreadLock lock;
    lock.lock();
    try {
        lock.lock();
        FAIL() << "second lock did not throw";
    } catch (const ZefInternalErrorException& e) {
        EXPECT_EQ("TxThreadLock::put, pthread_mutex_lock failed(35,Resource deadlock avoided)", e.getReason());
        EXPECT_STREQ("ZefInternalErrorException(TxThreadLock::put, pthread_mutex_lock failed(35,Resource deadlock "
                     "avoided))",
                     e.what());
        EXPECT_EQ(-1, e.getCode());
    }
    lock.unlock();
    EXPECT_TRUE(freeForOtherThread(lock));
}

TEST(ZefThreadLockTest, UnlockingWithoutHoldingThrowsWithTheLockText) {
    ZefThreadLock lock;
    try {
        lock.unlock();
        FAIL() << "unlock without lock did not throw";
    } catch (const ZefInternalErrorException& e) {
        EXPECT_EQ("TxThreadLock::put, pthread_mutex_lock failed(1,Operation not permitted)", e.getReason());
    }
}

TEST(ZefThreadLockTest, UnlockingFromAnotherThreadThrows) {
    ZefThreadLock lock;
    lock.lock();
    bool thrown = false;
    std::thread other([&] {
        try {
            lock.unlock();
        } catch (const ZefInternalErrorException& e) {
            thrown = e.getReason() == "TxThreadLock::put, pthread_mutex_lock failed(1,Operation not permitted)";
        }
    });
    other.join();
    EXPECT_TRUE(thrown);
    EXPECT_FALSE(freeForOtherThread(lock));
    lock.unlock();
}

TEST(ZefThreadLockTest, ErrUnlockNeverThrows) {
    ZefThreadLock lock;
    EXPECT_NO_THROW(lock.errUnlock());
    lock.lock();
    EXPECT_NO_THROW(lock.errUnlock());
    EXPECT_TRUE(freeForOtherThread(lock));
}

TEST(ZefThreadLockTest, ExcludesOtherThreads) {
    ZefThreadLock lock;
    long counter = 0;
    auto work = [&] {
        for (int i = 0; i < 20000; ++i) {
            lock.lock();
            ++counter;
            lock.unlock();
        }
    };
    std::thread a(work);
    std::thread b(work);
    a.join();
    b.join();
    EXPECT_EQ(40000, counter);
}
