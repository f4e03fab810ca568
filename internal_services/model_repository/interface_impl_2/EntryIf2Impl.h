#ifndef ZEF_ENTRY_IF2_IMPL_H
#define ZEF_ENTRY_IF2_IMPL_H

#include <cstdint>

#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefOamSpiModelRepository_4_1.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// Where a reader of the query interface starts: the first MOM, a class by
/// name or by distinguished name, the tree root. Stateless: every answer is
/// read from the started repository at the time of the call.
class EntryIf2Impl {
public:
    /// The first MOM's handle. The repository's non-zero code as it stands;
    /// ZefNotFound when there is no MOM.
    ZefReturnT getMom(uint64_t& momHandle) const;
    /// The handle of the class of that MOM name, MOM version and class
    /// name; ZefNotFound when the repository has none.
    ZefReturnT getMoc(const char* mimName, const char* mimVersion, const char* mocName, uint64_t& mocHandle) const;
    /// The handle of the class `dn` leads to, `flag` passed through;
    /// ZefInvalidArgument for a null name, ZefNotFound when none.
    ZefReturnT getMocFromDn(const char* dn, bool flag, uint64_t& mocHandle) const;
    /// The handle of the tree root found by compilation; ZefNotFound when none.
    ZefReturnT getRoot(uint64_t& mocHandle) const;

    /// Fill the entry table of each version, one C function per slot.
    static void initInterface(ZefOamSpiEntry_2& table);
    static void initInterface(ZefOamSpiMrEntry_3& table);
    static void initInterface(ZefOamSpiMrEntry_4& table);
    /// The lookups by name of version 4_1, which this repository does not
    /// offer: each answers ZefNotFound at once.
    static void initInterface(ZefOamSpiMrEntry_4_1& table);
};

} // namespace ZefModelRepositoryService

#endif // ZEF_ENTRY_IF2_IMPL_H
