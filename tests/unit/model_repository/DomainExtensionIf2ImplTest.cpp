// The domain extension getters of the query interface.

#include <gtest/gtest.h>

#include "GeneralPropertiesIf2Impl.h"
#include "HandBuiltModel.h"

namespace {

class DomainExtensionIf2ImplTest : public ZefTest::HandBuiltModelTest {};

} // namespace

TEST_F(DomainExtensionIf2ImplTest, ReadsNameValueAndDomain)
{
    const char* text = nullptr;
    EXPECT_EQ(ZefOk, if4().generalProperties->domainExtensionGetName(3017, &text));
    EXPECT_STREQ("qcimMomName", text);
    EXPECT_EQ(ZefOk, if4().generalProperties->domainExtensionGetValue(3017, &text));
    EXPECT_STREQ("QM", text);
    EXPECT_EQ(ZefOk, if3().generalProperties->domainExtensionGetDomain(3017, &text));
    EXPECT_STREQ("QCIM", text);
}

TEST_F(DomainExtensionIf2ImplTest, WalksTheExtensionsOfOneElementInModelOrder)
{
    ZefModelRepositoryService::MocWrapper moc;
    moc.push_back_domain_extension("D", "a", "1");
    moc.push_back_domain_extension("D", "b", "2");
    moc.push_back_domain_extension("E", "c", "3");
    const uint64_t gp = ZefModelRepositoryService::GeneralPropertiesIf2Impl::registerFor(moc);

    const uint64_t* handles = nullptr;
    ASSERT_EQ(ZefOk, if4().generalProperties->getDomainExtensions(gp, &handles));
    EXPECT_EQ(3018u, handles[0]);
    EXPECT_EQ(3019u, handles[1]);
    EXPECT_EQ(3020u, handles[2]);
    EXPECT_EQ(0u, handles[3]);

    uint64_t next = 0;
    EXPECT_EQ(ZefOk, if4().generalProperties->domainExtensionGetNext(3018, &next));
    EXPECT_EQ(3019u, next);
    EXPECT_EQ(ZefOk, if4().generalProperties->domainExtensionGetNext(3019, &next));
    EXPECT_EQ(3020u, next);
    next = 8;
    EXPECT_EQ(ZefNotFound, if4().generalProperties->domainExtensionGetNext(3020, &next));
    EXPECT_EQ(ZefNotFound, if4().generalProperties->domainExtensionGetNext(3017, &next));
    EXPECT_EQ(8u, next);
}

TEST_F(DomainExtensionIf2ImplTest, AnUnknownExtensionIsReportedWithTheDomainExtensionText)
{
    const char* text = nullptr;
    EXPECT_EQ(ZefInvalidArgument, if4().generalProperties->domainExtensionGetName(3018, &text));
    EXPECT_EQ("Failed to look up domain extension [handle 3018 outside of 1 issued from 3017]", errorText());
}
