#include <gtest/gtest.h>

#include <string>

#include "TextPool.h"

using namespace ZefModelRepositoryService;

TEST(TextPoolTest, EqualTextsShareOneCopy)
{
    const std::string& first = TextPool::shared("QCIM");
    const std::string& second = TextPool::shared(std::string("QC") + "IM");
    EXPECT_EQ("QCIM", first);
    EXPECT_EQ(&first, &second);
}

TEST(TextPoolTest, DifferentTextsAreDifferentCopies)
{
    const std::string& upper = TextPool::shared("CURRENT");
    const std::string& lower = TextPool::shared("current");
    EXPECT_NE(&upper, &lower);
    EXPECT_EQ("CURRENT", upper);
    EXPECT_EQ("current", lower);
}

TEST(TextPoolTest, PooledTextsStayWhereTheyAreAsThePoolGrows)
{
    const std::string& kept = TextPool::shared("isNillable");
    const char* const data = kept.c_str();
    for (int i = 0; i < 5000; ++i) {
        TextPool::shared("text" + std::to_string(i));
    }
    EXPECT_EQ(&kept, &TextPool::shared("isNillable"));
    EXPECT_EQ(data, kept.c_str());
    EXPECT_EQ("isNillable", kept);
}

TEST(TextPoolTest, EmptyTextIsPooledToo)
{
    EXPECT_EQ("", TextPool::empty());
    EXPECT_EQ(&TextPool::empty(), &TextPool::shared(""));
}
