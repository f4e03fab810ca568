#include "ContWrapper.h"

#include <limits>
#include <sstream>

#include "MocWrapper.h"
#include "MrUtil.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

namespace {

/// The class names of a containment's ends are stated once, and never empty.
ZefReturnT setClassNameOnce(std::string& field, const std::string& name, const char* emptyMessage)
{
    if (name.empty()) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "%s", emptyMessage);
        return ZefInvalidArgument;
    }
    if (!field.empty()) {
        return ZefAlreadyExists;
    }
    field = name;
    return ZefOk;
}

/// The key of a linked class for a dump; nothing while it is unresolved.
std::string linkedMocKey(const ZefOamSpiMoc* moc)
{
    return moc != nullptr ? MocWrapper::getMocId(moc) : std::string();
}

/// The key of a linked containment for a dump; nothing while it is unlinked.
std::string linkedContKey(const ZefOamSpiContainment* cont)
{
    return cont != nullptr ? ContWrapper::getContId(cont) : std::string();
}

const char* boolWord(bool value)
{
    return value ? "true" : "false";
}

} // namespace

ContWrapper::ContWrapper(bool interMim)
    : GeneralPropertiesWrapper(_cont.generalProperties, &_cont.generalPropertiesHandle), _interMim(interMim)
{
    setInitialValues();
    _cont.mom = nullptr;
    _cont.parentMoc = nullptr;
    _cont.childMoc = nullptr;
    _cont.cardinality.min = 0;
    _cont.cardinality.max = std::numeric_limits<int16_t>::max();
    _cont.isSystemCreated = false;
    _cont.nextContainmentSameParentMoc = nullptr;
    _cont.nextContainmentSameChildMoc = nullptr;
    _cont.handle = 0;
    _cont.generalPropertiesHandle = 0;
}

ContWrapper::~ContWrapper()
{
    MrUtil::cleanGeneralPropertiesHlp(_cont.generalProperties);
}

std::string ContWrapper::getContId(const char* momName, const char* momVersion, const char* contName)
{
    static const char* const nullMessages[] = {"Couldn't get containment id, because momName is NULL",
                                               "Couldn't get containment id, because momVersion is NULL",
                                               "Couldn't get containment id, because contName is NULL"};
    static const char* const emptyMessages[] = {"Couldn't get containment id, because momName is empty",
                                                "Couldn't get containment id, because momVersion is empty",
                                                "Couldn't get containment id, because contName is empty"};
    bool isNull = false;
    const int missing = MrUtil::findMissingKeyPart({momName, momVersion, contName}, isNull);
    if (missing >= 0) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "%s", (isNull ? nullMessages : emptyMessages)[missing]);
        return std::string();
    }
    return MrUtil::joinKey({momName, momVersion, contName});
}

std::string ContWrapper::getContId(const ZefOamSpiContainment* cont)
{
    if (cont == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Couldn't get containment id, cont is NULL");
        return std::string();
    }
    if (cont->mom != nullptr) {
        return getContId(cont->mom->generalProperties.name, cont->mom->version, cont->generalProperties.name);
    }
    // Only a containment between two MOMs has no MOM of its own; the
    // registry files it under its parent's mim name, which after
    // compilation is the MOM of the resolved parent class.
    const ZefOamSpiMoc* parent = cont->parentMoc;
    const char* mimName = parent != nullptr && parent->mom != nullptr ? parent->mom->generalProperties.name : nullptr;
    if (mimName == nullptr || *mimName == '\0') {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Could not get mim name for child moc");
        return std::string();
    }
    const char* contName = cont->generalProperties.name;
    if (contName == nullptr || *contName == '\0') {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "%s",
                          contName == nullptr ? "Couldn't get containment id, because contName is NULL"
                                              : "Couldn't get containment id, because contName is empty");
        return std::string();
    }
    return MrUtil::joinKey({mimName, contName});
}

std::string ContWrapper::getId() const
{
    if (!_id.empty()) {
        return _id;
    }
    if (_interMim) {
        if (_cont.generalProperties.name != nullptr && *_cont.generalProperties.name != '\0') {
            _id = MrUtil::joinKey({_parentMimName.c_str(), _cont.generalProperties.name});
        }
    } else {
        _id = getContId(&_cont);
    }
    return _id;
}

ZefReturnT ContWrapper::setMom(const ZefOamSpiMom* mom)
{
    _cont.mom = mom;
    return ZefOk;
}

ZefReturnT ContWrapper::setParentMoc(const ZefOamSpiMoc* moc)
{
    _cont.parentMoc = moc;
    return ZefOk;
}

ZefReturnT ContWrapper::setChildMoc(const ZefOamSpiMoc* moc)
{
    _cont.childMoc = moc;
    return ZefOk;
}

ZefReturnT ContWrapper::setIsSystemCreated(bool isSystemCreated)
{
    _cont.isSystemCreated = isSystemCreated;
    return ZefOk;
}

ZefReturnT ContWrapper::setNextContainmentSameParentMoc(const ZefOamSpiContainment* next)
{
    _cont.nextContainmentSameParentMoc = next;
    return ZefOk;
}

ZefReturnT ContWrapper::setNextContainmentSameChildMoc(const ZefOamSpiContainment* next)
{
    _cont.nextContainmentSameChildMoc = next;
    return ZefOk;
}

ZefReturnT ContWrapper::setNextContainmentSameParentMoc(const ContWrapper* next)
{
    if (next == nullptr) {
        return ZefNotFound;
    }
    return setNextContainmentSameParentMoc(&next->_cont);
}

ZefReturnT ContWrapper::setNextContainmentSameChildMoc(const ContWrapper* next)
{
    if (next == nullptr) {
        return ZefNotFound;
    }
    return setNextContainmentSameChildMoc(&next->_cont);
}

ZefReturnT ContWrapper::setCanCreate(bool canCreate)
{
    _canCreate = canCreate;
    return ZefOk;
}

ZefReturnT ContWrapper::setCanDelete(bool canDelete)
{
    _canDelete = canDelete;
    return ZefOk;
}

ZefReturnT ContWrapper::setMin(const std::string& text)
{
    if (text.empty()) {
        _cont.cardinality.min = 0;
        return ZefOk;
    }
    short value = 0;
    const ZefReturnT result = MrUtil::toInt16(text, value);
    if (result != ZefOk) {
        return result;
    }
    _cont.cardinality.min = value;
    return ZefOk;
}

ZefReturnT ContWrapper::setMax(const std::string& text)
{
    if (text.empty()) {
        _cont.cardinality.max = std::numeric_limits<int16_t>::max();
        return ZefOk;
    }
    short value = 0;
    const ZefReturnT result = MrUtil::toInt16(text, value);
    if (result != ZefOk) {
        return result;
    }
    if (value < 0) {
        return ZefInvalidArgument;
    }
    _cont.cardinality.max = value;
    return ZefOk;
}

ZefReturnT ContWrapper::setParentMimName(const std::string& name)
{
    ZEF_TRACE("setParentMimName(%s)", name.c_str());
    _parentMimName = name;
    return ZefOk;
}

ZefReturnT ContWrapper::setParentMimVersion(const std::string& version)
{
    ZEF_TRACE("setParentMimVersion(%s)", version.c_str());
    _parentMimVersion = version;
    return ZefOk;
}

ZefReturnT ContWrapper::setChildMimName(const std::string& name)
{
    ZEF_TRACE("setChildMimName(%s)", name.c_str());
    _childMimName = name;
    return ZefOk;
}

ZefReturnT ContWrapper::setChildMimVersion(const std::string& version)
{
    ZEF_TRACE("setChildMimVersion(%s)", version.c_str());
    _childMimVersion = version;
    return ZefOk;
}

ZefReturnT ContWrapper::setParentMocName(const std::string& name)
{
    return setClassNameOnce(_parentMocName, name, "Parent moc name of the containment can not be empty.");
}

ZefReturnT ContWrapper::setChildMocName(const std::string& name)
{
    return setClassNameOnce(_childMocName, name, "Child moc name of the containment can not be empty.");
}

std::string ContWrapper::getParentMocId() const
{
    return MocWrapper::getMocId(_parentMimName.c_str(), _parentMimVersion.c_str(), _parentMocName.c_str());
}

std::string ContWrapper::getChildMocId() const
{
    return MocWrapper::getMocId(_childMimName.c_str(), _childMimVersion.c_str(), _childMocName.c_str());
}

bool ContWrapper::getCanCreate() const
{
    // A class the system creates may be created by the parent only when it
    // may not also be deleted there; stating both rights grants neither.
    const bool canCreate = _cont.isSystemCreated ? (_canCreate && !_canDelete) : _canCreate;
    ZEF_TRACE("canCreate %s", boolWord(canCreate));
    return canCreate;
}

bool ContWrapper::getCanDelete() const
{
    const bool canDelete = _cont.isSystemCreated ? (_canDelete && !_canCreate) : _canDelete;
    ZEF_TRACE("canDelete %s", boolWord(canDelete));
    return canDelete;
}

std::string ContWrapper::toString() const
{
    std::ostringstream out;
    out << MrUtil::headerToStringHlp(_interMim ? "InterMimContainment " : "Containment ",
                                     _cont.generalProperties.name, "")
        << MrUtil::generalPropertiesToStringHlp(_cont.generalProperties, "")
        << "ParentMoc:          " << linkedMocKey(_cont.parentMoc) << '\n'
        << "ChildMoc:           " << linkedMocKey(_cont.childMoc) << '\n'
        << "Min:               " << _cont.cardinality.min << '\n'
        << "Max:               " << _cont.cardinality.max << '\n'
        << "IsSystemCreated:   " << _cont.isSystemCreated << '\n'
        << "CanCreate:         " << getCanCreate() << '\n'
        << "CanDelete:         " << getCanDelete() << '\n'
        << "NextContSamePMoc:  " << linkedContKey(_cont.nextContainmentSameParentMoc) << '\n'
        << "NextContSameCMoc:  " << linkedContKey(_cont.nextContainmentSameChildMoc) << '\n';
    return out.str();
}

} // namespace ZefModelRepositoryService
