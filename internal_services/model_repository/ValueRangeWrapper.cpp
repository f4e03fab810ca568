#include "ValueRangeWrapper.h"

#include <sstream>

#include "MrUtil.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

namespace {

/// Converts with the converter of T and widens into a 64-bit signed integer.
template <typename T>
ZefReturnT convertAndWiden(const std::string& text, int64_t& out)
{
    T value = 0;
    const ZefReturnT result = MrUtil::toInt<T>(text, value);
    if (result == ZefOk) {
        out = static_cast<int64_t>(value);
    }
    return result;
}

} // namespace

ValueRangeWrapper::ValueRangeWrapper() : _range()
{
    _range.min = 0;
    _range.max = 0;
    _range.minDouble = 0.0;
    _range.maxDouble = 0.0;
    _range.next = nullptr;
    _range.handle = 0;
}

ValueRangeWrapper::ValueRangeWrapper(const ValueRangeWrapper& other) : ValueRangeWrapper()
{
    *this = other;
}

ValueRangeWrapper& ValueRangeWrapper::operator=(const ValueRangeWrapper& other)
{
    _range.min = other._range.min;
    _range.max = other._range.max;
    _range.minDouble = other._range.minDouble;
    _range.maxDouble = other._range.maxDouble;
    _type = other._type;
    return *this;
}

ZefReturnT ValueRangeWrapper::toIntAny(const std::string& text, int64_t& out, ZefOamSpiMrType_3 type)
{
    switch (type) {
    case ZefMrType3Int8: return convertAndWiden<int8_t>(text, out);
    case ZefMrType3Int16: return convertAndWiden<int16_t>(text, out);
    case ZefMrType3Int32: return convertAndWiden<int32_t>(text, out);
    case ZefMrType3Int64: return convertAndWiden<long long>(text, out);
    case ZefMrType3UInt8: return convertAndWiden<uint8_t>(text, out);
    case ZefMrType3UInt16: return convertAndWiden<uint16_t>(text, out);
    case ZefMrType3UInt32: return convertAndWiden<uint32_t>(text, out);
    case ZefMrType3UInt64: return convertAndWiden<uint64_t>(text, out);
    default: return convertAndWiden<long long>(text, out);
    }
}

ZefReturnT ValueRangeWrapper::setMin(const std::string& text, ZefOamSpiMrType_3 type, const std::string& elementName)
{
    return setBound(text, type, elementName, true);
}

ZefReturnT ValueRangeWrapper::setMax(const std::string& text, ZefOamSpiMrType_3 type, const std::string& elementName)
{
    return setBound(text, type, elementName, false);
}

ZefReturnT ValueRangeWrapper::setBound(const std::string& text, ZefOamSpiMrType_3 type,
                                       const std::string& elementName, bool isMin)
{
    if (text.empty()) {
        return ZefOk;
    }
    ZefReturnT result;
    if (type == ZefMrType3Double) {
        result = MrUtil::toDouble(text, isMin ? _range.minDouble : _range.maxDouble);
    } else {
        result = toIntAny(text, isMin ? _range.min : _range.max, type);
    }
    if (result != ZefOk) {
        if (isMin) {
            ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Invalid min value %s set for attribute: %s.", text.c_str(),
                              elementName.c_str());
        } else {
            ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Invalid max value %s set for attribute: %s.", text.c_str(),
                              elementName.c_str());
        }
        return result;
    }
    _type = type;
    return ZefOk;
}

void ValueRangeWrapper::setNext(ValueRangeWrapper* next)
{
    _next = next;
    _range.next = next != nullptr ? &next->_range : nullptr;
}

std::string ValueRangeWrapper::toString() const
{
    std::ostringstream out;
    out << "    -- ValueRange -- \n";
    if (_type == ZefMrType3Double) {
        out << "    min:         " << _range.minDouble << '\n' << "    max:         " << _range.maxDouble << '\n';
    } else {
        out << "    min:         " << _range.min << '\n' << "    max:         " << _range.max << '\n';
    }
    return out.str();
}

} // namespace ZefModelRepositoryService
