#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <list>
#include <string>

#include "LogCapture.h"
#include "ModelRepositoryService.h"

using ZefModelRepositoryService::ModelRepositoryService;

namespace {

const char* const kValidModel =
    "<models><mim name=\"T\" version=\"1\" namespace=\"urn:t\" namespacePrefix=\"t\">"
    "<class name=\"Root\"><root/>"
    "<attribute name=\"rootId\"><mandatory/><key/><dataType><string/></dataType></attribute>"
    "</class></mim></models>";

// Files of one test in a folder of its own below TMPDIR.
class ScratchFiles {
public:
    ScratchFiles() {
        const char* tmp = std::getenv("TMPDIR");
        std::string pattern = std::string(tmp != nullptr ? tmp : "/tmp") + "/zef_service_test_XXXXXX";
        std::vector<char> buffer(pattern.begin(), pattern.end());
        buffer.push_back('\0');
        _dir = mkdtemp(buffer.data());
    }
    ~ScratchFiles() {
        for (const std::string& file : _files) {
            std::remove(file.c_str());
        }
        rmdir(_dir.c_str());
    }
    std::string write(const std::string& name, const std::string& content) {
        std::string path = _dir + "/" + name;
        std::ofstream(path) << content;
        _files.push_back(path);
        return path;
    }
    std::string path(const std::string& name) const { return _dir + "/" + name; }

private:
    std::string _dir;
    std::list<std::string> _files;
};

class ModelRepositoryServiceTest : public ::testing::Test {
protected:
    ZefTest::LogCapture log;
    ScratchFiles files;
};

TEST_F(ModelRepositoryServiceTest, IsTheProcessWideInstanceWhileItLives) {
    EXPECT_EQ(nullptr, ModelRepositoryService::getModelRepositoryService());
    {
        ModelRepositoryService service(true);
        EXPECT_EQ(&service, ModelRepositoryService::getModelRepositoryService());
        EXPECT_TRUE(ModelRepositoryService::isStandalone());
        EXPECT_FALSE(service.isStarted());
        EXPECT_NE(nullptr, service.getModelRepository());
    }
    EXPECT_EQ(nullptr, ModelRepositoryService::getModelRepositoryService());
}

TEST_F(ModelRepositoryServiceTest, StartWithAnEmptyFileListSucceedsAndCompilesNothing) {
    ModelRepositoryService service(true);
    EXPECT_EQ(0, service.start());
    EXPECT_TRUE(service.isStarted());
    EXPECT_TRUE(service.getModelRepository()->getMessages().empty());
    std::vector<std::string> traces = log.traces();
    EXPECT_NE(traces.end(), std::find(traces.begin(), traces.end(), "Starting Model Repository ..."));
    EXPECT_NE(traces.end(), std::find(traces.begin(), traces.end(), "Model Repository is started."));
    EXPECT_EQ(traces.end(), std::find(traces.begin(), traces.end(), "Validating the Moms in the model."));
}

TEST_F(ModelRepositoryServiceTest, SecondStartIsRefused) {
    ModelRepositoryService service(true);
    EXPECT_EQ(0, service.start());
    EXPECT_EQ(-3, service.start());
    EXPECT_TRUE(service.isStarted());
}

TEST_F(ModelRepositoryServiceTest, StopForgetsTheFilesAndAllowsANewStart) {
    ModelRepositoryService service(true);
    service.setModelFiles({files.write("a.xml", kValidModel)});
    EXPECT_EQ(0, service.start());
    EXPECT_EQ(1u, service.getModelRepository()->getMomList().size());
    service.stop();
    EXPECT_FALSE(service.isStarted());
    EXPECT_TRUE(service.getModelFileList().empty());
    EXPECT_TRUE(service.getModelRepository()->getMomList().empty());
    EXPECT_EQ(0, service.start());
}

TEST_F(ModelRepositoryServiceTest, ModelFilesAreReplacedByACopy) {
    ModelRepositoryService service(true);
    std::list<std::string> list{"a.xml", "b.xml"};
    service.setModelFiles(list);
    list.clear();
    service.setModelFiles(std::list<std::string>{"c.xml"});
    EXPECT_EQ(std::list<std::string>{"c.xml"}, service.getModelFileList());
}

TEST_F(ModelRepositoryServiceTest, MainRootNameReachesTheRepository) {
    ModelRepositoryService service(true);
    service.setMainRootName("Root");
    EXPECT_EQ(0, service.start());
    EXPECT_EQ("Root", service.getModelRepository()->getMainRootName());
    EXPECT_TRUE(service.getModelRepository()->isStandalone());
}

TEST_F(ModelRepositoryServiceTest, AFileThatFailsToParseStopsTheLoad) {
    ModelRepositoryService service(true);
    std::string first = files.write("first.xml", kValidModel);
    std::string broken = files.write("broken.xml", "<models><mim name=\"B\"");
    // The third file does not exist: were it opened, the parse of a missing
    // file would be taken as XML text and fail differently.
    std::string third = files.path("third.xml");
    service.setModelFiles({first, broken, third});
    EXPECT_EQ(-1, service.start());
    EXPECT_FALSE(service.isStarted());
    std::vector<std::string> errors = log.errors();
    EXPECT_NE(errors.end(), std::find(errors.begin(), errors.end(), "Error Parse in '" + broken + "'"));
    EXPECT_EQ(errors.end(), std::find(errors.begin(), errors.end(), "Error Parse in '" + third + "'"));
    std::string text = log.text();
    EXPECT_NE(std::string::npos, text.find("Parsing file '" + broken + "'"));
    EXPECT_EQ(std::string::npos, text.find("Parsing file '" + third + "'"));
}

TEST_F(ModelRepositoryServiceTest, TerminateWithoutPortalSucceeds) {
    ModelRepositoryService service(true);
    EXPECT_EQ(0, service.terminate());
}

using ModelRepositoryServiceDeathTest = ModelRepositoryServiceTest;

TEST_F(ModelRepositoryServiceDeathTest, SecondInstanceAbortsTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            ModelRepositoryService first(true);
            ModelRepositoryService second(true);
        },
        "");
}

} // namespace
