#ifndef ZEF_TEST_FRAMEWORK_DOUBLE_H
#define ZEF_TEST_FRAMEWORK_DOUBLE_H

// The management framework as a component sees it, written for the tests:
// a portal accessor and an interface portal of version "3" that records
// every registration. The framework side is not part of this program, so
// this is the counterpart a component meets in a test.

#include <string>
#include <vector>

#include "ZefMgmtSpi.h"

namespace ZefTest {

/// Portal accessor and portal. One object at a time: the C functions of the
/// records find it through a static pointer, as the framework's would.
class FrameworkDouble {
public:
    FrameworkDouble() {
        current() = this;
        _accessor.getPortal = &getPortal;
        _portal.base.componentName = "ZefMgmtSpiFramework";
        _portal.base.interfaceName = "ZefMgmtSpiInterfacePortal";
        _portal.base.interfaceVersion = "3";
        _portal.registerComponent = &registerComponent;
        _portal.unregisterComponent = &unregisterComponent;
    }
    ~FrameworkDouble() { current() = nullptr; }

    FrameworkDouble(const FrameworkDouble&) = delete;
    FrameworkDouble& operator=(const FrameworkDouble&) = delete;

    ZefMgmtSpiInterfacePortalAccessor* accessor() { return &_accessor; }
    /// The portal record the accessor hands out.
    ZefMgmtSpiInterfacePortal_3& portal() { return _portal; }

    /// False: the accessor answers every request with null.
    bool offersPortal = true;
    /// What registerComponent answers.
    ZefReturnT registerResult = ZefOk;

    /// Versions asked of the accessor, in order.
    std::vector<std::string> requestedVersions;
    /// Every registerComponent and unregisterComponent call, in order.
    std::vector<const ZefMgmtSpiComponent_2*> registrations;
    std::vector<const ZefMgmtSpiComponent_2*> unregistrations;

    /// The component registered last and not unregistered since; null otherwise.
    const ZefMgmtSpiComponent_2* component() const {
        if (registrations.empty() || registrations.size() == unregistrations.size())
            return nullptr;
        return registrations.back();
    }

    /// Provided interface of the registered component by name and version; null when it has none.
    template <typename Record>
    const Record* provided(const std::string& name, const std::string& version) const {
        const ZefMgmtSpiComponent_2* registered = component();
        if (registered == nullptr)
            return nullptr;
        for (const ZefMgmtSpiInterface_1* const* slot = registered->providedInterfaces; *slot != nullptr; ++slot) {
            if (name == textOf((*slot)->interfaceName) && version == textOf((*slot)->interfaceVersion))
                return reinterpret_cast<const Record*>(*slot);
        }
        return nullptr;
    }

    /// The framework starts and stops the registered component through its record.
    ZefReturnT startComponent() const { return component()->start(); }
    ZefReturnT stopComponent() const { return component()->stop(); }

    static std::string textOf(const char* text) { return text != nullptr ? text : "(null)"; }

private:
    static FrameworkDouble*& current() {
        static FrameworkDouble* instance = nullptr;
        return instance;
    }

    static ZefMgmtSpiInterface_1* getPortal(const char* version) {
        FrameworkDouble* self = current();
        self->requestedVersions.push_back(textOf(version));
        return self->offersPortal ? &self->_portal.base : nullptr;
    }
    static ZefReturnT registerComponent(const ZefMgmtSpiComponent_2* component) {
        current()->registrations.push_back(component);
        return current()->registerResult;
    }
    static ZefReturnT unregisterComponent(const ZefMgmtSpiComponent_2* component) {
        current()->unregistrations.push_back(component);
        return ZefOk;
    }

    ZefMgmtSpiInterfacePortalAccessor _accessor;
    ZefMgmtSpiInterfacePortal_3 _portal;
};

} // namespace ZefTest

#endif // ZEF_TEST_FRAMEWORK_DOUBLE_H
