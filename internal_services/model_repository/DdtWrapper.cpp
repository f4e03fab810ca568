#include "DdtWrapper.h"

#include <sstream>

#include "DerivedTypeIf2Impl.h"
#include "MomWrapper.h"
#include "MrUtil.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

DdtWrapper::DdtWrapper() : GeneralPropertiesWrapper(_ddt.generalProperties, &_ddt.generalPropertiesHandle)
{
    setInitialValues();
    resetRecord();
}

DdtWrapper::DdtWrapper(const DdtWrapper& source, const std::string& newName)
    : GeneralPropertiesWrapper(_ddt.generalProperties, &_ddt.generalPropertiesHandle),
      _type3(source._type3),
      _type4(source._type4),
      _isPassphrase(source._isPassphrase),
      _intResolution(source._intResolution),
      _floatResolution(source._floatResolution),
      _floatStringResolution(source._floatStringResolution),
      _exceptionText(source._exceptionText)
{
    setInitialValues();
    resetRecord();
    copyGeneralPropertiesFrom(source);
    MrUtil::freeString(_ddt.generalProperties.name);
    _ddt.generalProperties.name = MrUtil::toChar(newName);

    _ddt.mom = source._ddt.mom;
    _ddt.type = source._ddt.type;
    if (source._ddt.pattern != nullptr) {
        _ddt.pattern = MrUtil::toChar(source._ddt.pattern);
    }
    if (source._defaultValue != nullptr) {
        _defaultValue = MrUtil::toChar(source._defaultValue);
    }
    copyRanges(source._valueRanges, _valueRanges);
    copyRanges(source._lengthRanges, _lengthRanges);
    _valuePending = source._valuePending;
    _lengthPending = source._lengthPending;
    _ddt.valueRange = _valueRanges.empty() ? nullptr : &_valueRanges.front()->getStruct();
    _ddt.stringLength = source._ddt.stringLength;
}

DdtWrapper::~DdtWrapper()
{
    clearLists();
    MrUtil::cleanGeneralPropertiesHlp(_ddt.generalProperties);
    MrUtil::freeString(_ddt.pattern);
    MrUtil::freeString(_defaultValue);
}

void DdtWrapper::resetRecord()
{
    _ddt.mom = nullptr;
    _ddt.type = ZefMoAttributeTypeNotSet;
    _ddt.pattern = nullptr;
    _ddt.stringLength.min = 0;
    _ddt.stringLength.max = 0;
    _ddt.valueRange = nullptr;
    _ddt.handle = 0;
    _ddt.generalPropertiesHandle = 0;
}

void DdtWrapper::copyRanges(const RangeList& source, RangeList& list)
{
    for (const ValueRangeWrapper* range : source) {
        *createValueRangeWrapper(list) = *range;
    }
}

std::string DdtWrapper::getDdtId(const char* momName, const char* momVersion, const char* ddtName)
{
    static const char* const nullMessages[] = {"Couldn't get ddt id, mom name is NULL",
                                               "Couldn't get ddt id, mom version is NULL",
                                               "Couldn't get ddt id, ddt name is NULL"};
    static const char* const emptyMessages[] = {"Couldn't get ddt id, mom name isn't set",
                                                "Couldn't get ddt id, mom version isn't set",
                                                "Couldn't get ddt id, ddt name isn't set"};
    bool isNull = false;
    const int missing = MrUtil::findMissingKeyPart({momName, momVersion, ddtName}, isNull);
    if (missing >= 0) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "%s", (isNull ? nullMessages : emptyMessages)[missing]);
        return std::string();
    }
    return MrUtil::joinKey({momName, momVersion, ddtName});
}

std::string DdtWrapper::getId() const
{
    if (_id.empty()) {
        const ZefOamSpiMom* mom = _ddt.mom;
        _id = getDdtId(mom != nullptr ? mom->generalProperties.name : nullptr, mom != nullptr ? mom->version : nullptr,
                       _ddt.generalProperties.name);
    }
    return _id;
}

ZefReturnT DdtWrapper::setMom(const ZefOamSpiMom* mom)
{
    _ddt.mom = mom;
    return ZefOk;
}

ZefReturnT DdtWrapper::setType(ZefOamSpiMoAttributeType type)
{
    _ddt.type = type;
    return ZefOk;
}

ZefReturnT DdtWrapper::setType(ZefOamSpiMrType_3 type)
{
    _ddt.type = static_cast<ZefOamSpiMoAttributeType>(type);
    _type3 = type;
    // Every version 3 code has the same number in version 4, so readers of
    // version 4 see the type the model stated.
    _type4 = static_cast<ZefOamSpiMrType_4>(type);
    return ZefOk;
}

ZefReturnT DdtWrapper::setType(ZefOamSpiMrType_4 type)
{
    _ddt.type = static_cast<ZefOamSpiMoAttributeType>(type);
    _type3 = static_cast<ZefOamSpiMrType_3>(type);
    _type4 = type;
    return ZefOk;
}

ZefReturnT DdtWrapper::setPattern(const std::string& pattern)
{
    if (_ddt.pattern != nullptr) {
        return ZefAlreadyExists;
    }
    _ddt.pattern = MrUtil::toChar(pattern);
    return ZefOk;
}

ZefReturnT DdtWrapper::setValidationRulesPattern(const std::string& pattern)
{
    MrUtil::freeString(_ddt.pattern);
    _ddt.pattern = MrUtil::toChar(pattern);
    return ZefOk;
}

std::string DdtWrapper::getPattern() const
{
    return MrUtil::str(_ddt.pattern);
}

ValueRangeWrapper* DdtWrapper::createValueRangeWrapper(RangeList& list)
{
    ValueRangeWrapper* range = new ValueRangeWrapper();
    if (!list.empty()) {
        list.back()->setNext(range);
    } else if (&list == &_valueRanges) {
        _ddt.valueRange = &range->getStruct();
    }
    list.push_back(range);
    return range;
}

void DdtWrapper::addBound(RangeList& list, PendingBounds& pending, const std::string& text, bool isMin)
{
    bool& sameKind = isMin ? pending.hasMin : pending.hasMax;
    bool& otherKind = isMin ? pending.hasMax : pending.hasMin;
    ValueRangeWrapper* range;
    if (list.empty()) {
        range = createValueRangeWrapper(list);
    } else if (sameKind && otherKind) {
        // The last range is complete: this bound opens the next one.
        range = createValueRangeWrapper(list);
        otherKind = false;
    } else {
        // Completes the last range, or replaces its bound of the same kind.
        range = list.back();
    }
    sameKind = true;
    const std::string elementName = boundsElementName();
    if (isMin) {
        range->setMin(text, _type3, elementName);
    } else {
        range->setMax(text, _type3, elementName);
    }
}

std::string DdtWrapper::boundsElementName() const
{
    // A type read without a name or MOM still takes its bounds; it is then
    // named by what it has, without the key builder's complaint per bound.
    const ZefOamSpiMom* mom = _ddt.mom;
    bool isNull = false;
    if (_id.empty()
        && MrUtil::findMissingKeyPart({mom != nullptr ? mom->generalProperties.name : nullptr,
                                       mom != nullptr ? mom->version : nullptr, _ddt.generalProperties.name},
                                      isNull)
               >= 0) {
        return getName();
    }
    return getId();
}

ZefReturnT DdtWrapper::addRangeMin(const std::string& text)
{
    addBound(_valueRanges, _valuePending, text, true);
    return ZefOk;
}

ZefReturnT DdtWrapper::addRangeMax(const std::string& text)
{
    addBound(_valueRanges, _valuePending, text, false);
    return ZefOk;
}

ZefReturnT DdtWrapper::addLengthMin(const std::string& text)
{
    addBound(_lengthRanges, _lengthPending, text, true);
    updateV1stringRestrictionLength();
    return ZefOk;
}

ZefReturnT DdtWrapper::addLengthMax(const std::string& text)
{
    addBound(_lengthRanges, _lengthPending, text, false);
    updateV1stringRestrictionLength();
    return ZefOk;
}

void DdtWrapper::updateV1stringRestrictionLength()
{
    if (_lengthRanges.empty()) {
        _ddt.stringLength.min = 0;
        _ddt.stringLength.max = 0;
        return;
    }
    const ZefOamSpiValueRange& first = _lengthRanges.front()->getStruct();
    _ddt.stringLength.min = first.min;
    _ddt.stringLength.max = first.max;
}

void DdtWrapper::clearLists()
{
    for (ValueRangeWrapper* range : _valueRanges) {
        delete range;
    }
    for (ValueRangeWrapper* range : _lengthRanges) {
        delete range;
    }
    _valueRanges.clear();
    _lengthRanges.clear();
    _valuePending = PendingBounds();
    _lengthPending = PendingBounds();
    _ddt.valueRange = nullptr;
    _ddt.stringLength.min = 0;
    _ddt.stringLength.max = 0;
}

void DdtWrapper::registerIf2()
{
    new DerivedTypeIf2Impl(*this);
}

namespace {

ZefReturnT firstRangeHandle(const DdtWrapper::RangeList& list, uint64_t& handle)
{
    if (list.empty()) {
        return ZefNotFound;
    }
    handle = list.front()->getHandle();
    return ZefOk;
}

} // namespace

ZefReturnT DdtWrapper::getFirstStringRestrictionLengthHandle(uint64_t& handle) const
{
    return firstRangeHandle(_lengthRanges, handle);
}

ZefReturnT DdtWrapper::getFirstNumericRestrictionLengthHandle(uint64_t& handle) const
{
    return firstRangeHandle(_valueRanges, handle);
}

ZefReturnT DdtWrapper::setDefaultValue(const std::string& text)
{
    return MrUtil::setDefaultValueHlp(text, _defaultValue);
}

std::string DdtWrapper::getDefaultValue() const
{
    return MrUtil::str(_defaultValue);
}

ZefReturnT DdtWrapper::setIsPassphrase(bool isPassphrase)
{
    _isPassphrase = isPassphrase;
    return ZefOk;
}

ZefReturnT DdtWrapper::setIsPassphrase()
{
    return setIsPassphrase(true);
}

ZefReturnT DdtWrapper::setIntResolution(const std::string& text)
{
    return MrUtil::toUInt64(text, _intResolution);
}

ZefReturnT DdtWrapper::setFloatResolution(const std::string& text)
{
    const ZefReturnT result = MrUtil::toDouble(text, _floatResolution);
    if (result == ZefOk) {
        _floatStringResolution = text;
    }
    return result;
}

ZefReturnT DdtWrapper::setExceptionText(const std::string& text)
{
    _exceptionText = text;
    return ZefOk;
}

std::string DdtWrapper::toString() const
{
    std::ostringstream out;
    out << "-- Ddt (" << MrUtil::str(_ddt.generalProperties.name) << ")--\n"
        << MrUtil::generalPropertiesToStringHlp(_ddt.generalProperties, "")
        << "Type:              " << static_cast<int>(_ddt.type) << '\n'
        << "isPassphrase:      " << (_isPassphrase ? "true" : "false") << '\n'
        << "Mom:               " << (_ddt.mom != nullptr ? MomWrapper::getMomId(_ddt.mom) : std::string()) << '\n'
        << "Pattern:           " << MrUtil::str(_ddt.pattern) << '\n'
        << "String restriction :\n"
        << "StringLengthMin:         " << _ddt.stringLength.min << '\n'
        << "StringLengthMax:         " << _ddt.stringLength.max << '\n';
    for (const ValueRangeWrapper* range : _valueRanges) {
        out << range->toString();
    }
    return out.str();
}

} // namespace ZefModelRepositoryService
