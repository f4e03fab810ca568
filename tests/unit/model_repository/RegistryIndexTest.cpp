// The index of a registry by the address of its published records.

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "MocWrapper.h"
#include "RegistryIndex.h"

using ZefModelRepositoryService::MocWrapper;
using ZefModelRepositoryService::RegistryIndex;

namespace {

using Mocs = std::map<std::string, MocWrapper*>;

} // namespace

TEST(RegistryIndexTest, ARegisteredRecordLeadsToItsWrapperItsKeyAndItsPlaceInKeyOrder) {
    MocWrapper a;
    MocWrapper b;
    MocWrapper c;
    const Mocs mocs{{"M~1~C", &c}, {"M~1~A", &a}, {"M~1~B", &b}};
    const RegistryIndex<Mocs> index(mocs);
    EXPECT_EQ(3u, index.size());
    const RegistryIndex<Mocs>::Entry* entry = index.find(&b.getStruct());
    ASSERT_NE(nullptr, entry);
    EXPECT_EQ(&b.getStruct(), entry->record);
    EXPECT_EQ(&b, entry->wrapper);
    EXPECT_EQ(&mocs.find("M~1~B")->first, entry->key);
    EXPECT_EQ(1u, entry->rank);
    EXPECT_EQ(0u, index.find(&a.getStruct())->rank);
    EXPECT_EQ(2u, index.find(&c.getStruct())->rank);
    EXPECT_EQ("M~1~C", *index.keyOf(&c.getStruct()));
}

TEST(RegistryIndexTest, EveryRegisteredRecordHasAPlaceOfItsOwn) {
    MocWrapper a;
    MocWrapper b;
    const Mocs mocs{{"M~1~A", &a}, {"M~1~B", &b}};
    const RegistryIndex<Mocs> index(mocs);
    const std::size_t first = index.indexOf(&a.getStruct());
    const std::size_t second = index.indexOf(&b.getStruct());
    EXPECT_LT(first, index.size());
    EXPECT_LT(second, index.size());
    EXPECT_NE(first, second);
}

TEST(RegistryIndexTest, AnUnregisteredRecordIsNotFound) {
    MocWrapper registered;
    MocWrapper other;
    const Mocs mocs{{"M~1~A", &registered}};
    const RegistryIndex<Mocs> index(mocs);
    EXPECT_EQ(RegistryIndex<Mocs>::kNone, index.indexOf(&other.getStruct()));
    EXPECT_EQ(nullptr, index.find(&other.getStruct()));
    EXPECT_EQ(nullptr, index.keyOf(&other.getStruct()));
    EXPECT_EQ(nullptr, index.find(nullptr));
    const RegistryIndex<Mocs> empty{Mocs()};
    EXPECT_EQ(0u, empty.size());
    EXPECT_EQ(nullptr, empty.find(&registered.getStruct()));
}
