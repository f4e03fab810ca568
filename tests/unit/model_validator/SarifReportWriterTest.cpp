#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "FindingRules.h"
#include "ReportTestSupport.h"
#include "SarifReportWriter.h"

namespace {

class SarifReportWriterTest : public ZefTest::ReportTest {
protected:
    std::string written(const std::string& workingFolder) {
        std::ostringstream out;
        SarifReportWriter(workingFolder).write(report, out);
        return out.str();
    }

    static bool holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }
};

TEST_F(SarifReportWriterTest, NamesTheVersionTheSchemaAndTheToolWithEveryRule) {
    load({smallModel()});
    const std::string sarif = written(scratch.path());
    EXPECT_EQ(0u, sarif.find("{\n  \"$schema\": \"https://json.schemastore.org/sarif-2.1.0.json\",\n"
                             "  \"version\": \"2.1.0\",\n  \"runs\": [\n")) << sarif;
    EXPECT_TRUE(holds(sarif, "\"driver\": {\n          \"name\": \"zef_model_validator\",\n"
                             "          \"version\": \"0.1.0\",\n")) << sarif;
    size_t rules = 0;
    for (size_t at = sarif.find("\"shortDescription\""); at != std::string::npos;
         at = sarif.find("\"shortDescription\"", at + 1)) {
        ++rules;
    }
    EXPECT_EQ(ZefModelRepositoryService::FindingRules::all().size(), rules);
    EXPECT_TRUE(holds(sarif, "\"id\": \"moc-no-parent\",\n"
                             "              \"shortDescription\": {\n"
                             "                \"text\": \"Moc (%s) has no parent.\"\n"
                             "              },\n"
                             "              \"defaultConfiguration\": {\n"
                             "                \"level\": \"error\"\n"))
        << sarif;
}

TEST_F(SarifReportWriterTest, AResultNamesItsRuleLevelMessageAndTheFileRelativeToTheWorkingFolder) {
    load({smallModel()});
    const std::string sarif = written(scratch.path());
    size_t ruleIndex = 0;
    for (const auto& rule : ZefModelRepositoryService::FindingRules::all()) {
        if (std::string(rule.id) == "moc-no-parent") {
            break;
        }
        ++ruleIndex;
    }
    EXPECT_TRUE(holds(sarif, "\"ruleId\": \"moc-no-parent\",\n"
                             "          \"ruleIndex\": " + std::to_string(ruleIndex) + ",\n"
                             "          \"level\": \"error\",\n"
                             "          \"message\": {\n"
                             "            \"text\": \"Moc (A~1.0~Lost) has no parent.\"\n"
                             "          },\n"
                             "          \"locations\": [\n"
                             "            {\n"
                             "              \"physicalLocation\": {\n"
                             "                \"artifactLocation\": {\n"
                             "                  \"uri\": \"a.xml\",\n"
                             "                  \"uriBaseId\": \"SRCROOT\",\n"
                             "                  \"index\": 0\n"
                             "                },\n"
                             "                \"region\": {\n"
                             "                  \"startLine\": 4,\n"
                             "                  \"startColumn\": 3\n"
                             "                }\n"))
        << sarif;
    EXPECT_TRUE(holds(sarif, "\"properties\": {\n"
                             "            \"reporter\": \"ModelRepository\",\n"
                             "            \"identityKey\": \"A~1.0~Lost\"\n"))
        << sarif;
    EXPECT_TRUE(holds(sarif, "\"originalUriBaseIds\": {\n"
                             "        \"SRCROOT\": {\n"
                             "          \"uri\": \"file://" + scratch.path() + "/\"\n"))
        << sarif;
    EXPECT_TRUE(holds(sarif, "\"artifacts\": [\n"
                             "        {\n"
                             "          \"location\": {\n"
                             "            \"uri\": \"a.xml\",\n"
                             "            \"uriBaseId\": \"SRCROOT\"\n"))
        << sarif;
    EXPECT_TRUE(holds(sarif, "\"level\": \"warning\",\n")) << sarif;
}

TEST_F(SarifReportWriterTest, AFileOutsideTheWorkingFolderIsNamedByItsAbsoluteUri) {
    load({smallModel()});
    const std::string sarif = written("/nowhere/else");
    // The scratch folder's path is made of unreserved characters only.
    EXPECT_TRUE(holds(sarif, "\"uri\": \"file://" + scratch.file("a.xml") + "\"")) << sarif;
    EXPECT_FALSE(holds(sarif, "\"uriBaseId\": \"SRCROOT\",\n                  \"index\"")) << sarif;
}

TEST_F(SarifReportWriterTest, TheInvocationTellsTheExitStatusAndWhetherTheLoadCompleted) {
    const std::string broken = modelFile("broken.xml", "<models>");
    load({broken});
    report.setExitStatus(255);
    const std::string sarif = written(scratch.path());
    EXPECT_TRUE(holds(sarif, "\"invocations\": [\n"
                             "        {\n"
                             "          \"executionSuccessful\": false,\n"
                             "          \"exitCode\": 255\n"))
        << sarif;
    EXPECT_TRUE(holds(sarif, "\"results\": []")) << sarif;
}

TEST_F(SarifReportWriterTest, APluginResultHasNoLocation) {
    report.recordPlugin("Rejecting", "2.3", false, "Class Root lacks an owner.");
    const std::string sarif = written(scratch.path());
    EXPECT_TRUE(holds(sarif, "\"ruleId\": \"plugin-validation-failed\",")) << sarif;
    EXPECT_FALSE(holds(sarif, "\"locations\"")) << sarif;
    EXPECT_TRUE(holds(sarif, "\"reporter\": \"Rejecting\"")) << sarif;
}

} // namespace
