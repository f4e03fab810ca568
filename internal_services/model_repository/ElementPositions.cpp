#include "ElementPositions.h"

#include <Poco/DOM/Node.h>

namespace ZefModelRepositoryService {

size_t ElementPositions::slotOf(const Poco::XML::Node* element, size_t mask) {
    // Nodes are aligned heap blocks: their low bits say nothing, so the bits
    // are mixed before the slot is taken from them.
    uint64_t hash = static_cast<uint64_t>(reinterpret_cast<uintptr_t>(element));
    hash ^= hash >> 33;
    hash *= 0xff51afd7ed558ccdULL;
    hash ^= hash >> 33;
    return static_cast<size_t>(hash) & mask;
}

void ElementPositions::assignTo(const Poco::XML::Node* document) {
    size_t capacity = 16;
    while (capacity < 2 * _noted.size()) {
        capacity *= 2;
    }
    _slots.assign(capacity, Slot{nullptr, Position()});
    const size_t mask = capacity - 1;
    size_t next = 0;
    // A walk in document order without recursion: a deep document costs no
    // stack.
    const Poco::XML::Node* node = document != nullptr ? document->firstChild() : nullptr;
    while (node != nullptr && next < _noted.size()) {
        if (node->nodeType() == Poco::XML::Node::ELEMENT_NODE) {
            size_t slot = slotOf(node, mask);
            while (_slots[slot].element != nullptr) {
                slot = (slot + 1) & mask;
            }
            _slots[slot] = Slot{node, _noted[next++]};
            if (const Poco::XML::Node* child = node->firstChild()) {
                node = child;
                continue;
            }
        }
        while (node != document && node->nextSibling() == nullptr) {
            node = node->parentNode();
        }
        node = node != document ? node->nextSibling() : nullptr;
    }
    // The noted list is not needed any more.
    std::vector<Position>().swap(_noted);
}

ElementPositions::Position ElementPositions::positionOf(const Poco::XML::Node* element) const {
    if (_slots.empty() || element == nullptr) {
        return Position();
    }
    const size_t mask = _slots.size() - 1;
    for (size_t slot = slotOf(element, mask); _slots[slot].element != nullptr; slot = (slot + 1) & mask) {
        if (_slots[slot].element == element) {
            return _slots[slot].position;
        }
    }
    return Position();
}

void ElementPositions::clear() {
    std::vector<Position>().swap(_noted);
    std::vector<Slot>().swap(_slots);
}

} // namespace ZefModelRepositoryService
