#ifndef ZEF_CACHED_KEY_H
#define ZEF_CACHED_KEY_H

#include <memory>
#include <string>

namespace ZefModelRepositoryService {

/// The identity key a record builds once and keeps, in one allocation of
/// the key's length behind one pointer. Records whose keys run through
/// their MOM and class (attributes, actions) are the most numerous of a
/// model, and their keys are always longer than a string keeps in place.
class CachedKey {
public:
    CachedKey() = default;

    CachedKey(const CachedKey&) = delete;
    CachedKey& operator=(const CachedKey&) = delete;

    /// True until a non-empty key is kept.
    bool empty() const { return !_text; }

    /// Keeps `key`; an empty key leaves the cache empty.
    void set(const std::string& key);

    /// The kept key, or the empty string.
    std::string str() const { return _text ? std::string(_text.get()) : std::string(); }

private:
    std::unique_ptr<char[]> _text;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_CACHED_KEY_H
