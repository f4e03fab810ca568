#include "ModelParser.h"

#include <cstdio>
#include <memory>
#include <set>
#include <string_view>

#include <Poco/AutoPtr.h>
#include <Poco/DOM/Attr.h>
#include <Poco/DOM/Element.h>
#include <Poco/DOM/NamedNodeMap.h>
#include <Poco/DOM/Node.h>
#include <Poco/String.h>

#include "DdtWrapper.h"
#include "ElementPositions.h"
#include "EnumWrapper.h"
#include "GeneralPropertiesWrapper.h"
#include "MocWrapper.h"
#include "ModelRepository.h"
#include "NameMatch.h"
#include "MomWrapper.h"
#include "MrUtil.h"
#include "RecordFiling.h"
#include "StructWrapper.h"
#include "ZefConfiguration.h"
#include "ZefException.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

namespace {

using Poco::XML::Attr;
using Poco::XML::Node;

const char* const kWrongFormat = "Configuration File does not have the correct format";
const char* const kMomNotLoaded = "Mom not loaded:";

bool isElement(const Node& node) { return node.nodeType() == Node::ELEMENT_NODE; }

// The formats of the warnings about a value the MOM record refused: the
// attribute or element name and the mim node's name.
const char* const kMomAlreadySet = "The %s of the mom (%s) is already set.";
const char* const kMomFailedToSet = "Failed to set %s of the mom (%s).";

using MomSetter = ZefReturnT (*)(MomWrapper&, const std::string&);

// The attributes of "mim" that are stored, with the setter of each.
// Names as views: compared with a name, the lengths are compared first.
const std::pair<std::string_view, MomSetter> kMomAttributes[] = {
    {"name", [](MomWrapper& mom, const std::string& v) { return mom.getGeneralProperties().setName(v); }},
    {"version", [](MomWrapper& mom, const std::string& v) { return mom.setVersion(v); }},
    {"correction", [](MomWrapper& mom, const std::string& v) { return mom.setCorrection(v); }},
    {"release", [](MomWrapper& mom, const std::string& v) { return mom.setRelease(v); }},
    {"author", [](MomWrapper& mom, const std::string& v) { return mom.setAuthor(v); }},
    {"docNo", [](MomWrapper& mom, const std::string& v) { return mom.setDocNo(v); }},
    {"revision", [](MomWrapper& mom, const std::string& v) { return mom.setRevision(v); }},
    {"namespace", [](MomWrapper& mom, const std::string& v) { return mom.setNamespaceURI(v); }},
    {"namespacePrefix", [](MomWrapper& mom, const std::string& v) { return mom.setNamespacePrefix(v); }},
    {"organization", [](MomWrapper& mom, const std::string& v) { return mom.setOrganization(v); }},
};

// The warning about a status word the MOM refused. The texts of obsolete and
// preliminary say "cont" and are misspelled; tools that read the findings
// know them in this form.
const char* momStatusFailure(const std::string& word) {
    if (isNamed(word, "deprecated")) {
        return "Failed to set type (deprecated) of the mom (%s).";
    }
    if (isNamed(word, "obsolete")) {
        return "Failed to set type (obsolate) of the cont (%s).";
    }
    return "Failed to set type (priliminary) of the cont (%s).";
}

MomSetter findMomSetter(const std::string& attributeName) {
    for (const auto& entry : kMomAttributes) {
        if (attributeName == entry.first) {
            return entry.second;
        }
    }
    return nullptr;
}

template <typename T>
std::unique_ptr<T> hold(T* record) {
    return std::unique_ptr<T>(record);
}

} // namespace

// Names the file being parsed for the locations of findings and records,
// for as long as parse() reads it.
class ModelParser::FileBeingParsed {
public:
    FileBeingParsed(ModelParser& parser, const std::string* file, const ElementPositions& positions)
        : _parser(parser) {
        _parser._file = file;
        _parser._positions = &positions;
        _parser._reading.clear();
    }
    ~FileBeingParsed() {
        _parser._file = nullptr;
        _parser._positions = nullptr;
        _parser._reading.clear();
    }
    FileBeingParsed(const FileBeingParsed&) = delete;
    FileBeingParsed& operator=(const FileBeingParsed&) = delete;

private:
    ModelParser& _parser;
};

ModelParser::ModelParser(ModelRepository& repository) : _repository(&repository) {}

ModelParser::~ModelParser() = default;

int ModelParser::parse(const std::string& fileName) {
    if (_repository == nullptr) {
        ZEF_LOG_ERROR("Model must have an instance of ModelRepository.");
        return -2;
    }
    ZEF_TRACE("Parsing file '%s'", fileName.c_str());
    Zef::ZefConfiguration document;
    const FileBeingParsed file(*this, _repository->noteModelFile(fileName), document.positions());
    Node* models = nullptr;
    unsigned long modelsCount = 0;
    try {
        // Counted while the file is read: a count afterwards would walk
        // the whole tree once more.
        document.tally("models");
        document.load(fileName);
        modelsCount = document.talliedCount();
        models = document.firstTallied();
    } catch (const Zef::ZefException& e) {
        ZEF_LOG_ERROR("Error in the Model");
        ZEF_TRACE("%s", e.what());
        return -1;
    } catch (const std::exception& e) {
        ZEF_LOG_ERROR("Got exception: %s", e.what());
        return -1;
    }

    // A document that is not a model file at all is the caller's problem,
    // not a finding in the model: this one escapes on purpose.
    if (document.getDocument() == nullptr || modelsCount != 1) {
        ZEF_LOG_ERROR("%s", kWrongFormat);
        throw Zef::ZefInternalErrorException(std::string(kWrongFormat));
    }

    try {
        processModelsNode(*models, fileName);
    } catch (const Zef::ZefException& e) {
        ZEF_LOG_ERROR("Error in the Model");
        ZEF_TRACE("%s", e.what());
        return -1;
    } catch (const std::exception& e) {
        ZEF_LOG_ERROR("Got exception: %s", e.what());
        return -1;
    }
    return 0;
}

void ModelParser::processModelsNode(Node& models, const std::string& fileName) {
    ZEF_TRACE_ENTER(" >> Processing models: %s.", models.nodeName().c_str());
    const ReadingScope reading(*this, models);

    for (Attr* attr : attributesOf(models)) {
        if (isNamed(attr->name(), "dtdDocNo") || isNamed(attr->name(), "dtdRevision")) {
            ignoreUnsupportedAttributeLog(*attr);
        } else {
            ignoreUnknownAttributeLog(*attr);
        }
    }

    std::string text;
    for (Node* child = models.firstChild(); child != nullptr; child = child->nextSibling()) {
        switch (child->nodeType()) {
        case Node::ELEMENT_NODE:
            if (isNamed(child->nodeName(), "mim")) {
                try {
                    processMomNode(*child, fileName);
                } catch (const std::exception&) {
                    // The rest of the file is not read: its elements may
                    // refer to the MOM that failed.
                    const ReadingScope mim(*this, *child);
                    checkThrowException(3, "%s", kMomNotLoaded);
                    return;
                }
            } else if (isNamed(child->nodeName(), "interMim")) {
                processInterMimNode(*child);
            } else {
                ignoreUnknownElementLog(*child);
            }
            break;
        case Node::TEXT_NODE:
            ZEF_TRACE("Temporary text: '%s' + '%s'.", text.c_str(), child->nodeValue().c_str());
            text += child->nodeValue();
            break;
        case Node::COMMENT_NODE:
            ZEF_TRACE("Ignoring Comment: %s.", child->nodeName().c_str());
            break;
        default:
            ignoreUnsupportedElementTypeLog(*child);
            break;
        }
    }
    Poco::trimInPlace(text);
    ZEF_TRACE("Text: '%s'.", text.c_str());
    ZEF_TRACE_LEAVE(" << Processed models: %s.", models.nodeName().c_str());
}

MomWrapper* ModelParser::processMomNode(Node& mim, const std::string& fileName) {
    ZEF_TRACE_ENTER(" >> Processing mim: %s.", nameAttributeOf(mim).c_str());
    const ReadingScope reading(*this, mim);

    std::unique_ptr<MomWrapper> holder(new MomWrapper());
    placeRecord(*holder, mim);
    holder->setFileName(fileName);
    for (Attr* attr : attributesOf(mim)) {
        const std::string& name = attr->name();
        if (const MomSetter setter = findMomSetter(name)) {
            reportSetterResult(setter(*holder, getPocoData(attr)), kMomAlreadySet, kMomFailedToSet, name.c_str(),
                               mim.nodeName().c_str());
        } else if (isNamed(name, "date") || isNamed(name, "contact")) {
            ignoreUnsupportedAttributeLog(*attr);
        } else {
            ignoreUnknownAttributeLog(*attr);
        }
    }

    // The MOM is registered before its children: they refer to it.
    MomWrapper* mom = holder.get();
    if (!fileRecord(std::move(holder), &ModelRepository::addMom, *_repository)) {
        return nullptr;
    }

    GeneralPropertiesWrapper& properties = mom->getGeneralProperties();
    for (Node* child = mim.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        const ReadingScope readingChild(*this, *child);
        const std::string& name = child->nodeName();
        if (isNamed(name, "class")) {
            fileAndPublish(std::unique_ptr<MocWrapper, void (*)(MocWrapper*)>(processMocNode(*child, *mom), &discardMoc),
                           &ModelRepository::addMoc, *_repository);
        } else if (isNamed(name, "enum")) {
            fileAndPublish(hold(processEnumNode(*child, *mom)), &ModelRepository::addEnum, *_repository);
        } else if (isNamed(name, "derivedDataType")) {
            fileAndPublish(hold(processDdtNode(*child, *mom)), &ModelRepository::addDdt, *_repository);
        } else if (isNamed(name, "struct")) {
            if (!fileAndPublish(hold(processStructNode(child, mom)), &ModelRepository::addStruct, *_repository)) {
                checkThrowException(3, "Failed to process a struct for the mom(%s).", mom->getId().c_str());
            }
        } else if (isNamed(name, "relationship")) {
            processRelationshipNode(*child, *mom);
        } else if (isNamed(name, "description")) {
            std::string joined;
            reportSetterResult(properties.setDescription(pcdataOf(*child, joined)), kMomAlreadySet, kMomFailedToSet,
                               name.c_str(), mim.nodeName().c_str());
        } else if (isNamed(name, "domainExtension")) {
            handleDomainExtension(child, &properties);
        } else if (isStatusWord(name)) {
            if (setStatusWord(name, properties) != ZefOk) {
                checkThrowException(4, momStatusFailure(name), properties.getName().c_str());
            }
        } else if (isNamed(name, "applicationTag") || isNamed(name, "copyright") || isNamed(name, "exception")) {
            ignoreUnsupportedElementLog(*child);
        } else if (isNamed(name, "modelFeatures")) {
            handleModelFeatures(child, mom);
        } else {
            ignoreUnknownElementLog(*child);
        }
    }

    // Published only now: its domain extensions are among the children.
    If2Publisher::publish(*mom);
    ZEF_TRACE_LEAVE(" << Processed mim: %s.", properties.getName().c_str());
    return mom;
}

void ModelParser::handleModelFeatures(Node* modelFeatures, MomWrapper* mom) {
    const ReadingScope reading(*this, *modelFeatures);
    for (Attr* attr : attributesOf(*modelFeatures)) {
        if (isNamed(attr->name(), "modelType")) {
            // Read for the trimming check only; the repository does not keep it.
            getPocoData(attr);
        } else {
            ignoreUnsupportedAttributeLog(*attr);
        }
    }
    for (Node* child = modelFeatures->firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
            continue;
        }
        if (!isNamed(child->nodeName(), "modelFeature")) {
            continue;
        }
        for (Attr* attr : attributesOf(*child)) {
            if (isNamed(attr->name(), "name")) {
                mom->setModelFeatureNames(getPocoData(attr));
            } else if (isNamed(attr->name(), "featureType")) {
                getPocoData(attr);
            } else {
                ignoreUnsupportedAttributeLog(*attr);
            }
        }
        for (Node* item = child->firstChild(); item != nullptr; item = item->nextSibling()) {
            ignoreUnknownElementLog(*item);
        }
    }
}

// ---- shared readers ---------------------------------------------------------

AttributeList ModelParser::attributesOf(Node& node) {
    AttributeList result;
    // Most elements of a model carry no attribute: they need no map.
    if (!node.hasAttributes()) {
        return result;
    }
    // The attributes of an element are chained in the DOM's order. Most
    // elements of a model carry a "name": found by name, it leads to the
    // first of them without a map. The map that attributes() hands out is
    // made, and released by its holder, only for an element without one.
    Poco::AutoPtr<Poco::XML::NamedNodeMap> map;
    Node* attr = static_cast<Poco::XML::Element&>(node).getAttributeNode("name");
    if (attr != nullptr) {
        while (Node* previous = attr->previousSibling()) {
            attr = previous;
        }
    } else {
        map = node.attributes();
        attr = map->item(0);
    }
    for (; attr != nullptr; attr = attr->nextSibling()) {
        Attr* attribute = static_cast<Attr*>(attr);
        ZEF_TRACE("Found attribute: %s=%s.", attribute->name().c_str(), attribute->value().c_str());
        result.push_back(attribute);
    }
    return result;
}

std::string ModelParser::nameAttributeOf(Node& element) {
    if (!isElement(element)) {
        return std::string();
    }
    return Poco::trim(static_cast<Poco::XML::Element&>(element).getAttribute("name"));
}

std::string ModelParser::getPocoData(Attr* attr) {
    if (attr == nullptr) {
        return std::string();
    }
    const std::string& value = attr->value();
    std::string trimmed = Poco::trim(value);
    if (trimmed.size() != value.size()) {
        checkThrowException(4, "Node attribute value contains leading and/or trailing white space, trimming \"%s\" to \"%s\".",
                            value.c_str(), trimmed.c_str());
    }
    return trimmed;
}

std::string ModelParser::getPcdata(Node& element) {
    std::string text;
    for (Node* child = element.firstChild(); child != nullptr; child = child->nextSibling()) {
        // A CDATA section is text as well: a description may quote markup.
        if (child->nodeType() == Node::TEXT_NODE || child->nodeType() == Node::CDATA_SECTION_NODE) {
            text += child->nodeValue();
        } else {
            ignoreUnsupportedElementTypeLog(*child);
        }
    }
    return text;
}

const std::string& ModelParser::pcdataOf(Node& element, std::string& joined) {
    Node* text = element.firstChild();
    if (text != nullptr && text->nextSibling() == nullptr &&
        (text->nodeType() == Node::TEXT_NODE || text->nodeType() == Node::CDATA_SECTION_NODE)) {
        return text->getNodeValue();
    }
    joined = getPcdata(element);
    return joined;
}

void ModelParser::ignoreUnknownElementLog(Node& node) {
    if (node.nodeType() == Node::COMMENT_NODE) {
        ZEF_TRACE("Ignoring comment: %s.", node.nodeName().c_str());
    } else {
        ZEF_TRACE("Ignoring unknown element: %s.", node.nodeName().c_str());
    }
}

void ModelParser::ignoreUnsupportedElementLog(Node& node) {
    if (node.nodeType() == Node::COMMENT_NODE) {
        ZEF_TRACE("Ignoring comment: %s.", node.nodeName().c_str());
    } else {
        ZEF_TRACE("Ignoring unsupported element: %s.", node.nodeName().c_str());
    }
}

void ModelParser::ignoreUnsupportedElementTypeLog(Node& node) {
    if (node.nodeType() == Node::COMMENT_NODE) {
        ZEF_TRACE("Ignoring comment: %s.", node.nodeName().c_str());
    } else {
        ZEF_TRACE("Ignoring XML items of type: %u; name: %s; value: %s.", static_cast<unsigned>(node.nodeType()),
                  node.nodeName().c_str(), node.nodeValue().c_str());
    }
}

void ModelParser::ignoreUnknownAttributeLog(Attr& attr) {
    ZEF_TRACE("Ignoring unknown attribute: %s, %s", attr.name().c_str(), attr.value().c_str());
}

void ModelParser::ignoreUnsupportedAttributeLog(Attr& attr) {
    ZEF_TRACE("Ignoring unsupported attribute: %s, %s", attr.name().c_str(), attr.value().c_str());
}

void ModelParser::ignoreAllAttributes(Node& node) {
    for (Attr* attr : attributesOf(node)) {
        ignoreUnknownAttributeLog(*attr);
    }
}

void ModelParser::checkThrowException(unsigned short level, const char* format, ...) {
    va_list args;
    va_start(args, format);
    try {
        vcheckThrowException(level, format, args);
    } catch (...) {
        va_end(args);
        throw;
    }
    va_end(args);
}

void ModelParser::vcheckThrowException(unsigned short level, const char* format, va_list args) {
    if (Zef::LoggingWrapper::instance()->get_level() >= level) {
        // The same text as the repository records, cut at the same length.
        char message[4096];
        va_list copy;
        va_copy(copy, args);
        std::vsnprintf(message, sizeof(message), format, copy);
        va_end(copy);
        ZEF_LOG(level, "%s", message);
    }
    const SourceLocation where = _reading.empty() ? SourceLocation() : locationOf(*_reading.back());
    _repository->checkThrowException(where, "ModelParser", level, format, args);
}

ModelParser::ReadingScope::ReadingScope(ModelParser& parser, Node& element) : _parser(parser) {
    _parser._reading.push_back(&element);
}

ModelParser::ReadingScope::~ReadingScope() { _parser._reading.pop_back(); }

SourceLocation ModelParser::locationOf(Node& element) const {
    SourceLocation location;
    location.file = _file;
    if (_positions != nullptr) {
        const ElementPositions::Position position = _positions->positionOf(&element);
        location.line = position.line;
        location.column = position.column;
    }
    return location;
}

void ModelParser::placeRecord(GeneralPropertiesWrapper& record, Node& element) const {
    record.setSourceLocation(locationOf(element));
}

void ModelParser::reportSetterResult(ZefReturnT result, const char* alreadySetFormat, const char* failedFormat, ...) {
    if (result == ZefOk) {
        return;
    }
    va_list args;
    va_start(args, failedFormat);
    try {
        vcheckThrowException(4, result == ZefAlreadyExists ? alreadySetFormat : failedFormat, args);
    } catch (...) {
        va_end(args);
        throw;
    }
    va_end(args);
}

void ModelParser::readNameAttribute(Node& element, const std::function<ZefReturnT(const std::string&)>& setName,
                                    const char* alreadySetFormat, const char* failedFormat) {
    for (Attr* attr : attributesOf(element)) {
        if (isNamed(attr->name(), "name")) {
            const std::string name = getPocoData(attr);
            reportSetterResult(setName(name), alreadySetFormat, failedFormat, name.c_str());
        } else {
            ignoreUnknownAttributeLog(*attr);
        }
    }
}

bool ModelParser::isStatusWord(const std::string& name) {
    return isNamed(name, "deprecated") || isNamed(name, "obsolete") || isNamed(name, "preliminary");
}

ZefReturnT ModelParser::setStatusWord(const std::string& word, GeneralPropertiesWrapper& properties) {
    if (isNamed(word, "deprecated")) {
        const ZefReturnT result = properties.setStatus(ZefOamSpiStatusDeprecated);
        properties.setStatus_3("DEPRECATED");
        return result;
    }
    if (isNamed(word, "obsolete")) {
        const ZefReturnT result = properties.setStatus(ZefOamSpiStatusObsolete);
        properties.setStatus_3("OBSOLETE");
        return result;
    }
    if (isNamed(word, "preliminary")) {
        return properties.setStatus_3("PRELIMINARY");
    }
    return ZefInvalidArgument;
}

Poco::XML::Node* ModelParser::initTypes(Node& dataType) {
    ZEF_TRACE_ENTER(" >> Processing datatype initialization: %s.", dataType.nodeName().c_str());
    const ReadingScope reading(*this, dataType);
    Node* type = nullptr;
    for (Node* child = dataType.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (!isElement(*child)) {
            ignoreUnsupportedElementTypeLog(*child);
        } else if (type == nullptr) {
            type = child;
        } else {
            checkThrowException(4, "%s can only define one data type at a time -- considering only one, ignoring the rest.",
                                type->nodeName().c_str());
        }
    }
    if (type == nullptr) {
        checkThrowException(3, "Could not find element in datatype: %s.", dataType.nodeName().c_str());
    }
    ZEF_TRACE_LEAVE(" << Processed datatype initialization: %s.", dataType.nodeName().c_str());
    return type;
}

ZefOamSpiMrType_3 ModelParser::primitiveTypeCode(const std::string& name) {
    // Views: compared with a name, the lengths are compared first.
    static const std::pair<std::string_view, ZefOamSpiMrType_3> kPrimitives[] = {
        {"int8", ZefMrType3Int8},     {"int16", ZefMrType3Int16},   {"int32", ZefMrType3Int32},
        {"int64", ZefMrType3Int64},   {"uint8", ZefMrType3UInt8},   {"uint16", ZefMrType3UInt16},
        {"uint32", ZefMrType3UInt32}, {"uint64", ZefMrType3UInt64}, {"string", ZefMrType3String},
        {"boolean", ZefMrType3Bool},  {"double", ZefMrType3Double},
    };
    for (const auto& entry : kPrimitives) {
        if (name == entry.first) {
            return entry.second;
        }
    }
    return ZefMrType3NotSet;
}

ZefOamSpiMrType_3 ModelParser::referenceTypeCode(const std::string& name) {
    if (isNamed(name, "moRef")) {
        return ZefMrType3Reference;
    }
    if (isNamed(name, "enumRef")) {
        return ZefMrType3Enum;
    }
    if (isNamed(name, "derivedDataTypeRef")) {
        return ZefMrType3Derived;
    }
    if (isNamed(name, "structRef")) {
        return ZefMrType3Struct;
    }
    return ZefMrType3NotSet;
}

bool ModelParser::isCommonUnsupportedDatatype(const std::string& name) {
    static const std::set<std::string> kUnsupported = {"octet", "char", "float", "long", "longlong", "short",
                                                       "wstring"};
    return kUnsupported.count(name) != 0;
}

ZefReturnT ModelParser::ifPrimitiveValueCheckElseIgnore(std::string& value, ZefOamSpiMrType_3 type) {
    switch (type) {
    case ZefMrType3Int8: {
        signed char number;
        return MrUtil::toInt(value, number);
    }
    case ZefMrType3Int16: {
        short number;
        return MrUtil::toInt(value, number);
    }
    case ZefMrType3Int32: {
        int number;
        return MrUtil::toInt(value, number);
    }
    case ZefMrType3Int64: {
        long long number;
        return MrUtil::toInt(value, number);
    }
    case ZefMrType3UInt8: {
        unsigned char number;
        return MrUtil::toInt(value, number);
    }
    case ZefMrType3UInt16: {
        unsigned short number;
        return MrUtil::toInt(value, number);
    }
    case ZefMrType3UInt32: {
        unsigned int number;
        return MrUtil::toInt(value, number);
    }
    case ZefMrType3UInt64: {
        unsigned long long number;
        return MrUtil::toInt(value, number);
    }
    case ZefMrType3Double: {
        double number;
        return MrUtil::toDouble(value, number);
    }
    case ZefMrType3Bool:
        Poco::toLowerInPlace(value);
        return isNamed(value, "true") || isNamed(value, "1") || isNamed(value, "false") || isNamed(value, "0") ? ZefOk : ZefInvalidArgument;
    default:
        return ZefOk;
    }
}

void ModelParser::handleBaseType(Node& baseType, DdtWrapper& ddt) {
    ZEF_TRACE_ENTER(" >> handling base type: %s.", baseType.nodeName().c_str());
    const ReadingScope reading(*this, baseType);
    Node* type = initTypes(baseType);
    if (type == nullptr) {
        return;
    }
    const std::string& name = type->nodeName();
    const ZefOamSpiMrType_3 code = primitiveTypeCode(name);
    switch (code) {
    case ZefMrType3NotSet:
        // A derived type can only restrict a primitive type.
        if (isCommonUnsupportedDatatype(name) || isNamed(name, "sequence") || referenceTypeCode(name) != ZefMrType3NotSet) {
            ignoreUnsupportedElementLog(*type);
        } else {
            ignoreUnknownElementLog(*type);
        }
        break;
    case ZefMrType3Bool:
        ddt.setType(code);
        handleBoolDefaultValue(*type, ddt);
        break;
    case ZefMrType3String:
        ddt.setType(code);
        handleDdtStringDataType(*type, ddt);
        break;
    case ZefMrType3Double:
        ddt.setType(code);
        handleDoubleDataType(*type, ddt);
        break;
    default:
        ddt.setType(code);
        handleIntDataType(*type, ddt);
        break;
    }
    ZEF_TRACE_LEAVE(" << handled base type: %s.", baseType.nodeName().c_str());
}

} // namespace ZefModelRepositoryService
