#include "JunitReportWriter.h"

#include <string>
#include <vector>

#include "FindingRules.h"
#include "ReportText.h"
#include "RunReport.h"

using ZefModelRepositoryService::FindingSeverity;
using ZefModelRepositoryService::severityName;

namespace {

/// One test case: its name, what fails it, what it prints, and whether it
/// was skipped.
struct TestCase {
    std::string name;
    std::string file;
    std::vector<std::string> failures;
    std::string failureSummary;
    std::vector<std::string> output;
    std::string skipped;
};

// "file:line:column: severity rule: message", the place left out where it
// is not known.
std::string lineOf(const RunReport::Finding& finding) {
    std::string line;
    if (!finding.file.empty()) {
        line += finding.file;
        if (finding.line > 0) {
            line += ":" + std::to_string(finding.line);
            if (finding.column > 0) {
                line += ":" + std::to_string(finding.column);
            }
        }
        line += ": ";
    }
    return line + severityName(finding.severity) + " " + finding.ruleId + ": " + finding.reporter + ": " +
           finding.message;
}

std::string joinedLines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

std::string countOf(size_t count, const char* word) {
    return std::to_string(count) + " " + word + (count == 1 ? "" : "s");
}

void writeSuite(std::ostream& out, const char* name, const std::vector<TestCase>& cases, int exitStatus,
                bool withProperties) {
    size_t failures = 0;
    size_t skipped = 0;
    for (const TestCase& testCase : cases) {
        failures += testCase.failures.empty() ? 0 : 1;
        skipped += testCase.skipped.empty() ? 0 : 1;
    }
    out << "  <testsuite name=\"" << name << "\" tests=\"" << cases.size() << "\" failures=\"" << failures
        << "\" errors=\"0\" skipped=\"" << skipped << "\">\n";
    if (withProperties) {
        out << "    <properties>\n"
            << "      <property name=\"exitStatus\" value=\"" << exitStatus << "\"/>\n"
            << "    </properties>\n";
    }
    for (const TestCase& testCase : cases) {
        out << "    <testcase classname=\"" << name << "\" name=\"" << ReportText::xmlAttribute(testCase.name) << "\"";
        if (!testCase.file.empty()) {
            out << " file=\"" << ReportText::xmlAttribute(testCase.file) << "\"";
        }
        if (testCase.failures.empty() && testCase.skipped.empty() && testCase.output.empty()) {
            out << "/>\n";
            continue;
        }
        out << ">\n";
        if (!testCase.skipped.empty()) {
            out << "      <skipped message=\"" << ReportText::xmlAttribute(testCase.skipped) << "\"/>\n";
        }
        if (!testCase.failures.empty()) {
            out << "      <failure message=\"" << ReportText::xmlAttribute(testCase.failureSummary)
                << "\" type=\"error\">" << ReportText::xmlText(joinedLines(testCase.failures)) << "</failure>\n";
        }
        if (!testCase.output.empty()) {
            out << "      <system-out>" << ReportText::xmlText(joinedLines(testCase.output)) << "</system-out>\n";
        }
        out << "    </testcase>\n";
    }
    out << "  </testsuite>\n";
}

} // namespace

void JunitReportWriter::write(const RunReport& report, std::ostream& out) const {
    std::vector<TestCase> files;
    for (const RunReport::File& file : report.files()) {
        TestCase testCase;
        testCase.name = file.path;
        testCase.file = file.path;
        if (file.status == RunReport::FileStatus::NotRead) {
            testCase.skipped = "not read: an earlier model file failed to load";
        } else if (file.status == RunReport::FileStatus::Failed) {
            testCase.failures.push_back(file.path + ": the model file failed to load");
        }
        files.push_back(testCase);
    }
    TestCase wholeModel;
    wholeModel.name = "(model)";

    std::vector<TestCase> plugins;
    for (const RunReport::Plugin& plugin : report.plugins()) {
        TestCase testCase;
        testCase.name = plugin.name + "(" + plugin.version + ")";
        if (!plugin.passed) {
            testCase.failures.push_back(plugin.result);
            testCase.failureSummary = "Validation of model failed";
        } else if (!plugin.result.empty()) {
            testCase.output.push_back(plugin.result);
        }
        plugins.push_back(testCase);
    }

    for (const RunReport::Finding& finding : report.findings()) {
        if (finding.severity == FindingSeverity::Note) {
            continue; // plug-in information: in the plug-in's case already
        }
        if (finding.ruleId == ZefModelRepositoryService::FindingRules::pluginFailedId) {
            continue; // in the plug-in's case already
        }
        TestCase* target = &wholeModel;
        for (TestCase& testCase : files) {
            if (!finding.file.empty() && testCase.file == finding.file) {
                target = &testCase;
                break;
            }
        }
        if (finding.severity == FindingSeverity::Error) {
            target->failures.push_back(lineOf(finding));
        } else {
            target->output.push_back(lineOf(finding));
        }
    }
    if (!wholeModel.failures.empty() || !wholeModel.output.empty()) {
        files.push_back(wholeModel);
    }
    for (TestCase& testCase : files) {
        if (!testCase.failures.empty()) {
            size_t errors = 0;
            for (const RunReport::Finding& finding : report.findings()) {
                if (finding.severity == FindingSeverity::Error && finding.file == testCase.file &&
                    finding.ruleId != ZefModelRepositoryService::FindingRules::pluginFailedId) {
                    ++errors;
                }
            }
            testCase.failureSummary = errors > 0 ? countOf(errors, "error") : "the model file failed to load";
        }
    }

    size_t tests = files.size() + plugins.size();
    size_t failures = 0;
    size_t skipped = 0;
    for (const std::vector<TestCase>* suite : {&files, &plugins}) {
        for (const TestCase& testCase : *suite) {
            failures += testCase.failures.empty() ? 0 : 1;
            skipped += testCase.skipped.empty() ? 0 : 1;
        }
    }
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    out << "<testsuites name=\"" << ReportText::xmlAttribute(report.toolName()) << "\" tests=\"" << tests
        << "\" failures=\"" << failures << "\" errors=\"0\" skipped=\"" << skipped << "\">\n";
    writeSuite(out, "model files", files, report.exitStatus(), true);
    if (!plugins.empty()) {
        writeSuite(out, "static validators", plugins, report.exitStatus(), false);
    }
    out << "</testsuites>\n";
}
