#include "AttrWrapper.h"


#include "DdtWrapper.h"
#include "EnumWrapper.h"
#include "MocWrapper.h"
#include "MrUtil.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

AttrWrapper::AttrWrapper()
    : GeneralPropertiesWrapper(_attr.generalProperties, &_attr.generalPropertiesHandle), _typeContainer(this)
{
    setInitialValues();
    _attr.moc = nullptr;
    _attr.type = ZefMrType3NotSet;
    _attr.derivedDatatype = nullptr;
    _attr.enumDatatype = nullptr;
    _attr.structDatatype = nullptr;
    _attr.referencedMoc = nullptr;
    _attr.isKey = false;
    _attr.isMandatory = false;
    _attr.isPersistent = true;
    _attr.isReadOnly = false;
    _attr.multiplicityRange.min = 1;
    _attr.multiplicityRange.max = 1;
    _attr.isOrdered = false;
    _attr.isUnique = true;
    _attr.defaultValue = nullptr;
    _attr.unit = nullptr;
    _attr.next = nullptr;
    _attr.handle = 0;
    _attr.generalPropertiesHandle = 0;
}

AttrWrapper::~AttrWrapper()
{
    MrUtil::cleanGeneralPropertiesHlp(_attr.generalProperties);
    MrUtil::freeString(_attr.defaultValue);
    MrUtil::freeString(_attr.unit);
}

std::string AttrWrapper::getAttrId(const char* momName, const char* momVersion, const char* mocName,
                                   const char* attrName)
{
    static const char* const nullMessages[] = {
        "Couldn't get attribute id, momName is NULL", "Couldn't get attribute id, momVersion is NULL",
        "Couldn't get attribute id, moc name is NULL", "Couldn't get attribute id, attr name is NULL"};
    static const char* const emptyMessages[] = {
        "Couldn't get attribute id, momName is no set", "Couldn't get attribute id, momVersion is no set",
        "Couldn't get attribute id, moc name is not set", "Couldn't get attribute id, attribute name is not set"};
    bool isNull = false;
    const int missing = MrUtil::findMissingKeyPart({momName, momVersion, mocName, attrName}, isNull);
    if (missing >= 0) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "%s", (isNull ? nullMessages : emptyMessages)[missing]);
        return std::string();
    }
    return MrUtil::joinKey({momName, momVersion, mocName, attrName});
}

std::string AttrWrapper::getAttrId(const ZefOamSpiMoAttribute* attr)
{
    if (attr == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Couldn't get attribute id, attr is NULL");
        return std::string();
    }
    if (attr->moc == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Couldn't get attribute id, attr->moc is NULL");
        return std::string();
    }
    const ZefOamSpiMom* mom = attr->moc->mom;
    if (mom == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Couldn't get attribute id, attr->moc->mom is NULL");
        return std::string();
    }
    return getAttrId(mom->generalProperties.name, mom->version, attr->moc->generalProperties.name,
                     attr->generalProperties.name);
}

std::string AttrWrapper::getId() const
{
    return _id.empty() ? _id.keep(getAttrId(&_attr)) : _id.str();
}

ZefReturnT AttrWrapper::setMoc(const ZefOamSpiMoc* moc)
{
    _attr.moc = moc;
    return ZefOk;
}

ZefReturnT AttrWrapper::setType(ZefOamSpiMrType_3 type)
{
    _attr.type = type;
    _type = type;
    return ZefOk;
}

ZefReturnT AttrWrapper::setDerivedDatatype(const ZefOamSpiDerivedDatatype* ddt)
{
    _attr.derivedDatatype = ddt;
    return ZefOk;
}

ZefReturnT AttrWrapper::setEnumDatatype(const ZefOamSpiEnum* enumeration)
{
    _attr.enumDatatype = enumeration;
    return ZefOk;
}

ZefReturnT AttrWrapper::setStructDatatype(const ZefOamSpiStruct* structure)
{
    _attr.structDatatype = structure;
    return ZefOk;
}

ZefReturnT AttrWrapper::setReferencedMoc(const ZefOamSpiMoc* moc)
{
    _attr.referencedMoc = moc;
    return ZefOk;
}

ZefReturnT AttrWrapper::setIsKey(bool isKey)
{
    _attr.isKey = isKey;
    return ZefOk;
}

ZefReturnT AttrWrapper::setIsMandatory(bool isMandatory)
{
    _attr.isMandatory = isMandatory;
    return ZefOk;
}

ZefReturnT AttrWrapper::setIsPersistent(bool isPersistent)
{
    _attr.isPersistent = isPersistent;
    return ZefOk;
}

ZefReturnT AttrWrapper::setIsReadOnly(bool isReadOnly)
{
    _attr.isReadOnly = isReadOnly;
    return ZefOk;
}

ZefReturnT AttrWrapper::setIsOrdered(bool isOrdered)
{
    _attr.isOrdered = isOrdered;
    return ZefOk;
}

ZefReturnT AttrWrapper::setIsUnique(bool isUnique)
{
    _attr.isUnique = isUnique;
    return ZefOk;
}

ZefReturnT AttrWrapper::setIsRestricted(bool isRestricted)
{
    _isRestricted = isRestricted;
    return ZefOk;
}

ZefReturnT AttrWrapper::setIsNotifiable(bool isNotifiable)
{
    _isNotifiable = isNotifiable;
    return ZefOk;
}

ZefReturnT AttrWrapper::setMin(const std::string& text)
{
    return MrUtil::setMinHlp(_attr.multiplicityRange, _isMinSet, text);
}

ZefReturnT AttrWrapper::setMax(const std::string& text)
{
    return MrUtil::setMaxHlp(_attr.multiplicityRange, _isMaxSet, text);
}

void AttrWrapper::setMinValue(int16_t value)
{
    _attr.multiplicityRange.min = value;
    _isMinSet = true;
}

void AttrWrapper::setMaxValue(int16_t value)
{
    _attr.multiplicityRange.max = value;
    _isMaxSet = true;
}

ZefReturnT AttrWrapper::setDefaultValue(const std::string& text)
{
    return MrUtil::setDefaultValueHlp(text, _attr.defaultValue);
}

ZefReturnT AttrWrapper::setUnit(const std::string& unit)
{
    if (_attr.unit != nullptr) {
        return ZefAlreadyExists;
    }
    _attr.unit = MrUtil::toChar(unit);
    return ZefOk;
}

ZefReturnT AttrWrapper::setNext(AttrWrapper* next)
{
    if (next == nullptr) {
        ZEF_TRACE("This happens only at init of Attribute list for a Moc");
        _next = nullptr;
        _attr.next = nullptr;
        return ZefOk;
    }
    _next = next;
    _attr.next = &next->_attr;
    return ZefOk;
}

const ZefOamSpiMom* AttrWrapper::findMom() const
{
    if (_attr.moc == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "MOC is not set");
        return nullptr;
    }
    if (_attr.moc->mom == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "MOM is not set");
        return nullptr;
    }
    return _attr.moc->mom;
}

std::string AttrWrapper::getMomName() const
{
    const ZefOamSpiMom* mom = findMom();
    return mom != nullptr ? MrUtil::str(mom->generalProperties.name) : std::string();
}

std::string AttrWrapper::getMomVersion() const
{
    const ZefOamSpiMom* mom = findMom();
    return mom != nullptr ? MrUtil::str(mom->version) : std::string();
}

namespace {

/// Key of a type that lives in a MOM (enum, derived type), built with the
/// builder of its kind; the empty text when the type is not linked.
template <typename Record, typename Builder>
std::string typeKey(const Record* record, Builder builder)
{
    if (record == nullptr) {
        return std::string();
    }
    const ZefOamSpiMom* mom = record->mom;
    return builder(mom != nullptr ? mom->generalProperties.name : nullptr, mom != nullptr ? mom->version : nullptr,
                   record->generalProperties.name);
}

} // namespace

std::string AttrWrapper::toString() const
{
    std::string out;
    out.reserve(768);
    appendTo(out);
    return out;
}

void AttrWrapper::appendTo(std::string& out) const
{
    static const std::string indent = "    ";
    static const std::string kind = "Attribute ";
    // Built by appending rather than through a stream: the model dump at
    // trace level writes every attribute of the model.
    MrUtil::appendHeaderHlp(out, kind, _attr.generalProperties.name, indent);
    MrUtil::appendGeneralPropertiesHlp(out, _attr.generalProperties, indent);
    MrUtil::appendDumpLineHlp(out, indent, "Moc:               ",
                              _attr.moc != nullptr ? MocWrapper::getMocId(_attr.moc) : std::string());
    MrUtil::appendDumpLineHlp(out, indent, "Type:              ", static_cast<long long>(_attr.type));
    switch (_attr.type) {
    case ZefMrType3Enum:
        MrUtil::appendDumpLineHlp(out, indent, "EnumDatatype:      ", typeKey(_attr.enumDatatype, EnumWrapper::getEnumId));
        break;
    case ZefMrType3Reference:
        // A reference without a named target stands for any class, and so
        // does the any-class record itself, which belongs to no MOM and so
        // has no key.
        MrUtil::appendDumpLineHlp(out, indent, "ReferencedMoc:     ",
                                  _attr.referencedMoc == nullptr || _attr.referencedMoc->generalProperties.name == nullptr
                                          || _attr.referencedMoc->mom == nullptr
                                      ? std::string("ManagedObject")
                                      : MocWrapper::getMocId(_attr.referencedMoc));
        break;
    case ZefMrType3Derived:
        MrUtil::appendDumpLineHlp(out, indent, "DerivedDatatype:   ", typeKey(_attr.derivedDatatype, DdtWrapper::getDdtId));
        break;
    default:
        break;
    }
    MrUtil::appendDumpLineHlp(out, indent, "IsKey:             ", static_cast<long long>(_attr.isKey));
    MrUtil::appendDumpLineHlp(out, indent, "IsMandatory:       ", static_cast<long long>(_attr.isMandatory));
    MrUtil::appendDumpLineHlp(out, indent, "IsPersistent:      ", static_cast<long long>(_attr.isPersistent));
    MrUtil::appendDumpLineHlp(out, indent, "IsReadOnly:        ", static_cast<long long>(_attr.isReadOnly));
    MrUtil::appendDumpLineHlp(out, indent, "IsRetricted:       ", static_cast<long long>(_isRestricted));
    MrUtil::appendDumpLineHlp(out, indent, "IsNotifiable:  ", static_cast<long long>(_isNotifiable));
    MrUtil::appendDumpLineHlp(out, indent, "MultiplicityMin:   ", static_cast<long long>(_attr.multiplicityRange.min));
    MrUtil::appendDumpLineHlp(out, indent, "MultiplicityMax:   ", static_cast<long long>(_attr.multiplicityRange.max));
    MrUtil::appendDumpLineHlp(out, indent, "IsOrdered:         ", static_cast<long long>(_attr.isOrdered));
    MrUtil::appendDumpLineHlp(out, indent, "IsUnique:          ", static_cast<long long>(_attr.isUnique));
    MrUtil::appendDumpLineHlp(out, indent, "DefaultValue:      ", _attr.defaultValue);
    MrUtil::appendDumpLineHlp(out, indent, "Unit:              ", _attr.unit);
    MrUtil::appendDumpLineHlp(out, indent, "NextAttribute:     ",
                              _attr.next != nullptr ? getAttrId(_attr.next) : std::string());
}

} // namespace ZefModelRepositoryService
