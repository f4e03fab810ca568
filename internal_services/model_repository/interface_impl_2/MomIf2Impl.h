#ifndef ZEF_MOM_IF2_IMPL_H
#define ZEF_MOM_IF2_IMPL_H

#include <cstdint>
#include <string>
#include <vector>

#include "BaseIf2Impl.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class MomWrapper;

/// Query interface object of one MOM.
class MomIf2Impl final : public BaseIf2Impl {
public:
    static constexpr const char* kLookupFailureText = "Failed to look up MOM [%s]";
    /// A MOM looked up to find its root class.
    static constexpr const char* kRootLookupFailureText = "Failed to look up Root MOM [%s]";

    /// Registers the MOM (pushMom) and its general properties and stores
    /// both handles in the record. `mom` must outlive the object.
    explicit MomIf2Impl(MomWrapper& mom);

    /// The object of `handle`; std::out_of_range when there is none.
    static const MomIf2Impl& lookup(uint64_t handle);

    /// Link getters: ZefNotFound (out untouched) when there is no such record.
    ZefReturnT getGeneralProperties(uint64_t& generalProperties) const;
    ZefReturnT getRootMoc(uint64_t& moc) const;
    /// Texts of the record; null when not set. Always ZefOk.
    ZefReturnT getVersion(const char*& version) const;
    ZefReturnT getCorrection(const char*& correction) const;
    ZefReturnT getRelease(const char*& release) const;
    ZefReturnT getNamespaceUri(const char*& namespaceUri) const;
    ZefReturnT getNamespacePrefix(const char*& namespacePrefix) const;
    ZefReturnT getDocNo(const char*& docNo) const;
    ZefReturnT getRevision(const char*& revision) const;
    ZefReturnT getAuthor(const char*& author) const;
    ZefReturnT getOrganization(const char*& organization) const;
    /// The next MOM of the model; ZefNotFound after the last.
    ZefReturnT getNext(uint64_t& mom) const;
    /// The model feature names, null-terminated, valid until the next call
    /// for this MOM. Always ZefOk.
    ZefReturnT getModelFeatures(const char* const*& features) const;

    /// Fill the MOM table of each version.
    static void initInterface(ZefOamSpiMom_2& table);
    static void initInterface(ZefOamSpiMrMom_3& table);
    static void initInterface(ZefOamSpiMrMom_4& table);

private:
    MomWrapper& _mom;
    mutable std::vector<std::string> _features;
    mutable std::vector<const char*> _featureTexts;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_MOM_IF2_IMPL_H
