#ifndef ZEF_LOGGING_WRAPPER_TEST_ACCESS_H
#define ZEF_LOGGING_WRAPPER_TEST_ACCESS_H

// Lets tests point the process-wide logger at a log file of their own and
// look at its settings. Tests run on one thread; the helpers still take the
// logger's lock where they change its state.

#include <string>

#include "LoggingWrapper.h"
#include "ZefScopedLock.h"
#include "ZefThreadLock.h"

namespace Zef {

class LoggingWrapperTestAccess {
public:
    /// Resets the singleton to its defaults (level 6, max size 5 MiB, max
    /// count 5, no interface attached, not closed) writing dir + "/" + baseName.
    /// Points rotation at another folder without touching the active file.
    static void setDirectoryOnly(const std::string& dir) {
        LoggingWrapper* wrapper = LoggingWrapper::instance();
        ZefScopedLock guard(LoggingWrapper::_lock);
        wrapper->_dir = dir;
    }

    static void useDirectory(const std::string& dir, const std::string& baseName = "zef.log") {
        LoggingWrapper* wrapper = LoggingWrapper::instance();
        ZefScopedLock guard(LoggingWrapper::_lock);
        wrapper->closeFile();
        wrapper->_logSpi = nullptr;
        wrapper->_traceSpi1 = nullptr;
        wrapper->_traceSpi2 = nullptr;
        wrapper->_level = 6;
        wrapper->_maxSize = 5242880;
        wrapper->_maxCount = 5;
        wrapper->_dir = dir;
        wrapper->_baseName = baseName;
        wrapper->_fname = dir + "/" + baseName;
        wrapper->_firstIndex = 1;
        wrapper->_lastIndex = 999999;
        wrapper->_closed = false;
        wrapper->_writeFailed = false;
        wrapper->_refusedFiles.clear();
    }

    /// Closes the singleton's file and detaches every interface, leaving it
    /// usable (not closed) for the next test.
    static void release() {
        LoggingWrapper* wrapper = LoggingWrapper::instance();
        ZefScopedLock guard(LoggingWrapper::_lock);
        wrapper->closeFile();
        wrapper->_logSpi = nullptr;
        wrapper->_traceSpi1 = nullptr;
        wrapper->_traceSpi2 = nullptr;
        wrapper->_closed = false;
    }

    /// Pushes buffered lines of the singleton's file to disk.
    static void flush() {
        LoggingWrapper* wrapper = LoggingWrapper::instance();
        ZefScopedLock guard(LoggingWrapper::_lock);
        if (wrapper->_file != nullptr)
            std::fflush(wrapper->_file);
    }

    static void setMaxCount(unsigned int maxCount) {
        LoggingWrapper* wrapper = LoggingWrapper::instance();
        ZefScopedLock guard(LoggingWrapper::_lock);
        wrapper->_maxCount = maxCount;
    }

    static bool hasOpenFile() { return LoggingWrapper::instance()->_file != nullptr; }
    static bool isClosed() { return LoggingWrapper::instance()->_closed; }

    // Settings of any instance (the singleton or one made by construct()).
    static unsigned int maxSize(const LoggingWrapper* wrapper) { return wrapper->_maxSize; }
    static unsigned int maxCount(const LoggingWrapper* wrapper) { return wrapper->_maxCount; }
    static const std::string& directory(const LoggingWrapper* wrapper) { return wrapper->_dir; }
    static const std::string& baseName(const LoggingWrapper* wrapper) { return wrapper->_baseName; }
    static const std::string& fileName(const LoggingWrapper* wrapper) { return wrapper->_fname; }
    static int firstIndex(const LoggingWrapper* wrapper) { return wrapper->_firstIndex; }
    static int lastIndex(const LoggingWrapper* wrapper) { return wrapper->_lastIndex; }

    /// A fresh instance built by the constructor from the current
    /// environment, beside the singleton. Free it with destroy().
    static LoggingWrapper* construct() { return new LoggingWrapper(); }
    static void destroy(LoggingWrapper* wrapper) { delete wrapper; }
};

} // namespace Zef

#endif // ZEF_LOGGING_WRAPPER_TEST_ACCESS_H
