// The cost of one log or trace line as the model code writes them: a
// typical trace, a record dump far longer than a line keeps, a trace that
// the level turns off, and an error line (flushed at once).

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

#include "ZefLog.h"

namespace {

// Every benchmark writes into one scratch log file of its own folder; the
// file rotates as the validator's does.
void useScratchLog(unsigned int level) {
    static const std::string file = [] {
        char folder[] = "/tmp/zef_micro_bench_XXXXXX";
        const char* made = mkdtemp(folder);
        return std::string(made != nullptr ? made : "/tmp") + "/trace.log";
    }();
    Zef::LoggingWrapper* logger = Zef::LoggingWrapper::instance();
    logger->set_fname(file);
    logger->set_level(level);
}

void BM_TraceLine(benchmark::State& state) {
    useScratchLog(8);
    const std::string key = "Mom042~1~CarrierUnit042_17";
    for (auto _ : state) {
        ZEF_TRACE("Checking Containment(%s)", key.c_str());
    }
}
BENCHMARK(BM_TraceLine);

void BM_TraceEnterLine(benchmark::State& state) {
    useScratchLog(8);
    for (auto _ : state) {
        ZEF_TRACE_ENTER(" >> Processing attribute: %s.", "administrativeState");
    }
}
BENCHMARK(BM_TraceEnterLine);

void BM_TraceLongDump(benchmark::State& state) {
    useScratchLog(8);
    // A class dump with its attributes runs to kilobytes; a line keeps the
    // first part only.
    std::string dump;
    while (dump.size() < 8000) {
        dump += "Name:              administrativeState\nDescription:       The state.\n";
    }
    for (auto _ : state) {
        ZEF_TRACE("%s", dump.c_str());
    }
}
BENCHMARK(BM_TraceLongDump);

void BM_TraceDisabled(benchmark::State& state) {
    useScratchLog(3);
    const std::string key = "Mom042~1~CarrierUnit042_17";
    for (auto _ : state) {
        ZEF_TRACE("Checking Containment(%s)", key.c_str());
    }
}
BENCHMARK(BM_TraceDisabled);

void BM_ErrorLine(benchmark::State& state) {
    useScratchLog(3);
    const std::string key = "Mom042~1~CarrierUnit042_17";
    for (auto _ : state) {
        ZEF_LOG_ERROR("Moc (%s) has no parent.", key.c_str());
    }
}
BENCHMARK(BM_ErrorLine);

} // namespace
