#include "MomIf2Impl.h"

#include "GeneralPropertiesIf2Impl.h"
#include "If2CBoundary.h"
#include "If2Links.h"
#include "If2Manager.h"
#include "MomWrapper.h"

namespace ZefModelRepositoryService {

namespace {

using Impl = MomIf2Impl;

// One copy of each C function per interface version V.

template <int V>
ZefReturnT zefMrIfMomGetGeneralProperties(uint64_t mom, uint64_t* generalProperties)
{
    return If2CBoundary::call<Impl>(mom, generalProperties, &Impl::getGeneralProperties);
}

template <int V>
ZefReturnT zefMrIfMomGetRootMoc(uint64_t mom, uint64_t* moc)
{
    return If2CBoundary::callAs<Impl>(Impl::kRootLookupFailureText, mom, moc, &Impl::getRootMoc);
}

template <int V>
ZefReturnT zefMrIfMomGetVersion(uint64_t mom, const char** version)
{
    return If2CBoundary::call<Impl>(mom, version, &Impl::getVersion);
}

template <int V>
ZefReturnT zefMrIfMomGetCorrection(uint64_t mom, const char** correction)
{
    return If2CBoundary::call<Impl>(mom, correction, &Impl::getCorrection);
}

template <int V>
ZefReturnT zefMrIfMomGetRelease(uint64_t mom, const char** release)
{
    return If2CBoundary::call<Impl>(mom, release, &Impl::getRelease);
}

template <int V>
ZefReturnT zefMrIfMomGetNamespaceUri(uint64_t mom, const char** namespaceUri)
{
    return If2CBoundary::call<Impl>(mom, namespaceUri, &Impl::getNamespaceUri);
}

template <int V>
ZefReturnT zefMrIfMomGetNamespacePrefix(uint64_t mom, const char** namespacePrefix)
{
    return If2CBoundary::call<Impl>(mom, namespacePrefix, &Impl::getNamespacePrefix);
}

template <int V>
ZefReturnT zefMrIfMomGetDocNo(uint64_t mom, const char** docNo)
{
    return If2CBoundary::call<Impl>(mom, docNo, &Impl::getDocNo);
}

template <int V>
ZefReturnT zefMrIfMomGetRevision(uint64_t mom, const char** revision)
{
    return If2CBoundary::call<Impl>(mom, revision, &Impl::getRevision);
}

template <int V>
ZefReturnT zefMrIfMomGetAuthor(uint64_t mom, const char** author)
{
    return If2CBoundary::call<Impl>(mom, author, &Impl::getAuthor);
}

template <int V>
ZefReturnT zefMrIfMomGetOrganization(uint64_t mom, const char** organization)
{
    return If2CBoundary::call<Impl>(mom, organization, &Impl::getOrganization);
}

template <int V>
ZefReturnT zefMrIfMomGetNext(uint64_t mom, uint64_t* next)
{
    return If2CBoundary::call<Impl>(mom, next, &Impl::getNext);
}

template <int V>
ZefReturnT zefMrIfMomGetModelFeatures(uint64_t mom, const char* const** features)
{
    return If2CBoundary::call<Impl>(mom, features, &Impl::getModelFeatures);
}

} // namespace

MomIf2Impl::MomIf2Impl(MomWrapper& mom) : _mom(mom)
{
    If2Manager::instance().pushMom(this);
    _mom.setHandle(getHandle());
    GeneralPropertiesIf2Impl::registerFor(_mom);
}

const MomIf2Impl& MomIf2Impl::lookup(uint64_t handle)
{
    return If2Manager::instance().getMom(handle);
}

ZefReturnT MomIf2Impl::getGeneralProperties(uint64_t& generalProperties) const
{
    return If2Links::registeredHandle(_mom.getGeneralPropertiesHandle(), generalProperties);
}

ZefReturnT MomIf2Impl::getRootMoc(uint64_t& moc) const
{
    return If2Links::handleOf(_mom.getStruct().rootMoc, moc);
}

ZefReturnT MomIf2Impl::getVersion(const char*& version) const
{
    return If2Links::text(_mom.getStruct().version, version);
}

ZefReturnT MomIf2Impl::getCorrection(const char*& correction) const
{
    // Not part of the published record: the record class keeps it beside.
    return If2Links::text(_mom.getCorrection(), correction);
}

ZefReturnT MomIf2Impl::getRelease(const char*& release) const
{
    return If2Links::text(_mom.getStruct().release, release);
}

ZefReturnT MomIf2Impl::getNamespaceUri(const char*& namespaceUri) const
{
    return If2Links::text(_mom.getStruct().namespaceURI, namespaceUri);
}

ZefReturnT MomIf2Impl::getNamespacePrefix(const char*& namespacePrefix) const
{
    return If2Links::text(_mom.getStruct().namespacePrefix, namespacePrefix);
}

ZefReturnT MomIf2Impl::getDocNo(const char*& docNo) const
{
    return If2Links::text(_mom.getStruct().docNo, docNo);
}

ZefReturnT MomIf2Impl::getRevision(const char*& revision) const
{
    return If2Links::text(_mom.getStruct().revision, revision);
}

ZefReturnT MomIf2Impl::getAuthor(const char*& author) const
{
    return If2Links::text(_mom.getStruct().author, author);
}

ZefReturnT MomIf2Impl::getOrganization(const char*& organization) const
{
    return If2Links::text(_mom.getStruct().organization, organization);
}

ZefReturnT MomIf2Impl::getNext(uint64_t& mom) const
{
    return If2Links::handleOf(_mom.getStruct().next, mom);
}

ZefReturnT MomIf2Impl::getModelFeatures(const char* const*& features) const
{
    // The record hands out a copy of its list; keep it alive here for the caller.
    _features = _mom.getModelFeatures();
    _featureTexts.clear();
    for (const std::string& feature : _features) {
        _featureTexts.push_back(feature.c_str());
    }
    _featureTexts.push_back(nullptr);
    features = _featureTexts.data();
    return ZefOk;
}

void MomIf2Impl::initInterface(ZefOamSpiMom_2& table)
{
    table.getGeneralProperties = &zefMrIfMomGetGeneralProperties<2>;
    table.getRootMoc = &zefMrIfMomGetRootMoc<2>;
    table.getVersion = &zefMrIfMomGetVersion<2>;
    table.getCorrection = &zefMrIfMomGetCorrection<2>;
    table.getRelease = &zefMrIfMomGetRelease<2>;
    table.getNamespaceUri = &zefMrIfMomGetNamespaceUri<2>;
    table.getNamespacePrefix = &zefMrIfMomGetNamespacePrefix<2>;
    table.getDocNo = &zefMrIfMomGetDocNo<2>;
    table.getRevision = &zefMrIfMomGetRevision<2>;
    table.getAuthor = &zefMrIfMomGetAuthor<2>;
    table.getOrganization = &zefMrIfMomGetOrganization<2>;
    table.getNext = &zefMrIfMomGetNext<2>;
    table.getModelFeatures = &zefMrIfMomGetModelFeatures<2>;
}

void MomIf2Impl::initInterface(ZefOamSpiMrMom_3& table)
{
    table.getGeneralProperties = &zefMrIfMomGetGeneralProperties<3>;
    table.getRootMoc = &zefMrIfMomGetRootMoc<3>;
    table.getVersion = &zefMrIfMomGetVersion<3>;
    table.getCorrection = &zefMrIfMomGetCorrection<3>;
    table.getRelease = &zefMrIfMomGetRelease<3>;
    table.getNamespaceUri = &zefMrIfMomGetNamespaceUri<3>;
    table.getNamespacePrefix = &zefMrIfMomGetNamespacePrefix<3>;
    table.getDocNo = &zefMrIfMomGetDocNo<3>;
    table.getRevision = &zefMrIfMomGetRevision<3>;
    table.getAuthor = &zefMrIfMomGetAuthor<3>;
    table.getOrganization = &zefMrIfMomGetOrganization<3>;
    table.getNext = &zefMrIfMomGetNext<3>;
    table.getModelFeatures = &zefMrIfMomGetModelFeatures<3>;
}

void MomIf2Impl::initInterface(ZefOamSpiMrMom_4& table)
{
    table.getGeneralProperties = &zefMrIfMomGetGeneralProperties<4>;
    table.getRootMoc = &zefMrIfMomGetRootMoc<4>;
    table.getVersion = &zefMrIfMomGetVersion<4>;
    table.getCorrection = &zefMrIfMomGetCorrection<4>;
    table.getRelease = &zefMrIfMomGetRelease<4>;
    table.getNamespaceUri = &zefMrIfMomGetNamespaceUri<4>;
    table.getNamespacePrefix = &zefMrIfMomGetNamespacePrefix<4>;
    table.getDocNo = &zefMrIfMomGetDocNo<4>;
    table.getRevision = &zefMrIfMomGetRevision<4>;
    table.getAuthor = &zefMrIfMomGetAuthor<4>;
    table.getOrganization = &zefMrIfMomGetOrganization<4>;
    table.getNext = &zefMrIfMomGetNext<4>;
    table.getModelFeatures = &zefMrIfMomGetModelFeatures<4>;
}

} // namespace ZefModelRepositoryService
