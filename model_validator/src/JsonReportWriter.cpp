#include "JsonReportWriter.h"

#include "JsonWriter.h"
#include "RunReport.h"

using ZefModelRepositoryService::FindingSeverity;
using ZefModelRepositoryService::severityName;

namespace {

const char* statusName(RunReport::FileStatus status) {
    switch (status) {
    case RunReport::FileStatus::Read:
        return "read";
    case RunReport::FileStatus::Failed:
        return "failed";
    case RunReport::FileStatus::NotRead:
        return "not-read";
    }
    return "not-read";
}

// A text member that is null when empty.
void textOrNull(JsonWriter& json, const char* name, const std::string& text) {
    json.key(name);
    if (text.empty()) {
        json.null();
    } else {
        json.value(text);
    }
}

// A number member that is null when 0 (not known).
void numberOrNull(JsonWriter& json, const char* name, unsigned number) {
    json.key(name);
    if (number == 0) {
        json.null();
    } else {
        json.value(static_cast<int64_t>(number));
    }
}

} // namespace

void JsonReportWriter::write(const RunReport& report, std::ostream& out) const {
    JsonWriter json(out);
    json.beginObject();
    json.member("schemaVersion", static_cast<int64_t>(schemaVersion));
    json.key("tool");
    json.beginObject();
    json.member("name", report.toolName());
    json.member("version", report.toolVersion());
    json.endObject();
    json.member("exitStatus", static_cast<int64_t>(report.exitStatus()));

    json.key("files");
    json.beginArray();
    for (const RunReport::File& file : report.files()) {
        json.beginObject();
        json.member("path", file.path);
        json.member("status", statusName(file.status));
        json.endObject();
    }
    json.endArray();

    json.key("findings");
    json.beginArray();
    for (const RunReport::Finding& finding : report.findings()) {
        json.beginObject();
        json.member("severity", severityName(finding.severity));
        json.member("reporter", finding.reporter);
        json.member("ruleId", finding.ruleId);
        json.member("message", finding.message);
        textOrNull(json, "file", finding.file);
        numberOrNull(json, "line", finding.line);
        numberOrNull(json, "column", finding.column);
        textOrNull(json, "key", finding.key);
        json.endObject();
    }
    json.endArray();

    json.key("plugins");
    json.beginArray();
    for (const RunReport::Plugin& plugin : report.plugins()) {
        json.beginObject();
        json.member("name", plugin.name);
        json.member("version", plugin.version);
        json.member("passed", plugin.passed);
        json.member("result", plugin.result);
        json.endObject();
    }
    json.endArray();

    json.key("summary");
    json.beginObject();
    json.member("errors", static_cast<int64_t>(report.count(FindingSeverity::Error)));
    json.member("warnings", static_cast<int64_t>(report.count(FindingSeverity::Warning)));
    json.member("notes", static_cast<int64_t>(report.count(FindingSeverity::Note)));
    json.endObject();
    json.endObject();
    json.finish();
}
