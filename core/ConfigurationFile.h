#ifndef ZEF_CONFIGURATION_FILE_H
#define ZEF_CONFIGURATION_FILE_H

#include <istream>
#include <map>
#include <string>

namespace Zef {

/// The configuration of a framework component: named sections of
/// `key = value` settings, read from a plain text file such as
///
///     # Model repository of the management framework
///     [ModelRepository]
///     modelSpecFile = /etc/zef/model_files.txt
///     mainRootName  = ManagedElement
///
/// Rules of the format:
/// - A line is a section header `[Name]`, a setting `key = value`, a
///   comment (first non-blank character '#' or ';') or blank.
/// - Blanks around names, keys and values are ignored; a value is
///   everything after the first '=' up to the end of the line, so it may
///   itself contain '=', '#', ';' and inner blanks. There is no quoting and
///   no line continuation; a value may be empty.
/// - Section names and keys are case-sensitive. A section may appear more
///   than once (its settings are merged); a key may be set only once per
///   section. Every setting belongs to the section above it, so a file
///   starts with a section header (after any comments).
/// - Lines may end with "\r\n"; a leading UTF-8 byte order mark is skipped.
class ConfigurationFile {
public:
    /// No settings: every lookup gives its default value.
    ConfigurationFile() = default;
    /// Reads the file `path`; throws as load() does.
    explicit ConfigurationFile(const std::string& path);

    /// Replaces the settings by those of the file `path`.
    /// Throws ZefException "Configuration file '<path>' does not exist.",
    /// "... is not a regular file." or "... is not readable." when the file
    /// cannot be read, and "<path>:<line>: <problem>" for the first malformed
    /// line. On any error the settings held before stay as they were.
    void load(const std::string& path);

    /// Replaces the settings by those read from `in`, with the rules and
    /// errors of load(); `sourceName` stands for the file name in error texts.
    void read(std::istream& in, const std::string& sourceName);

    /// True when the file had a header of that section.
    bool hasSection(const std::string& section) const;
    /// True when the section sets the key (also to an empty value).
    bool hasValue(const std::string& section, const std::string& key) const;
    /// The value of the key in the section, or `defaultValue` when it is not set.
    std::string getValue(const std::string& section, const std::string& key,
                         const std::string& defaultValue = std::string()) const;

    /// The name the settings were read from; empty when none were read.
    const std::string& getFileName() const { return _fileName; }

private:
    /// One setting and the line that set it, so that a second setting of the
    /// same key can point at the first.
    struct Setting {
        std::string value;
        unsigned int line;
    };
    typedef std::map<std::string, Setting> Section;
    typedef std::map<std::string, Section> SectionMap;

    std::string _fileName;
    SectionMap _sections;
};

} // namespace Zef

#endif // ZEF_CONFIGURATION_FILE_H
