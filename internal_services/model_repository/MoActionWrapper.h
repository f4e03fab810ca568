#ifndef ZEF_MO_ACTION_WRAPPER_H
#define ZEF_MO_ACTION_WRAPPER_H

#include <cstdint>
#include <string>

#include "CachedKey.h"
#include "GeneralPropertiesWrapper.h"
#include "MrMemberListTpl.h"
#include "ParameterWrapper.h"
#include "TypedElementWrapper.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// The record of one action of a class. Owns its published
/// ZefOamSpiMoAction and its parameters; the actions of a class are chained
/// through next in definition order. The data type setters (inherited from
/// TypedElementWrapper) describe the action's result.
class MoActionWrapper : public GeneralPropertiesWrapper, public TypedElementWrapper {
public:
    using ParameterList = MrMemberListTpl<ParameterWrapper>::List;

    /// An empty action: no name, no class, no result type, no parameters,
    /// status 1, handles 0.
    MoActionWrapper();
    /// Frees the strings of the record and destroys the parameters.
    ~MoActionWrapper() override;

    MoActionWrapper(const MoActionWrapper&) = delete;
    MoActionWrapper& operator=(const MoActionWrapper&) = delete;

    /// mom name ~ mom version ~ class name ~ action name. Logs (error) and
    /// returns the empty string for a missing part: "Can not get MoAction
    /// id, mom name is not set" (null mom name), "Can not get MoAction id,
    /// mom name is not set." (empty mom name), "Can not get MoAction id, mom
    /// version is not set.", "Can not get MoAction id, moc name is not set.",
    /// "Can not get MoAction id, MoAction name is not set." (null or empty).
    static std::string getMoActionId(const char* momName, const char* momVersion, const char* mocName,
                                     const char* actionName);
    /// The key of a published action through its class and MOM: "Can not
    /// get MoAction id, MoAction is not set." for null, "Can not get
    /// MoAction id, moc is not set.", "Can not get MoAction id, mocs mom is
    /// not set.".
    static std::string getMoActionId(const ZefOamSpiMoAction* action);
    /// The identity key, built on the first successful call and cached.
    std::string getId() const override;

    ZefOamSpiMoAction& getStruct() { return _action; }
    const ZefOamSpiMoAction& getStruct() const { return _action; }

    /// The owning class. ZefOk.
    ZefReturnT setMoc(const ZefOamSpiMoc* moc);

    /// Appends a parameter and takes ownership of it (see
    /// MrMemberListTpl::addMember for the refusals, in which case the caller
    /// keeps it). The first parameter becomes the record's parameters field.
    ZefReturnT addParameter(ParameterWrapper* parameter);
    /// The first parameter, or null.
    ParameterWrapper* getParameterListFront() const { return _parameters.front(); }
    const ParameterList& getParameterList() const { return _parameters.getList(); }

    /// Links `next` behind this action (wrapper and record); null ends the
    /// chain. ZefOk.
    ZefReturnT setNext(MoActionWrapper* next);
    MoActionWrapper* getNext() const { return _next; }

    /// Query handle of the action; 0 until registered.
    uint64_t getHandle() const { return _action.handle; }
    void setHandle(uint64_t handle) { _action.handle = handle; }

    /// The dump: "-- MoAction (<name>) --", the general properties, the
    /// data type block of the result, then the dump of every parameter
    /// indented by four more blanks.
    std::string toString(const std::string& indent = std::string()) const;

private:
    ZefOamSpiMoAction _action;
    MrMemberListTpl<ParameterWrapper> _parameters;
    MoActionWrapper* _next = nullptr;
    mutable CachedKey _id;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_MO_ACTION_WRAPPER_H
