#include <gtest/gtest.h>

#include "DnUtil.h"

using Zef::DnUtil;

TEST(DnUtilTest, ClassOfTheLeafPair) {
    EXPECT_EQ("Leaf", DnUtil::getClass("Top=1,Sub=2,Leaf=3"));
    EXPECT_EQ("Top", DnUtil::getClass("Top=1"));
}

TEST(DnUtilTest, PopRemovesTheLeafPair) {
    EXPECT_EQ("Top=1,Sub=2", DnUtil::popLeafClass("Top=1,Sub=2,Leaf=3"));
    EXPECT_EQ("Top=1", DnUtil::popLeafClass("Top=1,Sub=2"));
    EXPECT_EQ("", DnUtil::popLeafClass("Top=1"));
}

TEST(DnUtilTest, EscapedCommaDoesNotSeparatePairs) {
    EXPECT_EQ("Leaf", DnUtil::getClass("Top=a\\,b,Leaf=x\\,y"));
    EXPECT_EQ("Top=a\\,b", DnUtil::popLeafClass("Top=a\\,b,Leaf=x\\,y"));
    EXPECT_EQ("Top", DnUtil::getClass("Top=a\\,b"));
    EXPECT_EQ("", DnUtil::popLeafClass("Top=a\\,b"));
}

TEST(DnUtilTest, EscapedBackslashBeforeCommaStillSeparates) {
    EXPECT_EQ("Leaf", DnUtil::getClass("Top=a\\\\,Leaf=1"));
    EXPECT_EQ("Top=a\\\\", DnUtil::popLeafClass("Top=a\\\\,Leaf=1"));
}

TEST(DnUtilTest, BlanksAroundTheClassAreIgnored) {
    EXPECT_EQ("Sub", DnUtil::getClass("Top=1, Sub=2"));
}

TEST(DnUtilTest, EmptyAndValuelessNames) {
    EXPECT_EQ("", DnUtil::getClass(""));
    EXPECT_EQ("", DnUtil::popLeafClass(""));
    EXPECT_EQ("Leaf", DnUtil::getClass("Top=1,Leaf"));
}
