// Compilation of associations: links each association to its ends, finds
// the class at each end and the attribute each end reserves, and lists the
// associations with their classes.

#include "ModelRepository.h"

#include <set>
#include <string>
#include <vector>

#include "AssociationEndWrapper.h"
#include "AttrWrapper.h"
#include "BiDirAssociationWrapper.h"
#include "CompileReporter.h"
#include "MocWrapper.h"
#include "MrUtil.h"
#include "UniDirAssociationWrapper.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

namespace {

/// The class at an association end: the first class in key order that the
/// end reserves, looked for among the classes of its classifier's name (the
/// repository's index by plain name) instead of by a walk over all classes.
class ClassesByName {
public:
    explicit ClassesByName(ModelRepository& repository) : _repository(repository) {}

    /// The first class in key order that `end` reserves, or null.
    MocWrapper* endClass(const AssociationEndWrapper* end) const
    {
        if (end == nullptr) {
            return nullptr;
        }
        for (MocWrapper* moc : _repository.mocsNamed(end->getClassifier())) {
            if (end->isReservedMoc(moc)) {
                return moc;
            }
        }
        return nullptr;
    }

private:
    ModelRepository& _repository;
};

AssociationEndWrapper* findEnd(const ModelRepository& repository, const std::string& key)
{
    const ModelRepository::AssocEndMap& ends = repository.getAssocEndMap();
    const auto found = ends.find(key);
    return found == ends.end() ? nullptr : found->second;
}

/// Replaces an end's modelling-standard mim name by its MOM's name and version.
void translateEndMim(ModelRepository& repository, AssociationEndWrapper& end)
{
    std::string name;
    std::string version;
    if (repository.getMimInfoFromQcimName(end.getMimName(), name, version)) {
        end.setMimName(name);
        end.setMimVersion(version);
    }
}

/// The texts of one end (first or second) of a bidirectional association.
struct BiDirEndTexts {
    const std::string& (BiDirAssociationWrapper::*endKey)() const;
    ZefReturnT (BiDirAssociationWrapper::*setEnd)(const ZefOamSpiAssociationEnd*);
    const char* endUnresolved;   // record not linked
    const char* endTrace;
    const char* mocUnresolved;   // also: the crosswise end has no class
    const char* mocTrace;
    const char* noAttributes;    // the end's class has no attributes
    const char* attrUnresolved;  // the crosswise class lacks the end's attribute
    const char* attrTrace;
};

const BiDirEndTexts firstEndTexts = {
    &BiDirAssociationWrapper::getFirstAssociationEndId,
    &BiDirAssociationWrapper::setFirstAssociationEnd,
    "Failed to resolve first association end for bidirectional (%s)",
    "First association end (%s)",
    "Failed to resolve first association end moc for bidirectional (%s)",
    "First association end moc (%s)",
    "Failed to resolve first association end attributes for bidirectional (%s)",
    "Failed to resolve association end attribute for first association end (%s)",
    "First association end attribute (%s)",
};

const BiDirEndTexts secondEndTexts = {
    &BiDirAssociationWrapper::getSecondAssociationEndId,
    &BiDirAssociationWrapper::setSecondAssociationEnd,
    "Failed to resolve second association end for bidirectional (%s)",
    "Second association end (%s)",
    "Failed to resolve second association end moc for bidirectional (%s)",
    "Second association end moc (%s)",
    "Failed to resolve second association end attributes for bidirectional (%s)",
    "Failed to resolve association end attribute for second association end (%s)",
    "Second association end attribute (%s)",
};

/// The classes whose association lists grew; each list is sorted once,
/// after all associations of the pass are listed, rather than after each
/// addition.
using GrownLists = std::set<MocWrapper*>;

void sortBiDirLists(const GrownLists& classes)
{
    for (MocWrapper* moc : classes) {
        moc->sortBiDirAssociationWrappers();
    }
}

void sortUniDirLists(const GrownLists& classes)
{
    for (MocWrapper* moc : classes) {
        moc->sortUniDirAssociationWrappers();
    }
}

/// Gives each end of a bidirectional association its class and lists the
/// association with each class it ends at (once, also when both ends are
/// the same class).
void resolveBiDirEndClasses(ModelRepository& repository, BiDirAssociationWrapper& assoc, const ClassesByName& classes,
                            const CompileReporter& reporter, GrownLists& grown)
{
    const std::string key = assoc.getId();
    const MocWrapper* firstClass = nullptr;
    for (const BiDirEndTexts* texts : {&firstEndTexts, &secondEndTexts}) {
        AssociationEndWrapper* end = findEnd(repository, (assoc.*texts->endKey)());
        MocWrapper* moc = classes.endClass(end);
        if (moc == nullptr) {
            reporter.report(ZEF_LOG_LEVEL_ERROR, texts->mocUnresolved, key.c_str());
            continue;
        }
        end->setMoc(&moc->getStruct());
        ZEF_TRACE(texts->mocTrace, key.c_str());
        if (moc != firstClass) {
            moc->addBiDirWrapper(&assoc);
            grown.insert(moc);
        }
        firstClass = moc;
    }
}

/// One unidirectional association: its end, its origin class, the end's
/// class and the end's attribute in the origin class.
void setUniDirectionalAssociation(ModelRepository& repository, UniDirAssociationWrapper& assoc,
                                  const ClassesByName& classes, const CompileReporter& reporter, GrownLists& grown)
{
    const std::string key = assoc.getId();
    AssociationEndWrapper* end = findEnd(repository, assoc.getAssociationEndId());
    if (end != nullptr) {
        translateEndMim(repository, *end);
        assoc.setAssociationEnd(&end->getStruct());
        ZEF_TRACE("association end (%s)", end->getId().c_str());
    } else {
        reporter.report(ZEF_LOG_LEVEL_ERROR, "Failed to resolve end association for unidirectional (%s)", key.c_str());
    }

    const ModelRepository::MocMap& mocs = repository.getMocMap();
    const auto originEntry = mocs.find(assoc.getOriginMocId());
    if (originEntry == mocs.end()) {
        reporter.report(ZEF_LOG_LEVEL_ERROR, "Did not find origin Moc for unidir association (%s).", key.c_str());
        return;
    }
    MocWrapper& origin = *originEntry->second;
    assoc.setOriginMoc(&origin.getStruct());

    MocWrapper* endMoc = classes.endClass(end);
    if (endMoc != nullptr) {
        end->setMoc(&endMoc->getStruct());
        ZEF_TRACE("association end moc (%s)", endMoc->getId().c_str());
        origin.addUniDirWrapper(&assoc);
        grown.insert(&origin);
    } else if (!assoc.getIsExternal()) {
        reporter.report(ZEF_LOG_LEVEL_ERROR, "Failed to resolve association end moc for unidirectional (%s)",
                        key.c_str());
    } else {
        // The class at an external end lives in another model.
        origin.addUniDirWrapper(&assoc);
        grown.insert(&origin);
        ZEF_TRACE("UniDirAssociation (%s) is external, association end moc (%s) is set with no attribute and moc",
                  key.c_str(), end != nullptr ? end->getClassifier().c_str() : "");
    }

    ZEF_TRACE("Uni Dir association end attribute");
    if (end != nullptr) {
        for (const AttrWrapper* attr : origin.getAttrsList()) {
            if (end->isReservedAttribute(attr)) {
                end->setAttribute(&attr->getStruct());
                ZEF_TRACE("found association end attribute (%s)", attr->getId().c_str());
                return;
            }
        }
    }
    reporter.report(ZEF_LOG_LEVEL_ERROR, "Failed to resolve  association end attribute for unidirectional (%s)",
                    key.c_str());
}

} // namespace

void ModelRepository::setBiDirectionalAssociations()
{
    const ClassesByName classes(*this);
    const CompileReporter reporter = compileReporter();
    GrownLists grown;
    for (const auto& entry : _bidirs) {
        ZEF_TRACE("Setting bidirectional association (%s)", entry.first.c_str());
        setBiDirectionalAssociationEnds(*entry.second);
        resolveBiDirEndClasses(*this, *entry.second, classes, reporter, grown);
        setBiDirectionalAttributes(*entry.second);
    }
    sortBiDirLists(grown);
}

void ModelRepository::setBiDirectionalAssociationEnds(BiDirAssociationWrapper& assoc)
{
    const std::string key = assoc.getId();
    for (const BiDirEndTexts* texts : {&firstEndTexts, &secondEndTexts}) {
        AssociationEndWrapper* end = findEnd(*this, (assoc.*texts->endKey)());
        if (end == nullptr) {
            report(ZEF_LOG_LEVEL_ERROR, "Failed to resolve bidirectional (%s)", key.c_str());
            continue;
        }
        translateEndMim(*this, *end);
        const ZefOamSpiAssociationEnd* record = &end->getStruct();
        (assoc.*texts->setEnd)(record);
        if (record == nullptr) {
            report(ZEF_LOG_LEVEL_ERROR, texts->endUnresolved, key.c_str());
        } else {
            ZEF_TRACE(texts->endTrace, key.c_str());
        }
    }
}

void ModelRepository::setBiDirectionalMocs(BiDirAssociationWrapper& assoc)
{
    const CompileReporter reporter = compileReporter();
    GrownLists grown;
    resolveBiDirEndClasses(*this, assoc, ClassesByName(*this), reporter, grown);
    sortBiDirLists(grown);
}

void ModelRepository::setBiDirectionalAttributes(BiDirAssociationWrapper& assoc)
{
    const std::string key = assoc.getId();
    AssociationEndWrapper* first = findEnd(*this, assoc.getFirstAssociationEndId());
    AssociationEndWrapper* second = findEnd(*this, assoc.getSecondAssociationEndId());
    for (AssociationEndWrapper* end : {first, second}) {
        if (end != nullptr) {
            end->setAttribute(nullptr);
        }
    }
    // Crosswise: an end's attribute is the attribute of the other end's
    // class that bears the end's name.
    const struct {
        AssociationEndWrapper* end;
        AssociationEndWrapper* other;
        const BiDirEndTexts& texts;
        const BiDirEndTexts& otherTexts;
    } sides[] = {{first, second, firstEndTexts, secondEndTexts}, {second, first, secondEndTexts, firstEndTexts}};
    for (const auto& side : sides) {
        const ZefOamSpiMoc* otherClass = side.other != nullptr ? side.other->getStruct().moc : nullptr;
        if (otherClass == nullptr) {
            report(ZEF_LOG_LEVEL_ERROR, side.otherTexts.mocUnresolved, key.c_str());
            continue;
        }
        if (otherClass->moAttribute == nullptr) {
            report(ZEF_LOG_LEVEL_ERROR, side.otherTexts.noAttributes, key.c_str());
            continue;
        }
        const ZefOamSpiMoAttribute* attr = otherClass->moAttribute;
        while (attr != nullptr && !(side.end != nullptr && side.end->isReservedAttribute(attr))) {
            attr = attr->next;
        }
        if (attr == nullptr) {
            report(ZEF_LOG_LEVEL_ERROR, side.texts.attrUnresolved, key.c_str());
            continue;
        }
        side.end->setAttribute(attr);
        ZEF_TRACE(side.texts.attrTrace, key.c_str());
    }
}

void ModelRepository::setUniDirectionalAssociations()
{
    const ClassesByName classes(*this);
    const CompileReporter reporter = compileReporter();
    GrownLists grown;
    for (const auto& entry : _unidirs) {
        ZEF_TRACE("Setting unidirectional association (%s)", entry.first.c_str());
        setUniDirectionalAssociation(*this, *entry.second, classes, reporter, grown);
    }
    sortUniDirLists(grown);
}

} // namespace ZefModelRepositoryService
