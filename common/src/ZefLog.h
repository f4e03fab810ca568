#ifndef ZEF_LOG_H
#define ZEF_LOG_H

// One-line logging and tracing for the whole program. Each macro tests the
// level before anything is formatted, so a disabled trace costs one call to
// get_level() and one comparison.

#include "LoggingWrapper.h"

#define ZEF_LOG_LEVEL_ERROR 3u
#define ZEF_LOG_LEVEL_WARNING 4u
#define ZEF_LOG_LEVEL_TRACE 8u

/// Log line at `level` (0-6), written only when the current level allows it.
#define ZEF_LOG(level, ...)                                                              \
    do {                                                                                 \
        ::Zef::LoggingWrapper* zefLw_ = ::Zef::LoggingWrapper::instance();               \
        if (zefLw_->get_level() >= (unsigned)(level))                                    \
            zefLw_->log_printf(__func__, (unsigned)(level), 1, __VA_ARGS__);              \
    } while (0)

#define ZEF_LOG_ERROR(...) ZEF_LOG(ZEF_LOG_LEVEL_ERROR, __VA_ARGS__)
#define ZEF_LOG_WARNING(...) ZEF_LOG(ZEF_LOG_LEVEL_WARNING, __VA_ARGS__)

/// Debug trace (level 8) of the given kind: 0 plain, 9 entering, 10 leaving.
/// Also handed to a version "2" trace interface under the model repository
/// subsystem when one is attached.
#define ZEF_TRACE_KIND(kind, ...)                                                        \
    do {                                                                                 \
        ::Zef::LoggingWrapper* zefLw_ = ::Zef::LoggingWrapper::instance();               \
        if (zefLw_->get_level() >= ZEF_LOG_LEVEL_TRACE) {                                \
            zefLw_->trace_printf(__FILE__, __func__, __LINE__, ZEF_LOG_LEVEL_TRACE, (kind), \
                                 __VA_ARGS__);                                           \
            zefLw_->trace_v2_printf(::Zef::ZefModelRepositoryTraceHandle,                \
                                    ZEF_LOG_LEVEL_TRACE, __FILE__, __func__, __LINE__,  \
                                    __VA_ARGS__);                                        \
        }                                                                                \
    } while (0)

#define ZEF_TRACE(...) ZEF_TRACE_KIND(0, __VA_ARGS__)
#define ZEF_TRACE_ENTER(...) ZEF_TRACE_KIND(9, __VA_ARGS__)
#define ZEF_TRACE_LEAVE(...) ZEF_TRACE_KIND(10, __VA_ARGS__)

/// An error or warning that is both logged at its level and traced, as the
/// repository does for refusals of its records.
#define ZEF_LOG_AND_TRACE(level, ...)                                                    \
    do {                                                                                 \
        ZEF_LOG((level), __VA_ARGS__);                                                   \
        ZEF_TRACE(__VA_ARGS__);                                                          \
    } while (0)

#endif // ZEF_LOG_H
