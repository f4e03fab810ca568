#ifndef ZEF_MOC_WRAPPER_H
#define ZEF_MOC_WRAPPER_H

#include <cstdint>
#include <string>
#include <vector>

#include "GeneralPropertiesWrapper.h"
#include "KeyHashIndex.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class AttrWrapper;
class BiDirAssociationWrapper;
class MoActionWrapper;
class UniDirAssociationWrapper;

/// The record of one managed object class. Owns its published ZefOamSpiMoc,
/// keeps its attributes and actions in definition order (chained in the
/// published records through their next pointers) and the associations it
/// takes part in, in query-handle order once sorted.
///
/// The attribute, action and association records belong to the repository;
/// the class only lists them.
class MocWrapper : public GeneralPropertiesWrapper {
public:
    using AttrList = std::vector<AttrWrapper*>;
    using MoActionList = std::vector<MoActionWrapper*>;
    using BiDirList = std::vector<BiDirAssociationWrapper*>;
    using UniDirList = std::vector<UniDirAssociationWrapper*>;

    /// An empty class: no links, not read-only, not root, not system
    /// created, status 1, handles 0.
    MocWrapper();
    /// Frees the strings of the record (the listed records are not freed).
    ~MocWrapper() override;

    MocWrapper(const MocWrapper&) = delete;
    MocWrapper& operator=(const MocWrapper&) = delete;

    /// mom name ~ mom version ~ class name. Logs (error) and returns the
    /// empty string for a null part ("Couldn't get moc id, mom name is
    /// NULL", "... mom version is NULL", "... moc name is NULL") or an empty
    /// one ("Couldn't get moc id, mom name isn't set", "... mom version isn't
    /// set", "... moc name isn't set").
    static std::string getMocId(const char* momName, const char* momVersion, const char* mocName);
    /// The key of a published class through its MOM: "Couldn't get moc id,
    /// moc is NULL"; without a MOM "Couldn't get moc id, mom is NULL. moc
    /// name '%s'" (or "Couldn't get moc id, mom is NULL. moc has no name.").
    static std::string getMocId(const ZefOamSpiMoc* moc);

    /// The identity key, built on the first successful call and cached.
    std::string getId() const override;

    ZefOamSpiMoc& getStruct() { return _moc; }
    const ZefOamSpiMoc& getStruct() const { return _moc; }

    // Pointer and flag setters always succeed (ZefOk).
    ZefReturnT setMom(const ZefOamSpiMom* mom);
    ZefReturnT setIsReadOnly(bool isReadOnly);
    ZefReturnT setIsRoot(bool isRoot);
    /// Marks the class as created by the system.
    ZefReturnT setIsSystemCreated();
    ZefReturnT setMoAttribute(const ZefOamSpiMoAttribute* attr);
    ZefReturnT setChildContainment(const ZefOamSpiContainment* cont);
    ZefReturnT setParentContainment(const ZefOamSpiContainment* cont);

    /// First value wins: ZefAlreadyExists when a constraint is set.
    ZefReturnT setConstraint(const std::string& constraint);
    /// Replaces any constraint and marks it as coming from validation
    /// rules, so that a plain constraint given later is refused. ZefOk.
    ZefReturnT setValidationRulesConstraint(const std::string& constraint);
    bool getHasValidationRulesConstraint() const { return _hasValidationRulesConstraint; }
    bool getIsSystemCreated() const { return _isSystemCreated; }

    /// Appends an attribute: ZefNotFound for null, ZefInvalidArgument for
    /// an attribute without identity key, ZefAlreadyExists (nothing changes)
    /// for a key already listed. The first attribute becomes the record's
    /// moAttribute; later ones are chained behind the last.
    ZefReturnT addAttr(AttrWrapper* attr);
    /// addAttr for actions (the record's moAction and the action chain).
    ZefReturnT addMoAction(MoActionWrapper* action);
    const AttrList& getAttrsList() const { return _attrs; }
    const MoActionList& getMoActionList() const { return _actions; }
    /// The listed attribute or action with the identity key `key`, or null;
    /// answered from the key index, without a scan of a long list.
    const AttrWrapper* findAttr(const std::string& key) const;
    const MoActionWrapper* findMoAction(const std::string& key) const;

    /// Lists an association the class takes part in: ZefNotFound for null,
    /// ZefInvalidArgument for one without identity key; no duplicate check.
    ZefReturnT addBiDirWrapper(BiDirAssociationWrapper* assoc);
    ZefReturnT addUniDirWrapper(UniDirAssociationWrapper* assoc);
    const BiDirList& getBiDirList() const { return _biDirs; }
    const UniDirList& getUniDirList() const { return _uniDirs; }

    /// Query handle of the first listed bidirectional association, 0 when
    /// there is none.
    uint64_t getFirstBiDirHandle() const;
    /// The handle listed after `handle`; 0 when it is the last or unknown.
    uint64_t getNextBiDirHandle(uint64_t handle) const;
    uint64_t getFirstUniDirHandle() const;
    uint64_t getNextUniDirHandle(uint64_t handle) const;
    /// Sorts the lists ascending by query handle, so that the first/next
    /// walk follows handle order; run once all handles are assigned.
    void sortBiDirAssociationWrappers();
    void sortUniDirAssociationWrappers();
    /// The orders of those sorts: ascending unsigned 64-bit handle.
    static bool sortOnHandles(const BiDirAssociationWrapper* a, const BiDirAssociationWrapper* b);
    static bool sortOnUniDirHandles(const UniDirAssociationWrapper* a, const UniDirAssociationWrapper* b);

    /// Key of the class's MOM (MomWrapper::getMomId of the record's mom).
    std::string getMomId() const;
    /// Key of the first containment with this class as parent.
    std::string getChildContId() const;
    /// Key of the first containment with this class as child.
    std::string getParentContId() const;

    /// Query handle of the class; 0 until registered.
    uint64_t getHandle() const { return _moc.handle; }
    void setHandle(uint64_t handle) { _moc.handle = handle; }

    /// The dump: "-- Moc (<name>)--", one line per property, then the dump
    /// of every attribute.
    std::string toString() const;

private:
    ZefOamSpiMoc _moc;
    bool _isSystemCreated = false;
    bool _hasValidationRulesConstraint = false;
    AttrList _attrs;
    MoActionList _actions;
    KeyHashIndex _attrKeys;
    KeyHashIndex _actionKeys;
    BiDirList _biDirs;
    UniDirList _uniDirs;
    mutable std::string _id;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_MOC_WRAPPER_H
