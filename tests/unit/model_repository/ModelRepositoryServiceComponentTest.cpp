// The repository service as a component of a management framework: the
// framework double registers it, starts and stops it through its component
// record and reads the model through the interfaces the record provides.

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "ConfigurationFile.h"
#include "FrameworkDouble.h"
#include "If2Manager.h"
#include "LogAndTraceDouble.h"
#include "LogCapture.h"
#include "ModelRepositoryService.h"
#include "PublicHeadersCompile.h"
#include "ScratchDir.h"
#include "ZefException.h"
#include "ZefOamSpiModelRepository_1.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefOamSpiModelRepository_4_1.h"

using ZefModelRepositoryService::ModelRepositoryService;

namespace {

const char* const kModelT =
    "<models><mim name=\"T\" version=\"1\" namespace=\"urn:t\" namespacePrefix=\"t\">"
    "<class name=\"Root\"><root/>"
    "<attribute name=\"rootId\"><mandatory/><key/><dataType><string/></dataType></attribute>"
    "</class></mim></models>";

const char* const kModelU =
    "<models><mim name=\"U\" version=\"2\" namespace=\"urn:u\" namespacePrefix=\"u\">"
    "<class name=\"Node\"><root/>"
    "<attribute name=\"nodeId\"><mandatory/><key/><dataType><string/></dataType></attribute>"
    "</class></mim></models>";

bool contains(const std::vector<std::string>& texts, const std::string& text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

std::string nameOf(const ZefOamSpiGeneralProperties& properties) {
    return properties.name != nullptr ? properties.name : "";
}

class ModelRepositoryServiceComponentTest : public ::testing::Test {
protected:
    /// Writes a file into the scratch folder and returns its path.
    std::string writeFile(const std::string& name, const std::string& content) {
        files.write(name, content);
        return files.file(name);
    }

    /// A model specification file listing `paths`, one per line.
    std::string specFile(const std::vector<std::string>& paths) {
        std::string content;
        for (const std::string& path : paths)
            content += path + "\n";
        return writeFile("models.txt", content);
    }

    /// The component configuration with `settings` in section [ModelRepository].
    Zef::ConfigurationFile config(const std::string& settings) {
        return Zef::ConfigurationFile(writeFile("component.cfg", "[ModelRepository]\n" + settings));
    }

    ZefReturnT initWith(ModelRepositoryService& service, const std::string& settings) {
        Zef::ConfigurationFile cfg = config(settings);
        return service.init(framework.accessor(), cfg);
    }

    /// Initialises the service with a specification file listing the two models and starts it.
    void startWithTwoModels(ModelRepositoryService& service) {
        modelTPath = writeFile("t.xml", kModelT);
        modelUPath = writeFile("u.xml", kModelU);
        ASSERT_EQ(0, initWith(service, "modelSpecFile = " + specFile({modelTPath, modelUPath}) + "\n"));
        ASSERT_EQ(0, framework.startComponent());
    }

    const ZefOamSpiModelRepository_1* repositoryInterface() const {
        return framework.provided<ZefOamSpiModelRepository_1>("ZefOamSpiModelRepository", "1");
    }
    const ZefOamSpiModelRepositoryExtension_1* extensionInterface() const {
        return framework.provided<ZefOamSpiModelRepositoryExtension_1>("ZefOamSpiModelRepositoryExtension", "1");
    }

    ZefTest::LogCapture log;
    ScratchDir files{"zef_component_test"};
    ZefTest::FrameworkDouble framework;
    ZefTest::LogAndTraceDouble spis;
    std::string modelTPath;
    std::string modelUPath;
};

// ---- construction and the component record ----------------------------------

TEST_F(ModelRepositoryServiceComponentTest, NoArgumentConstructorIsComponentMode) {
    ModelRepositoryService service;
    EXPECT_EQ(&service, ModelRepositoryService::getModelRepositoryService());
    EXPECT_FALSE(ModelRepositoryService::isStandalone());
    EXPECT_FALSE(service.isStarted());
    EXPECT_EQ("", service.getModelSpecFile());
    EXPECT_EQ("", service.getMainRootName());
}

TEST_F(ModelRepositoryServiceComponentTest, ComponentRecordNamesTheComponent) {
    ModelRepositoryService service;
    const ZefMgmtSpiComponent_2* record = ModelRepositoryService::getComponentDescriptor();
    EXPECT_STREQ("ZefOamSpiModelRepositoryService", record->base.componentName);
    EXPECT_STREQ("ZefMgmtSpiComponent", record->base.interfaceName);
    EXPECT_STREQ("2", record->base.interfaceVersion);
    EXPECT_NE(nullptr, record->start);
    EXPECT_NE(nullptr, record->stop);
    EXPECT_EQ(1, record->flags);
}

TEST_F(ModelRepositoryServiceComponentTest, ProvidedInterfacesInArrayOrder) {
    ModelRepositoryService service;
    std::vector<std::string> provided;
    for (const ZefMgmtSpiInterface_1* const* slot = ModelRepositoryService::getComponentDescriptor()->providedInterfaces;
         *slot != nullptr; ++slot) {
        provided.push_back(ZefTest::FrameworkDouble::textOf((*slot)->componentName) + " "
                           + ZefTest::FrameworkDouble::textOf((*slot)->interfaceName) + " "
                           + ZefTest::FrameworkDouble::textOf((*slot)->interfaceVersion));
    }
    EXPECT_EQ((std::vector<std::string>{
                  "ZefOamSpiModelRepositoryService ZefOamSpiModelRepository 1",
                  "ZefOamSpiModelRepositoryService ZefOamSpiModelRepository 2",
                  "ZefOamSpiModelRepositoryService ZefOamSpiModelRepository 3",
                  "ZefOamSpiModelRepositoryService ZefOamSpiModelRepository 4",
                  "ZefOamSpiModelRepositoryService ZefOamSpiModelRepository 4_1",
                  "ZefOamSpiModelRepositoryService ZefOamSpiModelRepositoryExtension 1",
              }),
              provided);
}

TEST_F(ModelRepositoryServiceComponentTest, QueryInterfaceTablesAreTheHandleManagers) {
    ModelRepositoryService service;
    ASSERT_EQ(0, initWith(service, "modelSpecFile = " + specFile({}) + "\n"));
    const ZefModelRepositoryService::If2Manager& manager = ZefModelRepositoryService::If2Manager::instance();
    EXPECT_EQ(manager.getIf2(), (framework.provided<ZefOamSpiModelRepository_2>("ZefOamSpiModelRepository", "2")));
    EXPECT_EQ(manager.getIf3(), (framework.provided<ZefOamSpiModelRepository_3>("ZefOamSpiModelRepository", "3")));
    EXPECT_EQ(manager.getIf4(), (framework.provided<ZefOamSpiModelRepository_4>("ZefOamSpiModelRepository", "4")));
    EXPECT_EQ(manager.getIf4_1(),
              (framework.provided<ZefOamSpiModelRepository_4_1>("ZefOamSpiModelRepository", "4_1")));
}

TEST_F(ModelRepositoryServiceComponentTest, QueryInterfaceOfTheComponentAnswersTwoUntilStarted) {
    ModelRepositoryService service;
    const std::string t = writeFile("t.xml", kModelT);
    ASSERT_EQ(0, initWith(service, "modelSpecFile = " + specFile({t}) + "\n"));
    const ZefOamSpiModelRepository_4* if4 =
        framework.provided<ZefOamSpiModelRepository_4>("ZefOamSpiModelRepository", "4");
    ASSERT_NE(nullptr, if4);
    uint64_t mom = 0;
    EXPECT_EQ(2, if4->entry->getMom(&mom));
    ASSERT_EQ(0, framework.startComponent());
    EXPECT_EQ(0, if4->entry->getMom(&mom));
    ASSERT_EQ(0, framework.stopComponent());
    EXPECT_EQ(2, if4->entry->getMom(&mom));
}

TEST_F(ModelRepositoryServiceComponentTest, OtherComponentsReadTheLoadedModelThroughTheQueryInterface) {
    ModelRepositoryService service;
    startWithTwoModels(service);
    const ZefOamSpiModelRepository_4* if4 =
        framework.provided<ZefOamSpiModelRepository_4>("ZefOamSpiModelRepository", "4");
    ASSERT_NE(nullptr, if4);
    std::vector<std::string> read;
    uint64_t mom = 0;
    ASSERT_EQ(0, if4->entry->getMom(&mom));
    do {
        uint64_t properties = 0;
        uint64_t root = 0;
        uint64_t rootProperties = 0;
        uint64_t attribute = 0;
        uint64_t attributeProperties = 0;
        const char* momName = nullptr;
        const char* version = nullptr;
        const char* rootName = nullptr;
        const char* attributeName = nullptr;
        ASSERT_EQ(0, if4->mom->getGeneralProperties(mom, &properties));
        ASSERT_EQ(0, if4->generalProperties->getName(properties, &momName));
        ASSERT_EQ(0, if4->mom->getVersion(mom, &version));
        ASSERT_EQ(0, if4->mom->getRootMoc(mom, &root));
        ASSERT_EQ(0, if4->moc->getGeneralProperties(root, &rootProperties));
        ASSERT_EQ(0, if4->generalProperties->getName(rootProperties, &rootName));
        ASSERT_EQ(0, if4->moc->getAttribute(root, &attribute));
        ASSERT_EQ(0, if4->attribute->getGeneralProperties(attribute, &attributeProperties));
        ASSERT_EQ(0, if4->generalProperties->getName(attributeProperties, &attributeName));
        read.push_back(std::string(momName) + " " + version + " " + rootName + "." + attributeName);
    } while (if4->mom->getNext(mom, &mom) == 0);
    EXPECT_EQ((std::vector<std::string>{"T 1 Root.rootId", "U 2 Node.nodeId"}), read);
    ASSERT_EQ(0, framework.stopComponent());
}

TEST_F(ModelRepositoryServiceComponentTest, RequiredInterfacesAreLogAndTrace) {
    ModelRepositoryService service;
    std::vector<std::string> required;
    for (const ZefMgmtSpiInterface_1* const* slot = ModelRepositoryService::getComponentDescriptor()->requiredInterfaces;
         *slot != nullptr; ++slot) {
        required.push_back(ZefTest::FrameworkDouble::textOf((*slot)->componentName) + " "
                           + ZefTest::FrameworkDouble::textOf((*slot)->interfaceName) + " "
                           + ZefTest::FrameworkDouble::textOf((*slot)->interfaceVersion));
    }
    EXPECT_EQ((std::vector<std::string>{"(null) ZefMwSpiLog 1", "(null) ZefMwSpiTrace (null)"}), required);
}

TEST_F(ModelRepositoryServiceComponentTest, CAndCxxAgreeOnTheComponentRecords) {
    EXPECT_EQ(sizeof(ZefMgmtSpiComponent_2), zefTestCSizeOfComponent_2());
    EXPECT_EQ(sizeof(ZefOamSpiModelRepository_1), zefTestCSizeOfModelRepository_1());
}

// ---- init ------------------------------------------------------------------------

TEST_F(ModelRepositoryServiceComponentTest, InitRegistersWithThePortalOfVersionThree) {
    ModelRepositoryService service;
    const std::string spec = specFile({});
    EXPECT_EQ(0, initWith(service, "modelSpecFile = " + spec + "\n"));
    EXPECT_EQ((std::vector<std::string>{"3"}), framework.requestedVersions);
    ASSERT_EQ(1u, framework.registrations.size());
    EXPECT_EQ(ModelRepositoryService::getComponentDescriptor(), framework.registrations[0]);
    EXPECT_EQ(spec, service.getModelSpecFile());
    EXPECT_TRUE(contains(log.traces(), "Initializating Model Repository ... "));
    EXPECT_TRUE(log.errors().empty());
}

TEST_F(ModelRepositoryServiceComponentTest, InitWithoutModelSpecFileFails) {
    ModelRepositoryService service;
    EXPECT_EQ(-1, initWith(service, "mainRootName = Root\n"));
    EXPECT_EQ((std::vector<std::string>{"Model configuration file is not specified."}), log.errors());
    EXPECT_TRUE(contains(log.traces(), "Model configuration file is not specified."));
    EXPECT_EQ("", service.getModelSpecFile());
    // The check ends init: the main root name is not read.
    EXPECT_EQ("", service.getMainRootName());
}

TEST_F(ModelRepositoryServiceComponentTest, InitWithAnEmptyModelSpecFileFails) {
    ModelRepositoryService service;
    EXPECT_EQ(-1, initWith(service, "modelSpecFile =   \n"));
    EXPECT_EQ((std::vector<std::string>{"Model configuration file is not specified."}), log.errors());
}

TEST_F(ModelRepositoryServiceComponentTest, InitWithAMissingModelSpecFileFails) {
    ModelRepositoryService service;
    const std::string missing = files.file("missing.txt");
    EXPECT_EQ(-1, initWith(service, "modelSpecFile = " + missing + "\n"));
    const std::string text = "Model configuration file (" + missing + ") does not exist.";
    EXPECT_EQ((std::vector<std::string>{text}), log.errors());
    EXPECT_TRUE(contains(log.traces(), text));
    EXPECT_EQ("", service.getModelSpecFile());
}

TEST_F(ModelRepositoryServiceComponentTest, InitWithAFolderAsModelSpecFileFails) {
    ModelRepositoryService service;
    EXPECT_EQ(-1, initWith(service, "modelSpecFile = " + files.path() + "\n"));
    const std::string text = "Model configuration file (" + files.path() + ") is not file type.";
    EXPECT_EQ((std::vector<std::string>{text}), log.errors());
    EXPECT_TRUE(contains(log.traces(), text));
}

TEST_F(ModelRepositoryServiceComponentTest, InitWithAnUnreadableModelSpecFileFails) {
    ModelRepositoryService service;
    const std::string spec = specFile({});
    ASSERT_EQ(0, chmod(spec.c_str(), 0));
    if (access(spec.c_str(), R_OK) == 0)
        GTEST_SKIP() << "every file is readable for this user";
    EXPECT_EQ(-1, initWith(service, "modelSpecFile = " + spec + "\n"));
    const std::string text = "Model configuration file (" + spec + ") is not readable.";
    EXPECT_EQ((std::vector<std::string>{text}), log.errors());
    EXPECT_TRUE(contains(log.traces(), text));
}

TEST_F(ModelRepositoryServiceComponentTest, InitTakesTheMainRootName) {
    ModelRepositoryService service;
    EXPECT_EQ(0, initWith(service, "modelSpecFile = " + specFile({}) + "\nmainRootName = Root\n"));
    EXPECT_EQ("Root", service.getMainRootName());
}

TEST_F(ModelRepositoryServiceComponentTest, AnEmptyMainRootNameKeepsTheEarlierOne) {
    ModelRepositoryService service;
    service.setMainRootName("Earlier");
    EXPECT_EQ(0, initWith(service, "modelSpecFile = " + specFile({}) + "\nmainRootName =\n"));
    EXPECT_EQ("Earlier", service.getMainRootName());
}

TEST_F(ModelRepositoryServiceComponentTest, StandaloneInitReadsOnlyTheMainRootName) {
    ModelRepositoryService service(true);
    EXPECT_EQ(0, initWith(service, "mainRootName = Root\n"));
    EXPECT_EQ("Root", service.getMainRootName());
    EXPECT_EQ("", service.getModelSpecFile());
    EXPECT_EQ(1u, framework.registrations.size());
}

TEST_F(ModelRepositoryServiceComponentTest, ARefusedRegistrationFailsInit) {
    ModelRepositoryService service;
    framework.registerResult = -3;
    EXPECT_EQ(-3, initWith(service, "modelSpecFile = " + specFile({}) + "\n"));
    EXPECT_EQ((std::vector<std::string>{"Failed to register Model Repository with the interface portal (-3)."}),
              log.errors());
    // Never registered, so never unregistered.
    EXPECT_EQ(0, service.terminate());
    EXPECT_TRUE(framework.unregistrations.empty());
}

using ModelRepositoryServiceComponentDeathTest = ModelRepositoryServiceComponentTest;

TEST_F(ModelRepositoryServiceComponentDeathTest, InitWithoutPortalAbortsTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    spis.echoLogToStderr = true;
    spis.attachLog();
    framework.offersPortal = false;
    EXPECT_DEATH(
        {
            ModelRepositoryService service;
            Zef::ConfigurationFile cfg;
            service.init(framework.accessor(), cfg);
        },
        "Portal could not be found, giving up\\.");
}

TEST_F(ModelRepositoryServiceComponentDeathTest, InitWithAPortalOfAnotherVersionAbortsTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    spis.echoLogToStderr = true;
    spis.attachLog();
    framework.portal().base.interfaceVersion = "2";
    EXPECT_DEATH(
        {
            ModelRepositoryService service;
            Zef::ConfigurationFile cfg;
            service.init(framework.accessor(), cfg);
        },
        "Portal could not be found, giving up\\.");
}

TEST_F(ModelRepositoryServiceComponentDeathTest, InitWithoutAccessorAbortsTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    spis.echoLogToStderr = true;
    spis.attachLog();
    EXPECT_DEATH(
        {
            ModelRepositoryService service;
            Zef::ConfigurationFile cfg;
            service.init(nullptr, cfg);
        },
        "Portal could not be found, giving up\\.");
}

TEST_F(ModelRepositoryServiceComponentDeathTest, SecondInstanceAbortsTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    spis.echoLogToStderr = true;
    spis.attachLog();
    EXPECT_DEATH(
        {
            ModelRepositoryService first;
            ModelRepositoryService second;
        },
        "Internal error, instance already exist, generating core dump");
}

// ---- start, the interfaces, stop and terminate ---------------------------------

TEST_F(ModelRepositoryServiceComponentTest, StartWithoutModelSpecFileFails) {
    ModelRepositoryService service;
    EXPECT_EQ(-2, service.start());
    EXPECT_FALSE(service.isStarted());
    EXPECT_EQ((std::vector<std::string>{"The configuration for the MR model files is not set. In order to start MR "
                                        "successfully, 'modelSpecFile' in internal configuration of MR must be set."}),
              log.errors());
}

TEST_F(ModelRepositoryServiceComponentTest, StartLoadsTheFilesOfTheSpecificationFile) {
    ModelRepositoryService service;
    startWithTwoModels(service);
    EXPECT_TRUE(service.isStarted());
    EXPECT_EQ((std::list<std::string>{modelTPath, modelUPath}), service.getModelFileList());
    EXPECT_EQ(2u, service.getModelRepository()->getMomList().size());
    EXPECT_FALSE(service.getModelRepository()->isStandalone());
    EXPECT_TRUE(log.errors().empty());
    std::vector<std::string> traces = log.traces();
    EXPECT_TRUE(contains(traces, "Starting Model Repository ..."));
    EXPECT_TRUE(contains(traces, "Model Repository is started."));
}

TEST_F(ModelRepositoryServiceComponentTest, StartTwiceIsRefusedAndKeepsTheModel) {
    ModelRepositoryService service;
    startWithTwoModels(service);
    EXPECT_EQ(-3, framework.startComponent());
    EXPECT_TRUE(service.isStarted());
    EXPECT_EQ(2u, service.getModelRepository()->getMomList().size());
}

TEST_F(ModelRepositoryServiceComponentTest, EntryPointsAnswerTwoBeforeStart) {
    ModelRepositoryService service;
    ASSERT_EQ(0, initWith(service, "modelSpecFile = " + specFile({writeFile("t.xml", kModelT)}) + "\n"));
    const ZefOamSpiModelRepository_1* mr = repositoryInterface();
    const ZefOamSpiModelRepositoryExtension_1* ext = extensionInterface();
    ASSERT_NE(nullptr, mr);
    ASSERT_NE(nullptr, ext);
    // Null arguments too: "not started" is answered first.
    EXPECT_EQ(2, mr->getMoms(nullptr));
    EXPECT_EQ(2, mr->getMoc(nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(2, mr->getTreeRoot(nullptr));
    EXPECT_EQ(2, ext->getFileName(nullptr, nullptr, nullptr));
    const ZefOamSpiMom* mom = nullptr;
    EXPECT_EQ(2, mr->getMoms(&mom));
    EXPECT_EQ(nullptr, mom);
}

TEST_F(ModelRepositoryServiceComponentTest, GetMomsGivesTheFirstMom) {
    ModelRepositoryService service;
    startWithTwoModels(service);
    const ZefOamSpiModelRepository_1* mr = repositoryInterface();
    EXPECT_EQ(-8, mr->getMoms(nullptr));
    const ZefOamSpiMom* mom = nullptr;
    ASSERT_EQ(0, mr->getMoms(&mom));
    ASSERT_NE(nullptr, mom);
    EXPECT_EQ("T", nameOf(mom->generalProperties));
}

TEST_F(ModelRepositoryServiceComponentTest, GetMomsWithoutMomIsNotFound) {
    ModelRepositoryService service;
    ASSERT_EQ(0, initWith(service, "modelSpecFile = " + specFile({}) + "\n"));
    ASSERT_EQ(0, framework.startComponent());
    const ZefOamSpiMom* mom = nullptr;
    EXPECT_EQ(-2, repositoryInterface()->getMoms(&mom));
    EXPECT_TRUE(contains(log.traces(), "No MOM is available."));
}

TEST_F(ModelRepositoryServiceComponentTest, GetMocFindsAClassByMimAndName) {
    ModelRepositoryService service;
    startWithTwoModels(service);
    const ZefOamSpiModelRepository_1* mr = repositoryInterface();
    const ZefOamSpiMoc* moc = nullptr;
    ASSERT_EQ(0, mr->getMoc("U", "2", "Node", &moc));
    ASSERT_NE(nullptr, moc);
    EXPECT_EQ("Node", nameOf(moc->generalProperties));
    EXPECT_EQ(-2, mr->getMoc("U", "1", "Node", &moc));
    EXPECT_EQ(-2, mr->getMoc("T", "1", "Node", &moc));
    EXPECT_EQ(-8, mr->getMoc(nullptr, "1", "Root", &moc));
    EXPECT_EQ(-8, mr->getMoc("T", nullptr, "Root", &moc));
    EXPECT_EQ(-8, mr->getMoc("T", "1", nullptr, &moc));
    EXPECT_EQ(-8, mr->getMoc("T", "1", "Root", nullptr));
}

TEST_F(ModelRepositoryServiceComponentTest, GetTreeRootGivesTheRepositorysRoot) {
    ModelRepositoryService service;
    startWithTwoModels(service);
    const ZefOamSpiModelRepository_1* mr = repositoryInterface();
    EXPECT_EQ(-8, mr->getTreeRoot(nullptr));
    const ZefOamSpiMoc* expected = nullptr;
    ASSERT_EQ(0, service.getModelRepository()->getTreeRoot(&expected));
    const ZefOamSpiMoc* root = reinterpret_cast<const ZefOamSpiMoc*>(&service);
    EXPECT_EQ(0, mr->getTreeRoot(&root));
    EXPECT_EQ(expected, root);
}

TEST_F(ModelRepositoryServiceComponentTest, GetFileNameNamesTheFileOfTheMom) {
    ModelRepositoryService service;
    startWithTwoModels(service);
    const ZefOamSpiModelRepositoryExtension_1* ext = extensionInterface();
    const char* fileName = nullptr;
    ASSERT_EQ(0, ext->getFileName("U", "2", &fileName));
    EXPECT_STREQ(modelUPath.c_str(), fileName);
    ASSERT_EQ(0, ext->getFileName("T", "1", &fileName));
    EXPECT_STREQ(modelTPath.c_str(), fileName);
    EXPECT_EQ(-2, ext->getFileName("V", "1", &fileName));
    EXPECT_EQ(-8, ext->getFileName(nullptr, "1", &fileName));
    EXPECT_EQ(-8, ext->getFileName("T", nullptr, &fileName));
    EXPECT_EQ(-8, ext->getFileName("T", "1", nullptr));
}

TEST_F(ModelRepositoryServiceComponentTest, GetFileNameForAMimOfAnotherVersionIsNotFound) {
    ModelRepositoryService service;
    startWithTwoModels(service);
    const char* fileName = "untouched";
    EXPECT_EQ(-2, extensionInterface()->getFileName("T", "2", &fileName));
    EXPECT_STREQ("untouched", fileName);
}

TEST_F(ModelRepositoryServiceComponentTest, StopUnloadsTheModelAndTheEntryPointsAnswerTwo) {
    ModelRepositoryService service;
    startWithTwoModels(service);
    const ZefOamSpiModelRepository_1* mr = repositoryInterface();
    EXPECT_EQ(0, framework.stopComponent());
    EXPECT_FALSE(service.isStarted());
    EXPECT_TRUE(service.getModelFileList().empty());
    EXPECT_TRUE(service.getModelRepository()->getMomList().empty());
    EXPECT_TRUE(contains(log.traces(), "Stopping Model Repository ..."));
    const ZefOamSpiMom* mom = nullptr;
    EXPECT_EQ(2, mr->getMoms(&mom));
    const char* fileName = nullptr;
    EXPECT_EQ(2, extensionInterface()->getFileName("T", "1", &fileName));
}

TEST_F(ModelRepositoryServiceComponentTest, StartAfterStopReadsTheSpecificationFileAgain) {
    ModelRepositoryService service;
    startWithTwoModels(service);
    ASSERT_EQ(0, framework.stopComponent());
    ASSERT_EQ(0, framework.startComponent());
    EXPECT_EQ((std::list<std::string>{modelTPath, modelUPath}), service.getModelFileList());
    EXPECT_EQ(2u, service.getModelRepository()->getMomList().size());
}

TEST_F(ModelRepositoryServiceComponentTest, TerminateUnregistersTheComponentOnce) {
    ModelRepositoryService service;
    ASSERT_EQ(0, initWith(service, "modelSpecFile = " + specFile({}) + "\n"));
    EXPECT_EQ(0, service.terminate());
    EXPECT_EQ((std::vector<const ZefMgmtSpiComponent_2*>{ModelRepositoryService::getComponentDescriptor()}),
              framework.unregistrations);
    EXPECT_EQ(nullptr, framework.component());
    EXPECT_TRUE(contains(log.traces(), "Terminating Model Repository ... "));
    EXPECT_EQ(0, service.terminate());
    EXPECT_EQ(1u, framework.unregistrations.size());
}

TEST_F(ModelRepositoryServiceComponentTest, TerminateWithoutInitTouchesNoPortal) {
    ModelRepositoryService service;
    EXPECT_EQ(0, service.terminate());
    EXPECT_TRUE(framework.unregistrations.empty());
}

TEST_F(ModelRepositoryServiceComponentTest, ComponentFunctionsWithoutServiceFailQuietly) {
    const ZefOamSpiModelRepository_1* mr = nullptr;
    const ZefMgmtSpiComponent_2* record = nullptr;
    {
        ModelRepositoryService service;
        ASSERT_EQ(0, initWith(service, "modelSpecFile = " + specFile({}) + "\n"));
        mr = repositoryInterface();
        record = framework.component();
        ASSERT_EQ(0, record->start());
    }
    // The framework may still hold the record after the service is gone.
    const ZefOamSpiMom* mom = nullptr;
    EXPECT_EQ(2, mr->getMoms(&mom));
    EXPECT_EQ(-1, record->start());
    EXPECT_EQ(2, record->stop());
}

// ---- the model specification file ------------------------------------------------

TEST_F(ModelRepositoryServiceComponentTest, ASpecificationFileEndingInCapitalXmlLoadsNothing) {
    ModelRepositoryService service;
    const std::string capital = writeFile("c.XML", kModelU);
    const std::string spec = specFile({writeFile("a.xml", kModelT), writeFile("b.xml", kModelU), capital});
    ASSERT_EQ(0, initWith(service, "modelSpecFile = " + spec + "\n"));
    EXPECT_EQ(-1, service.start());
    EXPECT_FALSE(service.isStarted());
    EXPECT_TRUE(service.getModelFileList().empty());
    EXPECT_TRUE(service.getModelRepository()->getMomList().empty());
    EXPECT_EQ((std::vector<std::string>{"Model file (" + capital + ") is not xml file.",
                                        "Failed to load model file configuration (modelSpecFile)."}),
              log.errors());
}

TEST_F(ModelRepositoryServiceComponentTest, SpecificationFileLinesAreTrimmedAndBlankLinesSkipped) {
    ModelRepositoryService service;
    const std::string a = writeFile("a.xml", kModelT);
    const std::string b = writeFile("b.xml", kModelU);
    const std::string spec = writeFile("models.txt", "\n  " + a + "\t\n   \n" + b + " \r\n");
    EXPECT_EQ(0, service.processModelSpecFile(spec));
    EXPECT_EQ((std::list<std::string>{a, b}), service.getModelFileList());
    const std::vector<std::string> traces = log.traces();
    // Two blank lines inside and the empty rest after the last newline.
    EXPECT_EQ(3, std::count(traces.begin(), traces.end(), "Ignoring empty line in model configuration file."));
}

TEST_F(ModelRepositoryServiceComponentTest, SpecificationFileAppendsToTheList) {
    ModelRepositoryService service;
    const std::string a = writeFile("a.xml", kModelT);
    service.setModelFiles({"earlier.xml"});
    EXPECT_EQ(0, service.processModelSpecFile(specFile({a})));
    EXPECT_EQ((std::list<std::string>{"earlier.xml", a}), service.getModelFileList());
}

TEST_F(ModelRepositoryServiceComponentTest, AMissingModelFileEmptiesTheWholeList) {
    ModelRepositoryService service;
    const std::string a = writeFile("a.xml", kModelT);
    const std::string missing = files.file("missing.xml");
    const std::string b = writeFile("b.xml", kModelU);
    service.setModelFiles({"earlier.xml"});
    EXPECT_EQ(-1, service.processModelSpecFile(specFile({a, missing, b})));
    EXPECT_TRUE(service.getModelFileList().empty());
    const std::string text = "Model file (" + missing + ") does not exist.";
    EXPECT_EQ((std::vector<std::string>{text}), log.errors());
    EXPECT_TRUE(contains(log.traces(), text));
}

TEST_F(ModelRepositoryServiceComponentTest, AFolderInTheSpecificationFileIsNotAFile) {
    ModelRepositoryService service;
    ASSERT_EQ(0, mkdir(files.file("folder.xml").c_str(), 0700));
    EXPECT_EQ(-1, service.processModelSpecFile(specFile({files.file("folder.xml")})));
    const std::string text = "Model file (" + files.file("folder.xml") + ") is not a file.";
    EXPECT_EQ((std::vector<std::string>{text}), log.errors());
    EXPECT_TRUE(contains(log.traces(), text));
}

TEST_F(ModelRepositoryServiceComponentTest, AnUnreadableModelFileEmptiesTheList) {
    ModelRepositoryService service;
    const std::string secret = writeFile("secret.xml", kModelT);
    ASSERT_EQ(0, chmod(secret.c_str(), 0));
    if (access(secret.c_str(), R_OK) == 0)
        GTEST_SKIP() << "every file is readable for this user";
    EXPECT_EQ(-1, service.processModelSpecFile(specFile({writeFile("a.xml", kModelU), secret})));
    EXPECT_TRUE(service.getModelFileList().empty());
    const std::string text = "Model file (" + secret + ") is not readable.";
    EXPECT_EQ((std::vector<std::string>{text}), log.errors());
    EXPECT_TRUE(contains(log.traces(), text));
}

TEST_F(ModelRepositoryServiceComponentTest, AModelFileWithoutXmlExtensionIsRefused) {
    ModelRepositoryService service;
    const std::string text = writeFile("model.txt", kModelT);
    EXPECT_EQ(-1, service.processModelSpecFile(specFile({text})));
    const std::string message = "Model file (" + text + ") is not xml file.";
    EXPECT_EQ((std::vector<std::string>{message}), log.errors());
    EXPECT_TRUE(contains(log.traces(), message));
}

TEST_F(ModelRepositoryServiceComponentTest, TheSpecificationFileHasNoComments) {
    ModelRepositoryService service;
    const std::string spec = writeFile("models.txt", "# models\n");
    EXPECT_EQ(-1, service.processModelSpecFile(spec));
    EXPECT_EQ((std::vector<std::string>{"Model file (# models) does not exist."}), log.errors());
}

TEST_F(ModelRepositoryServiceComponentTest, AVanishedSpecificationFileFailsTheStart) {
    ModelRepositoryService service;
    const std::string spec = specFile({});
    ASSERT_EQ(0, initWith(service, "modelSpecFile = " + spec + "\n"));
    std::remove(spec.c_str());
    EXPECT_EQ(-1, framework.startComponent());
    EXPECT_EQ((std::vector<std::string>{"Model configuration file (" + spec + ") does not exist.",
                                        "Failed to load model file configuration (modelSpecFile)."}),
              log.errors());
}

// ---- errors of the model in component mode -----------------------------------------

TEST_F(ModelRepositoryServiceComponentTest, AFileThatFailsToParseEndsTheLoad) {
    ModelRepositoryService service;
    const std::string first = writeFile("first.xml", kModelT);
    const std::string broken = writeFile("broken.xml", "<models><mim name=\"B\"");
    const std::string third = writeFile("third.xml", kModelU);
    ASSERT_EQ(0, initWith(service, "modelSpecFile = " + specFile({first, broken, third}) + "\n"));
    EXPECT_EQ(-1, framework.startComponent());
    EXPECT_FALSE(service.isStarted());
    EXPECT_TRUE(contains(log.errors(), "Error Parse in '" + broken + "'"));
    const std::string text = log.text();
    EXPECT_NE(std::string::npos, text.find("Parsing file '" + broken + "'"));
    EXPECT_EQ(std::string::npos, text.find("Parsing file '" + third + "'"));
    // The failed start leaves nothing behind.
    EXPECT_TRUE(service.getModelFileList().empty());
    EXPECT_TRUE(service.getModelRepository()->getMomList().empty());
}

TEST_F(ModelRepositoryServiceComponentTest, AnExceptionOfTheLoadStaysInsideTheComponent) {
    ModelRepositoryService service;
    const std::string notAModel = writeFile("other.xml", "<other/>");
    ASSERT_EQ(0, initWith(service, "modelSpecFile = " + specFile({notAModel}) + "\n"));
    // The service itself lets it through ...
    EXPECT_THROW(service.start(), Zef::ZefException);
    service.stop();
    // ... its component record answers with a failure instead.
    EXPECT_EQ(-1, framework.startComponent());
    EXPECT_FALSE(service.isStarted());
    const std::vector<std::string> errors = log.errors();
    ASSERT_FALSE(errors.empty());
    EXPECT_EQ("start of Model Repository failed: "
              "ZefInternalErrorException(Configuration File does not have the correct format)",
              errors.back());
}

TEST_F(ModelRepositoryServiceComponentTest, AFailedStartCanBeRepeatedOnceTheFilesAreFixed) {
    ModelRepositoryService service;
    const std::string model = writeFile("model.xml", "<other/>");
    ASSERT_EQ(0, initWith(service, "modelSpecFile = " + specFile({model}) + "\n"));
    ASSERT_EQ(-1, framework.startComponent());
    writeFile("model.xml", kModelT);
    EXPECT_EQ(0, framework.startComponent());
    EXPECT_EQ(1u, service.getModelRepository()->getMomList().size());
}

TEST_F(ModelRepositoryServiceComponentTest, TheFirstErrorOfTheModelThrowsInComponentMode) {
    ModelRepositoryService service;
    startWithTwoModels(service);
    try {
        service.getModelRepository()->checkThrowException(3, "Something is wrong with %s.", "T");
        FAIL() << "no exception";
    } catch (const Zef::ZefException& e) {
        EXPECT_EQ("ModelRepository: invalid model", e.getReason());
    }
    EXPECT_EQ("ERROR, ModelRepository: Something is wrong with T.",
              service.getModelRepository()->getMessages().back());
}

TEST_F(ModelRepositoryServiceComponentTest, ADuplicateMomEndsTheLoadAtTheFirstError) {
    ModelRepositoryService service;
    const std::string a = writeFile("a.xml", kModelT);
    const std::string copy = writeFile("copy.xml", kModelT);
    const std::string u = writeFile("u.xml", kModelU);
    ASSERT_EQ(0, initWith(service, "modelSpecFile = " + specFile({a, copy, u}) + "\n"));
    EXPECT_EQ(-1, framework.startComponent());
    EXPECT_EQ(std::string::npos, log.text().find("Parsing file '" + u + "'"));
    // The refusal of the MOM ends the file, and the failed file ends the load.
    EXPECT_EQ((std::list<std::string>{"ERROR, ModelRepository: Mom (T~1) already added to the list.",
                                      "ERROR, ModelParser: Mom not loaded:"}),
              service.getModelRepository()->getMessages());
}

// ---- the folder scan --------------------------------------------------------------

TEST_F(ModelRepositoryServiceComponentTest, FolderScanAppendsEveryXmlEntry) {
    ModelRepositoryService service;
    ScratchDir dir{"zef_model_dir"};
    dir.write("a.xml", kModelT);
    dir.write("b.XML", kModelT);
    dir.write("c.txt", kModelT);
    dir.write("xml", kModelT);
    ASSERT_EQ(0, mkdir(dir.file("sub.xml").c_str(), 0700));
    service.setModelFiles({"earlier.xml"});
    EXPECT_EQ(0, service.getModelFiles(dir.path()));
    std::list<std::string> found = service.getModelFileList();
    ASSERT_EQ(3u, found.size());
    EXPECT_EQ("earlier.xml", found.front());
    found.pop_front();
    found.sort();
    // Entries are not checked for being files.
    EXPECT_EQ((std::list<std::string>{dir.file("a.xml"), dir.file("sub.xml")}), found);
    EXPECT_TRUE(log.errors().empty());
}

TEST_F(ModelRepositoryServiceComponentTest, FolderScanMakesPathsAbsolute) {
    ModelRepositoryService service;
    ScratchDir dir{"zef_model_dir"};
    dir.write("a.xml", kModelT);
    char cwd[4096];
    ASSERT_NE(nullptr, getcwd(cwd, sizeof(cwd)));
    const std::string parent = dir.path().substr(0, dir.path().rfind('/'));
    const std::string name = dir.path().substr(dir.path().rfind('/') + 1);
    ASSERT_EQ(0, chdir(parent.c_str()));
    const ZefReturnT result = service.getModelFiles(name);
    ASSERT_EQ(0, chdir(cwd));
    EXPECT_EQ(0, result);
    char resolved[4096];
    ASSERT_NE(nullptr, realpath(dir.file("a.xml").c_str(), resolved));
    EXPECT_EQ((std::list<std::string>{resolved}), service.getModelFileList());
}

TEST_F(ModelRepositoryServiceComponentTest, FolderScanOfAMissingFolderWarns) {
    ModelRepositoryService service;
    const std::string missing = files.file("missing");
    EXPECT_EQ(-1, service.getModelFiles(missing));
    const std::string text = "ModelLoadDir of Model Repository is not exist: " + missing;
    EXPECT_EQ((std::vector<std::string>{text}), log.messages("WA"));
    EXPECT_TRUE(contains(log.traces(), text));
}

TEST_F(ModelRepositoryServiceComponentTest, FolderScanOfAFileWarns) {
    ModelRepositoryService service;
    const std::string file = writeFile("a.xml", kModelT);
    EXPECT_EQ(-1, service.getModelFiles(file));
    const std::string text = "ModelLoadDir of Model Repository is not a directory: " + file;
    EXPECT_EQ((std::vector<std::string>{text}), log.messages("WA"));
    EXPECT_TRUE(contains(log.traces(), text));
    EXPECT_TRUE(service.getModelFileList().empty());
}

TEST_F(ModelRepositoryServiceComponentTest, FolderScanOfAnUnreadableFolderWarns) {
    ModelRepositoryService service;
    ScratchDir dir{"zef_model_dir"};
    dir.write("a.xml", kModelT);
    ASSERT_EQ(0, chmod(dir.path().c_str(), 0300));
    if (access(dir.path().c_str(), R_OK) == 0) {
        chmod(dir.path().c_str(), 0700);
        GTEST_SKIP() << "every folder is readable for this user";
    }
    const ZefReturnT result = service.getModelFiles(dir.path());
    chmod(dir.path().c_str(), 0700);
    EXPECT_EQ(-1, result);
    const std::string text = "ModelLoadDir of Model Repository does not readable: " + dir.path();
    EXPECT_EQ((std::vector<std::string>{text}), log.messages("WA"));
    EXPECT_TRUE(contains(log.traces(), text));
}

// ---- log and trace through the framework's interfaces ----------------------------

TEST_F(ModelRepositoryServiceComponentTest, LogLinesGoToTheAttachedLogInterface) {
    spis.attachLog();
    ModelRepositoryService service;
    EXPECT_EQ(-1, initWith(service, "mainRootName = Root\n"));
    ASSERT_EQ(1u, spis.logCalls.size());
    EXPECT_EQ(3u, spis.logCalls[0].level);
    EXPECT_EQ(1, spis.logCalls[0].facility);
    EXPECT_EQ(" checkModelSpecFile        Model configuration file is not specified.", spis.logCalls[0].line);
    EXPECT_TRUE(log.errors().empty());
}

TEST_F(ModelRepositoryServiceComponentTest, TracesGoToAnAttachedTraceInterfaceOfVersionOne) {
    spis.attachTrace1();
    ModelRepositoryService service;
    ASSERT_EQ(0, initWith(service, "modelSpecFile = " + specFile({}) + "\n"));
    ASSERT_EQ(0, framework.startComponent());
    std::vector<std::string> lines;
    for (const ZefTest::LogAndTraceDouble::Trace1Call& call : spis.trace1Calls) {
        if (call.kind == "print") {
            const std::string::size_type dash = call.line.find(" - ");
            lines.push_back(call.line.substr(0, call.line.find(':')) + call.line.substr(dash));
        }
    }
    EXPECT_TRUE(contains(lines, "ModelRepositoryService.cpp - init                      Initializating Model Repository ... "));
    EXPECT_TRUE(contains(lines, "ModelRepositoryService.cpp - start                     Starting Model Repository ..."));
    EXPECT_TRUE(contains(lines, "ModelRepositoryService.cpp - start                     Model Repository is started."));
    EXPECT_TRUE(log.traces().empty());
}

TEST_F(ModelRepositoryServiceComponentTest, TracesGoToAnAttachedTraceInterfaceOfVersionTwo) {
    spis.attachTrace2();
    EXPECT_EQ((std::vector<std::string>{"ZefCommon", "ZefCore", "ZefAc", "ZefCmRouter", "ZefEventRouter",
                                        "ZefModelRepository", "ZefThreadContext", "ZefTransaction", "ZefSession",
                                        "ZefSvs", "ZefOther"}),
              spis.registeredSubsystems);
    ModelRepositoryService service;
    ASSERT_EQ(0, initWith(service, "modelSpecFile = " + specFile({}) + "\n"));
    ASSERT_EQ(0, framework.startComponent());
    bool started = false;
    for (const ZefTest::LogAndTraceDouble::Trace2Call& call : spis.trace2Calls) {
        EXPECT_EQ(spis.handleOf("ZefModelRepository"), call.subsystem);
        EXPECT_EQ(8u, call.level);
        if (call.message == "Model Repository is started.") {
            started = true;
            EXPECT_EQ("start", call.function);
            EXPECT_EQ("ModelRepositoryService.cpp", call.file.substr(call.file.rfind('/') + 1));
        }
    }
    EXPECT_TRUE(started);
    EXPECT_TRUE(log.traces().empty());
}

TEST_F(ModelRepositoryServiceComponentTest, ARefusedTransactionSubsystemIsReportedUnderItsServiceName) {
    spis.refusedSubsystems = {"ZefTransaction"};
    testing::internal::CaptureStderr();
    spis.attachTrace2();
    EXPECT_EQ("Could not register ZefTransactionService subsystem in v2 of trace if\n",
              testing::internal::GetCapturedStderr());
    EXPECT_EQ(10u, spis.registeredSubsystems.size());
}

} // namespace
