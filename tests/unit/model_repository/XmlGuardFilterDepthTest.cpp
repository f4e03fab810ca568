// The depth limit of the reading chain's guard filter.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include <Poco/DOM/NodeList.h>

#include "GuardChainTestSupport.h"
#include "InputLimits.h"

using ZefModelRepositoryService::InputLimits;

namespace {

ZefTest::GuardFactory depthLimit(std::uint64_t limit) {
    InputLimits limits;
    limits.maxDepth = limit;
    return ZefTest::guardWith(limits);
}

} // namespace

TEST(XmlGuardFilterDepthTest, NestingUpToTheLimitPasses) {
    const ZefTest::GuardedRead read = ZefTest::readGuarded(ZefTest::nestedElements(4), depthLimit(4));
    EXPECT_EQ("", read.refusal);
    ASSERT_FALSE(read.document.isNull());
    Poco::AutoPtr<Poco::XML::NodeList> elements = read.document->getElementsByTagName("e");
    EXPECT_EQ(4u, elements->length());
}

TEST(XmlGuardFilterDepthTest, SiblingsDoNotAddUp) {
    const ZefTest::GuardedRead read =
        ZefTest::readGuarded("<r>" + ZefTest::nestedElements(2) + ZefTest::nestedElements(2) + "</r>", depthLimit(3));
    EXPECT_EQ("", read.refusal);
}

TEST(XmlGuardFilterDepthTest, OneLevelPastTheLimitIsRefused) {
    const ZefTest::GuardedRead read = ZefTest::readGuarded(ZefTest::nestedElements(5), depthLimit(4));
    EXPECT_EQ("elements nested deeper than 4 levels (ZEF_VALIDATOR_MAX_DEPTH)", read.refusal);
}

TEST(XmlGuardFilterDepthTest, DeepDocumentStopsTheReaderAtTheNextChunk) {
    const ZefTest::GuardedRead read = ZefTest::readGuarded(ZefTest::nestedElements(100000), depthLimit(100));
    EXPECT_EQ("elements nested deeper than 100 levels (ZEF_VALIDATOR_MAX_DEPTH)", read.refusal);
    EXPECT_TRUE(read.document.isNull());
    EXPECT_NE("", read.readerError);
}
