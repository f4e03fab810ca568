#ifndef ZEF_MR_UTIL_H
#define ZEF_MR_UTIL_H

#include <cctype>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <limits>
#include <sstream>
#include <string>
#include <type_traits>

#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// Text-to-number converters, string copies and the reset, clean and dump
/// routines shared by every element record.
namespace MrUtil {

/// The text that stands for "unbounded" in multiplicities and ranges.
constexpr const char* kUnbounded = "*";

/// Converts base-10 text into the integer type T.
/// Returns ZefOk, or ZefInvalidArgument for an empty text, a text that begins
/// with white space, a '-' for an unsigned T, a value outside T's range or
/// characters after the number; "*" yields T's maximum. `out` is only
/// written on success. Never logs.
template <typename T>
ZefReturnT toInt(const std::string& text, T& out)
{
    static_assert(std::is_integral<T>::value, "toInt converts to integer types only");
    errno = 0;
    if (text.empty() || std::isspace(static_cast<unsigned char>(text[0]))) {
        return ZefInvalidArgument;
    }
    if (text == kUnbounded) {
        out = std::numeric_limits<T>::max();
        return ZefOk;
    }
    const char* begin = text.c_str();
    char* end = nullptr;
    T value;
    if constexpr (std::is_signed<T>::value) {
        const long long parsed = std::strtoll(begin, &end, 10);
        if (errno == ERANGE || parsed < static_cast<long long>(std::numeric_limits<T>::min())
            || parsed > static_cast<long long>(std::numeric_limits<T>::max())) {
            return ZefInvalidArgument;
        }
        value = static_cast<T>(parsed);
    } else {
        // strtoull would silently negate a leading minus.
        if (text[0] == '-') {
            return ZefInvalidArgument;
        }
        const unsigned long long parsed = std::strtoull(begin, &end, 10);
        if (errno == ERANGE || parsed > static_cast<unsigned long long>(std::numeric_limits<T>::max())) {
            return ZefInvalidArgument;
        }
        value = static_cast<T>(parsed);
    }
    // Also catches a text without any digit ("-", "+"): nothing is consumed.
    if (end == begin || *end != '\0') {
        return ZefInvalidArgument;
    }
    out = value;
    return ZefOk;
}

/// toInt for int8 (-128..127, "*" = 127).
ZefReturnT toInt8(const std::string& text, int8_t& out);
/// toInt for int16 (-32768..32767, "*" = 32767).
ZefReturnT toInt16(const std::string& text, short& out);
/// toInt for int32 ("*" = 2147483647).
ZefReturnT toInt32(const std::string& text, int32_t& out);
/// toInt for int64 ("*" = 9223372036854775807).
ZefReturnT toInt64(const std::string& text, long long& out);
/// toInt for uint8 (0..255, "*" = 255).
ZefReturnT toUInt8(const std::string& text, uint8_t& out);
/// toInt for uint16 (0..65535, "*" = 65535).
ZefReturnT toUInt16(const std::string& text, uint16_t& out);
/// toInt for uint32 (0..4294967295, "*" = 4294967295).
ZefReturnT toUInt32(const std::string& text, uint32_t& out);
/// toInt for uint64 ("*" = 18446744073709551615).
ZefReturnT toUInt64(const std::string& text, uint64_t& out);

/// Converts a decimal floating text. Returns ZefInvalidArgument for an empty
/// text, leading white space, trailing characters, or a value outside the
/// finite double range (infinities and NaN included); "*" yields the largest
/// finite double. `out` is only written on success. Never logs.
ZefReturnT toDouble(const std::string& text, double& out);

/// A new C string holding a copy of text (see TextArena); the caller frees
/// it with freeString.
char* toChar(const std::string& text);

/// A new C string holding the value formatted by operator<<; the caller
/// frees it with freeString.
template <typename T>
char* toCharTpl(const T& value)
{
    std::ostringstream stream;
    stream << value;
    return toChar(stream.str());
}

/// Frees a string of a record that toChar made and sets it to null.
void freeString(char*& field);

/// Converts text with toInt16 into range.min and sets isSet. A text that does
/// not convert leaves both unchanged and is not reported here (the caller
/// validates the element later). Returns the conversion result.
ZefReturnT setMinHlp(ZefOamSpiMultiplicityRange& range, bool& isSet, const std::string& text);

/// Sets range.max from text: the empty text means unbounded (32767);
/// otherwise toInt16, where a negative value is refused. Returns ZefOk (max
/// stored, isSet set) or ZefInvalidArgument (nothing changed).
ZefReturnT setMaxHlp(ZefOamSpiMultiplicityRange& range, bool& isSet, const std::string& text);

/// Stores a copy of text in `slot` when it is still null and returns ZefOk.
/// When a value is already set the first one stays, the error
/// "Default value (%s) is already set to (%s)." is logged and
/// ZefAlreadyExists is returned.
ZefReturnT setDefaultValueHlp(const std::string& text, char*& slot);
/// setDefaultValueHlp on the default value of a data type container.
ZefReturnT setDefaultValueHlp(const std::string& text, ZefOamSpiDatatypeContainer& container);

/// Reset values: all strings null, status 1 (current).
void resetGeneralPropertiesHlp(ZefOamSpiGeneralProperties& gp);
/// Frees name, description, specification and hidden and sets them to null.
void cleanGeneralPropertiesHlp(ZefOamSpiGeneralProperties& gp);
/// Reset values: type 0, no linked types, no default value, multiplicity
/// 1..1, not ordered, unique.
void resetDatatypeContainerHlp(ZefOamSpiDatatypeContainer& container);
/// Frees the default value and sets it to null.
void cleanDatatypeContainerHlp(ZefOamSpiDatatypeContainer& container);

/// A string of a record for a dump: the text, or nothing for null.
std::string str(const char* text);

/// "-- <kind>(<name>) --" on one line behind the indent; records pass their
/// kind word with its trailing blank ("Moc ").
std::string headerToStringHlp(const std::string& kind, const char* name, const std::string& indent);
/// headerToStringHlp appended to `out`.
void appendHeaderHlp(std::string& out, const std::string& kind, const char* name, const std::string& indent);
/// The five general-property lines (Name, Description, Specification,
/// Status as its number, Hidden), each behind the indent.
std::string generalPropertiesToStringHlp(const ZefOamSpiGeneralProperties& gp, const std::string& indent);
/// generalPropertiesToStringHlp appended to `out`.
void appendGeneralPropertiesHlp(std::string& out, const ZefOamSpiGeneralProperties& gp, const std::string& indent);
/// The data type lines of a container, beginning with the type code: Type,
/// DefaultValue, MultiplicityMin, MultiplicityMax, IsOrdered, IsUnique.
std::string datatypeContainerToStringHlp(const ZefOamSpiDatatypeContainer& container, const std::string& indent);
/// Appends one dump line to `out`: indent, label, value, newline. A null
/// text appends as nothing, a number (flags as 0 and 1) in base 10 - as a
/// stream writes them. The dumps are built by appending, as the model dump
/// at trace level writes every record.
void appendDumpLineHlp(std::string& out, const std::string& indent, const char* label, const std::string& value);
void appendDumpLineHlp(std::string& out, const std::string& indent, const char* label, const char* value);
void appendDumpLineHlp(std::string& out, const std::string& indent, const char* label, long long value);

/// Name of a type code as the dumps print it ("INT8" ... "VOID", "DOUBLE"
/// for 16); an empty name for 0 and unknown codes.
std::string typeName(int typeCode);

/// Joins identity key parts with the separator "~".
std::string joinKey(std::initializer_list<const char*> parts);

/// Finds the part of an identity key that makes it impossible to build:
/// first the first null part, otherwise the first empty part. Returns its
/// index (isNull tells which of the two it is) or -1 when every part is set.
/// Key builders use it to pick their failure message.
int findMissingKeyPart(std::initializer_list<const char*> parts, bool& isNull);

} // namespace MrUtil

} // namespace ZefModelRepositoryService

#endif // ZEF_MR_UTIL_H
