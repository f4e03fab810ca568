#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "JunitReportWriter.h"
#include "ReportTestSupport.h"

namespace {

class JunitReportWriterTest : public ZefTest::ReportTest {
protected:
    std::string written() {
        std::ostringstream out;
        JunitReportWriter().write(report, out);
        return out.str();
    }
};

TEST_F(JunitReportWriterTest, OneCasePerModelFileFailedByItsErrorsWithItsWarningsAsOutput) {
    const std::string a = smallModel();
    const std::string b = modelFile("b.xml", "<models><mim name=\"B\" version=\"1.0\" namespace=\"urn:b\" "
                                             "namespacePrefix=\"b\"><class name=\"Top\"><root/></class></mim></models>");
    load({a, b});
    report.setExitStatus(255);
    EXPECT_EQ("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<testsuites name=\"zef_model_validator\" tests=\"2\" failures=\"1\" errors=\"0\" skipped=\"0\">\n"
              "  <testsuite name=\"model files\" tests=\"2\" failures=\"1\" errors=\"0\" skipped=\"0\">\n"
              "    <properties>\n"
              "      <property name=\"exitStatus\" value=\"255\"/>\n"
              "    </properties>\n"
              "    <testcase classname=\"model files\" name=\"" + a + "\" file=\"" + a + "\">\n"
              "      <failure message=\"1 error\" type=\"error\">" + a + ":4:3: error moc-no-parent: ModelRepository: "
              "Moc (A~1.0~Lost) has no parent.\n"
              "</failure>\n"
              "      <system-out>" + a + ":4:3: warning attribute-value-trimmed: ModelParser: Node attribute value "
              "contains leading and/or trailing white space, trimming &quot;Lost &quot; to &quot;Lost&quot;.\n"
              "</system-out>\n"
              "    </testcase>\n"
              "    <testcase classname=\"model files\" name=\"" + b + "\" file=\"" + b + "\"/>\n"
              "  </testsuite>\n"
              "</testsuites>\n",
              written());
}

TEST_F(JunitReportWriterTest, AFileThatFailedToLoadFailsAndTheFilesAfterItAreSkipped) {
    const std::string broken = modelFile("broken.xml", "<models>");
    const std::string after = smallModel("after.xml");
    load({broken, after});
    const std::string junit = written();
    EXPECT_NE(std::string::npos,
              junit.find("<testcase classname=\"model files\" name=\"" + broken + "\" file=\"" + broken + "\">\n"
                         "      <failure message=\"the model file failed to load\" type=\"error\">" + broken +
                         ": the model file failed to load\n</failure>\n"))
        << junit;
    EXPECT_NE(std::string::npos,
              junit.find("<testcase classname=\"model files\" name=\"" + after + "\" file=\"" + after + "\">\n"
                         "      <skipped message=\"not read: an earlier model file failed to load\"/>\n"))
        << junit;
    EXPECT_NE(std::string::npos, junit.find("tests=\"2\" failures=\"1\" errors=\"0\" skipped=\"1\"")) << junit;
}

TEST_F(JunitReportWriterTest, EachPluginIsACaseOfItsOwnSuite) {
    report.recordPlugin("Informing", "1.2", true, "Two classes checked.");
    report.recordPlugin("Rejecting", "2.3", false, "Class <Root> lacks an owner.");
    const std::string junit = written();
    EXPECT_NE(std::string::npos,
              junit.find("  <testsuite name=\"static validators\" tests=\"2\" failures=\"1\" errors=\"0\" skipped=\"0\">\n"
                         "    <testcase classname=\"static validators\" name=\"Informing(1.2)\">\n"
                         "      <system-out>Two classes checked.\n</system-out>\n"
                         "    </testcase>\n"
                         "    <testcase classname=\"static validators\" name=\"Rejecting(2.3)\">\n"
                         "      <failure message=\"Validation of model failed\" type=\"error\">Class &lt;Root&gt; lacks an "
                         "owner.\n</failure>\n"
                         "    </testcase>\n"
                         "  </testsuite>\n"))
        << junit;
}

TEST_F(JunitReportWriterTest, ErrorsAboutNoFileFailACaseOfTheWholeModel) {
    repository.validateModel(); // no MOM at all: a warning about the whole model
    report.recordLoad({}, repository, true);
    const std::string junit = written();
    EXPECT_NE(std::string::npos,
              junit.find("    <testcase classname=\"model files\" name=\"(model)\">\n"
                         "      <system-out>warning empty-model: ModelRepository: Empty model compiled.\n</system-out>\n"))
        << junit;
}

} // namespace
