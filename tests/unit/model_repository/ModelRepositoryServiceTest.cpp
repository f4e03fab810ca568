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
