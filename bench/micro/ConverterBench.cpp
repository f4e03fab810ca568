// The cost of the text-to-number converters that check every default value,
// range bound and multiplicity of a model.

#include <benchmark/benchmark.h>

#include <string>

#include "MrUtil.h"

namespace {

using namespace ZefModelRepositoryService;

void BM_ToInt32(benchmark::State& state) {
    const std::string text = "-123456";
    int value = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(MrUtil::toInt(text, value));
    }
}
BENCHMARK(BM_ToInt32);

void BM_ToUInt8OutOfRange(benchmark::State& state) {
    const std::string text = "300";
    unsigned char value = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(MrUtil::toInt(text, value));
    }
}
BENCHMARK(BM_ToUInt8OutOfRange);

void BM_ToDouble(benchmark::State& state) {
    const std::string text = "2.75";
    double value = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(MrUtil::toDouble(text, value));
    }
}
BENCHMARK(BM_ToDouble);

} // namespace
