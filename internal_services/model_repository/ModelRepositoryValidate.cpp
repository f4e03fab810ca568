// Validation of the compiled model: the consistency rules over every
// registry, run after compilation. It changes nothing but the tree root,
// which is picked last and only for a model without errors. In standalone
// mode every rule runs to the end so that one run lists every finding.

#include "ModelRepository.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "AssociationEndWrapper.h"
#include "AttrWrapper.h"
#include "BiDirAssociationWrapper.h"
#include "ContWrapper.h"
#include "DdtWrapper.h"
#include "EnumWrapper.h"
#include "FindingSubject.h"
#include "LazyKey.h"
#include "LitWrapper.h"
#include "MoActionWrapper.h"
#include "MocWrapper.h"
#include "MomWrapper.h"
#include "MrUtil.h"
#include "ParameterWrapper.h"
#include "RegistryIndex.h"
#include "StructMemberWrapper.h"
#include "StructWrapper.h"
#include "TypeContainerWrapper.h"
#include "UniDirAssociationWrapper.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

namespace {

const unsigned short levelError = ZEF_LOG_LEVEL_ERROR;
const unsigned short levelWarning = ZEF_LOG_LEVEL_WARNING;

// ---- finding texts -------------------------------------------------------------
// Every text validation reports, in the order of the checks.

// MOMs
constexpr const char* emptyModel = "Empty model compiled.";
// "Mom <key> not correct:" followed by one or both of:
constexpr const char* momNamespaceMissing = " The namespace is not set.";
constexpr const char* momNamespacePrefixMissing = " The namespacePrefix is not set.";

// enumerations and derived types
constexpr const char* literalWithoutValue = "Value of literal (%s) is not set.";

// classes
constexpr const char* mocWithoutMom = "Moc (%s) has no Mom.";
constexpr const char* mocWithoutParent = "Moc (%s) has no parent.";
constexpr const char* readOnlyMocWritableAttr = "Read only MOC (%s) can not have not readonly attribute (%s)";

// attributes: the type/pointer table
constexpr const char* basicWithDerived = "Attribute (%s) type is %d and the derivedDatatype is set.";
constexpr const char* basicWithEnum = "Attribute (%s) type is %d and the enumDatatype is set.";
constexpr const char* basicWithStruct = "Attribute (%s) type is %d and the structDatatype is set.";
constexpr const char* basicWithReference = "Attribute (%s) type is %d and the referencedMoc is set.";
constexpr const char* referenceWithDerived = "Attribute (%s) has type REFERENCE and the derivedDatatype is set.";
constexpr const char* referenceWithEnum = "Attribute (%s) has type REFERENCE and the enumDatatype is set.";
constexpr const char* referenceWithStruct = "Attribute (%s) has type REFERENCE and the structDatatype is set.";
constexpr const char* referenceWithoutMoc = "Attribute (%s) has type REFERENCE and the referencedMoc is not set.";
constexpr const char* enumWithDerived = "Attribute (%s) has type ENUM and the derivedDatatype is set.";
constexpr const char* enumWithoutEnum = "Attribute (%s) has type ENUM and the enumDatatype (enumRef) is not set.";
constexpr const char* enumWithStruct = "Attribute (%s) has type ENUM and the structDatatype is set.";
constexpr const char* enumWithReference = "Attribute (%s) has type ENUM and the referencedMoc is set.";
constexpr const char* derivedWithEnum = "Attribute (%s) has type DERIVED and the enumDatatype is set.";
constexpr const char* derivedWithStruct = "Attribute (%s) has type DERIVED and the structDatatype is set.";
constexpr const char* derivedWithReference = "Attribute (%s) has type DERIVED and the referencedMoc is set.";
constexpr const char* derivedWithoutDdt = "Attribute (%s) has type DERIVED and the ddt (derivedDataTypeRef) is not set.";
constexpr const char* attrDefaultBreaksPattern =
    "Attribute (%s) type is a derived datatype and the default value (%s) does not conform to the valid values (%s).";
constexpr const char* structWithDerived = "Attribute (%s) has type STRUCT and the derivedDatatype is set.";
constexpr const char* structWithEnum = "Attribute (%s) has type STRUCT and the enumDatatype is set.";
constexpr const char* structWithoutStruct = "Attribute (%s) has type STRUCT, but the structDatatype is not set.";
constexpr const char* structWithReference = "Attribute (%s) has type STRUCT and the referencedMoc is set.";
constexpr const char* voidAttr = "Attribute (%s) can not have void data type";
constexpr const char* unknownAttrType = "Attribute (%s) has an unknown type %d.";

// attributes: the rules on the list
constexpr const char* mandatoryWithDefault = "A mandatory attr (%s) can not have default value (%s).";
constexpr const char* nonPersistentWritable = "A non-persistent attribute (%s) must be readonly.";
constexpr const char* optionalWithMinimum = "If attribute (%s) multiplicity is grater than zero it must be mandatory.";
constexpr const char* mandatoryWithoutMinimum = "Mandatory attribute (%s) multiplicity min should be grater than zero.";
constexpr const char* severalKeys = "Moc (%s) can not have more than one key attribute.";
constexpr const char* noKey = "Moc (%s) must have one key attribute.";

// actions and parameters
constexpr const char* actionDefaultBreaksPattern = "Action (%s) return type is a derived datatype and the default value "
                                                   "(%s) does not conform to the valid values (%s).";
constexpr const char* actionReferenceWithoutMoc =
    "Action (%s) has returnType REFERENCE but pointer to referencedMoc is not set.";
constexpr const char* parameterDerivedWithoutDdt =
    "Parameter (%s) has parameterType DERIVED but pointer to derivedDatatype is not set.";
constexpr const char* parameterDefaultBreaksPattern =
    "Parameter (%s) type is a derived datatype and the default value (%s) does not conform to the valid values (%s).";
constexpr const char* parameterReferenceWithoutMoc =
    "Parameter (%s) has parameterType REFERENCE but pointer to referencedMoc is not set.";

// containments
constexpr const char* contWithoutMom = "Containment (%s) has no mom";
constexpr const char* interMimContWithMom = "IntermimContainment (%s) has mom";
constexpr const char* contWithoutParent = "Containment (%s) has no parent";
constexpr const char* parentWithoutChildContainment = "MOC (%s) has no child containment to(%s)";
constexpr const char* contWithoutChild = "Containment (%s) has no child";
constexpr const char* sameChildNameTwice = "Multiple children to '%s' with the same name '%s' detected";
constexpr const char* parentChainBroken = "Expected the same parent Moc in cont (%s) and (%s).";
constexpr const char* childChainBroken = "Expected the same child Moc in cont (%s) and (%s).";
constexpr const char* contCardinalityReversed = "Containment(%s), cardinality min(%i) > max(%i).";

// structs
constexpr const char* memberEnumWithoutEnum = "Struct Member (%s) has memberType ENUM but pointer to enumDatatype is not set.";
constexpr const char* memberStructWithoutStruct =
    "Struct Member (%s) has memberType STRUCT but pointer to structDatatype is not set.";
constexpr const char* memberDerivedWithoutDdt =
    "Struct Member (%s) has memberType DERIVED but pointer to derivedDatatype is not set.";
constexpr const char* memberDefaultBreaksPattern = "Struct member (%s) type is a derived datatype and the default value "
                                                   "(%s) does not conform to the valid values (%s).";
constexpr const char* memberReferenceWithoutMoc =
    "Struct Member (%s) has memberType REFERENCE but pointer to referencedMoc is not set.";

// associations
constexpr const char* endWithoutMom = "Association End (%s) has no mom";
constexpr const char* endWithoutMoc = "Association End (%s) has no moc";
constexpr const char* endWithoutAttribute = "Association End (%s) has no attribute";
constexpr const char* endCardinalityReversed = "Association end (%s), cardinality min(%i) > max(%i).";
constexpr const char* bidirWithoutMom = "Bidirectional association (%s) has no mom";
constexpr const char* bidirWithoutFirstEnd = "Bidirectional association (%s) has no first Association End";
constexpr const char* bidirWithoutSecondEnd = "Bidirectional association (%s) has no second Association End";
constexpr const char* unidirWithoutMom = "Unidirectional association (%s) has no mom";
constexpr const char* unidirWithoutEnd = "Unidirectional association (%s) has no first Association End";
constexpr const char* unidirWithoutDestination = "Unidirectional association (%s) has no destination moc";

// patterns
constexpr const char* patternDoesNotCompile = "Failed to compile posix regular expression \"%s\" - got error %s";

// ---- helpers -------------------------------------------------------------------

bool isBasicType(int type)
{
    return (type >= ZefMrType3Int8 && type <= ZefMrType3Bool) || type == ZefMrType3Double;
}

bool isSet(const char* text)
{
    return text != nullptr && *text != '\0';
}

/// A text of a record, null read as the empty text.
std::string_view textOf(const char* text)
{
    return text != nullptr ? std::string_view(text) : std::string_view();
}

/// Whether `text` matches `pattern`; the repository's doRegexp.
using PatternMatcher = std::function<bool(const std::string& pattern, const std::string& text)>;

/// The default values of a typed element that do not conform to the
/// pattern of its derived type, in the order they were given. Only a
/// derived string type with a pattern constrains its values, and only an
/// element with a default value is tested: each of its default values (a
/// sequence has several), or the record's single default when no list of
/// values was kept.
std::vector<std::string> nonConformingDefaults(const ZefOamSpiDerivedDatatype* ddt, const char* defaultValue,
                                               const TypeContainerWrapper& typeContainer,
                                               const PatternMatcher& matches)
{
    std::vector<std::string> result;
    if (ddt == nullptr || ddt->type != ZefMoAttributeTypeString || !isSet(ddt->pattern) || defaultValue == nullptr) {
        return result;
    }
    std::vector<std::string> values;
    const char* const* listed = nullptr;
    typeContainer.getDefaultValue(listed);
    for (; listed != nullptr && *listed != nullptr; ++listed) {
        values.emplace_back(*listed);
    }
    if (values.empty()) {
        values.emplace_back(defaultValue);
    }
    for (const std::string& value : values) {
        if (!matches(ddt->pattern, value)) {
            result.push_back(value);
        }
    }
    return result;
}

/// The containments whose chain has been walked: a mark per registered
/// containment, a set for any other.
class WalkedContainments {
public:
    explicit WalkedContainments(const RegistryIndex<ModelRepository::ContMap>& keys)
        : _keys(keys), _marks(keys.size(), false)
    {
    }

    /// Marks `cont`; false when it was marked already.
    bool mark(const ZefOamSpiContainment* cont)
    {
        const size_t index = _keys.indexOf(cont);
        if (index == RegistryIndex<ModelRepository::ContMap>::kNone) {
            return _others.insert(cont).second;
        }
        if (_marks[index]) {
            return false;
        }
        _marks[index] = true;
        return true;
    }

private:
    const RegistryIndex<ModelRepository::ContMap>& _keys;
    std::vector<bool> _marks;
    std::unordered_set<const ZefOamSpiContainment*> _others;
};

} // namespace

// ---- the run -------------------------------------------------------------------

void ModelRepository::validateModel()
{
    ZEF_TRACE_ENTER(" >> ");
    ZEF_TRACE("Validating the Moms in the model.");
    checkMoms();
    ZEF_TRACE("Validating the Enumerations in the model.");
    checkEnums();
    ZEF_TRACE("Validating the DerivedDatatypes in the model.");
    checkDdts();
    ZEF_TRACE("Validating the Mocs in the model.");
    checkMocs();
    ZEF_TRACE("Validating the Containments in the model.");
    checkConts();
    ZEF_TRACE("Validating the Structs in the model.");
    checkStructs();
    ZEF_TRACE("Validating the Association Ends in the model.");
    checkAssociationEnds();
    ZEF_TRACE("Validating the BidirectionalAssociations in the model.");
    checkBiDirectionalAssociations();
    ZEF_TRACE("Validating the UnidirectionalAssociations in the model.");
    checkUniDirectionalAssociations();
    ZEF_TRACE("Finding tree root");
    findTreeRoot();
    // The pattern checker is a copy of this process: every page written
    // while it runs is copied, and what follows validation (the dump, the
    // plug-ins, the cleanup) writes to all of them. No pattern is checked
    // after this point.
    _patterns.clear();
    ZEF_TRACE_LEAVE(" << ");
}

// ---- MOMs, enumerations, derived types -------------------------------------------

void ModelRepository::checkMoms()
{
    ZEF_TRACE_ENTER(" >> Validating Moms..");
    if (_moms.empty()) {
        report(levelWarning, emptyModel);
    }
    for (const MomWrapper* mom : _moms) {
        ZEF_TRACE("Checking Mom (%s)", mom->getId().c_str());
        // A MOM without classes only lends its types to others: it is not
        // published under a namespace of its own.
        if (!mom->getHasMocs()) {
            continue;
        }
        const bool namespaceMissing = !isSet(mom->getStruct().namespaceURI);
        const bool prefixMissing = !isSet(mom->getStruct().namespacePrefix);
        if (namespaceMissing || prefixMissing) {
            std::string text = "Mom " + mom->getId() + " not correct:";
            if (namespaceMissing) {
                text += momNamespaceMissing;
            }
            if (prefixMissing) {
                text += momNamespacePrefixMissing;
            }
            report(levelError, "%s", text.c_str());
        }
    }
    ZEF_TRACE_LEAVE(" << Validation of Moms is done.");
}

void ModelRepository::checkEnums()
{
    ZEF_TRACE_ENTER(" >> Validating Enumerations..");
    for (const auto& entry : _enums) {
        ZEF_TRACE("Checking Enumeration (%s)", entry.first.c_str());
        // The literal chain is what a reader of the published enumeration
        // walks, so it is the chain that is checked.
        const EnumWrapper::LiteralList& literals = entry.second->getLiteralsList();
        for (const LitWrapper* literal = literals.empty() ? nullptr : literals.front(); literal != nullptr;
             literal = literal->getNext()) {
            const FindingSubject subject(*this, literal);
            if (!literal->isValueSet()) {
                report(levelWarning, literalWithoutValue, literal->getId().c_str());
            }
        }
    }
    ZEF_TRACE_LEAVE(" << Compilation of Enumerations is done.");
}

void ModelRepository::checkDdts()
{
    ZEF_TRACE_ENTER(" >> Validating Derived Data Types..");
    // Reversed bounds are warnings: they make a restriction that no value
    // passes, but they do not keep the model from loading.
    for (const auto& entry : _ddts) {
        const std::string& key = entry.first;
        ZEF_TRACE("Checking Derived Data Type (%s)", key.c_str());
        for (const ValueRangeWrapper* range : entry.second->getLengthRanges()) {
            const int64_t min = range->getStruct().min;
            const int64_t max = range->getStruct().max;
            if (min > max) {
                const std::string text = "String restriction length min (" + std::to_string(min) + ") > max ("
                                         + std::to_string(max) + ") for ddt (" + key + ")";
                report(levelWarning, "%s", text.c_str());
            }
        }
        for (const ValueRangeWrapper* range : entry.second->getValueRanges()) {
            const int64_t min = range->getStruct().min;
            const int64_t max = range->getStruct().max;
            if (min > max) {
                const std::string text = "Numeric restriction range min (" + std::to_string(min) + ") > max ("
                                         + std::to_string(max) + ") for ddt (" + key + ")";
                report(levelWarning, "%s", text.c_str());
            }
        }
    }
    ZEF_TRACE_LEAVE(" << Validation of Derived Data Type is done.");
}

// ---- classes, attributes, actions, parameters -------------------------------------

void ModelRepository::checkMocs()
{
    ZEF_TRACE_ENTER(" >> Validating Mocs..");
    for (const auto& entry : _mocs) {
        ZEF_TRACE("Checking Moc (%s)", entry.first.c_str());
        if (entry.second->getStruct().mom == nullptr) {
            report(levelError, mocWithoutMom, entry.first.c_str());
        }
    }
    for (const auto& entry : _mocs) {
        checkAttrs(*entry.second);
    }
    for (const auto& entry : _mocs) {
        checkActions(*entry.second);
    }
    for (const auto& entry : _mocs) {
        const ZefOamSpiMoc& moc = entry.second->getStruct();
        if (moc.parentContainment == nullptr && !moc.isRoot) {
            report(levelError, mocWithoutParent, entry.first.c_str());
        }
    }
    for (const auto& entry : _mocs) {
        if (!entry.second->getStruct().isReadOnly) {
            continue;
        }
        for (const AttrWrapper* attr : entry.second->getAttrsList()) {
            if (!attr->getStruct().isReadOnly) {
                report(levelError, readOnlyMocWritableAttr, entry.first.c_str(), attr->getId().c_str());
            }
        }
    }
    ZEF_TRACE_LEAVE(" << Validation of Mocs is done");
}

void ModelRepository::checkAttrs(MocWrapper& moc)
{
    ZEF_TRACE_ENTER(" >> Validating Attributes..");
    const PatternMatcher matches = [this](const std::string& pattern, const std::string& text) {
        return doRegexp(pattern, text);
    };
    const MocWrapper::AttrList& attrs = moc.getAttrsList();

    for (AttrWrapper* attr : attrs) {
        const FindingSubject subject(*this, attr);
        // The key is read for a finding or a trace only: most attributes
        // give neither.
        std::string key;
        const auto id = [&key, attr]() {
            if (key.empty()) {
                key = attr->getId();
            }
            return key.c_str();
        };
        const ZefOamSpiMoAttribute& record = attr->getStruct();
        const int type = record.type;
        ZEF_TRACE("Checking Attribute (%s)", id());
        if (isBasicType(type)) {
            if (record.derivedDatatype != nullptr) {
                report(levelError, basicWithDerived, id(), type);
            }
            if (record.enumDatatype != nullptr) {
                report(levelError, basicWithEnum, id(), type);
            }
            if (record.structDatatype != nullptr) {
                report(levelError, basicWithStruct, id(), type);
            }
            if (record.referencedMoc != nullptr) {
                report(levelError, basicWithReference, id(), type);
            }
        } else if (type == ZefMrType3Reference) {
            if (record.derivedDatatype != nullptr) {
                report(levelError, referenceWithDerived, id());
            }
            if (record.enumDatatype != nullptr) {
                report(levelError, referenceWithEnum, id());
            }
            if (record.structDatatype != nullptr) {
                report(levelError, referenceWithStruct, id());
            }
            if (record.referencedMoc == nullptr) {
                report(levelError, referenceWithoutMoc, id());
            }
        } else if (type == ZefMrType3Enum) {
            if (record.derivedDatatype != nullptr) {
                report(levelError, enumWithDerived, id());
            }
            if (record.enumDatatype == nullptr) {
                report(levelError, enumWithoutEnum, id());
            }
            if (record.structDatatype != nullptr) {
                report(levelError, enumWithStruct, id());
            }
            if (record.referencedMoc != nullptr) {
                report(levelError, enumWithReference, id());
            }
        } else if (type == ZefMrType3Derived) {
            if (record.enumDatatype != nullptr) {
                report(levelError, derivedWithEnum, id());
            }
            if (record.structDatatype != nullptr) {
                report(levelError, derivedWithStruct, id());
            }
            if (record.referencedMoc != nullptr) {
                report(levelError, derivedWithReference, id());
            }
            if (record.derivedDatatype == nullptr) {
                report(levelError, derivedWithoutDdt, id());
            }
            for (const std::string& value : nonConformingDefaults(record.derivedDatatype, record.defaultValue,
                                                                  attr->getTypeContainer(), matches)) {
                report(levelError, attrDefaultBreaksPattern, id(), value.c_str(), record.derivedDatatype->pattern);
            }
        } else if (type == ZefMrType3Struct) {
            if (record.derivedDatatype != nullptr) {
                report(levelError, structWithDerived, id());
            }
            if (record.enumDatatype != nullptr) {
                report(levelError, structWithEnum, id());
            }
            if (record.structDatatype == nullptr) {
                report(levelError, structWithoutStruct, id());
            }
            if (record.referencedMoc != nullptr) {
                report(levelError, structWithReference, id());
            }
        } else if (type == ZefMrType3Void) {
            report(levelError, voidAttr, id());
        } else {
            report(levelWarning, unknownAttrType, id(), type);
        }
    }

    // Only the first offender of each of the next two rules is named: one
    // finding per class is enough to show the author the rule.
    for (const AttrWrapper* attr : attrs) {
        const ZefOamSpiMoAttribute& record = attr->getStruct();
        if (record.isMandatory && isSet(record.defaultValue)) {
            report(levelError, mandatoryWithDefault, attr->getId().c_str(), record.defaultValue);
            break;
        }
    }
    for (const AttrWrapper* attr : attrs) {
        const ZefOamSpiMoAttribute& record = attr->getStruct();
        if (!record.isPersistent && !record.isReadOnly) {
            report(levelError, nonPersistentWritable, attr->getId().c_str());
            break;
        }
    }
    for (const AttrWrapper* attr : attrs) {
        const ZefOamSpiMoAttribute& record = attr->getStruct();
        if (!record.isMandatory && record.multiplicityRange.min > 0) {
            report(levelWarning, optionalWithMinimum, attr->getId().c_str());
        } else if (record.isMandatory && record.multiplicityRange.min < 1) {
            report(levelWarning, mandatoryWithoutMinimum, attr->getId().c_str());
            break;
        }
    }
    // A class without attributes has nothing to be keyed by and is left alone.
    size_t keys = 0;
    for (const AttrWrapper* attr : attrs) {
        keys += attr->getStruct().isKey ? 1 : 0;
    }
    if (keys > 1) {
        report(levelError, severalKeys, moc.getId().c_str());
    } else if (keys == 0 && !attrs.empty()) {
        report(levelError, noKey, moc.getId().c_str());
    }
    ZEF_TRACE_LEAVE(" << Validation of Attributes is done");
}

void ModelRepository::checkActions(MocWrapper& moc)
{
    ZEF_TRACE_ENTER(" >> Validating MoActions..");
    const PatternMatcher matches = [this](const std::string& pattern, const std::string& text) {
        return doRegexp(pattern, text);
    };
    for (MoActionWrapper* action : moc.getMoActionList()) {
        const FindingSubject subject(*this, action);
        LazyKey key(action);
        const ZefOamSpiDatatypeContainer& returnType = action->getDatatype();
        ZEF_TRACE("Checking MoAction (%s)", key());
        if (returnType.type == ZefMrType3Derived) {
            for (const std::string& value : nonConformingDefaults(returnType.derivedDatatype, returnType.defaultValue,
                                                                  action->getTypeContainer(), matches)) {
                report(levelError, actionDefaultBreaksPattern, key(), value.c_str(),
                       returnType.derivedDatatype->pattern);
            }
        }
        if (returnType.type == ZefMrType3Reference && returnType.referencedMoc == nullptr) {
            report(levelError, actionReferenceWithoutMoc, key());
        }
        checkParameters(*action);
    }
    ZEF_TRACE_LEAVE(" << Validation of MoActions is done.");
}

void ModelRepository::checkParameters(MoActionWrapper& action)
{
    ZEF_TRACE_ENTER(" >> Validating Parameters..");
    const PatternMatcher matches = [this](const std::string& pattern, const std::string& text) {
        return doRegexp(pattern, text);
    };
    for (ParameterWrapper* parameter : action.getParameterList()) {
        const FindingSubject subject(*this, parameter);
        LazyKey key(parameter);
        const ZefOamSpiDatatypeContainer& datatype = parameter->getDatatype();
        ZEF_TRACE("Checking Parameter (%s)", key());
        if (datatype.type == ZefMrType3Derived) {
            if (datatype.derivedDatatype == nullptr) {
                report(levelError, parameterDerivedWithoutDdt, key());
            }
            for (const std::string& value : nonConformingDefaults(datatype.derivedDatatype, datatype.defaultValue,
                                                                  parameter->getTypeContainer(), matches)) {
                report(levelError, parameterDefaultBreaksPattern, key(), value.c_str(),
                       datatype.derivedDatatype->pattern);
            }
        }
        if (datatype.type == ZefMrType3Reference && datatype.referencedMoc == nullptr) {
            report(levelError, parameterReferenceWithoutMoc, key());
        }
    }
    ZEF_TRACE_LEAVE(" << Validation of Parameters is done.");
}

// ---- containments -------------------------------------------------------------

void ModelRepository::checkConts()
{
    ZEF_TRACE_ENTER(" >> Validating Containments..");
    const RegistryIndex<ContMap> contKeys(_conts);
    const RegistryIndex<MocMap> mocKeys(_mocs);
    const auto contKey = [&contKeys](const ZefOamSpiContainment* cont) {
        const std::string* key = contKeys.keyOf(cont);
        return key != nullptr ? *key : ContWrapper::getContId(cont);
    };
    const auto mocKey = [&mocKeys](const ZefOamSpiMoc* moc) {
        const std::string* key = mocKeys.keyOf(moc);
        return key != nullptr ? *key : MocWrapper::getMocId(moc);
    };
    // The parent key as one string per text: a registered class's own key,
    // else the built key kept here, so that equal keys are the same string.
    std::set<std::string> otherParentKeys;
    const auto parentKey = [this, &mocKeys, &otherParentKeys](const ZefOamSpiMoc* moc) {
        const std::string* key = mocKeys.keyOf(moc);
        if (key != nullptr) {
            return key;
        }
        const std::string built = MocWrapper::getMocId(moc);
        const auto registered = _mocs.find(built);
        return registered != _mocs.end() ? &registered->first : &*otherParentKeys.insert(built).first;
    };

    // (parent class key, child class name) of every containment seen: one
    // parent can not tell two children of the same name apart.
    using ParentAndChild = std::pair<const std::string*, std::string_view>;
    const auto byParentAndChild = [](const ParentAndChild& a, const ParentAndChild& b) {
        if (a.first != b.first) {
            return std::less<const std::string*>()(a.first, b.first);
        }
        return a.second < b.second;
    };
    std::set<ParentAndChild, decltype(byParentAndChild)> children(byParentAndChild);
    // Each chain is walked once, from the first of its members met in key
    // order (which compilation made its head).
    WalkedContainments walkedParentChains(contKeys);
    WalkedContainments walkedChildChains(contKeys);

    for (const auto& entry : _conts) {
        const std::string& key = entry.first;
        const ContWrapper& wrapper = *entry.second;
        const ZefOamSpiContainment& cont = wrapper.getStruct();
        const FindingSubject subject(*this, &wrapper);
        ZEF_TRACE("Checking Containment(%s)", key.c_str());

        // A containment between MOMs belongs to neither of them.
        if (!wrapper.isInterMim() && cont.mom == nullptr) {
            report(levelError, contWithoutMom, key.c_str());
        } else if (wrapper.isInterMim() && cont.mom != nullptr) {
            report(levelError, interMimContWithMom, key.c_str());
        }

        if (cont.parentMoc == nullptr) {
            report(levelError, contWithoutParent, key.c_str());
            continue;
        }
        if (cont.parentMoc->childContainment == nullptr) {
            report(levelError, parentWithoutChildContainment, mocKey(cont.parentMoc).c_str(), key.c_str());
        }

        if (cont.childMoc == nullptr) {
            report(levelError, contWithoutChild, key.c_str());
        } else if (!children.emplace(parentKey(cont.parentMoc), textOf(cont.childMoc->generalProperties.name))
                        .second) {
            report(levelError, sameChildNameTwice, MrUtil::str(cont.parentMoc->generalProperties.name).c_str(),
                   MrUtil::str(cont.childMoc->generalProperties.name).c_str());
        }

        // The mark stops a walk at a member already walked, so a chain
        // that loops back ends too.
        for (const ZefOamSpiContainment* member = &cont;
             member != nullptr && walkedParentChains.mark(member);
             member = member->nextContainmentSameParentMoc) {
            if (member->parentMoc != cont.parentMoc) {
                report(levelError, parentChainBroken, key.c_str(), contKey(member).c_str());
            }
        }
        for (const ZefOamSpiContainment* member = &cont;
             member != nullptr && walkedChildChains.mark(member);
             member = member->nextContainmentSameChildMoc) {
            if (member->childMoc != cont.childMoc) {
                report(levelError, childChainBroken, key.c_str(), contKey(member).c_str());
            }
        }

        // An unbounded maximum is 32767, above any minimum, so a
        // containment without a maximum never trips this.
        if (cont.cardinality.min > cont.cardinality.max) {
            report(levelError, contCardinalityReversed, key.c_str(), static_cast<int>(cont.cardinality.min),
                   static_cast<int>(cont.cardinality.max));
        }
    }
    ZEF_TRACE_LEAVE(" << Validation of Containments is done");
}

// ---- structs ------------------------------------------------------------------

void ModelRepository::checkStructs()
{
    ZEF_TRACE_ENTER(" >> Validating Structs..");
    const PatternMatcher matches = [this](const std::string& pattern, const std::string& text) {
        return doRegexp(pattern, text);
    };
    for (const auto& entry : _structs) {
        for (StructMemberWrapper* member : entry.second->getStructMemberList()) {
            const FindingSubject subject(*this, member);
            const std::string key = member->getId();
            const char* id = key.c_str();
            const ZefOamSpiDatatypeContainer& datatype = member->getDatatype();
            ZEF_TRACE("Checking Struct Member (%s)", id);
            if (datatype.type == ZefMrType3Enum && datatype.enumDatatype == nullptr) {
                report(levelError, memberEnumWithoutEnum, id);
            }
            if (datatype.type == ZefMrType3Struct && datatype.structDatatype == nullptr) {
                report(levelError, memberStructWithoutStruct, id);
            }
            if (datatype.type == ZefMrType3Derived) {
                if (datatype.derivedDatatype == nullptr) {
                    report(levelError, memberDerivedWithoutDdt, id);
                }
                for (const std::string& value : nonConformingDefaults(datatype.derivedDatatype, datatype.defaultValue,
                                                                      member->getTypeContainer(), matches)) {
                    report(levelError, memberDefaultBreaksPattern, id, value.c_str(),
                           datatype.derivedDatatype->pattern);
                }
            }
            if (datatype.type == ZefMrType3Reference && datatype.referencedMoc == nullptr) {
                report(levelError, memberReferenceWithoutMoc, id);
            }
        }
    }
    // The struct pass closes with the same words as the action pass.
    ZEF_TRACE_LEAVE(" << Validation of MoActions is done.");
}

// ---- associations ---------------------------------------------------------------

void ModelRepository::checkAssociationEnds()
{
    ZEF_TRACE_ENTER(" >> Validating Association Ends..");
    // The end of an external unidirectional association lies at a class of
    // a model that is not loaded: it has no class here by design.
    std::unordered_set<std::string> externalEnds;
    for (const auto& entry : _unidirs) {
        if (entry.second->getIsExternal()) {
            externalEnds.insert(entry.second->getAssociationEndId());
        }
    }
    for (const auto& entry : _assocEnds) {
        const std::string& key = entry.first;
        const ZefOamSpiAssociationEnd& end = entry.second->getStruct();
        ZEF_TRACE("Checking association End (%s)", key.c_str());
        if (end.mom == nullptr) {
            report(levelError, endWithoutMom, key.c_str());
        }
        if (end.moc == nullptr) {
            if (externalEnds.count(key) != 0) {
                ZEF_TRACE("Association End (%s) is external, has no internal moc.", key.c_str());
            } else {
                report(levelError, endWithoutMoc, key.c_str());
            }
        }
        if (end.attribute == nullptr) {
            report(levelError, endWithoutAttribute, key.c_str());
        }
        // An unbounded upper bound is 32767, above any lower bound.
        if (end.lower > end.upper) {
            report(levelError, endCardinalityReversed, key.c_str(), static_cast<int>(end.lower),
                   static_cast<int>(end.upper));
        }
    }
    ZEF_TRACE_LEAVE(" << Validation of Association Ends is done.");
}

void ModelRepository::checkBiDirectionalAssociations()
{
    ZEF_TRACE_ENTER(" >> Validating BidirectionalAssociations..");
    for (const auto& entry : _bidirs) {
        const std::string& key = entry.first;
        const ZefOamSpiBiDirAssociation& assoc = entry.second->getStruct();
        ZEF_TRACE("Checking Bidirectional association (%s)", key.c_str());
        if (assoc.mom == nullptr) {
            report(levelError, bidirWithoutMom, key.c_str());
        }
        if (assoc.firstAssociationEnd == nullptr) {
            report(levelError, bidirWithoutFirstEnd, key.c_str());
        }
        if (assoc.secondAssociationEnd == nullptr) {
            report(levelError, bidirWithoutSecondEnd, key.c_str());
        }
    }
    ZEF_TRACE_LEAVE(" << Validation of BidirectionalAssociations is done.");
}

void ModelRepository::checkUniDirectionalAssociations()
{
    ZEF_TRACE_ENTER(" >> Validating UnidirectionalAssociations..");
    for (const auto& entry : _unidirs) {
        const std::string& key = entry.first;
        const UniDirAssociationWrapper& wrapper = *entry.second;
        const ZefOamSpiUniDirAssociation& assoc = wrapper.getStruct();
        ZEF_TRACE("Checking Unidirectional association (%s)", key.c_str());
        if (assoc.mom == nullptr) {
            report(levelError, unidirWithoutMom, key.c_str());
        }
        if (assoc.associationEnd == nullptr) {
            report(levelError, unidirWithoutEnd, key.c_str());
        } else if (assoc.associationEnd->moc == nullptr && !wrapper.getIsExternal()) {
            // An external association leads out of the loaded model, so its
            // destination class is not expected here.
            report(levelError, unidirWithoutDestination, key.c_str());
        }
    }
    ZEF_TRACE_LEAVE(" << Validation of UnidirectionalAssociations is done.");
}

// ---- patterns -----------------------------------------------------------------

bool ModelRepository::doRegexp(std::string pattern, std::string text)
{
    // Every pattern of the model is compiled and run here and nowhere else,
    // so limits on what a pattern may cost belong here too: the guard
    // refuses what would crash, hang or exhaust the process and says why in
    // place of the engine's error text. A pattern is compiled once and
    // kept; a pattern that does not compile is reported at every use, as
    // each use is a value that could not be checked.
    const PatternGuard::Result result = _patterns.match(pattern, text);
    if (result.outcome == PatternGuard::Outcome::Refused) {
        report(levelError, patternDoesNotCompile, pattern.c_str(), result.reason.c_str());
        return false;
    }
    if (result.outcome == PatternGuard::Outcome::NoMatch) {
        return false;
    }
    ZEF_TRACE("Got a match of \"%s\" in \"%s\".", pattern.c_str(), text.c_str());
    return true;
}

} // namespace ZefModelRepositoryService
