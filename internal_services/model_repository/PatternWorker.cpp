#include "PatternWorker.h"

#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "PatternCache.h"

namespace ZefModelRepositoryService {

namespace {

using Clock = std::chrono::steady_clock;

// How often the validator looks at a check that has not answered yet.
const int kPollMilliseconds = 5;
// How long a new child may take to say it is ready.
const std::chrono::seconds kStartLimit(10);

// Reply kinds on the wire.
const unsigned char kMatch = 0;
const unsigned char kNoMatch = 1;
const unsigned char kCompileError = 2;

bool sendAll(int fd, const void* data, size_t size) {
    const char* bytes = static_cast<const char*>(data);
    while (size > 0) {
        // MSG_NOSIGNAL: a child that went away must not end the validator with SIGPIPE.
        const ssize_t sent = ::send(fd, bytes, size, MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR) {
            continue;
        }
        if (sent <= 0) {
            return false;
        }
        bytes += sent;
        size -= static_cast<size_t>(sent);
    }
    return true;
}

bool readAll(int fd, void* data, size_t size) {
    char* bytes = static_cast<char*>(data);
    while (size > 0) {
        const ssize_t got = ::read(fd, bytes, size);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            return false;
        }
        bytes += got;
        size -= static_cast<size_t>(got);
    }
    return true;
}

// The child's whole life: answer checks until the validator closes its end
// or goes away. It never returns, never logs (the log belongs to the
// validator) and ends with _exit, so that nothing buffered in the
// validator's streams is written twice.
[[noreturn]] void serve(int fd, pid_t parent) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) {
        _exit(0);
    }
    const unsigned char ready = 1;
    if (!sendAll(fd, &ready, 1)) {
        _exit(0);
    }
    PatternCache patterns;
    for (;;) {
        std::uint32_t sizes[2];
        if (!readAll(fd, sizes, sizeof(sizes))) {
            _exit(0);
        }
        std::string pattern(sizes[0], '\0');
        std::string text(sizes[1], '\0');
        if (!readAll(fd, &pattern[0], pattern.size()) || !readAll(fd, &text[0], text.size())) {
            _exit(0);
        }
        const PatternCache::Entry& entry = patterns.get(pattern);
        unsigned char kind = kCompileError;
        std::string detail;
        if (!entry.compiled()) {
            detail = entry.error();
        } else {
            kind = entry.matches(text) ? kMatch : kNoMatch;
        }
        const std::uint32_t length = static_cast<std::uint32_t>(detail.size());
        std::string reply(1, static_cast<char>(kind));
        reply.append(reinterpret_cast<const char*>(&length), sizeof(length));
        reply += detail;
        if (!sendAll(fd, reply.data(), reply.size())) {
            _exit(0);
        }
    }
}

// Waits until `fd` has something to read or `deadline` passes.
bool readableBefore(int fd, Clock::time_point deadline) {
    while (Clock::now() < deadline) {
        struct pollfd entry = {fd, POLLIN, 0};
        const int ready = ::poll(&entry, 1, kPollMilliseconds);
        if (ready > 0) {
            return true;
        }
        if (ready < 0 && errno != EINTR) {
            return false;
        }
    }
    return false;
}

} // namespace

PatternWorker::PatternWorker(std::chrono::milliseconds timeLimit, std::uint64_t memoryLimit)
    : _timeLimit(timeLimit), _memoryLimit(memoryLimit) {}

PatternWorker::~PatternWorker() { stop(); }

void PatternWorker::prepare() {
    std::string error;
    if (_child < 0) {
        start(error);
    }
}

void PatternWorker::stop() {
    if (_child >= 0) {
        reap(true);
    }
}

bool PatternWorker::start(std::string& error) {
    int fds[2];
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, fds) != 0) {
        error = std::strerror(errno);
        return false;
    }
    const pid_t parent = ::getpid();
    const pid_t child = ::fork();
    if (child < 0) {
        error = std::strerror(errno);
        ::close(fds[0]);
        ::close(fds[1]);
        return false;
    }
    if (child == 0) {
        ::close(fds[0]);
        serve(fds[1], parent);
    }
    ::close(fds[1]);
    _child = child;
    _socket = fds[0];
    unsigned char ready = 0;
    if (!readableBefore(_socket, Clock::now() + kStartLimit) || !readAll(_socket, &ready, 1)) {
        error = "it did not start (" + reap(true) + ")";
        return false;
    }
    // Right after the fork the child shares every page of the validator;
    // what it grows by from here is what its checks cost.
    _baseResidentSize = childResidentSize();
    return true;
}

std::uint64_t PatternWorker::childResidentSize() const {
    char path[64];
    std::snprintf(path, sizeof(path), "/proc/%d/statm", static_cast<int>(_child));
    FILE* statm = std::fopen(path, "re");
    if (statm == nullptr) {
        return 0;
    }
    unsigned long long size = 0;
    unsigned long long resident = 0;
    const int fields = std::fscanf(statm, "%llu %llu", &size, &resident);
    std::fclose(statm);
    return fields == 2 ? resident * static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE)) : 0;
}

std::string PatternWorker::reap(bool kill) {
    if (kill) {
        ::kill(_child, SIGKILL);
    }
    ::close(_socket);
    int status = 0;
    pid_t reaped;
    do {
        reaped = ::waitpid(_child, &status, 0);
    } while (reaped < 0 && errno == EINTR);
    _child = -1;
    _socket = -1;
    if (reaped < 0) {
        return "lost";
    }
    if (WIFSIGNALED(status)) {
        return "signal " + std::to_string(WTERMSIG(status));
    }
    return "exit status " + std::to_string(WEXITSTATUS(status));
}

PatternWorker::Reply PatternWorker::check(const std::string& pattern, const std::string& text) {
    const Clock::time_point begin = Clock::now();
    std::string error;
    if (_child < 0 && !start(error)) {
        return {Outcome::Unavailable, "the pattern checker could not be started: " + error};
    }
    const std::uint32_t sizes[2] = {static_cast<std::uint32_t>(pattern.size()),
                                    static_cast<std::uint32_t>(text.size())};
    if (!sendAll(_socket, sizes, sizeof(sizes)) || !sendAll(_socket, pattern.data(), pattern.size()) ||
        !sendAll(_socket, text.data(), text.size())) {
        return {Outcome::Failed, "the pattern checker ended (" + reap(true) + ")"};
    }

    const Clock::time_point deadline = begin + _timeLimit;
    for (;;) {
        if (readableBefore(_socket, std::min(deadline, Clock::now() + std::chrono::milliseconds(kPollMilliseconds)))) {
            break;
        }
        if (Clock::now() >= deadline) {
            reap(true);
            return {Outcome::TooSlow, std::string()};
        }
        if (childResidentSize() > _baseResidentSize + _memoryLimit) {
            reap(true);
            return {Outcome::TooLarge, std::string()};
        }
    }

    unsigned char kind = 0;
    std::uint32_t length = 0;
    if (!readAll(_socket, &kind, 1) || !readAll(_socket, &length, sizeof(length))) {
        return {Outcome::Failed, "the regex engine ended abnormally (" + reap(false) + ")"};
    }
    std::string detail(length, '\0');
    if (length > 0 && !readAll(_socket, &detail[0], length)) {
        return {Outcome::Failed, "the regex engine ended abnormally (" + reap(false) + ")"};
    }
    // A check that finished just past the memory limit still counts; the
    // child is replaced so that the memory it holds is given back.
    if (childResidentSize() > _baseResidentSize + _memoryLimit) {
        reap(true);
    }
    if (kind == kCompileError) {
        return {Outcome::CompileError, detail};
    }
    return {kind == kMatch ? Outcome::Match : Outcome::NoMatch, std::string()};
}

} // namespace ZefModelRepositoryService
