// Compilation of the repository: turns the name-based references of the
// records into pointers between the published records, chains containments
// per class, fills multiplicity defaults, fixes each MOM's root class, and
// finally picks the model's tree root (for validation). Data types and
// associations are compiled in ModelRepositoryCompileTypes.cpp and
// ModelRepositoryCompileAssociations.cpp.

#include "ModelRepository.h"

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "AttrWrapper.h"
#include "CompileReporter.h"
#include "ContWrapper.h"
#include "FindingSubject.h"
#include "MocWrapper.h"
#include "MomWrapper.h"
#include "MrUtil.h"
#include "RegistryIndex.h"
#include "ResolvedReferences.h"
#include "StructWrapper.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

namespace {

/// An attribute without bounds: a writable one is required unless it may be
/// nil, a read-only one never is; at most one value.
void setMultiplicityDefaults(AttrWrapper& attr)
{
    if (!attr.getIsMinSet()) {
        const bool optional = attr.getStruct().isReadOnly || attr.isNillable();
        attr.setMinValue(optional ? 0 : 1);
    }
    if (!attr.getIsMaxSet()) {
        attr.setMaxValue(1);
    }
}

// ---- containments

/// One side (parent or child) of a containment.
struct ContainmentSide {
    const std::string& (ContWrapper::*mimName)() const;
    const std::string& (ContWrapper::*mimVersion)() const;
    const std::string& (ContWrapper::*mocName)() const;
    ZefReturnT (ContWrapper::*setMimName)(const std::string&);
    ZefReturnT (ContWrapper::*setMimVersion)(const std::string&);
};

const ContainmentSide parentSide = {&ContWrapper::getParentMimName, &ContWrapper::getParentMimVersion,
                                    &ContWrapper::getParentMocName, &ContWrapper::setParentMimName,
                                    &ContWrapper::setParentMimVersion};
const ContainmentSide childSide = {&ContWrapper::getChildMimName, &ContWrapper::getChildMimVersion,
                                   &ContWrapper::getChildMocName, &ContWrapper::setChildMimName,
                                   &ContWrapper::setChildMimVersion};

/// Completes the mim name and version of one side: inside one MIM both
/// come from the containment's MOM; between MIMs from the only class of
/// that name, or the version from the only MOM of the given name.
void completeMimId(ModelRepository& repository, ContWrapper& cont, const ContainmentSide& side)
{
    const std::string& mimName = (cont.*side.mimName)();
    const std::string& mimVersion = (cont.*side.mimVersion)();
    if (!cont.isInterMim()) {
        const ZefOamSpiMom* mom = cont.getStruct().mom;
        if ((mimName.empty() || mimVersion.empty()) && mom != nullptr) {
            (cont.*side.setMimName)(MrUtil::str(mom->generalProperties.name));
            (cont.*side.setMimVersion)(MrUtil::str(mom->version));
        }
        return;
    }
    if (mimName.empty()) {
        std::string name;
        std::string version;
        repository.getMimNameAndVersion((cont.*side.mocName)(), name, version);
        (cont.*side.setMimName)(name);
        (cont.*side.setMimVersion)(version);
    } else if (mimVersion.empty()) {
        std::string version;
        repository.getMimVersion(mimName, version);
        (cont.*side.setMimVersion)(version);
    }
}

using ClassesByRecord = RegistryIndex<ModelRepository::MocMap>;

/// The registered class a containment names on one side: the class it was
/// resolved to, or else the class its key names. Null when there is none;
/// `key` then holds the key (which is only built in that case, as the key
/// builder logs a missing part).
const ClassesByRecord::Entry* namedClass(const ModelRepository::MocMap& mocs, const ClassesByRecord& classes,
                                         const ContWrapper& cont, const ZefOamSpiMoc* resolved,
                                         std::string (ContWrapper::*classKey)() const, std::string& key)
{
    const ClassesByRecord::Entry* moc = classes.find(resolved);
    if (moc != nullptr) {
        return moc;
    }
    key = (cont.*classKey)();
    const auto found = mocs.find(key);
    return found != mocs.end() ? classes.find(&found->second->getStruct()) : nullptr;
}

/// How the containments of one class are listed: by parent class (the
/// class's child containments) or by child class (its parent containments).
struct ContainmentList {
    const ZefOamSpiMoc* ZefOamSpiContainment::*classRecord;
    std::string (ContWrapper::*classKey)() const;
    ZefReturnT (MocWrapper::*setFirst)(const ZefOamSpiContainment*);
    ZefReturnT (ContWrapper::*setNext)(const ContWrapper*);
    const char* classMissing; // class key
    const char* linkFailed;   // containment key, next containment key
};

/// Chains the containments of one group behind each other.
void chainGroup(const ContainmentList& list, ContWrapper* const* conts, size_t count, const CompileReporter& reporter)
{
    for (size_t index = 0; index + 1 < count; ++index) {
        if ((conts[index]->*list.setNext)(conts[index + 1]) != ZefOk) {
            reporter.report(ZEF_LOG_LEVEL_ERROR, list.linkFailed, conts[index]->getId().c_str(),
                            conts[index + 1]->getId().c_str());
        }
    }
}

/// Groups the containments by class key (groups and members in key order),
/// gives each class the first containment of its group and chains the
/// group's containments behind each other. A group whose class is
/// registered is found through the class pointer; only a group of a class
/// that is not is kept under its key.
void listContainments(ModelRepository& repository, const ContainmentList& list, const CompileReporter& reporter)
{
    const ModelRepository::MocMap& mocs = repository.getMocMap();
    const ClassesByRecord classes(mocs);
    std::vector<std::pair<const ClassesByRecord::Entry*, ContWrapper*>> registered;
    registered.reserve(repository.getContMap().size());
    std::map<std::string, std::vector<ContWrapper*>> unregistered;
    for (const auto& entry : repository.getContMap()) {
        ContWrapper* cont = entry.second;
        std::string key;
        const ClassesByRecord::Entry* moc =
            namedClass(mocs, classes, *cont, cont->getStruct().*list.classRecord, list.classKey, key);
        if (moc != nullptr) {
            registered.emplace_back(moc, cont);
        } else {
            unregistered[key].push_back(cont);
        }
    }
    // Stable: the members of a group stay in containment key order.
    std::stable_sort(registered.begin(), registered.end(),
                     [](const std::pair<const ClassesByRecord::Entry*, ContWrapper*>& a,
                        const std::pair<const ClassesByRecord::Entry*, ContWrapper*>& b) {
                         return a.first->rank < b.first->rank;
                     });
    std::vector<ContWrapper*> ordered;
    ordered.reserve(registered.size());
    for (const auto& item : registered) {
        ordered.push_back(item.second);
    }

    // The groups of unregistered classes take their places in key order
    // among the others.
    auto missing = unregistered.begin();
    const auto reportMissingBefore = [&](const std::string* key) {
        for (; missing != unregistered.end() && (key == nullptr || missing->first < *key); ++missing) {
            reporter.report(ZEF_LOG_LEVEL_ERROR, list.classMissing, missing->first.c_str());
            chainGroup(list, missing->second.data(), missing->second.size(), reporter);
        }
    };
    for (size_t first = 0; first < registered.size();) {
        const ClassesByRecord::Entry* moc = registered[first].first;
        size_t end = first + 1;
        while (end < registered.size() && registered[end].first == moc) {
            ++end;
        }
        reportMissingBefore(moc->key);
        (moc->wrapper->*list.setFirst)(&ordered[first]->getStruct());
        chainGroup(list, &ordered[first], end - first, reporter);
        first = end;
    }
    reportMissingBefore(nullptr);
}

} // namespace

CompileReporter ModelRepository::compileReporter()
{
    return CompileReporter(
        [this](unsigned short level, const std::string& text) { report(level, "%s", text.c_str()); });
}

void ModelRepository::compileModel()
{
    ZEF_TRACE_ENTER(" >> ");
    // Type references name the same targets over and over: the targets
    // found are kept while this compilation runs, and forgotten when it
    // ends, also by an exception.
    _resolvedReferences.reset(new ResolvedReferences());
    struct ForgetResolved {
        std::unique_ptr<ResolvedReferences>& references;
        ~ForgetResolved() { references.reset(); }
    } forgetResolved{_resolvedReferences};

    ZEF_TRACE("Compiling the MOMs");
    setMomsRootMoc();

    ZEF_TRACE("Compiling the Containments");
    for (const auto& entry : _conts) {
        const FindingSubject subject(*this, entry.second);
        translateMimNames(*entry.second);
        checkSetParentMimId(*entry.second);
        checkSetChildMimId(*entry.second);
    }
    // Every name is complete before the first class is looked up.
    for (const auto& entry : _conts) {
        setContParentAndChildMoc(*entry.second);
    }
    compileParentListConts();
    compileChildListConts();
    setSystemCreatedforConts();

    ZEF_TRACE("Compiling the Mocs");
    for (const auto& entry : _mocs) {
        MocWrapper& moc = *entry.second;
        ZEF_TRACE("Compiling the attributes in the Moc (%s)", entry.first.c_str());
        setAttrsDataType(moc);
        setMoActionDataType(moc);
        const MocWrapper::AttrList& attrs = moc.getAttrsList();
        for (AttrWrapper* attr = attrs.empty() ? nullptr : attrs.front(); attr != nullptr; attr = attr->getNext()) {
            setMultiplicityDefaults(*attr);
        }
    }

    ZEF_TRACE("Compiling the Bidirectional associations");
    setBiDirectionalAssociations();

    ZEF_TRACE("Compiling the Unidirectional associations");
    setUniDirectionalAssociations();

    ZEF_TRACE("Compiling the Structs");
    for (const auto& entry : _structs) {
        ZEF_TRACE("Compiling the members in the Struct (%s)", entry.first.c_str());
        setMoAttributeDatatypeTpl(*entry.second, entry.second->getStructMemberListFront());
    }

    buildQcimNameMap();
    buildMocNameCache();

    ZEF_TRACE_LEAVE(" << ");
}

void ModelRepository::setMomsRootMoc()
{
    std::map<std::string, MomWrapper*> momsByKey;
    for (MomWrapper* mom : _moms) {
        momsByKey.emplace(mom->getId(), mom);
    }
    for (const auto& entry : _mocs) {
        MocWrapper& moc = *entry.second;
        if (!moc.getStruct().isRoot) {
            continue;
        }
        const std::string momKey = moc.getMomId();
        const auto found = momsByKey.find(momKey);
        if (found == momsByKey.end()) {
            report(ZEF_LOG_LEVEL_ERROR, "Could not find Mom (%s) refered by the root Moc (%s).", momKey.c_str(),
                   entry.first.c_str());
        } else if (found->second->getStruct().rootMoc == nullptr) {
            found->second->setRootMoc(&moc.getStruct());
            ZEF_TRACE("Mom (%s) has now root Moc (%s) set.", momKey.c_str(), entry.first.c_str());
        } else {
            report(ZEF_LOG_LEVEL_ERROR, "Mom (%s) can have only one root Moc (%s).", momKey.c_str(),
                   entry.first.c_str());
        }
    }
}

void ModelRepository::checkSetParentMimId(ContWrapper& cont)
{
    completeMimId(*this, cont, parentSide);
}

void ModelRepository::checkSetChildMimId(ContWrapper& cont)
{
    completeMimId(*this, cont, childSide);
}

void ModelRepository::setContParentAndChildMoc(ContWrapper& cont)
{
    const std::string parentKey = cont.getParentMocId();
    const auto parent = _mocs.find(parentKey);
    if (parent == _mocs.end()) {
        report(ZEF_LOG_LEVEL_ERROR, "Did not find parent Moc(%s) for containment(%s).", parentKey.c_str(),
               cont.getId().c_str());
    } else {
        cont.setParentMoc(&parent->second->getStruct());
    }
    const std::string childKey = cont.getChildMocId();
    const auto child = _mocs.find(childKey);
    if (child == _mocs.end()) {
        report(ZEF_LOG_LEVEL_ERROR, "Did not not find child Moc(%s) for containment(%s).", childKey.c_str(),
               cont.getId().c_str());
    } else {
        cont.setChildMoc(&child->second->getStruct());
    }
}

void ModelRepository::compileParentListConts()
{
    // A group is always a fresh entry of the grouping map, so the reserved
    // "more than one child containments" finding cannot arise here.
    static const ContainmentList byParent = {
        &ZefOamSpiContainment::parentMoc, &ContWrapper::getParentMocId, &MocWrapper::setChildContainment,
        static_cast<ZefReturnT (ContWrapper::*)(const ContWrapper*)>(&ContWrapper::setNextContainmentSameParentMoc),
        "Failed to find Moc(%s).", "Failed to setNextContainmentSameParentMoc on (%s) for (%s)"};
    listContainments(*this, byParent, compileReporter());
}

void ModelRepository::compileChildListConts()
{
    static const ContainmentList byChild = {
        &ZefOamSpiContainment::childMoc, &ContWrapper::getChildMocId, &MocWrapper::setParentContainment,
        static_cast<ZefReturnT (ContWrapper::*)(const ContWrapper*)>(&ContWrapper::setNextContainmentSameChildMoc),
        "compileChildListConts(), failed to find Moc(%s)", "Failed to setNextContainmentSameChildMoc on (%s) for (%s)"};
    listContainments(*this, byChild, compileReporter());
}

void ModelRepository::setSystemCreatedforConts()
{
    const ClassesByRecord classes(_mocs);
    for (const auto& entry : _conts) {
        ContWrapper& cont = *entry.second;
        std::string key;
        const ClassesByRecord::Entry* child =
            namedClass(_mocs, classes, cont, cont.getStruct().childMoc, &ContWrapper::getChildMocId, key);
        if (child != nullptr) {
            cont.setIsSystemCreated(child->wrapper->getIsSystemCreated());
        }
    }
}

void ModelRepository::buildQcimNameMap()
{
    for (const MomWrapper* mom : _moms) {
        const DomainExtensionWrapper* qcimName = mom->getDomainExtension("QCIM", "qcimMomName");
        const DomainExtensionWrapper* qcimVersion = mom->getDomainExtension("QCIM", "qcimMomVersion");
        if (qcimName == nullptr || qcimVersion == nullptr) {
            continue;
        }
        const std::string key = MomWrapper::getMomId(qcimName->getValue().c_str(), qcimVersion->getValue().c_str());
        if (key.empty()) {
            continue; // the key builder has logged the missing part
        }
        _qcimNames[key] = {MrUtil::str(mom->getStruct().generalProperties.name), mom->getVersion()};
    }
}

void ModelRepository::findTreeRoot()
{
    for (const std::string& message : _messages) {
        if (message.find("ERROR") != std::string::npos) {
            ZEF_LOG_ERROR("%s", message.c_str());
            ZEF_LOG_ERROR("The model contains errors. Setting tree root to NULL");
            _treeRoot = nullptr;
            return;
        }
    }
    for (const MomWrapper* mom : _moms) {
        const ZefOamSpiMoc* root = mom->getStruct().rootMoc;
        if (root == nullptr || root->parentContainment != nullptr) {
            continue;
        }
        const std::string rootName = MrUtil::str(root->generalProperties.name);
        if (_mainRootName.empty()) {
            _treeRoot = root;
            if (CompileReporter::traceEnabled()) {
                std::string path = MrUtil::str(mom->getStruct().generalProperties.name);
                const std::string version = mom->getVersion();
                if (!version.empty()) {
                    path += "+" + version;
                }
                path += "+" + rootName;
                ZEF_TRACE("Setting tree root to %s", path.c_str());
            }
            return;
        }
        if (rootName == _mainRootName) {
            _treeRoot = root;
            ZEF_TRACE("Found tree root");
            return;
        }
    }
}

} // namespace ZefModelRepositoryService
