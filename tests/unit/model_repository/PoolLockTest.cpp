// The lock of the record and text pools: taken only while the process may
// run more than one thread.

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <thread>

#include <sys/single_threaded.h>

#include "PoolLock.h"

using ZefModelRepositoryService::PoolLock;

TEST(PoolLockTest, AProcessOfOneThreadTakesNoLock) {
    if (!__libc_single_threaded) {
        GTEST_SKIP() << "another test of this process has started a thread";
    }
    std::mutex mutex;
    {
        const PoolLock guard(mutex);
        EXPECT_TRUE(mutex.try_lock());
        mutex.unlock();
    }
    EXPECT_TRUE(mutex.try_lock());
    mutex.unlock();
}

TEST(PoolLockTest, WithASecondThreadTheLockIsHeldForTheOperation) {
    std::atomic<bool> release(false);
    std::thread other([&release] {
        while (!release) {
            std::this_thread::yield();
        }
    });
    ASSERT_FALSE(__libc_single_threaded);
    std::mutex mutex;
    {
        const PoolLock guard(mutex);
        bool taken = false;
        std::thread probe([&mutex, &taken] {
            taken = mutex.try_lock();
            if (taken) {
                mutex.unlock();
            }
        });
        probe.join();
        EXPECT_FALSE(taken);
    }
    EXPECT_TRUE(mutex.try_lock());
    mutex.unlock();
    release = true;
    other.join();
}
