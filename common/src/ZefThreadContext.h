#ifndef ZEF_THREAD_CONTEXT_H
#define ZEF_THREAD_CONTEXT_H

// Internal side of the per-thread error text whose C functions are declared
// in ZefMgmtSpi.h.

namespace Zef {

/// Logs at level 3 why a thread's context block could not be stored, from
/// the error number pthread_setspecific returned.
void logThreadContextStoreFailure(int errorNumber);

} // namespace Zef

#endif // ZEF_THREAD_CONTEXT_H
