#ifndef ZEF_MODEL_REPOSITORY_SERVICE_H
#define ZEF_MODEL_REPOSITORY_SERVICE_H

#include <list>
#include <string>

#include "ModelRepository.h"
#include "ZefReturn.h"

namespace ZefModelRepositoryService {

/// Owns the process's one ModelRepository and runs its load cycle: parse
/// every model file in list order, compile, validate, mark started.
///
/// A process-wide singleton: constructing a second instance while one
/// exists is a programming error and aborts the process.
class ModelRepositoryService {
public:
    /// Standalone mode (true) is the validator tool: files and main root
    /// name are handed over directly and every finding is collected.
    explicit ModelRepositoryService(bool standalone);
    virtual ~ModelRepositoryService();

    ModelRepositoryService(const ModelRepositoryService&) = delete;
    ModelRepositoryService& operator=(const ModelRepositoryService&) = delete;

    /// Loads the model files. Returns 0 on success (also for an empty file
    /// list), -3 when already started, or the parser's non-zero code of the
    /// first file that could not be parsed (later files are not read).
    virtual ZefReturnT start();
    /// Forgets the model files, empties the repository, not started again.
    virtual void stop();
    /// Unregisters from the framework when registered; returns 0.
    virtual ZefReturnT terminate();

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

private:
    void initService(bool standalone);

    bool _started = false;
    ModelRepository _repository;
    void* _portal = nullptr;
    std::string _mainRootName;
    std::list<std::string> _modelFiles;
    std::string _modelSpecFile;

    static ModelRepositoryService* _instance;
    static bool _standalone;
};

} // namespace ZefModelRepositoryService

#endif // ZEF_MODEL_REPOSITORY_SERVICE_H
