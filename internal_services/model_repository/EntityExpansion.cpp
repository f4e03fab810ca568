#include "EntityExpansion.h"

#include <algorithm>
#include <cstring>

namespace ZefModelRepositoryService {

namespace {

// A byte that may be part of an entity name as the scan reads it: ASCII
// name characters and any byte of a multi-byte character.
bool isNameByte(unsigned char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == ':' ||
           c == '-' || c == '.' || c >= 0x80;
}

bool isPredefined(const std::string& name) {
    return name == "lt" || name == "gt" || name == "amp" || name == "apos" || name == "quot";
}

// The position of the ";" that ends the reference whose "&" is at `at`, or
// npos when no entity name follows (a character reference, or text that
// the reader refuses anyway). Reads each byte at most once per "&".
std::size_t referenceEnd(const char* text, std::size_t size, std::size_t at) {
    std::size_t i = at + 1;
    while (i < size && isNameByte(static_cast<unsigned char>(text[i]))) {
        ++i;
    }
    if (i == at + 1 || i >= size || text[i] != ';') {
        return std::string::npos;
    }
    return i;
}

// A UTF-16 document spells "&" with a zero byte beside it, so the names of
// its references cannot be read byte-wise.
bool isUtf16(const char* text, std::size_t size) {
    if (size < 2) {
        return false;
    }
    const unsigned char first = static_cast<unsigned char>(text[0]);
    const unsigned char second = static_cast<unsigned char>(text[1]);
    return (first == 0xFE && second == 0xFF) || (first == 0xFF && second == 0xFE) || (first == 0 && second == '<') ||
           (first == '<' && second == 0);
}

} // namespace

EntityExpansion::EntityExpansion(std::uint64_t limit) : _limit(limit) {}

void EntityExpansion::declare(const std::string& name, const std::string& value) {
    Entity entity;
    entity.length = value.size();
    for (std::size_t at = value.find('&'); at != std::string::npos; at = value.find('&', at + 1)) {
        const std::size_t end = referenceEnd(value.data(), value.size(), at);
        if (end != std::string::npos) {
            entity.references.push_back(value.substr(at + 1, end - at - 1));
        }
    }
    // The reader reports parameter entities under their bare names, so a
    // parameter and a general entity of one name share an entry: the larger
    // one counts.
    auto found = _entities.find(name);
    if (found == _entities.end()) {
        _order.push_back(name);
        _entities.emplace(name, std::move(entity));
    } else if (entity.length >= found->second.length) {
        found->second = std::move(entity);
    }
}

void EntityExpansion::sizeAll() {
    const std::uint64_t tooLarge = _limit + 1;
    struct Frame {
        Entity* entity;
        std::size_t next;
    };
    std::vector<Frame> stack;
    for (auto& start : _entities) {
        if (start.second.state != 0) {
            continue;
        }
        start.second.state = 1;
        stack.push_back({&start.second, 0});
        while (!stack.empty()) {
            const std::size_t top = stack.size() - 1;
            Entity& entity = *stack[top].entity;
            if (stack[top].next < entity.references.size()) {
                auto child = _entities.find(entity.references[stack[top].next++]);
                if (child != _entities.end() && child->second.state == 0) {
                    child->second.state = 1;
                    stack.push_back({&child->second, 0});
                }
                continue;
            }
            std::uint64_t total = entity.length;
            for (const std::string& reference : entity.references) {
                auto child = _entities.find(reference);
                if (child == _entities.end()) {
                    continue;  // the reader refuses or skips it; nothing is expanded
                }
                // A child still being sized is an ancestor: the entity refers to itself.
                total += child->second.state == 2 ? child->second.expanded : tooLarge;
                total = std::min(total, tooLarge);
            }
            entity.expanded = total;
            entity.state = 2;
            stack.pop_back();
        }
    }
}

std::uint64_t EntityExpansion::expandedSize(const std::string& name) const {
    auto found = _entities.find(name);
    return found == _entities.end() ? 0 : found->second.expanded;
}

std::uint64_t EntityExpansion::referenceCost(const std::string& name) const {
    auto found = _entities.find(name);
    if (found != _entities.end()) {
        return found->second.expanded;
    }
    return isPredefined(name) ? 1 : _largest;
}

std::string EntityExpansion::check(const char* document, std::size_t size) {
    sizeAll();
    const std::string limitText = std::to_string(_limit);
    for (const std::string& name : _order) {
        const std::uint64_t expanded = _entities[name].expanded;
        if (expanded > _limit) {
            return "entity '" + name + "' expands to more than " + limitText + " bytes";
        }
        _largest = std::max(_largest, expanded);
    }

    const bool wide = isUtf16(document, size);
    std::uint64_t total = 0;
    for (std::size_t at = 0; at < size; ++at) {
        const void* next = std::memchr(document + at, '&', size - at);
        if (next == nullptr) {
            break;
        }
        at = static_cast<std::size_t>(static_cast<const char*>(next) - document);
        std::uint64_t cost = _largest;
        if (!wide) {
            const std::size_t end = referenceEnd(document, size, at);
            if (end == std::string::npos) {
                continue;
            }
            cost = referenceCost(std::string(document + at + 1, end - at - 1));
            at = end;
        }
        total = std::min(total + cost, _limit + 1);
        if (total > _limit) {
            return "entity references expand to more than " + limitText + " bytes";
        }
    }
    return std::string();
}

} // namespace ZefModelRepositoryService
