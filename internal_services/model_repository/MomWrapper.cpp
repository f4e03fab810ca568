#include "MomWrapper.h"

#include <sstream>

#include "MocWrapper.h"
#include "MrUtil.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

namespace {

/// A first-value-wins string field that accepts the empty text.
ZefReturnT setOnce(char*& field, const std::string& text)
{
    if (field != nullptr) {
        return ZefAlreadyExists;
    }
    field = MrUtil::toChar(text);
    return ZefOk;
}

} // namespace

MomWrapper::MomWrapper() : GeneralPropertiesWrapper(_mom.generalProperties, &_mom.generalPropertiesHandle)
{
    setInitialValues();
    _mom.version = nullptr;
    _mom.release = nullptr;
    _mom.namespaceURI = nullptr;
    _mom.namespacePrefix = nullptr;
    _mom.rootMoc = nullptr;
    _mom.docNo = nullptr;
    _mom.revision = nullptr;
    _mom.author = nullptr;
    _mom.organization = nullptr;
    _mom.next = nullptr;
    _mom.handle = 0;
    _mom.generalPropertiesHandle = 0;
}

MomWrapper::~MomWrapper()
{
    MrUtil::cleanGeneralPropertiesHlp(_mom.generalProperties);
    MrUtil::freeString(_mom.version);
    MrUtil::freeString(_mom.release);
    MrUtil::freeString(_mom.namespaceURI);
    MrUtil::freeString(_mom.namespacePrefix);
    MrUtil::freeString(_mom.docNo);
    MrUtil::freeString(_mom.revision);
    MrUtil::freeString(_mom.author);
    MrUtil::freeString(_mom.organization);
    MrUtil::freeString(_correction);
}

std::string MomWrapper::getMomId(const char* momName, const char* momVersion)
{
    static const char* const nullMessages[] = {"Couldn't get mom id, mom name is NULL",
                                               "Couldn't get mom id, mom version is NULL"};
    static const char* const emptyMessages[] = {"Couldn't get mom id, mom name isn't set",
                                                "Couldn't get mom id, mom version isn't set"};
    bool isNull = false;
    const int missing = MrUtil::findMissingKeyPart({momName, momVersion}, isNull);
    if (missing >= 0) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "%s", (isNull ? nullMessages : emptyMessages)[missing]);
        return std::string();
    }
    return MrUtil::joinKey({momName, momVersion});
}

std::string MomWrapper::getMomId(const ZefOamSpiMom* mom)
{
    if (mom == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Couldn't get mom id, mom is NULL");
        return std::string();
    }
    return getMomId(mom->generalProperties.name, mom->version);
}

std::string MomWrapper::getId() const
{
    if (_id.empty()) {
        _id = getMomId(&_mom);
    }
    return _id;
}

ZefReturnT MomWrapper::setVersion(const std::string& version)
{
    if (_mom.version != nullptr) {
        return ZefAlreadyExists;
    }
    if (version.empty()) {
        ZEF_LOG_ERROR("MOM version can not be empty, must be set.");
        return ZefInvalidArgument;
    }
    _mom.version = MrUtil::toChar(version);
    return ZefOk;
}

ZefReturnT MomWrapper::setCorrection(const std::string& correction)
{
    if (_correction != nullptr) {
        return ZefAlreadyExists;
    }
    if (correction.empty()) {
        ZEF_LOG_ERROR("MOM correction can not be empty, must be set.");
        return ZefInvalidArgument;
    }
    _correction = MrUtil::toChar(correction);
    ZEF_TRACE("value of correction in setcorrection is %s", _correction);
    return ZefOk;
}

ZefReturnT MomWrapper::setRelease(const std::string& release) { return setOnce(_mom.release, release); }
ZefReturnT MomWrapper::setNamespaceURI(const std::string& uri) { return setOnce(_mom.namespaceURI, uri); }
ZefReturnT MomWrapper::setNamespacePrefix(const std::string& prefix) { return setOnce(_mom.namespacePrefix, prefix); }
ZefReturnT MomWrapper::setDocNo(const std::string& docNo) { return setOnce(_mom.docNo, docNo); }
ZefReturnT MomWrapper::setRevision(const std::string& revision) { return setOnce(_mom.revision, revision); }
ZefReturnT MomWrapper::setAuthor(const std::string& author) { return setOnce(_mom.author, author); }
ZefReturnT MomWrapper::setOrganization(const std::string& organization)
{
    return setOnce(_mom.organization, organization);
}

std::string MomWrapper::getVersion() const
{
    return MrUtil::str(_mom.version);
}

ZefReturnT MomWrapper::setRootMoc(const ZefOamSpiMoc* rootMoc)
{
    _mom.rootMoc = rootMoc;
    return ZefOk;
}

ZefReturnT MomWrapper::setNext(const ZefOamSpiMom* next)
{
    _mom.next = next;
    return ZefOk;
}

ZefReturnT MomWrapper::setNext(MomWrapper* next)
{
    _next = next;
    _mom.next = next != nullptr ? &next->_mom : nullptr;
    return ZefOk;
}

std::string MomWrapper::getRootMocId() const
{
    if (_mom.rootMoc == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Root MOC is not set for '%s' MOM.", getName().c_str());
        return std::string();
    }
    if (_mom.rootMoc->mom == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "RootMoc mom is not set for '%s' MOM.", getName().c_str());
        return std::string();
    }
    return MocWrapper::getMocId(_mom.rootMoc);
}

std::string MomWrapper::getNextId() const
{
    if (_mom.next == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Next MOM is not set for '%s' MOM.", getName().c_str());
        return std::string();
    }
    return getMomId(_mom.next);
}

std::string MomWrapper::toString() const
{
    const ZefOamSpiGeneralProperties& gp = _mom.generalProperties;
    std::ostringstream out;
    out << "-- Mom (" << MrUtil::str(gp.name) << ") --\n"
        << "name:              " << MrUtil::str(gp.name) << '\n'
        << "description:       " << MrUtil::str(gp.description) << '\n'
        << "specification:     " << MrUtil::str(gp.specification) << '\n'
        << "status:            " << static_cast<int>(gp.status) << '\n'
        << "hidden:            " << MrUtil::str(gp.hidden) << '\n'
        << "version:           " << MrUtil::str(_mom.version) << '\n'
        << "release:           " << MrUtil::str(_mom.release) << '\n'
        << "correction:        " << MrUtil::str(_correction) << '\n'
        << "namespaceURI:      " << MrUtil::str(_mom.namespaceURI) << '\n'
        << "namespacePrefix:   " << MrUtil::str(_mom.namespacePrefix) << '\n'
        << "docNo:             " << MrUtil::str(_mom.docNo) << '\n'
        << "revision:          " << MrUtil::str(_mom.revision) << '\n'
        << "author:            " << MrUtil::str(_mom.author) << '\n'
        << "organization:      " << MrUtil::str(_mom.organization) << '\n'
        // A missing root or next MOM is a normal state for a dump, not a
        // failure to report: print nothing instead of asking for a key.
        << "Moc:               " << (_mom.rootMoc != nullptr ? getRootMocId() : std::string()) << '\n'
        << "Next:              " << (_mom.next != nullptr ? getNextId() : std::string()) << '\n';
    return out.str();
}

} // namespace ZefModelRepositoryService
