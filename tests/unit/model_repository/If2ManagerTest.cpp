// The manager of the query interface: the versioned tables with their
// texts and sub-tables, every slot filled, each version with its own copy
// of each C function, per-kind handles from 3017, lookups of handles that
// were not issued, and cleanup.

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "AttrWrapper.h"
#include "AttributeIf2Impl.h"
#include "GeneralPropertiesIf2Impl.h"
#include "If2TestSupport.h"
#include "MocIf2Impl.h"
#include "MocWrapper.h"
#include "MomIf2Impl.h"
#include "MomWrapper.h"

namespace {

using namespace ZefModelRepositoryService;

/// The slots of a table of function pointers, in order.
template <typename Table>
std::vector<void (*)()> slotsOf(const Table& table)
{
    static_assert(sizeof(Table) % sizeof(void (*)()) == 0, "a table holds function pointers only");
    std::vector<void (*)()> slots(sizeof(Table) / sizeof(void (*)()));
    std::memcpy(slots.data(), &table, sizeof(Table));
    return slots;
}

/// The number of null slots of a table.
template <typename Table>
size_t nullSlots(const Table* table)
{
    size_t count = 0;
    for (void (*slot)() : slotsOf(*table)) {
        count += slot == nullptr ? 1 : 0;
    }
    return count;
}

class If2ManagerTest : public ZefTest::If2Test {};

std::string rangeError(const std::function<void()>& lookup)
{
    try {
        lookup();
    } catch (const std::out_of_range& error) {
        return error.what();
    }
    return "no range error";
}

} // namespace

TEST_F(If2ManagerTest, EveryVersionBeginsWithTheThreeTexts)
{
    EXPECT_STREQ("ZefOamSpiModelRepositoryService", if2().base.componentName);
    EXPECT_STREQ("ZefOamSpiModelRepository", if2().base.interfaceName);
    EXPECT_STREQ("2", if2().base.interfaceVersion);
    EXPECT_STREQ("ZefOamSpiModelRepositoryService", if3().base.componentName);
    EXPECT_STREQ("ZefOamSpiModelRepository", if3().base.interfaceName);
    EXPECT_STREQ("3", if3().base.interfaceVersion);
    EXPECT_STREQ("ZefOamSpiModelRepositoryService", if4().base.componentName);
    EXPECT_STREQ("ZefOamSpiModelRepository", if4().base.interfaceName);
    EXPECT_STREQ("4", if4().base.interfaceVersion);
    EXPECT_STREQ("ZefOamSpiModelRepositoryService", if4_1().base.componentName);
    EXPECT_STREQ("ZefOamSpiModelRepository", if4_1().base.interfaceName);
    EXPECT_STREQ("4_1", if4_1().base.interfaceVersion);
}

TEST_F(If2ManagerTest, EverySlotOfVersion2IsFilled)
{
    EXPECT_EQ(0u, nullSlots(if2().entry)) << "entry";
    EXPECT_EQ(0u, nullSlots(if2().generalProperties)) << "generalProperties";
    EXPECT_EQ(0u, nullSlots(if2().mom)) << "mom";
    EXPECT_EQ(0u, nullSlots(if2().moc)) << "moc";
    EXPECT_EQ(0u, nullSlots(if2().containment)) << "containment";
    EXPECT_EQ(0u, nullSlots(if2().typeContainer)) << "typeContainer";
    EXPECT_EQ(0u, nullSlots(if2().derived)) << "derived";
    EXPECT_EQ(0u, nullSlots(if2().enumType)) << "enumType";
    EXPECT_EQ(0u, nullSlots(if2().structType)) << "structType";
    EXPECT_EQ(0u, nullSlots(if2().attribute)) << "attribute";
    EXPECT_EQ(0u, nullSlots(if2().action)) << "action";
}

TEST_F(If2ManagerTest, EverySlotOfVersion3IsFilled)
{
    EXPECT_EQ(0u, nullSlots(if3().entry)) << "entry";
    EXPECT_EQ(0u, nullSlots(if3().generalProperties)) << "generalProperties";
    EXPECT_EQ(0u, nullSlots(if3().mom)) << "mom";
    EXPECT_EQ(0u, nullSlots(if3().moc)) << "moc";
    EXPECT_EQ(0u, nullSlots(if3().containment)) << "containment";
    EXPECT_EQ(0u, nullSlots(if3().typeContainer)) << "typeContainer";
    EXPECT_EQ(0u, nullSlots(if3().enumType)) << "enumType";
    EXPECT_EQ(0u, nullSlots(if3().structType)) << "structType";
    EXPECT_EQ(0u, nullSlots(if3().attribute)) << "attribute";
    EXPECT_EQ(0u, nullSlots(if3().action)) << "action";
    EXPECT_EQ(0u, nullSlots(if3().moRef)) << "moRef";
    EXPECT_EQ(0u, nullSlots(if3().intType)) << "intType";
    EXPECT_EQ(0u, nullSlots(if3().stringType)) << "stringType";
    EXPECT_EQ(0u, nullSlots(if3().floatType)) << "floatType";
}

TEST_F(If2ManagerTest, EverySlotOfVersion4IsFilled)
{
    EXPECT_EQ(0u, nullSlots(if4().entry)) << "entry";
    EXPECT_EQ(0u, nullSlots(if4().generalProperties)) << "generalProperties";
    EXPECT_EQ(0u, nullSlots(if4().mom)) << "mom";
    EXPECT_EQ(0u, nullSlots(if4().moc)) << "moc";
    EXPECT_EQ(0u, nullSlots(if4().containment)) << "containment";
    EXPECT_EQ(0u, nullSlots(if4().associationEnd)) << "associationEnd";
    EXPECT_EQ(0u, nullSlots(if4().biDirAssociation)) << "biDirAssociation";
    EXPECT_EQ(0u, nullSlots(if4().uniDirAssociation)) << "uniDirAssociation";
    EXPECT_EQ(0u, nullSlots(if4().typeContainer)) << "typeContainer";
    EXPECT_EQ(0u, nullSlots(if4().enumType)) << "enumType";
    EXPECT_EQ(0u, nullSlots(if4().structType)) << "structType";
    EXPECT_EQ(0u, nullSlots(if4().attribute)) << "attribute";
    EXPECT_EQ(0u, nullSlots(if4().action)) << "action";
    EXPECT_EQ(0u, nullSlots(if4().moRef)) << "moRef";
    EXPECT_EQ(0u, nullSlots(if4().intType)) << "intType";
    EXPECT_EQ(0u, nullSlots(if4().stringType)) << "stringType";
    EXPECT_EQ(0u, nullSlots(if4().floatType)) << "floatType";
}

TEST_F(If2ManagerTest, EverySlotOfVersion4_1IsFilled)
{
    EXPECT_EQ(0u, nullSlots(if4_1().entry)) << "entry";
    EXPECT_EQ(0u, nullSlots(if4_1().enumType)) << "enumType";
    EXPECT_EQ(0u, nullSlots(if4_1().biDirAssociation)) << "biDirAssociation";
    EXPECT_EQ(0u, nullSlots(if4_1().uniDirAssociation)) << "uniDirAssociation";
}
TEST_F(If2ManagerTest, EachVersionHasItsOwnCopyOfEachCFunction)
{
    EXPECT_NE(reinterpret_cast<void (*)()>(if2().moc->getMom), reinterpret_cast<void (*)()>(if3().moc->getMom));
    EXPECT_NE(reinterpret_cast<void (*)()>(if3().moc->getMom), reinterpret_cast<void (*)()>(if4().moc->getMom));
    EXPECT_NE(reinterpret_cast<void (*)()>(if3().entry->getMocFromDn),
              reinterpret_cast<void (*)()>(if4().entry->getMocFromDn));
    EXPECT_NE(reinterpret_cast<void (*)()>(if4().enumType->getLiteral),
              reinterpret_cast<void (*)()>(if4_1().enumType->getLiteral));
}

TEST_F(If2ManagerTest, TheTablesStayTheSameForTheLifeOfTheProcess)
{
    const ZefOamSpiModelRepository_4* before = manager().getIf4();
    manager().cleanup();
    EXPECT_EQ(before, manager().getIf4());
    EXPECT_EQ(before->moc, manager().getIf4()->moc);
}

TEST_F(If2ManagerTest, HandlesAreCountedPerKindFrom3017)
{
    MomWrapper mom;
    MocWrapper first;
    MocWrapper second;
    auto* momIf = new MomIf2Impl(mom);
    auto* firstIf = new MocIf2Impl(first);
    auto* secondIf = new MocIf2Impl(second);

    // Kinds overlap in value: the MOM, the first class and the first general
    // properties all have 3017.
    EXPECT_EQ(3017u, momIf->getHandle());
    EXPECT_EQ(3017u, firstIf->getHandle());
    EXPECT_EQ(3018u, secondIf->getHandle());
    EXPECT_EQ(3017u, mom.getStruct().generalPropertiesHandle);
    EXPECT_EQ(3018u, first.getStruct().generalPropertiesHandle);
    EXPECT_EQ(3019u, second.getStruct().generalPropertiesHandle);

    // The records publish the handles their readers hand out.
    EXPECT_EQ(3017u, mom.getStruct().handle);
    EXPECT_EQ(3017u, first.getStruct().handle);
    EXPECT_EQ(3018u, second.getStruct().handle);
    EXPECT_EQ(3019u, second.getGeneralPropertiesHandle());

    EXPECT_EQ(momIf, &manager().getMom(3017));
    EXPECT_EQ(firstIf, &manager().getMoc(3017));
    EXPECT_EQ(secondIf, &manager().getMoc(3018));
}

TEST_F(If2ManagerTest, LookupsOfHandlesNotIssuedRaiseRangeErrors)
{
    MocWrapper moc;
    new MocIf2Impl(moc);
    EXPECT_EQ("handle 3016 outside of 1 issued from 3017", rangeError([] { manager().getMoc(3016); }));
    EXPECT_EQ("handle 0 outside of 1 issued from 3017", rangeError([] { manager().getMoc(0); }));
    EXPECT_EQ("handle 3018 outside of 1 issued from 3017", rangeError([] { manager().getMoc(3018); }));
    EXPECT_EQ("handle 3017 outside of 0 issued from 3017", rangeError([] { manager().getAttribute(3017); }));
    EXPECT_EQ("handle 3017 outside of 0 issued from 3017", rangeError([] { manager().getDerivedType(3017); }));
    EXPECT_EQ("handle 3017 outside of 0 issued from 3017", rangeError([] { manager().getEnumType(3017); }));
    EXPECT_EQ("handle 3017 outside of 0 issued from 3017", rangeError([] { manager().getStructType(3017); }));
    EXPECT_EQ("handle 3017 outside of 0 issued from 3017", rangeError([] { manager().getTypeContainer(3017); }));
    EXPECT_EQ("handle 3017 outside of 0 issued from 3017", rangeError([] { manager().getDomainExtension(3017); }));
}

TEST_F(If2ManagerTest, AfterCleanupTheFirstObjectRegisteredAgainGets3017)
{
    MocWrapper first;
    MocWrapper second;
    new MocIf2Impl(first);
    new MocIf2Impl(second);
    manager().cleanup();
    EXPECT_EQ("handle 3017 outside of 0 issued from 3017", rangeError([] { manager().getMoc(3017); }));
    EXPECT_EQ("handle 3017 outside of 0 issued from 3017", rangeError([] { manager().getGeneralProperties(3017); }));

    MocWrapper again;
    auto* againIf = new MocIf2Impl(again);
    EXPECT_EQ(3017u, againIf->getHandle());
    EXPECT_EQ(3017u, again.getStruct().generalPropertiesHandle);
}

TEST_F(If2ManagerTest, HandlesStayValidThroughTheInterfaceUntilCleanup)
{
    MocWrapper moc;
    moc.setName("Moc");
    new MocIf2Impl(moc);
    uint64_t gp = 0;
    ASSERT_EQ(ZefOk, if4().moc->getGeneralProperties(3017, &gp));
    const char* name = nullptr;
    ASSERT_EQ(ZefOk, if4().generalProperties->getName(gp, &name));
    EXPECT_STREQ("Moc", name);

    manager().cleanup();
    EXPECT_EQ(ZefInvalidArgument, if4().moc->getGeneralProperties(3017, &gp));
    EXPECT_EQ("Failed to look up moc [handle 3017 outside of 0 issued from 3017]", errorText());
}
