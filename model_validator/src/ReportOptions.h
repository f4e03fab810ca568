#ifndef ZEF_REPORT_OPTIONS_H
#define ZEF_REPORT_OPTIONS_H

#include <getopt.h>

#include <string>

/// The long options that ask for a machine-readable report of the run, for a
/// strict exit status and for the list of rules:
///
///     --report-format=json|sarif|junit   --report-file=PATH
///     --strict[=warnings]                 --list-rules
///
/// They have no short forms. They are read in a pass over the whole command
/// line before any option acts, so that a bad report option ends the run
/// before a model file is looked at; the options themselves then act in
/// their turn as before.
class ReportOptions {
public:
    /// The codes getopt_long returns for the options (beyond every
    /// character, so they never clash with a short option).
    enum Code { ListRules = 0x100, ReportFormat, ReportFile, Strict };
    enum class Format { None, Json, Sarif, Junit };
    /// Off; Errors: a model file that failed to load fails the run even
    /// without an error finding; Warnings: so does any warning.
    enum class Strictness { Off, Errors, Warnings };

    /// The entries of the long-option table for these options, one for each
    /// Code in order (no terminating entry).
    static const struct option entries[4];
    static const size_t entryCount = 4;

    /// Reads the report options of the whole command line with
    /// getopt_long(`shortOptions`, `longOptions`), printing nothing (an
    /// unknown option is left to the pass that acts on the options), and
    /// leaves getopt ready to start that pass from the beginning. Returns
    /// the empty text when they are fine, else what is wrong: an unknown
    /// format or strictness, a format without a file, a report file that
    /// cannot be written, or a report asked for together with -h, -v or
    /// --list-rules. The report file is opened to be sure it can be written,
    /// and removed again when it did not exist before.
    std::string read(int argc, char** argv, const char* shortOptions, const struct option* longOptions);

    Format format() const { return _format; }
    const std::string& file() const { return _file; }
    Strictness strictness() const { return _strictness; }
    /// True when a report is to be written.
    bool wantsReport() const { return _format != Format::None; }
    /// "json", "sarif" or "junit" ("" for none).
    static const char* formatName(Format format);

private:
    // The problem with the report file, or "" when it can be written.
    static std::string checkWritable(const std::string& path);

    Format _format = Format::None;
    std::string _file;
    Strictness _strictness = Strictness::Off;
};

#endif // ZEF_REPORT_OPTIONS_H
