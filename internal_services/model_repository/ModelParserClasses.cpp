#include "ModelParser.h"

#include <memory>
#include <set>

#include <Poco/DOM/Attr.h>
#include <Poco/DOM/Node.h>

#include "AttrWrapper.h"
#include "GeneralPropertiesWrapper.h"
#include "MoActionWrapper.h"
#include "MocWrapper.h"
#include "MomWrapper.h"
#include "NameMatch.h"
#include "ParameterWrapper.h"
#include "RefId.h"
#include "StructMemberWrapper.h"
#include "TypeContainerWrapper.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

namespace {

using Poco::XML::Attr;
using Poco::XML::Node;

bool isElement(const Node& node) { return node.nodeType() == Node::ELEMENT_NODE; }

bool contains(const std::set<std::string>& names, const std::string& name) { return names.count(name) != 0; }

// Elements of a class that the format defines and the repository does not use.
const std::set<std::string> kUnsupportedMocChildren = {
    "applicationTag", "notificationTypes", "nonPersistent", "precondition", "lockBeforeDelete",
    "visibility",     "dependencies",      "feature",       "interfaceOnly"};

// Elements of an attribute that the format defines and the repository does not use.
const std::set<std::string> kUnsupportedAttrChildren = {
    "applicationTag", "local",         "static",      "undefined",    "lockBeforeModify", "restartType",
    "indexed",        "visibility",    "dependencies", "dependenciesScript", "feature",   "interfaceOnly",
    "disturbances",   "takesEffect",   "sideEffects", "precondition", "condition",        "counterType",
    "samplingRate",   "scanner",       "counterReset", "counterContext", "getValue"};

// Elements of an action that the format defines and the repository does not
// use: those of an attribute and the two transaction markers.
const std::set<std::string> kUnsupportedActionChildren = [] {
    std::set<std::string> names = kUnsupportedAttrChildren;
    names.insert("transactionRequired");
    names.insert("transactionContraints");
    return names;
}();

// Warnings about a value a class, attribute or action refused: the element
// name and the owner's name.
const char* const kMocAlreadySet = "The %s of the moc (%s) is already set.";
const char* const kMocFailedToSet = "Failed to set %s of the moc (%s).";
const char* const kAttrAlreadySet = "The %s of the attr (%s) is already set.";
const char* const kAttrFailedToSet = "Failed to set %s of the attr (%s).";
const char* const kActionAlreadySet = "The %s of the action (%s) is already set.";
const char* const kActionFailedToSet = "Failed to set %s of the action (%s).";

const char* const kReservedClassName = "ManagedObject";
// Rules of this format are schematron constraints of the class; the format
// name may carry a version suffix, hence the prefix comparison.
const char* const kSchematronFormat = "QCIM_Schematron_1";

} // namespace

// ---- classes -----------------------------------------------------------------

MocWrapper* ModelParser::processMocNode(Node& classElement, MomWrapper& mom) {
    ZEF_TRACE_ENTER(" >> Processing class");
    const ReadingScope reading(*this, classElement);
    std::unique_ptr<MocWrapper, void (*)(MocWrapper*)> moc(new MocWrapper(), &discardMoc);
    placeRecord(*moc, classElement);
    moc->setMom(&mom.getStruct());
    GeneralPropertiesWrapper& properties = moc->getGeneralProperties();

    for (Attr* attr : attributesOf(classElement)) {
        if (!isNamed(attr->name(), "name")) {
            ignoreUnknownAttributeLog(*attr);
            continue;
        }
        const std::string name = getPocoData(attr);
        if (name == kReservedClassName) {
            moc.reset();
            checkThrowException(3,
                                "Invalid class name (ManagedObject) in the model (%s), it is reserved for special "
                                "case when refering to any Managed Object",
                                mom.getId().c_str());
            return nullptr;
        }
        reportSetterResult(properties.setName(name), "Name of moc (%s) is already set.",
                           "Failed to set name of the moc (%s).", name.c_str());
    }

    const std::string mocName = properties.getName();
    for (Node* child = classElement.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (isElement(*child)) {
            processMocChild(*child, *moc, mocName);
        } else {
            ignoreUnsupportedElementTypeLog(*child);
        }
    }

    // The class with its attributes and actions becomes reachable through
    // the query interface once the repository has accepted it.
    mom.setHasMocs(true);
    ZEF_TRACE_LEAVE(" << Processed class: %s.", mocName.c_str());
    return moc.release();
}

void ModelParser::processMocChild(Node& child, MocWrapper& moc, const std::string& mocName) {
    const ReadingScope reading(*this, child);
    GeneralPropertiesWrapper& properties = moc.getGeneralProperties();
    const std::string& name = child.nodeName();
    ZefReturnT result = ZefOk;
    if (isNamed(name, "attribute")) {
        std::unique_ptr<AttrWrapper> attr(processAttrNode(child, moc));
        if (attr) {
            const ZefReturnT added = moc.addAttr(attr.get());
            if (added == ZefOk) {
                attr.release();
            } else if (added == ZefAlreadyExists) {
                const std::string key = attr->getId();
                attr.reset();
                checkThrowException(3, "Could not add attribute since it already exists (%s).", key.c_str());
            }
        }
    } else if (isNamed(name, "action")) {
        std::unique_ptr<MoActionWrapper> action(processActionNode(child, moc));
        if (action) {
            const ZefReturnT added = moc.addMoAction(action.get());
            if (added == ZefOk) {
                action.release();
            } else if (added == ZefAlreadyExists) {
                const std::string key = action->getId();
                action.reset();
                checkThrowException(3, "Could not add action since it already exists (%s).", key.c_str());
            }
        }
    } else if (isNamed(name, "description")) {
        std::string joined;
        result = properties.setDescription(pcdataOf(child, joined));
    } else if (isNamed(name, "specification")) {
        result = properties.setSpecification(getPcdata(child));
    } else if (isStatusWord(name)) {
        result = setStatusWord(name, properties);
    } else if (isNamed(name, "filter")) {
        // The filter text is kept as the class's hidden property.
        result = properties.setHidden(getPcdata(child));
    } else if (isNamed(name, "root")) {
        moc.setIsRoot(true);
    } else if (isNamed(name, "readOnly")) {
        moc.setIsReadOnly(true);
    } else if (isNamed(name, "dependenciesScript")) {
        // A constraint from the validation rules has the last word.
        if (!moc.getHasValidationRulesConstraint()) {
            result = moc.setConstraint(child.innerText());
        }
    } else if (isNamed(name, "domainExtension")) {
        handleDomainExtension(&child, &properties);
    } else if (isNamed(name, "systemCreated")) {
        moc.setIsSystemCreated();
    } else if (isNamed(name, "validationRules")) {
        processMocValidationRules(mocName, child, moc);
    } else if (contains(kUnsupportedMocChildren, name)) {
        ignoreUnsupportedElementLog(child);
    } else {
        ignoreUnknownElementLog(child);
    }
    reportSetterResult(result, kMocAlreadySet, kMocFailedToSet, name.c_str(), mocName.c_str());
}

void ModelParser::discardMoc(MocWrapper* moc) {
    for (AttrWrapper* attr : moc->getAttrsList()) {
        delete attr;
    }
    for (MoActionWrapper* action : moc->getMoActionList()) {
        delete action;
    }
    delete moc;
}

void ModelParser::processMocValidationRules(const std::string& mocName, Node& validationRules, MocWrapper& moc) {
    const ReadingScope reading(*this, validationRules);
    ignoreAllAttributes(validationRules);
    if (!validationRules.hasChildNodes()) {
        checkThrowException(4, "ValidationRules does not contain any rule elements, according to the dtd it must.");
    }
    for (Node* child = validationRules.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        if (!isNamed(child->nodeName(), "rule")) {
            continue;
        }
        if (!child->hasAttributes()) {
            ignoreUnknownElementLog(*child);
            continue;
        }
        std::string format;
        for (Attr* attr : attributesOf(*child)) {
            const std::string& name = attr->name();
            if (isNamed(name, "format")) {
                format = getPocoData(attr);
            } else if (!isNamed(name, "name") && !isNamed(name, "operation") && !isNamed(name, "exceptionText")) {
                ignoreUnknownAttributeLog(*attr);
            }
        }
        if (format.compare(0, std::char_traits<char>::length(kSchematronFormat), kSchematronFormat) != 0) {
            continue;
        }
        if (moc.getHasValidationRulesConstraint()) {
            checkThrowException(4, "Schematron constraint (rule element) of the moc (%s) is already set.",
                                mocName.c_str());
        } else {
            moc.setValidationRulesConstraint(child->innerText());
        }
    }
}

// ---- attributes --------------------------------------------------------------

AttrWrapper* ModelParser::processAttrNode(Node& attribute, MocWrapper& moc) {
    ZEF_TRACE_ENTER(" >> Processing attribute: %s.", nameAttributeOf(attribute).c_str());
    const ReadingScope reading(*this, attribute);
    std::unique_ptr<AttrWrapper> attr(new AttrWrapper());
    placeRecord(*attr, attribute);
    attr->setMoc(&moc.getStruct());
    GeneralPropertiesWrapper& properties = attr->getGeneralProperties();

    readNameAttribute(
        attribute, [&properties](const std::string& name) { return properties.setName(name); },
        "Name of attr (%s) is already set.", "Failed to set name of the attr (%s).");
    const std::string attrName = properties.getName();
    if (attrName.empty()) {
        attr.reset();
        checkThrowException(3, "Attribute name is not set: %s.", attribute.nodeName().c_str());
        return nullptr;
    }

    for (Node* child = attribute.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (isElement(*child)) {
            processAttrChild(*child, *attr, attrName);
        } else {
            ignoreUnsupportedElementTypeLog(*child);
        }
    }
    ZEF_TRACE_LEAVE(" << Processed attribute: %s.", attrName.c_str());
    return attr.release();
}

void ModelParser::processAttrChild(Node& child, AttrWrapper& attr, const std::string& attrName) {
    const ReadingScope reading(*this, child);
    GeneralPropertiesWrapper& properties = attr.getGeneralProperties();
    const std::string& name = child.nodeName();
    ZefReturnT result = ZefOk;
    if (isNamed(name, "dataType")) {
        handleDataType(&child, &attr);
    } else if (isNamed(name, "domainExtension")) {
        handleDomainExtension(&child, &properties);
    } else if (isNamed(name, "description")) {
        std::string joined;
        result = properties.setDescription(pcdataOf(child, joined));
    } else if (isNamed(name, "specification")) {
        result = properties.setSpecification(getPcdata(child));
    } else if (isNamed(name, "mandatory")) {
        result = attr.setIsMandatory(true);
    } else if (isNamed(name, "nonPersistent")) {
        result = attr.setIsPersistent(false);
    } else if (isNamed(name, "readOnly")) {
        result = attr.setIsReadOnly(true);
    } else if (isNamed(name, "key")) {
        result = attr.setIsKey(true);
    } else if (isNamed(name, "restricted")) {
        result = attr.setIsRestricted(true);
    } else if (isNamed(name, "noNotification")) {
        result = attr.setIsNotifiable(false);
    } else if (isStatusWord(name)) {
        result = setStatusWord(name, properties);
    } else if (isNamed(name, "filter")) {
        result = properties.setHidden(getPcdata(child));
    } else if (isNamed(name, "unit")) {
        result = attr.setUnit(getPcdata(child));
    } else if (contains(kUnsupportedAttrChildren, name)) {
        ignoreUnsupportedElementLog(child);
    } else {
        ignoreUnknownElementLog(child);
    }
    reportSetterResult(result, kAttrAlreadySet, kAttrFailedToSet, name.c_str(), attrName.c_str());
}

// ---- actions and parameters --------------------------------------------------

MoActionWrapper* ModelParser::processActionNode(Node& actionElement, MocWrapper& moc) {
    ZEF_TRACE_ENTER(" >> Processing action: %s.", nameAttributeOf(actionElement).c_str());
    const ReadingScope reading(*this, actionElement);
    std::unique_ptr<MoActionWrapper> action(new MoActionWrapper());
    placeRecord(*action, actionElement);
    action->setMoc(&moc.getStruct());
    GeneralPropertiesWrapper& properties = action->getGeneralProperties();

    // The attribute's wording for a failure is the established text.
    readNameAttribute(
        actionElement, [&properties](const std::string& name) { return properties.setName(name); },
        "Name of action (%s) is already set.", "Failed to set name of the attr (%s).");
    const std::string actionName = properties.getName();
    if (actionName.empty()) {
        action.reset();
        checkThrowException(3, "Action name is not set: %s.", actionElement.nodeName().c_str());
        return nullptr;
    }

    bool hasReturnType = false;
    for (Node* child = actionElement.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const ReadingScope readingChild(*this, *child);
        const std::string& name = child->nodeName();
        ZefReturnT result = ZefOk;
        if (isNamed(name, "domainExtension")) {
            handleDomainExtension(child, &properties);
        } else if (isNamed(name, "returnType")) {
            hasReturnType = true;
            handleReturnType(child, action.get());
        } else if (isNamed(name, "parameter")) {
            handleParameter(*child, *action);
        } else if (isNamed(name, "description")) {
            std::string joined;
            result = properties.setDescription(pcdataOf(*child, joined));
        } else if (isStatusWord(name)) {
            result = setStatusWord(name, properties);
        } else if (contains(kUnsupportedActionChildren, name)) {
            ignoreUnsupportedElementLog(*child);
        } else {
            ignoreUnknownElementLog(*child);
        }
        reportSetterResult(result, kActionAlreadySet, kActionFailedToSet, name.c_str(), actionName.c_str());
    }
    if (!hasReturnType) {
        checkThrowException(4, "The action %s is missing returnType", actionName.c_str());
    }

    // The attribute's closing text is the established trace of an action too.
    ZEF_TRACE_LEAVE(" << Processed attribute: %s.", actionName.c_str());
    return action.release();
}

void ModelParser::handleReturnType(Node* returnType, MoActionWrapper* action) {
    const ReadingScope reading(*this, *returnType);
    Node* type = initTypes(*returnType);
    if (type == nullptr) {
        return;
    }
    const std::string& name = type->nodeName();
    ZefReturnT result = ZefOk;
    if (checkHandlePrimitiveDataType(type, action, result)) {
        return;
    }
    if (isNamed(name, "void")) {
        action->setType(ZefMrType3Void);
    } else if (referenceTypeCode(name) != ZefMrType3NotSet) {
        // A result has no default value.
        handleReference(type, action, false);
    } else if (isNamed(name, "sequence")) {
        handleSeqDataType(type, action);
    } else if (isCommonUnsupportedDatatype(name)) {
        ignoreUnsupportedElementLog(*type);
    } else {
        ignoreUnknownElementLog(*type);
    }
}

void ModelParser::handleParameter(Node& parameter, MoActionWrapper& action) {
    ZEF_TRACE_ENTER(" >> handling parameter: %s.", nameAttributeOf(parameter).c_str());
    const ReadingScope reading(*this, parameter);
    std::unique_ptr<ParameterWrapper> param(new ParameterWrapper());
    placeRecord(*param, parameter);
    param->setMoAction(&action);
    GeneralPropertiesWrapper& properties = param->getGeneralProperties();

    // The attribute's wording is the established text for parameters too.
    readNameAttribute(
        parameter, [&properties](const std::string& name) { return properties.setName(name); },
        "Name of attr (%s) is already set.", "Failed to set name of the attr (%s).");
    const std::string paramName = properties.getName();
    if (!parameter.hasChildNodes()) {
        checkThrowException(4, "%s missing sub nodes", paramName.c_str());
    }

    // Only input parameters are supported; "in" is tracked for the warning
    // below, the record carries no direction.
    bool hasIn = false;
    bool hasDataType = false;
    for (Node* child = parameter.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const std::string& name = child->nodeName();
        if (isNamed(name, "description")) {
            std::string joined;
            properties.setDescription(pcdataOf(*child, joined));
        } else if (isNamed(name, "in")) {
            hasIn = true;
        } else if (isNamed(name, "dataType")) {
            hasDataType = true;
            handleDataType(child, param.get());
        } else if (isNamed(name, "domainExtension")) {
            handleDomainExtension(child, &properties);
            // A parameter that may be nil may also be left out.
            if (properties.isNillable()) {
                param->setMin("0");
            }
        } else if (isNamed(name, "inout") || isNamed(name, "out") || isNamed(name, "applicationTag")) {
            ignoreUnsupportedElementLog(*child);
        } else {
            ignoreUnknownElementLog(*child);
        }
    }

    if (!hasIn) {
        checkThrowException(4, "Parameter %s missing in|inout|out element", paramName.c_str());
    }
    if (paramName.empty()) {
        checkThrowException(4, "Parameter %s missing name element", paramName.c_str());
    }
    if (!hasDataType) {
        checkThrowException(4, "Parameter %s missing dataType element", paramName.c_str());
    }
    if (paramName.empty()) {
        param.reset();
        checkThrowException(3, "Actions (%s) parameter has no name attribute set.",
                            action.getName().c_str());
    } else if (action.addParameter(param.get()) == ZefOk) {
        // The action owns its parameters; a refused one (a second parameter
        // of the same name, logged by the action) is dropped.
        param.release();
    }
    ZEF_TRACE_LEAVE(" << handled parameter: %s.", paramName.c_str());
}

// ---- data type elements ------------------------------------------------------

template <typename T>
void ModelParser::handleDataType(Node* dataType, T* record) {
    const ReadingScope reading(*this, *dataType);
    Node* type = initTypes(*dataType);
    if (type == nullptr) {
        return;
    }
    ZefReturnT result = ZefOk;
    if (checkHandlePrimitiveDataType(type, record, result)) {
        return;
    }
    const std::string& name = type->nodeName();
    if (referenceTypeCode(name) != ZefMrType3NotSet) {
        handleReference(type, record, true);
    } else if (isNamed(name, "sequence")) {
        handleSeqDataType(type, record);
    } else if (isNamed(name, "void")) {
        record->setType(ZefMrType3Void);
    } else if (isCommonUnsupportedDatatype(name)) {
        ignoreUnsupportedElementLog(*type);
    } else {
        ignoreUnknownElementLog(*type);
    }
}

template <typename T>
bool ModelParser::checkHandlePrimitiveDataType(Node* type, T* record, ZefReturnT& result) {
    const ReadingScope reading(*this, *type);
    const ZefOamSpiMrType_3 code = primitiveTypeCode(type->nodeName());
    if (code == ZefMrType3NotSet) {
        return false;
    }
    result = record->setType(code);
    if (result != ZefOk) {
        return true;
    }
    ignoreAllAttributes(*type);
    for (Node* child = type->firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        if (!isNamed(child->nodeName(), "defaultValue")) {
            ignoreUnknownElementLog(*child);
            continue;
        }
        const std::string written = getPcdata(*child);
        std::string value = written;
        result = ifPrimitiveValueCheckElseIgnore(value, code);
        if (result != ZefOk) {
            checkThrowException(3, "Invalid attribute (%s) default value (%s)", record->getId().c_str(),
                                written.c_str());
            continue;
        }
        if (code == ZefMrType3Bool) {
            // Stored in one spelling whatever the model wrote.
            value = isNamed(value, "true") || isNamed(value, "1") ? "true" : "false";
        }
        result = record->setDefaultValue(value);
        record->getTypeContainer().addDefaultValue(value);
    }
    return true;
}

template <typename T>
void ModelParser::handleReference(Node* reference, T* record, bool allowDefault) {
    const ReadingScope reading(*this, *reference);
    // Every typed record is also its own reference by name.
    RefId& ref = *record;
    for (Attr* attr : attributesOf(*reference)) {
        if (isNamed(attr->name(), "name")) {
            ref.setRefName(getPocoData(attr));
        } else {
            ignoreUnknownAttributeLog(*attr);
        }
    }
    for (Node* child = reference->firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const std::string& name = child->nodeName();
        if (isNamed(name, "mimName")) {
            std::string joined;
            ref.setRefMomName(pcdataOf(*child, joined));
        } else if (isNamed(name, "mimVersion")) {
            std::string joined;
            ref.setRefMomVersion(pcdataOf(*child, joined));
        } else if (isNamed(name, "defaultValue") && allowDefault) {
            const std::string value = getPcdata(*child);
            record->setDefaultValue(value);
            record->getTypeContainer().addDefaultValue(value);
        } else if (isNamed(name, "defaultValue")) {
            ignoreUnsupportedElementLog(*child);
        } else {
            ignoreUnknownElementLog(*child);
        }
    }
    if (ref.getRefName().empty()) {
        checkThrowException(3, "Reference must have a name attribute: %s.", reference->nodeName().c_str());
    }
    // References are resolved by compilation, by name, mim name and mim version.
    record->setType(referenceTypeCode(reference->nodeName()));
}

template <typename T>
void ModelParser::handleSeqDataType(Node* sequence, T* record) {
    const ReadingScope reading(*this, *sequence);
    ignoreAllAttributes(*sequence);
    const std::string recordName = record->getName();
    for (Node* child = sequence->firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const std::string& name = child->nodeName();
        ZefReturnT result = ZefOk;
        if (checkHandlePrimitiveDataType(child, record, result)) {
            continue;
        }
        if (referenceTypeCode(name) != ZefMrType3NotSet) {
            handleReference(child, record, false);
        } else if (isNamed(name, "minLength")) {
            if (record->setMin(getPcdata(*child)) != ZefOk) {
                checkThrowException(4, "Invalid min value for attribute (%s).", recordName.c_str());
            }
        } else if (isNamed(name, "maxLength")) {
            if (record->setMax(getPcdata(*child)) != ZefOk) {
                checkThrowException(4, "Invalid max value for attribute (%s).", recordName.c_str());
            }
        } else if (isNamed(name, "nonUnique")) {
            record->setIsUnique(false);
        } else if (isNamed(name, "ordered")) {
            record->setIsOrdered(true);
        } else if (isNamed(name, "seqDefaultValue")) {
            handleSeqDefaultValue(child, record);
        } else if (isNamed(name, "sequence") || isCommonUnsupportedDatatype(name)) {
            ignoreUnsupportedElementLog(*child);
        } else {
            ignoreUnknownElementLog(*child);
        }
    }
    // Without bounds a sequence may be empty and has no upper limit (the
    // empty text stands for unbounded).
    if (!record->getIsMinSet() && record->setMin("0") != ZefOk) {
        checkThrowException(4, "Invalid min value for attribute (%s).", recordName.c_str());
    }
    if (!record->getIsMaxSet() && record->setMax("") != ZefOk) {
        checkThrowException(4, "Invalid max value for attribute (%s).", recordName.c_str());
    }
}

template <typename T>
ZefReturnT ModelParser::handleSeqDefaultValue(Node* seqDefaultValue, T* record) {
    const ReadingScope reading(*this, *seqDefaultValue);
    ignoreAllAttributes(*seqDefaultValue);
    std::string joined;
    bool hasValue = false;
    for (Node* child = seqDefaultValue->firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        if (!isNamed(child->nodeName(), "defaultValue")) {
            ignoreUnknownElementLog(*child);
            continue;
        }
        const std::string value = getPcdata(*child);
        record->getTypeContainer().addDefaultValue(value);
        if (hasValue) {
            joined += ' ';
        }
        joined += value;
        hasValue = true;
    }
    return hasValue ? record->setDefaultValue(joined) : ZefOk;
}

// The typed records that share the data type elements.
#define ZEF_PARSER_TYPED_RECORD(T)                                                                        \
    template void ModelParser::handleDataType<T>(Node*, T*);                                               \
    template bool ModelParser::checkHandlePrimitiveDataType<T>(Node*, T*, ZefReturnT&);                    \
    template void ModelParser::handleReference<T>(Node*, T*, bool);                                        \
    template void ModelParser::handleSeqDataType<T>(Node*, T*);                                            \
    template ZefReturnT ModelParser::handleSeqDefaultValue<T>(Node*, T*);

ZEF_PARSER_TYPED_RECORD(AttrWrapper)
ZEF_PARSER_TYPED_RECORD(ParameterWrapper)
ZEF_PARSER_TYPED_RECORD(MoActionWrapper)
ZEF_PARSER_TYPED_RECORD(StructMemberWrapper)

#undef ZEF_PARSER_TYPED_RECORD

} // namespace ZefModelRepositoryService
