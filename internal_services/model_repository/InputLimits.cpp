#include "InputLimits.h"

#include <cerrno>
#include <cstdlib>

namespace ZefModelRepositoryService {

namespace {

// Replaces `limit` with the variable's value when that is a positive decimal
// number; a sign, blanks, other characters, zero or an overflow keep the
// default, so a typo can never switch a bound off.
void readLimit(const char* variable, std::uint64_t& limit) {
    const char* text = std::getenv(variable);
    if (text == nullptr || *text < '0' || *text > '9') {
        return;
    }
    errno = 0;
    char* end = nullptr;
    const unsigned long long value = std::strtoull(text, &end, 10);
    if (errno == ERANGE || *end != '\0' || value == 0) {
        return;
    }
    // Far above anything a machine holds, and low enough that sums of two
    // limits cannot overflow.
    const unsigned long long ceiling = 1ULL << 62;
    limit = value < ceiling ? value : ceiling;
}

} // namespace

InputLimits InputLimits::fromEnvironment() {
    InputLimits limits;
    readLimit("ZEF_VALIDATOR_MAX_FILE_SIZE", limits.maxFileSize);
    readLimit("ZEF_VALIDATOR_MAX_DEPTH", limits.maxDepth);
    readLimit("ZEF_VALIDATOR_MAX_ENTITY_EXPANSION", limits.maxEntityExpansion);
    readLimit("ZEF_VALIDATOR_MAX_PATTERN_LENGTH", limits.maxPatternLength);
    readLimit("ZEF_VALIDATOR_MAX_PATTERN_REPEAT", limits.maxPatternRepeat);
    readLimit("ZEF_VALIDATOR_MAX_PATTERN_SIZE", limits.maxPatternSize);
    readLimit("ZEF_VALIDATOR_MAX_PATTERN_VALUE", limits.maxPatternValue);
    readLimit("ZEF_VALIDATOR_MAX_PATTERN_TIME", limits.maxPatternTime);
    readLimit("ZEF_VALIDATOR_MAX_PATTERN_MEMORY", limits.maxPatternMemory);
    readLimit("ZEF_VALIDATOR_MAX_PATTERN_TOTAL_TIME", limits.maxPatternTotalTime);
    return limits;
}

} // namespace ZefModelRepositoryService
