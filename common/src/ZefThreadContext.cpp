// Per-thread error text of the C interfaces: a failing interface call leaves
// a readable reason that the caller fetches on the same thread.

#include "ZefThreadContext.h"

#include <pthread.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "ZefLog.h"
#include "ZefMgmtSpi.h"

namespace {

pthread_once_t contextKeyOnce = PTHREAD_ONCE_INIT;
pthread_key_t contextKey;
bool contextKeyCreated = false;

// A thread's block is released when the thread ends, so a framework that
// runs many short-lived threads does not accumulate them.
void releaseContext(void* block) { std::free(block); }

void createContextKey() { contextKeyCreated = pthread_key_create(&contextKey, releaseContext) == 0; }

ZefMgmtSpiThreadContext_1* currentContext() {
    ZefMgmtSpiThreadContext_1* context = nullptr;
    return zefMgmtSpiThreadContextGet(&context) == ZefOk ? context : nullptr;
}

} // namespace

namespace Zef {

void logThreadContextStoreFailure(int errorNumber) {
    switch (errorNumber) {
    case ENOMEM:
        ZEF_LOG_ERROR("Failed to set a Thread specific data : Insufficient memory");
        break;
    case EINVAL:
        ZEF_LOG_ERROR("Failed to set a Thread specific data : Invalid key");
        break;
    default:
        ZEF_LOG_ERROR("Failed to set a Thread specific data : Unknown Error");
        break;
    }
}

} // namespace Zef

extern "C" {

ZefReturnT zefMgmtSpiThreadContextInit(void) { return ZefOk; }

ZefReturnT zefMgmtSpiThreadContextGet(ZefMgmtSpiThreadContext_1** out) {
    if (out == nullptr)
        return ZefInvalidArgument;
    *out = nullptr;
    pthread_once(&contextKeyOnce, createContextKey);
    if (!contextKeyCreated)
        return ZefFailure;

    auto* context = static_cast<ZefMgmtSpiThreadContext_1*>(pthread_getspecific(contextKey));
    if (context == nullptr) {
        context = static_cast<ZefMgmtSpiThreadContext_1*>(std::calloc(1, sizeof(ZefMgmtSpiThreadContext_1)));
        if (context == nullptr) {
            Zef::logThreadContextStoreFailure(ENOMEM);
            return ZefFailure;
        }
        const int rc = pthread_setspecific(contextKey, context);
        if (rc != 0) {
            Zef::logThreadContextStoreFailure(rc);
            std::free(context);
            return ZefFailure;
        }
    }
    *out = context;
    return ZefOk;
}

ZefReturnT zefMgmtSpiThreadContextSetErrorText(const char* fmt, ...) {
    ZefMgmtSpiThreadContext_1* context = currentContext();
    if (context == nullptr)
        return ZefFailure;
    if (fmt == nullptr) {
        context->errorText[0] = '\0';
        return ZefOk;
    }
    va_list args;
    va_start(args, fmt);
    std::vsnprintf(context->errorText, sizeof(context->errorText), fmt, args);
    va_end(args);
    return ZefOk;
}

ZefReturnT zefMgmtSpiThreadContextPrependErrorText(const char* fmt, ...) {
    ZefMgmtSpiThreadContext_1* context = currentContext();
    if (context == nullptr)
        return ZefFailure;
    if (fmt == nullptr || fmt[0] == '\0') {
        context->copyBuffer[0] = '\0';
        return ZefInvalidArgument;
    }
    // The old text waits in the copy buffer while the new one is formatted
    // into its place; both together are cut to the size of the error text.
    std::memcpy(context->copyBuffer, context->errorText, sizeof(context->copyBuffer));
    va_list args;
    va_start(args, fmt);
    std::vsnprintf(context->errorText, sizeof(context->errorText), fmt, args);
    va_end(args);
    const size_t used = std::strlen(context->errorText);
    std::snprintf(context->errorText + used, sizeof(context->errorText) - used, "%s", context->copyBuffer);
    return ZefOk;
}

const char* zefMgmtSpiThreadContextGetErrorText(void) {
    ZefMgmtSpiThreadContext_1* context = currentContext();
    if (context == nullptr)
        return nullptr;
    std::memcpy(context->copyBuffer, context->errorText, sizeof(context->copyBuffer));
    return context->copyBuffer;
}

} // extern "C"
