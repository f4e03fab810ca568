// The cost of the lookups compilation makes for every reference, on
// repositories of a growing number of MOMs (40 classes each): a class by
// key, the MOM of a class named without one, the version of a MOM named
// without one, and a modelling-standard MOM name. A lookup whose time grows
// with the number of MOMs makes compilation quadratic.

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "ModelRepository.h"
#include "MocWrapper.h"
#include "MomWrapper.h"
#include "ZefLog.h"

namespace {

using namespace ZefModelRepositoryService;

const int kClassesPerMom = 40;

std::string momName(int mom) { return "Mom" + std::to_string(mom); }
std::string className(int mom, int moc) { return "Unit" + std::to_string(mom) + "_" + std::to_string(moc); }

std::unique_ptr<ModelRepository> repositoryOf(int moms) {
    Zef::LoggingWrapper::instance()->set_level(3);
    std::unique_ptr<ModelRepository> repository(new ModelRepository());
    repository->setStandalone(true);
    for (int m = 0; m < moms; ++m) {
        MomWrapper* mom = new MomWrapper();
        mom->setName(momName(m));
        mom->setVersion("1");
        mom->push_back_domain_extension("QCIM", "qcimMomName", "Q" + momName(m));
        repository->addMom(mom);
        for (int c = 0; c < kClassesPerMom; ++c) {
            MocWrapper* moc = new MocWrapper();
            moc->setName(className(m, c));
            moc->setMom(&mom->getStruct());
            repository->addMoc(moc);
        }
    }
    return repository;
}

void BM_ClassByKey(benchmark::State& state) {
    const int moms = static_cast<int>(state.range(0));
    std::unique_ptr<ModelRepository> repository = repositoryOf(moms);
    const std::string name = momName(moms / 2);
    const std::string moc = className(moms / 2, 7);
    const ZefOamSpiMoc* found = nullptr;
    for (auto _ : state) {
        benchmark::DoNotOptimize(repository->getMoc(name.c_str(), "1", moc.c_str(), &found));
    }
}
BENCHMARK(BM_ClassByKey)->RangeMultiplier(4)->Range(8, 512);

void BM_MomOfClassName(benchmark::State& state) {
    const int moms = static_cast<int>(state.range(0));
    std::unique_ptr<ModelRepository> repository = repositoryOf(moms);
    const std::string moc = className(moms / 2, 7);
    std::string mimName;
    std::string mimVersion;
    for (auto _ : state) {
        repository->getMimNameAndVersion(moc, mimName, mimVersion);
        benchmark::DoNotOptimize(mimName);
    }
}
BENCHMARK(BM_MomOfClassName)->RangeMultiplier(4)->Range(8, 512);

void BM_VersionOfMomName(benchmark::State& state) {
    const int moms = static_cast<int>(state.range(0));
    std::unique_ptr<ModelRepository> repository = repositoryOf(moms);
    const std::string name = momName(moms / 2);
    std::string version;
    for (auto _ : state) {
        repository->getMimVersion(name, version);
        benchmark::DoNotOptimize(version);
    }
}
BENCHMARK(BM_VersionOfMomName)->RangeMultiplier(4)->Range(8, 512);

void BM_ModellingStandardName(benchmark::State& state) {
    const int moms = static_cast<int>(state.range(0));
    std::unique_ptr<ModelRepository> repository = repositoryOf(moms);
    const std::string name = "Q" + momName(moms / 2);
    std::string mimName;
    std::string mimVersion;
    for (auto _ : state) {
        benchmark::DoNotOptimize(repository->getMimInfoFromQcimName(name, mimName, mimVersion));
    }
}
BENCHMARK(BM_ModellingStandardName)->RangeMultiplier(4)->Range(8, 512);

} // namespace
