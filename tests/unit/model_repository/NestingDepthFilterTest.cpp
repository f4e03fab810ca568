// The depth guard of the reading chain.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include <Poco/DOM/NodeList.h>

#include "GuardChainTestSupport.h"
#include "NestingDepthFilter.h"

using ZefModelRepositoryService::NestingDepthFilter;
using ZefModelRepositoryService::XmlGuardFilter;
using ZefModelRepositoryService::XmlParseStop;

namespace {

ZefTest::GuardFactory depthLimit(std::uint64_t limit) {
    return [limit](Poco::XML::XMLReader* parent, XmlParseStop& stop) {
        return std::unique_ptr<XmlGuardFilter>(new NestingDepthFilter(parent, stop, limit));
    };
}

} // namespace

TEST(NestingDepthFilterTest, NestingUpToTheLimitPasses) {
    const ZefTest::GuardedRead read = ZefTest::readGuarded(ZefTest::nestedElements(4), depthLimit(4));
    EXPECT_EQ("", read.refusal);
    ASSERT_FALSE(read.document.isNull());
    Poco::AutoPtr<Poco::XML::NodeList> elements = read.document->getElementsByTagName("e");
    EXPECT_EQ(4u, elements->length());
}

TEST(NestingDepthFilterTest, SiblingsDoNotAddUp) {
    const ZefTest::GuardedRead read =
        ZefTest::readGuarded("<r>" + ZefTest::nestedElements(2) + ZefTest::nestedElements(2) + "</r>", depthLimit(3));
    EXPECT_EQ("", read.refusal);
}

TEST(NestingDepthFilterTest, OneLevelPastTheLimitIsRefused) {
    const ZefTest::GuardedRead read = ZefTest::readGuarded(ZefTest::nestedElements(5), depthLimit(4));
    EXPECT_EQ("elements nested deeper than 4 levels (ZEF_VALIDATOR_MAX_DEPTH)", read.refusal);
}

TEST(NestingDepthFilterTest, DeepDocumentStopsTheReaderAtTheNextChunk) {
    const ZefTest::GuardedRead read = ZefTest::readGuarded(ZefTest::nestedElements(100000), depthLimit(100));
    EXPECT_EQ("elements nested deeper than 100 levels (ZEF_VALIDATOR_MAX_DEPTH)", read.refusal);
    EXPECT_TRUE(read.document.isNull());
    EXPECT_NE("", read.readerError);
}
