#ifndef ZEF_TEST_TEXT_PATTERN_H
#define ZEF_TEST_TEXT_PATTERN_H

// Whole-text matching against POSIX extended regular expressions, for
// checking the shape of log lines whose time stamps vary.

#include <regex.h>

#include <stdexcept>
#include <string>

/// Whether the whole of `text` matches the extended regular expression `pattern`.
inline bool matchesPattern(const std::string& text, const std::string& pattern) {
    regex_t compiled;
    if (regcomp(&compiled, ("^(" + pattern + ")$").c_str(), REG_EXTENDED | REG_NOSUB) != 0)
        throw std::invalid_argument("bad pattern " + pattern);
    const bool matched = regexec(&compiled, text.c_str(), 0, nullptr, 0) == 0;
    regfree(&compiled);
    return matched;
}

/// The time stamp "YYYY-MM-DD hh:mm:ss.mmm" that begins every line of the log file.
inline const char* timeStampPattern() {
    return "[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}\\.[0-9]{3}";
}

#endif // ZEF_TEST_TEXT_PATTERN_H
