#ifndef ZEF_TEST_LOG_AND_TRACE_DOUBLE_H
#define ZEF_TEST_LOG_AND_TRACE_DOUBLE_H

// The framework's log and trace interfaces, written for the tests: they
// record what the logging singleton forwards to them once attached.

#include <cstdarg>
#include <cstdio>
#include <string>
#include <vector>

#include "LoggingWrapper.h"
#include "ZefMgmtSpi.h"

namespace ZefTest {

/// A log interface "ZefMwSpiLog" version "1" and trace interfaces of
/// versions "1" and "2" that record every call. Attach them to the logging
/// singleton with attachLog/attachTrace1/attachTrace2; the destructor
/// detaches whatever was attached.
class LogAndTraceDouble {
public:
    struct LogCall {
        unsigned int level;
        int facility;
        std::string line;
    };
    struct Trace1Call {
        std::string kind; // "enter", "leave" or "print"
        std::string line;
    };
    struct Trace2Call {
        ZefMwSpiTraceSubsystemHandle_2T subsystem;
        ZefMwSpiTraceLevelT level;
        std::string file;
        std::string function;
        std::string message;
    };

    LogAndTraceDouble() {
        current() = this;
        setHead(_log.base, "ZefMwSpiLog", "1");
        _log.log = &log;
        setHead(_trace1.base, "ZefMwSpiTrace", "1");
        _trace1.enter = &enter;
        _trace1.leave = &leave;
        _trace1.print = &print1;
        setHead(_trace2.base, "ZefMwSpiTrace", "2");
        _trace2.registerSubsystem = &registerSubsystem;
        _trace2.print = &print2;
    }
    ~LogAndTraceDouble() {
        Zef::LoggingWrapper::instance()->set_log_spi(nullptr);
        Zef::LoggingWrapper::instance()->set_trace_spi(nullptr);
        current() = nullptr;
    }

    LogAndTraceDouble(const LogAndTraceDouble&) = delete;
    LogAndTraceDouble& operator=(const LogAndTraceDouble&) = delete;

    void attachLog() { Zef::LoggingWrapper::instance()->set_log_spi(&_log.base); }
    void attachTrace1() { Zef::LoggingWrapper::instance()->set_trace_spi(&_trace1.base); }
    void attachTrace2() { Zef::LoggingWrapper::instance()->set_trace_spi(&_trace2.base); }

    /// True: every log line is also written to standard error (for death tests).
    bool echoLogToStderr = false;
    /// Subsystem names whose registration the version "2" interface refuses.
    std::vector<std::string> refusedSubsystems;

    std::vector<LogCall> logCalls;
    std::vector<Trace1Call> trace1Calls;
    std::vector<std::string> registeredSubsystems;
    std::vector<Trace2Call> trace2Calls;

    /// The handle the version "2" interface gave the subsystem: 501, 502, ...
    /// in registration order; 0 when it was not registered.
    ZefMwSpiTraceSubsystemHandle_2T handleOf(const std::string& name) const {
        for (size_t i = 0; i < registeredSubsystems.size(); ++i) {
            if (registeredSubsystems[i] == name)
                return static_cast<ZefMwSpiTraceSubsystemHandle_2T>(kFirstHandle + i);
        }
        return 0;
    }

private:
    static const ZefMwSpiTraceSubsystemHandle_2T kFirstHandle = 501;

    static LogAndTraceDouble*& current() {
        static LogAndTraceDouble* instance = nullptr;
        return instance;
    }
    static void setHead(ZefMgmtSpiInterface_1& head, const char* name, const char* version) {
        head.componentName = "ZefMgmtSpiFramework";
        head.interfaceName = name;
        head.interfaceVersion = version;
    }

    static ZefReturnT log(int, unsigned int level, int facility, const char* line) {
        current()->logCalls.push_back(LogCall{level, facility, line});
        if (current()->echoLogToStderr)
            std::fprintf(stderr, "%s\n", line);
        return ZefOk;
    }
    static void enter(const char* line) { current()->trace1Calls.push_back(Trace1Call{"enter", line}); }
    static void leave(const char* line) { current()->trace1Calls.push_back(Trace1Call{"leave", line}); }
    static void print1(unsigned int, const char* line) { current()->trace1Calls.push_back(Trace1Call{"print", line}); }

    static ZefReturnT registerSubsystem(const char* name, ZefMwSpiTraceSubsystemHandle_2T* handle) {
        LogAndTraceDouble* self = current();
        for (const std::string& refused : self->refusedSubsystems) {
            if (refused == name)
                return ZefFailure;
        }
        self->registeredSubsystems.push_back(name);
        *handle = static_cast<ZefMwSpiTraceSubsystemHandle_2T>(kFirstHandle + self->registeredSubsystems.size() - 1);
        return ZefOk;
    }
    static void print2(ZefMwSpiTraceSubsystemHandle_2T subsystem, ZefMwSpiTraceLevelT level, const char* file,
                       const char* function, unsigned int, const char* format, va_list args) {
        char message[1000];
        std::vsnprintf(message, sizeof(message), format, args);
        current()->trace2Calls.push_back(Trace2Call{subsystem, level, file, function, message});
    }

    ZefMwSpiLog_1 _log;
    ZefMwSpiTrace_1 _trace1;
    ZefMwSpiTrace_2 _trace2;
};

} // namespace ZefTest

#endif // ZEF_TEST_LOG_AND_TRACE_DOUBLE_H
