#ifndef ZEF_BIDIRECTIONAL_ASSOCIATION_IF_IMPL_H
#define ZEF_BIDIRECTIONAL_ASSOCIATION_IF_IMPL_H

#include <cstdint>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefOamSpiModelRepository_4_1.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class BiDirAssociationWrapper;

/// Query interface object of one bidirectional association.
///
/// Link getters answer ZefNotFound, with the out value unchanged, when there
/// is no such record; value getters copy a field and never fail.
class BidirectionalAssociationIfImpl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up Bidirectional Association [%s]";

    /// Registers the association (pushBidirectionalAssociation) and its
    /// general properties and stores both handles in the record. `record`
    /// must outlive the object.
    explicit BidirectionalAssociationIfImpl(BiDirAssociationWrapper& record);

    /// The object of `handle`; std::out_of_range when there is none.
    static const BidirectionalAssociationIfImpl& lookup(uint64_t handle);

    ZefReturnT getGeneralProperties(uint64_t& generalProperties) const;
    ZefReturnT getMom(uint64_t& mom) const;
    /// The first and the second association end.
    ZefReturnT getFirstAssociation(uint64_t& associationEnd) const;
    ZefReturnT getSecondAssociation(uint64_t& associationEnd) const;
    /// The association listed after this one with the class `moc` (a class
    /// handle), in handle order: ZefNotFound after the last one or when the
    /// class is at neither end; ZefInvalidArgument, with the thread's error
    /// text set, when `moc` names no class.
    ZefReturnT getNextBidirectionalAssociation(uint64_t moc, uint64_t& next) const;

    /// Fill this kind's slots of the tables of each version.
    static void initInterface(ZefOamSpiMrBiDirAssociation_4& table);
    static void initInterface(ZefOamSpiMrBiDirAssociation_4_1& table);

private:
    BiDirAssociationWrapper& _association;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_BIDIRECTIONAL_ASSOCIATION_IF_IMPL_H
