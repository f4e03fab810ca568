#include "ZefScopedLock.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

#include "ZefException.h"
#include "ZefThreadLock.h"

using Zef::ZefInternalErrorException;
using Zef::ZefScopedLock;
using Zef::ZefThreadLock;

namespace {

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

TEST(ZefScopedLockTest, HoldsForTheScope) {
    ZefThreadLock lock;
    {
        ZefScopedLock guard(lock);
        EXPECT_TRUE(guard.holds());
        EXPECT_FALSE(freeForOtherThread(lock));
    }
    EXPECT_TRUE(freeForOtherThread(lock));
}

TEST(ZefScopedLockTest, ReleaseEarly) {
    ZefThreadLock lock;
    ZefScopedLock guard(lock);
    guard.release();
    EXPECT_FALSE(guard.holds());
    EXPECT_TRUE(freeForOtherThread(lock));
    // A second release and the destructor leave the free mutex alone.
    guard.release();
    EXPECT_TRUE(freeForOtherThread(lock));
}

TEST(ZefScopedLockTest, ReleasesWhenAnExceptionLeavesTheScope) {
    ZefThreadLock lock;
    try {
        ZefScopedLock guard(lock);
        throw std::runtime_error("leave");
    } catch (const std::runtime_error&) {
    }
    EXPECT_TRUE(freeForOtherThread(lock));
}

TEST(ZefScopedLockTest, NestedScopeOnTheSameLockThrowsAndKeepsTheOuterHold) {
    ZefThreadLock lock;
    ZefScopedLock outer(lock);
    EXPECT_THROW(ZefScopedLock inner(lock), ZefInternalErrorException);
    EXPECT_FALSE(freeForOtherThread(lock));
    outer.release();
    EXPECT_TRUE(freeForOtherThread(lock));
}
