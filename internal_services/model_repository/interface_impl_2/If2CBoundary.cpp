#include "If2CBoundary.h"

#include "ModelRepositoryService.h"
#include "ZefLog.h"
#include "ZefMgmtSpi.h"

namespace ZefModelRepositoryService {
namespace If2CBoundary {

bool isServiceStarted()
{
    const ModelRepositoryService* service = ModelRepositoryService::getModelRepositoryService();
    return service != nullptr && service->isStarted();
}

void reportLookupFailure(const char* lookupText, const std::out_of_range& error)
{
    zefMgmtSpiThreadContextSetErrorText(lookupText, error.what());
}

void reportFault(const char* what)
{
    ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Query interface getter failed: %s", what);
}

} // namespace If2CBoundary
} // namespace ZefModelRepositoryService
