// Fuzz target: arbitrary bytes as one model file, through the whole load
// cycle of the standalone repository service (parse, compile, validate).
// Built with libFuzzer by scripts/fuzz.sh, and with the replay driver of
// FuzzReplayMain.cpp into the test suite, which runs every input kept in
// tests/fuzz/regressions.

#include <sys/stat.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

#include "LoggingWrapper.h"
#include "ModelParser.h"
#include "ModelRepository.h"
#include "ModelRepositoryService.h"

namespace {

// A folder of this process's own for the model file and the log.
const std::string& scratchFolder() {
    static const std::string folder = [] {
        const char* tmp = std::getenv("TMPDIR");
        std::string name = std::string(tmp != nullptr && *tmp != '\0' ? tmp : "/tmp") + "/zef_fuzz_" +
                           std::to_string(static_cast<long>(getpid()));
        mkdir(name.c_str(), 0700);
        return name;
    }();
    return folder;
}

// Logs go to a file of the scratch folder, errors and warnings only: the
// trace of every input would cost more than the input itself.
void quietLogging() {
    static bool done = false;
    if (done) {
        return;
    }
    done = true;
    Zef::LoggingWrapper* logger = Zef::LoggingWrapper::instance();
    logger->set_fname(scratchFolder() + "/fuzz.log");
    logger->set_max_size(1 << 20);
    logger->set_level(4);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    quietLogging();
    const std::string model = scratchFolder() + "/model.xml";
    FILE* file = std::fopen(model.c_str(), "wb");
    if (file == nullptr) {
        return 0;
    }
    std::fwrite(data, 1, size, file);
    std::fclose(file);

    // The stages of the service's start for one file, called one by one:
    // start also forks the pattern checker before the load, and a fork for
    // every input leaves the fuzzer a dozen inputs a second. The checker is
    // then forked at the first pattern check, as when the load did not
    // start it.
    ZefModelRepositoryService::ModelRepositoryService service(true);
    ZefModelRepositoryService::ModelRepository& repository = *service.getModelRepository();
    ZefModelRepositoryService::ModelParser parser(repository);
    parser.setStandalone(true);
    repository.setStandalone(true);
    try {
        if (parser.parse(model) == 0) {
            repository.compileModel();
            repository.validateModel();
            repository.dumpModel();
        }
    } catch (const std::exception&) {
        // A document that is not a model file at all escapes the load on
        // purpose; the command's main ends the run with one line for it.
    }
    return 0;
}
