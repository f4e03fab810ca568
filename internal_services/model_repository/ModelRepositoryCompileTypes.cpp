// Compilation of data types: resolves the type reference of every
// attribute, action result, parameter and struct member into the element's
// type pointers, with the substitute type of the passphrase rule.

#include "ModelRepository.h"

#include <memory>
#include <string>
#include <utility>

#include "AttrWrapper.h"
#include "CompileReporter.h"
#include "DdtWrapper.h"
#include "EnumWrapper.h"
#include "FindingSubject.h"
#include "LazyKey.h"
#include "MoActionWrapper.h"
#include "MocWrapper.h"
#include "MrUtil.h"
#include "ParameterWrapper.h"
#include "RefId.h"
#include "ResolvedReferences.h"
#include "StructMemberWrapper.h"
#include "StructWrapper.h"
#include "TypedElementWrapper.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

namespace {

/// The class name that stands for "any class" in a reference.
const char* const anyClassName = "ManagedObject";
/// Appended to a passphrase type's key to name its substitute for key attributes.
const char* const passphraseSubstituteSuffix = "_forPassphraseMOCKey_StructKey";

/// One text of the type resolution. A worded text begins with the element's
/// kind word and takes it as its first argument; every text then takes the
/// element's key, then its own arguments.
struct ResolutionText {
    const char* format;
    bool worded;
};

/// The texts of one kind of typed element. A null format switches the rule
/// off for that kind (the same-class rule, the passphrase rule).
struct ResolutionTexts {
    ResolutionText mimVersionMissing;     // error
    ResolutionText basicType;             // trace (type code)
    ResolutionText mocAlreadySet;         // error
    ResolutionText anyClass;              // trace (reference name)
    ResolutionText mocNotSet;             // error
    ResolutionText mocNotFound;           // error (class key)
    ResolutionText mocResolved;           // trace (class key)
    ResolutionText sameMoc;               // error (class key)
    ResolutionText enumAlreadySet;        // error
    ResolutionText enumNotSet;            // error
    ResolutionText enumNotFound;          // error (enum key)
    ResolutionText enumResolved;          // trace (enum key)
    ResolutionText ddtAlreadySet;         // error
    ResolutionText ddtNotSet;             // error
    ResolutionText ddtNotFound;           // error (ddt key)
    ResolutionText ddtResolved;           // trace (ddt key)
    ResolutionText structAlreadySet;      // error
    ResolutionText structNotSet;          // error
    ResolutionText structNotFound;        // error (struct key)
    ResolutionText structResolved;        // trace (struct key)
    ResolutionText unknownType;           // warning (type code)
    ResolutionText passphraseIgnored;     // warning
    ResolutionText passphraseCopyFailed;  // error
};

// The "any class" traces name the reference after the element, hence the
// numbered arguments.
const ResolutionTexts attributeTexts = {
    {"Failed to resolve mimVersion for attribute (%s)", false},
    {"Attribute (%s) has a basic type (%d), nothing to resolve here.", false},
    {"Attribute (%s) has type moRef and the referencedMoc is already set.", false},
    {"Setting any class reference (%2$s) for attribute (%1$s)", false},
    {"Attribute (%s) has type moRef and the referencedMoc is not set.", false},
    {"Attribute (%s) refers to a Moc (%s) which could not be found.", false},
    {"Attribute (%s) refers to the Moc (%s) -- reference resolved.", false},
    {nullptr, false}, // an attribute may refer to its own class
    {"Attribute (%s) has type enumRef and the enumDataType is already set.", false},
    {"Attribute (%s) has type enumRef and the enumDataType is not set.", false},
    {"Attribute (%s) refers to a Enum (%s) which could not be found.", false},
    {"Attribute (%s) refers to the Enum (%s) -- reference resolved.", false},
    {"Attribute (%s) has type derivedDataTypeRef and the is already set.", false},
    {"Attribute (%s) has type derivedDataTypeRef and the derivedDataType is not set.", false},
    {"Attribute (%s) refers to a Ddt (%s) which could not be found.", false},
    {"Attribute (%s) refers to the Ddt (%s) -- reference resolved.", false},
    {"Attribute(%s) has type structDatatypeRef and the structDatatype is already set.", false},
    {"Attribute(%s) has type structDatatypeRef and the structDatatype is not set.", false},
    {"Attribute(%s) refers to a Struct(%s) which can not be found.", false},
    {"Attribute(%s) refers to Struct(%s) -- reference resolved.", false},
    {"Attribute (%s) has an unknown/usupported type %d.", false},
    {"Attribute (%s) is Key and has Passphrase property set. Ignoring the Passphrase property.", false},
    {"Could not add a duplicate Ddt with Passphrase=false  for Attribute (%s).", false},
};

const ResolutionTexts actionTexts = {
    {"Failed to resolve mimVersion for action (%s)", false},
    {"Action (%s) has a basic type (%d), nothing to resolve here.", false},
    {"Action (%s) has type moRef and the referencedMoc is already set.", false},
    {"Setting any class reference (%2$s) for action (%1$s)", false},
    {"Action (%s) has type moRef and the referencedMoc is not set.", false},
    {"Action (%s) refers to a Moc (%s) which could not be found.", false},
    {"Action (%s) refers to the Moc (%s) -- reference resolved.", false},
    {"Action (%s) refers to the same Moc (%s) which contains it.", false},
    {"Action (%s) has type enumRef and the enumDataType is already set.", false},
    {"Action (%s) has type enumRef and the enumDataType is not set.", false},
    {"Action (%s) refers to a Enum (%s) which could not be found.", false},
    {"Action (%s) refers to the Enum (%s) -- reference resolved.", false},
    {"Action (%s) has type derivedDataTypeRef and the is already set.", false},
    {"Action (%s) has type derivedDataTypeRef and the derivedDataType is not set.", false},
    {"Action (%s) refers to a Ddt (%s) which could not be found.", false},
    {"Action (%s) refers to the Ddt (%s) -- reference resolved.", false},
    {"Action(%s) has type structDatatypeRef and the structDatatype is already set.", false},
    {"Action(%s) has type structDatatypeRef and the structDatatype is not set.", false},
    {"Action(%s) refers to a Struct(%s) which can not be found.", false},
    {"Action(%s) refers to Struct(%s) -- reference resolved.", false},
    {"Action (%s) has an unknown/usupported type %d.", false},
    {nullptr, false}, // a result type is never a key
    {nullptr, false},
};

/// Parameters and struct members: the kind word ("Parameter",
/// "StructMember") leads every text but the two of the passphrase rule.
const ResolutionTexts memberTexts = {
    {"Failed to resolve mimVersion for %s (%s)", true},
    {"%s (%s) has a basic type (%d), nothing to resolve here.", true},
    {"%s (%s) has type moRef and the referencedMoc is already set.", true},
    {"Setting any class reference (%3$s) for %1$s (%2$s)", true},
    {"%s (%s) has type moRef and the referencedMoc is not set.", true},
    {"%s (%s) refers to a Moc (%s) which could not be found.", true},
    {"%s (%s) refers to the Moc (%s) -- reference resolved.", true},
    {"%s (%s) refers to the same Moc (%s) which contains it.", true},
    {"%s (%s) has type enumRef and the enumDataType is already set.", true},
    {"%s (%s) has type enumRef and the enumDataType is not set.", true},
    {"%s (%s) refers to a Enum (%s) which could not be found.", true},
    {"%s (%s) refers to the Enum (%s) -- reference resolved.", true},
    {"%s (%s) has type derivedDataTypeRef and the is already set.", true},
    {"%s (%s) has type derivedDataTypeRef and the derivedDataType is not set.", true},
    {"%s (%s) refers to a Ddt (%s) which could not be found.", true},
    {"%s (%s) refers to the Ddt (%s) -- reference resolved.", true},
    {"%s (%s) has type structDatatypeRef and the structDatatype is already set.", true},
    {"%s (%s) has type structDatatypeRef and the structDatatype is not set.", true},
    {"%s (%s) refers to a Struct(%s) which can not be found.", true},
    {"%s (%s) refers to Struct(%s) -- reference resolved.", true},
    {"%s (%s) has an unknown/usupported type %d.", true},
    {"(%s) is Key and has Passphrase property set.Ignoring the Passphrase property.", false},
    {"Could not add a duplicate Ddt with Passphrase=false  for (%s).", false},
};

/// The four type pointers an element holds at the moment.
struct TypeTargets {
    const ZefOamSpiMoc* referencedMoc;
    const ZefOamSpiEnum* enumeration;
    const ZefOamSpiDerivedDatatype* derived;
    const ZefOamSpiStruct* structure;
};

TypeTargets currentTargets(const AttrWrapper& attr)
{
    const ZefOamSpiMoAttribute& record = attr.getStruct();
    return {record.referencedMoc, record.enumDatatype, record.derivedDatatype, record.structDatatype};
}

TypeTargets currentTargets(const TypedElementWrapper& element)
{
    return {element.getReferencedMoc(), element.getEnumDatatype(), element.getDerivedDatatype(),
            element.getStructDatatype()};
}

/// Name and version of the MOM an element belongs to; a reference that
/// names no MOM means this one.
template <typename Element>
std::pair<std::string, std::string> ownMom(const Element& element)
{
    return {element.getMomName(), element.getMomVersion()};
}

std::pair<std::string, std::string> ownMom(const MoActionWrapper& action)
{
    const ZefOamSpiMoc* moc = action.getStruct().moc;
    if (moc == nullptr || moc->mom == nullptr) {
        return {};
    }
    return {MrUtil::str(moc->mom->generalProperties.name), MrUtil::str(moc->mom->version)};
}

/// Parameters and struct members carry no key flag of their own; the model
/// marks a key member with the domain extension "QCIM"/"isKey" = "true".
bool hasKeyExtension(const GeneralPropertiesWrapper& member)
{
    // Asked for every member: the names are built once.
    static const std::string domain("QCIM");
    static const std::string name("isKey");
    const DomainExtensionWrapper* isKey = member.getDomainExtension(domain, name);
    return isKey != nullptr && isKey->getValue() == "true";
}

/// Resolves the type reference of typed elements of one kind (attributes,
/// action results, parameters or struct members) into the element's type
/// pointers. The kinds differ only in their word, their texts, the key of
/// the record that holds the element (a reference to it is refused when the
/// kind has the same-class rule) and whether an element counts as a key for
/// the passphrase rule; all four are parameters here.
class TypeResolver {
public:
    /// `references` (null for none) keeps the targets found, across
    /// resolvers of one compilation.
    /// `holder` (null for none) is the record whose key the same-class rule
    /// compares a class reference with.
    TypeResolver(ModelRepository& repository, const CompileReporter& reporter, const char* word,
                 const ResolutionTexts& texts, ResolvedReferences* references,
                 const GeneralPropertiesWrapper* holder)
        : _repository(repository), _reporter(reporter), _word(word), _texts(texts), _references(references),
          _holderKey(holder)
    {
    }

    /// Resolves `element`, known under its identity key; `isKey` applies
    /// the passphrase rule to a passphrase type.
    template <typename Element>
    void resolve(Element& element, bool isKey)
    {
        // The key is only read for a text: most elements have a basic type
        // and, below the trace level, produce none.
        _key.reset(&element);
        RefId& ref = element;
        const ZefOamSpiMrType_3 type = element.getType();
        switch (type) {
        case ZefMrType3Reference:
            completeReference(element, ref);
            resolveMoc(element, ref);
            break;
        case ZefMrType3Enum:
            completeReference(element, ref);
            resolveEnum(element, ref);
            break;
        case ZefMrType3Derived:
            completeReference(element, ref);
            resolveDdt(element, ref, isKey);
            break;
        case ZefMrType3Struct:
            completeReference(element, ref);
            resolveStruct(element, ref);
            break;
        case ZefMrType3Int8:
        case ZefMrType3Int16:
        case ZefMrType3Int32:
        case ZefMrType3Int64:
        case ZefMrType3UInt8:
        case ZefMrType3UInt16:
        case ZefMrType3UInt32:
        case ZefMrType3UInt64:
        case ZefMrType3String:
        case ZefMrType3Bool:
        case ZefMrType3Void:
        case ZefMrType3Double:
            trace(_texts.basicType, static_cast<int>(type));
            break;
        default:
            say(ZEF_LOG_LEVEL_WARNING, _texts.unknownType, static_cast<int>(type));
            setTargets(element, TypeTargets{});
            break;
        }
    }

private:
    /// The key of the holder, read on first use: most elements refer to no
    /// class. Empty without a holder.
    const std::string& holderKey() { return _holderKey.str(); }

    /// The identity key of the element being resolved, read once.
    const std::string& key() { return _key.str(); }

    template <typename... Args>
    std::string render(const ResolutionText& text, Args... args)
    {
        const char* const elementKey = key().c_str();
        return text.worded ? CompileReporter::format(text.format, _word, elementKey, args...)
                           : CompileReporter::format(text.format, elementKey, args...);
    }

    template <typename... Args>
    void say(unsigned short level, const ResolutionText& text, Args... args)
    {
        _reporter.report(level, render(text, args...));
    }

    template <typename... Args>
    void trace(const ResolutionText& text, Args... args)
    {
        if (CompileReporter::traceEnabled()) {
            const std::string line = render(text, args...);
            ZEF_TRACE("%s", line.c_str());
        }
    }

    /// The target found before for a reference of these texts, or null.
    const GeneralPropertiesWrapper* findResolved(ResolvedReferences::Kind kind, const RefId& ref) const
    {
        return _references != nullptr ? _references->find(kind, ref) : nullptr;
    }

    void noteResolved(ResolvedReferences::Kind kind, const RefId& ref, const GeneralPropertiesWrapper* target)
    {
        if (_references != nullptr) {
            _references->add(kind, ref, target);
        }
    }

    /// Traces a reference resolved through a target found before, with the
    /// target key built (by `keyOf`) only for the trace.
    void traceResolved(const ResolutionText& text, const RefId& ref,
                       std::string (*keyOf)(const char*, const char*, const char*))
    {
        if (CompileReporter::traceEnabled()) {
            const std::string targetKey =
                keyOf(ref.getRefMomName().c_str(), ref.getRefMomVersion().c_str(), ref.getRefName().c_str());
            trace(text, targetKey.c_str());
        }
    }

    /// What lookUpType found: the target, and the key it built (empty
    /// for a target met before). Without a target, an empty key could not
    /// be built and a key names nothing registered.
    template <typename Wrapper>
    struct TypeLookUp {
        const Wrapper* target = nullptr;
        std::string key;
    };

    /// The registered type that `ref` names: the one met before in this
    /// compilation, or the one its key (built by `keyOf`) names in
    /// `registry`, which is then remembered.
    template <typename Wrapper>
    TypeLookUp<Wrapper> lookUpType(ResolvedReferences::Kind kind, const RefId& ref,
                                   const std::map<std::string, Wrapper*>& registry,
                                   std::string (*keyOf)(const char*, const char*, const char*))
    {
        TypeLookUp<Wrapper> result;
        result.target = static_cast<const Wrapper*>(findResolved(kind, ref));
        if (result.target != nullptr) {
            return result;
        }
        result.key = keyOf(ref.getRefMomName().c_str(), ref.getRefMomVersion().c_str(), ref.getRefName().c_str());
        if (result.key.empty()) {
            return result;
        }
        const auto found = registry.find(result.key);
        if (found != registry.end()) {
            result.target = found->second;
            noteResolved(kind, ref, result.target);
        }
        return result;
    }

    /// Traces `text` with the target's key: the one lookUpType built, or,
    /// for a target met before, one built for the trace only.
    void traceType(const ResolutionText& text, const RefId& ref,
                   std::string (*keyOf)(const char*, const char*, const char*), const std::string& key)
    {
        if (key.empty()) {
            traceResolved(text, ref, keyOf);
        } else {
            trace(text, key.c_str());
        }
    }

    template <typename Element>
    static void setTargets(Element& element, const TypeTargets& targets)
    {
        element.setReferencedMoc(targets.referencedMoc);
        element.setEnumDatatype(targets.enumeration);
        element.setDerivedDatatype(targets.derived);
        element.setStructDatatype(targets.structure);
    }

    /// ModelRepository::translateMimName, remembering a MOM name that is no
    /// modelling-standard name (most are not), so that it is looked up once.
    void translateMomName(RefId& ref)
    {
        if (_references != nullptr && _references->isPlainMomName(ref.getRefMomName())) {
            return;
        }
        if (!_repository.translateMimName(ref) && _references != nullptr) {
            _references->addPlainMomName(ref.getRefMomName());
        }
    }

    /// Gives the reference its MOM: a modelling-standard MOM name becomes
    /// the MOM's own name and version, no MOM name means the element's own
    /// MOM, and a missing version is the one of the only MOM of that name.
    template <typename Element>
    void completeReference(const Element& element, RefId& ref)
    {
        if (!ref.getRefMomName().empty()) {
            translateMomName(ref);
        }
        if (ref.getRefMomName().empty()) {
            const std::pair<std::string, std::string> mom = ownMom(element);
            // The elements of one holder share their MOM: a reference
            // completed with the same texts before lends its pooled ones.
            if (_ownMomRef != nullptr && _ownMomRef->getRefMomName() == mom.first
                && _ownMomRef->getRefMomVersion() == mom.second) {
                ref.setRefMomFrom(*_ownMomRef);
            } else {
                ref.setRefMomName(mom.first);
                ref.setRefMomVersion(mom.second);
                _ownMomRef = &ref;
            }
        }
        if (!ref.getRefMomName().empty() && ref.getRefMomVersion().empty()) {
            std::string version;
            _repository.getMimVersion(ref.getRefMomName(), version);
            ref.setRefMomVersion(version);
            if (version.empty()) {
                say(ZEF_LOG_LEVEL_ERROR, _texts.mimVersionMissing);
            }
        }
    }

    template <typename Element>
    void resolveMoc(Element& element, const RefId& ref)
    {
        if (currentTargets(element).referencedMoc != nullptr) {
            say(ZEF_LOG_LEVEL_ERROR, _texts.mocAlreadySet);
            return;
        }
        // A class met before is answered first: a reference to any class
        // is never looked up, so never kept. Kinds with the same-class rule
        // go the long way, as that rule compares keys.
        const auto* known = _texts.sameMoc.format == nullptr
                                ? static_cast<const MocWrapper*>(findResolved(ResolvedReferences::Kind::Moc, ref))
                                : nullptr;
        if (known != nullptr) {
            element.setReferencedMoc(&known->getStruct());
            traceResolved(_texts.mocResolved, ref, &MocWrapper::getMocId);
            return;
        }
        // Any class is a class of no MOM: it is never looked up.
        if (ref.getRefName() == anyClassName) {
            element.setReferencedMoc(&_repository.getAnyClassMoc().getStruct());
            trace(_texts.anyClass, ref.getRefName().c_str());
            return;
        }
        const std::string mocKey = MocWrapper::getMocId(ref.getRefMomName().c_str(), ref.getRefMomVersion().c_str(),
                                                        ref.getRefName().c_str());
        if (mocKey.empty()) {
            say(ZEF_LOG_LEVEL_ERROR, _texts.mocNotSet);
            return;
        }
        if (_texts.sameMoc.format != nullptr && mocKey == holderKey()) {
            say(ZEF_LOG_LEVEL_ERROR, _texts.sameMoc, mocKey.c_str());
            return;
        }
        const ModelRepository::MocMap& mocs = _repository.getMocMap();
        const auto found = mocs.find(mocKey);
        if (found == mocs.end()) {
            say(ZEF_LOG_LEVEL_ERROR, _texts.mocNotFound, mocKey.c_str());
            return;
        }
        noteResolved(ResolvedReferences::Kind::Moc, ref, found->second);
        element.setReferencedMoc(&found->second->getStruct());
        trace(_texts.mocResolved, mocKey.c_str());
    }

    template <typename Element>
    void resolveEnum(Element& element, const RefId& ref)
    {
        if (currentTargets(element).enumeration != nullptr) {
            say(ZEF_LOG_LEVEL_ERROR, _texts.enumAlreadySet);
            return;
        }
        const TypeLookUp<EnumWrapper> found =
            lookUpType(ResolvedReferences::Kind::Enum, ref, _repository.getEnumMap(), &EnumWrapper::getEnumId);
        if (found.target == nullptr) {
            if (found.key.empty()) {
                say(ZEF_LOG_LEVEL_ERROR, _texts.enumNotSet);
            } else {
                say(ZEF_LOG_LEVEL_ERROR, _texts.enumNotFound, found.key.c_str());
            }
            return;
        }
        setTargets(element, TypeTargets{nullptr, &found.target->getStruct(), nullptr, nullptr});
        traceType(_texts.enumResolved, ref, &EnumWrapper::getEnumId, found.key);
    }

    template <typename Element>
    void resolveDdt(Element& element, const RefId& ref, bool isKey)
    {
        if (currentTargets(element).derived != nullptr) {
            say(ZEF_LOG_LEVEL_ERROR, _texts.ddtAlreadySet);
            return;
        }
        const TypeLookUp<DdtWrapper> found =
            lookUpType(ResolvedReferences::Kind::Ddt, ref, _repository.getDdtMap(), &DdtWrapper::getDdtId);
        if (found.target == nullptr) {
            if (found.key.empty()) {
                say(ZEF_LOG_LEVEL_ERROR, _texts.ddtNotSet);
            } else {
                say(ZEF_LOG_LEVEL_ERROR, _texts.ddtNotFound, found.key.c_str());
            }
            return;
        }
        const DdtWrapper* target = found.target;
        const ZefOamSpiDerivedDatatype* ddt = &target->getStruct();
        if (isKey && _texts.passphraseIgnored.format != nullptr && target->getIsPassphrase()) {
            ddt = passphraseSubstitute(*target);
        }
        setTargets(element, TypeTargets{nullptr, nullptr, ddt, nullptr});
        if (ddt != nullptr) {
            traceType(_texts.ddtResolved, ref, &DdtWrapper::getDdtId, found.key);
        }
    }

    /// A key must stay readable, so a key typed by a passphrase type is
    /// typed by a copy of it that is no passphrase. The copy is filed under
    /// the type's MOM with the type's key and a fixed suffix as name, so all
    /// keys of one passphrase type share it. Null when it cannot be filed.
    const ZefOamSpiDerivedDatatype* passphraseSubstitute(const DdtWrapper& passphrase)
    {
        say(ZEF_LOG_LEVEL_WARNING, _texts.passphraseIgnored);
        const std::string name = passphrase.getId() + passphraseSubstituteSuffix;
        const ZefOamSpiMom* mom = passphrase.getStruct().mom;
        const std::string key = DdtWrapper::getDdtId(mom != nullptr ? mom->generalProperties.name : nullptr,
                                                     mom != nullptr ? mom->version : nullptr, name.c_str());
        const ModelRepository::DdtMap& ddts = _repository.getDdtMap();
        const auto present = ddts.find(key);
        if (present != ddts.end()) {
            return &present->second->getStruct();
        }
        // Owned here until the repository accepts it (addDdt may also throw).
        std::unique_ptr<DdtWrapper> substitute(new DdtWrapper(passphrase, name));
        substitute->setIsPassphrase(false);
        if (_repository.addDdt(substitute.get()) != ZefOk) {
            say(ZEF_LOG_LEVEL_ERROR, _texts.passphraseCopyFailed);
            return nullptr;
        }
        // Published only once filed: the query interface keeps its object
        // (which refers to the type) for the life of the process, so a
        // refused copy must never have been registered.
        DdtWrapper* filed = substitute.release();
        filed->registerIf2();
        return &filed->getStruct();
    }

    template <typename Element>
    void resolveStruct(Element& element, const RefId& ref)
    {
        if (currentTargets(element).structure != nullptr) {
            say(ZEF_LOG_LEVEL_ERROR, _texts.structAlreadySet);
            return;
        }
        const TypeLookUp<StructWrapper> found = lookUpType(ResolvedReferences::Kind::Struct, ref,
                                                           _repository.getStructMap(), &StructWrapper::getStructId);
        if (found.target == nullptr) {
            if (found.key.empty()) {
                say(ZEF_LOG_LEVEL_ERROR, _texts.structNotSet);
            } else {
                say(ZEF_LOG_LEVEL_ERROR, _texts.structNotFound, found.key.c_str());
            }
            return;
        }
        setTargets(element, TypeTargets{nullptr, nullptr, nullptr, &found.target->getStruct()});
        traceType(_texts.structResolved, ref, &StructWrapper::getStructId, found.key);
    }

    ModelRepository& _repository;
    const CompileReporter& _reporter;
    const char* _word;
    const ResolutionTexts& _texts;
    ResolvedReferences* _references;
    LazyKey _holderKey;
    // The last reference that was given its element's own MOM.
    const RefId* _ownMomRef = nullptr;
    // The element being resolved.
    LazyKey _key;
};

/// The kind word of the members of a container, as the member texts print it.
const char* memberWord(const StructWrapper&)
{
    return "StructMember";
}

const char* memberWord(const MoActionWrapper&)
{
    return "Parameter";
}

} // namespace

void ModelRepository::setAttrsDataType(MocWrapper& moc)
{
    const CompileReporter reporter = compileReporter();
    // An attribute may refer to its own class: no holder.
    TypeResolver resolver(*this, reporter, "Attribute", attributeTexts, _resolvedReferences.get(), nullptr);
    for (AttrWrapper* attr : moc.getAttrsList()) {
        resolver.resolve(*attr, attr->getStruct().isKey);
    }
}

void ModelRepository::setMoActionDataType(MocWrapper& moc)
{
    const CompileReporter reporter = compileReporter();
    TypeResolver resolver(*this, reporter, "Action", actionTexts, _resolvedReferences.get(), &moc);
    for (MoActionWrapper* action : moc.getMoActionList()) {
        resolver.resolve(*action, false);
        setMoAttributeDatatypeTpl(*action, action->getParameterListFront());
    }
}

template <typename Container, typename Member>
void ModelRepository::setMoAttributeDatatypeTpl(Container& container, Member* first)
{
    const CompileReporter reporter = compileReporter();
    TypeResolver resolver(*this, reporter, memberWord(container), memberTexts, _resolvedReferences.get(),
                          &container);
    for (Member* member = first; member != nullptr; member = member->getNext()) {
        const FindingSubject subject(*this, member);
        resolver.resolve(*member, hasKeyExtension(*member));
    }
}

template void ModelRepository::setMoAttributeDatatypeTpl<StructWrapper, StructMemberWrapper>(StructWrapper&,
                                                                                            StructMemberWrapper*);
template void ModelRepository::setMoAttributeDatatypeTpl<MoActionWrapper, ParameterWrapper>(MoActionWrapper&,
                                                                                           ParameterWrapper*);

} // namespace ZefModelRepositoryService
