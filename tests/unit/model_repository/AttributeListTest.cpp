// The attribute list the parser walks: a few attributes in place, more on
// the heap, always in the order they were added.

#include <gtest/gtest.h>

#include <vector>

#include "AttributeList.h"

using ZefModelRepositoryService::AttributeList;

namespace {

// Distinct addresses to stand for attributes; the list never follows them.
Poco::XML::Attr* fake(std::vector<char>& storage, std::size_t index) {
    return reinterpret_cast<Poco::XML::Attr*>(&storage[index]);
}

std::vector<Poco::XML::Attr*> listed(const AttributeList& list) {
    return std::vector<Poco::XML::Attr*>(list.begin(), list.end());
}

} // namespace

TEST(AttributeListTest, ANewListIsEmpty) {
    const AttributeList list;
    EXPECT_EQ(0u, list.size());
    EXPECT_EQ(list.begin(), list.end());
}

TEST(AttributeListTest, AFewAttributesKeepTheirOrder) {
    std::vector<char> storage(10);
    AttributeList list;
    for (std::size_t i = 0; i < 4; ++i) {
        list.push_back(fake(storage, i));
    }
    EXPECT_EQ(4u, list.size());
    EXPECT_EQ((std::vector<Poco::XML::Attr*>{fake(storage, 0), fake(storage, 1), fake(storage, 2), fake(storage, 3)}),
              listed(list));
}

TEST(AttributeListTest, MoreAttributesThanFitInPlaceKeepTheirOrder) {
    std::vector<char> storage(100);
    AttributeList list;
    std::vector<Poco::XML::Attr*> expected;
    for (std::size_t i = 0; i < 100; ++i) {
        list.push_back(fake(storage, i));
        expected.push_back(fake(storage, i));
    }
    EXPECT_EQ(100u, list.size());
    EXPECT_EQ(expected, listed(list));
}

TEST(AttributeListTest, AMovedListKeepsItsAttributes) {
    std::vector<char> storage(10);
    AttributeList small;
    small.push_back(fake(storage, 1));
    const AttributeList movedSmall(std::move(small));
    EXPECT_EQ(std::vector<Poco::XML::Attr*>{fake(storage, 1)}, listed(movedSmall));
    AttributeList large;
    for (std::size_t i = 0; i < 6; ++i) {
        large.push_back(fake(storage, i));
    }
    const AttributeList movedLarge(std::move(large));
    EXPECT_EQ(6u, movedLarge.size());
    EXPECT_EQ(fake(storage, 5), *(movedLarge.end() - 1));
}
