#ifndef ZEF_MODEL_PARSER_H
#define ZEF_MODEL_PARSER_H

#include <cstdarg>
#include <functional>
#include <string>
#include <vector>

#include "AttributeList.h"
#include "SourceLocation.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace Poco {
namespace XML {
class Attr;
class Node;
} // namespace XML
} // namespace Poco

namespace ZefModelRepositoryService {

class AssociationEndWrapper;
class AttrWrapper;
class BiDirAssociationWrapper;
class ContWrapper;
class DdtWrapper;
class ElementPositions;
class EnumWrapper;
class GeneralPropertiesWrapper;
class MoActionWrapper;
class MocWrapper;
class ModelRepository;
class MomWrapper;
class StructMemberWrapper;
class StructWrapper;
class UniDirAssociationWrapper;

/// Reads one model file into element records and hands them to the
/// repository. Lenient by design: unknown and unsupported items are traced
/// and skipped, a value that cannot be stored is a warning, and only errors
/// end the parse of a file (outside standalone mode).
///
/// The sources are split by element family: ModelParser.cpp (the document
/// frame, the mim level and the shared readers), ModelParserClasses.cpp
/// (classes, attributes, actions, parameters and data type elements),
/// ModelParserDataTypes.cpp (enums, derived types, structs, domain
/// extensions) and ModelParserRelationships.cpp (containments, inter-MOM
/// containments, associations).
class ModelParser {
public:
    using Node = Poco::XML::Node;
    using Attr = Poco::XML::Attr;

    explicit ModelParser(ModelRepository& repository);
    ~ModelParser();

    ModelParser(const ModelParser&) = delete;
    ModelParser& operator=(const ModelParser&) = delete;

    void setStandalone(bool standalone) { _standalone = standalone; }
    bool isStandalone() const { return _standalone; }

    /// Reads one model file (or a document given as text). Returns 0 when
    /// the file was read, also with warnings and recoverable errors; -1 when
    /// an error ended it; -2 without a repository. A file without exactly
    /// one "models" element throws Zef::ZefInternalErrorException.
    int parse(const std::string& fileName);

    // ---- frame and mim level (ModelParser.cpp) ------------------------------

    void processModelsNode(Node& models, const std::string& fileName);
    /// The registered MOM, or null when the repository refused it.
    MomWrapper* processMomNode(Node& mim, const std::string& fileName);
    void handleModelFeatures(Node* modelFeatures, MomWrapper* mom);

    /// The attribute value, trimmed; a trimmed value is also a warning.
    std::string getPocoData(Attr* attr);
    /// The concatenated text children of an element, untrimmed.
    std::string getPcdata(Node& element);
    /// The same text without a copy where the element holds one text node
    /// and nothing else (as almost every text element of a model does): that
    /// node's value; otherwise getPcdata(element), kept in `joined`. Valid
    /// while the element and `joined` are.
    const std::string& pcdataOf(Node& element, std::string& joined);
    void ignoreUnknownElementLog(Node& node);
    void ignoreUnsupportedElementLog(Node& node);
    void ignoreUnknownAttributeLog(Attr& attr);
    void ignoreUnsupportedAttributeLog(Attr& attr);
    void ignoreUnsupportedElementTypeLog(Node& node);
    void ignoreAllAttributes(Node& node);
    /// Reports a finding of the parser (level 3 error, 4 warning) through
    /// the repository; may throw outside standalone mode.
    void checkThrowException(unsigned short level, const char* format, ...)
        __attribute__((format(printf, 3, 4)));
    /// The single element child of a data type element; null (and an error)
    /// when there is none, a warning for each further one.
    Node* initTypes(Node& dataType);
    /// ZefOk when `value` fits the primitive `type` (booleans are lower-cased
    /// in place first); the converter's code otherwise.
    ZefReturnT ifPrimitiveValueCheckElseIgnore(std::string& value, ZefOamSpiMrType_3 type);
    /// True for the seven data type names the format defines but the
    /// repository does not support.
    bool isCommonUnsupportedDatatype(const std::string& name);
    void handleBaseType(Node& baseType, DdtWrapper& ddt);

    /// The attributes of `node` in the DOM's order (none for a node that is
    /// not an element), each traced "Found attribute: %s=%s.".
    AttributeList attributesOf(Node& node);
    /// Turns a setter result into a warning: ZefOk is silent, ZefAlreadyExists
    /// reports `alreadySetFormat`, any other result `failedFormat`; both
    /// formats take the same arguments.
    void reportSetterResult(ZefReturnT result, const char* alreadySetFormat, const char* failedFormat, ...);
    /// Reads the attributes of an element that defines a named record:
    /// "name" goes to `setName`, whose result reportSetterResult turns into
    /// a warning (both formats take the name); any other attribute is
    /// unknown.
    void readNameAttribute(Node& element, const std::function<ZefReturnT(const std::string&)>& setName,
                           const char* alreadySetFormat, const char* failedFormat);
    /// True for "deprecated", "obsolete" and "preliminary".
    static bool isStatusWord(const std::string& name);
    /// Applies a status word to an element: "deprecated" sets status 2 and
    /// "DEPRECATED", "obsolete" status 3 and "OBSOLETE", "preliminary" only
    /// the text "PRELIMINARY". Returns the result of the numeric setter (the
    /// text setter's for "preliminary"); ZefInvalidArgument for another word.
    ZefReturnT setStatusWord(const std::string& word, GeneralPropertiesWrapper& properties);
    /// The code of a primitive data type name ("int8" ... "double");
    /// ZefMrType3NotSet for any other name.
    static ZefOamSpiMrType_3 primitiveTypeCode(const std::string& name);
    /// The code of a reference name ("moRef" 11, "enumRef" 12,
    /// "derivedDataTypeRef" 13, "structRef" 14); ZefMrType3NotSet otherwise.
    static ZefOamSpiMrType_3 referenceTypeCode(const std::string& name);
    /// The "name" attribute of an element, trimmed, for traces only (no
    /// warning); empty when there is none.
    static std::string nameAttributeOf(Node& element);

    /// While it lives, the findings of the parser point at `element`: each
    /// handler names the element it reads, and scopes nest as the handlers
    /// do. The element must belong to the document being parsed.
    class ReadingScope {
    public:
        ReadingScope(ModelParser& parser, Node& element);
        ~ReadingScope();
        ReadingScope(const ReadingScope&) = delete;
        ReadingScope& operator=(const ReadingScope&) = delete;

    private:
        ModelParser& _parser;
    };
    /// Where `element` stands in the file being parsed: the file, and the
    /// line and column where the reader met its start tag (0 when not known).
    /// Unknown outside parse().
    SourceLocation locationOf(Node& element) const;
    /// Gives a record the place of the element that defines it.
    void placeRecord(GeneralPropertiesWrapper& record, Node& element) const;

    // ---- classes and their members (ModelParserClasses.cpp) -----------------

    /// The class record, or null when the class is refused.
    MocWrapper* processMocNode(Node& classElement, MomWrapper& mom);
    void processMocValidationRules(const std::string& mocName, Node& validationRules, MocWrapper& moc);
    AttrWrapper* processAttrNode(Node& attribute, MocWrapper& moc);
    MoActionWrapper* processActionNode(Node& action, MocWrapper& moc);
    void handleParameter(Node& parameter, MoActionWrapper& action);
    void handleReturnType(Node* returnType, MoActionWrapper* action);

    template <typename T> void handleDataType(Node* dataType, T* record);
    /// False when `type` names no primitive type; otherwise sets the type
    /// and reads the default values, leaving the last setter result in `result`.
    template <typename T> bool checkHandlePrimitiveDataType(Node* type, T* record, ZefReturnT& result);
    template <typename T> void handleReference(Node* reference, T* record, bool allowDefault);
    template <typename T> void handleSeqDataType(Node* sequence, T* record);
    template <typename T> ZefReturnT handleSeqDefaultValue(Node* seqDefaultValue, T* record);

    // ---- data types (ModelParserDataTypes.cpp) ------------------------------

    EnumWrapper* processEnumNode(Node& enumeration, MomWrapper& mom);
    void handleEnumMember(Node& enumMember, EnumWrapper& enumeration);
    DdtWrapper* processDdtNode(Node& derivedDataType, MomWrapper& mom);
    void handleIntDataType(Node& type, DdtWrapper& ddt);
    void handleDoubleDataType(Node& type, DdtWrapper& ddt);
    void handleDdtStringDataType(Node& type, DdtWrapper& ddt);
    void handleBoolDefaultValue(Node& type, DdtWrapper& ddt);
    void processDdtValidationRules(const std::string& ddtName, Node& validationRules, std::string& pattern,
                                   std::string& exceptionText);
    StructWrapper* processStructNode(Node* structure, MomWrapper* mom);
    StructMemberWrapper* processStructMemberNode(Node* structMember);
    void handleDomainExtension(Node* domainExtension, GeneralPropertiesWrapper* owner);

    // ---- relationships (ModelParserRelationships.cpp) -----------------------

    void processRelationshipNode(Node& relationship, MomWrapper& mom);
    /// A containment of the MOM: `relationship` gives its name and
    /// properties, `containment` its body.
    ContWrapper* processContNode(Node& relationship, Node& containment, MomWrapper& mom);
    void handleContainment(Node& containment, ContWrapper& cont);
    void handleContEnd(Node& end, ContWrapper& cont, bool kid);
    void processInterMimNode(Node& interMim);
    /// An association: `relationship` gives its name and properties, `body`
    /// the "biDirectionalAssociation" or "uniDirectionalAssociation" element.
    template <typename T> void processDirectionalAssocNode(Node& relationship, Node& body, MomWrapper& mom, T& assoc);
    void handleBidirAssociation(Node& body, MomWrapper& mom, BiDirAssociationWrapper& bidir);
    void handleUnidirAssociation(Node& body, MomWrapper& mom, UniDirAssociationWrapper& unidir);
    /// A new association end of the MOM, identified within its association
    /// by `identifier` (the relationship's name).
    AssociationEndWrapper* processAssociationEndNode(Node& end, MomWrapper& mom, const std::string& identifier);
    void handleAssociationEnd(Node& end, AssociationEndWrapper& record);

private:
    // ---- frame and mim level (ModelParser.cpp) ------------------------------

    class FileBeingParsed;

    /// checkThrowException on a va_list: logs the formatted text at its level
    /// and hands it to the repository as a finding of "ModelParser".
    void vcheckThrowException(unsigned short level, const char* format, va_list args)
        __attribute__((format(printf, 3, 0)));

    // ---- classes and their members (ModelParserClasses.cpp) -----------------

    /// Deletes a class that no registry holds, with the attributes and
    /// actions it lists (once a class is registered they belong to the
    /// repository; before that nobody else knows them).
    static void discardMoc(MocWrapper* moc);
    /// Reads one child element of a class; `mocName` names it in findings.
    void processMocChild(Node& child, MocWrapper& moc, const std::string& mocName);
    /// Reads one child element of an attribute.
    void processAttrChild(Node& child, AttrWrapper& attr, const std::string& attrName);

    ModelRepository* _repository;
    bool _standalone = false;
    // The file being parsed, as the repository keeps its name; null outside parse().
    const std::string* _file = nullptr;
    // Where the elements of the document being parsed begin; null outside parse().
    const ElementPositions* _positions = nullptr;
    // The elements being read, innermost last (see ReadingScope).
    std::vector<Node*> _reading;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_MODEL_PARSER_H
