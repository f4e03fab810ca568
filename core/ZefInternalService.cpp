#include "ZefInternalService.h"

namespace Zef {

// Defined out of line so that the class's virtual table lives in one object file.
ZefInternalService::~ZefInternalService() = default;

} // namespace Zef
