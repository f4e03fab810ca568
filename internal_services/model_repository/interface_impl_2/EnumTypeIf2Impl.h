#ifndef ZEF_ENUM_TYPE_IF2_IMPL_H
#define ZEF_ENUM_TYPE_IF2_IMPL_H

#include <cstdint>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefOamSpiModelRepository_4_1.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class EnumWrapper;

/// Query interface object of one enumeration.
///
/// Link getters answer ZefNotFound, with the out value unchanged, when there
/// is no such record; value getters copy a field and never fail.
class EnumTypeIf2Impl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up EnumType [%s]";
    /// An enumeration looked up for its general properties.
    static constexpr const char* kHandleLookupFailureText = "Failed to look up EnumHandle [%s]";

    /// Registers the enumeration (pushEnumType), its general properties and
    /// each of its literals, and stores the handles in the records. `record`
    /// must outlive the object.
    explicit EnumTypeIf2Impl(EnumWrapper& record);

    /// The object of `handle`; std::out_of_range when there is none.
    static const EnumTypeIf2Impl& lookup(uint64_t handle);

    ZefReturnT getGeneralProperties(uint64_t& generalProperties) const;
    ZefReturnT getMom(uint64_t& mom) const;
    /// The first literal.
    ZefReturnT getLiteral(uint64_t& literal) const;

    /// Fill this kind's slots of the tables of each version.
    static void initInterface(ZefOamSpiEnum_2& table);
    static void initInterface(ZefOamSpiMrEnum_3& table);
    static void initInterface(ZefOamSpiMrEnum_4& table);
    static void initInterface(ZefOamSpiMrEnum_4_1& table);

private:
    EnumWrapper& _enum;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_ENUM_TYPE_IF2_IMPL_H
