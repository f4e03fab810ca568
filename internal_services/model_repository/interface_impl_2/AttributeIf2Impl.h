#ifndef ZEF_ATTRIBUTE_IF2_IMPL_H
#define ZEF_ATTRIBUTE_IF2_IMPL_H

#include <cstdint>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class AttrWrapper;

/// Query interface object of one attribute of a class.
///
/// Link getters answer ZefNotFound, with the out value unchanged, when there
/// is no such record; value getters copy a field and never fail.
class AttributeIf2Impl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up Attribute [%s]";

    /// Registers the attribute (pushAttribute), its general properties and
    /// its type container and stores the handles in the records. `attr`
    /// must outlive the object.
    explicit AttributeIf2Impl(AttrWrapper& attr);

    /// The object of `handle`; std::out_of_range when there is none.
    static const AttributeIf2Impl& lookup(uint64_t handle);

    ZefReturnT getGeneralProperties(uint64_t& generalProperties) const;
    ZefReturnT getMoc(uint64_t& moc) const;
    ZefReturnT getTypeContainer(uint64_t& typeContainer) const;
    /// The next attribute of the same class; ZefNotFound after the last.
    ZefReturnT getNext(uint64_t& next) const;
    ZefReturnT getIsKey(bool& isKey) const;
    ZefReturnT getIsMandatory(bool& isMandatory) const;
    ZefReturnT getIsPersistent(bool& isPersistent) const;
    ZefReturnT getIsReadOnly(bool& isReadOnly) const;
    ZefReturnT getIsRestricted(bool& isRestricted) const;
    ZefReturnT getIsNotifiable(bool& isNotifiable) const;
    ZefReturnT getUnit(const char*& unit) const;

    /// Fill the attribute table of each version.
    static void initInterface(ZefOamSpiAttribute_2& table);
    static void initInterface(ZefOamSpiMrAttribute_3& table);
    static void initInterface(ZefOamSpiMrAttribute_4& table);

private:
    AttrWrapper& _attr;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_ATTRIBUTE_IF2_IMPL_H
