#ifndef ZEF_CONTAINMENT_IF2_IMPL_H
#define ZEF_CONTAINMENT_IF2_IMPL_H

#include <cstdint>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class ContWrapper;

/// Query interface object of one containment.
///
/// Link getters answer ZefNotFound, with the out value unchanged, when there
/// is no such record; value getters copy a field and never fail.
class ContainmentIf2Impl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up Containment [%s]";

    /// Registers the containment (pushContainment) and its general
    /// properties and stores both handles in the record. `record` must
    /// outlive the object.
    explicit ContainmentIf2Impl(ContWrapper& record);

    /// The object of `handle`; std::out_of_range when there is none.
    static const ContainmentIf2Impl& lookup(uint64_t handle);

    ZefReturnT getGeneralProperties(uint64_t& generalProperties) const;
    ZefReturnT getMom(uint64_t& mom) const;
    ZefReturnT getChildMoc(uint64_t& moc) const;
    ZefReturnT getParentMoc(uint64_t& moc) const;
    /// The next containment with the same child class.
    ZefReturnT getNextContainmentSameChildMoc(uint64_t& next) const;
    /// The next containment with the same parent class.
    ZefReturnT getNextContainmentSameParentMoc(uint64_t& next) const;
    ZefReturnT getIsSystemCreated(bool& isSystemCreated) const;
    /// The rights as the record class decides them (a system-created
    /// containment that states both rights reports neither).
    ZefReturnT getCanCreate(bool& canCreate) const;
    ZefReturnT getCanDelete(bool& canDelete) const;
    /// The cardinality bounds widened to 64 bits.
    ZefReturnT getCardinalityMin(uint64_t& min) const;
    ZefReturnT getCardinalityMax(uint64_t& max) const;

    /// Fill this kind's slots of the tables of each version.
    static void initInterface(ZefOamSpiContainment_2& table);
    static void initInterface(ZefOamSpiMrContainment_3& table);
    static void initInterface(ZefOamSpiMrContainment_4& table);

private:
    ContWrapper& _containment;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_CONTAINMENT_IF2_IMPL_H
