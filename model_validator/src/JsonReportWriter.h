#ifndef ZEF_JSON_REPORT_WRITER_H
#define ZEF_JSON_REPORT_WRITER_H

#include "ReportWriter.h"

/// The report as a JSON document of this tool's own schema (described in the
/// README): the tool, the exit status, the model files with their status,
/// every finding in the order of the message list, the plug-in results and
/// the count of findings by severity.
class JsonReportWriter : public ReportWriter {
public:
    /// The version of the document's schema; it grows when members are
    /// added and changes meaning never.
    static const int schemaVersion = 1;

    void write(const RunReport& report, std::ostream& out) const override;
};

#endif // ZEF_JSON_REPORT_WRITER_H
