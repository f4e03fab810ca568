#ifndef ZEF_IF2_ARRAY_H
#define ZEF_IF2_ARRAY_H

#include <cstdint>
#include <deque>
#include <stdexcept>
#include <string>

namespace ZefModelRepositoryService {

/// The interface objects of one element kind, in the order they were
/// pushed. The n-th object (counting from 0) has the handle 3017 + n.
///
/// The array owns its objects: cleanup() (and the destructor) deletes them,
/// last to first, after which the numbering starts again at 3017.
template <typename T>
class If2Array {
public:
    /// Handle of the first object of every kind. 0 stays free to mean "no handle yet".
    static constexpr uint64_t kFirstHandle = 3017;

    If2Array() = default;
    ~If2Array() { cleanup(); }

    If2Array(const If2Array&) = delete;
    If2Array& operator=(const If2Array&) = delete;

    /// Takes ownership of `object`, gives it the handle 3017 + size()
    /// (pushedWithHandle) and appends it.
    void push(T* object)
    {
        object->pushedWithHandle(kFirstHandle + _objects.size());
        _objects.push_back(object);
    }

    /// The object of `handle`. Only the low 32 bits of the handle count.
    /// Throws std::out_of_range, whose what() names the handle, for a handle
    /// that was not issued (below 3017, or past the last object).
    T& at(uint64_t handle) const
    {
        // Unsigned 32-bit arithmetic: a handle below 3017 wraps to an index
        // far past any array, so one comparison covers both ends.
        const uint32_t index = static_cast<uint32_t>(handle) - static_cast<uint32_t>(kFirstHandle);
        if (index >= _objects.size()) {
            throw std::out_of_range("handle " + std::to_string(handle) + " outside of "
                                    + std::to_string(_objects.size()) + " issued from "
                                    + std::to_string(kFirstHandle));
        }
        return *_objects[index];
    }

    size_t size() const { return _objects.size(); }

    /// Deletes the objects from the last to the first and empties the array.
    void cleanup()
    {
        // Last to first, then the array is emptied at once: no object's
        // destructor looks at the array.
        for (auto object = _objects.rbegin(); object != _objects.rend(); ++object) {
            delete *object;
        }
        _objects.clear();
    }

private:
    // A deque grows by blocks: a model's hundreds of thousands of objects
    // are never copied to a larger array, nor is room left for as many
    // again.
    std::deque<T*> _objects;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_IF2_ARRAY_H
