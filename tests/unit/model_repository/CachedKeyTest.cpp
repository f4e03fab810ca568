#include <gtest/gtest.h>

#include <string>

#include "CachedKey.h"

using namespace ZefModelRepositoryService;

TEST(CachedKeyTest, NewCacheIsEmpty)
{
    const CachedKey key;
    EXPECT_TRUE(key.empty());
    EXPECT_EQ("", key.str());
}

TEST(CachedKeyTest, KeepsTheKeyGiven)
{
    CachedKey key;
    key.set("Mom003~2~Radio003_0~radio003_0Id");
    EXPECT_FALSE(key.empty());
    EXPECT_EQ("Mom003~2~Radio003_0~radio003_0Id", key.str());
    key.set("m~1~C~a");
    EXPECT_EQ("m~1~C~a", key.str());
}

TEST(CachedKeyTest, EmptyKeyLeavesTheCacheEmpty)
{
    CachedKey key;
    key.set("");
    EXPECT_TRUE(key.empty());
    key.set("m~1~C");
    key.set("");
    EXPECT_TRUE(key.empty());
    EXPECT_EQ("", key.str());
}

TEST(CachedKeyTest, KeepKeepsTheKeyAndHandsItBack)
{
    CachedKey key;
    EXPECT_EQ("M~1~C~a", key.keep("M~1~C~a"));
    EXPECT_FALSE(key.empty());
    EXPECT_EQ("M~1~C~a", key.str());
    EXPECT_EQ("", key.keep(""));
    EXPECT_TRUE(key.empty());
}
