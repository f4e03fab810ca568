// The log file of LoggingWrapper: opening, writing, and rotation into
// numbered old files.

#include "LoggingWrapper.h"

#include <dirent.h>
#include <fcntl.h>
#include <stdio_ext.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

#include "ZefScopedLock.h"
#include "ZefThreadLock.h"

namespace Zef {

namespace {

// Trace-heavy runs write millions of lines; a large buffer keeps the number
// of write calls low.
const size_t kFileBufferSize = 64 * 1024;

bool isWritable(const std::string& path) { return access(path.c_str(), W_OK) == 0; }

} // namespace

void LoggingWrapper::openFile() {
    if (_writeFailed)
        return;
    // The default log lives in a shared temporary folder under a name anyone
    // can predict: a symbolic link, a FIFO or a second hard link planted
    // there must never make the tool write into another file or wait for a
    // reader. The last component is therefore opened without following a
    // link and without blocking, and must turn out to be a regular file with
    // one name only.
    const int fd = open(_fname.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY,
                        0644);
    if (fd < 0) {
        std::perror("Failed to open log file!");
        return;
    }
    struct stat info;
    const char* refusal = nullptr;
    if (fstat(fd, &info) != 0)
        refusal = "cannot be examined";
    else if (!S_ISREG(info.st_mode))
        refusal = "not a regular file";
    else if (info.st_nlink > 1)
        refusal = "the file has other names (hard links)";
    else if (isRefused(info))
        refusal = "the file is an input of this run";
    if (refusal != nullptr) {
        ::close(fd);
        std::fprintf(stderr, "Failed to open log file!: %s: %s\n", _fname.c_str(), refusal);
        return;
    }
    // Back to blocking writes: a regular file never blocks anyway.
    fcntl(fd, F_SETFL, O_APPEND);
    _file = fdopen(fd, "a");
    if (_file == nullptr) {
        ::close(fd);
        std::perror("Failed to open log file!");
        return;
    }
    if (!_fileBuffer)
        _fileBuffer.reset(new char[kFileBufferSize]);
    std::setvbuf(_file, _fileBuffer.get(), _IOFBF, kFileBufferSize);
    _fileSizeKnown = true;
    _fileSize = static_cast<unsigned long long>(info.st_size);
}

bool LoggingWrapper::isRefused(const struct stat& info) const {
    return _refusedFiles.count(FileIdentity(info.st_dev, info.st_ino)) != 0;
}

void LoggingWrapper::refuse_file(const std::string& path) {
    struct stat info;
    if (stat(path.c_str(), &info) != 0)
        return;
    ZefScopedLock guard(_lock);
    if (!_refusedFiles.insert(FileIdentity(info.st_dev, info.st_ino)).second)
        return;
    struct stat active;
    if (_file != nullptr && fstat(fileno(_file), &active) == 0 && isRefused(active)) {
        closeFile();
        std::fprintf(stderr, "Failed to open log file!: %s: %s\n", _fname.c_str(), "the file is an input of this run");
    }
}

void LoggingWrapper::closeFile() {
    if (_file == nullptr)
        return;
    // Trace lines wait in the buffer; a failure to write them is a failed
    // write, not a failed close, and the buffer is dropped so that fclose
    // does not fail over it a second time. A flush of every stream made
    // elsewhere (fflush(NULL)) may have met the failure first and left only
    // the stream's error flag.
    if (std::fflush(_file) != 0) {
        reportWriteFailure(errno);
        __fpurge(_file);
    } else if (ferror_unlocked(_file)) {
        reportWriteFailure(EIO);
    }
    if (std::fclose(_file) != 0) {
        const int error = errno;
        std::fprintf(stderr, "Failed to close log file. Errno: %d: %s\n", error, std::strerror(error));
    }
    _file = nullptr;
    _fileSizeKnown = false;
    _fileSize = 0;
}

void LoggingWrapper::writeLine(const char* line, size_t length, bool flush) {
    if (_file == nullptr) {
        std::fprintf(stderr, "%s\n", line);
        std::fflush(stderr);
        return;
    }
    // The file is only ever written under the logger's lock, so the
    // stream's own locking is left out.
    int error = 0;
    const size_t written = fwrite_unlocked(line, 1, length, _file);
    _fileSize += written;
    if (written != length) {
        error = errno;
    } else if (putc_unlocked('\n', _file) == EOF) {
        error = errno;
    } else {
        ++_fileSize;
        if (flush && std::fflush(_file) != 0)
            error = errno;
    }
    if (error == 0 && ferror_unlocked(_file))
        error = EIO;  // an earlier failure the stream kept to itself
    if (error == 0)
        return;
    giveUpFile(error);
    // The line is not lost: it goes where the lines after it go.
    std::fprintf(stderr, "%s\n", line);
    std::fflush(stderr);
}

void LoggingWrapper::giveUpFile(int error) {
    // A full disk or a file size limit fails every later write as well:
    // one line tells the user, and writing on into the file (or opening it
    // again for each line) would only fail again.
    reportWriteFailure(error != 0 ? error : EIO);
    // Reported once: closing must neither write the rest nor report again.
    __fpurge(_file);
    clearerr_unlocked(_file);
    closeFile();
    _writeFailed = true;
}

void LoggingWrapper::reportWriteFailure(int error) const {
    std::fprintf(stderr, "Failed to write log file %s. Errno: %d: %s\n", _fname.c_str(), error, std::strerror(error));
    std::fflush(stderr);
}

void LoggingWrapper::check_and_rotate_log_file() {
    if (_closed) {
        std::fprintf(stderr, "LoggingWrapper::check_and_rotate_log_file: LoggingWrapper has been closed!\n");
        return;
    }
    if (_file == nullptr)
        return;
    if (!_fileSizeKnown) {
        // The size could not be taken when the file was opened; ask the file
        // system, with everything written so far on disk.
        std::fflush(_file);
        struct stat info;
        if (stat(_fname.c_str(), &info) != 0) {
            const int error = errno;
            std::fprintf(stderr, "Failed to stat log file. Errno: %d: %s\n", error, std::strerror(error));
            closeFile();
            return;
        }
        _fileSize = static_cast<unsigned long long>(info.st_size);
    }
    if (_fileSize > _maxSize) {
        closeFile();
        rotateLogs();
        openFile();
    }
}

void LoggingWrapper::rotateLogs() {
    // Without a base name every "<anything>.<digits>" of the folder would
    // look like an old log file; nothing is renamed or deleted then.
    if (_baseName.empty())
        return;
    NumberedFileList list;
    getFileMatches(list);
    if (list.empty()) {
        list.push_back({_firstIndex, nameForIndex(_firstIndex)});
    } else {
        const int highest = list.back().number;
        struct stat info;
        const bool highestIsFull = stat(list.back().path.c_str(), &info) == 0 &&
                                   static_cast<unsigned long long>(info.st_size) >= _maxSize;
        // A highest file with room left is replaced by the active file
        // instead of taking a new number.
        if (highestIsFull) {
            list.push_back({highest + 1, nameForIndex(highest + 1)});
            if (highest >= _lastIndex)
                renumberFiles(list);
        }
    }
    removeOldLogFiles(list);
    if (!isWritable(_fname))
        return;
    if (list.empty()) {
        // A max count of 0 keeps no old file at all.
        unlink(_fname.c_str());
        return;
    }
    std::rename(_fname.c_str(), list.back().path.c_str());
}

void LoggingWrapper::getFileMatches(NumberedFileList& list) const {
    DIR* dir = opendir(_dir.c_str());
    if (dir == nullptr) {
        std::fprintf(stderr, "Failed to open dir %s\n\n", _dir.c_str());
        return;
    }
    while (struct dirent* entry = readdir(dir)) {
        const std::string name(entry->d_name);
        // Only "<base name>.<digits>" counts, so that a file such as
        // "backup-zef.log.1" or "zef.log-1" beside the log is never taken for
        // an old log file and renamed or deleted.
        const std::string::size_type numberAt = _baseName.size() + 1;
        if (_baseName.empty() || name.size() <= numberAt || name.compare(0, _baseName.size(), _baseName) != 0 ||
            name[_baseName.size()] != '.')
            continue;
        int number = 0;
        if (parseNumber(name.c_str() + numberAt, &number))
            list.push_back({number, _dir + "/" + name});
    }
    closedir(dir);
    std::sort(list.begin(), list.end(), [](const NumberedFile& a, const NumberedFile& b) {
        return a.number != b.number ? a.number < b.number : a.path < b.path;
    });
}

void LoggingWrapper::renumberFiles(NumberedFileList& list) const {
    int index = _firstIndex;
    for (NumberedFile& file : list) {
        const std::string path = nameForIndex(index);
        if (isWritable(file.path))
            std::rename(file.path.c_str(), path.c_str());
        file.number = index;
        file.path = path;
        ++index;
    }
}

void LoggingWrapper::removeOldLogFiles(NumberedFileList& list) const {
    while (list.size() > _maxCount) {
        if (isWritable(list.front().path))
            unlink(list.front().path.c_str());
        list.erase(list.begin());
    }
}

std::string LoggingWrapper::nameForIndex(int index) const {
    return _dir + "/" + _baseName + "." + std::to_string(index);
}

bool LoggingWrapper::parseNumber(const char* text, int* number) {
    // strtol alone would also take blanks and signs in front of the digits.
    if (!std::isdigit(static_cast<unsigned char>(text[0])))
        return false;
    errno = 0;
    char* end = nullptr;
    const long value = std::strtol(text, &end, 10);
    if (*end != '\0' || errno == ERANGE || value > INT_MAX)
        return false;
    *number = static_cast<int>(value);
    return true;
}

} // namespace Zef
