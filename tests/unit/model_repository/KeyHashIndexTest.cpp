#include <gtest/gtest.h>

#include <list>
#include <memory>
#include <string>

#include "KeyHashIndex.h"

using namespace ZefModelRepositoryService;

namespace {

/// A listed record: only its key matters to the index.
struct Keyed {
    explicit Keyed(const std::string& key) : key(key) {}
    std::string getId() const { return key; }
    std::string key;
};

/// A list of records and its index, filled as the list owners fill theirs.
struct IndexedList {
    void add(const std::string& key)
    {
        owned.emplace_back(new Keyed(key));
        list.push_back(owned.back().get());
        index.add(KeyHashIndex::hashOf(key));
    }
    bool contains(const std::string& key) const { return index.contains(list, key, KeyHashIndex::hashOf(key)); }

    std::list<std::unique_ptr<Keyed>> owned;
    std::list<Keyed*> list;
    KeyHashIndex index;
};

} // namespace

TEST(KeyHashIndexTest, EqualKeysHaveEqualHashes)
{
    EXPECT_EQ(KeyHashIndex::hashOf("m~1.0~C~a"), KeyHashIndex::hashOf(std::string("m~1.0~C~") + "a"));
    EXPECT_NE(KeyHashIndex::hashOf("m~1.0~C~a"), KeyHashIndex::hashOf("m~1.0~C~b"));
}

TEST(KeyHashIndexTest, EmptyIndexContainsNothing)
{
    IndexedList l;
    EXPECT_FALSE(l.contains("a"));
    EXPECT_FALSE(l.contains(""));
}

TEST(KeyHashIndexTest, FindsEveryListedKeyAndNoOther)
{
    IndexedList l;
    for (int i = 0; i < 100; ++i) {
        l.add("k" + std::to_string(i));
    }
    for (int i = 0; i < 100; ++i) {
        EXPECT_TRUE(l.contains("k" + std::to_string(i))) << i;
    }
    EXPECT_FALSE(l.contains("k100"));
    EXPECT_FALSE(l.contains("K1"));
}

TEST(KeyHashIndexTest, AMatchingHashIsConfirmedByTheListedKey)
{
    IndexedList l;
    l.add("a");
    // The hash of "a" with another key: the listed record's key decides.
    EXPECT_FALSE(l.index.contains(l.list, "b", KeyHashIndex::hashOf("a")));
    EXPECT_TRUE(l.index.contains(l.list, "a", KeyHashIndex::hashOf("a")));
}
