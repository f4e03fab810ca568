#ifndef ZEF_MODEL_REPOSITORY_H
#define ZEF_MODEL_REPOSITORY_H

#include <cstdarg>
#include <list>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Finding.h"
#include "MocWrapper.h"
#include "PatternGuard.h"
#include "SourceLocation.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefOamSpiModelRepository_4_1.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class AssociationEndWrapper;
class BiDirAssociationWrapper;
class CompileReporter;
class ContWrapper;
class DdtWrapper;
class EnumWrapper;
class MoActionWrapper;
class MomWrapper;
class RefId;
class ResolvedReferences;
class StructWrapper;
class UniDirAssociationWrapper;

/// The one central store of a loaded model: the registries of every element
/// record, the compiled model, and the message list of every finding.
///
/// Records handed to a successful add... belong to the repository and are
/// destroyed by cleanup(), together with the attributes and actions of every
/// registered class; a refused record stays with the caller. Every
/// map is ordered by identity key, byte-wise, so every pass over a registry
/// runs in ascending key order; MOMs keep the order in which they were added.
class ModelRepository {
public:
    using MocMap = std::map<std::string, MocWrapper*>;
    using DdtMap = std::map<std::string, DdtWrapper*>;
    using EnumMap = std::map<std::string, EnumWrapper*>;
    using ContMap = std::map<std::string, ContWrapper*>;
    using StructMap = std::map<std::string, StructWrapper*>;
    using BiDirMap = std::map<std::string, BiDirAssociationWrapper*>;
    using UniDirMap = std::map<std::string, UniDirAssociationWrapper*>;
    using AssocEndMap = std::map<std::string, AssociationEndWrapper*>;
    using MocNameCache = std::multimap<std::string, MocWrapper*>;
    /// Modelling-standard MOM key -> (MOM name, MOM version).
    using QcimNameMap = std::map<std::string, std::pair<std::string, std::string>>;

    ModelRepository();
    virtual ~ModelRepository();

    ModelRepository(const ModelRepository&) = delete;
    ModelRepository& operator=(const ModelRepository&) = delete;

    // ---- registries --------------------------------------------------------

    /// Each add... takes ownership on success and returns ZefOk; it refuses
    /// (and reports an error) a null record with ZefInvalidArgument, an
    /// incomplete one (empty identity key) with ZefFailure and a duplicate
    /// key with ZefAlreadyExists, checked in that order.
    ZefReturnT addMom(MomWrapper* mom);
    ZefReturnT addMoc(MocWrapper* moc);
    ZefReturnT addDdt(DdtWrapper* ddt);
    ZefReturnT addEnum(EnumWrapper* enumeration);
    ZefReturnT addStruct(StructWrapper* structure);
    ZefReturnT addCont(ContWrapper* cont);
    ZefReturnT addAssocEnd(AssociationEndWrapper* end);
    ZefReturnT addBidir(BiDirAssociationWrapper* assoc);
    ZefReturnT addUnidir(UniDirAssociationWrapper* assoc);

    // ---- reading -----------------------------------------------------------

    /// The first MOM added; ZefNotFound when there is none.
    ZefReturnT getMoms(const ZefOamSpiMom** out) const;
    /// The class of that MOM name, version and class name, also when the MOM
    /// is named by its modelling-standard name and version (after
    /// compilation). ZefInvalidArgument for an incomplete key, ZefNotFound.
    ZefReturnT getMoc(const char* momName, const char* momVersion, const char* mocName,
                      const ZefOamSpiMoc** out) const;
    /// The class a distinguished name leads to; with `flag` false a class
    /// name that is unique in the model is enough. ZefNotFound otherwise.
    ZefReturnT getMocFromDn(const char* dn, bool flag, const ZefOamSpiMoc** out) const;
    /// The tree root (possibly null); ZefOk.
    ZefReturnT getTreeRoot(const ZefOamSpiMoc** out) const;
    /// The model file the MOM of exactly that name and version was read
    /// from. ZefInvalidArgument for a null argument, ZefNotFound.
    ZefReturnT getFileName(const char* momName, const char* momVersion, const char** out) const;

    const std::list<MomWrapper*>& getMomList() const { return _moms; }
    const MocMap& getMocMap() const { return _mocs; }
    const DdtMap& getDdtMap() const { return _ddts; }
    const EnumMap& getEnumMap() const { return _enums; }
    const ContMap& getContMap() const { return _conts; }
    const StructMap& getStructMap() const { return _structs; }
    const BiDirMap& getBidirMap() const { return _bidirs; }
    const UniDirMap& getUnidirMap() const { return _unidirs; }
    const AssocEndMap& getAssocEndMap() const { return _assocEnds; }
    const MocNameCache& getMocNameCache() const { return _mocNameCache; }
    const QcimNameMap& getQcimNameMap() const { return _qcimNames; }
    /// The class that stands for "any class" in a reference; in no registry.
    MocWrapper& getAnyClassMoc() { return _anyClassMoc; }

    // ---- name and version resolution ---------------------------------------

    /// Version of the only MOM named `mimName`; cleared (and logged) when
    /// several MOMs have that name, unchanged (and logged) when none has.
    void getMimVersion(std::string mimName, std::string& mimVersion);
    /// MOM name and version of the only class named `mocName`; an error is
    /// reported when there are several or none.
    void getMimNameAndVersion(std::string mocName, std::string& mimName, std::string& mimVersion);
    /// Name and version of the first MOM whose "QCIM"/"qcimMomName" domain
    /// extension is `name`; false (outputs untouched) when none has it.
    bool getMimInfoFromQcimName(const std::string& name, std::string& mimName, std::string& mimVersion);
    /// Replaces a modelling-standard MOM name of a reference by the MOM's own
    /// name and version; false (the reference untouched) when no MOM has
    /// that modelling-standard name.
    bool translateMimName(RefId& ref);
    /// The same for both ends of a containment.
    void translateMimNames(ContWrapper& cont);
    /// Files every class under its plain name (duplicates kept).
    void buildMocNameCache();
    /// The classes of one plain name, in key order (an index built on first
    /// use, renewed after a class is added).
    const std::vector<MocWrapper*>& mocsNamed(const std::string& mocName);
    /// Writes every record's dump to the trace.
    void dumpModel();
    /// Destroys every record and its query interface object and empties the
    /// registries; keeps the message list, the modelling-standard name map,
    /// the flags and the any-class MOC (which stays published).
    void cleanup();

    // ---- query interface ---------------------------------------------------

    /// The function tables of the query interface versions "2", "3", "4" and
    /// "4_1", through which readers outside the repository (plug-ins, other
    /// components) read the published records. Never null.
    const ZefOamSpiModelRepository_2* getIf2() const;
    const ZefOamSpiModelRepository_3* getIf3() const;
    const ZefOamSpiModelRepository_4* getIf4() const;
    const ZefOamSpiModelRepository_4_1* getIf4_1() const;

    // ---- compilation (ModelRepositoryCompile.cpp) ---------------------------

    /// Resolves references into pointers, chains containments, fills
    /// defaults and fixes each MOM's root class.
    void compileModel();
    void setMomsRootMoc();
    void checkSetParentMimId(ContWrapper& cont);
    void checkSetChildMimId(ContWrapper& cont);
    void setContParentAndChildMoc(ContWrapper& cont);
    void compileParentListConts();
    void compileChildListConts();
    void setSystemCreatedforConts();
    void setAttrsDataType(MocWrapper& moc);
    void setMoActionDataType(MocWrapper& moc);
    void setBiDirectionalAssociations();
    void setBiDirectionalAssociationEnds(BiDirAssociationWrapper& assoc);
    void setBiDirectionalMocs(BiDirAssociationWrapper& assoc);
    void setBiDirectionalAttributes(BiDirAssociationWrapper& assoc);
    void setUniDirectionalAssociations();
    /// Picks the model's tree root; null when any finding is an error.
    void findTreeRoot();
    /// Resolves the data types of `first` and of the members chained after
    /// it: the members of a struct (Container StructWrapper, Member
    /// StructMemberWrapper) or the parameters of an action (MoActionWrapper,
    /// ParameterWrapper). Defined for these two pairs only.
    template <typename Container, typename Member>
    void setMoAttributeDatatypeTpl(Container& container, Member* first);
    /// Files every MOM that states a modelling-standard name and version
    /// ("QCIM"/"qcimMomName", "QCIM"/"qcimMomVersion") under that pair in the
    /// modelling-standard name map (a later MOM overwrites an earlier one).
    void buildQcimNameMap();

private:
    // The reporting channel (report) as handed to the compilation helpers
    // that live outside this class.
    CompileReporter compileReporter();

public:

    // ---- validation (ModelRepositoryValidate.cpp) ---------------------------

    /// Runs every consistency check and finally findTreeRoot(); ends the
    /// pattern checker child, as no pattern is checked after it.
    void validateModel();

    /// Starts the pattern checker child before the model is loaded, while
    /// the process is small (see PatternWorker::prepare).
    void preparePatternChecks() { _patterns.prepare(); }
    void checkMoms();
    void checkEnums();
    void checkDdts();
    void checkMocs();
    void checkAttrs(MocWrapper& moc);
    void checkActions(MocWrapper& moc);
    void checkParameters(MoActionWrapper& action);
    void checkConts();
    void checkStructs();
    void checkAssociationEnds();
    void checkBiDirectionalAssociations();
    void checkUniDirectionalAssociations();
    /// True when `text` matches the POSIX extended regular expression
    /// `pattern`; a pattern that does not compile is reported and is no match.
    bool doRegexp(std::string pattern, std::string text);

    // ---- findings ----------------------------------------------------------

    /// Reports a finding of the repository itself ("ModelRepository"):
    /// logs it at its level and records it (see the reporter form below).
    void checkThrowException(unsigned short level, const char* format, ...)
        __attribute__((format(printf, 3, 4)));

    /// Records a finding of `who`: level 3 as "ERROR, <who>: <message>",
    /// level 4 as "WARNING, <who>: <message>", any other level as the
    /// message alone (cut at 4095 characters). Outside standalone mode an
    /// error throws Zef::ZefException "<who>: invalid model". The caller
    /// logs the message itself.
    void checkThrowException(const char* who, unsigned short level, const char* format, va_list args)
        __attribute__((format(printf, 4, 0)));
    /// The same, for a finding about the element at `where` (the parser
    /// names the element it is reading). Without a known place the finding
    /// points at the record its text names, or at the record of the
    /// innermost FindingSubject.
    void checkThrowException(const SourceLocation& where, const char* who, unsigned short level, const char* format,
                             va_list args) __attribute__((format(printf, 5, 0)));

    /// The findings in the order reported. Never cleared by cleanup().
    const std::list<std::string>& getMessages() const { return _messages; }
    /// Each finding of getMessages(), at the same place, described with its
    /// rule, its place in the model files and the identity key it names.
    const std::vector<Finding>& getFindings() const { return _findings; }

    /// Records that a model file is being read and keeps its name for the
    /// locations of the file's records: the same text gives the same
    /// pointer for the life of the repository.
    const std::string* noteModelFile(const std::string& fileName);
    /// The model files noted, in the order they were first read.
    const std::vector<const std::string*>& getModelFilesRead() const { return _modelFilesRead; }

    /// The record of the innermost FindingSubject, or null.
    const GeneralPropertiesWrapper* getFindingSubject() const { return _findingSubject; }
    /// Set by FindingSubject only.
    void setFindingSubject(const GeneralPropertiesWrapper* record) { _findingSubject = record; }

    void setStandalone(bool standalone) { _standalone = standalone; }
    bool isStandalone() const { return _standalone; }
    void setMainRootName(const std::string& name) { _mainRootName = name; }
    const std::string& getMainRootName() const { return _mainRootName; }

private:
    // Logs a finding at its level and reports it as the repository's own.
    void report(unsigned short level, const char* format, ...) __attribute__((format(printf, 3, 4)));
    // The same for a finding about the record defined at `where`.
    void reportAt(const SourceLocation& where, unsigned short level, const char* format, ...)
        __attribute__((format(printf, 4, 5)));
    void vreport(const SourceLocation& where, unsigned short level, const char* format, va_list args)
        __attribute__((format(printf, 4, 0)));
    // Describes the finding just formatted into the message buffer.
    Finding describeFinding(const SourceLocation& where, const char* who, unsigned short level,
                            const char* format) const;
    // The MOMs of one name, in the order added.
    const std::vector<MomWrapper*>& momsNamed(const std::string& mimName);
    // The common checks of a map-based add: null, incomplete, duplicate.
    template <typename Map, typename Record, typename IncompleteText>
    ZefReturnT addRecord(Map& map, Record* record, const char* nullText, IncompleteText incompleteText,
                         const char* duplicateFormat);

    std::list<std::string> _messages;
    std::vector<Finding> _findings;
    char _messageBuffer[4096];
    std::list<MomWrapper*> _moms;
    const ZefOamSpiMoc* _treeRoot = nullptr;
    MocMap _mocs;
    DdtMap _ddts;
    EnumMap _enums;
    ContMap _conts;
    StructMap _structs;
    BiDirMap _bidirs;
    UniDirMap _unidirs;
    AssocEndMap _assocEnds;
    MocNameCache _mocNameCache;
    QcimNameMap _qcimNames;
    bool _standalone = false;
    std::string _mainRootName;
    MocWrapper _anyClassMoc;

    // Indexes that keep lookups by name linear in the size of the model.
    std::set<std::string> _momKeys;
    std::unordered_map<std::string, std::vector<MomWrapper*>> _momsByName;
    bool _momsByNameValid = false;
    std::unordered_map<std::string, std::vector<MocWrapper*>> _mocsByName;
    bool _mocsByNameValid = false;
    std::unordered_map<std::string, MomWrapper*> _qcimMomIndex;
    bool _qcimMomIndexValid = false;
    // The targets type references were resolved to, while compileModel runs.
    std::unique_ptr<ResolvedReferences> _resolvedReferences;
    // The pattern checks of doRegexp, within bounds; each pattern is
    // compiled once (in the checker's own process).
    PatternGuard _patterns{InputLimits::fromEnvironment()};

    // The names of the model files read, for the locations of records.
    std::set<std::string> _modelFileNames;
    std::vector<const std::string*> _modelFilesRead;
    const GeneralPropertiesWrapper* _findingSubject = nullptr;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_MODEL_REPOSITORY_H
