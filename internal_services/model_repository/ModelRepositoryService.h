#ifndef ZEF_MODEL_REPOSITORY_SERVICE_H
#define ZEF_MODEL_REPOSITORY_SERVICE_H

#include <list>
#include <string>

#include "ModelRepository.h"
#include "ZefInternalService.h"
#include "ZefMgmtSpi.h"
#include "ZefReturn.h"

namespace Zef {
class ConfigurationFile;
} // namespace Zef

namespace ZefModelRepositoryService {

/// Owns the process's one ModelRepository and runs its load cycle: parse
/// every model file in list order, compile, validate, mark started.
///
/// It runs in one of two modes. Standalone (the validator tool): files and
/// main root name are handed over directly and every finding is collected.
/// Component (inside a management framework): init registers the
/// component record "ZefOamSpiModelRepositoryService" with the framework's
/// portal and reads the settings of section [ModelRepository] of the
/// component configuration; start takes the model files from the model
/// specification file named there, and the first error of the model ends
/// the load with a Zef::ZefException.
///
/// A process-wide singleton: constructing a second instance while one
/// exists is a programming error and aborts the process. The C functions of
/// the published interfaces reach it through getModelRepositoryService().
///
/// Sources: ModelRepositoryService.cpp (life cycle),
/// ModelRepositoryServiceComponent.cpp (component record and the C
/// functions of its interfaces), ModelRepositoryServiceFiles.cpp (settings,
/// model specification file and directory scan).
class ModelRepositoryService : public Zef::ZefInternalService {
public:
    /// Component mode.
    ModelRepositoryService();
    /// Standalone mode when `standalone` is true, component mode otherwise.
    explicit ModelRepositoryService(bool standalone);
    ~ModelRepositoryService() override;

    ModelRepositoryService(const ModelRepositoryService&) = delete;
    ModelRepositoryService& operator=(const ModelRepositoryService&) = delete;

    /// Obtains the interface portal of version "3" from `accessor` (a
    /// missing portal aborts the process), registers the component record
    /// with it, and reads section [ModelRepository] of `cfg`: in component
    /// mode the model specification file "modelSpecFile" (trimmed; it must
    /// name an existing, regular, readable file), in both modes the main
    /// root name "mainRootName" (trimmed; an empty one keeps the name set
    /// before). Returns 0, -1 for a bad "modelSpecFile", or the portal's
    /// non-zero result when it refuses the registration.
    ZefReturnT init(ZefMgmtSpiInterfacePortalAccessor* accessor, Zef::ConfigurationFile& cfg) override;
    /// Unregisters the component record from the portal when init
    /// registered it; returns 0.
    ZefReturnT terminate() override;
    /// Loads the model files. Returns 0 on success (also for an empty file
    /// list), -3 when already started, or the parser's non-zero code of the
    /// first file that could not be parsed (later files are not read). In
    /// component mode the files are first taken from the model
    /// specification file: -2 when none is configured, -1 when it names a
    /// bad file; and the first error of the model throws Zef::ZefException.
    virtual ZefReturnT start();
    /// Forgets the model files, empties the repository, not started again.
    virtual void stop();

    static ModelRepositoryService* getModelRepositoryService() { return _instance; }
    static bool isStandalone() { return _standalone; }
    static void setStandalone(bool standalone) { _standalone = standalone; }

    ModelRepository* getModelRepository() { return &_repository; }
    bool isStarted() const { return _started; }

    /// Replaces the model file list by a copy of `files` (parsed in this order).
    void setModelFiles(const std::list<std::string>& files) { _modelFiles = files; }
    const std::list<std::string>& getModelFileList() const { return _modelFiles; }
    void setMainRootName(const std::string& name) { _mainRootName = name; }
    const std::string& getMainRootName() const { return _mainRootName; }
    /// The model specification file taken from the configuration by init.
    const std::string& getModelSpecFile() const { return _modelSpecFile; }

    /// Appends the model files named by the specification file `path`, one
    /// path per line (blank lines skipped). Every file must exist, be a
    /// readable regular file and have the extension "xml". Returns 0, or -1
    /// at the first bad line, after which the model file list is empty.
    ZefReturnT processModelSpecFile(const std::string& path);
    /// Appends the absolute path of every entry of the folder `dir` with the
    /// extension "xml", in the order the system lists them. Returns 0, or
    /// -1 (with a warning) when `dir` is missing, not a folder or not readable.
    ZefReturnT getModelFiles(const std::string& dir);

    /// The component record registered with the portal. Filled when a
    /// component-mode service is constructed; its start and stop functions
    /// act on getModelRepositoryService().
    static const ZefMgmtSpiComponent_2* getComponentDescriptor();

private:
    void initService(bool standalone);
    /// Builds the component record and its interface records in static storage.
    static void fillComponentDescriptor();
    /// Reads section [ModelRepository] of `cfg` as init describes; -1 for a bad "modelSpecFile".
    ZefReturnT readSettings(const Zef::ConfigurationFile& cfg);

    bool _started = false;
    ModelRepository _repository;
    ZefMgmtSpiInterfacePortal_3* _portal = nullptr;
    std::string _mainRootName;
    std::list<std::string> _modelFiles;
    std::string _modelSpecFile;

    static ModelRepositoryService* _instance;
    static bool _standalone;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_MODEL_REPOSITORY_SERVICE_H
