#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "CommandLine.h"
#include "ReportSession.h"
#include "ReportTestSupport.h"

using ZefTest::CommandLine;

namespace {

class ReportSessionTest : public ZefTest::ReportTest {
protected:
    ReportSession session{"zef_model_validator", "0.1.0"};

    bool readOptions(CommandLine line) {
        return session.readOptions(line.argc(), line.argv(), CommandLine::shortOptions(), CommandLine::longOptions());
    }

    /// Reads the files as ReportTest::load does, through a Load of the session.
    void loadInto(const std::list<std::string>& files) {
        ReportSession::Load load(session, files, repository);
        bool completed = true;
        for (const std::string& file : files) {
            if (parser.parse(file) != 0) {
                completed = false;
                break;
            }
        }
        if (completed) {
            repository.compileModel();
            repository.validateModel();
            load.done(true);
        }
    }

    std::string content(const std::string& path) {
        std::ifstream in(path);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }

    /// A file with a warning only (a trimmed name) and no error.
    std::string warningOnlyModel() {
        return modelFile("w.xml", "<models><mim name=\"W\" version=\"1.0\" namespace=\"urn:w\" namespacePrefix=\"w\">"
                                  "<class name=\"Top \"><root/></class></mim></models>");
    }
};

TEST_F(ReportSessionTest, WithoutItsOptionsTheExitCodeStays) {
    ASSERT_TRUE(readOptions({"a.xml"}));
    EXPECT_FALSE(session.isActive());
    loadInto({warningOnlyModel()});
    EXPECT_EQ(0, session.finish(0));
    EXPECT_EQ(-1, session.finish(-1));
}

TEST_F(ReportSessionTest, StrictFailsARunWhoseLoadFailedEvenWithoutAnError) {
    ASSERT_TRUE(readOptions({"--strict"}));
    loadInto({modelFile("broken.xml", "<models>")});
    EXPECT_EQ(-1, session.finish(0));
}

TEST_F(ReportSessionTest, StrictLetsWarningsPassAndStrictWarningsDoesNot) {
    ASSERT_TRUE(readOptions({"--strict"}));
    loadInto({warningOnlyModel()});
    EXPECT_EQ(0, session.finish(0));

    ReportSession strictWarnings("zef_model_validator", "0.1.0");
    CommandLine line{"--strict=warnings"};
    ASSERT_TRUE(strictWarnings.readOptions(line.argc(), line.argv(), CommandLine::shortOptions(),
                                           CommandLine::longOptions()));
    {
        ReportSession::Load load(strictWarnings, {}, repository);
        load.done(true);
    }
    EXPECT_EQ(-1, strictWarnings.finish(0));
}

TEST_F(ReportSessionTest, StrictKeepsTheStatusOfAFailedPlugin) {
    ASSERT_TRUE(readOptions({"--strict=warnings"}));
    loadInto({warningOnlyModel()});
    EXPECT_EQ(-9, session.finish(-9));
}

TEST_F(ReportSessionTest, WritesTheReportWithTheStatusTheRunEndsWith) {
    const std::string file = scratch.file("report.json");
    ASSERT_TRUE(readOptions({"--report-file=" + file, "--strict=warnings"}));
    loadInto({warningOnlyModel()});
    EXPECT_EQ(-1, session.finish(0));
    const std::string json = content(file);
    EXPECT_NE(std::string::npos, json.find("\"exitStatus\": 255,")) << json;
    EXPECT_NE(std::string::npos, json.find("\"ruleId\": \"attribute-value-trimmed\"")) << json;
}

TEST_F(ReportSessionTest, ABadOptionIsSaidOnStandardError) {
    testing::internal::CaptureStderr();
    EXPECT_FALSE(readOptions({"--report-format=pdf", "--report-file=x"}));
    EXPECT_EQ("zef_model_validator: unknown report format 'pdf': use json, sarif or junit\n",
              testing::internal::GetCapturedStderr());
}

TEST_F(ReportSessionTest, AModelFileIsNeverOverwrittenByTheReport) {
    const std::string model = warningOnlyModel();
    const std::string before = content(model);
    ASSERT_TRUE(readOptions({"--report-format=json", "--report-file=" + model}));
    loadInto({model});
    testing::internal::CaptureStderr();
    EXPECT_EQ(-1, session.finish(0));
    EXPECT_EQ("zef_model_validator: the report file '" + model + "' is the model file '" + model +
                  "': no report written\n",
              testing::internal::GetCapturedStderr());
    EXPECT_EQ(before, content(model));
}

} // namespace
