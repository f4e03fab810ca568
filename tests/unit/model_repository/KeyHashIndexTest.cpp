#include <gtest/gtest.h>

#include <list>
#include <memory>
#include <string>
#include <vector>

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
    void add(const std::string& key) { addWithHash(key, KeyHashIndex::hashOf(key)); }
    /// As add, under a hash of the test's choice (to make hashes collide).
    void addWithHash(const std::string& key, std::size_t hash)
    {
        owned.emplace_back(new Keyed(key));
        list.push_back(owned.back().get());
        index.add(hash);
    }
    bool contains(const std::string& key) const { return index.contains(list, key, KeyHashIndex::hashOf(key)); }
    std::size_t positionOf(const std::string& key) const
    {
        return index.positionOf(list, key, KeyHashIndex::hashOf(key));
    }

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

TEST(KeyHashIndexTest, ScanLimitIsThirtyTwo)
{
    EXPECT_EQ(32u, KeyHashIndex::kScanLimit);
}

TEST(KeyHashIndexTest, LongListAnswersAsALoopOverTheList)
{
    // Past the scan limit the table answers; the answer must stay the one a
    // walk over the list comparing every key gives, at every length.
    IndexedList l;
    std::vector<std::string> keys;
    for (int i = 0; i < 300; ++i) {
        const std::string key = "m~1~C~attr" + std::to_string(i);
        for (const std::string& probe : {key, keys.empty() ? std::string("none") : keys.front(),
                                         keys.empty() ? std::string("none") : keys.back()}) {
            bool listed = false;
            for (const Keyed* record : l.list) {
                listed = listed || record->getId() == probe;
            }
            EXPECT_EQ(listed, l.contains(probe)) << "length " << i << ", key " << probe;
        }
        l.add(key);
        keys.push_back(key);
        EXPECT_EQ(keys.size(), l.index.size());
    }
    for (const std::string& key : keys) {
        EXPECT_TRUE(l.contains(key)) << key;
    }
    EXPECT_FALSE(l.contains("m~1~C~attr300"));
    EXPECT_FALSE(l.contains("m~1~C~"));
}

TEST(KeyHashIndexTest, CollidingHashesAreToldApartByTheKeysInShortAndLongLists)
{
    for (const int length : {3, 100}) {
        IndexedList l;
        for (int i = 0; i < length; ++i) {
            // Every record under one hash: only the keys can tell them apart.
            l.addWithHash("k" + std::to_string(i), 7);
        }
        for (int i = 0; i < length; ++i) {
            EXPECT_TRUE(l.index.contains(l.list, "k" + std::to_string(i), 7)) << length << " " << i;
        }
        EXPECT_FALSE(l.index.contains(l.list, "k" + std::to_string(length), 7)) << length;
        EXPECT_FALSE(l.index.contains(l.list, "k0", 8)) << length;
    }
}

TEST(KeyHashIndexTest, WorksOverAVectorAsOverAList)
{
    std::vector<std::unique_ptr<Keyed>> owned;
    std::vector<Keyed*> list;
    KeyHashIndex index;
    for (int i = 0; i < 50; ++i) {
        owned.emplace_back(new Keyed("v" + std::to_string(i)));
        list.push_back(owned.back().get());
        index.add(KeyHashIndex::hashOf(list.back()->key));
    }
    EXPECT_TRUE(index.contains(list, "v0", KeyHashIndex::hashOf("v0")));
    EXPECT_TRUE(index.contains(list, "v49", KeyHashIndex::hashOf("v49")));
    EXPECT_FALSE(index.contains(list, "v50", KeyHashIndex::hashOf("v50")));
}

TEST(KeyHashIndexTest, PositionOfAListedKeyInShortAndLongLists)
{
    IndexedList short_;
    IndexedList long_;
    for (int i = 0; i < 1000; ++i) {
        if (i < 10) {
            short_.add("k" + std::to_string(i));
        }
        long_.add("k" + std::to_string(i));
    }
    EXPECT_EQ(0u, short_.positionOf("k0"));
    EXPECT_EQ(9u, short_.positionOf("k9"));
    EXPECT_EQ(KeyHashIndex::kNone, short_.positionOf("k10"));
    EXPECT_EQ(0u, long_.positionOf("k0"));
    EXPECT_EQ(777u, long_.positionOf("k777"));
    EXPECT_EQ(999u, long_.positionOf("k999"));
    EXPECT_EQ(KeyHashIndex::kNone, long_.positionOf("k1000"));
}
