#include "PatternScreen.h"

#include <algorithm>
#include <vector>

namespace ZefModelRepositoryService {

namespace {

// Sizes saturate here, far above any sensible limit, so that nested
// repetitions such as ((a{999}){999}){999} cannot overflow the arithmetic.
const std::uint64_t kSaturation = std::uint64_t(1) << 40;

std::uint64_t add(std::uint64_t a, std::uint64_t b) { return std::min(a + b, kSaturation); }

std::uint64_t multiply(std::uint64_t a, std::uint64_t b) {
    if (a == 0 || b == 0) {
        return 0;
    }
    return a > kSaturation / b ? kSaturation : std::min(a * b, kSaturation);
}

// One open group (the whole pattern is the outermost): the alternatives
// finished so far, the sequence being read, and the last atom of that
// sequence, which a following repetition applies to.
struct Group {
    std::uint64_t finished = 0;
    std::uint64_t alternations = 0;
    std::uint64_t sequence = 0;
    std::uint64_t last = 0;
    bool hasLast = false;

    std::uint64_t size() const { return add(add(finished, sequence), alternations); }

    void atom(std::uint64_t atomSize) {
        sequence = add(sequence, atomSize);
        last = atomSize;
        hasLast = true;
    }

    void alternative() {
        finished = add(finished, sequence);
        alternations = add(alternations, 1);
        sequence = 0;
        hasLast = false;
    }

    // The engine writes a bounded repetition out as one copy of the
    // repeated tree per allowed occurrence ({2,5}: five copies), an
    // unbounded one as its minimum number of copies plus one starred copy;
    // every copy costs a node of its own besides. "*" and "?" keep a single
    // copy, "+" two.
    void repeat(std::uint64_t min, std::uint64_t max, bool unbounded) {
        if (!hasLast) {
            // Nothing to repeat: the engine refuses the pattern itself.
            atom(1);
            return;
        }
        const std::uint64_t copies = unbounded ? (min == 0 ? 1 : add(min, 1)) : std::max<std::uint64_t>(max, 1);
        const std::uint64_t repeated = multiply(copies, add(last, 1));
        sequence = add(sequence - last, repeated);
        last = repeated;
    }
};

struct Interval {
    std::uint64_t min = 0;
    std::uint64_t max = 0;
    std::string minText;  // the bounds as written, for the message
    std::string maxText;
    bool unbounded = false;
    std::string::size_type end = 0;  // just after the closing brace
};

// Reads "{n}", "{n,}", "{,m}" or "{n,m}" at `at`; false when the brace does
// not open an interval (the engine then refuses the pattern).
bool readInterval(const std::string& pattern, std::string::size_type at, Interval& interval) {
    std::string::size_type i = at + 1;
    auto readNumber = [&](std::uint64_t& value, std::string& text) {
        const std::string::size_type begin = i;
        value = 0;
        while (i < pattern.size() && pattern[i] >= '0' && pattern[i] <= '9') {
            value = std::min<std::uint64_t>(value * 10 + static_cast<std::uint64_t>(pattern[i] - '0'), kSaturation);
            ++i;
        }
        text = pattern.substr(begin, i - begin);
        return i > begin;
    };
    const bool hasMin = readNumber(interval.min, interval.minText);
    bool hasMax = false;
    bool comma = false;
    if (i < pattern.size() && pattern[i] == ',') {
        comma = true;
        ++i;
        hasMax = readNumber(interval.max, interval.maxText);
    }
    if (i >= pattern.size() || pattern[i] != '}' || (!hasMin && !comma)) {
        return false;
    }
    if (!comma) {
        interval.max = interval.min;
        interval.maxText = interval.minText;
    }
    interval.unbounded = comma && !hasMax;
    interval.end = i + 1;
    return true;
}

// The position just after the bracket expression that opens at `at`. A "]"
// right after "[" or "[^" is a member, and "[:name:]", "[.x.]" and "[=x=]"
// are read whole, so neither ends the expression early.
std::string::size_type skipBracket(const std::string& pattern, std::string::size_type at) {
    std::string::size_type i = at + 1;
    if (i < pattern.size() && pattern[i] == '^') {
        ++i;
    }
    if (i < pattern.size() && pattern[i] == ']') {
        ++i;
    }
    while (i < pattern.size()) {
        const char c = pattern[i];
        if (c == '[' && i + 1 < pattern.size() &&
            (pattern[i + 1] == ':' || pattern[i + 1] == '.' || pattern[i + 1] == '=')) {
            const std::string::size_type close = pattern.find(std::string{pattern[i + 1], ']'}, i + 2);
            if (close == std::string::npos) {
                return pattern.size();
            }
            i = close + 2;
            continue;
        }
        if (c == ']') {
            return i + 1;
        }
        ++i;
    }
    return pattern.size();
}

struct ScanResult {
    std::uint64_t size = 0;
    std::uint64_t largestBound = 0;
    std::string largestBoundText;
    bool backReference = false;
};

ScanResult scan(const std::string& pattern) {
    ScanResult result;
    std::vector<Group> groups(1);
    std::string::size_type i = 0;
    while (i < pattern.size()) {
        const char c = pattern[i];
        switch (c) {
        case '\\':
            if (i + 1 < pattern.size() && pattern[i + 1] >= '1' && pattern[i + 1] <= '9') {
                result.backReference = true;
            }
            groups.back().atom(1);
            i += 2;
            break;
        case '[':
            groups.back().atom(1);
            i = skipBracket(pattern, i);
            break;
        case '(':
            groups.emplace_back();
            ++i;
            break;
        case ')':
            if (groups.size() > 1) {
                const std::uint64_t groupSize = add(groups.back().size(), 2);
                groups.pop_back();
                groups.back().atom(groupSize);
            } else {
                groups.back().atom(1);  // an unmatched ")" is an ordinary character
            }
            ++i;
            break;
        case '|':
            groups.back().alternative();
            ++i;
            break;
        case '*':
            groups.back().repeat(0, 0, true);
            ++i;
            break;
        case '+':
            groups.back().repeat(1, 0, true);
            ++i;
            break;
        case '?':
            groups.back().repeat(0, 1, false);
            ++i;
            break;
        case '{': {
            Interval interval;
            if (readInterval(pattern, i, interval)) {
                if (interval.min > result.largestBound) {
                    result.largestBound = interval.min;
                    result.largestBoundText = interval.minText;
                }
                if (!interval.unbounded && interval.max > result.largestBound) {
                    result.largestBound = interval.max;
                    result.largestBoundText = interval.maxText;
                }
                groups.back().repeat(interval.min, interval.max, interval.unbounded);
                i = interval.end;
            } else {
                groups.back().atom(1);
                ++i;
            }
            break;
        }
        default:
            groups.back().atom(1);
            ++i;
            break;
        }
    }
    // Groups left open make the engine refuse the pattern; they are closed
    // here only so that the size is complete.
    while (groups.size() > 1) {
        const std::uint64_t groupSize = add(groups.back().size(), 2);
        groups.pop_back();
        groups.back().atom(groupSize);
    }
    result.size = groups.back().size();
    return result;
}

std::string number(std::uint64_t value) { return std::to_string(value); }

} // namespace

PatternScreen::PatternScreen(const InputLimits& limits) : _limits(limits) {}

std::uint64_t PatternScreen::expandedSize(const std::string& pattern) { return scan(pattern).size; }

std::string PatternScreen::refusalReason(const std::string& pattern) const {
    if (pattern.size() > _limits.maxPatternLength) {
        return "pattern longer than " + number(_limits.maxPatternLength) + " characters";
    }
    const ScanResult result = scan(pattern);
    if (result.backReference) {
        return "back-references (\\1 to \\9) are not supported";
    }
    if (result.largestBound > _limits.maxPatternRepeat) {
        return "repetition bound " + result.largestBoundText + " is larger than " +
               number(_limits.maxPatternRepeat);
    }
    if (result.size > _limits.maxPatternSize) {
        return "pattern too complex: its repetitions expand to more than " + number(_limits.maxPatternSize) +
               " regex nodes";
    }
    return std::string();
}

} // namespace ZefModelRepositoryService
