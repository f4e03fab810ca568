#include "LoggingWrapper.h"

#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include "ZefScopedLock.h"
#include "ZefThreadLock.h"

namespace Zef {

namespace {

// Buffer sizes of one line: the message part is formatted into
// kMessageSize characters, the finished line is cut at kLineSize - 1.
const size_t kMessageSize = 800;
const size_t kLineSize = 1000;
// A trace line has no fixed limit of its own; it is cut only far beyond any
// record dump, so the model dump at trace level shows every record whole.
const size_t kTraceMessageSize = 65536;
const size_t kTraceLineSize = kTraceMessageSize + 256;
const int kTimeSize = 24;
const int kPathTailSize = 65;

const unsigned int kHighestLogLevel = 6;
const unsigned int kTraceLevel = 8;
const int kRawFacility = 13;
const int kTraceEnter = 9;
const int kTraceLeave = 10;

const char* const kDefaultDirectory = "/tmp";
const char* const kDefaultBaseName = "zef.log";

// Handles of the trace subsystems, filled in by a version "2" trace interface.
ZefMwSpiTraceSubsystemHandle_2T zefCommonTraceHandle = 0;
ZefMwSpiTraceSubsystemHandle_2T zefCoreTraceHandle = 0;
ZefMwSpiTraceSubsystemHandle_2T zefAcTraceHandle = 0;
ZefMwSpiTraceSubsystemHandle_2T zefCmRouterTraceHandle = 0;
ZefMwSpiTraceSubsystemHandle_2T zefEventRouterTraceHandle = 0;
ZefMwSpiTraceSubsystemHandle_2T zefThreadContextTraceHandle = 0;
ZefMwSpiTraceSubsystemHandle_2T zefTransactionTraceHandle = 0;
ZefMwSpiTraceSubsystemHandle_2T zefSessionTraceHandle = 0;
ZefMwSpiTraceSubsystemHandle_2T zefSvsTraceHandle = 0;
ZefMwSpiTraceSubsystemHandle_2T zefOtherTraceHandle = 0;

struct TraceSubsystem {
    const char* name;          // registered with the trace interface
    const char* reportedName;  // named when the registration fails
    ZefMwSpiTraceSubsystemHandle_2T* handle;
};

// Registered in this order. A failed registration of the transaction
// subsystem is reported under the name of its service.
const TraceSubsystem kTraceSubsystems[] = {
    {"ZefCommon", "ZefCommon", &zefCommonTraceHandle},
    {"ZefCore", "ZefCore", &zefCoreTraceHandle},
    {"ZefAc", "ZefAc", &zefAcTraceHandle},
    {"ZefCmRouter", "ZefCmRouter", &zefCmRouterTraceHandle},
    {"ZefEventRouter", "ZefEventRouter", &zefEventRouterTraceHandle},
    {"ZefModelRepository", "ZefModelRepository", &ZefModelRepositoryTraceHandle},
    {"ZefThreadContext", "ZefThreadContext", &zefThreadContextTraceHandle},
    {"ZefTransaction", "ZefTransactionService", &zefTransactionTraceHandle},
    {"ZefSession", "ZefSession", &zefSessionTraceHandle},
    {"ZefSvs", "ZefSvs", &zefSvsTraceHandle},
    {"ZefOther", "ZefOther", &zefOtherTraceHandle},
};

/// snprintf's result as the length actually in the buffer.
size_t writtenLength(int formatted, size_t bufferSize) {
    if (formatted < 0)
        return 0;
    return std::min(static_cast<size_t>(formatted), bufferSize - 1);
}

const char* orNullText(const char* text) { return text != nullptr ? text : "(null)"; }

} // namespace

ZefMwSpiTraceSubsystemHandle_2T ZefModelRepositoryTraceHandle = 0;

std::atomic<LoggingWrapper*> LoggingWrapper::theInstance{nullptr};
ZefThreadLock LoggingWrapper::_lock;

const char* _get_level_str(unsigned int level) {
    static const char* const kWords[] = {"EM", "AL", "CR", "ER", "WA", "NO", "IN"};
    if (level < sizeof(kWords) / sizeof(kWords[0]))
        return kWords[level];
    return "TR";
}

void fill_in_time_str(char* buf, int len) {
    if (buf == nullptr || len <= 0)
        return;
    struct timeval now;
    gettimeofday(&now, nullptr);
    const int millis = static_cast<int>(now.tv_usec / 1000);

    // Breaking the time down is the costly part; a trace-heavy run writes
    // thousands of lines per second, so the date and time of the current
    // second are kept per thread and only the milliseconds are renewed.
    thread_local time_t cachedSecond = static_cast<time_t>(-1);
    thread_local char cachedText[64] = "";  // room for any year the C library may give
    thread_local size_t cachedLength = 0;
    if (now.tv_sec != cachedSecond) {
        struct tm parts;
        if (localtime_r(&now.tv_sec, &parts) == nullptr)
            std::memset(&parts, 0, sizeof(parts));  // year 1900, January, all else zero
        std::snprintf(cachedText, sizeof(cachedText), "%4d-%02d-%02d %02d:%02d:%02d", parts.tm_year + 1900,
                      parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec);
        cachedLength = std::strlen(cachedText);
        cachedSecond = now.tv_sec;
    }
    // "%s.%03d" of the cached text and the milliseconds, cut to the buffer.
    char stamp[sizeof(cachedText) + 4];
    std::memcpy(stamp, cachedText, cachedLength);
    stamp[cachedLength] = '.';
    stamp[cachedLength + 1] = static_cast<char>('0' + millis / 100);
    stamp[cachedLength + 2] = static_cast<char>('0' + millis / 10 % 10);
    stamp[cachedLength + 3] = static_cast<char>('0' + millis % 10);
    const size_t length = std::min(cachedLength + 4, static_cast<size_t>(len) - 1);
    std::memcpy(buf, stamp, length);
    buf[length] = '\0';
}

const char* path_tail(const char* path, char* buf, int len) {
    if (buf == nullptr || len <= 0)
        return buf;
    buf[0] = '\0';
    if (path == nullptr)
        return buf;
    while (*path == ' ' || *path == '\t')
        ++path;
    size_t end = std::strlen(path);
    while (end > 0 && (path[end - 1] == '/' || path[end - 1] == ' ' || path[end - 1] == '\t'))
        --end;
    size_t start = end;
    while (start > 0 && path[start - 1] != '/')
        --start;
    const size_t length = std::min(end - start, static_cast<size_t>(len - 1));
    std::memcpy(buf, path + start, length);
    buf[length] = '\0';
    return buf;
}

LoggingWrapper* LoggingWrapper::instance() {
    LoggingWrapper* wrapper = theInstance.load(std::memory_order_acquire);
    if (wrapper == nullptr) {
        ZefScopedLock guard(_lock);
        wrapper = theInstance.load(std::memory_order_relaxed);
        if (wrapper == nullptr) {
            wrapper = new LoggingWrapper();
            theInstance.store(wrapper, std::memory_order_release);
        }
    }
    return wrapper;
}

LoggingWrapper::LoggingWrapper() {
    const char* tmpDir = std::getenv("TMPDIR");
    _dir = tmpDir != nullptr ? tmpDir : kDefaultDirectory;
    _baseName = kDefaultBaseName;
    _fname = _dir + "/" + _baseName;
    checkDefaultDirectory(_dir);
    readEnvironment();
}

LoggingWrapper::~LoggingWrapper() { closeFile(); }

void LoggingWrapper::checkDefaultDirectory(const std::string& dir) {
    struct stat info;
    if (stat(dir.c_str(), &info) != 0 || !S_ISDIR(info.st_mode)) {
        std::fprintf(stderr, "Logging directory %s does not exist, aborting.\n", dir.c_str());
        std::abort();
    }
    if (access(dir.c_str(), W_OK) != 0) {
        std::fprintf(stderr, "Logging directory %s is not writable, aborting.\n", dir.c_str());
        std::abort();
    }
}

void LoggingWrapper::readEnvironment() {
    const char* fname = std::getenv("ZEF_LOGGING_FNAME");
    if (fname != nullptr && std::strchr(fname, '/') != nullptr) {
        adoptPath(fname);
    }
    // No validation on purpose: these are operator settings, read the way strtol reads them.
    if (const char* level = std::getenv("ZEF_LOGGING_LEVEL"))
        _level = static_cast<unsigned int>(std::strtol(level, nullptr, 10));
    if (const char* count = std::getenv("ZEF_LOGGING_FMAXCOUNT"))
        _maxCount = static_cast<unsigned int>(std::strtol(count, nullptr, 10));
    if (const char* size = std::getenv("ZEF_LOGGING_FMAXSIZE"))
        _maxSize = static_cast<unsigned int>(std::strtol(size, nullptr, 10));
}

void LoggingWrapper::adoptPath(const std::string& path) {
    // Numbered old files live beside the active file and are named after it,
    // so a log moved elsewhere rotates where it is written (a rename never
    // crosses file systems) and never touches another program's zef.log.N.
    const std::string::size_type slash = path.rfind('/');
    const std::string dirPart = slash == std::string::npos ? std::string(".") : path.substr(0, slash + 1);
    char* resolved = realpath(dirPart.c_str(), nullptr);
    _dir = resolved != nullptr ? std::string(resolved) : dirPart;
    std::free(resolved);
    _baseName = slash == std::string::npos ? path : path.substr(slash + 1);
    _fname = path;
}

void LoggingWrapper::set_level(unsigned int level) { _level.store(level, std::memory_order_relaxed); }

void LoggingWrapper::set_max_size(unsigned int maxSize) {
    ZefScopedLock guard(_lock);
    _maxSize = maxSize;
}

std::string LoggingWrapper::get_fname() const {
    ZefScopedLock guard(_lock);
    return _fname;
}

void LoggingWrapper::set_fname(const std::string& fname) {
    ZefScopedLock guard(_lock);
    if (fname == _fname)
        return;
    adoptPath(fname);
    closeFile();
    // Another file gets its own chance after a failed write to this one.
    _writeFailed = false;
    // After close() nothing may be written any more, so the new file is not created.
    if (!_closed)
        openFile();
}

void LoggingWrapper::set_log_spi(ZefMgmtSpiInterface_1* spi) {
    ZefScopedLock guard(_lock);
    _logSpi = reinterpret_cast<ZefMwSpiLog_1*>(spi);
}

void LoggingWrapper::set_trace_spi(ZefMgmtSpiInterface_1* spi) {
    ZefScopedLock guard(_lock);
    _traceSpi1 = nullptr;
    _traceSpi2 = nullptr;
    if (spi == nullptr)
        return;
    const char* version = spi->interfaceVersion;
    if (version != nullptr && std::strcmp(version, "1") == 0) {
        _traceSpi1 = reinterpret_cast<ZefMwSpiTrace_1*>(spi);
    } else if (version != nullptr && std::strcmp(version, "2") == 0) {
        ZefMwSpiTrace_2* const trace = reinterpret_cast<ZefMwSpiTrace_2*>(spi);
        _traceSpi2 = trace;
        for (const TraceSubsystem& subsystem : kTraceSubsystems) {
            if (trace->registerSubsystem == nullptr ||
                trace->registerSubsystem(subsystem.name, subsystem.handle) != ZefOk)
                std::fprintf(stderr, "Could not register %s subsystem in v2 of trace if\n", subsystem.reportedName);
        }
    } else {
        std::fprintf(stderr, "Not a supported trace SPI version [%s]\n", orNullText(version));
    }
}

void LoggingWrapper::log_printf(const char* function, unsigned int level, int facility, const char* format, ...) {
    ZefScopedLock guard(_lock);
    if (_closed) {
        std::fprintf(stderr, "Logging after loggingWrapper has been closed! (:%s)\n", orNullText(function));
        return;
    }
    if (level > kHighestLogLevel)
        return;

    ZefMwSpiLog_1* const spi = _logSpi;
    if (spi == nullptr && _file == nullptr)
        openFile();
    else if (spi != nullptr && _file != nullptr)
        closeFile();

    char line[kLineSize];
    size_t length = 0;
    va_list args;
    va_start(args, format);
    if (facility == kRawFacility) {
        length = writtenLength(std::vsnprintf(line, sizeof(line), format, args), sizeof(line));
    } else {
        char message[kMessageSize];
        std::vsnprintf(message, sizeof(message), format, args);
        if (spi == nullptr) {
            char timeText[kTimeSize];
            fill_in_time_str(timeText, sizeof(timeText));
            length = writtenLength(std::snprintf(line, sizeof(line), "%s %2s %-25s %s", timeText,
                                                 _get_level_str(level), orNullText(function), message),
                                   sizeof(line));
        } else {
            length = writtenLength(
                std::snprintf(line, sizeof(line), " %-25s %s", orNullText(function), message), sizeof(line));
        }
    }
    va_end(args);

    if (spi == nullptr) {
        check_and_rotate_log_file();
        // Log lines are few and are what an operator reads after a crash, so
        // each goes to disk at once; the bulk of traces stays buffered.
        writeLine(line, length, true);
        return;
    }
    // The interface may log through this very wrapper again.
    guard.release();
    if (spi->log == nullptr || spi->log(1, level, facility, line) != ZefOk)
        std::fprintf(stderr, "Failed to write '%s' to log interface!\n", line);
}

void LoggingWrapper::trace_printf(const char* file, const char* function, int line, unsigned int level, int kind,
                                  const char* format, ...) {
    ZefScopedLock guard(_lock);
    if (_closed) {
        std::fprintf(stderr, "Logging after loggingWrapper has been closed! (%s:%s:%d)\n", orNullText(file),
                     orNullText(function), line);
        return;
    }
    // A version "2" interface gets its traces from trace_v2_printf.
    if (_traceSpi2.load(std::memory_order_relaxed) != nullptr || level != kTraceLevel)
        return;

    char fileTail[kPathTailSize];
    path_tail(file, fileTail, sizeof(fileTail));
    char text[kTraceLineSize];
    va_list args;
    ZefMwSpiTrace_1* const spi = _traceSpi1;
    if (spi != nullptr) {
        char message[kTraceMessageSize];
        va_start(args, format);
        std::vsnprintf(message, sizeof(message), format, args);
        va_end(args);
        std::snprintf(text, sizeof(text), "%-24s:%-5d - %-25s %s", fileTail, line, orNullText(function), message);
        guard.release();
        if (kind == kTraceEnter) {
            if (spi->enter != nullptr)
                spi->enter(text);
        } else if (kind == kTraceLeave) {
            if (spi->leave != nullptr)
                spi->leave(text);
        } else if (spi->print != nullptr) {
            spi->print(level, text);
        }
        return;
    }

    if (_file == nullptr)
        openFile();
    va_start(args, format);
    const size_t length = formatTraceLine(text, sizeof(text), fileTail, line, level, function, format, args);
    va_end(args);
    check_and_rotate_log_file();
    writeLine(text, length, false);
}

namespace {

/// A line built in a fixed buffer, cut (as snprintf cuts) at its size - 1.
class LineBuilder {
public:
    LineBuilder(char* out, size_t size) : _out(out), _size(size) {}

    void append(const char* text, size_t length) {
        const size_t room = _size - 1 - _length;
        const size_t taken = std::min(length, room);
        std::memcpy(_out + _length, text, taken);
        _length += taken;
    }
    void append(const char* text) { append(text, std::strlen(text)); }
    /// `text` padded with blanks to `width`: on the right as "%-*s" does,
    /// on the left as "%*s" does.
    void appendPadded(const char* text, size_t length, size_t width, bool left) {
        if (!left)
            appendBlanks(width > length ? width - length : 0);
        append(text, length);
        if (left)
            appendBlanks(width > length ? width - length : 0);
    }
    void appendBlanks(size_t count) {
        const size_t taken = std::min(count, _size - 1 - _length);
        std::memset(_out + _length, ' ', taken);
        _length += taken;
    }
    size_t length() const { return _length; }
    size_t room() const { return _size - 1 - _length; }
    char* end() { return _out + _length; }
    void grow(size_t count) { _length += std::min(count, room()); }
    size_t finish() {
        _out[_length] = '\0';
        return _length;
    }

private:
    char* _out;
    size_t _size;
    size_t _length = 0;
};

/// Appends `format` as vsnprintf would format it, cut after `limit`
/// characters, when its only conversions are "%s" and "%%", as in nearly
/// every trace of the program; the general formatter costs several times
/// more per line. Returns false, leaving `args` and the line untouched, for
/// any other format.
bool appendTextFormat(LineBuilder& out, size_t limit, const char* format, va_list args) {
    for (const char* at = std::strchr(format, '%'); at != nullptr; at = std::strchr(at + 2, '%')) {
        if (at[1] != 's' && at[1] != '%')
            return false;
    }
    size_t left = limit;
    const char* text = format;
    for (;;) {
        const char* percent = std::strchr(text, '%');
        const size_t literal = percent != nullptr ? static_cast<size_t>(percent - text) : std::strlen(text);
        const size_t taken = std::min(literal, left);
        out.append(text, taken);
        left -= taken;
        if (percent == nullptr || taken < literal || left == 0)
            return true;
        if (percent[1] == '%') {
            out.append("%", 1);
            --left;
        } else {
            const char* value = va_arg(args, const char*);
            if (value == nullptr)
                value = "(null)";
            const size_t length = strnlen(value, left);
            out.append(value, length);
            left -= length;
        }
        text = percent + 2;
    }
}

} // namespace

size_t LoggingWrapper::formatTraceLine(char* text, size_t size, const char* fileTail, int line, unsigned int level,
                                       const char* function, const char* format, va_list args) {
    // The line snprintf(text, size, "%s %2s %-24s:%-5d - %-25s %s", time,
    // level word, file, line, function, message) would give, the message
    // formatted into kTraceMessageSize bytes first; built in place, as a
    // trace-heavy run writes millions of these lines.
    char timeText[kTimeSize];
    fill_in_time_str(timeText, sizeof(timeText));
    LineBuilder out(text, size);
    out.append(timeText);
    out.append(" ", 1);
    const char* word = _get_level_str(level);
    out.appendPadded(word, std::strlen(word), 2, false);
    out.append(" ", 1);
    out.appendPadded(fileTail, std::strlen(fileTail), 24, true);
    out.append(":", 1);
    char number[16];
    const std::to_chars_result digits = std::to_chars(number, number + sizeof(number), line);
    out.appendPadded(number, static_cast<size_t>(digits.ptr - number), 5, true);
    out.append(" - ", 3);
    const char* name = orNullText(function);
    out.appendPadded(name, std::strlen(name), 25, true);
    out.append(" ", 1);

    // The message as its own buffer would keep it, and as far as the line has room.
    const size_t limit = std::min(kTraceMessageSize - 1, out.room());
    if (std::strcmp(format, "%s") == 0) {
        // A record dump runs to kilobytes: copied, never scanned by the formatter.
        const char* message = va_arg(args, const char*);
        if (message == nullptr)
            message = "(null)";
        out.append(message, strnlen(message, limit));
    } else if (!appendTextFormat(out, limit, format, args)) {
        const int formatted = std::vsnprintf(out.end(), limit + 1, format, args);
        out.grow(writtenLength(formatted, limit + 1));
    }
    return out.finish();
}

void LoggingWrapper::trace_v2_printf(ZefMwSpiTraceSubsystemHandle_2T subsystem, ZefMwSpiTraceLevelT level,
                                     const char* file, const char* function, unsigned int line, const char* format,
                                     ...) {
    // Every trace of the program calls here; without an interface of
    // version "2" there is nothing to do, which needs no lock to see.
    if (_traceSpi2.load(std::memory_order_relaxed) == nullptr)
        return;
    ZefScopedLock guard(_lock);
    ZefMwSpiTrace_2* const spi = _traceSpi2.load(std::memory_order_relaxed);
    if (spi == nullptr)
        return;
    closeFile();
    if (spi->print == nullptr)
        return;
    va_list args;
    va_start(args, format);
    spi->print(subsystem, level, file, function, line, format, args);
    va_end(args);
}

void LoggingWrapper::close() {
    ZefScopedLock guard(_lock);
    if (_closed)
        return;
    _logSpi = nullptr;
    _traceSpi1 = nullptr;
    _traceSpi2 = nullptr;
    closeFile();
    _closed = true;
}

} // namespace Zef
