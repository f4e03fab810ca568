#include "ModelRepository.h"

#include <cstdio>
#include <cstring>

#include "AssociationEndWrapper.h"
#include "AttrWrapper.h"
#include "BiDirAssociationWrapper.h"
#include "ContWrapper.h"
#include "DdtWrapper.h"
#include "DnUtil.h"
#include "EnumWrapper.h"
#include "FindingLocator.h"
#include "FindingRules.h"
#include "If2Manager.h"
#include "If2Publisher.h"
#include "MoActionWrapper.h"
#include "MomWrapper.h"
#include "RefId.h"
#include "ResolvedReferences.h"
#include "StructWrapper.h"
#include "UniDirAssociationWrapper.h"
#include "ZefException.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

namespace {

const char* const kRepositoryReporter = "ModelRepository";
const char* const kAnyClassName = "ManagedObject";

std::string textOf(const char* text) { return text != nullptr ? text : ""; }

std::string nameOf(const ZefOamSpiGeneralProperties& gp) { return textOf(gp.name); }

} // namespace

ModelRepository::ModelRepository() {
    std::memset(_messageBuffer, 0, sizeof(_messageBuffer));
    _anyClassMoc.setName(kAnyClassName);
    // A reference to any class hands out this record through the query
    // interface like any other class.
    If2Publisher::publish(_anyClassMoc);
}

ModelRepository::~ModelRepository() {
    cleanup();
    // The any-class record dies with the repository: withdraw its object.
    If2Manager::instance().cleanup();
}

const ZefOamSpiModelRepository_2* ModelRepository::getIf2() const { return If2Manager::instance().getIf2(); }

const ZefOamSpiModelRepository_3* ModelRepository::getIf3() const { return If2Manager::instance().getIf3(); }

const ZefOamSpiModelRepository_4* ModelRepository::getIf4() const { return If2Manager::instance().getIf4(); }

const ZefOamSpiModelRepository_4_1* ModelRepository::getIf4_1() const { return If2Manager::instance().getIf4_1(); }

// ---- findings --------------------------------------------------------------

void ModelRepository::checkThrowException(unsigned short level, const char* format, ...) {
    va_list args;
    va_start(args, format);
    try {
        checkThrowException(kRepositoryReporter, level, format, args);
    } catch (...) {
        va_end(args);
        throw;
    }
    va_end(args);
}

void ModelRepository::checkThrowException(const char* who, unsigned short level, const char* format,
                                          va_list args) {
    checkThrowException(SourceLocation(), who, level, format, args);
}

void ModelRepository::checkThrowException(const SourceLocation& where, const char* who, unsigned short level,
                                          const char* format, va_list args) {
    std::vsnprintf(_messageBuffer, sizeof(_messageBuffer), format, args);
    std::string entry;
    if (level == ZEF_LOG_LEVEL_ERROR) {
        entry = std::string("ERROR, ") + who + ": " + _messageBuffer;
    } else if (level == ZEF_LOG_LEVEL_WARNING) {
        entry = std::string("WARNING, ") + who + ": " + _messageBuffer;
    } else {
        entry = _messageBuffer;
    }
    _messages.push_back(entry);
    _findings.push_back(describeFinding(where, who, level, format));
    // A framework component stops at the first error; the validator tool
    // collects every finding of the model in one run.
    if (!_standalone && level == ZEF_LOG_LEVEL_ERROR) {
        throw Zef::ZefException(std::string(who) + ": invalid model");
    }
}

Finding ModelRepository::describeFinding(const SourceLocation& where, const char* who, unsigned short level,
                                         const char* format) const {
    Finding finding;
    finding.severity = level == ZEF_LOG_LEVEL_ERROR     ? FindingSeverity::Error
                       : level == ZEF_LOG_LEVEL_WARNING ? FindingSeverity::Warning
                                                        : FindingSeverity::Note;
    finding.reporter = who;
    finding.message = _messageBuffer;
    // Most places report with the template itself; a text put together
    // before it was reported is recognised by its shape.
    finding.rule = FindingRules::byFormat(format);
    if (finding.rule == nullptr) {
        finding.rule = FindingRules::byText(finding.message);
    }
    std::vector<std::string> arguments;
    if (finding.rule != nullptr && finding.rule->subjectArgument > 0 &&
        FindingRules::arguments(*finding.rule, finding.message, arguments) &&
        finding.rule->subjectArgument <= arguments.size()) {
        finding.key = arguments[finding.rule->subjectArgument - 1];
    }
    if (where.isKnown()) {
        finding.location = where;
        return finding;
    }
    const GeneralPropertiesWrapper* record = nullptr;
    if (!finding.key.empty()) {
        record = FindingLocator(*this).find(finding.rule->subject, finding.key);
    }
    if (record == nullptr) {
        record = _findingSubject;
    }
    if (record != nullptr) {
        finding.location = record->getSourceLocation();
        if (finding.key.empty()) {
            finding.key = record->getId();
        }
    }
    return finding;
}

void ModelRepository::report(unsigned short level, const char* format, ...) {
    va_list args;
    va_start(args, format);
    try {
        vreport(SourceLocation(), level, format, args);
    } catch (...) {
        va_end(args);
        throw;
    }
    va_end(args);
}

void ModelRepository::reportAt(const SourceLocation& where, unsigned short level, const char* format, ...) {
    va_list args;
    va_start(args, format);
    try {
        vreport(where, level, format, args);
    } catch (...) {
        va_end(args);
        throw;
    }
    va_end(args);
}

void ModelRepository::vreport(const SourceLocation& where, unsigned short level, const char* format, va_list args) {
    Zef::LoggingWrapper* logger = Zef::LoggingWrapper::instance();
    if (logger->get_level() >= level) {
        va_list logArgs;
        va_copy(logArgs, args);
        char line[sizeof(_messageBuffer)];
        std::vsnprintf(line, sizeof(line), format, logArgs);
        va_end(logArgs);
        // The log names the reporting function as it always has.
        logger->log_printf("report", level, 1, "%s", line);
    }
    checkThrowException(where, kRepositoryReporter, level, format, args);
}

const std::string* ModelRepository::noteModelFile(const std::string& fileName) {
    const auto inserted = _modelFileNames.insert(fileName);
    if (inserted.second) {
        _modelFilesRead.push_back(&*inserted.first);
    }
    return &*inserted.first;
}

// ---- registries ------------------------------------------------------------

template <typename Map, typename Record, typename IncompleteText>
ZefReturnT ModelRepository::addRecord(Map& map, Record* record, const char* nullText,
                                      IncompleteText incompleteText, const char* duplicateFormat) {
    if (record == nullptr) {
        report(ZEF_LOG_LEVEL_ERROR, "%s", nullText);
        return ZefInvalidArgument;
    }
    // A refused record is named by the element that defined it, not by
    // the record that holds its key already.
    std::string key = record->getId();
    if (key.empty()) {
        reportAt(record->getSourceLocation(), ZEF_LOG_LEVEL_ERROR, "%s", incompleteText(*record).c_str());
        return ZefFailure;
    }
    // A unique insert keeps the first record of a key.
    if (!map.emplace(key, record).second) {
        reportAt(record->getSourceLocation(), ZEF_LOG_LEVEL_ERROR, duplicateFormat, key.c_str());
        return ZefAlreadyExists;
    }
    return ZefOk;
}

namespace {

// A fixed text for a record that is incomplete.
struct Fixed {
    const char* text;
    template <typename Record> std::string operator()(const Record&) const { return text; }
};

// Relationship records name what is missing when they were not named at
// all, and keep the short text otherwise.
template <typename Record, typename Unnamed>
struct NamedOrNot {
    const char* namedText;
    Unnamed unnamedText;
    std::string operator()(const Record& record) const {
        if (record.getStruct().generalProperties.name == nullptr) {
            return unnamedText(record);
        }
        return namedText;
    }
};

template <typename Record, typename Unnamed>
NamedOrNot<Record, Unnamed> namedOrNot(const char* namedText, Unnamed unnamed) {
    return NamedOrNot<Record, Unnamed>{namedText, unnamed};
}

std::string format(const char* format, const std::string& a, const std::string& b = std::string()) {
    char buffer[4096];
    std::snprintf(buffer, sizeof(buffer), format, a.c_str(), b.c_str());
    return buffer;
}

} // namespace

ZefReturnT ModelRepository::addMom(MomWrapper* mom) {
    if (mom == nullptr) {
        report(ZEF_LOG_LEVEL_ERROR, "Mom is 'null', can not add to the map.");
        return ZefInvalidArgument;
    }
    std::string key = mom->getId();
    if (key.empty()) {
        reportAt(mom->getSourceLocation(), ZEF_LOG_LEVEL_ERROR, "Incomplete Mom, could not add to the list.");
        return ZefFailure;
    }
    // The list keeps the order of loading; the key set answers "already
    // added?" without walking it.
    if (!_momKeys.insert(key).second) {
        reportAt(mom->getSourceLocation(), ZEF_LOG_LEVEL_ERROR, "Mom (%s) already added to the list.", key.c_str());
        return ZefAlreadyExists;
    }
    if (!_moms.empty()) {
        _moms.back()->setNext(mom);
    }
    _moms.push_back(mom);
    _qcimMomIndexValid = false;
    _momsByNameValid = false;
    return ZefOk;
}

ZefReturnT ModelRepository::addMoc(MocWrapper* moc) {
    ZefReturnT rc = addRecord(_mocs, moc, "Moc is 'null', can not add to the map.",
                              Fixed{"Incomplete Moc, could not add to the map."},
                              "Moc (%s) is already added to the map.");
    if (rc == ZefOk) {
        _mocsByNameValid = false;
    }
    return rc;
}

ZefReturnT ModelRepository::addDdt(DdtWrapper* ddt) {
    return addRecord(_ddts, ddt, "Ddt is 'null', can not add to the map.",
                     Fixed{"Incomplete Ddt, could not add to the map."}, "Ddt (%s) is already added to the map.");
}

ZefReturnT ModelRepository::addEnum(EnumWrapper* enumeration) {
    return addRecord(_enums, enumeration, "Enum is 'null', can not add to the map.",
                     Fixed{"Incomplete Enum, could not add to the map."}, "Enum (%s) is already added to the map.");
}

ZefReturnT ModelRepository::addStruct(StructWrapper* structure) {
    return addRecord(_structs, structure, "Struct is 'null', can not add to the map.",
                     Fixed{"Incomplete struct, can not add to the map."},
                     "The struct (%s) is already added to the map.");
}

ZefReturnT ModelRepository::addCont(ContWrapper* cont) {
    auto unnamed = [](const ContWrapper& c) {
        return format("Incomplete Containment, 'name' attribute is missing for the parent(%s) "
                      "child(%s)relation,could not add to the map",
                      c.getParentMocName(), c.getChildMocName());
    };
    return addRecord(_conts, cont, "Containment is 'null', can not add to the map.",
                     namedOrNot<ContWrapper>("Incomplete Cont, could not add to the map.", unnamed),
                     "Cont (%s) is already added to the map.");
}

ZefReturnT ModelRepository::addAssocEnd(AssociationEndWrapper* end) {
    auto unnamed = [](const AssociationEndWrapper& e) {
        return format("Incomplete Association end, 'name' attribute is missing for the association end "
                      "attribute(%s),could not add to the map",
                      e.getClassifier());
    };
    return addRecord(_assocEnds, end, "Association end is 'null', can not add to the map.",
                     namedOrNot<AssociationEndWrapper>("Incomplete Association end, could not add to the map.",
                                                       unnamed),
                     "Association end (%s) is already added to the map.");
}

ZefReturnT ModelRepository::addBidir(BiDirAssociationWrapper* assoc) {
    auto unnamed = [](const BiDirAssociationWrapper& a) {
        return format("Incomplete Bidirectional association, 'name' attribute is missing for the association "
                      "end attribute(%s),could not add to the map",
                      a.getFirstAssociationEndId());
    };
    return addRecord(_bidirs, assoc, "Bidirectional association is 'null', can not add to the map.",
                     namedOrNot<BiDirAssociationWrapper>(
                         "Incomplete Bidirectional association, could not add to the map.", unnamed),
                     "Bidirectional association (%s) is already added to the map.");
}

ZefReturnT ModelRepository::addUnidir(UniDirAssociationWrapper* assoc) {
    auto unnamed = [](const UniDirAssociationWrapper& a) {
        return format("Incomplete Unidirectional association, 'name' attribute is missing for the association "
                      "end attribute(%s),could not add to the map",
                      a.getAssociationEndId());
    };
    return addRecord(_unidirs, assoc, "Unidirectional association is 'null', can not add to the map.",
                     namedOrNot<UniDirAssociationWrapper>(
                         "Incomplete Unidirectional association, could not add to the map.", unnamed),
                     "Unidirectional association (%s) is already added to the map.");
}

// ---- reading ---------------------------------------------------------------

ZefReturnT ModelRepository::getMoms(const ZefOamSpiMom** out) const {
    if (_moms.empty()) {
        ZEF_TRACE("No MOM is available.");
        return ZefNotFound;
    }
    if (out != nullptr) {
        *out = &_moms.front()->getStruct();
    }
    return ZefOk;
}

ZefReturnT ModelRepository::getMoc(const char* momName, const char* momVersion, const char* mocName,
                                   const ZefOamSpiMoc** out) const {
    ZEF_TRACE(" >> momName '%s' momVersion '%s' MocName '%s'", textOf(momName).c_str(),
              textOf(momVersion).c_str(), textOf(mocName).c_str());
    std::string key = MocWrapper::getMocId(momName, momVersion, mocName);
    if (key.empty()) {
        return ZefInvalidArgument;
    }
    MocMap::const_iterator found = _mocs.find(key);
    if (found == _mocs.end()) {
        // The MOM may be named by its modelling-standard name and version.
        QcimNameMap::const_iterator mapped = _qcimNames.find(MomWrapper::getMomId(momName, momVersion));
        if (mapped == _qcimNames.end()) {
            return ZefNotFound;
        }
        found = _mocs.find(
            MocWrapper::getMocId(mapped->second.first.c_str(), mapped->second.second.c_str(), mocName));
        if (found == _mocs.end()) {
            return ZefNotFound;
        }
    }
    if (out != nullptr) {
        *out = &found->second->getStruct();
    }
    return ZefOk;
}

namespace {

// True when the distinguished name leads to `moc` along its parent
// containments: each pair, from the leaf upwards, names the parent class of
// one containment of the class below it.
bool dnMatchesContainmentPath(const std::string& dn, const ZefOamSpiMoc* moc) {
    if (moc->parentContainment == nullptr) {
        return true;
    }
    std::string parentDn = Zef::DnUtil::popLeafClass(dn);
    std::string parentClass = Zef::DnUtil::getClass(parentDn);
    for (const ZefOamSpiContainment* cont = moc->parentContainment; cont != nullptr;
         cont = cont->nextContainmentSameChildMoc) {
        const ZefOamSpiMoc* parent = cont->parentMoc;
        if (parent != nullptr && nameOf(parent->generalProperties) == parentClass
            && dnMatchesContainmentPath(parentDn, parent)) {
            return true;
        }
    }
    return false;
}

} // namespace

ZefReturnT ModelRepository::getMocFromDn(const char* dn, bool flag, const ZefOamSpiMoc** out) const {
    std::string name = textOf(dn);
    std::string leafClass = Zef::DnUtil::getClass(name);
    auto range = _mocNameCache.equal_range(leafClass);
    if (!flag && range.first != range.second && std::next(range.first) == range.second) {
        if (out != nullptr) {
            *out = &range.first->second->getStruct();
        }
        return ZefOk;
    }
    for (auto it = range.first; it != range.second; ++it) {
        const ZefOamSpiMoc* moc = &it->second->getStruct();
        if (dnMatchesContainmentPath(name, moc)) {
            if (out != nullptr) {
                *out = moc;
            }
            return ZefOk;
        }
    }
    return ZefNotFound;
}

ZefReturnT ModelRepository::getTreeRoot(const ZefOamSpiMoc** out) const {
    if (out != nullptr) {
        *out = _treeRoot;
    }
    return ZefOk;
}

ZefReturnT ModelRepository::getFileName(const char* momName, const char* momVersion, const char** out) const {
    if (momName == nullptr || momVersion == nullptr || out == nullptr) {
        return ZefInvalidArgument;
    }
    for (const MomWrapper* mom : _moms) {
        const ZefOamSpiMom* record = &mom->getStruct();
        if (nameOf(record->generalProperties) == momName && textOf(record->version) == momVersion) {
            *out = mom->getFileName().c_str();
            return ZefOk;
        }
    }
    return ZefNotFound;
}

// ---- name and version resolution -------------------------------------------

const std::vector<MomWrapper*>& ModelRepository::momsNamed(const std::string& mimName) {
    // Compilation asks for the version of a MOM named without one for every
    // such reference; one index, built on first use and renewed after a MOM
    // is added, answers each without a walk over the MOM list.
    if (!_momsByNameValid) {
        _momsByName.clear();
        for (MomWrapper* mom : _moms) {
            _momsByName[nameOf(mom->getStruct().generalProperties)].push_back(mom);
        }
        _momsByNameValid = true;
    }
    static const std::vector<MomWrapper*> none;
    auto found = _momsByName.find(mimName);
    return found == _momsByName.end() ? none : found->second;
}

void ModelRepository::getMimVersion(std::string mimName, std::string& mimVersion) {
    const std::vector<MomWrapper*>& moms = momsNamed(mimName);
    if (moms.empty()) {
        ZEF_LOG_ERROR("Cannot find Mim(%s), no such Mim.", mimName.c_str());
        return;
    }
    mimVersion = textOf(moms.front()->getStruct().version);
    // Every further MOM of that name makes the version ambiguous.
    for (std::size_t i = 1; i < moms.size(); ++i) {
        mimVersion.clear();
        ZEF_LOG_ERROR("Can not resolve mimVersion, multiple possible MIMs (%s)", mimName.c_str());
    }
}

const std::vector<MocWrapper*>& ModelRepository::mocsNamed(const std::string& mocName) {
    // Classes are not added once compilation runs, so one index built on
    // first use answers every lookup by plain name in key order.
    if (!_mocsByNameValid) {
        _mocsByName.clear();
        _mocsByName.reserve(_mocs.size());
        for (const auto& entry : _mocs) {
            _mocsByName[nameOf(entry.second->getStruct().generalProperties)].push_back(entry.second);
        }
        _mocsByNameValid = true;
    }
    static const std::vector<MocWrapper*> none;
    auto found = _mocsByName.find(mocName);
    return found == _mocsByName.end() ? none : found->second;
}

void ModelRepository::getMimNameAndVersion(std::string mocName, std::string& mimName, std::string& mimVersion) {
    mimName.clear();
    mimVersion.clear();
    const std::vector<MocWrapper*>& mocs = mocsNamed(mocName);
    if (mocs.empty()) {
        report(ZEF_LOG_LEVEL_ERROR, "Cannot resolve mim for Moc(%s), no such Moc.", mocName.c_str());
        return;
    }
    const ZefOamSpiMom* mom = mocs.front()->getStruct().mom;
    if (mom != nullptr) {
        mimName = nameOf(mom->generalProperties);
        mimVersion = textOf(mom->version);
    }
    // A second class of that name makes the MOM ambiguous, unless the first
    // one left the name empty (then the second simply answers).
    for (std::size_t i = 1; i < mocs.size(); ++i) {
        if (!mimName.empty()) {
            report(ZEF_LOG_LEVEL_ERROR, "Cannot resolve mim for Moc(%s), multiple possible Mims.", mocName.c_str());
            return;
        }
        const ZefOamSpiMom* other = mocs[i]->getStruct().mom;
        if (other != nullptr) {
            mimName = nameOf(other->generalProperties);
            mimVersion = textOf(other->version);
        }
    }
}

bool ModelRepository::getMimInfoFromQcimName(const std::string& name, std::string& mimName,
                                             std::string& mimVersion) {
    if (!_qcimMomIndexValid) {
        _qcimMomIndex.clear();
        for (MomWrapper* mom : _moms) {
            const DomainExtensionWrapper* ext = mom->getDomainExtension("QCIM", "qcimMomName");
            if (ext != nullptr) {
                // The first MOM in loading order wins.
                _qcimMomIndex.emplace(ext->getValue(), mom);
            }
        }
        _qcimMomIndexValid = true;
    }
    auto found = _qcimMomIndex.find(name);
    if (found == _qcimMomIndex.end()) {
        return false;
    }
    const ZefOamSpiMom* record = &found->second->getStruct();
    mimName = nameOf(record->generalProperties);
    mimVersion = textOf(record->version);
    return true;
}

bool ModelRepository::translateMimName(RefId& ref) {
    std::string mimName;
    std::string mimVersion;
    if (!getMimInfoFromQcimName(ref.getRefMomName(), mimName, mimVersion)) {
        return false;
    }
    ref.setRefMomName(mimName);
    ref.setRefMomVersion(mimVersion);
    return true;
}

void ModelRepository::translateMimNames(ContWrapper& cont) {
    std::string mimName;
    std::string mimVersion;
    if (getMimInfoFromQcimName(cont.getParentMimName(), mimName, mimVersion)) {
        cont.setParentMimName(mimName);
        cont.setParentMimVersion(mimVersion);
    }
    if (getMimInfoFromQcimName(cont.getChildMimName(), mimName, mimVersion)) {
        cont.setChildMimName(mimName);
        cont.setChildMimVersion(mimVersion);
    }
}

void ModelRepository::buildMocNameCache() {
    for (const auto& entry : _mocs) {
        _mocNameCache.emplace(nameOf(entry.second->getStruct().generalProperties), entry.second);
    }
}

namespace {

template <typename Map>
void traceRecords(const Map& map) {
    for (const auto& entry : map) {
        ZEF_TRACE("%s", entry.second->toString().c_str());
    }
}

template <typename Map>
void deleteRecords(Map& map) {
    for (auto& entry : map) {
        delete entry.second;
    }
    map.clear();
}

} // namespace

void ModelRepository::dumpModel() {
    if (Zef::LoggingWrapper::instance()->get_level() < ZEF_LOG_LEVEL_TRACE) {
        return;
    }
    for (const MomWrapper* mom : _moms) {
        ZEF_TRACE("%s", mom->toString().c_str());
    }
    traceRecords(_mocs);
    traceRecords(_ddts);
    traceRecords(_enums);
    traceRecords(_conts);
    traceRecords(_assocEnds);
    traceRecords(_bidirs);
    traceRecords(_unidirs);
    traceRecords(_structs);
}

void ModelRepository::cleanup() {
    ZEF_TRACE_ENTER(" >> ");
    // No interface object may outlive the record it reads: withdraw them
    // first, so no handle reaches a record being destroyed.
    If2Manager::instance().cleanup();
    for (MomWrapper* mom : _moms) {
        delete mom;
    }
    _moms.clear();
    _momKeys.clear();
    // A class lists its attributes and actions without owning them; the
    // repository that owns the class owns them too.
    for (auto& entry : _mocs) {
        for (AttrWrapper* attr : entry.second->getAttrsList()) {
            delete attr;
        }
        for (MoActionWrapper* action : entry.second->getMoActionList()) {
            delete action;
        }
    }
    deleteRecords(_mocs);
    deleteRecords(_ddts);
    deleteRecords(_enums);
    deleteRecords(_conts);
    deleteRecords(_bidirs);
    deleteRecords(_unidirs);
    deleteRecords(_assocEnds);
    deleteRecords(_structs);
    _treeRoot = nullptr;
    _mocNameCache.clear();
    _mocsByName.clear();
    _mocsByNameValid = false;
    _qcimMomIndex.clear();
    _qcimMomIndexValid = false;
    _momsByName.clear();
    _momsByNameValid = false;
    _patterns.clear();
    // The any-class record lives as long as the repository.
    If2Publisher::publish(_anyClassMoc);
    ZEF_TRACE_LEAVE(" << ");
}

} // namespace ZefModelRepositoryService
