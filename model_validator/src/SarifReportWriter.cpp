#include "SarifReportWriter.h"

#include <map>

#include "ArtifactUri.h"
#include "FindingRules.h"
#include "JsonWriter.h"
#include "RunReport.h"

using ZefModelRepositoryService::FindingRule;
using ZefModelRepositoryService::FindingRules;
using ZefModelRepositoryService::FindingSeverity;

namespace {

// SARIF names its levels as the findings name their severities.
const char* levelOf(FindingSeverity severity) { return severityName(severity); }

void artifactLocation(JsonWriter& json, const ArtifactUri& uri, int64_t index) {
    json.key("artifactLocation");
    json.beginObject();
    json.member("uri", uri.uri());
    if (uri.isRelative()) {
        json.member("uriBaseId", SarifReportWriter::baseId);
    }
    if (index >= 0) {
        json.member("index", index);
    }
    json.endObject();
}

void writeRules(JsonWriter& json, std::map<std::string, int64_t>& ruleIndex) {
    json.key("rules");
    json.beginArray();
    for (const FindingRule& rule : FindingRules::all()) {
        ruleIndex.emplace(rule.id, static_cast<int64_t>(ruleIndex.size()));
        json.beginObject();
        json.member("id", rule.id);
        json.key("shortDescription");
        json.beginObject();
        json.member("text", rule.messageTemplate);
        json.endObject();
        json.key("defaultConfiguration");
        json.beginObject();
        json.member("level", levelOf(rule.severity));
        json.endObject();
        json.key("properties");
        json.beginObject();
        json.member("reporter", rule.reporter);
        json.endObject();
        json.endObject();
    }
    json.endArray();
}

} // namespace

const char* const SarifReportWriter::baseId = "SRCROOT";

SarifReportWriter::SarifReportWriter(const std::string& workingFolder) : _workingFolder(workingFolder) {}

void SarifReportWriter::write(const RunReport& report, std::ostream& out) const {
    JsonWriter json(out);
    json.beginObject();
    json.member("$schema", "https://json.schemastore.org/sarif-2.1.0.json");
    json.member("version", "2.1.0");
    json.key("runs");
    json.beginArray();
    json.beginObject();

    std::map<std::string, int64_t> ruleIndex;
    json.key("tool");
    json.beginObject();
    json.key("driver");
    json.beginObject();
    json.member("name", report.toolName());
    json.member("version", report.toolVersion());
    json.member("semanticVersion", report.toolVersion());
    writeRules(json, ruleIndex);
    json.endObject();
    json.endObject();

    json.key("invocations");
    json.beginArray();
    json.beginObject();
    // The run did its work unless a model file stopped the load; findings
    // in the model do not make the run itself fail.
    json.member("executionSuccessful", !report.loadFailed());
    json.member("exitCode", static_cast<int64_t>(report.exitStatus()));
    json.endObject();
    json.endArray();

    json.key("originalUriBaseIds");
    json.beginObject();
    json.key(baseId);
    json.beginObject();
    json.member("uri", ArtifactUri::folderUri(_workingFolder));
    json.endObject();
    json.endObject();

    std::map<std::string, int64_t> artifactIndex;
    json.key("artifacts");
    json.beginArray();
    for (const RunReport::File& file : report.files()) {
        if (!artifactIndex.emplace(file.path, static_cast<int64_t>(artifactIndex.size())).second) {
            continue; // a file named twice is one artifact
        }
        json.beginObject();
        json.key("location");
        json.beginObject();
        const ArtifactUri uri(file.path, _workingFolder);
        json.member("uri", uri.uri());
        if (uri.isRelative()) {
            json.member("uriBaseId", baseId);
        }
        json.endObject();
        json.endObject();
    }
    json.endArray();

    json.key("results");
    json.beginArray();
    for (const RunReport::Finding& finding : report.findings()) {
        json.beginObject();
        json.member("ruleId", finding.ruleId);
        const auto rule = ruleIndex.find(finding.ruleId);
        if (rule != ruleIndex.end()) {
            json.member("ruleIndex", rule->second);
        }
        json.member("level", levelOf(finding.severity));
        json.key("message");
        json.beginObject();
        json.member("text", finding.message);
        json.endObject();
        if (!finding.file.empty()) {
            json.key("locations");
            json.beginArray();
            json.beginObject();
            json.key("physicalLocation");
            json.beginObject();
            const auto artifact = artifactIndex.find(finding.file);
            artifactLocation(json, ArtifactUri(finding.file, _workingFolder),
                             artifact != artifactIndex.end() ? artifact->second : -1);
            if (finding.line > 0) {
                json.key("region");
                json.beginObject();
                json.member("startLine", static_cast<int64_t>(finding.line));
                if (finding.column > 0) {
                    json.member("startColumn", static_cast<int64_t>(finding.column));
                }
                json.endObject();
            }
            json.endObject();
            json.endObject();
            json.endArray();
        }
        json.key("properties");
        json.beginObject();
        json.member("reporter", finding.reporter);
        if (!finding.key.empty()) {
            json.member("identityKey", finding.key);
        }
        json.endObject();
        json.endObject();
    }
    json.endArray();

    json.endObject();
    json.endArray();
    json.endObject();
    json.finish();
}
