#ifndef ZEF_PATTERN_SCREEN_H
#define ZEF_PATTERN_SCREEN_H

#include <cstdint>
#include <string>

#include "InputLimits.h"

namespace ZefModelRepositoryService {

/// Looks at a pattern from a model file before it reaches the POSIX regex
/// engine and refuses the constructs that make that engine crash, run for
/// minutes or grow to gigabytes: back-references, over-long patterns,
/// repetition bounds past a limit, and patterns whose repetitions, once
/// written out the way the engine writes them out, exceed a size limit.
///
/// The screen reads the extended syntax (groups, alternation, *, +, ?,
/// {n}, {n,}, {,m}, {n,m}, bracket expressions, escapes). A pattern it
/// passes may still be malformed; the engine then reports that itself.
class PatternScreen {
public:
    /// Uses the pattern limits of `limits`.
    explicit PatternScreen(const InputLimits& limits);

    /// Empty when the pattern may be compiled; otherwise the reason for the
    /// refusal, worded to follow "got error ".
    std::string refusalReason(const std::string& pattern) const;

    /// The size of the pattern once its repetitions are written out, in
    /// regex nodes (an upper estimate, saturating far above any limit).
    static std::uint64_t expandedSize(const std::string& pattern);

private:
    InputLimits _limits;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_PATTERN_SCREEN_H
