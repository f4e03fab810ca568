#include <gtest/gtest.h>

#include <cstring>

#include "MrUtil.h"
#include "TypeContainerWrapper.h"

using namespace ZefModelRepositoryService;

namespace {

struct Container {
    Container() { MrUtil::resetDatatypeContainerHlp(c); }
    ~Container() { MrUtil::cleanDatatypeContainerHlp(c); }
    ZefOamSpiDatatypeContainer c;
};

} // namespace

TEST(TypeContainerWrapperTest, ReadsTheContainer)
{
    Container container;
    container.c.type = ZefMrType3UInt16;
    container.c.isOrdered = true;
    container.c.isUnique = false;
    container.c.multiplicityRange.min = 0;
    container.c.multiplicityRange.max = 32767;
    TypeContainerWrapper wrapper(&container.c);

    ZefOamSpiMrType_3 type3 = ZefMrType3NotSet;
    EXPECT_EQ(ZefOk, wrapper.getType(type3));
    EXPECT_EQ(ZefMrType3UInt16, type3);
    ZefOamSpiType_2 type2 = ZefType2NotSet;
    EXPECT_EQ(ZefOk, wrapper.getType(type2));
    EXPECT_EQ(ZefType2UInt16, type2);
    bool flag = false;
    EXPECT_EQ(ZefOk, wrapper.getIsOrdered(flag));
    EXPECT_TRUE(flag);
    EXPECT_EQ(ZefOk, wrapper.getIsUnique(flag));
    EXPECT_FALSE(flag);
    uint64_t bound = 99;
    EXPECT_EQ(ZefOk, wrapper.getMultiplicityMin(bound));
    EXPECT_EQ(0u, bound);
    EXPECT_EQ(ZefOk, wrapper.getMultiplicityMax(bound));
    EXPECT_EQ(32767u, bound);
    EXPECT_EQ(0u, wrapper.getHandle());
    wrapper.setHandle(3021);
    EXPECT_EQ(3021u, wrapper.getHandle());
}

TEST(TypeContainerWrapperTest, VersionTwoTypeOfADerivedTypeIsItsBaseType)
{
    Container container;
    ZefOamSpiDerivedDatatype ddt;
    std::memset(&ddt, 0, sizeof ddt);
    ddt.type = ZefMoAttributeTypeInt32;
    ddt.handle = 3030;
    container.c.type = ZefMrType3Derived;
    container.c.derivedDatatype = &ddt;
    TypeContainerWrapper wrapper(&container.c);
    ZefOamSpiType_2 type2 = ZefType2NotSet;
    EXPECT_EQ(ZefOk, wrapper.getType(type2));
    EXPECT_EQ(ZefType2Int32, type2);
    ZefOamSpiMrType_3 type3 = ZefMrType3NotSet;
    EXPECT_EQ(ZefOk, wrapper.getType(type3));
    EXPECT_EQ(ZefMrType3Derived, type3);
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, wrapper.getDerived(handle));
    EXPECT_EQ(3030u, handle);
}

TEST(TypeContainerWrapperTest, LinkedTypesGiveTheirHandles)
{
    Container container;
    ZefOamSpiEnum enumeration;
    std::memset(&enumeration, 0, sizeof enumeration);
    enumeration.handle = 3040;
    ZefOamSpiStruct structure;
    std::memset(&structure, 0, sizeof structure);
    structure.handle = 3050;
    ZefOamSpiMoc moc;
    std::memset(&moc, 0, sizeof moc);
    moc.handle = 3060;
    TypeContainerWrapper wrapper(&container.c);

    uint64_t handle = 7;
    EXPECT_EQ(ZefNotFound, wrapper.getDerived(handle));
    EXPECT_EQ(ZefNotFound, wrapper.getEnum(handle));
    EXPECT_EQ(ZefNotFound, wrapper.getStruct(handle));
    EXPECT_EQ(ZefNotFound, wrapper.getReferencedMoc(handle));
    EXPECT_EQ(7u, handle);

    container.c.enumDatatype = &enumeration;
    container.c.structDatatype = &structure;
    container.c.referencedMoc = &moc;
    EXPECT_EQ(ZefOk, wrapper.getEnum(handle));
    EXPECT_EQ(3040u, handle);
    EXPECT_EQ(ZefOk, wrapper.getStruct(handle));
    EXPECT_EQ(3050u, handle);
    EXPECT_EQ(ZefOk, wrapper.getReferencedMoc(handle));
    EXPECT_EQ(3060u, handle);
}

TEST(TypeContainerWrapperTest, DefaultValuesStayInOrderAndTerminated)
{
    Container container;
    TypeContainerWrapper wrapper(&container.c);
    const char* const* values = nullptr;
    EXPECT_EQ(ZefOk, wrapper.getDefaultValue(values));
    ASSERT_NE(nullptr, values);
    EXPECT_EQ(nullptr, values[0]);

    EXPECT_EQ(ZefOk, wrapper.addDefaultValue("a"));
    EXPECT_EQ(ZefOk, wrapper.addDefaultValue("b"));
    EXPECT_EQ(ZefOk, wrapper.addDefaultValue("c"));
    EXPECT_EQ(ZefOk, wrapper.getDefaultValue(values));
    EXPECT_STREQ("a", values[0]);
    EXPECT_STREQ("b", values[1]);
    EXPECT_STREQ("c", values[2]);
    EXPECT_EQ(nullptr, values[3]);
    // The values are the wrapper's own; the container's default is separate.
    EXPECT_EQ(nullptr, container.c.defaultValue);
}
