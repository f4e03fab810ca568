#include "RunReport.h"

#include <set>

#include "FindingRules.h"
#include "ModelRepository.h"

using ZefModelRepositoryService::FindingRules;
using ZefModelRepositoryService::FindingSeverity;

const char* const RunReport::unknownRuleId = "unknown";

RunReport::RunReport(const std::string& toolName, const std::string& toolVersion)
    : _toolName(toolName), _toolVersion(toolVersion) {}

void RunReport::recordLoad(const std::list<std::string>& modelFiles,
                           const ZefModelRepositoryService::ModelRepository& repository, bool loadCompleted) {
    const std::vector<const std::string*>& read = repository.getModelFilesRead();
    std::set<std::string> readNames;
    for (const std::string* name : read) {
        readNames.insert(*name);
    }
    // The load stops at the file that failed: the last one begun.
    const std::string failed = !loadCompleted && !read.empty() ? *read.back() : std::string();
    _loadFailed = !loadCompleted;
    _files.clear();
    for (const std::string& path : modelFiles) {
        File file;
        file.path = path;
        if (!failed.empty() && path == failed) {
            file.status = FileStatus::Failed;
        } else if (readNames.count(path) != 0) {
            file.status = FileStatus::Read;
        }
        _files.push_back(file);
    }

    for (const ZefModelRepositoryService::Finding& found : repository.getFindings()) {
        Finding finding;
        finding.severity = found.severity;
        finding.reporter = found.reporter;
        finding.ruleId = found.rule != nullptr ? found.rule->id : unknownRuleId;
        finding.message = found.message;
        if (found.location.isKnown()) {
            finding.file = *found.location.file;
            finding.line = found.location.line;
            finding.column = found.location.column;
        }
        finding.key = found.key;
        _findings.push_back(finding);
    }
}

void RunReport::recordPlugin(const std::string& name, const std::string& version, bool passed,
                             const std::string& result) {
    _plugins.push_back(Plugin{name, version, passed, result});
    if (passed && result.empty()) {
        return;
    }
    Finding finding;
    finding.severity = passed ? FindingSeverity::Note : FindingSeverity::Error;
    finding.reporter = name;
    finding.ruleId = passed ? FindingRules::pluginInformationId : FindingRules::pluginFailedId;
    // The words the summary prints for the result, on one line.
    finding.message = name + "(" + version + ") - Validation of model " +
                      (passed ? "succeeded, but with information: " : "failed: ") + result;
    _findings.push_back(finding);
}

size_t RunReport::count(FindingSeverity severity) const {
    size_t total = 0;
    for (const Finding& finding : _findings) {
        if (finding.severity == severity) {
            ++total;
        }
    }
    return total;
}
