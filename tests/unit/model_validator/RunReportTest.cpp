#include <gtest/gtest.h>

#include "ReportTestSupport.h"

using ZefModelRepositoryService::FindingSeverity;

namespace {

class RunReportTest : public ZefTest::ReportTest {};

TEST_F(RunReportTest, TakesEveryFindingWithItsRulePlaceAndKey) {
    const std::string a = smallModel();
    load({a});
    ASSERT_EQ(2u, report.findings().size());
    const RunReport::Finding& warning = report.findings()[0];
    EXPECT_EQ(FindingSeverity::Warning, warning.severity);
    EXPECT_EQ("ModelParser", warning.reporter);
    EXPECT_EQ("attribute-value-trimmed", warning.ruleId);
    EXPECT_EQ("Node attribute value contains leading and/or trailing white space, trimming \"Lost \" to \"Lost\".",
              warning.message);
    EXPECT_EQ(a, warning.file);
    EXPECT_EQ("", warning.key);
    const RunReport::Finding& error = report.findings()[1];
    EXPECT_EQ(FindingSeverity::Error, error.severity);
    EXPECT_EQ("ModelRepository", error.reporter);
    EXPECT_EQ("moc-no-parent", error.ruleId);
    EXPECT_EQ("Moc (A~1.0~Lost) has no parent.", error.message);
    EXPECT_EQ(a, error.file);
    EXPECT_EQ("A~1.0~Lost", error.key);
    EXPECT_EQ(1u, report.count(FindingSeverity::Error));
    EXPECT_EQ(1u, report.count(FindingSeverity::Warning));
    EXPECT_FALSE(report.loadFailed());
}

TEST_F(RunReportTest, TellsWhichFilesWereReadWhichFailedAndWhichWereNotRead) {
    const std::string a = smallModel();
    const std::string broken = modelFile("broken.xml", "<models><mim name=\"B\"");
    const std::string c = smallModel("c.xml");
    load({a, broken, c});
    ASSERT_EQ(3u, report.files().size());
    EXPECT_EQ(a, report.files()[0].path);
    EXPECT_EQ(RunReport::FileStatus::Read, report.files()[0].status);
    EXPECT_EQ(broken, report.files()[1].path);
    EXPECT_EQ(RunReport::FileStatus::Failed, report.files()[1].status);
    EXPECT_EQ(c, report.files()[2].path);
    EXPECT_EQ(RunReport::FileStatus::NotRead, report.files()[2].status);
    EXPECT_TRUE(report.loadFailed());
}

TEST_F(RunReportTest, APluginThatFailsIsAnErrorAndOneThatInformsANote) {
    report.recordPlugin("Silent", "0.1", true, "");
    report.recordPlugin("Informing", "1.2", true, "Two classes checked.");
    report.recordPlugin("Rejecting", "2.3", false, "Class Root lacks an owner.");
    ASSERT_EQ(3u, report.plugins().size());
    EXPECT_EQ("Silent", report.plugins()[0].name);
    EXPECT_TRUE(report.plugins()[0].passed);
    EXPECT_EQ("Class Root lacks an owner.", report.plugins()[2].result);
    EXPECT_FALSE(report.plugins()[2].passed);
    ASSERT_EQ(2u, report.findings().size());
    EXPECT_EQ(FindingSeverity::Note, report.findings()[0].severity);
    EXPECT_EQ("plugin-validation-information", report.findings()[0].ruleId);
    EXPECT_EQ("Informing", report.findings()[0].reporter);
    EXPECT_EQ("Informing(1.2) - Validation of model succeeded, but with information: Two classes checked.",
              report.findings()[0].message);
    EXPECT_EQ(FindingSeverity::Error, report.findings()[1].severity);
    EXPECT_EQ("plugin-validation-failed", report.findings()[1].ruleId);
    EXPECT_EQ("Rejecting(2.3) - Validation of model failed: Class Root lacks an owner.", report.findings()[1].message);
    EXPECT_EQ("", report.findings()[1].file);
}

} // namespace
