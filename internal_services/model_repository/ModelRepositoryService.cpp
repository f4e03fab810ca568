#include "ModelRepositoryService.h"

#include <cstdlib>

#include "ModelParser.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

ModelRepositoryService* ModelRepositoryService::_instance = nullptr;
bool ModelRepositoryService::_standalone = false;

namespace {
const unsigned int kLevelCritical = 2;

// Two service objects would share the static entry points of the C
// interfaces; that is a programming error, so stop at once where it happens.
[[noreturn]] void abortInternalError(const char* text) {
    ZEF_LOG(kLevelCritical, "%s", text);
    std::abort();
}
} // namespace

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
}

ZefReturnT ModelRepositoryService::start() {
    if (_started) {
        return ZefAlreadyExists;
    }
    ZEF_TRACE("Starting Model Repository ...");

    ModelParser parser(_repository);
    parser.setStandalone(_standalone);
    _repository.setStandalone(_standalone);
    _repository.setMainRootName(_mainRootName);

    for (const std::string& file : _modelFiles) {
        int rc = parser.parse(file);
        if (rc != 0) {
            // The files after a broken one are not read: their references
            // could not be resolved against a half-loaded model anyway.
            ZEF_LOG_ERROR("Error Parse in '%s'", file.c_str());
            return rc;
        }
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
    return ZefOk;
}

} // namespace ZefModelRepositoryService
