#include "CachedKey.h"

#include "TextArena.h"

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
    _text = TextArena::copy(key.data(), key.size());
}

void CachedKey::release()
{
    // The arena finds the key's chunk from its address: the key itself is
    // not read again.
    TextArena::release(_text);
    _text = nullptr;
}

} // namespace ZefModelRepositoryService
