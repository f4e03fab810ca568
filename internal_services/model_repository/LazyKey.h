#ifndef ZEF_LAZY_KEY_H
#define ZEF_LAZY_KEY_H

#include <string>

#include "GeneralPropertiesWrapper.h"

namespace ZefModelRepositoryService {

/// The identity key of one record, read on first use and kept: compilation
/// and validation visit every element, but most give no finding and, below
/// the trace level, nothing names them.
class LazyKey {
public:
    /// The key of `record`; a null record has the empty key.
    explicit LazyKey(const GeneralPropertiesWrapper* record = nullptr) : _record(record) {}

    /// Starts over for another record.
    void reset(const GeneralPropertiesWrapper* record)
    {
        _record = record;
        _read = false;
    }

    const std::string& str()
    {
        if (!_read) {
            _key = _record != nullptr ? _record->getId() : std::string();
            _read = true;
        }
        return _key;
    }

    const char* operator()() { return str().c_str(); }

private:
    const GeneralPropertiesWrapper* _record;
    std::string _key;
    bool _read = false;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_LAZY_KEY_H
