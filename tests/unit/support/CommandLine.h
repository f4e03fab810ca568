#ifndef ZEF_TEST_COMMAND_LINE_H
#define ZEF_TEST_COMMAND_LINE_H

// A command line for the option readers: owns its words and hands out the
// argc/argv pair getopt_long works on.

#include <getopt.h>

#include <string>
#include <vector>

#include "CommandLineOptions.h"

namespace ZefTest {

class CommandLine {
public:
    CommandLine(std::initializer_list<std::string> words) : _words(words) {
        _words.insert(_words.begin(), "zef_model_validator");
        for (std::string& word : _words) {
            _argv.push_back(&word[0]);
        }
        _argv.push_back(nullptr);
    }

    int argc() const { return static_cast<int>(_words.size()); }
    char** argv() { return _argv.data(); }
    /// The words as argv holds them now, the program name first.
    std::vector<std::string> words() const {
        std::vector<std::string> result;
        for (char* word : _argv) {
            if (word != nullptr) {
                result.emplace_back(word);
            }
        }
        return result;
    }

    /// The short options and the long-option table of the validator.
    static const char* shortOptions() { return kValidatorShortOptions; }
    static const struct option* longOptions() { return validatorLongOptions(); }

private:
    std::vector<std::string> _words;
    std::vector<char*> _argv;
};

} // namespace ZefTest

#endif // ZEF_TEST_COMMAND_LINE_H
