#ifndef ZEF_ACTION_IF2_IMPL_H
#define ZEF_ACTION_IF2_IMPL_H

#include <cstdint>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class MoActionWrapper;

/// Query interface object of one action of a class.
///
/// Link getters answer ZefNotFound, with the out value unchanged, when there
/// is no such record; value getters copy a field and never fail.
class ActionIf2Impl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up action [%s]";

    /// Registers the action (pushAction), its general properties, the type
    /// container of its result and each of its parameters, and stores the
    /// handles in the records. `record` must outlive the object.
    explicit ActionIf2Impl(MoActionWrapper& record);

    /// The object of `handle`; std::out_of_range when there is none.
    static const ActionIf2Impl& lookup(uint64_t handle);

    ZefReturnT getGeneralProperties(uint64_t& generalProperties) const;
    ZefReturnT getMoc(uint64_t& moc) const;
    /// The data type of the result.
    ZefReturnT getTypeContainer(uint64_t& typeContainer) const;
    /// The next action of the same class; ZefNotFound after the last.
    ZefReturnT getNext(uint64_t& next) const;
    /// The first parameter.
    ZefReturnT getParameter(uint64_t& parameter) const;

    /// Fill this kind's slots of the tables of each version.
    static void initInterface(ZefOamSpiAction_2& table);
    static void initInterface(ZefOamSpiMrAction_3& table);
    static void initInterface(ZefOamSpiMrAction_4& table);

private:
    MoActionWrapper& _action;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_ACTION_IF2_IMPL_H
