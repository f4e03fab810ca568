#ifndef ZEF_CACHED_KEY_H
#define ZEF_CACHED_KEY_H

#include <string>

namespace ZefModelRepositoryService {

/// The identity key a record builds once and keeps, in one block of the
/// key's length behind one pointer. Records whose keys run through
/// their MOM and class (attributes, actions) are the most numerous of a
/// model, and their keys are always longer than a string keeps in place.
class CachedKey {
public:
    CachedKey() = default;
    ~CachedKey();

    CachedKey(const CachedKey&) = delete;
    CachedKey& operator=(const CachedKey&) = delete;

    /// True until a non-empty key is kept.
    bool empty() const { return !_text; }

    /// Keeps `key`; an empty key leaves the cache empty.
    void set(const std::string& key);

    /// Keeps `key` and hands it back as it is: the caller that built it
    /// needs no copy of the kept one.
    std::string keep(std::string key)
    {
        set(key);
        return key;
    }

    /// The kept key, or the empty string.
    std::string str() const { return _text != nullptr ? std::string(_text) : std::string(); }

private:
    void release();

    /// From the text arena, as the records' other strings.
    char* _text = nullptr;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_CACHED_KEY_H
