#include <gtest/gtest.h>

#include <type_traits>

#include "GeneralPropertiesWrapper.h"
#include "MrUtil.h"

using namespace ZefModelRepositoryService;

namespace {

/// A fragment with its wrapper, reset and cleaned like an element record does.
struct Fragment {
    Fragment() : wrapper(gp, &handle) { wrapper.setInitialValues(); }
    ~Fragment() { MrUtil::cleanGeneralPropertiesHlp(gp); }
    ZefOamSpiGeneralProperties gp;
    uint64_t handle = 0;
    GeneralPropertiesWrapper wrapper;
};

} // namespace

TEST(GeneralPropertiesWrapperTest, InitialValues)
{
    Fragment f;
    EXPECT_EQ(nullptr, f.gp.name);
    EXPECT_EQ(nullptr, f.gp.description);
    EXPECT_EQ(nullptr, f.gp.specification);
    EXPECT_EQ(ZefOamSpiStatusCurrent, f.gp.status);
    EXPECT_EQ(nullptr, f.gp.hidden);
    EXPECT_EQ("CURRENT", f.wrapper.getStatus3());
    EXPECT_EQ("", f.wrapper.getId());
    EXPECT_EQ("", f.wrapper.getName());
    EXPECT_EQ(0u, f.wrapper.getGeneralPropertiesHandle());
    EXPECT_TRUE(f.wrapper.getDomainExtensions().empty());
    EXPECT_FALSE(f.wrapper.isNillable());
    EXPECT_EQ(&f.gp, &f.wrapper.getStruct());
}

TEST(GeneralPropertiesWrapperTest, NameFirstValueWinsAndEmptyIsRefused)
{
    Fragment f;
    EXPECT_EQ(ZefInvalidArgument, f.wrapper.setName(""));
    EXPECT_EQ(nullptr, f.gp.name);
    EXPECT_EQ(ZefOk, f.wrapper.setName("first"));
    EXPECT_EQ(ZefAlreadyExists, f.wrapper.setName("second"));
    EXPECT_STREQ("first", f.gp.name);
    EXPECT_EQ("first", f.wrapper.getId());
}

TEST(GeneralPropertiesWrapperTest, TextsFirstValueWins)
{
    Fragment f;
    EXPECT_EQ(ZefOk, f.wrapper.setDescription("d1"));
    EXPECT_EQ(ZefAlreadyExists, f.wrapper.setDescription("d2"));
    EXPECT_STREQ("d1", f.gp.description);
    EXPECT_EQ(ZefOk, f.wrapper.setSpecification(""));
    EXPECT_EQ(ZefAlreadyExists, f.wrapper.setSpecification("s2"));
    EXPECT_STREQ("", f.gp.specification);
    EXPECT_EQ(ZefOk, f.wrapper.setHidden("h1"));
    EXPECT_EQ(ZefAlreadyExists, f.wrapper.setHidden("h2"));
    EXPECT_STREQ("h1", f.gp.hidden);
}

TEST(GeneralPropertiesWrapperTest, StatusAfterObsoleteHasNoEffect)
{
    Fragment f;
    EXPECT_EQ(ZefOk, f.wrapper.setStatus(ZefOamSpiStatusDeprecated));
    EXPECT_EQ(ZefOamSpiStatusDeprecated, f.gp.status);
    EXPECT_EQ(ZefOk, f.wrapper.setStatus(ZefOamSpiStatusObsolete));
    EXPECT_EQ(ZefOamSpiStatusObsolete, f.gp.status);
    EXPECT_EQ(ZefOk, f.wrapper.setStatus(ZefOamSpiStatusCurrent));
    EXPECT_EQ(ZefOamSpiStatusObsolete, f.gp.status);
    EXPECT_EQ(ZefOk, f.wrapper.setStatus(ZefOamSpiStatusDeprecated));
    EXPECT_EQ(ZefOamSpiStatusObsolete, f.gp.status);
}

TEST(GeneralPropertiesWrapperTest, StatusText)
{
    Fragment f;
    EXPECT_EQ(ZefOk, f.wrapper.setStatus_3("PRELIMINARY"));
    EXPECT_EQ("PRELIMINARY", f.wrapper.getStatus3());
    EXPECT_EQ(ZefInvalidArgument, f.wrapper.setStatus_3(""));
    EXPECT_EQ("PRELIMINARY", f.wrapper.getStatus3());
    EXPECT_EQ(ZefOk, f.wrapper.setStatus_3("OBSOLETE"));
    EXPECT_EQ("OBSOLETE", f.wrapper.getStatus3());
}

TEST(GeneralPropertiesWrapperTest, SetInitialValuesResetsStatusAndText)
{
    Fragment f;
    f.wrapper.setStatus(ZefOamSpiStatusObsolete);
    f.wrapper.setStatus_3("OBSOLETE");
    f.wrapper.setInitialValues();
    EXPECT_EQ(ZefOamSpiStatusCurrent, f.gp.status);
    EXPECT_EQ("CURRENT", f.wrapper.getStatus3());
}

TEST(GeneralPropertiesWrapperTest, HandleLivesInTheOwnersField)
{
    Fragment f;
    f.wrapper.setGeneralPropertiesHandle(3020);
    EXPECT_EQ(3020u, f.handle);
    EXPECT_EQ(3020u, f.wrapper.getGeneralPropertiesHandle());

    ZefOamSpiGeneralProperties gp;
    MrUtil::resetGeneralPropertiesHlp(gp);
    GeneralPropertiesWrapper standalone(gp);
    EXPECT_EQ(0u, standalone.getGeneralPropertiesHandle());
    standalone.setGeneralPropertiesHandle(3017);
    EXPECT_EQ(3017u, standalone.getGeneralPropertiesHandle());
}

TEST(GeneralPropertiesWrapperTest, DomainExtensionsInOrderAndLookup)
{
    Fragment f;
    f.wrapper.push_back_domain_extension("QCIM", "qcimMomName", "A");
    f.wrapper.push_back_domain_extension("OTHER", "isNillable", "true");
    f.wrapper.push_back_domain_extension("QCIM", "qcimMomName", "B");
    ASSERT_EQ(3u, f.wrapper.getDomainExtensions().size());
    EXPECT_EQ("OTHER", f.wrapper.getDomainExtensions()[1]->getDomain());
    const DomainExtensionWrapper* found = f.wrapper.getDomainExtension("QCIM", "qcimMomName");
    ASSERT_NE(nullptr, found);
    EXPECT_EQ("A", found->getValue());
    EXPECT_EQ(nullptr, f.wrapper.getDomainExtension("QCIM", "qcimMomVersion"));
    EXPECT_EQ(nullptr, f.wrapper.getDomainExtension("qcim", "qcimMomName"));
    // The nillable marker must come from the QCIM domain.
    EXPECT_FALSE(f.wrapper.isNillable());
    f.wrapper.push_back_domain_extension("QCIM", "isNillable", "true");
    EXPECT_TRUE(f.wrapper.isNillable());
}

TEST(GeneralPropertiesWrapperTest, CopyingConstructorCopiesEverythingButTheHandle)
{
    Fragment source;
    source.wrapper.setName("n");
    source.wrapper.setDescription("d");
    source.wrapper.setSpecification("s");
    source.wrapper.setHidden("h");
    source.wrapper.setStatus(ZefOamSpiStatusDeprecated);
    source.wrapper.setStatus_3("DEPRECATED");
    source.wrapper.setGeneralPropertiesHandle(3019);
    source.wrapper.push_back_domain_extension("QCIM", "isNillable", "true");

    ZefOamSpiGeneralProperties gp;
    {
        GeneralPropertiesWrapper copy(gp, source.wrapper);
        EXPECT_STREQ("n", gp.name);
        EXPECT_NE(source.gp.name, gp.name);
        EXPECT_STREQ("d", gp.description);
        EXPECT_STREQ("s", gp.specification);
        EXPECT_STREQ("h", gp.hidden);
        EXPECT_EQ(ZefOamSpiStatusDeprecated, gp.status);
        EXPECT_EQ("DEPRECATED", copy.getStatus3());
        EXPECT_EQ(0u, copy.getGeneralPropertiesHandle());
        ASSERT_EQ(1u, copy.getDomainExtensions().size());
        EXPECT_NE(source.wrapper.getDomainExtensions()[0], copy.getDomainExtensions()[0]);
        EXPECT_TRUE(copy.isNillable());
    }
    MrUtil::cleanGeneralPropertiesHlp(gp);
    // The source is untouched by the copy's destruction.
    EXPECT_STREQ("n", source.gp.name);
    EXPECT_TRUE(source.wrapper.isNillable());
}

TEST(GeneralPropertiesWrapperTest, IdentityKeyIsVirtual)
{
    static_assert(std::has_virtual_destructor<GeneralPropertiesWrapper>::value, "records are deleted through it");
    struct Keyed : GeneralPropertiesWrapper {
        Keyed() : GeneralPropertiesWrapper(gp) { setInitialValues(); }
        ~Keyed() override { MrUtil::cleanGeneralPropertiesHlp(gp); }
        std::string getId() const override { return "m~1~" + getName(); }
        ZefOamSpiGeneralProperties gp;
    };
    Keyed keyed;
    keyed.setName("x");
    const GeneralPropertiesWrapper& base = keyed;
    EXPECT_EQ("m~1~x", base.getId());
}
