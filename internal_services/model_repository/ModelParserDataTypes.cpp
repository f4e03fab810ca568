#include "ModelParser.h"

#include <memory>
#include <set>

#include <Poco/DOM/Attr.h>
#include <Poco/DOM/Node.h>
#include <Poco/String.h>

#include "DdtWrapper.h"
#include "EnumWrapper.h"
#include "GeneralPropertiesWrapper.h"
#include "LitWrapper.h"
#include "MomWrapper.h"
#include "MrUtil.h"
#include "NameMatch.h"
#include "StructMemberWrapper.h"
#include "StructWrapper.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

namespace {

using Poco::XML::Attr;
using Poco::XML::Node;

bool isElement(const Node& node) { return node.nodeType() == Node::ELEMENT_NODE; }

bool contains(const std::set<std::string>& names, const std::string& name) { return names.count(name) != 0; }

// Elements of a literal or a struct member that the format defines and the
// repository does not use.
const std::set<std::string> kUnsupportedMemberChildren = {
    "applicationTag", "visibility",   "dependencies", "dependenciesScript", "feature",
    "interfaceOnly",  "disturbances", "takesEffect",  "sideEffects",        "precondition"};

// Elements of an integer or double base type that a derived type does not
// use: a derived numeric type restricts values, it carries no default.
const std::set<std::string> kUnsupportedNumericChildren = {"defaultValue", "unit", "multiplicationFactor",
                                                           "undefinedValue"};

// Elements of a string base type that a derived type does not use.
const std::set<std::string> kUnsupportedStringChildren = {"ipV4Address", "ipV6Address", "macAddress", "date",
                                                          "time",        "undefinedValue", "alphabet"};

// A literal's description, specification, status and filter are refused
// with the texts of a class; a struct member's with those of an attribute.
const char* const kLiteralAlreadySet = "The %s of the moc (%s) is already set.";
const char* const kLiteralFailedToSet = "Failed to set %s of the moc (%s).";
const char* const kMemberAlreadySet = "The %s of the attr (%s) is already set.";
const char* const kMemberFailedToSet = "Failed to set %s of the attr (%s).";

const char* const kInvalidRangeMin = "Invalid min value for derived datatype (%s).";
const char* const kInvalidRangeMax = "Invalid max value for derived datatype (%s).";

// The rule format whose text is the pattern of a string type.
const char* const kPosixEreFormat = "posix_ere";

// Applies the elements every member-like record shares (a literal, a struct
// member): description, specification, status words and filter. Returns
// false when `name` is none of them; otherwise the setter's result is in
// `result`.
bool applyGeneralProperty(ModelParser& parser, Node& child, GeneralPropertiesWrapper& properties,
                          ZefReturnT& result) {
    const std::string& name = child.nodeName();
    if (isNamed(name, "description")) {
        result = properties.setDescription(parser.getPcdata(child));
    } else if (isNamed(name, "specification")) {
        result = properties.setSpecification(parser.getPcdata(child));
    } else if (ModelParser::isStatusWord(name)) {
        result = parser.setStatusWord(name, properties);
    } else if (isNamed(name, "filter")) {
        // The filter text is kept as the element's hidden property.
        result = properties.setHidden(parser.getPcdata(child));
    } else {
        return false;
    }
    return true;
}

// Reads the "min" and "max" children of a "range" or "lengthRange" element
// into the derived type through the given adders; a refused bound is a
// warning naming the derived type.
void readRangeBounds(ModelParser& parser, Node& range, DdtWrapper& ddt,
                     ZefReturnT (DdtWrapper::*addMin)(const std::string&),
                     ZefReturnT (DdtWrapper::*addMax)(const std::string&)) {
    parser.ignoreAllAttributes(range);
    const std::string ddtName = ddt.getName();
    for (Node* child = range.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            parser.ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const ModelParser::ReadingScope reading(parser, *child);
        const std::string& name = child->nodeName();
        if (isNamed(name, "min")) {
            if ((ddt.*addMin)(parser.getPcdata(*child)) != ZefOk) {
                parser.checkThrowException(4, kInvalidRangeMin, ddtName.c_str());
            }
        } else if (isNamed(name, "max")) {
            if ((ddt.*addMax)(parser.getPcdata(*child)) != ZefOk) {
                parser.checkThrowException(4, kInvalidRangeMax, ddtName.c_str());
            }
        } else {
            parser.ignoreUnknownElementLog(*child);
        }
    }
}

// Integer and double base types differ only in how the resolution is read.
void readNumericRestrictions(ModelParser& parser, Node& type, DdtWrapper& ddt, bool isDouble) {
    ZEF_TRACE_ENTER(" >> handling Int data type %s.", type.nodeName().c_str());
    const ModelParser::ReadingScope reading(parser, type);
    parser.ignoreAllAttributes(type);
    for (Node* child = type.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            parser.ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const std::string& name = child->nodeName();
        if (isNamed(name, "range")) {
            // Every range element adds one range.
            readRangeBounds(parser, *child, ddt, &DdtWrapper::addRangeMin, &DdtWrapper::addRangeMax);
        } else if (isNamed(name, "resolution")) {
            const std::string text = parser.getPcdata(*child);
            const ZefReturnT result = isDouble ? ddt.setFloatResolution(text) : ddt.setIntResolution(text);
            if (result != ZefOk) {
                parser.checkThrowException(4, "Invalid resolution: %s", text.c_str());
            }
        } else if (contains(kUnsupportedNumericChildren, name)) {
            parser.ignoreUnsupportedElementLog(*child);
        } else {
            parser.ignoreUnknownElementLog(*child);
        }
    }
    ZEF_TRACE_LEAVE(" << handled int data type: %s.", type.nodeName().c_str());
}

// True when a "sequence" element holds a struct, which a struct member may
// not: structs do not nest.
bool holdsStruct(Node& sequence) {
    for (Node* child = sequence.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (isElement(*child) && (isNamed(child->nodeName(), "structRef") || isNamed(child->nodeName(), "struct"))) {
            return true;
        }
    }
    return false;
}

} // namespace

// ---- enumerations ------------------------------------------------------------

EnumWrapper* ModelParser::processEnumNode(Node& enumeration, MomWrapper& mom) {
    ZEF_TRACE_ENTER(" >> Processing enumeration: %s.", nameAttributeOf(enumeration).c_str());
    const ReadingScope reading(*this, enumeration);
    std::unique_ptr<EnumWrapper> record(new EnumWrapper());
    placeRecord(*record, enumeration);
    record->setMom(&mom.getStruct());

    readNameAttribute(
        enumeration, [&record](const std::string& name) { return record->setName(name); },
        "Name of enum (%s) is already set.", "Failed to set name of the enum (%s).");

    for (Node* child = enumeration.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const std::string& name = child->nodeName();
        if (isNamed(name, "description")) {
            std::string joined;
            record->setDescription(pcdataOf(*child, joined));
        } else if (isNamed(name, "enumMember")) {
            handleEnumMember(*child, *record);
        } else if (isNamed(name, "domainExtension")) {
            handleDomainExtension(child, record.get());
        } else if (isNamed(name, "applicationTag")) {
            ignoreUnsupportedElementLog(*child);
        } else {
            ignoreUnknownElementLog(*child);
        }
    }
    ZEF_TRACE_LEAVE(" << Processed enumeration: %s.", record->getName().c_str());
    return record.release();
}

void ModelParser::handleEnumMember(Node& enumMember, EnumWrapper& enumeration) {
    ZEF_TRACE_ENTER(" >> Processing enumMember: %s.", nameAttributeOf(enumMember).c_str());
    const ReadingScope reading(*this, enumMember);
    std::unique_ptr<LitWrapper> literal(new LitWrapper());
    placeRecord(*literal, enumMember);

    for (Attr* attr : attributesOf(enumMember)) {
        if (isNamed(attr->name(), "name")) {
            // An empty name is refused by the record and reported below.
            literal->setName(getPocoData(attr));
        } else {
            ignoreUnknownAttributeLog(*attr);
        }
    }
    const std::string literalName = literal->getName();
    if (literalName.empty()) {
        literal.reset();
        checkThrowException(3, "Literal name is not set: %s.", enumMember.nodeName().c_str());
        ZEF_TRACE_LEAVE(" << Processed enumMember: %s.", literalName.c_str());
        return;
    }

    for (Node* child = enumMember.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const std::string& name = child->nodeName();
        ZefReturnT result = ZefOk;
        if (isNamed(name, "value")) {
            // The published record holds 16 bits only: a value that does not
            // fit is not stored at all rather than stored truncated.
            const std::string text = getPcdata(*child);
            short value = 0;
            if (MrUtil::toInt16(text, value) != ZefOk) {
                checkThrowException(4, "The value of literal (%s) is more than 16-bit integer and therefore is not set.",
                                    literalName.c_str());
            } else {
                result = literal->setValue(text);
            }
        } else if (applyGeneralProperty(*this, *child, *literal, result)) {
            // done
        } else if (isNamed(name, "domainExtension")) {
            handleDomainExtension(child, literal.get());
        } else if (contains(kUnsupportedMemberChildren, name)) {
            ignoreUnsupportedElementLog(*child);
        } else {
            ignoreUnknownElementLog(*child);
        }
        reportSetterResult(result, kLiteralAlreadySet, kLiteralFailedToSet, name.c_str(), literalName.c_str());
    }

    const ZefReturnT added = enumeration.addLiteral(literal.get());
    if (added == ZefOk) {
        literal.release();
    } else {
        // The enum goes on without this literal.
        literal.reset();
        if (added == ZefAlreadyExists) {
            checkThrowException(3, "Could not add literal, it already exist (%s).", literalName.c_str());
        } else {
            checkThrowException(3, "Could not add literal: %s.", literalName.c_str());
        }
    }
    ZEF_TRACE_LEAVE(" << Processed enumMember: %s.", literalName.c_str());
}

// ---- derived data types ------------------------------------------------------

DdtWrapper* ModelParser::processDdtNode(Node& derivedDataType, MomWrapper& mom) {
    ZEF_TRACE_ENTER(" >> Processing derived datatype: %s.", nameAttributeOf(derivedDataType).c_str());
    const ReadingScope reading(*this, derivedDataType);
    std::unique_ptr<DdtWrapper> ddt(new DdtWrapper());
    placeRecord(*ddt, derivedDataType);
    ddt->setMom(&mom.getStruct());

    readNameAttribute(
        derivedDataType, [&ddt](const std::string& name) { return ddt->setName(name); },
        "Name of ddt (%s) is already set.", "Failed to set name of the ddt (%s).");
    const std::string ddtName = ddt->getName();

    bool hasValidationRules = false;
    std::string pattern;
    std::string exceptionText;
    for (Node* child = derivedDataType.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const std::string& name = child->nodeName();
        if (isNamed(name, "description")) {
            std::string joined;
            ddt->setDescription(pcdataOf(*child, joined));
        } else if (isNamed(name, "baseType")) {
            handleBaseType(*child, *ddt);
        } else if (isNamed(name, "domainExtension")) {
            handleDomainExtension(child, ddt.get());
        } else if (isNamed(name, "validationRules")) {
            hasValidationRules = true;
            processDdtValidationRules(ddtName, *child, pattern, exceptionText);
        } else if (isNamed(name, "applicationTag")) {
            ignoreUnsupportedElementLog(*child);
        } else {
            ignoreUnknownElementLog(*child);
        }
    }

    // Decided after all children: the rules may come before the base type.
    if (hasValidationRules) {
        if (ddt->getType() != ZefMrType3String) {
            checkThrowException(4, "Ddt (%s) not a string type but it has a validationRule element.",
                                ddtName.c_str());
        } else {
            // A rules pattern replaces one from "validValues".
            if (!pattern.empty()) {
                ddt->setValidationRulesPattern(pattern);
            }
            if (!exceptionText.empty()) {
                ddt->setExceptionText(exceptionText);
            }
        }
    }

    // Published with its ranges once the repository has accepted it.
    ddt->updateV1stringRestrictionLength();
    ZEF_TRACE_LEAVE(" << Processed derived datatype: %s.", ddtName.c_str());
    return ddt.release();
}

void ModelParser::handleIntDataType(Node& type, DdtWrapper& ddt) { readNumericRestrictions(*this, type, ddt, false); }

void ModelParser::handleDoubleDataType(Node& type, DdtWrapper& ddt) { readNumericRestrictions(*this, type, ddt, true); }

void ModelParser::handleDdtStringDataType(Node& type, DdtWrapper& ddt) {
    const ReadingScope reading(*this, type);
    ZEF_TRACE_ENTER(" >> handleDdtString data type: %s.", type.nodeName().c_str());
    ignoreAllAttributes(type);
    const std::string ddtName = ddt.getName();
    for (Node* child = type.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const std::string& name = child->nodeName();
        if (isNamed(name, "lengthRange")) {
            readRangeBounds(*this, *child, ddt, &DdtWrapper::addLengthMin, &DdtWrapper::addLengthMax);
        } else if (isNamed(name, "validValues")) {
            // The valid values are written as the string's pattern.
            reportSetterResult(ddt.setPattern(getPcdata(*child)), "Ddt (%s) pattern is already set.",
                               "Failed to set ddt (%s) pattern.", ddtName.c_str());
        } else if (isNamed(name, "isPassphrase")) {
            if (ddt.setIsPassphrase() != ZefOk) {
                checkThrowException(4, "Failed to set ddt (%s)isPassphrase.", ddtName.c_str());
            }
        } else if (contains(kUnsupportedStringChildren, name)) {
            ignoreUnsupportedElementLog(*child);
        } else {
            ignoreUnknownElementLog(*child);
        }
    }
    ZEF_TRACE_LEAVE(" << handleDdtStringDAtatype: %s.", type.nodeName().c_str());
}

void ModelParser::handleBoolDefaultValue(Node& type, DdtWrapper& ddt) {
    const ReadingScope reading(*this, type);
    ZEF_TRACE_ENTER(" >> handling bool default value: %s.", type.nodeName().c_str());
    ignoreAllAttributes(type);
    const std::string ddtName = ddt.getName();
    for (Node* child = type.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        if (!isNamed(child->nodeName(), "defaultValue")) {
            ignoreUnknownElementLog(*child);
            continue;
        }
        // Surrounding blanks are no part of a truth value; the check lower-cases.
        const std::string written = Poco::trim(getPcdata(*child));
        std::string value = written;
        if (ifPrimitiveValueCheckElseIgnore(value, ZefMrType3Bool) != ZefOk) {
            checkThrowException(4, "Invalid boolean default value (%s) for derived datatype (%s).", written.c_str(),
                                ddtName.c_str());
            continue;
        }
        // Stored in one spelling whatever the model wrote.
        value = isNamed(value, "true") || isNamed(value, "1") ? "true" : "false";
        reportSetterResult(ddt.setDefaultValue(value), "Ddt (%s) default value is already set.",
                           "Failed to set ddt (%s) default value.", ddtName.c_str());
    }
    ZEF_TRACE_LEAVE(" << handling bool default value: %s.", type.nodeName().c_str());
}

void ModelParser::processDdtValidationRules(const std::string& ddtName, Node& validationRules, std::string& pattern,
                                            std::string& exceptionText) {
    const ReadingScope reading(*this, validationRules);
    ignoreAllAttributes(validationRules);
    if (!validationRules.hasChildNodes()) {
        checkThrowException(4, "ValidationRules does not contain any rule elements, according to the dtd it must.");
    }
    // A pattern from an earlier "validationRules" element counts as well.
    bool hasPattern = !pattern.empty();
    for (Node* child = validationRules.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        if (!isNamed(child->nodeName(), "rule") || !child->hasAttributes()) {
            ignoreUnknownElementLog(*child);
            continue;
        }
        std::string format;
        std::string ruleExceptionText;
        for (Attr* attr : attributesOf(*child)) {
            const std::string& name = attr->name();
            if (isNamed(name, "format")) {
                format = getPocoData(attr);
            } else if (isNamed(name, "exceptionText")) {
                ruleExceptionText = getPocoData(attr);
            } else if (!isNamed(name, "name") && !isNamed(name, "operation")) {
                ignoreUnknownAttributeLog(*attr);
            }
        }
        if (format != kPosixEreFormat) {
            continue;
        }
        if (hasPattern) {
            checkThrowException(4, "Ddt (%s) more than one rule element with posix_ere.", ddtName.c_str());
            continue;
        }
        // The exception text explains a mismatch of this rule's pattern, so
        // it is taken from the rule that gives the pattern.
        hasPattern = true;
        pattern = child->innerText();
        exceptionText = ruleExceptionText;
    }
}

// ---- structs -----------------------------------------------------------------

StructWrapper* ModelParser::processStructNode(Node* structure, MomWrapper* mom) {
    ZEF_TRACE_ENTER(" >> Processing struct: %s.", nameAttributeOf(*structure).c_str());
    const ReadingScope reading(*this, *structure);
    std::unique_ptr<StructWrapper> record(new StructWrapper());
    placeRecord(*record, *structure);
    record->setMom(&mom->getStruct());

    readNameAttribute(
        *structure, [&record](const std::string& name) { return record->setName(name); },
        "Name of struct (%s) is already set.", "Failed to set name of the struct (%s).");
    const std::string structName = record->getName();
    const std::string momName = mom->getName();
    const std::string momVersion = mom->getVersion();

    for (Node* child = structure->firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const std::string& name = child->nodeName();
        if (isNamed(name, "description")) {
            std::string joined;
            record->setDescription(pcdataOf(*child, joined));
        } else if (isNamed(name, "isExclusive")) {
            record->setIsExclusive(true);
            ZEF_TRACE("IsExclusive has been read for %s ", structName.c_str());
        } else if (isNamed(name, "structMember")) {
            std::unique_ptr<StructMemberWrapper> member(processStructMemberNode(child));
            if (member && !momName.empty() && !momVersion.empty()) {
                member->setMomName(momName);
                member->setMomVersion(momVersion);
            }
            if (member && member->isNillable()) {
                // A member that may be nil may also be left out.
                member->setMin("0");
                member->setMax("1");
            }
            // A struct with a member it cannot hold is no struct at all; the
            // caller reports it.
            if (!member || record->addMember(member.get()) != ZefOk) {
                ZEF_TRACE_LEAVE(" << Processed struct: %s.", structName.c_str());
                return nullptr;
            }
            member.release();
        } else if (isNamed(name, "domainExtension")) {
            handleDomainExtension(child, record.get());
        } else if (isNamed(name, "applicationTag")) {
            ignoreUnsupportedElementLog(*child);
        } else {
            ignoreUnknownElementLog(*child);
        }
    }
    ZEF_TRACE_LEAVE(" << Processed struct: %s.", structName.c_str());
    return record.release();
}

StructMemberWrapper* ModelParser::processStructMemberNode(Node* structMember) {
    ZEF_TRACE_ENTER(" >> Processing struct member: %s.", nameAttributeOf(*structMember).c_str());
    const ReadingScope reading(*this, *structMember);
    std::unique_ptr<StructMemberWrapper> member(new StructMemberWrapper());
    placeRecord(*member, *structMember);

    // The attribute's wording is the established text for members too.
    readNameAttribute(
        *structMember, [&member](const std::string& name) { return member->setName(name); },
        "Name of attr (%s) is already set.", "Failed to set name of the attr (%s).");
    const std::string memberName = member->getName();

    // Every child is read even after an error, so that one parse reports
    // all of the member's problems.
    bool failed = false;
    for (Node* child = structMember->firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const std::string& name = child->nodeName();
        ZefReturnT result = ZefOk;
        ZefReturnT typeResult = ZefOk;
        if (applyGeneralProperty(*this, *child, *member, result)) {
            // done
        } else if (checkHandlePrimitiveDataType(child, member.get(), typeResult)) {
            // done: the type handler reports its own problems
        } else if (isNamed(name, "enumRef") || isNamed(name, "moRef") || isNamed(name, "derivedDataTypeRef")) {
            handleReference(child, member.get(), true);
        } else if (isNamed(name, "sequence")) {
            if (holdsStruct(*child)) {
                failed = true;
                checkThrowException(3, "A sequence element within a struct is not allowed to contain a structRef or a struct");
            } else {
                handleSeqDataType(child, member.get());
            }
        } else if (isNamed(name, "structRef")) {
            failed = true;
            checkThrowException(3, "structMember is of not allowed type structRef");
        } else if (isNamed(name, "struct")) {
            failed = true;
            checkThrowException(3, "structMember is of not allowed type struct");
        } else if (isNamed(name, "domainExtension")) {
            handleDomainExtension(child, member.get());
        } else if (isCommonUnsupportedDatatype(name) || contains(kUnsupportedMemberChildren, name)) {
            ignoreUnsupportedElementLog(*child);
        } else {
            ignoreUnknownElementLog(*child);
        }
        reportSetterResult(result, kMemberAlreadySet, kMemberFailedToSet, name.c_str(), memberName.c_str());
    }
    ZEF_TRACE_LEAVE(" << Processed struct member: %s.", memberName.c_str());
    return failed ? nullptr : member.release();
}

// ---- domain extensions -------------------------------------------------------

void ModelParser::handleDomainExtension(Node* domainExtension, GeneralPropertiesWrapper* owner) {
    ZEF_TRACE_ENTER(" >> handleDomainExtension %s.", domainExtension->nodeName().c_str());
    const ReadingScope reading(*this, *domainExtension);
    std::string domain;
    for (Attr* attr : attributesOf(*domainExtension)) {
        if (isNamed(attr->name(), "domain")) {
            domain = getPocoData(attr);
        } else {
            ignoreUnsupportedAttributeLog(*attr);
        }
    }
    for (Node* child = domainExtension->firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        if (!isNamed(child->nodeName(), "extension")) {
            continue;
        }
        std::string name;
        std::string value;
        for (Attr* attr : attributesOf(*child)) {
            if (isNamed(attr->name(), "name")) {
                name = getPocoData(attr);
            } else if (isNamed(attr->name(), "value")) {
                value = getPocoData(attr);
            } else {
                ignoreUnsupportedAttributeLog(*attr);
            }
        }
        owner->push_back_domain_extension(domain, name, value);
        for (Node* item = child->firstChild(); item != nullptr; item = item->nextSibling()) {
            if (isElement(*item)) {
                ignoreUnknownElementLog(*item);
            } else {
                ignoreUnsupportedElementTypeLog(*item);
            }
        }
    }
    ZEF_TRACE_LEAVE(" << handleDomainExtension: %s.", domainExtension->nodeName().c_str());
}

} // namespace ZefModelRepositoryService
