#include "ConfigurationFile.h"

#include <fstream>
#include <utility>

#include <Poco/Exception.h>
#include <Poco/File.h>
#include <Poco/String.h>

#include "ZefException.h"

namespace Zef {

namespace {

const char kUtf8ByteOrderMark[] = "\xEF\xBB\xBF";

bool isComment(const std::string& line) { return line[0] == '#' || line[0] == ';'; }

// Every problem of a line names the source and the line, the way compilers
// do, so that an editor can jump to it.
[[noreturn]] void throwLineError(const std::string& source, unsigned int line, const std::string& problem) {
    throw ZefException(source + ":" + std::to_string(line) + ": " + problem);
}

[[noreturn]] void throwFileError(const std::string& path, const char* problem) {
    throw ZefException("Configuration file '" + path + "' " + problem);
}

} // namespace

ConfigurationFile::ConfigurationFile(const std::string& path) { load(path); }

void ConfigurationFile::load(const std::string& path) {
    // Checked before opening: a directory opens as a stream that reads
    // nothing, and a fifo would block the framework's start-up.
    try {
        Poco::File file(path);
        if (path.empty() || !file.exists()) {
            throwFileError(path, "does not exist.");
        }
        if (!file.isFile()) {
            throwFileError(path, "is not a regular file.");
        }
        if (!file.canRead()) {
            throwFileError(path, "is not readable.");
        }
    } catch (const Poco::Exception&) {
        // The file went away or changed between the checks.
        throwFileError(path, "is not readable.");
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        throwFileError(path, "is not readable.");
    }
    read(in, path);
}

void ConfigurationFile::read(std::istream& in, const std::string& sourceName) {
    SectionMap sections;
    Section* current = nullptr;
    std::string currentName;
    std::string text;
    for (unsigned int number = 1; std::getline(in, text); ++number) {
        if (number == 1 && text.compare(0, sizeof(kUtf8ByteOrderMark) - 1, kUtf8ByteOrderMark) == 0) {
            text.erase(0, sizeof(kUtf8ByteOrderMark) - 1);
        }
        // Trimming also drops the '\r' of a line written with "\r\n".
        const std::string line = Poco::trim(text);
        if (line.empty() || isComment(line)) {
            continue;
        }
        if (line[0] == '[') {
            if (line[line.size() - 1] != ']') {
                throwLineError(sourceName, number, "section header '" + line + "' does not end with ']'");
            }
            const std::string name = Poco::trim(line.substr(1, line.size() - 2));
            if (name.empty()) {
                throwLineError(sourceName, number, "section header '" + line + "' has no name");
            }
            if (name.find_first_of("[]") != std::string::npos) {
                throwLineError(sourceName, number, "section name '" + name + "' contains '[' or ']'");
            }
            currentName = name;
            current = &sections[name];
            continue;
        }
        const std::string::size_type equals = line.find('=');
        if (equals == std::string::npos) {
            throwLineError(sourceName, number,
                           "expected 'key = value', a [section] header or a comment, found '" + line + "'");
        }
        const std::string key = Poco::trim(line.substr(0, equals));
        if (key.empty()) {
            throwLineError(sourceName, number, "setting '" + line + "' has no key before '='");
        }
        if (current == nullptr) {
            throwLineError(sourceName, number, "setting '" + key + "' comes before the first [section] header");
        }
        Section::const_iterator earlier = current->find(key);
        if (earlier != current->end()) {
            throwLineError(sourceName, number,
                           "'" + key + "' is set again in section [" + currentName + "] (first set on line "
                               + std::to_string(earlier->second.line) + ")");
        }
        (*current)[key] = Setting{Poco::trim(line.substr(equals + 1)), number};
    }
    if (in.bad()) {
        throw ZefException("Configuration file '" + sourceName + "' could not be read to its end.");
    }
    _sections.swap(sections);
    _fileName = sourceName;
}

bool ConfigurationFile::hasSection(const std::string& section) const {
    return _sections.find(section) != _sections.end();
}

bool ConfigurationFile::hasValue(const std::string& section, const std::string& key) const {
    SectionMap::const_iterator found = _sections.find(section);
    return found != _sections.end() && found->second.find(key) != found->second.end();
}

std::string ConfigurationFile::getValue(const std::string& section, const std::string& key,
                                        const std::string& defaultValue) const {
    SectionMap::const_iterator found = _sections.find(section);
    if (found == _sections.end()) {
        return defaultValue;
    }
    Section::const_iterator setting = found->second.find(key);
    return setting != found->second.end() ? setting->second.value : defaultValue;
}

} // namespace Zef
