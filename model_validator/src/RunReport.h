#ifndef ZEF_RUN_REPORT_H
#define ZEF_RUN_REPORT_H

#include <list>
#include <string>
#include <vector>

#include "FindingRule.h"

namespace ZefModelRepositoryService {
class ModelRepository;
} // namespace ZefModelRepositoryService

/// What a machine-readable report tells about one run of the validator: the
/// model files and whether each was read, every finding in the order of the
/// message list with its rule and place, each plug-in's result, and the
/// exit status. It holds copies, so it outlives the repository it was taken
/// from.
class RunReport {
public:
    enum class FileStatus { Read, Failed, NotRead };

    struct File {
        std::string path;
        FileStatus status = FileStatus::NotRead;
    };

    struct Finding {
        ZefModelRepositoryService::FindingSeverity severity = ZefModelRepositoryService::FindingSeverity::Error;
        std::string reporter;
        std::string ruleId;
        std::string message;
        /// The model file as named on the command line; empty when the
        /// finding is about no element of a file.
        std::string file;
        /// Counted from 1; 0 when not known.
        unsigned line = 0;
        unsigned column = 0;
        /// The identity key of the element; empty when there is none.
        std::string key;
    };

    struct Plugin {
        std::string name;
        std::string version;
        bool passed = false;
        std::string result;
    };

    /// The rule identifier of a finding whose text no rule knows.
    static const char* const unknownRuleId;

    RunReport(const std::string& toolName, const std::string& toolVersion);

    /// Takes the files and findings of a load: `modelFiles` in the order
    /// given, each read, failed (the file the load stopped at, when
    /// `loadCompleted` is false) or not read.
    void recordLoad(const std::list<std::string>& modelFiles,
                    const ZefModelRepositoryService::ModelRepository& repository, bool loadCompleted);
    /// Adds a plug-in's result; a failed check is also an error finding and
    /// a passed one with information a note, both reported by the plug-in.
    void recordPlugin(const std::string& name, const std::string& version, bool passed, const std::string& result);
    /// The exit status as the shell sees it (0 to 255).
    void setExitStatus(int status) { _exitStatus = status; }

    const std::string& toolName() const { return _toolName; }
    const std::string& toolVersion() const { return _toolVersion; }
    const std::vector<File>& files() const { return _files; }
    const std::vector<Finding>& findings() const { return _findings; }
    const std::vector<Plugin>& plugins() const { return _plugins; }
    int exitStatus() const { return _exitStatus; }

    size_t count(ZefModelRepositoryService::FindingSeverity severity) const;
    /// True when a model file failed to load (see recordLoad).
    bool loadFailed() const { return _loadFailed; }

private:
    std::string _toolName;
    std::string _toolVersion;
    std::vector<File> _files;
    std::vector<Finding> _findings;
    std::vector<Plugin> _plugins;
    int _exitStatus = 0;
    bool _loadFailed = false;
};

#endif // ZEF_RUN_REPORT_H
