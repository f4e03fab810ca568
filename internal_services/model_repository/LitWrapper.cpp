#include "LitWrapper.h"

#include <sstream>

#include "MrUtil.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

LitWrapper::LitWrapper() : GeneralPropertiesWrapper(_literal.generalProperties, &_literal.generalPropertiesHandle)
{
    setInitialValues();
    _literal.value = 0;
    _literal.next = nullptr;
    _literal.handle = 0;
    _literal.generalPropertiesHandle = 0;
}

LitWrapper::~LitWrapper()
{
    MrUtil::cleanGeneralPropertiesHlp(_literal.generalProperties);
}

std::string LitWrapper::getLitId(const char* name)
{
    if (name == nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Couldn't get lit id, lit name is NULL");
        return std::string();
    }
    if (*name == '\0') {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Couldn't get lit id, lit nam isn't set");
        return std::string();
    }
    return name;
}

std::string LitWrapper::getId() const
{
    if (_id.empty()) {
        _id = getLitId(_literal.generalProperties.name);
    }
    return _id;
}

ZefReturnT LitWrapper::setValue(const std::string& text)
{
    if (_isValueSet) {
        return ZefAlreadyExists;
    }
    long long value = 0;
    const ZefReturnT result = MrUtil::toInt64(text, value);
    if (result != ZefOk) {
        return result;
    }
    _value = value;
    _isValueSet = true;
    // Readers of the published record see a 16-bit value: the low 16 bits,
    // taken through the unsigned type so that the narrowing is well defined.
    _literal.value = static_cast<int16_t>(static_cast<uint16_t>(static_cast<uint64_t>(value) & 0xFFFFu));
    return ZefOk;
}

ZefReturnT LitWrapper::setNext(LitWrapper* next)
{
    if (next == nullptr) {
        return ZefInvalidArgument;
    }
    _next = next;
    _literal.next = &next->_literal;
    return ZefOk;
}

std::string LitWrapper::toString() const
{
    const ZefOamSpiGeneralProperties& gp = _literal.generalProperties;
    std::ostringstream out;
    out << "    -- Literal (" << MrUtil::str(gp.name) << ") -- \n"
        << "    name:          " << MrUtil::str(gp.name) << '\n'
        << "    description:   " << MrUtil::str(gp.description) << '\n'
        << "    specification: " << MrUtil::str(gp.specification) << '\n'
        << "    status:        " << static_cast<int>(gp.status) << '\n'
        << "    hidden:        " << MrUtil::str(gp.hidden) << '\n'
        << "    value:         " << _value << '\n';
    return out.str();
}

} // namespace ZefModelRepositoryService
