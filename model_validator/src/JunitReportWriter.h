#ifndef ZEF_JUNIT_REPORT_WRITER_H
#define ZEF_JUNIT_REPORT_WRITER_H

#include "ReportWriter.h"

/// The report as JUnit XML, for CI services that show test results: a test
/// suite "model files" with one test case per model file, failed by the
/// file's errors (listed one per line in the failure) or by a failed load,
/// skipped when the file was not read; its warnings go to the case's
/// output. Errors about no file fail a case "(model)". A second suite
/// "static validators" has one case per plug-in.
class JunitReportWriter : public ReportWriter {
public:
    void write(const RunReport& report, std::ostream& out) const override;
};

#endif // ZEF_JUNIT_REPORT_WRITER_H
