#ifndef ZEF_INTERNAL_SERVICE_H
#define ZEF_INTERNAL_SERVICE_H

#include "ZefMgmtSpi.h"
#include "ZefReturn.h"

namespace Zef {

class ConfigurationFile;

/// A service that runs as a component inside the management framework.
///
/// The framework creates the service, calls init with its portal accessor
/// and the component configuration, and calls terminate before destroying
/// it. Starting and stopping go through the component record the service
/// registers with the portal during init.
class ZefInternalService {
public:
    virtual ~ZefInternalService();

    /// Obtains the interface portal through `accessor`, registers the
    /// service's component record with it and reads the service's settings
    /// from `cfg`. Returns 0 on success.
    virtual ZefReturnT init(ZefMgmtSpiInterfacePortalAccessor* accessor, ConfigurationFile& cfg) = 0;
    /// Unregisters from the portal, if registered. Returns 0 on success.
    virtual ZefReturnT terminate() = 0;

protected:
    ZefInternalService() = default;
    ZefInternalService(const ZefInternalService&) = default;
    ZefInternalService& operator=(const ZefInternalService&) = default;
};

} // namespace Zef

#endif // ZEF_INTERNAL_SERVICE_H
