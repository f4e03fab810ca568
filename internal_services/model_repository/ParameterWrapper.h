#ifndef ZEF_PARAMETER_WRAPPER_H
#define ZEF_PARAMETER_WRAPPER_H

#include <cstdint>
#include <string>

#include "GeneralPropertiesWrapper.h"
#include "TypedElementWrapper.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

class MoActionWrapper;

/// The record of one parameter of an action. Owns its published
/// ZefOamSpiParameter; the parameters of an action are owned by the action
/// and chained through next in definition order. Its key is its name, unique
/// only within its action.
class ParameterWrapper : public GeneralPropertiesWrapper, public TypedElementWrapper {
public:
    /// An empty parameter: no name, no action, no type, multiplicity 1..1
    /// (not given), unique, not ordered, status 1, handles 0.
    ParameterWrapper();
    /// Frees the strings of the record.
    ~ParameterWrapper() override;

    ParameterWrapper(const ParameterWrapper&) = delete;
    ParameterWrapper& operator=(const ParameterWrapper&) = delete;

    /// The parameter name itself. Logs (error) and returns the empty string
    /// for null ("Can not get id, patameter name is 0.") and for the empty
    /// name ("Can not get id, parameter name is not set.").
    static std::string getParameterId(const char* name);
    /// The identity key, built on the first successful call and cached.
    std::string getId() const override;

    ZefOamSpiParameter& getStruct() { return _parameter; }
    const ZefOamSpiParameter& getStruct() const { return _parameter; }

    /// The owning action (wrapper and published record); null unlinks. ZefOk.
    ZefReturnT setMoAction(MoActionWrapper* action);
    MoActionWrapper* getMoAction() const { return _action; }

    /// Links `next` behind this parameter (wrapper and record); null ends
    /// the chain. ZefOk.
    ZefReturnT setNext(ParameterWrapper* next);
    ParameterWrapper* getNext() const { return _next; }

    /// Name of the MOM of the action's class; logs "MoAction is not set",
    /// "MOC is not set" or "MOM is not set" (error) and returns the empty
    /// string when a link is missing.
    std::string getMomName() const;
    /// Version of that MOM, with the same failures as getMomName.
    std::string getMomVersion() const;

    /// Query handle of the parameter; 0 until registered.
    uint64_t getHandle() const { return _parameter.handle; }
    void setHandle(uint64_t handle) { _parameter.handle = handle; }

    /// The dump: "-- Parameter (<name>) --", the general properties and the
    /// data type block, each line behind `indent`.
    std::string toString(const std::string& indent = std::string()) const;
    /// Name of a type code ("INT8" ... "VOID", "DOUBLE"); the empty text for
    /// 0 and unknown codes.
    static std::string toString(ZefOamSpiMrType_3 type);

private:
    /// The MOM of the action's class, or null after logging which link is missing.
    const ZefOamSpiMom* findMom() const;

    ZefOamSpiParameter _parameter;
    MoActionWrapper* _action = nullptr;
    ParameterWrapper* _next = nullptr;
    mutable std::string _id;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_PARAMETER_WRAPPER_H
