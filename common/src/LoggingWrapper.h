#ifndef ZEF_LOGGING_WRAPPER_H
#define ZEF_LOGGING_WRAPPER_H

#include <cstdio>
#include <string>

#include "ZefMgmtSpi.h"

namespace Zef {

class ZefThreadLock;

/// Level word of a log level: 0 "EM" ... 6 "IN", anything else "TR".
const char* _get_level_str(unsigned int level);

/// Writes the local time as "YYYY-MM-DD hh:mm:ss.mmm" into buf (24 bytes suffice).
void fill_in_time_str(char* buf, int len);

/// The last component of a path (leading blanks skipped, trailing "/" and
/// blanks ignored), at most len - 1 characters, written into buf.
const char* path_tail(const char* path, char* buf, int len);

/// Trace subsystem handles registered with a version "2" trace interface.
extern ZefMwSpiTraceSubsystemHandle_2T ZefModelRepositoryTraceHandle;

/// The one process-wide sink for log lines (levels 0-6) and debug traces
/// (level 8). Writes a rotating log file unless a log or trace interface of
/// the management framework is attached.
class LoggingWrapper {
public:
    /// The singleton, created on first call. Aborts the process when the
    /// default log directory is missing or not writable.
    static LoggingWrapper* instance();

    unsigned int get_level() const { return _level; }
    void set_level(unsigned int level);
    void set_max_size(unsigned int maxSize);
    std::string get_fname() const;
    /// Switches to another log file (closes the current one) when the name differs.
    void set_fname(const std::string& fname);

    void set_log_spi(ZefMgmtSpiInterface_1* spi);
    void set_trace_spi(ZefMgmtSpiInterface_1* spi);

    /// Writes one log line of level 0-6; callers pass facility 1.
    void log_printf(const char* function, unsigned int level, int facility, const char* format, ...)
        __attribute__((format(printf, 5, 6)));
    /// Writes one trace line; kind 9 enters a function, 10 leaves it, 0 is plain.
    void trace_printf(const char* file, const char* function, int line, unsigned int level, int kind,
                      const char* format, ...) __attribute__((format(printf, 7, 8)));
    /// Hands a trace line to an attached version "2" trace interface; no-op otherwise.
    void trace_v2_printf(ZefMwSpiTraceSubsystemHandle_2T subsystem, ZefMwSpiTraceLevelT level,
                         const char* file, const char* function, unsigned int line, const char* format,
                         ...) __attribute__((format(printf, 7, 8)));
    /// Detaches every interface and closes the file; later calls only complain.
    void close();

    // Rotation internals, public for the unit tests.
    void check_and_rotate_log_file();
    void rotateLogs();

    LoggingWrapper(const LoggingWrapper&) = delete;
    LoggingWrapper& operator=(const LoggingWrapper&) = delete;

private:
    LoggingWrapper();

    ZefMwSpiLog_1* _logSpi = nullptr;
    ZefMwSpiTrace_1* _traceSpi1 = nullptr;
    ZefMwSpiTrace_2* _traceSpi2 = nullptr;
    unsigned int _level = 6;
    unsigned int _maxSize = 5242880;
    unsigned int _maxCount = 5;
    std::string _fname;
    std::string _dir;
    std::string _baseName;
    int _firstIndex = 1;
    int _lastIndex = 999999;
    FILE* _file = nullptr;
    bool _closed = false;

    static LoggingWrapper* theInstance;
    static ZefThreadLock _lock;

    friend class LoggingWrapperTestAccess;
};

} // namespace Zef

#endif // ZEF_LOGGING_WRAPPER_H
