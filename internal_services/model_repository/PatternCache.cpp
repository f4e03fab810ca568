#include "PatternCache.h"

namespace ZefModelRepositoryService {

PatternCache::Entry::Entry(const std::string& pattern)
    : _result(regcomp(&_regex, pattern.c_str(), REG_EXTENDED | REG_NOSUB))
{
    if (_result != 0) {
        const size_t size = regerror(_result, &_regex, nullptr, 0);
        _error.assign(size, '\0');
        regerror(_result, &_regex, &_error[0], size);
        _error.resize(size > 0 ? size - 1 : 0);
    }
}

PatternCache::Entry::~Entry()
{
    if (_result == 0) {
        regfree(&_regex);
    }
}

bool PatternCache::Entry::matches(const std::string& text) const
{
    return _result == 0 && regexec(&_regex, text.c_str(), 0, nullptr, 0) == 0;
}

const PatternCache::Entry& PatternCache::get(const std::string& pattern)
{
    std::unique_ptr<Entry>& entry = _entries[pattern];
    if (!entry) {
        entry.reset(new Entry(pattern));
    }
    return *entry;
}

} // namespace ZefModelRepositoryService
