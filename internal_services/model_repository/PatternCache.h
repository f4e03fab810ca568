#ifndef ZEF_PATTERN_CACHE_H
#define ZEF_PATTERN_CACHE_H

#include <regex.h>

#include <memory>
#include <string>
#include <unordered_map>

namespace ZefModelRepositoryService {

/// POSIX extended regular expressions by pattern text, each compiled once.
/// Validation matches every default value of a patterned derived type
/// against the type's pattern; a model has few patterns but many such
/// values, and compiling is far costlier than matching.
class PatternCache {
public:
    /// One pattern as compiled: whether it compiled, the compiler's
    /// explanation when it did not, and the compiled expression. Compiled
    /// without sub-match reporting: validation only asks whether a value
    /// matches.
    class Entry {
    public:
        explicit Entry(const std::string& pattern);
        ~Entry();

        Entry(const Entry&) = delete;
        Entry& operator=(const Entry&) = delete;

        bool compiled() const { return _result == 0; }
        /// The compiler's explanation of a failure (regerror's text).
        const std::string& error() const { return _error; }
        /// Whether the pattern matches somewhere in `text`; false when it
        /// did not compile.
        bool matches(const std::string& text) const;

    private:
        regex_t _regex;
        int _result;
        std::string _error;
    };

    PatternCache() = default;
    PatternCache(const PatternCache&) = delete;
    PatternCache& operator=(const PatternCache&) = delete;

    /// The pattern compiled (on the first request for it).
    const Entry& get(const std::string& pattern);
    /// Forgets every compiled pattern.
    void clear() { _entries.clear(); }

private:
    std::unordered_map<std::string, std::unique_ptr<Entry>> _entries;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_PATTERN_CACHE_H
