#ifndef ZEF_LOGGING_WRAPPER_H
#define ZEF_LOGGING_WRAPPER_H

#include <sys/stat.h>
#include <sys/types.h>

#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

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

    /// The log level threshold; callers log at level N only when it is at least N.
    unsigned int get_level() const { return _level.load(std::memory_order_relaxed); }
    void set_level(unsigned int level);
    /// Size in bytes above which the active file is rotated.
    void set_max_size(unsigned int maxSize);
    /// The full path of the active log file.
    std::string get_fname() const;
    /// Switches to another log file (closes the current one) when the name differs.
    void set_fname(const std::string& fname);

    /// Attaches a log interface ("ZefMwSpiLog" version "1"); null detaches.
    void set_log_spi(ZefMgmtSpiInterface_1* spi);
    /// Attaches a trace interface of version "1" or "2" (the latter gets the
    /// trace subsystems registered); null or another version detaches both.
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
    /// Never writes into the file `path` names (an input of the run): if it
    /// is the active log file, the file is closed and lines go to standard
    /// error from now on; a log file opened later is refused when it is
    /// that file. A path that names nothing is ignored.
    void refuse_file(const std::string& path);

    // Rotation internals, public for the unit tests. Callers hold the lock.
    /// Rotates the active file when it has grown beyond max size.
    void check_and_rotate_log_file();
    /// Moves the active file to a numbered file and drops the oldest ones.
    void rotateLogs();

    LoggingWrapper(const LoggingWrapper&) = delete;
    LoggingWrapper& operator=(const LoggingWrapper&) = delete;

private:
    /// A file as the file system knows it, whatever its path.
    typedef std::pair<dev_t, ino_t> FileIdentity;
    /// A numbered old log file found in the log directory.
    struct NumberedFile {
        int number;
        std::string path;
    };
    typedef std::vector<NumberedFile> NumberedFileList;

    LoggingWrapper();
    ~LoggingWrapper();

    /// Aborts the process when the default log directory is missing or not writable.
    static void checkDefaultDirectory(const std::string& dir);
    /// Applies ZEF_LOGGING_FNAME, ZEF_LOGGING_LEVEL, ZEF_LOGGING_FMAXCOUNT and ZEF_LOGGING_FMAXSIZE.
    void readEnvironment();
    /// Makes `path` the active file name, its folder the log folder and its
    /// last component the base name of the numbered old files.
    void adoptPath(const std::string& path);

    /// Opens the active file in append mode, without following a symbolic
    /// link or blocking; a file that is not a regular file, has other hard
    /// links or is refused is not used. On failure lines go to standard error.
    void openFile();
    /// Whether the file of `info` is one that refuse_file() named.
    bool isRefused(const struct stat& info) const;
    /// Closes the active file (if any) and forgets it; lines still buffered
    /// that cannot be written are reported as a failed write.
    void closeFile();
    /// Writes one line and its newline to the active file, or to standard
    /// error when no file is open. `flush` pushes the file buffer to disk.
    /// A failed write gives the file up (see giveUpFile) and sends the line
    /// to standard error.
    void writeLine(const char* line, size_t length, bool flush);
    /// After a write to the active file failed with `error`: one line on
    /// standard error, the unwritten buffer dropped, the file closed and not
    /// opened again until set_fname() names another one; later lines go to
    /// standard error.
    void giveUpFile(int error);
    /// The one line on standard error about a failed write to the log file.
    void reportWriteFailure(int error) const;
    /// Formats a trace line for the file into `text` (of `size` bytes):
    /// "time level file:line - function message", the message cut as the
    /// trace cuts it. Returns the length of the line.
    size_t formatTraceLine(char* text, size_t size, const char* fileTail, int line, unsigned int level,
                           const char* function, const char* format, va_list args)
        __attribute__((format(printf, 8, 0)));

    /// Numbered files of the log directory, ascending by number, then path.
    void getFileMatches(NumberedFileList& list) const;
    /// Renames the listed files to first index, first index + 1, ...
    void renumberFiles(NumberedFileList& list) const;
    /// Deletes the lowest-numbered files until at most max count remain listed.
    void removeOldLogFiles(NumberedFileList& list) const;
    /// directory + "/" + base name + "." + index.
    std::string nameForIndex(int index) const;
    /// Parses a whole text as a non-negative base-10 number.
    static bool parseNumber(const char* text, int* number);

    ZefMwSpiLog_1* _logSpi = nullptr;
    ZefMwSpiTrace_1* _traceSpi1 = nullptr;
    // Read without the lock by trace_v2_printf, which every trace calls
    // and which has nothing to do while no version "2" interface is attached.
    std::atomic<ZefMwSpiTrace_2*> _traceSpi2{nullptr};
    // Read without the lock by every logging macro.
    std::atomic<unsigned int> _level{6};
    unsigned int _maxSize = 5242880;
    unsigned int _maxCount = 5;
    std::string _fname;
    std::string _dir;
    std::string _baseName;
    int _firstIndex = 1;
    int _lastIndex = 999999;
    FILE* _file = nullptr;
    bool _closed = false;
    // Set when a write to the file failed (disk full, file size limit): the
    // file is not opened again for every line only to fail once more.
    bool _writeFailed = false;

    // Size of the active file: taken from the file once at open, then counted
    // as lines are written, so that the rotation check needs no system call.
    unsigned long long _fileSize = 0;
    bool _fileSizeKnown = false;
    std::unique_ptr<char[]> _fileBuffer;
    // Files the log must never write into (see refuse_file).
    std::set<FileIdentity> _refusedFiles;

    static std::atomic<LoggingWrapper*> theInstance;
    static ZefThreadLock _lock;

    friend class LoggingWrapperTestAccess;
};

} // namespace Zef

#endif // ZEF_LOGGING_WRAPPER_H
