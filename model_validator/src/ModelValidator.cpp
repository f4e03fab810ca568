// zef_model_validator: loads a set of model files into the model repository,
// prints a summary of the findings and tells through its exit status whether
// the model is valid.

#include "ModelValidator.h"

#include <dirent.h>
#include <fcntl.h>
#include <getopt.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <memory>
#include <string>
#include <vector>

#include <Poco/String.h>

#include "CommandLineOptions.h"
#include "InputLimits.h"
#include "ModelRepositoryService.h"
#include "ReportSession.h"
#include "RuleList.h"
#include "ZefException.h"
#include "ZefLog.h"

using ZefModelRepositoryService::ModelRepositoryService;

const char* version = ZEF_VALIDATOR_VERSION;

namespace {

const size_t kReadBlockSize = 8192;

void printLine(const std::string& text) {
    std::fputs(text.c_str(), stdout);
    std::fputc('\n', stdout);
}

// Reads a whole regular file in blocks. The file is opened without blocking
// and checked before any read, so a FIFO or a device named as a list file
// cannot stall the run, and its size is bounded like a model file's.
std::string readRegularFile(const std::string& path) {
    const std::uint64_t maxSize = ZefModelRepositoryService::InputLimits::fromEnvironment().maxFileSize;
    int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (fd < 0) {
        throw Zef::ZefException(ZefFailure, "Cannot open file '%s': %s", path.c_str(), std::strerror(errno));
    }
    struct stat st;
    if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        ::close(fd);
        throw Zef::ZefException(ZefFailure, "Cannot read file '%s': not a regular file", path.c_str());
    }
    std::string content;
    std::vector<char> block(kReadBlockSize);
    for (;;) {
        ssize_t n = ::read(fd, block.data(), block.size());
        if (n < 0 && errno == EINTR) {
            continue;
        }
        if (n < 0) {
            int err = errno;
            ::close(fd);
            throw Zef::ZefException(ZefFailure, "Cannot read file '%s': %s", path.c_str(), std::strerror(err));
        }
        if (n == 0) {
            break;
        }
        if (content.size() + static_cast<size_t>(n) > maxSize) {
            ::close(fd);
            throw Zef::ZefException(ZefFailure, "Cannot read file '%s': larger than %llu bytes (ZEF_VALIDATOR_MAX_FILE_SIZE)",
                                    path.c_str(), static_cast<unsigned long long>(maxSize));
        }
        content.append(block.data(), static_cast<size_t>(n));
    }
    ::close(fd);
    return content;
}

// Adds a model file to the run. The log must never be written into a file
// the run reads, so the logger is told about each one as soon as it is known.
void addModelFile(std::list<std::string>& files, const std::string& path) {
    files.push_back(path);
    Zef::LoggingWrapper::instance()->refuse_file(path);
}

std::string logFileName() { return Zef::LoggingWrapper::instance()->get_fname(); }

} // namespace

void initLoggingWrapper() {
    std::string name;
    const char* fname = std::getenv("ZEF_VALIDATOR_LOGGING_FNAME");
    const char* tmpdir = std::getenv("TMPDIR");
    const char* user = std::getenv("USER");
    if (fname != nullptr) {
        name = fname;
    } else if (tmpdir != nullptr) {
        // The file name keeps its leading slash when joined to the folder, so
        // the name holds a doubled separator; scripts that look for the log
        // depend on this exact form.
        std::string dir = tmpdir;
        if (dir.empty() || dir.back() != '/') {
            dir += '/';
        }
        name = dir + "/zef_model_validator_" + (user != nullptr ? user : "") + ".log";
    } else {
        name = std::string("/tmp/zef_model_validator_") + (user != nullptr ? user : "user") + ".log";
    }

    Zef::LoggingWrapper* logger = Zef::LoggingWrapper::instance();
    logger->set_fname(name);
    const char* level = std::getenv("ZEF_VALIDATOR_LOGGING_LEVEL");
    logger->set_level(level != nullptr ? static_cast<unsigned int>(std::strtol(level, nullptr, 10)) : 8u);
}

void displayHelp() {
    std::string text;
    text += "Usage: zef_model_validator [options] file..\n";
    text += "Options:\n";
    text += "  -h --help                      Display this information\n";
    text += "  -v --version                   Display version information\n";
    text += "  -d --directory <directory>     Specify directory of model files\n";
    text += "  -c --config file               Specify file containing model files\n";
    text += "  -p --plugins <semicolon-separated list of paths to libraries>     Specify libraries for "
            "validating dependenciesScripts contents\n";
    text += "  -m --mainroot <root MOC>       specify the main root MOC\n";
    text += "  -q --quiet                     Do not output anything\n";
    text += "\n";
    text += "Arguments without key are treated as input files.\n";
    std::fputs(text.c_str(), stdout);
}

void displayVersion() { printLine(version); }

bool isValid(const char* path, bool wantFile) {
    if (path == nullptr || *path == '\0') {
        return false;
    }
    struct stat st;
    if (::stat(path, &st) != 0) {
        return false;
    }
    bool kindOk = wantFile ? S_ISREG(st.st_mode) : S_ISDIR(st.st_mode);
    return kindOk && ::access(path, R_OK) == 0;
}

bool isXml(const char* path) {
    std::string p = path != nullptr ? path : "";
    std::string::size_type slash = p.rfind('/');
    std::string last = slash == std::string::npos ? p : p.substr(slash + 1);
    std::string::size_type dot = last.rfind('.');
    return dot != std::string::npos && last.compare(dot + 1, std::string::npos, "xml") == 0;
}

bool getFileList(const char* dir, std::list<std::string>& files) {
    if (!isValid(dir, false)) {
        printLine(std::string("getFileList invalid path: ") + dir);
        return false;
    }
    DIR* d = ::opendir(dir);
    if (d == nullptr) {
        printLine(std::string("getFileList invalid path: ") + dir);
        return false;
    }
    std::vector<std::string> names;
    while (struct dirent* entry = ::readdir(d)) {
        names.emplace_back(entry->d_name);
    }
    ::closedir(d);
    // Sorted byte-wise, so the same folder gives the same run on every file
    // system.
    std::sort(names.begin(), names.end());

    printLine(std::string("getFileList opening path:") + dir);
    for (const std::string& name : names) {
        std::string path = std::string(dir) + "/" + name;
        if (isValid(path.c_str(), true) && isXml(path.c_str())) {
            addModelFile(files, path);
        }
    }
    return true;
}

int getFileContents(const std::string& listFile, std::list<std::string>& files) {
    std::string content = readRegularFile(listFile);
    std::string::size_type begin = 0;
    while (begin <= content.size()) {
        std::string::size_type end = content.find('\n', begin);
        if (end == std::string::npos) {
            end = content.size();
        }
        std::string path = Poco::trim(content.substr(begin, end - begin));
        begin = end + 1;
        if (path.empty()) {
            continue;
        }
        if (!isValid(path.c_str(), true)) {
            ZEF_LOG_AND_TRACE(ZEF_LOG_LEVEL_ERROR, "Parse Error on (%s)", path.c_str());
            return -1;
        }
        addModelFile(files, path);
    }
    return 0;
}

namespace {

// Outcome of reading the options: go on with the run, or end it at once
// with the given exit code.
struct OptionsResult {
    bool endRun = false;
    int exitCode = 0;
};

struct RunOptions {
    std::list<std::string> modelFiles;
    std::string mainRootName;
    bool quiet = false;
};

OptionsResult readOptions(int argc, char** argv, RunOptions& run) {
    int opt;
    while ((opt = getopt_long(argc, argv, kValidatorShortOptions, validatorLongOptions(), nullptr)) != -1) {
        switch (opt) {
        case 'h':
            displayHelp();
            return {true, 0};
        case 'v':
            displayVersion();
            return {true, 0};
        case 'c':
            // Kept on purpose: a lone "-cfile" or "--config=file" with
            // nothing else on the line ends the run without a word.
            if (argc <= 2) {
                return {true, -1};
            }
            getFileContents(optarg, run.modelFiles);
            break;
        case 'd':
            if (!isValid(optarg, false)) {
                printLine(std::string("Directory \"") + optarg + "\" is not valid.");
                return {true, -1};
            }
            getFileList(optarg, run.modelFiles);
            break;
        case 'p':
            if (!loadLibraries(optarg)) {
                return {true, -1};
            }
            break;
        case 'm':
            run.mainRootName = optarg;
            break;
        case 'q':
            run.quiet = true;
            break;
        case ReportOptions::ListRules:
            printRuleList(stdout);
            return {true, 0};
        case '?':
            return {true, -1};
        default:
            break;
        }
    }
    return {};
}

int checkPositionalFiles(int argc, char** argv, RunOptions& run) {
    for (int i = optind; i < argc; ++i) {
        const char* arg = argv[i];
        if (!isValid(arg, true)) {
            printLine(std::string("File \"") + arg + "\" does not exist.");
            return -1;
        }
        if (!isXml(arg)) {
            printLine(std::string("File \"") + arg + "\" is not an XML file.");
            return -1;
        }
        addModelFile(run.modelFiles, arg);
    }
    if (run.modelFiles.empty()) {
        printLine("No model files specified.");
        return -1;
    }
    return 0;
}

int printSummary(ModelRepositoryService& service, bool quiet) {
    int exitCode = 0;
    if (!quiet) {
        printLine("Summary: ");
    }
    const std::list<std::string>& messages = service.getModelRepository()->getMessages();
    if (messages.empty()) {
        printLine("    Model seems valid, for more info see the log: '" + logFileName() + "'.");
        return exitCode;
    }
    for (const std::string& message : messages) {
        if (message.compare(0, 5, "ERROR") == 0) {
            printLine("    " + message);
            exitCode = -1;
        } else if (!quiet) {
            printLine("    " + message);
        }
    }
    return exitCode;
}

int run(int argc, char** argv, ReportSession& report) {
    initLoggingWrapper();
    // Every file named on the command line (model, list or plug-in) is kept
    // out of the log before anything is logged; files named in lists and
    // folders follow as they are found.
    for (int i = 1; i < argc; ++i) {
        if (isValid(argv[i], true)) {
            Zef::LoggingWrapper::instance()->refuse_file(argv[i]);
        }
    }
    if (!report.readOptions(argc, argv, kValidatorShortOptions, validatorLongOptions())) {
        return -1;
    }

    RunOptions options;
    OptionsResult parsed = readOptions(argc, argv, options);
    if (parsed.endRun) {
        return parsed.exitCode;
    }
    if (checkPositionalFiles(argc, argv, options) != 0) {
        closeLibraries();
        return -1;
    }

    if (!options.quiet) {
        printLine("File list: ");
        for (const std::string& file : options.modelFiles) {
            printLine("\t" + file);
        }
    }

    int exitCode = 0;
    {
        ModelRepositoryService service(true);
        ReportSession::Load load(report, options.modelFiles, *service.getModelRepository());
        service.setModelFiles(options.modelFiles);
        service.setMainRootName(options.mainRootName);
        ZefReturnT rc = service.start();
        load.done(rc == ZefOk);
        if (rc != ZefOk) {
            printLine("Failed to load model files. Got return code " + std::to_string(rc));
        }
        exitCode = printSummary(service, options.quiet);

        // The plug-ins check the model the repository compiled; a failing
        // one decides the exit status whatever the summary found.
        const ZefOamSpiModelRepository_4* modelIf4 = service.getModelRepository()->getIf4();
        const auto recordPlugin = [&report](const char* name, const char* version, bool passed, const char* result) {
            report.recordPlugin(name, version, passed, result);
        };
        if (modelIf4 != nullptr && haveStaticValidators() && !runStaticValidators(modelIf4, options.quiet, recordPlugin)) {
            exitCode = -9;
        }

        if (!options.quiet) {
            printLine("!See '" + logFileName() + "' for more info.");
        }
        closeLibraries();
    }
    return exitCode;
}

} // namespace

int main(int argc, char** argv) {
    // Under a file size limit the kernel ends a process that writes past it
    // with SIGXFSZ. Ignored, the write fails with EFBIG instead: the log
    // writer reports it and goes on, and the run ends with its own status.
    std::signal(SIGXFSZ, SIG_IGN);
    ReportSession report("zef_model_validator", ZEF_VALIDATOR_RELEASE);
    int exitCode;
    try {
        exitCode = run(argc, argv, report);
    } catch (const std::exception& e) {
        // Whatever escapes the run ends it with one readable line, never
        // with an abnormal end of the process.
        std::fflush(stdout);
        std::fprintf(stderr, "zef_model_validator: %s\n", e.what());
        closeLibraries();
        exitCode = -1;
    } catch (...) {
        std::fflush(stdout);
        std::fprintf(stderr, "zef_model_validator: unexpected error\n");
        closeLibraries();
        exitCode = -1;
    }
    exitCode = report.finish(exitCode);
    std::fflush(stdout);
    Zef::LoggingWrapper::instance()->close();
    return exitCode;
}
