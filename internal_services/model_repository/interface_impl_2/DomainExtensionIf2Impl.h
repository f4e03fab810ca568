#ifndef ZEF_DOMAIN_EXTENSION_IF2_IMPL_H
#define ZEF_DOMAIN_EXTENSION_IF2_IMPL_H

#include <cstdint>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class DomainExtensionWrapper;
class GeneralPropertiesWrapper;

/// Query interface object of one domain extension of an element, reached
/// through the element's general properties.
class DomainExtensionIf2Impl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up domain extension [%s]";

    /// Registers `extension` (pushDomainExtension) and stores the handle in
    /// it. `owner` holds the extension in its list; both must outlive the object.
    DomainExtensionIf2Impl(DomainExtensionWrapper& extension, const GeneralPropertiesWrapper& owner);

    /// The object of `handle`; std::out_of_range when there is none.
    static const DomainExtensionIf2Impl& lookup(uint64_t handle);

    /// Texts of the extension. Always ZefOk.
    ZefReturnT getName(const char*& name) const;
    ZefReturnT getValue(const char*& value) const;
    ZefReturnT getDomain(const char*& domain) const;
    /// The next extension of the same element; ZefNotFound after the last.
    ZefReturnT getNext(uint64_t& next) const;

    /// Fill this kind's slots of the general properties table of each version.
    static void initInterface(ZefOamSpiMrGeneralProperties_3& table);
    static void initInterface(ZefOamSpiMrGeneralProperties_4& table);

private:
    DomainExtensionWrapper& _extension;
    const GeneralPropertiesWrapper& _owner;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_DOMAIN_EXTENSION_IF2_IMPL_H
