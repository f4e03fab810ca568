#include "CachedKey.h"

#include <cstring>

#include "RecordPool.h"

namespace ZefModelRepositoryService {

CachedKey::~CachedKey()
{
    release();
}

void CachedKey::set(const std::string& key)
{
    release();
    if (key.empty()) {
        return;
    }
    // Keys never hold a NUL: they are joined from C strings, so the
    // terminator tells the block size again at release.
    char* text = static_cast<char*>(RecordPool::allocate(key.size() + 1));
    std::memcpy(text, key.c_str(), key.size() + 1);
    _text = text;
}

void CachedKey::release()
{
    if (_text != nullptr) {
        RecordPool::release(_text, std::strlen(_text) + 1);
        _text = nullptr;
    }
}

} // namespace ZefModelRepositoryService
