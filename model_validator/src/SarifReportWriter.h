#ifndef ZEF_SARIF_REPORT_WRITER_H
#define ZEF_SARIF_REPORT_WRITER_H

#include <string>

#include "ReportWriter.h"

/// The report as a SARIF 2.1.0 log of one run, for code-scanning services:
/// the tool driver with every rule, the model files as artifacts, and one
/// result per finding with its rule, level, message and the physical
/// location of its element. A model file below the working folder is named
/// relative to it, with the base "SRCROOT" standing for the folder.
class SarifReportWriter : public ReportWriter {
public:
    /// `workingFolder`: the absolute folder of the run.
    explicit SarifReportWriter(const std::string& workingFolder);

    void write(const RunReport& report, std::ostream& out) const override;

    /// The base identifier of relative artifact URIs.
    static const char* const baseId;

private:
    std::string _workingFolder;
};

#endif // ZEF_SARIF_REPORT_WRITER_H
