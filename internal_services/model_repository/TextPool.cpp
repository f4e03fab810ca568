#include "TextPool.h"

#include <deque>
#include <functional>
#include <mutex>
#include <vector>

#include "PoolLock.h"

namespace ZefModelRepositoryService {

namespace {

// The pool outlives every record: created on first use and never emptied.
// A deque never moves its elements, so references stay valid.
//
// A model looks a pooled text up for every reference and domain extension
// it reads, so the table is open-addressed over a power of two, with each
// slot holding the text's hash beside its address: a lookup touches one
// slot and, on a hash match, one text, where a node-based set would chase
// a bucket, a node and the text.
class Pool {
public:
    Pool() : _slots(kInitialSlots) {}

    const std::string& shared(const std::string& text) {
        const std::size_t hash = std::hash<std::string>()(text);
        PoolLock guard(_lock);
        std::size_t at = hash & (_slots.size() - 1);
        for (; _slots[at].text != nullptr; at = (at + 1) & (_slots.size() - 1)) {
            if (_slots[at].hash == hash && *_slots[at].text == text) {
                return *_slots[at].text;
            }
        }
        _texts.push_back(text);
        _slots[at] = Slot{hash, &_texts.back()};
        // At most half full, so that a run of taken slots stays short.
        if (2 * _texts.size() > _slots.size()) {
            grow();
        }
        return _texts.back();
    }

private:
    struct Slot {
        std::size_t hash = 0;
        const std::string* text = nullptr;  // null while free
    };

    static const std::size_t kInitialSlots = 1024;

    void grow() {
        std::vector<Slot> larger(2 * _slots.size());
        for (const Slot& slot : _slots) {
            if (slot.text != nullptr) {
                std::size_t at = slot.hash & (larger.size() - 1);
                while (larger[at].text != nullptr) {
                    at = (at + 1) & (larger.size() - 1);
                }
                larger[at] = slot;
            }
        }
        _slots.swap(larger);
    }

    std::mutex _lock;
    std::deque<std::string> _texts;
    std::vector<Slot> _slots;
};

Pool& pool()
{
    static Pool instance;
    return instance;
}

} // namespace

const std::string& TextPool::shared(const std::string& text)
{
    return pool().shared(text);
}

const std::string& TextPool::empty()
{
    static const std::string& text = shared(std::string());
    return text;
}

} // namespace ZefModelRepositoryService
