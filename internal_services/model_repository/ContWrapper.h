#ifndef ZEF_CONT_WRAPPER_H
#define ZEF_CONT_WRAPPER_H

#include <cstdint>
#include <string>

#include "GeneralPropertiesWrapper.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// The record of one containment: a parent class holds a child class with
/// a cardinality. Owns its published ZefOamSpiContainment. The parser gives
/// it names only (class names, mim names and versions); compilation
/// resolves them into the record's class pointers and chains all
/// containments that share a parent class, resp. a child class.
///
/// A containment between classes of different MOMs (inter-mim) has no MOM
/// of its own and is keyed by its parent's mim name.
class ContWrapper : public GeneralPropertiesWrapper {
public:
    /// An empty containment, inter-mim or not: no names, no links,
    /// cardinality 0..32767, not system created, creatable and deletable,
    /// status 1, handles 0.
    explicit ContWrapper(bool interMim = false);
    /// Frees the strings of the record (linked records are not freed).
    ~ContWrapper() override;

    ContWrapper(const ContWrapper&) = delete;
    ContWrapper& operator=(const ContWrapper&) = delete;

    /// mom name ~ mom version ~ containment name. Logs (error) and returns
    /// the empty string for a null part ("Couldn't get containment id,
    /// because momName is NULL", "... because momVersion is NULL", "...
    /// because contName is NULL") or an empty one ("Couldn't get containment
    /// id, because momName is empty", "... because momVersion is empty", "...
    /// because contName is empty").
    static std::string getContId(const char* momName, const char* momVersion, const char* contName);
    /// The key of a published containment: "Couldn't get containment id,
    /// cont is NULL" for null. A containment of one MOM is keyed through its
    /// MOM; one without a MOM (inter-mim) by the mim name of its resolved
    /// parent class and its name, as the registry files it, and "Could not
    /// get mim name for child moc" is logged when that mim cannot be named.
    static std::string getContId(const ZefOamSpiContainment* cont);
    /// The identity key, built on the first successful call and cached: an
    /// inter-mim containment parent mim name ~ name (only once it has a
    /// name), any other getContId of its record.
    std::string getId() const override;

    ZefOamSpiContainment& getStruct() { return _cont; }
    const ZefOamSpiContainment& getStruct() const { return _cont; }
    bool isInterMim() const { return _interMim; }

    // Pointer and flag setters always succeed (ZefOk).
    ZefReturnT setMom(const ZefOamSpiMom* mom);
    ZefReturnT setParentMoc(const ZefOamSpiMoc* moc);
    ZefReturnT setChildMoc(const ZefOamSpiMoc* moc);
    ZefReturnT setIsSystemCreated(bool isSystemCreated);
    ZefReturnT setNextContainmentSameParentMoc(const ZefOamSpiContainment* next);
    ZefReturnT setNextContainmentSameChildMoc(const ZefOamSpiContainment* next);
    /// Chains `next` behind this containment in the list of its parent
    /// class. ZefNotFound for null.
    ZefReturnT setNextContainmentSameParentMoc(const ContWrapper* next);
    /// Chains `next` behind this containment in the list of its child
    /// class. ZefNotFound for null.
    ZefReturnT setNextContainmentSameChildMoc(const ContWrapper* next);
    ZefReturnT setCanCreate(bool canCreate);
    ZefReturnT setCanDelete(bool canDelete);

    /// Lower cardinality: the empty text means 0; otherwise int16 text.
    /// ZefInvalidArgument (nothing changes) for a text that does not convert.
    ZefReturnT setMin(const std::string& text);
    /// Upper cardinality: the empty text means unbounded (32767); otherwise
    /// int16 text. ZefInvalidArgument (nothing changes) for a text that does
    /// not convert or a negative value.
    ZefReturnT setMax(const std::string& text);

    /// The mim names and versions of both ends: every call stores its text
    /// (later calls overwrite) and traces it. ZefOk.
    ZefReturnT setParentMimName(const std::string& name);
    ZefReturnT setParentMimVersion(const std::string& version);
    ZefReturnT setChildMimName(const std::string& name);
    ZefReturnT setChildMimVersion(const std::string& version);
    /// The class names of both ends, first value wins: ZefAlreadyExists for
    /// a second name (the first stays), ZefInvalidArgument (logged) for the
    /// empty text.
    ZefReturnT setParentMocName(const std::string& name);
    ZefReturnT setChildMocName(const std::string& name);

    const std::string& getParentMimName() const { return _parentMimName; }
    const std::string& getParentMimVersion() const { return _parentMimVersion; }
    const std::string& getChildMimName() const { return _childMimName; }
    const std::string& getChildMimVersion() const { return _childMimVersion; }
    const std::string& getParentMocName() const { return _parentMocName; }
    const std::string& getChildMocName() const { return _childMocName; }
    /// Key of the parent class, built from the names this containment holds
    /// (MocWrapper::getMocId of parent mim name, version and class name;
    /// its failures are logged there). The class need not be resolved.
    std::string getParentMocId() const;
    /// Key of the child class, built likewise from the child names.
    std::string getChildMocId() const;

    /// Whether the parent may create the child: for an ordinary containment
    /// the stated right; for a system-created one only when creation is
    /// stated and deletion is not. Traces "canCreate true|false".
    bool getCanCreate() const;
    /// Whether the parent may delete the child: for an ordinary containment
    /// the stated right; for a system-created one only when deletion is
    /// stated and creation is not. Traces "canDelete true|false".
    bool getCanDelete() const;
    bool getIsSystemCreated() const { return _cont.isSystemCreated; }

    /// Query handle of the containment; 0 until registered.
    uint64_t getHandle() const { return _cont.handle; }
    void setHandle(uint64_t handle) { _cont.handle = handle; }

    /// The dump: "-- Containment (<name>) --" (or "-- InterMimContainment
    /// (<name>) --"), the general properties, the keys of both classes, the
    /// cardinality, the flags, the rights and the keys of the next
    /// containments with the same parent and with the same child.
    std::string toString() const;

private:
    ZefOamSpiContainment _cont;
    bool _interMim;
    bool _canCreate = true;
    bool _canDelete = true;
    std::string _parentMimName;
    std::string _parentMimVersion;
    std::string _childMimName;
    std::string _childMimVersion;
    std::string _parentMocName;
    std::string _childMocName;
    mutable std::string _id;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_CONT_WRAPPER_H
