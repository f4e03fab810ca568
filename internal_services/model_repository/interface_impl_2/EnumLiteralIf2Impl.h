#ifndef ZEF_ENUM_LITERAL_IF2_IMPL_H
#define ZEF_ENUM_LITERAL_IF2_IMPL_H

#include <cstdint>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefOamSpiModelRepository_4_1.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class LitWrapper;

/// Query interface object of one literal of an enumeration, reached
/// through the enumeration tables.
///
/// Link getters answer ZefNotFound, with the out value unchanged, when there
/// is no such record; value getters copy a field and never fail.
class EnumLiteralIf2Impl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up EnumLiteral [%s]";

    /// Registers the literal (pushEnumLiteral) and its general properties
    /// and stores both handles in the record. `record` must outlive the
    /// object.
    explicit EnumLiteralIf2Impl(LitWrapper& record);

    /// The object of `handle`; std::out_of_range when there is none.
    static const EnumLiteralIf2Impl& lookup(uint64_t handle);

    ZefReturnT getGeneralProperties(uint64_t& generalProperties) const;
    /// The full 64-bit value (the published record keeps 16 bits only).
    ZefReturnT getValue(int64_t& value) const;
    /// The next literal of the same enumeration; ZefNotFound after the last.
    ZefReturnT getNext(uint64_t& next) const;

    /// Fill this kind's slots of the tables of each version.
    static void initInterface(ZefOamSpiEnum_2& table);
    static void initInterface(ZefOamSpiMrEnum_3& table);
    static void initInterface(ZefOamSpiMrEnum_4& table);
    static void initInterface(ZefOamSpiMrEnum_4_1& table);

private:
    LitWrapper& _literal;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_ENUM_LITERAL_IF2_IMPL_H
