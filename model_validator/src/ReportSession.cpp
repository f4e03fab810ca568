#include "ReportSession.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>

#include "ReportWriter.h"
#include "ZefConfiguration.h"

using ZefModelRepositoryService::FindingSeverity;

namespace {

void sayProblem(const std::string& problem) {
    std::fflush(stdout);
    std::fprintf(stderr, "zef_model_validator: %s\n", problem.c_str());
}

std::string workingFolder() {
    char buffer[PATH_MAX];
    return ::getcwd(buffer, sizeof(buffer)) != nullptr ? std::string(buffer) : std::string("/");
}

bool sameFile(const std::string& a, const std::string& b) {
    struct stat sa;
    struct stat sb;
    return ::stat(a.c_str(), &sa) == 0 && ::stat(b.c_str(), &sb) == 0 && sa.st_dev == sb.st_dev &&
           sa.st_ino == sb.st_ino;
}

} // namespace

ReportSession::ReportSession(const std::string& toolName, const std::string& toolVersion)
    : _report(toolName, toolVersion) {}

bool ReportSession::readOptions(int argc, char** argv, const char* shortOptions, const struct option* longOptions) {
    const std::string problem = _options.read(argc, argv, shortOptions, longOptions);
    if (problem.empty()) {
        // Only a report shows places in the model files; without one the
        // files are read as fast as ever.
        Zef::ZefConfiguration::setNotePositions(_options.wantsReport());
        return true;
    }
    sayProblem(problem);
    // A run refused for its options writes no report and keeps its status.
    _options = ReportOptions();
    return false;
}

ReportSession::Load::Load(ReportSession& session, const std::list<std::string>& modelFiles,
                          const ZefModelRepositoryService::ModelRepository& repository)
    : _session(session), _modelFiles(modelFiles), _repository(repository) {}

ReportSession::Load::~Load() {
    if (!_recorded) {
        done(false);
    }
}

void ReportSession::Load::done(bool completed) {
    _recorded = true;
    if (!_session.isActive()) {
        return;
    }
    _session._modelFiles = _modelFiles;
    _session._report.recordLoad(_modelFiles, _repository, completed);
}

void ReportSession::recordPlugin(const std::string& name, const std::string& version, bool passed,
                                 const std::string& result) {
    if (isActive()) {
        _report.recordPlugin(name, version, passed, result);
    }
}

int ReportSession::finish(int exitCode) {
    if (!isActive()) {
        return exitCode;
    }
    // Strictness only turns a passing run into a failing one; a failing
    // run keeps its own status (a plug-in failure stays 247).
    if (exitCode == 0) {
        const bool warnings = _report.count(FindingSeverity::Warning) > 0;
        if (_report.loadFailed() && _options.strictness() != ReportOptions::Strictness::Off) {
            exitCode = -1;
        } else if (warnings && _options.strictness() == ReportOptions::Strictness::Warnings) {
            exitCode = -1;
        }
    }
    if (!_options.wantsReport()) {
        return exitCode;
    }
    _report.setExitStatus(exitCode & 0xFF);
    const std::string problem = writeReport();
    if (!problem.empty()) {
        sayProblem(problem);
        return -1;
    }
    return exitCode;
}

std::string ReportSession::writeReport() const {
    const std::string& path = _options.file();
    for (const std::string& modelFile : _modelFiles) {
        if (sameFile(path, modelFile)) {
            return "the report file '" + path + "' is the model file '" + modelFile + "': no report written";
        }
    }
    const std::unique_ptr<ReportWriter> writer = ReportWriter::forFormat(_options.format(), workingFolder());
    std::ofstream out(path.c_str(), std::ios::out | std::ios::trunc | std::ios::binary);
    if (out) {
        writer->write(_report, out);
        out.flush();
    }
    if (!out) {
        return "cannot write the report file '" + path + "': " + std::strerror(errno);
    }
    return std::string();
}
