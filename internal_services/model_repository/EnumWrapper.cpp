#include "EnumWrapper.h"

#include "MrUtil.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

EnumWrapper::EnumWrapper() : GeneralPropertiesWrapper(_enum.generalProperties, &_enum.generalPropertiesHandle)
{
    setInitialValues();
    _enum.mom = nullptr;
    _enum.literals = nullptr;
    _enum.handle = 0;
    _enum.generalPropertiesHandle = 0;
}

EnumWrapper::~EnumWrapper()
{
    for (LitWrapper* literal : _literals) {
        delete literal;
    }
    MrUtil::cleanGeneralPropertiesHlp(_enum.generalProperties);
}

std::string EnumWrapper::getEnumId(const char* momName, const char* momVersion, const char* enumName)
{
    static const char* const nullMessages[] = {"Couldn't get enum id, mom name is NULL",
                                               "Couldn't get enum id, mom version is NULL",
                                               "Couldn't get enum id, enum name is NULL"};
    static const char* const emptyMessages[] = {"Couldn't get enum id, mom name isn't set",
                                                "Couldn't get enum id, mom version isn't set",
                                                "Couldn't get enum id, enum name isn't set"};
    bool isNull = false;
    const int missing = MrUtil::findMissingKeyPart({momName, momVersion, enumName}, isNull);
    if (missing >= 0) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "%s", (isNull ? nullMessages : emptyMessages)[missing]);
        return std::string();
    }
    return MrUtil::joinKey({momName, momVersion, enumName});
}

std::string EnumWrapper::getId() const
{
    if (_id.empty()) {
        const ZefOamSpiMom* mom = _enum.mom;
        _id = getEnumId(mom != nullptr ? mom->generalProperties.name : nullptr, mom != nullptr ? mom->version : nullptr,
                        _enum.generalProperties.name);
    }
    return _id;
}

ZefReturnT EnumWrapper::setMom(const ZefOamSpiMom* mom)
{
    _enum.mom = mom;
    return ZefOk;
}

ZefReturnT EnumWrapper::addLiteral(LitWrapper* literal)
{
    if (literal == nullptr) {
        return ZefInvalidArgument;
    }
    if (!literal->isValueSet()) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Value of the literal (%s) is not set", literal->getName().c_str());
        return ZefInvalidArgument;
    }
    // Values are compared before names: a literal that repeats a value is
    // refused with a code of its own even when its name is new.
    if (_literalValues.count(literal->getValue()) != 0) {
        ZEF_TRACE("Could not add literal (%s), the value of %lld already exists.", getId().c_str(),
                  static_cast<long long>(literal->getValue()));
        return ZefFailure;
    }
    const std::string key = literal->getId();
    if (key.empty()) {
        return ZefInvalidArgument;
    }
    const std::size_t hash = KeyHashIndex::hashOf(key);
    if (_literals.empty()) {
        _literals.push_back(literal);
        _literalKeys.add(hash);
        _literalValues.insert(literal->getValue());
        _enum.literals = &literal->getStruct();
        return ZefOk;
    }
    if (_literalKeys.contains(_literals, key, hash)) {
        return ZefAlreadyExists;
    }
    _literals.back()->setNext(literal);
    _literals.push_back(literal);
    _literalKeys.add(hash);
    _literalValues.insert(literal->getValue());
    return ZefOk;
}

std::string EnumWrapper::toString() const
{
    std::string out = "-- Enum (" + MrUtil::str(_enum.generalProperties.name) + ")--\n"
                      + MrUtil::generalPropertiesToStringHlp(_enum.generalProperties, "");
    for (const LitWrapper* literal : _literals) {
        out += literal->toString();
    }
    return out;
}

} // namespace ZefModelRepositoryService
