#include "AssociationEndWrapper.h"

#include <cstring>
#include <limits>
#include <sstream>

#include "AssociationKeyHlp.h"
#include "AttrWrapper.h"
#include "MocWrapper.h"
#include "MrUtil.h"

namespace ZefModelRepositoryService {

namespace {

/// A multiplicity bound: the empty text stands for `emptyValue`; otherwise
/// int16 text that is not negative.
ZefReturnT setBound(int32_t& bound, const std::string& text, int32_t emptyValue)
{
    if (text.empty()) {
        bound = emptyValue;
        return ZefOk;
    }
    short value = 0;
    const ZefReturnT result = MrUtil::toInt16(text, value);
    if (result != ZefOk) {
        return result;
    }
    if (value < 0) {
        return ZefInvalidArgument;
    }
    bound = value;
    return ZefOk;
}

} // namespace

AssociationEndWrapper::AssociationEndWrapper()
    : GeneralPropertiesWrapper(_end.generalProperties, &_end.generalPropertiesHandle)
{
    setInitialValues();
    _end.mom = nullptr;
    _end.isReserving = false;
    _end.isRestricted = false;
    _end.lower = 0;
    _end.upper = std::numeric_limits<int16_t>::max();
    _end.moc = nullptr;
    _end.attribute = nullptr;
    _end.handle = 0;
    _end.generalPropertiesHandle = 0;
}

AssociationEndWrapper::~AssociationEndWrapper()
{
    MrUtil::cleanGeneralPropertiesHlp(_end.generalProperties);
}

std::string AssociationEndWrapper::getId() const
{
    if (_id.empty()) {
        _id = AssociationKeyHlp::build(_end.mom, {_end.generalProperties.name, _identifier.c_str()});
    }
    return _id;
}

ZefReturnT AssociationEndWrapper::setMom(const ZefOamSpiMom* mom)
{
    _end.mom = mom;
    return ZefOk;
}

ZefReturnT AssociationEndWrapper::setMoc(const ZefOamSpiMoc* moc)
{
    _end.moc = moc;
    return ZefOk;
}

ZefReturnT AssociationEndWrapper::setAttribute(const ZefOamSpiMoAttribute* attr)
{
    _end.attribute = attr;
    return ZefOk;
}

ZefReturnT AssociationEndWrapper::setIsReserving(bool isReserving)
{
    _end.isReserving = isReserving;
    return ZefOk;
}

ZefReturnT AssociationEndWrapper::setIsRestricted(bool isRestricted)
{
    _end.isRestricted = isRestricted;
    return ZefOk;
}

ZefReturnT AssociationEndWrapper::setLower(const std::string& text)
{
    return setBound(_end.lower, text, 0);
}

ZefReturnT AssociationEndWrapper::setUpper(const std::string& text)
{
    return setBound(_end.upper, text, std::numeric_limits<int16_t>::max());
}

ZefReturnT AssociationEndWrapper::setIdentifier(const std::string& identifier)
{
    return AssociationKeyHlp::setOnce(_identifier, identifier);
}

ZefReturnT AssociationEndWrapper::setClassifier(const std::string& classifier)
{
    return AssociationKeyHlp::setOnce(_classifier, classifier);
}

ZefReturnT AssociationEndWrapper::setMimName(const std::string& mimName)
{
    _mimName = mimName;
    return ZefOk;
}

ZefReturnT AssociationEndWrapper::setMimVersion(const std::string& mimVersion)
{
    _mimVersion = mimVersion;
    return ZefOk;
}

namespace {

/// `text` (null meaning the empty text) equals `expected`, compared in
/// place: compilation asks this for every attribute of the classes at the
/// ends of every association.
bool sameText(const char* text, const std::string& expected)
{
    return expected.compare(text != nullptr ? text : "") == 0;
}

bool sameText(const char* text, const char* expected)
{
    return std::strcmp(text != nullptr ? text : "", expected != nullptr ? expected : "") == 0;
}

} // namespace

bool AssociationEndWrapper::isReservedMoc(const ZefOamSpiMoc* moc) const
{
    if (moc == nullptr || moc->mom == nullptr) {
        return false;
    }
    return sameText(moc->generalProperties.name, _classifier) && sameText(moc->mom->generalProperties.name, _mimName);
}

bool AssociationEndWrapper::isReservedMoc(const MocWrapper* moc) const
{
    return moc != nullptr && isReservedMoc(&moc->getStruct());
}

bool AssociationEndWrapper::isReservedAttribute(const ZefOamSpiMoAttribute* attr) const
{
    if (attr == nullptr) {
        return false;
    }
    return sameText(attr->generalProperties.name, _end.generalProperties.name);
}

bool AssociationEndWrapper::isReservedAttribute(const AttrWrapper* attr) const
{
    return attr != nullptr && isReservedAttribute(&attr->getStruct());
}

std::string AssociationEndWrapper::toString() const
{
    std::ostringstream out;
    out << MrUtil::headerToStringHlp("Association end ", _end.generalProperties.name, "")
        << MrUtil::generalPropertiesToStringHlp(_end.generalProperties, "")
        << "Identifier         " << _identifier << '\n'
        << "Classifier         " << _classifier << '\n'
        << "Lower:               " << _end.lower << '\n'
        << "Upper:               " << _end.upper << '\n'
        << "IsReserving:         " << _end.isReserving << '\n'
        << "IsRestricted:        " << _end.isRestricted << '\n';
    return out.str();
}

} // namespace ZefModelRepositoryService
