#ifndef ZEF_TEST_IF2_TEST_SUPPORT_H
#define ZEF_TEST_IF2_TEST_SUPPORT_H

// Shared fixture of the query interface tests: a started standalone
// repository service (no model files) for every test, a handle manager
// emptied before and after the test so that every kind numbers from 3017,
// and helpers to read the tables and the thread's error text. Records are
// built by hand in the tests; they must live until the test ends.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "If2Manager.h"
#include "ModelRepositoryService.h"
#include "ZefMgmtSpi.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefOamSpiModelRepository_4_1.h"

namespace ZefTest {

class If2Test : public ::testing::Test {
protected:
    void SetUp() override
    {
        service.reset(new ZefModelRepositoryService::ModelRepositoryService(true));
        ASSERT_EQ(0, service->start());
        // The repository may register objects of its own; the tests count
        // handles from a manager that holds only what they register.
        manager().cleanup();
        zefMgmtSpiThreadContextSetErrorText(nullptr);
    }

    void TearDown() override
    {
        if (service) {
            for (const std::string& message : service->getModelRepository()->getMessages()) {
                ADD_FAILURE() << "message not asserted by the test: \"" << message << "\"";
            }
        }
        manager().cleanup();
        service.reset();
    }

    /// Ends the service: from now on every getter answers 2.
    void stopService() { service.reset(); }

    static ZefModelRepositoryService::If2Manager& manager()
    {
        return ZefModelRepositoryService::If2Manager::instance();
    }

    static const ZefOamSpiModelRepository_2& if2() { return *manager().getIf2(); }
    static const ZefOamSpiModelRepository_3& if3() { return *manager().getIf3(); }
    static const ZefOamSpiModelRepository_4& if4() { return *manager().getIf4(); }
    static const ZefOamSpiModelRepository_4_1& if4_1() { return *manager().getIf4_1(); }

    /// The calling thread's error text ("" when empty).
    static std::string errorText()
    {
        const char* text = zefMgmtSpiThreadContextGetErrorText();
        return text != nullptr ? text : "";
    }

    std::unique_ptr<ZefModelRepositoryService::ModelRepositoryService> service;
};

} // namespace ZefTest

#endif // ZEF_TEST_IF2_TEST_SUPPORT_H
