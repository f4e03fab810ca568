#include "ReportText.h"

#include <cstdio>

namespace {

const char* const kReplacement = "\xEF\xBF\xBD";

// The length of the well-formed UTF-8 sequence at `at`; when there is
// none, 0, and in `invalid` the length of the longest start of one (at least
// one byte), which becomes one U+FFFD as Unicode recommends.
size_t sequenceLength(const std::string& text, size_t at, size_t& invalid) {
    invalid = 1;
    const unsigned char lead = static_cast<unsigned char>(text[at]);
    if (lead < 0x80) {
        return 1;
    }
    size_t length;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        low = lead == 0xE0 ? 0xA0 : 0x80;  // no overlong forms
        high = lead == 0xED ? 0x9F : 0xBF; // no surrogates
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        low = lead == 0xF0 ? 0x90 : 0x80;
        high = lead == 0xF4 ? 0x8F : 0xBF; // nothing above U+10FFFF
    } else {
        return 0;
    }
    for (size_t index = 1; index < length; ++index) {
        if (at + index >= text.size()) {
            return 0;
        }
        const unsigned char next = static_cast<unsigned char>(text[at + index]);
        if (next < (index == 1 ? low : 0x80) || next > (index == 1 ? high : 0xBF)) {
            return 0;
        }
        invalid = index + 1;
    }
    return length;
}

} // namespace

std::string ReportText::validUtf8(const std::string& text) {
    std::string result;
    result.reserve(text.size());
    size_t at = 0;
    while (at < text.size()) {
        size_t invalid = 0;
        const size_t length = sequenceLength(text, at, invalid);
        if (length == 0) {
            result += kReplacement;
            at += invalid;
        } else {
            result.append(text, at, length);
            at += length;
        }
    }
    return result;
}

std::string ReportText::json(const std::string& text) {
    const std::string valid = validUtf8(text);
    std::string result = "\"";
    for (const char c : valid) {
        switch (c) {
        case '"':
            result += "\\\"";
            break;
        case '\\':
            result += "\\\\";
            break;
        case '\b':
            result += "\\b";
            break;
        case '\f':
            result += "\\f";
            break;
        case '\n':
            result += "\\n";
            break;
        case '\r':
            result += "\\r";
            break;
        case '\t':
            result += "\\t";
            break;
        default:
            if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
                char escaped[8];
                std::snprintf(escaped, sizeof(escaped), "\\u%04x", static_cast<unsigned>(static_cast<unsigned char>(c)));
                result += escaped;
            } else {
                result += c;
            }
        }
    }
    result += '"';
    return result;
}

std::string ReportText::xmlText(const std::string& text) { return xml(text, false); }

std::string ReportText::xmlAttribute(const std::string& text) { return xml(text, true); }

std::string ReportText::xml(const std::string& text, bool attribute) {
    const std::string valid = validUtf8(text);
    std::string result;
    result.reserve(valid.size());
    for (const char c : valid) {
        switch (c) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        case '\'':
            result += "&apos;";
            break;
        case '\t':
            result += attribute ? "&#9;" : "\t";
            break;
        case '\n':
            result += attribute ? "&#10;" : "\n";
            break;
        case '\r':
            result += "&#13;";
            break;
        default:
            if (static_cast<unsigned char>(c) < 0x20) {
                result += kReplacement;
            } else {
                result += c;
            }
        }
    }
    return result;
}
