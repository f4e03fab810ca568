#include "ReportOptions.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <vector>

const struct option ReportOptions::entries[4] = {
    {"list-rules", no_argument, nullptr, ListRules},
    {"report-format", required_argument, nullptr, ReportFormat},
    {"report-file", required_argument, nullptr, ReportFile},
    {"strict", optional_argument, nullptr, Strict},
};

const char* ReportOptions::formatName(Format format) {
    switch (format) {
    case Format::Json:
        return "json";
    case Format::Sarif:
        return "sarif";
    case Format::Junit:
        return "junit";
    case Format::None:
        break;
    }
    return "";
}

std::string ReportOptions::read(int argc, char** argv, const char* shortOptions, const struct option* longOptions) {
    std::string formatText;
    bool formatGiven = false;
    bool fileGiven = false;
    bool endsEarly = false; // -h, -v or --list-rules: no run, so no report
    std::string problem;

    // getopt_long reorders the arguments it is given, and after a missing
    // argument not the way the second pass would: it reads a copy.
    std::vector<char*> arguments(argv, argv + argc);
    arguments.push_back(nullptr);
    const int reportErrors = opterr;
    opterr = 0;
    optind = 0;
    int opt;
    while ((opt = getopt_long(argc, arguments.data(), shortOptions, longOptions, nullptr)) != -1) {
        switch (opt) {
        case 'h':
        case 'v':
        case ListRules:
            endsEarly = true;
            break;
        case ReportFormat:
            formatGiven = true;
            formatText = optarg;
            break;
        case ReportFile:
            fileGiven = true;
            _file = optarg;
            break;
        case Strict:
            if (optarg == nullptr) {
                _strictness = Strictness::Errors;
            } else if (std::strcmp(optarg, "warnings") == 0) {
                _strictness = Strictness::Warnings;
            } else if (problem.empty()) {
                problem = std::string("unknown strictness '") + optarg + "': use --strict or --strict=warnings";
            }
            break;
        default:
            break;
        }
    }
    opterr = reportErrors;
    // The pass that acts on the options starts again from the beginning.
    optind = 0;

    if (!problem.empty()) {
        return problem;
    }
    if (formatGiven) {
        if (formatText == "json") {
            _format = Format::Json;
        } else if (formatText == "sarif") {
            _format = Format::Sarif;
        } else if (formatText == "junit") {
            _format = Format::Junit;
        } else {
            return "unknown report format '" + formatText + "': use json, sarif or junit";
        }
        if (!fileGiven) {
            return "--report-format needs --report-file";
        }
    } else if (fileGiven) {
        // A report file alone asks for the format every tool reads.
        _format = Format::Json;
    }
    if (!wantsReport()) {
        return std::string();
    }
    if (endsEarly) {
        return "--report-format and --report-file cannot be combined with -h, -v or --list-rules";
    }
    return checkWritable(_file);
}

std::string ReportOptions::checkWritable(const std::string& path) {
    const std::string what = "cannot write the report file '" + path + "': ";
    if (path.empty()) {
        return what + "the name is empty";
    }
    struct stat st;
    const bool existed = ::stat(path.c_str(), &st) == 0;
    if (existed && S_ISDIR(st.st_mode)) {
        return what + std::strerror(EISDIR);
    }
    // Opened without truncating, so an existing file keeps its content
    // until the report replaces it at the end of the run; without blocking,
    // so a pipe without a reader cannot stall the check.
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_NONBLOCK | O_CLOEXEC, 0644);
    if (fd < 0) {
        if (errno == ENXIO) {
            return std::string(); // a pipe that nobody reads yet
        }
        return what + std::strerror(errno);
    }
    ::close(fd);
    if (!existed) {
        ::unlink(path.c_str());
    }
    return std::string();
}
