#ifndef ZEF_IF2_C_BOUNDARY_H
#define ZEF_IF2_C_BOUNDARY_H

// The one place where the C functions of the query interface meet the C++
// interface objects. Every C function in a table is a single call of one of
// the templates below, which take the same steps in the same order:
//   1. the repository service is not started: 2;
//   2. the out pointer is null: -8;
//   3. the handle names no object of the kind: the thread's error text is
//      set to the kind's "Failed to look up ... [%s]" text, -8;
//   4. the object's getter answers.
// Nothing thrown below this point reaches the C caller.

#include <cstdint>
#include <exception>
#include <stdexcept>

#include "ZefReturn.h"

namespace ZefModelRepositoryService {
namespace If2CBoundary {

/// True when the repository service exists and has been started.
bool isServiceStarted();

/// Sets the calling thread's error text to `lookupText` formatted with the
/// range error's own text (the text's one "%s").
void reportLookupFailure(const char* lookupText, const std::out_of_range& error);

/// Logs a fault a getter raised unexpectedly (it is answered with -1).
void reportFault(const char* what);

/// The interface object of kind Impl with `handle`, or null after
/// reportLookupFailure with `lookupText` when there is none.
template <typename Impl>
const Impl* find(uint64_t handle, const char* lookupText = Impl::kLookupFailureText)
{
    try {
        return &Impl::lookup(handle);
    } catch (const std::out_of_range& error) {
        reportLookupFailure(lookupText, error);
        return nullptr;
    }
}

/// Steps 1 to 4 with the getter given as `answer(const Impl&, Out&)`.
template <typename Impl, typename Out, typename Answer>
ZefReturnT run(const char* lookupText, uint64_t handle, Out* out, Answer answer) noexcept
{
    try {
        if (!isServiceStarted()) {
            return ZefNotStarted;
        }
        if (out == nullptr) {
            return ZefInvalidArgument;
        }
        const Impl* impl = find<Impl>(handle, lookupText);
        if (impl == nullptr) {
            return ZefInvalidArgument;
        }
        return answer(*impl, *out);
    } catch (const std::exception& fault) {
        reportFault(fault.what());
    } catch (...) {
        reportFault("unknown exception");
    }
    return ZefFailure;
}

/// A getter without arguments besides the out value, found under the kind's
/// own lookup text. The getter is named by type, so overloads (the type
/// code of each version) are told apart by the out pointer.
template <typename Impl, typename Out>
ZefReturnT call(uint64_t handle, Out* out, ZefReturnT (Impl::*getter)(Out&) const) noexcept
{
    return run<Impl>(Impl::kLookupFailureText, handle, out,
                     [getter](const Impl& impl, Out& value) { return (impl.*getter)(value); });
}

/// A getter that takes arguments before the out value.
template <typename Impl, typename Out, typename Getter, typename Arg, typename... Args>
ZefReturnT call(uint64_t handle, Out* out, Getter getter, Arg arg, Args... args) noexcept
{
    return run<Impl>(Impl::kLookupFailureText, handle, out, [&](const Impl& impl, Out& value) {
        return (impl.*getter)(arg, args..., value);
    });
}

/// As call, reporting a failed lookup with `lookupText` instead of the
/// kind's own text (a getter that names its element differently).
template <typename Impl, typename Out>
ZefReturnT callAs(const char* lookupText, uint64_t handle, Out* out, ZefReturnT (Impl::*getter)(Out&) const) noexcept
{
    return run<Impl>(lookupText, handle, out,
                     [getter](const Impl& impl, Out& value) { return (impl.*getter)(value); });
}

/// Steps 1, 2 and 4 for the entry points, which take no handle.
template <typename Entry, typename Out, typename Getter, typename... Args>
ZefReturnT callEntry(const Entry& entry, Out* out, Getter getter, Args... args) noexcept
{
    try {
        if (!isServiceStarted()) {
            return ZefNotStarted;
        }
        if (out == nullptr) {
            return ZefInvalidArgument;
        }
        return (entry.*getter)(args..., *out);
    } catch (const std::exception& fault) {
        reportFault(fault.what());
    } catch (...) {
        reportFault("unknown exception");
    }
    return ZefFailure;
}

} // namespace If2CBoundary
} // namespace ZefModelRepositoryService

#endif // ZEF_IF2_C_BOUNDARY_H
