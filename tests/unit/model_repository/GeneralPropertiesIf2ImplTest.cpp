// The general properties getters of the query interface, read from the
// hand-built model (the MOM's general properties are 3017, the class
// Root's 3027, the attribute count's 3029).

#include <gtest/gtest.h>

#include <vector>

#include "HandBuiltModel.h"

namespace {

class GeneralPropertiesIf2ImplTest : public ZefTest::HandBuiltModelTest {};

const uint64_t kMom = 3017;
const uint64_t kRoot = 3027;
const uint64_t kCount = 3029;

} // namespace

TEST_F(GeneralPropertiesIf2ImplTest, ReadsTheTextsOfTheElement)
{
    const ZefOamSpiMrGeneralProperties_4& gp = *if4().generalProperties;
    const char* text = nullptr;
    EXPECT_EQ(ZefOk, gp.getName(kCount, &text));
    EXPECT_STREQ("count", text);
    EXPECT_EQ(ZefOk, gp.getDescription(kCount, &text));
    EXPECT_STREQ("How many", text);
    EXPECT_EQ(ZefOk, gp.getSpecification(kCount, &text));
    EXPECT_EQ(nullptr, text);
    EXPECT_EQ(ZefOk, gp.getHidden(kCount, &text));
    EXPECT_EQ(nullptr, text);
}

TEST_F(GeneralPropertiesIf2ImplTest, ReadsTheStatusAsCodeAndAsText)
{
    model.root.setStatus(ZefOamSpiStatusDeprecated);
    model.root.setStatus_3("DEPRECATED");
    ZefOamSpiStatus_2 status = ZefOamSpiStatus2Current;
    EXPECT_EQ(ZefOk, if2().generalProperties->getStatus(kRoot, &status));
    EXPECT_EQ(ZefOamSpiStatus2Deprecated, status);
    EXPECT_EQ(ZefOk, if4().generalProperties->getStatus(kCount, &status));
    EXPECT_EQ(ZefOamSpiStatus2Current, status);
    const char* text = nullptr;
    EXPECT_EQ(ZefOk, if4().generalProperties->getStatusText(kRoot, &text));
    EXPECT_STREQ("DEPRECATED", text);
    EXPECT_EQ(ZefOk, if3().generalProperties->getStatusText(kCount, &text));
    EXPECT_STREQ("CURRENT", text);
}

TEST_F(GeneralPropertiesIf2ImplTest, FindsADomainExtensionByDomainAndName)
{
    const char* value = nullptr;
    EXPECT_EQ(ZefOk, if4().generalProperties->getDomainExtention(kMom, "QCIM", "qcimMomName", &value));
    EXPECT_STREQ("QM", value);
    value = "untouched";
    EXPECT_EQ(ZefNotFound, if4().generalProperties->getDomainExtention(kMom, "QCIM", "other", &value));
    EXPECT_EQ(ZefNotFound, if2().generalProperties->getDomainExtention(kRoot, "QCIM", "qcimMomName", &value));
    EXPECT_STREQ("untouched", value);
    EXPECT_EQ(ZefInvalidArgument, if4().generalProperties->getDomainExtention(kMom, nullptr, "qcimMomName", &value));
    EXPECT_EQ(ZefInvalidArgument, if4().generalProperties->getDomainExtention(kMom, "QCIM", nullptr, &value));
}

TEST_F(GeneralPropertiesIf2ImplTest, ListsTheHandlesOfAllDomainExtensions)
{
    const uint64_t* handles = nullptr;
    ASSERT_EQ(ZefOk, if4().generalProperties->getDomainExtensions(kMom, &handles));
    EXPECT_EQ(3017u, handles[0]);
    EXPECT_EQ(0u, handles[1]);
    ASSERT_EQ(ZefOk, if3().generalProperties->getDomainExtensions(kRoot, &handles));
    EXPECT_EQ(0u, handles[0]);
}

TEST_F(GeneralPropertiesIf2ImplTest, AnUnknownElementIsReportedWithTheGeneralPropertiesText)
{
    const char* text = nullptr;
    EXPECT_EQ(ZefInvalidArgument, if4().generalProperties->getName(3044, &text));
    EXPECT_EQ("Failed to look up general properties [handle 3044 outside of 27 issued from 3017]", errorText());
}
