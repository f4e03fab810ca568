// The cost of building and releasing one document's worth of small blocks
// (nodes, names, texts of a few sizes), through the command's small-block
// heap and through malloc, as the command did before it had that heap.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <vector>

#include "SmallBlockHeap.h"

namespace {

const std::size_t kBlocksPerDocument = 100000;
const std::size_t kSizes[] = {24, 40, 64, 96, 136, 48, 32, 200};

template <typename Allocate, typename Release>
void churnDocuments(benchmark::State& state, Allocate allocate, Release release) {
    std::vector<void*> blocks(kBlocksPerDocument);
    for (auto _ : state) {
        for (std::size_t i = 0; i < kBlocksPerDocument; ++i) {
            blocks[i] = allocate(kSizes[i % (sizeof kSizes / sizeof kSizes[0])]);
            *static_cast<char*>(blocks[i]) = 1;
        }
        for (void* block : blocks) {
            release(block);
        }
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * kBlocksPerDocument));
}

void BM_DocumentBlocksSmallBlockHeap(benchmark::State& state) {
    churnDocuments(state, Zef::SmallBlockHeap::allocate, Zef::SmallBlockHeap::release);
}
BENCHMARK(BM_DocumentBlocksSmallBlockHeap);

void BM_DocumentBlocksMalloc(benchmark::State& state) {
    churnDocuments(state, std::malloc, std::free);
}
BENCHMARK(BM_DocumentBlocksMalloc);

} // namespace
