#ifndef ZEF_STRUCT_TYPE_IF2_IMPL_H
#define ZEF_STRUCT_TYPE_IF2_IMPL_H

#include <cstdint>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class StructWrapper;

/// Query interface object of one struct data type.
///
/// Link getters answer ZefNotFound, with the out value unchanged, when there
/// is no such record; value getters copy a field and never fail.
class StructTypeIf2Impl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up StructType [%s]";
    /// A struct looked up for its general properties.
    static constexpr const char* kHandleLookupFailureText = "Failed to look up StructHandle [%s]";

    /// Registers the struct (pushStructType), its general properties and
    /// each of its members, and stores the handles in the records. `record`
    /// must outlive the object.
    explicit StructTypeIf2Impl(StructWrapper& record);

    /// The object of `handle`; std::out_of_range when there is none.
    static const StructTypeIf2Impl& lookup(uint64_t handle);

    ZefReturnT getGeneralProperties(uint64_t& generalProperties) const;
    ZefReturnT getMom(uint64_t& mom) const;
    /// The first member.
    ZefReturnT getMember(uint64_t& member) const;
    ZefReturnT getIsExclusive(bool& isExclusive) const;

    /// Fill this kind's slots of the tables of each version.
    static void initInterface(ZefOamSpiStruct_2& table);
    static void initInterface(ZefOamSpiMrStruct_3& table);
    static void initInterface(ZefOamSpiMrStruct_4& table);

private:
    StructWrapper& _struct;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_STRUCT_TYPE_IF2_IMPL_H
