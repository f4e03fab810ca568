#ifndef ZEF_GENERAL_PROPERTIES_IF2_IMPL_H
#define ZEF_GENERAL_PROPERTIES_IF2_IMPL_H

#include <cstdint>
#include <memory>
#include <vector>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class GeneralPropertiesWrapper;

/// Query interface object of the general properties of one element, and
/// the way to its domain extensions.
class GeneralPropertiesIf2Impl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up general properties [%s]";

    /// Registers the general properties of an element (pushGeneralProperties),
    /// stores the handle in `gp` (and so in the element's record) and
    /// registers each of its domain extensions. `gp` must outlive the object.
    explicit GeneralPropertiesIf2Impl(GeneralPropertiesWrapper& gp);

    /// Registers the general properties of an element and returns the handle.
    static uint64_t registerFor(GeneralPropertiesWrapper& gp);
    /// The object of `handle`; std::out_of_range when there is none.
    static const GeneralPropertiesIf2Impl& lookup(uint64_t handle);

    /// Texts of the record; null when not set. Always ZefOk.
    ZefReturnT getName(const char*& name) const;
    ZefReturnT getDescription(const char*& description) const;
    ZefReturnT getSpecification(const char*& specification) const;
    ZefReturnT getHidden(const char*& hidden) const;
    /// The status code (1 current, 2 deprecated, 3 obsolete). Always ZefOk.
    ZefReturnT getStatus(ZefOamSpiStatus_2& status) const;
    /// The status as text ("CURRENT" unless the model said otherwise). Always ZefOk.
    ZefReturnT getStatus(const char*& status) const;
    /// The value of the first extension named `name` in `domain`:
    /// ZefInvalidArgument for a null domain or name, ZefNotFound when the
    /// element has no such extension.
    ZefReturnT getDomainExtention(const char* domain, const char* name, const char*& value) const;
    /// The handles of all domain extensions in model order, 0-terminated;
    /// the array stays valid until the next call for this element. ZefOk.
    ZefReturnT getDomainExtensions(const uint64_t*& handles) const;

    /// Fill this kind's slots of the general properties table of each version.
    static void initInterface(ZefOamSpiGeneralProperties_2& table);
    static void initInterface(ZefOamSpiMrGeneralProperties_3& table);
    static void initInterface(ZefOamSpiMrGeneralProperties_4& table);

private:
    GeneralPropertiesWrapper& _gp;
    mutable std::unique_ptr<std::vector<uint64_t>> _domainExtensionHandles;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_GENERAL_PROPERTIES_IF2_IMPL_H
