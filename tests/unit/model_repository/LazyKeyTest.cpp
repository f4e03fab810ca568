// The identity key that compilation and validation read only when a text
// needs it.

#include <gtest/gtest.h>

#include <string>

#include "LazyKey.h"
#include "ZefOamSpiMrTypes.h"

using ZefModelRepositoryService::GeneralPropertiesWrapper;
using ZefModelRepositoryService::LazyKey;

namespace {

/// The general properties the record below reads, set up before its base.
struct Properties {
    ZefOamSpiGeneralProperties gp{};
};

/// A record that counts how often its key is built.
class CountingRecord : private Properties, public GeneralPropertiesWrapper {
public:
    explicit CountingRecord(const std::string& key) : GeneralPropertiesWrapper(gp), _key(key) {}

    std::string getId() const override {
        ++built;
        return _key;
    }

    mutable int built = 0;

private:
    std::string _key;
};

} // namespace

TEST(LazyKeyTest, TheKeyIsBuiltOnFirstUseOnly) {
    const CountingRecord record("M~1~C");
    LazyKey key(&record);
    EXPECT_EQ(0, record.built);
    EXPECT_EQ("M~1~C", key.str());
    EXPECT_STREQ("M~1~C", key());
    EXPECT_EQ(1, record.built);
}

TEST(LazyKeyTest, ANullRecordHasTheEmptyKey) {
    LazyKey key;
    EXPECT_EQ("", key.str());
    LazyKey alsoNone(nullptr);
    EXPECT_STREQ("", alsoNone());
}

TEST(LazyKeyTest, ResetStartsOverForAnotherRecord) {
    const CountingRecord first("M~1~A");
    const CountingRecord second("M~1~B");
    LazyKey key(&first);
    EXPECT_EQ("M~1~A", key.str());
    key.reset(&second);
    EXPECT_EQ(0, second.built);
    EXPECT_EQ("M~1~B", key.str());
    key.reset(&first);
    EXPECT_EQ("M~1~A", key.str());
    EXPECT_EQ(2, first.built);
}
