// The derived type getters of the query interface: the derived type table
// of version 2 and the derived type slots of the type container tables of
// versions 3 and 4. Derived types of the hand-built model: Counter 3017,
// Ratio 3018, Name 3019.

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "HandBuiltModel.h"

namespace {

class DerivedTypeIf2ImplTest : public ZefTest::HandBuiltModelTest {
protected:
    /// Registers a derived type whose record holds `code` as its base type.
    uint64_t derivedTypeOfBaseType(ZefOamSpiMoAttributeType code)
    {
        auto* ddt = new ZefModelRepositoryService::DdtWrapper();
        extra.emplace_back(ddt);
        ddt->setType(code);
        return (new ZefModelRepositoryService::DerivedTypeIf2Impl(*ddt))->getHandle();
    }

    std::vector<std::unique_ptr<ZefModelRepositoryService::DdtWrapper>> extra;
};

const uint64_t kCounter = 3017;
const uint64_t kRatio = 3018;
const uint64_t kName = 3019;

} // namespace

TEST_F(DerivedTypeIf2ImplTest, LinksToItsGeneralPropertiesAndMom)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefOk, if2().derived->getGeneralProperties(kRatio, &handle));
    EXPECT_EQ(3019u, handle);
    EXPECT_EQ(ZefOk, if2().derived->getMom(kRatio, &handle));
    EXPECT_EQ(3017u, handle);
    EXPECT_EQ(ZefOk, if4().typeContainer->derivedTypeGetGeneralProperties(kName, &handle));
    EXPECT_EQ(3020u, handle);
    EXPECT_EQ(ZefOk, if3().typeContainer->derivedTypeGetMom(kName, &handle));
    EXPECT_EQ(3017u, handle);
}

TEST_F(DerivedTypeIf2ImplTest, Version2AnswersTheBaseTypesOneTo15Unchanged)
{
    ZefOamSpiType_2 type = ZefType2NotSet;
    EXPECT_EQ(ZefOk, if2().derived->getType(kCounter, &type));
    EXPECT_EQ(ZefType2Int32, type);
    EXPECT_EQ(ZefOk, if2().derived->getType(derivedTypeOfBaseType(ZefMoAttributeTypeInt8), &type));
    EXPECT_EQ(ZefType2Int8, type);
    EXPECT_EQ(ZefOk, if2().derived->getType(derivedTypeOfBaseType(ZefMoAttributeTypeVoid), &type));
    EXPECT_EQ(ZefType2Void, type);
}

TEST_F(DerivedTypeIf2ImplTest, Version2HasNoCodeForADoubleNorForNotSet)
{
    ZefOamSpiType_2 type = ZefType2Bool;
    EXPECT_EQ(ZefInvalidArgument, if2().derived->getType(kRatio, &type));
    EXPECT_EQ(ZefType2Bool, type);
    EXPECT_EQ(ZefInvalidArgument, if2().derived->getType(derivedTypeOfBaseType(ZefMoAttributeTypeNotSet), &type));
    EXPECT_EQ(ZefType2Bool, type);
}

TEST_F(DerivedTypeIf2ImplTest, Versions3And4AnswerTheCodeStoredForThem)
{
    ZefOamSpiMrType_3 type3 = ZefMrType3NotSet;
    EXPECT_EQ(ZefOk, if3().typeContainer->derivedTypeGetType(kRatio, &type3));
    EXPECT_EQ(ZefMrType3Double, type3);
    ZefOamSpiMrType_4 type4 = ZefMrType4NotSet;
    EXPECT_EQ(ZefOk, if4().typeContainer->derivedTypeGetType(kName, &type4));
    EXPECT_EQ(ZefMrType4String, type4);
    // A type given only as basic type has no code of either version.
    EXPECT_EQ(ZefOk, if4().typeContainer->derivedTypeGetType(derivedTypeOfBaseType(ZefMoAttributeTypeInt8), &type4));
    EXPECT_EQ(ZefMrType4NotSet, type4);
}

TEST_F(DerivedTypeIf2ImplTest, ReadsTheResolutions)
{
    int64_t resolution = 0;
    EXPECT_EQ(ZefOk, if2().derived->getResolution(kCounter, &resolution));
    EXPECT_EQ(2, resolution);
    double floatResolution = 0;
    EXPECT_EQ(ZefOk, if2().derived->getFloatResolution(kRatio, &floatResolution));
    EXPECT_DOUBLE_EQ(0.25, floatResolution);
    const char* text = nullptr;
    EXPECT_EQ(ZefOk, if2().derived->getFloatStringResolution(kRatio, &text));
    EXPECT_STREQ("0.25", text);
    EXPECT_EQ(ZefOk, if2().derived->getFloatStringResolution(kCounter, &text));
    EXPECT_EQ(nullptr, text);
}

TEST_F(DerivedTypeIf2ImplTest, ReadsTheStringRestriction)
{
    const char* text = nullptr;
    EXPECT_EQ(ZefOk, if2().derived->getStringRestrictionPattern(kName, &text));
    EXPECT_STREQ("[a-z]+", text);
    EXPECT_EQ(ZefOk, if2().derived->getStringRestrictionExceptionText(kName, &text));
    EXPECT_STREQ("lower case only", text);
    EXPECT_EQ(ZefOk, if2().derived->getStringRestrictionExceptionText(kCounter, &text));
    EXPECT_EQ(nullptr, text);
    bool passphrase = false;
    EXPECT_EQ(ZefOk, if2().derived->getIsPassphrase(kName, &passphrase));
    EXPECT_TRUE(passphrase);
    EXPECT_EQ(ZefOk, if2().derived->getIsPassphrase(kCounter, &passphrase));
    EXPECT_FALSE(passphrase);
}

TEST_F(DerivedTypeIf2ImplTest, HandsOutTheFirstLengthAndValueRanges)
{
    uint64_t range = 0;
    EXPECT_EQ(ZefOk, if2().derived->getStringRestrictionLength(kName, &range));
    EXPECT_EQ(3020u, range);
    EXPECT_EQ(ZefOk, if2().derived->getNumericRestrictionRange(kCounter, &range));
    EXPECT_EQ(3017u, range);
    range = 3;
    EXPECT_EQ(ZefNotFound, if2().derived->getStringRestrictionLength(kCounter, &range));
    EXPECT_EQ(ZefNotFound, if2().derived->getNumericRestrictionRange(kName, &range));
    EXPECT_EQ(3u, range);
}

TEST_F(DerivedTypeIf2ImplTest, AnUnknownDerivedTypeIsReportedWithTheDerivedTypeText)
{
    uint64_t handle = 0;
    EXPECT_EQ(ZefInvalidArgument, if4().typeContainer->derivedTypeGetMom(3020, &handle));
    EXPECT_EQ("Failed to look up DerivedType [handle 3020 outside of 3 issued from 3017]", errorText());
}

TEST_F(DerivedTypeIf2ImplTest, RegisterIf2CreatesTheInterfaceObjectOfTheTypeAndItsRanges)
{
    ZefModelRepositoryService::DdtWrapper ddt;
    ddt.setName("Late");
    ddt.setType(ZefMrType3UInt16);
    ddt.addRangeMin("2");
    ddt.addRangeMax("4");
    ddt.registerIf2();
    EXPECT_EQ(3020u, ddt.getHandle());
    EXPECT_EQ(3044u, ddt.getGeneralPropertiesHandle());
    uint64_t range = 0;
    EXPECT_EQ(ZefOk, if2().derived->getNumericRestrictionRange(3020, &range));
    EXPECT_EQ(3021u, range);
    int64_t max = 0;
    EXPECT_EQ(ZefOk, if2().derived->valueRangeGetMax(range, &max));
    EXPECT_EQ(4, max);
}
