#include "ModelRepositoryService.h"

#include <cstdlib>
#include <cstring>

#include "ModelParser.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

ModelRepositoryService* ModelRepositoryService::_instance = nullptr;
bool ModelRepositoryService::_standalone = false;

namespace {
const unsigned int kLevelCritical = 2;

const char* const kPortalVersion = "3";

// Two service objects would share the static entry points of the C
// interfaces, and a component without a portal can never be reached; both
// are programming errors of the process, so stop at once where they happen.
[[noreturn]] void abortInternalError(const char* text) {
    ZEF_LOG(kLevelCritical, "%s", text);
    std::abort();
}

// The portal of the version the service speaks, or null. A portal that
// reports another version has another record layout and cannot be used.
ZefMgmtSpiInterfacePortal_3* portalOf(ZefMgmtSpiInterfacePortalAccessor* accessor) {
    if (accessor == nullptr || accessor->getPortal == nullptr) {
        return nullptr;
    }
    ZefMgmtSpiInterface_1* portal = accessor->getPortal(kPortalVersion);
    if (portal == nullptr || portal->interfaceVersion == nullptr
        || std::strcmp(portal->interfaceVersion, kPortalVersion) != 0) {
        return nullptr;
    }
    return reinterpret_cast<ZefMgmtSpiInterfacePortal_3*>(portal);
}
} // namespace

ModelRepositoryService::ModelRepositoryService() { initService(false); }

ModelRepositoryService::ModelRepositoryService(bool standalone) { initService(standalone); }

ModelRepositoryService::~ModelRepositoryService() {
    if (_instance == nullptr) {
        abortInternalError("Internal error, no instance exist while destroying the service");
    }
    _instance = nullptr;
}

void ModelRepositoryService::initService(bool standalone) {
    if (_instance != nullptr) {
        abortInternalError("Internal error, instance already exist, generating core dump");
    }
    _instance = this;
    _started = false;
    _standalone = standalone;
    _portal = nullptr;
    if (!standalone) {
        fillComponentDescriptor();
    }
}

ZefReturnT ModelRepositoryService::init(ZefMgmtSpiInterfacePortalAccessor* accessor, Zef::ConfigurationFile& cfg) {
    ZEF_TRACE("Initializating Model Repository ... ");
    ZefMgmtSpiInterfacePortal_3* portal = portalOf(accessor);
    if (portal == nullptr) {
        abortInternalError("Portal could not be found, giving up.");
    }
    _portal = portal;
    const ZefReturnT registered =
        portal->registerComponent != nullptr ? portal->registerComponent(getComponentDescriptor()) : ZefFailure;
    if (registered != ZefOk) {
        // Unregistered, the framework would never start the component.
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Failed to register Model Repository with the interface portal (%d).",
                          registered);
        _portal = nullptr;
        return registered;
    }
    return readSettings(cfg);
}

ZefReturnT ModelRepositoryService::start() {
    if (_started) {
        return ZefAlreadyExists;
    }
    ZEF_TRACE("Starting Model Repository ...");

    if (!_standalone) {
        if (_modelSpecFile.empty()) {
            ZEF_LOG_ERROR("The configuration for the MR model files is not set. In order to start MR successfully, "
                          "'modelSpecFile' in internal configuration of MR must be set.");
            return ZefNotFound;
        }
        if (processModelSpecFile(_modelSpecFile) != ZefOk) {
            ZEF_LOG_ERROR("Failed to load model file configuration (modelSpecFile).");
            return ZefFailure;
        }
    }

    ModelParser parser(_repository);
    parser.setStandalone(_standalone);
    _repository.setStandalone(_standalone);
    _repository.setMainRootName(_mainRootName);

    if (!_modelFiles.empty()) {
        _repository.preparePatternChecks();
    }
    for (const std::string& file : _modelFiles) {
        int rc = parser.parse(file);
        if (rc != 0) {
            // The files after a broken one are not read: their references
            // could not be resolved against a half-loaded model anyway.
            ZEF_LOG_ERROR("Error Parse in '%s'", file.c_str());
            return rc;
        }
    }
    if (!_modelFiles.empty()) {
        _repository.compileModel();
        _repository.validateModel();
        _repository.dumpModel();
    }

    _started = true;
    ZEF_TRACE("Model Repository is started.");
    return ZefOk;
}

void ModelRepositoryService::stop() {
    ZEF_TRACE("Stopping Model Repository ...");
    _modelFiles.clear();
    _repository.cleanup();
    _started = false;
}

ZefReturnT ModelRepositoryService::terminate() {
    ZEF_TRACE("Terminating Model Repository ... ");
    if (_portal != nullptr) {
        if (_portal->unregisterComponent != nullptr) {
            _portal->unregisterComponent(getComponentDescriptor());
        }
        // Registered once, unregistered once.
        _portal = nullptr;
    }
    return ZefOk;
}

} // namespace ZefModelRepositoryService
