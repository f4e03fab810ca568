#ifndef ZEF_IF2_LINKS_H
#define ZEF_IF2_LINKS_H

// How the link getters of the interface objects hand out the handle of a
// related record: a record that is absent, or that the query interface has
// not registered (handle 0), cannot be read through the interface, so both
// answer "nothing found" and leave the out value as it was.

#include <cstdint>

#include "ZefReturn.h"

namespace ZefModelRepositoryService {
namespace If2Links {

/// `value` when it is a registered handle (non-zero): ZefOk; ZefNotFound otherwise.
inline ZefReturnT registeredHandle(uint64_t value, uint64_t& handle)
{
    if (value == 0) {
        return ZefNotFound;
    }
    handle = value;
    return ZefOk;
}

/// A handle a record class handed out with `result`: that code when it is
/// not ZefOk, otherwise as registeredHandle.
inline ZefReturnT foundHandle(ZefReturnT result, uint64_t found, uint64_t& handle)
{
    return result != ZefOk ? result : registeredHandle(found, handle);
}

/// The handle of a published record reached through a pointer.
template <typename Record>
ZefReturnT handleOf(const Record* record, uint64_t& handle)
{
    return record == nullptr ? ZefNotFound : registeredHandle(record->handle, handle);
}

/// A text of the published record: the value getters never fail.
inline ZefReturnT text(const char* value, const char*& out)
{
    out = value;
    return ZefOk;
}

/// A flag or number of the published record.
template <typename Value, typename Out>
ZefReturnT value(Value field, Out& out)
{
    out = static_cast<Out>(field);
    return ZefOk;
}

} // namespace If2Links
} // namespace ZefModelRepositoryService

#endif // ZEF_IF2_LINKS_H
