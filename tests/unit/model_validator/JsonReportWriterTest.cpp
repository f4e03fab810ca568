#include <gtest/gtest.h>

#include <sstream>

#include "JsonReportWriter.h"
#include "ReportTestSupport.h"

namespace {

class JsonReportWriterTest : public ZefTest::ReportTest {
protected:
    std::string written() {
        std::ostringstream out;
        JsonReportWriter().write(report, out);
        return out.str();
    }
};

TEST_F(JsonReportWriterTest, WritesTheRunTheFilesEveryFindingAndThePlugins) {
    const std::string a = smallModel();
    load({a});
    report.recordPlugin("Rejecting", "2.3", false, "Class Root lacks an owner.");
    report.setExitStatus(247);
    EXPECT_EQ("{\n"
              "  \"schemaVersion\": 1,\n"
              "  \"tool\": {\n"
              "    \"name\": \"zef_model_validator\",\n"
              "    \"version\": \"0.1.0\"\n"
              "  },\n"
              "  \"exitStatus\": 247,\n"
              "  \"files\": [\n"
              "    {\n"
              "      \"path\": \"" + a + "\",\n"
              "      \"status\": \"read\"\n"
              "    }\n"
              "  ],\n"
              "  \"findings\": [\n"
              "    {\n"
              "      \"severity\": \"warning\",\n"
              "      \"reporter\": \"ModelParser\",\n"
              "      \"ruleId\": \"attribute-value-trimmed\",\n"
              "      \"message\": \"Node attribute value contains leading and/or trailing white space, trimming "
              "\\\"Lost \\\" to \\\"Lost\\\".\",\n"
              "      \"file\": \"" + a + "\",\n"
              "      \"line\": 4,\n"
              "      \"column\": 3,\n"
              "      \"key\": null\n"
              "    },\n"
              "    {\n"
              "      \"severity\": \"error\",\n"
              "      \"reporter\": \"ModelRepository\",\n"
              "      \"ruleId\": \"moc-no-parent\",\n"
              "      \"message\": \"Moc (A~1.0~Lost) has no parent.\",\n"
              "      \"file\": \"" + a + "\",\n"
              "      \"line\": 4,\n"
              "      \"column\": 3,\n"
              "      \"key\": \"A~1.0~Lost\"\n"
              "    },\n"
              "    {\n"
              "      \"severity\": \"error\",\n"
              "      \"reporter\": \"Rejecting\",\n"
              "      \"ruleId\": \"plugin-validation-failed\",\n"
              "      \"message\": \"Rejecting(2.3) - Validation of model failed: Class Root lacks an owner.\",\n"
              "      \"file\": null,\n"
              "      \"line\": null,\n"
              "      \"column\": null,\n"
              "      \"key\": null\n"
              "    }\n"
              "  ],\n"
              "  \"plugins\": [\n"
              "    {\n"
              "      \"name\": \"Rejecting\",\n"
              "      \"version\": \"2.3\",\n"
              "      \"passed\": false,\n"
              "      \"result\": \"Class Root lacks an owner.\"\n"
              "    }\n"
              "  ],\n"
              "  \"summary\": {\n"
              "    \"errors\": 2,\n"
              "    \"warnings\": 1,\n"
              "    \"notes\": 0\n"
              "  }\n"
              "}\n",
              written());
}

TEST_F(JsonReportWriterTest, AValidModelHasNoFindings) {
    const std::string a = modelFile("a.xml", "<models><mim name=\"A\" version=\"1.0\" namespace=\"urn:a\" "
                                             "namespacePrefix=\"a\"><class name=\"Root\"><root/></class></mim></models>");
    load({a});
    const std::string json = written();
    EXPECT_NE(std::string::npos, json.find("  \"findings\": [],\n")) << json;
    EXPECT_NE(std::string::npos, json.find("  \"plugins\": [],\n")) << json;
    EXPECT_NE(std::string::npos, json.find("    \"errors\": 0,\n    \"warnings\": 0,\n")) << json;
}

TEST_F(JsonReportWriterTest, FailedAndUnreadFilesAreNamedSo) {
    const std::string broken = modelFile("broken.xml", "<models>");
    const std::string after = smallModel("after.xml");
    load({broken, after});
    const std::string json = written();
    EXPECT_NE(std::string::npos, json.find("\"path\": \"" + broken + "\",\n      \"status\": \"failed\"")) << json;
    EXPECT_NE(std::string::npos, json.find("\"path\": \"" + after + "\",\n      \"status\": \"not-read\"")) << json;
}

} // namespace
