#include "NamePoolGuard.h"

namespace ZefModelRepositoryService {

namespace {

const std::size_t kSlots = 1024;  // a power of two above twice the capacity

// FNV-1a: names are a few bytes long, and a byte loop with one multiply
// each costs less on them than a general string hash.
std::uint64_t hashBytes(std::uint64_t hash, const std::string& text) {
    for (const char c : text) {
        hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
    }
    return hash;
}

} // namespace

NamePoolGuard::NamePoolGuard() : _slots(kSlots, Slot{0, 0}) {}

bool NamePoolGuard::use(const std::string& qname, const std::string& uri, std::string_view localName) {
    // The local name is compared but not hashed: it is the qualified name
    // or a part of it. The URI is empty in a document without namespaces.
    std::uint64_t hash = hashBytes(14695981039346656037ULL, qname);
    if (!uri.empty()) {
        hash = hashBytes(hash * 31, uri);
    }
    std::size_t at = hash & (kSlots - 1);
    while (_slots[at].name != 0) {
        const Slot& slot = _slots[at];
        if (slot.hash == hash) {
            const Name& name = _names[slot.name - 1];
            if (name.qname == qname && name.uri == uri && name.localName == localName) {
                return true;
            }
        }
        at = (at + 1) & (kSlots - 1);
    }
    if (_names.size() == kCapacity) {
        return false;
    }
    _names.push_back(Name{qname, uri, std::string(localName.data(), localName.size())});
    _slots[at] = Slot{hash, static_cast<std::uint32_t>(_names.size())};
    return true;
}

std::string NamePoolGuard::reason() {
    return "more than " + std::to_string(kCapacity) +
           " distinct element and attribute names, more than a DOM document holds";
}

} // namespace ZefModelRepositoryService
