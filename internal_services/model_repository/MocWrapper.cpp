#include "MocWrapper.h"

#include <algorithm>

#include "AttrWrapper.h"
#include "BiDirAssociationWrapper.h"
#include "ContWrapper.h"
#include "MoActionWrapper.h"
#include "MomWrapper.h"
#include "MrUtil.h"
#include "UniDirAssociationWrapper.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

namespace {

/// Appends a member (attribute or action) to a class's list and to the
/// chain of published records: the first member becomes `first`, later
/// ones are linked behind the last. Duplicate keys are refused; `keys`
/// indexes the keys of the list.
template <typename Member, typename Record>
ZefReturnT appendToChain(std::vector<Member*>& list, KeyHashIndex& keys, Member* member, const Record*& first)
{
    if (member == nullptr) {
        return ZefNotFound;
    }
    const std::string key = member->getId();
    if (key.empty()) {
        return ZefInvalidArgument;
    }
    const std::size_t hash = KeyHashIndex::hashOf(key);
    if (list.empty()) {
        list.push_back(member);
        keys.add(hash);
        first = &member->getStruct();
        return ZefOk;
    }
    if (keys.contains(list, key, hash)) {
        return ZefAlreadyExists;
    }
    list.back()->setNext(member);
    list.push_back(member);
    keys.add(hash);
    return ZefOk;
}

/// Lists an association without a duplicate check.
template <typename Assoc>
ZefReturnT appendAssociation(std::vector<Assoc*>& list, Assoc* assoc)
{
    if (assoc == nullptr) {
        return ZefNotFound;
    }
    if (assoc->getId().empty()) {
        return ZefInvalidArgument;
    }
    list.push_back(assoc);
    return ZefOk;
}

template <typename Assoc>
uint64_t firstHandle(const std::vector<Assoc*>& list)
{
    return list.empty() ? 0 : list.front()->getHandle();
}

template <typename Assoc>
uint64_t nextHandle(const std::vector<Assoc*>& list, uint64_t handle)
{
    for (size_t i = 0; i < list.size(); ++i) {
        if (list[i]->getHandle() == handle) {
            return i + 1 < list.size() ? list[i + 1]->getHandle() : 0;
        }
    }
    return 0;
}

} // namespace

MocWrapper::MocWrapper() : GeneralPropertiesWrapper(_moc.generalProperties, &_moc.generalPropertiesHandle)
{
    setInitialValues();
    _moc.mom = nullptr;
    _moc.isReadOnly = false;
    _moc.isRoot = false;
    _moc.constraint = nullptr;
    _moc.moAttribute = nullptr;
    _moc.moAction = nullptr;
    _moc.childContainment = nullptr;
    _moc.parentContainment = nullptr;
    _moc.handle = 0;
    _moc.generalPropertiesHandle = 0;
}

MocWrapper::~MocWrapper()
{
    MrUtil::cleanGeneralPropertiesHlp(_moc.generalProperties);
    MrUtil::freeString(_moc.constraint);
}

std::string MocWrapper::getMocId(const char* momName, const char* momVersion, const char* mocName)
{
    static const char* const nullMessages[] = {"Couldn't get moc id, mom name is NULL",
                                               "Couldn't get moc id, mom version is NULL",
                                               "Couldn't get moc id, moc name is NULL"};
    static const char* const emptyMessages[] = {"Couldn't get moc id, mom name isn't set",
                                                "Couldn't get moc id, mom version isn't set",
                                                "Couldn't get moc id, moc name isn't set"};
    bool isNull = false;
    const int missing = MrUtil::findMissingKeyPart({momName, momVersion, mocName}, isNull);
    if (missing >= 0) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "%s", (isNull ? nullMessages : emptyMessages)[missing]);
        return std::string();
    }
    return MrUtil::joinKey({momName, momVersion, mocName});
}

std::string MocWrapper::getMocId(const ZefOamSpiMoc* moc)
{
    if (moc == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Couldn't get moc id, moc is NULL");
        return std::string();
    }
    if (moc->mom == nullptr) {
        if (moc->generalProperties.name != nullptr) {
            ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Couldn't get moc id, mom is NULL. moc name '%s'",
                              moc->generalProperties.name);
        } else {
            ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Couldn't get moc id, mom is NULL. moc has no name.");
        }
        return std::string();
    }
    return getMocId(moc->mom->generalProperties.name, moc->mom->version, moc->generalProperties.name);
}

std::string MocWrapper::getId() const
{
    if (_id.empty()) {
        _id = getMocId(&_moc);
    }
    return _id;
}

ZefReturnT MocWrapper::setMom(const ZefOamSpiMom* mom)
{
    _moc.mom = mom;
    return ZefOk;
}

ZefReturnT MocWrapper::setIsReadOnly(bool isReadOnly)
{
    _moc.isReadOnly = isReadOnly;
    return ZefOk;
}

ZefReturnT MocWrapper::setIsRoot(bool isRoot)
{
    _moc.isRoot = isRoot;
    return ZefOk;
}

ZefReturnT MocWrapper::setIsSystemCreated()
{
    _isSystemCreated = true;
    return ZefOk;
}

ZefReturnT MocWrapper::setMoAttribute(const ZefOamSpiMoAttribute* attr)
{
    _moc.moAttribute = attr;
    return ZefOk;
}

ZefReturnT MocWrapper::setChildContainment(const ZefOamSpiContainment* cont)
{
    _moc.childContainment = cont;
    return ZefOk;
}

ZefReturnT MocWrapper::setParentContainment(const ZefOamSpiContainment* cont)
{
    _moc.parentContainment = cont;
    return ZefOk;
}

ZefReturnT MocWrapper::setConstraint(const std::string& constraint)
{
    if (_moc.constraint != nullptr) {
        return ZefAlreadyExists;
    }
    _moc.constraint = MrUtil::toChar(constraint);
    return ZefOk;
}

ZefReturnT MocWrapper::setValidationRulesConstraint(const std::string& constraint)
{
    MrUtil::freeString(_moc.constraint);
    _moc.constraint = MrUtil::toChar(constraint);
    _hasValidationRulesConstraint = true;
    return ZefOk;
}

ZefReturnT MocWrapper::addAttr(AttrWrapper* attr)
{
    return appendToChain(_attrs, _attrKeys, attr, _moc.moAttribute);
}

ZefReturnT MocWrapper::addMoAction(MoActionWrapper* action)
{
    return appendToChain(_actions, _actionKeys, action, _moc.moAction);
}

const AttrWrapper* MocWrapper::findAttr(const std::string& key) const
{
    const std::size_t at = _attrKeys.positionOf(_attrs, key, KeyHashIndex::hashOf(key));
    return at == KeyHashIndex::kNone ? nullptr : _attrs[at];
}

const MoActionWrapper* MocWrapper::findMoAction(const std::string& key) const
{
    const std::size_t at = _actionKeys.positionOf(_actions, key, KeyHashIndex::hashOf(key));
    return at == KeyHashIndex::kNone ? nullptr : _actions[at];
}

ZefReturnT MocWrapper::addBiDirWrapper(BiDirAssociationWrapper* assoc)
{
    return appendAssociation(_biDirs, assoc);
}

ZefReturnT MocWrapper::addUniDirWrapper(UniDirAssociationWrapper* assoc)
{
    return appendAssociation(_uniDirs, assoc);
}

uint64_t MocWrapper::getFirstBiDirHandle() const { return firstHandle(_biDirs); }
uint64_t MocWrapper::getNextBiDirHandle(uint64_t handle) const { return nextHandle(_biDirs, handle); }
uint64_t MocWrapper::getFirstUniDirHandle() const { return firstHandle(_uniDirs); }
uint64_t MocWrapper::getNextUniDirHandle(uint64_t handle) const { return nextHandle(_uniDirs, handle); }

bool MocWrapper::sortOnHandles(const BiDirAssociationWrapper* a, const BiDirAssociationWrapper* b)
{
    return a->getHandle() < b->getHandle();
}

bool MocWrapper::sortOnUniDirHandles(const UniDirAssociationWrapper* a, const UniDirAssociationWrapper* b)
{
    return a->getHandle() < b->getHandle();
}

void MocWrapper::sortBiDirAssociationWrappers()
{
    std::stable_sort(_biDirs.begin(), _biDirs.end(), sortOnHandles);
}

void MocWrapper::sortUniDirAssociationWrappers()
{
    std::stable_sort(_uniDirs.begin(), _uniDirs.end(), sortOnUniDirHandles);
}

std::string MocWrapper::getMomId() const
{
    return MomWrapper::getMomId(_moc.mom);
}

std::string MocWrapper::getChildContId() const
{
    return ContWrapper::getContId(_moc.childContainment);
}

std::string MocWrapper::getParentContId() const
{
    return ContWrapper::getContId(_moc.parentContainment);
}

std::string MocWrapper::toString() const
{
    // Built by appending rather than through a stream: the model dump at
    // trace level writes every class with all its attributes.
    std::string out;
    // About what a class and its attributes take in a dump.
    out.reserve(1024 + 1024 * _attrs.size());
    out += "-- Moc (";
    out += MrUtil::str(_moc.generalProperties.name);
    out += ")--\n";
    const std::string noIndent;
    MrUtil::appendGeneralPropertiesHlp(out, _moc.generalProperties, noIndent);
    MrUtil::appendDumpLineHlp(out, noIndent, "IsReadOnly:        ", static_cast<long long>(_moc.isReadOnly));
    MrUtil::appendDumpLineHlp(out, noIndent, "Mom:               ", _moc.mom != nullptr ? getMomId() : std::string());
    MrUtil::appendDumpLineHlp(out, noIndent, "IsRoot:            ", static_cast<long long>(_moc.isRoot));
    MrUtil::appendDumpLineHlp(out, noIndent, "Constraint:        ", _moc.constraint);
    if (_moc.childContainment != nullptr) {
        MrUtil::appendDumpLineHlp(out, noIndent, "ChildContainment:  ", getChildContId());
    } else {
        out += "ChildContainment:  null\n";
    }
    if (_moc.parentContainment != nullptr) {
        MrUtil::appendDumpLineHlp(out, noIndent, "ParentContainment: ", getParentContId());
    } else {
        out += "parentContainment: null\n";
    }
    for (const AttrWrapper* attr : _attrs) {
        attr->appendTo(out);
    }
    return out;
}

} // namespace ZefModelRepositoryService
