#include <gtest/gtest.h>

#include <sys/stat.h>

#include <fstream>
#include <string>

#include "CommandLine.h"
#include "ReportOptions.h"
#include "ScratchDir.h"

using ZefTest::CommandLine;

namespace {

std::string readOptions(ReportOptions& options, CommandLine& line) {
    return options.read(line.argc(), line.argv(), CommandLine::shortOptions(), CommandLine::longOptions());
}

bool exists(const std::string& path) {
    struct stat st;
    return ::stat(path.c_str(), &st) == 0;
}

class ReportOptionsTest : public ::testing::Test {
protected:
    ScratchDir scratch{"report-options"};
};

TEST_F(ReportOptionsTest, WithoutReportOptionsNothingIsAskedFor) {
    CommandLine line{"-q", "a.xml"};
    ReportOptions options;
    EXPECT_EQ("", readOptions(options, line));
    EXPECT_FALSE(options.wantsReport());
    EXPECT_EQ(ReportOptions::Format::None, options.format());
    EXPECT_EQ(ReportOptions::Strictness::Off, options.strictness());
}

TEST_F(ReportOptionsTest, AFormatAndAFileAskForAReport) {
    const std::string file = scratch.file("report.sarif");
    CommandLine line{"--report-format=sarif", "--report-file=" + file, "a.xml"};
    ReportOptions options;
    EXPECT_EQ("", readOptions(options, line));
    EXPECT_TRUE(options.wantsReport());
    EXPECT_EQ(ReportOptions::Format::Sarif, options.format());
    EXPECT_EQ(file, options.file());
    // The check leaves no file behind.
    EXPECT_FALSE(exists(file));
}

TEST_F(ReportOptionsTest, EachFormatIsKnownByItsName) {
    const std::pair<const char*, ReportOptions::Format> formats[] = {
        {"json", ReportOptions::Format::Json},
        {"sarif", ReportOptions::Format::Sarif},
        {"junit", ReportOptions::Format::Junit},
    };
    for (const auto& format : formats) {
        CommandLine line{"--report-format", format.first, "--report-file", scratch.file("r")};
        ReportOptions options;
        EXPECT_EQ("", readOptions(options, line));
        EXPECT_EQ(format.second, options.format());
        EXPECT_EQ(std::string(format.first), ReportOptions::formatName(format.second));
    }
}

TEST_F(ReportOptionsTest, AFileAloneAsksForJson) {
    CommandLine line{"--report-file=" + scratch.file("r.json")};
    ReportOptions options;
    EXPECT_EQ("", readOptions(options, line));
    EXPECT_EQ(ReportOptions::Format::Json, options.format());
}

TEST_F(ReportOptionsTest, AnUnknownFormatIsRefused) {
    CommandLine line{"--report-format=xml", "--report-file=" + scratch.file("r")};
    ReportOptions options;
    EXPECT_EQ("unknown report format 'xml': use json, sarif or junit", readOptions(options, line));
}

TEST_F(ReportOptionsTest, AFormatWithoutAFileIsRefused) {
    CommandLine line{"--report-format=json", "a.xml"};
    ReportOptions options;
    EXPECT_EQ("--report-format needs --report-file", readOptions(options, line));
}

TEST_F(ReportOptionsTest, AReportWithHelpVersionOrTheRuleListIsRefused) {
    for (const char* ending : {"-h", "--help", "-v", "--version", "--list-rules"}) {
        CommandLine line{"--report-format=json", "--report-file=" + scratch.file("r"), ending};
        ReportOptions options;
        EXPECT_EQ("--report-format and --report-file cannot be combined with -h, -v or --list-rules",
                  readOptions(options, line))
            << ending;
    }
}

TEST_F(ReportOptionsTest, AReportFileInAMissingFolderIsRefused) {
    const std::string file = scratch.file("missing/r.json");
    CommandLine line{"--report-file=" + file};
    ReportOptions options;
    EXPECT_EQ("cannot write the report file '" + file + "': No such file or directory", readOptions(options, line));
}

TEST_F(ReportOptionsTest, AFolderAsReportFileIsRefused) {
    CommandLine line{"--report-file=" + scratch.path()};
    ReportOptions options;
    EXPECT_EQ("cannot write the report file '" + scratch.path() + "': Is a directory", readOptions(options, line));
}

TEST_F(ReportOptionsTest, AnExistingReportFileKeepsItsContentUntilTheReportIsWritten) {
    scratch.write("r.json", "old");
    CommandLine line{"--report-file=" + scratch.file("r.json")};
    ReportOptions options;
    EXPECT_EQ("", readOptions(options, line));
    std::ifstream in(scratch.file("r.json"));
    std::string content;
    std::getline(in, content);
    EXPECT_EQ("old", content);
}

TEST_F(ReportOptionsTest, StrictMeansLoadFailuresAndStrictWarningsAlsoWarnings) {
    CommandLine plain{"--strict", "a.xml"};
    ReportOptions errors;
    EXPECT_EQ("", readOptions(errors, plain));
    EXPECT_EQ(ReportOptions::Strictness::Errors, errors.strictness());
    EXPECT_FALSE(errors.wantsReport());

    CommandLine warnings{"--strict=warnings", "a.xml"};
    ReportOptions strictWarnings;
    EXPECT_EQ("", readOptions(strictWarnings, warnings));
    EXPECT_EQ(ReportOptions::Strictness::Warnings, strictWarnings.strictness());
}

TEST_F(ReportOptionsTest, AnUnknownStrictnessIsRefused) {
    CommandLine line{"--strict=errors"};
    ReportOptions options;
    EXPECT_EQ("unknown strictness 'errors': use --strict or --strict=warnings", readOptions(options, line));
}

TEST_F(ReportOptionsTest, TheCommandLineIsLeftAsItWasForThePassThatActsOnIt) {
    // getopt_long would move "-d" before "a.xml" after its missing argument;
    // the pass that acts on the options must see the line as given.
    CommandLine line{"a.xml", "-d"};
    ReportOptions options;
    EXPECT_EQ("", readOptions(options, line));
    EXPECT_EQ((std::vector<std::string>{"zef_model_validator", "a.xml", "-d"}), line.words());
    EXPECT_EQ(0, optind);
}

TEST_F(ReportOptionsTest, UnknownOptionsAreLeftToThePassThatActsOnThem) {
    testing::internal::CaptureStderr();
    CommandLine line{"--bogus", "-x", "a.xml"};
    ReportOptions options;
    EXPECT_EQ("", readOptions(options, line));
    EXPECT_EQ("", testing::internal::GetCapturedStderr());
}

} // namespace
