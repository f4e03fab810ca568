// The attribute getters of the query interface, read from the hand-built
// model (attributes of Root: count 3017, color, pair, ref 3020, ratio,
// name 3022).

#include <gtest/gtest.h>

#include "HandBuiltModel.h"

namespace {

class AttributeIf2ImplTest : public ZefTest::HandBuiltModelTest {};

const uint64_t kCount = 3017;
const uint64_t kRef = 3020;
const uint64_t kName = 3022;

} // namespace

TEST_F(AttributeIf2ImplTest, LinksToItsClassGeneralPropertiesAndTypeContainer)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, if4().attribute->getMoc(kRef, &handle));
    EXPECT_EQ(3017u, handle);
    EXPECT_EQ(ZefOk, if4().attribute->getGeneralProperties(kRef, &handle));
    EXPECT_EQ(3032u, handle);
    EXPECT_EQ(ZefOk, if4().attribute->getTypeContainer(kRef, &handle));
    EXPECT_EQ(3022u, handle);
}

TEST_F(AttributeIf2ImplTest, TheLastAttributeHasNoNext)
{
    uint64_t next = 0;
    EXPECT_EQ(ZefOk, if4().attribute->getNext(kCount, &next));
    EXPECT_EQ(3018u, next);
    next = 11;
    EXPECT_EQ(ZefNotFound, if4().attribute->getNext(kName, &next));
    EXPECT_EQ(11u, next);
}

TEST_F(AttributeIf2ImplTest, CopiesItsFlagsAndUnit)
{
    const ZefOamSpiMrAttribute_4& attribute = *if4().attribute;
    bool flag = false;
    EXPECT_EQ(ZefOk, attribute.getIsKey(kCount, &flag));
    EXPECT_TRUE(flag);
    EXPECT_EQ(ZefOk, attribute.getIsKey(kRef, &flag));
    EXPECT_FALSE(flag);
    EXPECT_EQ(ZefOk, attribute.getIsMandatory(kCount, &flag));
    EXPECT_FALSE(flag);
    // A new attribute is persistent and notifiable, not read-only.
    EXPECT_EQ(ZefOk, attribute.getIsPersistent(kCount, &flag));
    EXPECT_TRUE(flag);
    EXPECT_EQ(ZefOk, attribute.getIsReadOnly(kCount, &flag));
    EXPECT_FALSE(flag);
    EXPECT_EQ(ZefOk, attribute.getIsNotifiable(kCount, &flag));
    EXPECT_TRUE(flag);
    EXPECT_EQ(ZefOk, attribute.getIsNotifiable(kName, &flag));
    EXPECT_FALSE(flag);
    EXPECT_EQ(ZefOk, attribute.getIsRestricted(kRef, &flag));
    EXPECT_TRUE(flag);
    EXPECT_EQ(ZefOk, attribute.getIsRestricted(kCount, &flag));
    EXPECT_FALSE(flag);
    const char* unit = nullptr;
    EXPECT_EQ(ZefOk, attribute.getUnit(kCount, &unit));
    EXPECT_STREQ("pieces", unit);
    EXPECT_EQ(ZefOk, attribute.getUnit(kRef, &unit));
    EXPECT_EQ(nullptr, unit);
}

TEST_F(AttributeIf2ImplTest, AnUnknownAttributeIsReportedWithTheAttributeText)
{
    bool flag = false;
    EXPECT_EQ(ZefInvalidArgument, if2().attribute->getIsKey(3023, &flag));
    EXPECT_EQ("Failed to look up Attribute [handle 3023 outside of 6 issued from 3017]", errorText());
}
