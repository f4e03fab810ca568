#ifndef ZEF_REPORT_WRITER_H
#define ZEF_REPORT_WRITER_H

#include <memory>
#include <ostream>
#include <string>

#include "ReportOptions.h"

class RunReport;

/// Writes a RunReport in one of the report formats.
class ReportWriter {
public:
    virtual ~ReportWriter() = default;

    /// Writes the whole report to `out`.
    virtual void write(const RunReport& report, std::ostream& out) const = 0;

    /// The writer of a format; `workingFolder` (absolute) is the folder that
    /// relative model file paths are relative to. Null for Format::None.
    static std::unique_ptr<ReportWriter> forFormat(ReportOptions::Format format, const std::string& workingFolder);
};

#endif // ZEF_REPORT_WRITER_H
