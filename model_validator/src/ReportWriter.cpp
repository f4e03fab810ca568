#include "ReportWriter.h"

#include "JsonReportWriter.h"
#include "JunitReportWriter.h"
#include "SarifReportWriter.h"

std::unique_ptr<ReportWriter> ReportWriter::forFormat(ReportOptions::Format format, const std::string& workingFolder) {
    switch (format) {
    case ReportOptions::Format::Json:
        return std::unique_ptr<ReportWriter>(new JsonReportWriter());
    case ReportOptions::Format::Sarif:
        return std::unique_ptr<ReportWriter>(new SarifReportWriter(workingFolder));
    case ReportOptions::Format::Junit:
        return std::unique_ptr<ReportWriter>(new JunitReportWriter());
    case ReportOptions::Format::None:
        break;
    }
    return nullptr;
}
