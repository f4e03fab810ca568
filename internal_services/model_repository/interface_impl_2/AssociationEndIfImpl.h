#ifndef ZEF_ASSOCIATION_END_IF_IMPL_H
#define ZEF_ASSOCIATION_END_IF_IMPL_H

#include <cstdint>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class AssociationEndWrapper;

/// Query interface object of one end of an association.
///
/// Link getters answer ZefNotFound, with the out value unchanged, when there
/// is no such record; value getters copy a field and never fail.
class AssociationEndIfImpl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up Association End [%s]";

    /// Registers the end (pushAssociationEnd) and its general properties
    /// and stores both handles in the record. `record` must outlive the
    /// object.
    explicit AssociationEndIfImpl(AssociationEndWrapper& record);

    /// The object of `handle`; std::out_of_range when there is none.
    static const AssociationEndIfImpl& lookup(uint64_t handle);

    /// The class this end resolves to.
    ZefReturnT getMoc(uint64_t& moc) const;
    /// The attribute this end resolves to.
    ZefReturnT getAttribute(uint64_t& attribute) const;
    ZefReturnT getGeneralProperties(uint64_t& generalProperties) const;
    ZefReturnT getName(const char*& name) const;
    /// The name of the class at this end as written in the model; null when not given.
    ZefReturnT getClassifier(const char*& classifier) const;
    ZefReturnT isReserving(bool& isReserving) const;
    ZefReturnT isRestricted(bool& isRestricted) const;
    /// The multiplicity bounds widened to 64 bits.
    ZefReturnT getLower(uint64_t& lower) const;
    ZefReturnT getUpper(uint64_t& upper) const;

    /// Fill this kind's slots of the tables of each version.
    static void initInterface(ZefOamSpiMrAssociationEnd_4& table);

private:
    AssociationEndWrapper& _end;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_ASSOCIATION_END_IF_IMPL_H
