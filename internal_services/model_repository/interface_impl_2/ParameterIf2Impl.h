#ifndef ZEF_PARAMETER_IF2_IMPL_H
#define ZEF_PARAMETER_IF2_IMPL_H

#include <cstdint>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class ParameterWrapper;

/// Query interface object of one parameter of an action, reached through
/// the action tables.
///
/// Link getters answer ZefNotFound, with the out value unchanged, when there
/// is no such record; value getters copy a field and never fail.
class ParameterIf2Impl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up Parameter [%s]";

    /// Registers the parameter (pushParameter), its general properties and
    /// its type container and stores the handles in the records. `record`
    /// must outlive the object.
    explicit ParameterIf2Impl(ParameterWrapper& record);

    /// The object of `handle`; std::out_of_range when there is none.
    static const ParameterIf2Impl& lookup(uint64_t handle);

    ZefReturnT getGeneralProperties(uint64_t& generalProperties) const;
    ZefReturnT getAction(uint64_t& action) const;
    ZefReturnT getTypeContainer(uint64_t& typeContainer) const;
    /// The next parameter of the same action; ZefNotFound after the last.
    ZefReturnT getNext(uint64_t& next) const;

    /// Fill this kind's slots of the tables of each version.
    static void initInterface(ZefOamSpiAction_2& table);
    static void initInterface(ZefOamSpiMrAction_3& table);
    static void initInterface(ZefOamSpiMrAction_4& table);

private:
    ParameterWrapper& _parameter;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_PARAMETER_IF2_IMPL_H
