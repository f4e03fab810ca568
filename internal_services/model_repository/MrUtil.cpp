#include "MrUtil.h"

#include <cfloat>
#include <charconv>
#include <cstdio>
#include <cstring>

#include "TextArena.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {
namespace MrUtil {

ZefReturnT toInt8(const std::string& text, int8_t& out) { return toInt<int8_t>(text, out); }
ZefReturnT toInt16(const std::string& text, short& out) { return toInt<short>(text, out); }
ZefReturnT toInt32(const std::string& text, int32_t& out) { return toInt<int32_t>(text, out); }
ZefReturnT toInt64(const std::string& text, long long& out) { return toInt<long long>(text, out); }
ZefReturnT toUInt8(const std::string& text, uint8_t& out) { return toInt<uint8_t>(text, out); }
ZefReturnT toUInt16(const std::string& text, uint16_t& out) { return toInt<uint16_t>(text, out); }
ZefReturnT toUInt32(const std::string& text, uint32_t& out) { return toInt<uint32_t>(text, out); }
ZefReturnT toUInt64(const std::string& text, uint64_t& out) { return toInt<uint64_t>(text, out); }

ZefReturnT toDouble(const std::string& text, double& out)
{
    if (text.empty() || std::isspace(static_cast<unsigned char>(text[0]))) {
        return ZefInvalidArgument;
    }
    if (text == kUnbounded) {
        out = DBL_MAX;
        return ZefOk;
    }
    const char* begin = text.c_str();
    char* end = nullptr;
    const double value = std::strtod(begin, &end);
    if (end == begin || *end != '\0') {
        return ZefInvalidArgument;
    }
    // Written so that NaN fails too; an overflowing text parses to infinity.
    if (!(value >= -DBL_MAX && value <= DBL_MAX)) {
        return ZefInvalidArgument;
    }
    out = value;
    return ZefOk;
}

char* toChar(const std::string& text)
{
    return TextArena::copy(text.data(), text.size());
}

void freeString(char*& field)
{
    TextArena::release(field);
    field = nullptr;
}

ZefReturnT setMinHlp(ZefOamSpiMultiplicityRange& range, bool& isSet, const std::string& text)
{
    short value = 0;
    const ZefReturnT result = toInt16(text, value);
    if (result == ZefOk) {
        range.min = value;
        isSet = true;
    }
    return result;
}

ZefReturnT setMaxHlp(ZefOamSpiMultiplicityRange& range, bool& isSet, const std::string& text)
{
    short value = std::numeric_limits<short>::max();
    if (!text.empty()) {
        const ZefReturnT result = toInt16(text, value);
        if (result != ZefOk) {
            return result;
        }
        if (value < 0) {
            return ZefInvalidArgument;
        }
    }
    range.max = value;
    isSet = true;
    return ZefOk;
}

ZefReturnT setDefaultValueHlp(const std::string& text, char*& slot)
{
    if (slot != nullptr) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Default value (%s) is already set to (%s).", text.c_str(), slot);
        return ZefAlreadyExists;
    }
    slot = toChar(text);
    return ZefOk;
}

ZefReturnT setDefaultValueHlp(const std::string& text, ZefOamSpiDatatypeContainer& container)
{
    return setDefaultValueHlp(text, container.defaultValue);
}

void resetGeneralPropertiesHlp(ZefOamSpiGeneralProperties& gp)
{
    gp.name = nullptr;
    gp.description = nullptr;
    gp.specification = nullptr;
    gp.status = ZefOamSpiStatusCurrent;
    gp.hidden = nullptr;
}

void cleanGeneralPropertiesHlp(ZefOamSpiGeneralProperties& gp)
{
    freeString(gp.name);
    freeString(gp.description);
    freeString(gp.specification);
    freeString(gp.hidden);
}

void resetDatatypeContainerHlp(ZefOamSpiDatatypeContainer& container)
{
    container.type = ZefMrType3NotSet;
    container.derivedDatatype = nullptr;
    container.enumDatatype = nullptr;
    container.structDatatype = nullptr;
    container.referencedMoc = nullptr;
    container.defaultValue = nullptr;
    container.multiplicityRange.min = 1;
    container.multiplicityRange.max = 1;
    container.isOrdered = false;
    container.isUnique = true;
}

void cleanDatatypeContainerHlp(ZefOamSpiDatatypeContainer& container)
{
    freeString(container.defaultValue);
}

std::string str(const char* text)
{
    return text != nullptr ? std::string(text) : std::string();
}

std::string headerToStringHlp(const std::string& kind, const char* name, const std::string& indent)
{
    std::string out;
    out.reserve(indent.size() + kind.size() + 16 + (name != nullptr ? std::strlen(name) : 0));
    appendHeaderHlp(out, kind, name, indent);
    return out;
}

void appendHeaderHlp(std::string& out, const std::string& kind, const char* name, const std::string& indent)
{
    out += indent;
    out += "-- ";
    out += kind;
    out += '(';
    out += name != nullptr ? name : "";
    out += ") --\n";
}

void appendDumpLineHlp(std::string& out, const std::string& indent, const char* label, const std::string& value)
{
    out += indent;
    out += label;
    out += value;
    out += '\n';
}

void appendDumpLineHlp(std::string& out, const std::string& indent, const char* label, const char* value)
{
    out += indent;
    out += label;
    out += value != nullptr ? value : "";
    out += '\n';
}

void appendDumpLineHlp(std::string& out, const std::string& indent, const char* label, long long value)
{
    // The model dump writes a dozen numbers for every record of the model.
    char digits[24];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof(digits), value);
    out += indent;
    out += label;
    out.append(digits, static_cast<size_t>(end.ptr - digits));
    out += '\n';
}

std::string generalPropertiesToStringHlp(const ZefOamSpiGeneralProperties& gp, const std::string& indent)
{
    std::string out;
    out.reserve(5 * (indent.size() + 20) + 64);
    appendGeneralPropertiesHlp(out, gp, indent);
    return out;
}

void appendGeneralPropertiesHlp(std::string& out, const ZefOamSpiGeneralProperties& gp, const std::string& indent)
{
    appendDumpLineHlp(out, indent, "Name:              ", gp.name);
    appendDumpLineHlp(out, indent, "Description:       ", gp.description);
    appendDumpLineHlp(out, indent, "Specification:     ", gp.specification);
    appendDumpLineHlp(out, indent, "Status:            ", static_cast<long long>(gp.status));
    appendDumpLineHlp(out, indent, "Hidden:            ", gp.hidden);
}

std::string datatypeContainerToStringHlp(const ZefOamSpiDatatypeContainer& container, const std::string& indent)
{
    std::string out;
    out.reserve(6 * (indent.size() + 20) + 32);
    appendDumpLineHlp(out, indent, "Type:              ", static_cast<long long>(container.type));
    appendDumpLineHlp(out, indent, "DefaultValue:      ", container.defaultValue);
    appendDumpLineHlp(out, indent, "MultiplicityMin:   ", static_cast<long long>(container.multiplicityRange.min));
    appendDumpLineHlp(out, indent, "MultiplicityMax:   ", static_cast<long long>(container.multiplicityRange.max));
    appendDumpLineHlp(out, indent, "IsOrdered:         ", static_cast<long long>(container.isOrdered));
    appendDumpLineHlp(out, indent, "IsUnique:          ", static_cast<long long>(container.isUnique));
    return out;
}

std::string typeName(int typeCode)
{
    static const char* const names[] = {"",       "INT8",   "INT16",  "INT32",     "INT64", "UINT8",
                                        "UINT16", "UINT32", "UINT64", "STRING",    "BOOL",  "REFERENCE",
                                        "ENUM",   "DERIVED", "STRUCT", "VOID",     "DOUBLE"};
    if (typeCode < 0 || typeCode >= static_cast<int>(sizeof(names) / sizeof(names[0]))) {
        return std::string();
    }
    return names[typeCode];
}

std::string joinKey(std::initializer_list<const char*> parts)
{
    // Every record builds its key here once: one allocation of the final
    // length, the parts appended in place.
    size_t length = parts.size() > 0 ? parts.size() - 1 : 0;
    for (const char* part : parts) {
        length += part != nullptr ? std::strlen(part) : 0;
    }
    std::string key;
    key.reserve(length);
    bool first = true;
    for (const char* part : parts) {
        if (!first) {
            key += '~';
        }
        if (part != nullptr) {
            key += part;
        }
        first = false;
    }
    return key;
}

int findMissingKeyPart(std::initializer_list<const char*> parts, bool& isNull)
{
    int index = 0;
    for (const char* part : parts) {
        if (part == nullptr) {
            isNull = true;
            return index;
        }
        ++index;
    }
    index = 0;
    for (const char* part : parts) {
        if (*part == '\0') {
            isNull = false;
            return index;
        }
        ++index;
    }
    return -1;
}

} // namespace MrUtil
} // namespace ZefModelRepositoryService
