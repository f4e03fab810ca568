#ifndef ZEF_PATTERN_WORKER_H
#define ZEF_PATTERN_WORKER_H

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <string>

namespace ZefModelRepositoryService {

/// A child process that compiles patterns and matches values against them
/// for the repository, so that whatever the POSIX regex engine does with a
/// hostile pattern - crash, loop, or allocate without end - happens outside
/// the validator, under a time limit and a memory limit that the validator
/// enforces by ending the child. Some patterns that look harmless make the
/// engine build an automaton of millions of states on an ordinary value, so
/// no look at the pattern alone can bound what a check costs.
///
/// The child is started on the first check and serves the checks after it,
/// keeping every pattern it compiled; a child that was ended is replaced by
/// a new one at the next check. It ends by itself when the validator goes
/// away.
class PatternWorker {
public:
    /// Failed: the engine ended abnormally on the check; Unavailable: no
    /// checker could be started.
    enum class Outcome { Match, NoMatch, CompileError, TooSlow, TooLarge, Failed, Unavailable };

    struct Reply {
        Outcome outcome;
        /// The engine's explanation of a compile error, or why the check
        /// failed; empty otherwise.
        std::string text;
    };

    /// Each check may take `timeLimit` and let the child grow by
    /// `memoryLimit` bytes over its size at start.
    PatternWorker(std::chrono::milliseconds timeLimit, std::uint64_t memoryLimit);
    ~PatternWorker();

    PatternWorker(const PatternWorker&) = delete;
    PatternWorker& operator=(const PatternWorker&) = delete;

    /// Whether `pattern` (POSIX extended syntax) matches somewhere in `text`.
    Reply check(const std::string& pattern, const std::string& text);

    /// Starts the child now, if none runs, instead of at the first check:
    /// forked while the process is still small, the child shares few pages,
    /// and the process does not pay a copy-on-write fault for every page it
    /// writes afterwards. A child that cannot be started now is tried again
    /// at the first check.
    void prepare();

    /// Ends the child, forgetting every compiled pattern.
    void stop();

    /// The process id of the child, -1 while none runs (for diagnostics).
    pid_t childId() const { return _child; }

private:
    /// Starts the child; false (with the reason in `error`) when it cannot be.
    bool start(std::string& error);
    /// Resident size of the child in bytes, 0 when it cannot be read.
    std::uint64_t childResidentSize() const;
    /// Ends the child at once and collects it; the description of how it
    /// ended, for a child that ended by itself.
    std::string reap(bool kill);

    std::chrono::milliseconds _timeLimit;
    std::uint64_t _memoryLimit;
    pid_t _child = -1;
    int _socket = -1;
    std::uint64_t _baseResidentSize = 0;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_PATTERN_WORKER_H
