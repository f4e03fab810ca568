#ifndef ZEF_STRUCT_MEMBER_IF2_IMPL_H
#define ZEF_STRUCT_MEMBER_IF2_IMPL_H

#include <cstdint>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class StructMemberWrapper;

/// Query interface object of one member of a struct, reached through the
/// struct tables.
///
/// Link getters answer ZefNotFound, with the out value unchanged, when there
/// is no such record; value getters copy a field and never fail.
class StructMemberIf2Impl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up StructMember [%s]";

    /// Registers the member (pushStructMember), its general properties and
    /// its type container and stores the handles in the records. `record`
    /// must outlive the object.
    explicit StructMemberIf2Impl(StructMemberWrapper& record);

    /// The object of `handle`; std::out_of_range when there is none.
    static const StructMemberIf2Impl& lookup(uint64_t handle);

    ZefReturnT getGeneralProperties(uint64_t& generalProperties) const;
    ZefReturnT getTypeContainer(uint64_t& typeContainer) const;
    /// The next member of the same struct; ZefNotFound after the last.
    ZefReturnT getNext(uint64_t& next) const;

    /// Fill this kind's slots of the tables of each version.
    static void initInterface(ZefOamSpiStruct_2& table);
    static void initInterface(ZefOamSpiMrStruct_3& table);
    static void initInterface(ZefOamSpiMrStruct_4& table);

private:
    StructMemberWrapper& _member;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_STRUCT_MEMBER_IF2_IMPL_H
