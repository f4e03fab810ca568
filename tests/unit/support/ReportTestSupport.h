#ifndef ZEF_TEST_REPORT_TEST_SUPPORT_H
#define ZEF_TEST_REPORT_TEST_SUPPORT_H

// Shared fixture of the report tests: real model files in a scratch folder,
// read by the real parser into a real repository, compiled and validated,
// and taken into a RunReport as the validator takes them.

#include <gtest/gtest.h>

#include <list>
#include <string>

#include "If2Manager.h"
#include "LogCapture.h"
#include "ModelParser.h"
#include "ModelRepository.h"
#include "RunReport.h"
#include "ScratchDir.h"

namespace ZefTest {

class ReportTest : public ::testing::Test {
protected:
    ReportTest() : parser(repository), report("zef_model_validator", "0.1.0") {
        repository.setStandalone(true);
        parser.setStandalone(true);
    }

    void TearDown() override { ZefModelRepositoryService::If2Manager::instance().cleanup(); }

    /// Writes a model file into the scratch folder; returns its path.
    std::string modelFile(const std::string& name, const std::string& content) {
        scratch.write(name, content);
        return scratch.file(name);
    }

    /// Reads the files in order as the service does (stopping at the first
    /// that fails), compiles and validates when all were read, and takes the
    /// result into `report`.
    void load(const std::list<std::string>& files) {
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
        }
        report.recordLoad(files, repository, completed);
    }

    /// A file of one MOM "A" with a root class, a class without parent (an
    /// error) whose name has a trailing blank (a warning).
    std::string smallModel(const std::string& name = "a.xml") {
        return modelFile(name, "<models>\n"
                               "<mim name=\"A\" version=\"1.0\" namespace=\"urn:a\" namespacePrefix=\"a\">\n"
                               "  <class name=\"Root\"><root/></class>\n"
                               "  <class name=\"Lost \"/>\n"
                               "</mim>\n"
                               "</models>\n");
    }

    LogCapture log;
    ScratchDir scratch{"report"};
    ZefModelRepositoryService::ModelRepository repository;
    ZefModelRepositoryService::ModelParser parser;
    RunReport report;
};

} // namespace ZefTest

#endif // ZEF_TEST_REPORT_TEST_SUPPORT_H
