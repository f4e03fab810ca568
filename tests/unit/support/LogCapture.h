#ifndef ZEF_TEST_LOG_CAPTURE_H
#define ZEF_TEST_LOG_CAPTURE_H

// Points the logging singleton at a fresh file of its own for the lifetime
// of the object, at trace level, so that a test can read back exactly the
// lines written while it ran.

#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "LoggingWrapper.h"
#include "LoggingWrapperTestAccess.h"

namespace ZefTest {

class LogCapture {
public:
    LogCapture()
    {
        static std::atomic<int> counter{0};
        const char* tmp = std::getenv("TMPDIR");
        std::ostringstream name;
        name << (tmp != nullptr && *tmp != '\0' ? tmp : "/tmp") << "/zef_test_log_" << getpid() << "_"
             << counter++ << ".log";
        _fname = name.str();
        std::remove(_fname.c_str());
        Zef::LoggingWrapper* logger = Zef::LoggingWrapper::instance();
        _previousLevel = logger->get_level();
        logger->set_fname(_fname);
        logger->set_level(8);
    }

    ~LogCapture()
    {
        Zef::LoggingWrapper::instance()->set_level(_previousLevel);
        std::remove(_fname.c_str());
    }

    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    /// Every line written so far.
    std::vector<std::string> lines() const
    {
        Zef::LoggingWrapperTestAccess::flush();
        std::vector<std::string> result;
        std::ifstream in(_fname);
        std::string line;
        while (std::getline(in, line)) {
            result.push_back(line);
        }
        return result;
    }

    /// The messages of the log lines of one level word ("ER", "WA", ...),
    /// in order: the text after the time, the level word and the padded
    /// function name.
    std::vector<std::string> messages(const std::string& levelWord) const
    {
        std::vector<std::string> result;
        for (const std::string& line : lines()) {
            // "YYYY-MM-DD hh:mm:ss.mmm LV function<pad to 25> message"
            const size_t levelPos = 24;
            if (line.size() < levelPos + 3 || line.compare(levelPos, 2, levelWord) != 0
                || line[levelPos + 2] != ' ') {
                continue;
            }
            const size_t functionPos = levelPos + 3;
            size_t functionEnd = line.find(' ', functionPos);
            if (functionEnd == std::string::npos) {
                functionEnd = line.size();
            }
            const size_t messagePos = std::max(functionPos + 25, functionEnd) + 1;
            result.push_back(messagePos <= line.size() ? line.substr(messagePos) : std::string());
        }
        return result;
    }

    /// The error messages (level word "ER").
    std::vector<std::string> errors() const { return messages("ER"); }

    /// The messages of the trace lines, in order: the text after
    /// "<file>:<line> - <function padded to 25> ".
    std::vector<std::string> traces() const
    {
        std::vector<std::string> result;
        for (const std::string& line : lines()) {
            const size_t levelPos = 24;
            if (line.size() < levelPos + 3 || line.compare(levelPos, 3, "TR ") != 0) {
                continue;
            }
            const size_t dash = line.find(" - ", levelPos + 3);
            if (dash == std::string::npos) {
                continue;
            }
            const size_t functionPos = dash + 3;
            size_t functionEnd = line.find(' ', functionPos);
            if (functionEnd == std::string::npos) {
                functionEnd = line.size();
            }
            const size_t messagePos = std::max(functionPos + 25, functionEnd) + 1;
            result.push_back(messagePos <= line.size() ? line.substr(messagePos) : std::string());
        }
        return result;
    }

    /// The whole file as one text.
    std::string text() const
    {
        Zef::LoggingWrapperTestAccess::flush();
        std::ifstream in(_fname);
        std::ostringstream content;
        content << in.rdbuf();
        return content.str();
    }

private:
    std::string _fname;
    unsigned int _previousLevel = 6;
};

} // namespace ZefTest

#endif // ZEF_TEST_LOG_CAPTURE_H
