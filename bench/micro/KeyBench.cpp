// The cost of identity keys: building one from its parts (as compilation
// does for every reference) and reading a record's cached key.

#include <benchmark/benchmark.h>

#include "AttrWrapper.h"
#include "MocWrapper.h"
#include "MomWrapper.h"

namespace {

using namespace ZefModelRepositoryService;

void BM_MocKeyFromParts(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(MocWrapper::getMocId("Mom042", "1", "CarrierUnit042_17"));
    }
}
BENCHMARK(BM_MocKeyFromParts);

void BM_AttrKeyFromParts(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(AttrWrapper::getAttrId("Mom042", "1", "CarrierUnit042_17", "administrativeState3"));
    }
}
BENCHMARK(BM_AttrKeyFromParts);

void BM_CachedMocKey(benchmark::State& state) {
    MomWrapper mom;
    mom.setName("Mom042");
    mom.setVersion("1");
    MocWrapper moc;
    moc.setName("CarrierUnit042_17");
    moc.setMom(&mom.getStruct());
    for (auto _ : state) {
        benchmark::DoNotOptimize(moc.getId());
    }
}
BENCHMARK(BM_CachedMocKey);

} // namespace
