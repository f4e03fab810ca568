#ifndef ZEF_MOC_IF2_IMPL_H
#define ZEF_MOC_IF2_IMPL_H

#include <cstdint>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class MocWrapper;

/// Query interface object of one class.
///
/// Link getters hand out the handle of a related record read from the
/// class's published record (its MOM, first attribute, first action, first
/// containment as parent or as child) or from its lists (first association):
/// ZefNotFound, with the out value unchanged, when there is none. Value
/// getters copy a field and never fail; texts point into the record.
class MocIf2Impl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up moc [%s]";

    /// Registers the class (pushMoc) and its general properties and stores
    /// both handles in the record. `moc` must outlive the object.
    explicit MocIf2Impl(MocWrapper& moc);

    /// The object of `handle`; std::out_of_range when there is none.
    static const MocIf2Impl& lookup(uint64_t handle);

    ZefReturnT getGeneralProperties(uint64_t& generalProperties) const;
    ZefReturnT getMom(uint64_t& mom) const;
    ZefReturnT getAttribute(uint64_t& attribute) const;
    ZefReturnT getAction(uint64_t& action) const;
    /// The first containment in which this class is the parent.
    ZefReturnT getChildContainment(uint64_t& containment) const;
    /// The first containment in which this class is the child.
    ZefReturnT getParentContainment(uint64_t& containment) const;
    ZefReturnT getFirstBiDirAssociation(uint64_t& association) const;
    ZefReturnT getFirstUniDirAssociation(uint64_t& association) const;
    ZefReturnT getIsReadOnly(bool& isReadOnly) const;
    ZefReturnT getIsRoot(bool& isRoot) const;
    ZefReturnT getIsSystemCreated(bool& isSystemCreated) const;
    ZefReturnT getConstraint(const char*& constraint) const;

    /// The record behind the object (for getters of related kinds).
    const MocWrapper& getMocWrapper() const { return _moc; }

    /// Fill the class table of each version.
    static void initInterface(ZefOamSpiMoc_2& table);
    static void initInterface(ZefOamSpiMrMoc_3& table);
    static void initInterface(ZefOamSpiMrMoc_4& table);

private:
    MocWrapper& _moc;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_MOC_IF2_IMPL_H
