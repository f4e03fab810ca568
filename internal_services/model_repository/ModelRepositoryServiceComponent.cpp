// The component record of the service and the C functions behind it: the
// start and stop functions the framework calls, and the functions of the
// interfaces "ZefOamSpiModelRepository" version "1" and
// "ZefOamSpiModelRepositoryExtension" version "1". No exception leaves any
// of them: they answer with result codes.

#include "ModelRepositoryService.h"

#include <cstddef>
#include <exception>

#include "If2Manager.h"
#include "ZefLog.h"
#include "ZefOamSpiModelRepository_1.h"

namespace ZefModelRepositoryService {

namespace {

const char* const kComponentName = "ZefOamSpiModelRepositoryService";
const char* const kComponentInterface = "ZefMgmtSpiComponent";
const char* const kComponentVersion = "2";
const char* const kRepositoryInterface = "ZefOamSpiModelRepository";
const char* const kRepositoryExtensionInterface = "ZefOamSpiModelRepositoryExtension";
const char* const kInterfaceVersion1 = "1";
const char* const kLogInterface = "ZefMwSpiLog";
const char* const kTraceInterface = "ZefMwSpiTrace";
const int kComponentFlags = 1;

// The three texts head every interface record: the fields that follow them
// are where a reader built against the header expects them.
static_assert(offsetof(ZefOamSpiModelRepository_1, getMoms) == sizeof(ZefMgmtSpiInterface_1),
              "interface functions follow the three texts");
static_assert(offsetof(ZefOamSpiModelRepositoryExtension_1, getFileName) == sizeof(ZefMgmtSpiInterface_1),
              "interface functions follow the three texts");

// The provided interfaces: version 1, the four query interface tables and
// the extension. One more slot for the null that ends the array.
const size_t kProvidedSlots = 7;
// The log and the trace interface, and the null.
const size_t kRequiredSlots = 3;

// Static storage: the framework keeps pointers into these records for as
// long as the component is registered.
ZefOamSpiModelRepository_1 repositoryInterface;
ZefOamSpiModelRepositoryExtension_1 repositoryExtensionInterface;
ZefMgmtSpiInterface_1 logRequirement;
ZefMgmtSpiInterface_1 traceRequirement;
const ZefMgmtSpiInterface_1* providedInterfaces[kProvidedSlots];
const ZefMgmtSpiInterface_1* requiredInterfaces[kRequiredSlots];
ZefMgmtSpiComponent_2 componentDescriptor;

void setHead(ZefMgmtSpiInterface_1& head, const char* component, const char* interface, const char* version) {
    head.componentName = component;
    head.interfaceName = interface;
    head.interfaceVersion = version;
}

// Every interface record begins with the three texts.
template <typename Record>
const ZefMgmtSpiInterface_1* asInterface(const Record* record) {
    return &record->base;
}

// Logs an exception that reached the C boundary; the caller turns it into a result code.
void reportEscaped(const char* function, const char* what) {
    ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "%s of Model Repository failed: %s", function, what);
}

// The common frame of the interface functions: 2 while the service is not
// started (before the arguments are looked at), then `call` on the
// repository, with every exception turned into -1.
template <typename Call>
ZefReturnT callStartedRepository(const char* function, Call call) {
    try {
        ModelRepositoryService* service = ModelRepositoryService::getModelRepositoryService();
        if (service == nullptr || !service->isStarted()) {
            return ZefNotStarted;
        }
        return call(*service->getModelRepository());
    } catch (const std::exception& e) {
        reportEscaped(function, e.what());
    } catch (...) {
        reportEscaped(function, "unknown exception");
    }
    return ZefFailure;
}

// A failed start may leave a partly loaded model and a partly read file
// list behind; both go, so that the framework can start the component again.
void rollBackFailedStart(ModelRepositoryService& service) {
    try {
        service.stop();
    } catch (const std::exception& e) {
        reportEscaped("stop", e.what());
    } catch (...) {
        reportEscaped("stop", "unknown exception");
    }
}

extern "C" {

static ZefReturnT getMoms(const ZefOamSpiMom** mom) {
    return callStartedRepository(__func__, [&](ModelRepository& repository) {
        return mom == nullptr ? ZefInvalidArgument : repository.getMoms(mom);
    });
}

static ZefReturnT getMoc(const char* mimName, const char* mimVersion, const char* mocName, const ZefOamSpiMoc** moc) {
    return callStartedRepository(__func__, [&](ModelRepository& repository) {
        if (mimName == nullptr || mimVersion == nullptr || mocName == nullptr || moc == nullptr) {
            return static_cast<ZefReturnT>(ZefInvalidArgument);
        }
        return repository.getMoc(mimName, mimVersion, mocName, moc);
    });
}

static ZefReturnT getTreeRoot(const ZefOamSpiMoc** moc) {
    return callStartedRepository(__func__, [&](ModelRepository& repository) {
        return moc == nullptr ? ZefInvalidArgument : repository.getTreeRoot(moc);
    });
}

static ZefReturnT getFileName(const char* mimName, const char* mimVersion, const char** fileName) {
    return callStartedRepository(__func__, [&](ModelRepository& repository) {
        if (mimName == nullptr || mimVersion == nullptr || fileName == nullptr) {
            return static_cast<ZefReturnT>(ZefInvalidArgument);
        }
        return repository.getFileName(mimName, mimVersion, fileName);
    });
}

static ZefReturnT startComponent(void) {
    ModelRepositoryService* service = ModelRepositoryService::getModelRepositoryService();
    if (service == nullptr) {
        return ZefFailure;
    }
    ZefReturnT result = ZefFailure;
    try {
        result = service->start();
    } catch (const std::exception& e) {
        // In component mode the first error of the model ends the load here.
        reportEscaped("start", e.what());
    } catch (...) {
        reportEscaped("start", "unknown exception");
    }
    // -3: the running model stays as it is.
    if (result != ZefOk && result != ZefAlreadyExists) {
        rollBackFailedStart(*service);
    }
    return result;
}

static ZefReturnT stopComponent(void) {
    ModelRepositoryService* service = ModelRepositoryService::getModelRepositoryService();
    if (service == nullptr) {
        return ZefNotStarted;
    }
    try {
        service->stop();
        return ZefOk;
    } catch (const std::exception& e) {
        reportEscaped("stop", e.what());
    } catch (...) {
        reportEscaped("stop", "unknown exception");
    }
    return ZefFailure;
}

} // extern "C"

} // namespace

void ModelRepositoryService::fillComponentDescriptor() {
    setHead(repositoryInterface.base, kComponentName, kRepositoryInterface, kInterfaceVersion1);
    repositoryInterface.getMoms = getMoms;
    repositoryInterface.getMoc = getMoc;
    repositoryInterface.getTreeRoot = getTreeRoot;

    setHead(repositoryExtensionInterface.base, kComponentName, kRepositoryExtensionInterface, kInterfaceVersion1);
    repositoryExtensionInterface.getFileName = getFileName;

    // The query interface tables are the handle manager's, created on first use.
    const If2Manager& queryInterfaces = If2Manager::instance();
    providedInterfaces[0] = asInterface(&repositoryInterface);
    providedInterfaces[1] = asInterface(queryInterfaces.getIf2());
    providedInterfaces[2] = asInterface(queryInterfaces.getIf3());
    providedInterfaces[3] = asInterface(queryInterfaces.getIf4());
    providedInterfaces[4] = asInterface(queryInterfaces.getIf4_1());
    providedInterfaces[5] = asInterface(&repositoryExtensionInterface);
    providedInterfaces[6] = nullptr;

    // Any provider will do. The logger takes trace interfaces of version
    // "1" and "2", so the trace requirement names no version.
    setHead(logRequirement, nullptr, kLogInterface, kInterfaceVersion1);
    setHead(traceRequirement, nullptr, kTraceInterface, nullptr);
    requiredInterfaces[0] = &logRequirement;
    requiredInterfaces[1] = &traceRequirement;
    requiredInterfaces[2] = nullptr;

    setHead(componentDescriptor.base, kComponentName, kComponentInterface, kComponentVersion);
    componentDescriptor.providedInterfaces = providedInterfaces;
    componentDescriptor.requiredInterfaces = requiredInterfaces;
    componentDescriptor.start = startComponent;
    componentDescriptor.stop = stopComponent;
    componentDescriptor.flags = kComponentFlags;
}

const ZefMgmtSpiComponent_2* ModelRepositoryService::getComponentDescriptor() { return &componentDescriptor; }

} // namespace ZefModelRepositoryService
