#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "DomainExtensionList.h"
#include "DomainExtensionWrapper.h"

using namespace ZefModelRepositoryService;

namespace {

struct Extensions {
    DomainExtensionWrapper* make(const std::string& name)
    {
        owned.emplace_back(new DomainExtensionWrapper("QCIM", name, "v"));
        return owned.back().get();
    }
    std::vector<std::unique_ptr<DomainExtensionWrapper>> owned;
};

} // namespace

TEST(DomainExtensionListTest, NewListIsEmpty)
{
    const DomainExtensionList list;
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(0u, list.size());
    EXPECT_EQ(list.begin(), list.end());
}

TEST(DomainExtensionListTest, KeepsTheOrderAddedAsItGrows)
{
    Extensions made;
    DomainExtensionList list;
    std::vector<DomainExtensionWrapper*> expected;
    for (int i = 0; i < 100; ++i) {
        DomainExtensionWrapper* extension = made.make("e" + std::to_string(i));
        list.push_back(extension);
        expected.push_back(extension);
        ASSERT_EQ(expected.size(), list.size());
        EXPECT_EQ(extension, list[list.size() - 1]);
    }
    EXPECT_FALSE(list.empty());
    std::vector<DomainExtensionWrapper*> walked(list.begin(), list.end());
    EXPECT_EQ(expected, walked);
    EXPECT_EQ("e0", list[0]->getName());
    EXPECT_EQ("e99", list[99]->getName());
}

TEST(DomainExtensionListTest, ReserveKeepsTheExtensions)
{
    Extensions made;
    DomainExtensionList list;
    list.reserve(0);
    EXPECT_TRUE(list.empty());
    list.push_back(made.make("a"));
    list.push_back(made.make("b"));
    list.reserve(10);
    list.reserve(1);
    ASSERT_EQ(2u, list.size());
    EXPECT_EQ("a", list[0]->getName());
    EXPECT_EQ("b", list[1]->getName());
    list.push_back(made.make("c"));
    EXPECT_EQ("c", list[2]->getName());
}
