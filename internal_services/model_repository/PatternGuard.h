#ifndef ZEF_PATTERN_GUARD_H
#define ZEF_PATTERN_GUARD_H

#include <chrono>
#include <cstddef>
#include <string>
#include <unordered_map>

#include "InputLimits.h"
#include "PatternScreen.h"
#include "PatternWorker.h"

namespace ZefModelRepositoryService {

/// Matches values against patterns from model files with the POSIX regex
/// engine (extended syntax), within bounds. A pattern the screen refuses is
/// never compiled; a value longer than the limit is never matched; every
/// other check runs in a child process (PatternWorker) that is ended when
/// it takes longer or grows larger than its limits; and once the checks of
/// a model have taken the total time limit, later ones are refused. A
/// refusal says why, in the words that follow "got error " in the finding.
///
/// The outcome of each pattern and value is kept (up to a bounded amount
/// of text), so that a value repeated across a model costs one check, and a
/// slow pattern used by many attributes costs its time limit once.
class PatternGuard {
public:
    enum class Outcome { Match, NoMatch, Refused };

    struct Result {
        Outcome outcome;
        /// Why a pattern was refused or did not compile (the engine's own
        /// text for a malformed pattern); empty otherwise.
        std::string reason;
    };

    /// Uses the pattern limits of `limits`.
    explicit PatternGuard(const InputLimits& limits);

    /// Whether `pattern` matches somewhere in `text`, or why it was not
    /// tried.
    Result match(const std::string& pattern, const std::string& text);

    /// Starts the checker child ahead of the first check (see
    /// PatternWorker::prepare).
    void prepare() { _worker.prepare(); }

    /// Forgets every compiled pattern (the child ends) and every kept
    /// outcome, and starts a new total time budget.
    void clear();

    /// The checker child, for diagnostics.
    const PatternWorker& worker() const { return _worker; }

private:
    /// The outcome of one check, worked out without the kept outcomes;
    /// `lasting` tells whether the same pair would always get it.
    Result check(const std::string& pattern, const std::string& text, bool& lasting);
    /// Keeps `result` for the pair unless the bound on kept text is reached.
    void keep(const std::string& key, const Result& result);

    InputLimits _limits;
    PatternScreen _screen;
    PatternWorker _worker;
    std::chrono::steady_clock::duration _spent = std::chrono::steady_clock::duration::zero();
    // Outcomes by pattern and value (joined by a NUL byte, which neither
    // holds), and the bytes of text they keep.
    std::unordered_map<std::string, Result> _outcomes;
    std::size_t _outcomeBytes = 0;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_PATTERN_GUARD_H
