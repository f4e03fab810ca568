// The parser publishes the records the repository accepts through the query
// interface, and only those: an interface object reads its record until the
// handle manager is cleaned up, so a refused (deleted) record must never
// have one.

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "ActionIf2Impl.h"
#include "AttributeIf2Impl.h"
#include "EnumWrapper.h"
#include "GeneralPropertiesIf2Impl.h"
#include "If2Manager.h"
#include "MocIf2Impl.h"
#include "MocWrapper.h"
#include "MomIf2Impl.h"
#include "MomWrapper.h"
#include "ParserTestSupport.h"

using namespace ZefModelRepositoryService;

namespace {

class If2PublisherTest : public ZefTest::ParserTest {
protected:
    static If2Manager& manager() { return If2Manager::instance(); }

    static std::string nameBehind(uint64_t generalProperties)
    {
        const char* name = nullptr;
        EXPECT_EQ(ZefOk, manager().getGeneralProperties(generalProperties).getName(name));
        return name != nullptr ? name : "";
    }

    static std::string classNamed(uint64_t moc)
    {
        uint64_t properties = 0;
        EXPECT_EQ(ZefOk, manager().getMoc(moc).getGeneralProperties(properties));
        return nameBehind(properties);
    }

    /// The names of the attributes of a class, in the order the query
    /// interface hands them out.
    static std::vector<std::string> attributesOf(uint64_t moc)
    {
        std::vector<std::string> names;
        uint64_t attribute = 0;
        if (manager().getMoc(moc).getAttribute(attribute) != ZefOk) {
            return names;
        }
        do {
            uint64_t properties = 0;
            EXPECT_EQ(ZefOk, manager().getAttribute(attribute).getGeneralProperties(properties));
            names.push_back(nameBehind(properties));
        } while (manager().getAttribute(attribute).getNext(attribute) == ZefOk);
        return names;
    }
};

const char* const kKeyAttribute =
    "<attribute name=\"aId\"><mandatory/><key/><dataType><string/></dataType></attribute>";

} // namespace

TEST_F(If2PublisherTest, TheAnyClassRecordIsPublishedWithTheRepository)
{
    const uint64_t handle = repository.getAnyClassMoc().getHandle();
    ASSERT_NE(0u, handle);
    EXPECT_EQ("ManagedObject", classNamed(handle));
}

TEST_F(If2PublisherTest, AClassIsPublishedWithItsAttributesAndActionsInDefinitionOrder)
{
    parseMim(std::string("<class name=\"A\">") + kKeyAttribute +
             "<attribute name=\"second\"><dataType><int32/></dataType></attribute>"
             "<action name=\"act\"><returnType><boolean/></returnType></action>"
             "</class>");
    MocWrapper* moc = findMoc("M~1.0~A");
    ASSERT_NE(nullptr, moc);
    EXPECT_EQ("A", classNamed(moc->getHandle()));
    EXPECT_EQ((std::vector<std::string>{"aId", "second"}), attributesOf(moc->getHandle()));
    uint64_t action = 0;
    ASSERT_EQ(ZefOk, manager().getMoc(moc->getHandle()).getAction(action));
    uint64_t properties = 0;
    ASSERT_EQ(ZefOk, manager().getAction(action).getGeneralProperties(properties));
    EXPECT_EQ("act", nameBehind(properties));
}

TEST_F(If2PublisherTest, ARefusedDuplicateClassGetsNoInterfaceObject)
{
    parseMim(std::string("<class name=\"A\">") + kKeyAttribute + "</class><class name=\"A\">" + kKeyAttribute +
             "<attribute name=\"extra\"><dataType><int32/></dataType></attribute></class>");
    expectRepositoryError("Moc (M~1.0~A) is already added to the map.");
    MocWrapper* moc = findMoc("M~1.0~A");
    ASSERT_NE(nullptr, moc);
    EXPECT_EQ((std::vector<std::string>{"aId"}), attributesOf(moc->getHandle()));
    // The refused class would have come next, with the next handles of its
    // kind and of its attributes.
    EXPECT_THROW(manager().getMoc(moc->getHandle() + 1), std::out_of_range);
    uint64_t attribute = 0;
    ASSERT_EQ(ZefOk, manager().getMoc(moc->getHandle()).getAttribute(attribute));
    EXPECT_THROW(manager().getAttribute(attribute + 1), std::out_of_range);
}

TEST_F(If2PublisherTest, ARefusedDuplicateEnumGetsNoInterfaceObject)
{
    parseMim("<enum name=\"E\"><enumMember name=\"X\"><value>1</value></enumMember></enum>"
             "<enum name=\"E\"><enumMember name=\"Y\"><value>2</value></enumMember></enum>");
    expectRepositoryError("Enum (M~1.0~E) is already added to the map.");
    const auto found = repository.getEnumMap().find("M~1.0~E");
    ASSERT_NE(repository.getEnumMap().end(), found);
    const uint64_t handle = found->second->getHandle();
    EXPECT_NO_THROW(manager().getEnumType(handle));
    EXPECT_THROW(manager().getEnumType(handle + 1), std::out_of_range);
}

TEST_F(If2PublisherTest, AMomIsPublishedWithTheDomainExtensionsReadAmongItsChildren)
{
    parseMim("<domainExtension domain=\"QCIM\"><extension name=\"qcimMomName\" value=\"QM\"/></domainExtension>");
    MomWrapper* mom = findMom("M~1.0");
    ASSERT_NE(nullptr, mom);
    uint64_t properties = 0;
    ASSERT_EQ(ZefOk, manager().getMom(mom->getHandle()).getGeneralProperties(properties));
    EXPECT_EQ("M", nameBehind(properties));
    const uint64_t* extensions = nullptr;
    ASSERT_EQ(ZefOk, manager().getGeneralProperties(properties).getDomainExtensions(extensions));
    ASSERT_NE(nullptr, extensions);
    EXPECT_NE(0u, extensions[0]);
    EXPECT_EQ(0u, extensions[1]);
}

TEST_F(If2PublisherTest, CleanupWithdrawsEveryObjectAndPublishesTheAnyClassRecordAgain)
{
    parseMim(std::string("<class name=\"A\">") + kKeyAttribute + "</class>");
    const uint64_t classHandle = findMoc("M~1.0~A")->getHandle();
    repository.cleanup();
    // Numbering starts again: the any-class record is the first class.
    EXPECT_EQ(3017u, repository.getAnyClassMoc().getHandle());
    EXPECT_EQ("ManagedObject", classNamed(3017));
    EXPECT_THROW(manager().getMoc(classHandle), std::out_of_range);
    EXPECT_THROW(manager().getMom(3017), std::out_of_range);
}
