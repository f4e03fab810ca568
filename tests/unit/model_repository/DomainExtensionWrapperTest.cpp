#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "DomainExtensionWrapper.h"

using namespace ZefModelRepositoryService;

TEST(DomainExtensionWrapperTest, HoldsItsThreeTexts)
{
    DomainExtensionWrapper extension("QCIM", "isNillable", "true");
    EXPECT_EQ("QCIM", extension.getDomain());
    EXPECT_EQ("isNillable", extension.getName());
    EXPECT_EQ("true", extension.getValue());
    EXPECT_EQ(0u, extension.getHandle());
    extension.setHandle(3017);
    EXPECT_EQ(3017u, extension.getHandle());
}

TEST(DomainExtensionWrapperTest, IsNotCopyableButClonesExplicitly)
{
    static_assert(!std::is_copy_constructible<DomainExtensionWrapper>::value, "registered records are not copied");
    static_assert(!std::is_copy_assignable<DomainExtensionWrapper>::value, "registered records are not copied");
    DomainExtensionWrapper extension("D", "N", "V");
    extension.setHandle(3018);
    std::unique_ptr<DomainExtensionWrapper> clone(extension.clone());
    EXPECT_NE(&extension, clone.get());
    EXPECT_EQ("D", clone->getDomain());
    EXPECT_EQ("N", clone->getName());
    EXPECT_EQ("V", clone->getValue());
    EXPECT_EQ(0u, clone->getHandle());
}

TEST(DomainExtensionWrapperTest, RecordsOfOneDomainAndNameKeepTheirOwnValues)
{
    DomainExtensionWrapper first("QCIM", "qcimMomName", "A");
    DomainExtensionWrapper second("QCIM", "qcimMomName", "B");
    EXPECT_EQ("A", first.getValue());
    EXPECT_EQ("B", second.getValue());
    // Domain and name are held once for all records.
    EXPECT_EQ(&first.getDomain(), &second.getDomain());
    EXPECT_EQ(&first.getName(), &second.getName());
    DomainExtensionWrapper other("X", "qcimMomName", "A");
    EXPECT_EQ("X", other.getDomain());
    EXPECT_NE(&first.getDomain(), &other.getDomain());
}
