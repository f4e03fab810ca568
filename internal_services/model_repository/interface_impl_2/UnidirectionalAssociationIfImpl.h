#ifndef ZEF_UNIDIRECTIONAL_ASSOCIATION_IF_IMPL_H
#define ZEF_UNIDIRECTIONAL_ASSOCIATION_IF_IMPL_H

#include <cstdint>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefOamSpiModelRepository_4_1.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class UniDirAssociationWrapper;

/// Query interface object of one unidirectional association.
///
/// Link getters answer ZefNotFound, with the out value unchanged, when there
/// is no such record; value getters copy a field and never fail.
class UnidirectionalAssociationIfImpl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up Unidirectional Association [%s]";
    /// An association looked up for its external flag.
    static constexpr const char* kIsExternalLookupFailureText = "Failed to look up Association isExternal [%s]";

    /// Registers the association (pushUnidirectionalAssociation) and its
    /// general properties and stores both handles in the record. `record`
    /// must outlive the object.
    explicit UnidirectionalAssociationIfImpl(UniDirAssociationWrapper& record);

    /// The object of `handle`; std::out_of_range when there is none.
    static const UnidirectionalAssociationIfImpl& lookup(uint64_t handle);

    ZefReturnT getGeneralProperties(uint64_t& generalProperties) const;
    ZefReturnT getMom(uint64_t& mom) const;
    ZefReturnT getAssociationEnd(uint64_t& associationEnd) const;
    /// The association listed after this one with its origin class, in
    /// handle order; ZefNotFound after the last one or without origin class.
    ZefReturnT getNextUnidirectionalAssociationSameMoc(uint64_t& next) const;
    ZefReturnT getIsExternal(bool& isExternal) const;

    /// Fill this kind's slots of the tables of each version.
    static void initInterface(ZefOamSpiMrUniDirAssociation_4& table);
    static void initInterface(ZefOamSpiMrUniDirAssociation_4_1& table);

private:
    UniDirAssociationWrapper& _association;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_UNIDIRECTIONAL_ASSOCIATION_IF_IMPL_H
