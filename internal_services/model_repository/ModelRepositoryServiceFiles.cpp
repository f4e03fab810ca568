// The settings and model files of the service: its section of the component
// configuration, the model specification file named there, and the scan of
// a folder for model files.

#include "ModelRepositoryService.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <memory>
#include <vector>

#include <Poco/Path.h>
#include <Poco/String.h>

#include "ConfigurationFile.h"
#include "ZefLog.h"

namespace ZefModelRepositoryService {

namespace {

// The settings of the service in the component configuration.
const char* const kSettingsSection = "ModelRepository";
const char* const kModelSpecFileKey = "modelSpecFile";
const char* const kMainRootNameKey = "mainRootName";
const size_t kReadBlockSize = 8192;
const char* const kModelFileExtension = "xml";

enum class PathState { Missing, NotRegularFile, NotReadable, ReadableFile };

// What a path names, judged the way the service reports it. A path whose
// folders cannot be searched counts as missing: nothing can be found there.
PathState stateOfFile(const std::string& path) {
    struct stat info;
    if (::stat(path.c_str(), &info) != 0) {
        return PathState::Missing;
    }
    if (!S_ISREG(info.st_mode)) {
        return PathState::NotRegularFile;
    }
    return ::access(path.c_str(), R_OK) == 0 ? PathState::ReadableFile : PathState::NotReadable;
}

// The text after the last '.' of the last path component; empty without one.
std::string extensionOf(const std::string& path) {
    const std::string::size_type slash = path.rfind('/');
    const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    const std::string::size_type dot = name.rfind('.');
    return dot == std::string::npos ? std::string() : name.substr(dot + 1);
}

// The whole content of a readable file; false when it cannot be read.
bool readWholeFile(const std::string& path, std::string& content) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        return false;
    }
    std::vector<char> block(kReadBlockSize);
    while (in.read(block.data(), static_cast<std::streamsize>(block.size())) || in.gcount() > 0) {
        content.append(block.data(), static_cast<size_t>(in.gcount()));
    }
    return !in.bad();
}

// Checks the model specification file; logs and traces the problem and
// returns -1 when it cannot be used.
ZefReturnT checkModelSpecFile(const std::string& path) {
    if (path.empty()) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Model configuration file is not specified.");
        return ZefFailure;
    }
    switch (stateOfFile(path)) {
    case PathState::Missing:
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Model configuration file (%s) does not exist.", path.c_str());
        return ZefFailure;
    case PathState::NotRegularFile:
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Model configuration file (%s) is not file type.", path.c_str());
        return ZefFailure;
    case PathState::NotReadable:
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Model configuration file (%s) is not readable.", path.c_str());
        return ZefFailure;
    case PathState::ReadableFile:
        break;
    }
    return ZefOk;
}

// Checks one model file named by the specification file; logs and traces
// the problem and returns false when it cannot be loaded.
bool isLoadableModelFile(const std::string& path) {
    switch (stateOfFile(path)) {
    case PathState::Missing:
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Model file (%s) does not exist.", path.c_str());
        return false;
    case PathState::NotRegularFile:
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Model file (%s) is not a file.", path.c_str());
        return false;
    case PathState::NotReadable:
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Model file (%s) is not readable.", path.c_str());
        return false;
    case PathState::ReadableFile:
        break;
    }
    if (extensionOf(path) != kModelFileExtension) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Model file (%s) is not xml file.", path.c_str());
        return false;
    }
    return true;
}

} // namespace

ZefReturnT ModelRepositoryService::readSettings(const Zef::ConfigurationFile& cfg) {
    if (!_standalone) {
        const std::string path = Poco::trim(cfg.getValue(kSettingsSection, kModelSpecFileKey));
        const ZefReturnT checked = checkModelSpecFile(path);
        if (checked != ZefOk) {
            return checked;
        }
        _modelSpecFile = path;
    }
    // An empty setting keeps a name given before, e.g. by the host program.
    const std::string mainRootName = Poco::trim(cfg.getValue(kSettingsSection, kMainRootNameKey));
    if (!mainRootName.empty()) {
        _mainRootName = mainRootName;
    }
    return ZefOk;
}

ZefReturnT ModelRepositoryService::processModelSpecFile(const std::string& path) {
    std::string content;
    // The file was checked by init, but it may have changed since; the same
    // check keeps a fifo from blocking the start.
    if (checkModelSpecFile(path) != ZefOk || !readWholeFile(path, content)) {
        _modelFiles.clear();
        return ZefFailure;
    }
    std::string::size_type begin = 0;
    while (begin <= content.size()) {
        std::string::size_type end = content.find('\n', begin);
        if (end == std::string::npos) {
            end = content.size();
        }
        const std::string line = Poco::trim(content.substr(begin, end - begin));
        begin = end + 1;
        if (line.empty()) {
            ZEF_TRACE("Ignoring empty line in model configuration file.");
            continue;
        }
        // A model set is loaded whole or not at all: one bad line drops
        // every file, also those named before it.
        if (!isLoadableModelFile(line)) {
            _modelFiles.clear();
            return ZefFailure;
        }
        _modelFiles.push_back(line);
    }
    return ZefOk;
}

ZefReturnT ModelRepositoryService::getModelFiles(const std::string& dir) {
    struct stat info;
    if (::stat(dir.c_str(), &info) != 0) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_WARNING, "ModelLoadDir of Model Repository is not exist: %s", dir.c_str());
        return ZefFailure;
    }
    if (!S_ISDIR(info.st_mode)) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_WARNING, "ModelLoadDir of Model Repository is not a directory: %s",
                          dir.c_str());
        return ZefFailure;
    }
    std::unique_ptr<DIR, int (*)(DIR*)> folder(::access(dir.c_str(), R_OK) == 0 ? ::opendir(dir.c_str()) : nullptr,
                                               ::closedir);
    if (!folder) {
        ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_WARNING, "ModelLoadDir of Model Repository does not readable: %s",
                          dir.c_str());
        return ZefFailure;
    }
    while (const struct dirent* entry = ::readdir(folder.get())) {
        const std::string path = Poco::Path(dir + "/" + entry->d_name).makeAbsolute().toString();
        if (extensionOf(path) == kModelFileExtension) {
            _modelFiles.push_back(path);
        }
    }
    return ZefOk;
}

} // namespace ZefModelRepositoryService
