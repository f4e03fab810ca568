#ifndef ZEF_REPORT_SESSION_H
#define ZEF_REPORT_SESSION_H

#include <getopt.h>

#include <list>
#include <string>

#include "ReportOptions.h"
#include "RunReport.h"

namespace ZefModelRepositoryService {
class ModelRepository;
} // namespace ZefModelRepositoryService

/// The machine-readable report and the strict exit status of one run of the
/// validator: reads their options before anything else acts, takes what the
/// run found, and at the end applies the strictness to the exit status and
/// writes the report. Without any of their options it does nothing at all.
class ReportSession {
public:
    ReportSession(const std::string& toolName, const std::string& toolVersion);

    /// Reads the report options (ReportOptions::read) and has the model
    /// files read with the places of their elements only when a report is
    /// asked for. On a problem prints "zef_model_validator: " and the problem
    /// on standard error and returns false: the run then ends with exit
    /// status 255.
    bool readOptions(int argc, char** argv, const char* shortOptions, const struct option* longOptions);
    /// True when the run is to be collected: a report or --strict was asked for.
    bool isActive() const { return _options.wantsReport() || _options.strictness() != ReportOptions::Strictness::Off; }

    /// Takes the files and findings of the load when it ends. Until done()
    /// is called the load counts as failed, so that a load that ends with
    /// an exception is recorded as such.
    class Load {
    public:
        Load(ReportSession& session, const std::list<std::string>& modelFiles,
             const ZefModelRepositoryService::ModelRepository& repository);
        ~Load();
        Load(const Load&) = delete;
        Load& operator=(const Load&) = delete;

        /// The load ended; `completed` is false when a model file stopped it.
        void done(bool completed);

    private:
        ReportSession& _session;
        const std::list<std::string> _modelFiles;
        const ZefModelRepositoryService::ModelRepository& _repository;
        bool _recorded = false;
    };

    /// Takes the result of one plug-in's check.
    void recordPlugin(const std::string& name, const std::string& version, bool passed, const std::string& result);

    /// Applies the strictness to `exitCode` (the value main returns), writes
    /// the report with the final status and returns that status. A report
    /// that cannot be written, or whose file is one of the model files, is
    /// said on standard error and ends the run with -1 (255).
    int finish(int exitCode);

private:
    // The problem with writing the report, or "" once it is written.
    std::string writeReport() const;

    ReportOptions _options;
    RunReport _report;
    std::list<std::string> _modelFiles;
};

#endif // ZEF_REPORT_SESSION_H
