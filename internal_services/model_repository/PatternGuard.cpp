#include "PatternGuard.h"

#include <algorithm>

namespace ZefModelRepositoryService {

namespace {

// Time limits far beyond any run, so that deadlines cannot overflow the clock.
const std::uint64_t kLongestTime = 100000000;

// The most text the kept outcomes may hold.
const std::size_t kKeptBytes = 16 << 20;

InputLimits clamped(InputLimits limits) {
    limits.maxPatternTime = std::min(limits.maxPatternTime, kLongestTime);
    limits.maxPatternTotalTime = std::min(limits.maxPatternTotalTime, kLongestTime);
    limits.maxPatternMemory = std::min<std::uint64_t>(limits.maxPatternMemory, std::uint64_t(1) << 40);
    return limits;
}

} // namespace

PatternGuard::PatternGuard(const InputLimits& limits)
    : _limits(clamped(limits)),
      _screen(_limits),
      _worker(std::chrono::milliseconds(_limits.maxPatternTime), _limits.maxPatternMemory << 20) {}

void PatternGuard::clear() {
    _worker.stop();
    _spent = std::chrono::steady_clock::duration::zero();
    _outcomes.clear();
    _outcomeBytes = 0;
}

PatternGuard::Result PatternGuard::match(const std::string& pattern, const std::string& text) {
    std::string key;
    key.reserve(pattern.size() + 1 + text.size());
    key.append(pattern).append(1, '\0').append(text);
    auto kept = _outcomes.find(key);
    if (kept != _outcomes.end()) {
        return kept->second;
    }
    bool lasting = false;
    const Result result = check(pattern, text, lasting);
    if (lasting) {
        keep(key, result);
    }
    return result;
}

void PatternGuard::keep(const std::string& key, const Result& result) {
    const std::size_t bytes = key.size() + result.reason.size();
    if (_outcomeBytes + bytes > kKeptBytes) {
        return;
    }
    _outcomeBytes += bytes;
    _outcomes.emplace(key, result);
}

PatternGuard::Result PatternGuard::check(const std::string& pattern, const std::string& text, bool& lasting) {
    // Every outcome is the same whenever the pair is checked again, except
    // a refusal for the total time or because the checker could not run.
    lasting = true;
    const std::string refused = _screen.refusalReason(pattern);
    if (!refused.empty()) {
        return {Outcome::Refused, refused};
    }
    // For some patterns the engine's matching time grows with the square of
    // the value's length.
    if (text.size() > _limits.maxPatternValue) {
        return {Outcome::Refused,
                "value longer than " + std::to_string(_limits.maxPatternValue) + " characters is not matched"};
    }
    if (_spent >= std::chrono::seconds(_limits.maxPatternTotalTime)) {
        lasting = false;
        return {Outcome::Refused,
                "pattern checks took longer than " + std::to_string(_limits.maxPatternTotalTime) + " s in total"};
    }

    const std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
    const PatternWorker::Reply reply = _worker.check(pattern, text);
    _spent += std::chrono::steady_clock::now() - start;

    switch (reply.outcome) {
    case PatternWorker::Outcome::Match:
        return {Outcome::Match, std::string()};
    case PatternWorker::Outcome::NoMatch:
        return {Outcome::NoMatch, std::string()};
    case PatternWorker::Outcome::CompileError:
    case PatternWorker::Outcome::Failed:
        return {Outcome::Refused, reply.text};
    case PatternWorker::Outcome::Unavailable:
        lasting = false;
        return {Outcome::Refused, reply.text};
    case PatternWorker::Outcome::TooSlow:
        return {Outcome::Refused, "pattern check took longer than " + std::to_string(_limits.maxPatternTime) + " ms"};
    case PatternWorker::Outcome::TooLarge:
        return {Outcome::Refused,
                "pattern check needed more than " + std::to_string(_limits.maxPatternMemory) + " MiB"};
    }
    lasting = false;
    return {Outcome::Refused, reply.text};
}

} // namespace ZefModelRepositoryService
