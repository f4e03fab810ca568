#include "CachedKey.h"

#include <cstring>

namespace ZefModelRepositoryService {

void CachedKey::set(const std::string& key)
{
    if (key.empty()) {
        _text.reset();
        return;
    }
    // Keys never hold a NUL: they are joined from C strings.
    std::unique_ptr<char[]> text(new char[key.size() + 1]);
    std::memcpy(text.get(), key.c_str(), key.size() + 1);
    _text = std::move(text);
}

} // namespace ZefModelRepositoryService
