#ifndef ZEF_REPORT_TEXT_H
#define ZEF_REPORT_TEXT_H

#include <string>

/// Escaping of texts for the report formats. Every text of a report (a
/// message, a path, a plug-in's result) may hold any byte: a malformed UTF-8
/// sequence becomes U+FFFD, so that every report is well-formed UTF-8.
class ReportText {
public:
    /// `text` with every malformed UTF-8 sequence replaced by U+FFFD.
    static std::string validUtf8(const std::string& text);
    /// `text` as a JSON string, quotes included: quote, backslash and the
    /// control characters escaped.
    static std::string json(const std::string& text);
    /// `text` for XML character data: the five markup characters as
    /// entities, a carriage return as a character reference (a reader would
    /// turn it into a newline), and the control characters XML 1.0 cannot
    /// hold as U+FFFD.
    static std::string xmlText(const std::string& text);
    /// The same for an attribute value, where tab and newline become
    /// character references too, so that a reader keeps them.
    static std::string xmlAttribute(const std::string& text);

private:
    static std::string xml(const std::string& text, bool attribute);
};

#endif // ZEF_REPORT_TEXT_H
