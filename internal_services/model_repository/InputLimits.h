#ifndef ZEF_INPUT_LIMITS_H
#define ZEF_INPUT_LIMITS_H

#include <cstdint>

namespace ZefModelRepositoryService {

/// The bounds on what one input may cost the process: model files and the
/// documents in them, and the patterns that model files give for string
/// values. Model files come from many authors and tools and the validator
/// runs unattended, so a hostile or broken input must end with a finding,
/// never with a hang or an exhausted machine.
///
/// Every limit has a default and can be changed with an environment
/// variable holding a positive decimal number; any other value keeps the
/// default.
struct InputLimits {
    /// Largest model file (and -c list file) read, in bytes.
    /// ZEF_VALIDATOR_MAX_FILE_SIZE, default 268435456 (256 MiB).
    std::uint64_t maxFileSize = 268435456;
    /// Deepest element nesting of a document. ZEF_VALIDATOR_MAX_DEPTH,
    /// default 10000.
    std::uint64_t maxDepth = 10000;
    /// Most bytes that entity references may add to one document, counted
    /// over every reference and over the fully expanded value of each
    /// declared entity. ZEF_VALIDATOR_MAX_ENTITY_EXPANSION, default 16777216.
    std::uint64_t maxEntityExpansion = 16777216;
    /// Longest pattern compiled, in bytes. ZEF_VALIDATOR_MAX_PATTERN_LENGTH,
    /// default 2048.
    std::uint64_t maxPatternLength = 2048;
    /// Highest repetition bound ({n}, {n,}, {n,m}) in a pattern.
    /// ZEF_VALIDATOR_MAX_PATTERN_REPEAT, default 255 (the bound every POSIX
    /// engine must support).
    std::uint64_t maxPatternRepeat = 255;
    /// Largest size of a pattern once its repetitions are written out, in
    /// regex nodes. ZEF_VALIDATOR_MAX_PATTERN_SIZE, default 2000.
    std::uint64_t maxPatternSize = 2000;
    /// Longest value matched against a pattern, in bytes.
    /// ZEF_VALIDATOR_MAX_PATTERN_VALUE, default 4096.
    std::uint64_t maxPatternValue = 4096;
    /// Time one pattern check (compiling and matching) may take, in
    /// milliseconds. ZEF_VALIDATOR_MAX_PATTERN_TIME, default 2000.
    std::uint64_t maxPatternTime = 2000;
    /// Memory the pattern checks may take, in MiB.
    /// ZEF_VALIDATOR_MAX_PATTERN_MEMORY, default 256.
    std::uint64_t maxPatternMemory = 256;
    /// Total time that the pattern checks of one model may take, in
    /// seconds; later checks are refused. ZEF_VALIDATOR_MAX_PATTERN_TOTAL_TIME,
    /// default 60.
    std::uint64_t maxPatternTotalTime = 60;

    /// The defaults, overridden by the environment variables that are set
    /// to a positive decimal number.
    static InputLimits fromEnvironment();
};

} // namespace ZefModelRepositoryService

#endif // ZEF_INPUT_LIMITS_H
