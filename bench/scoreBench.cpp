// SPDX-License-Identifier: MIT

// What one pair costs when it is scored alone, copies of the names included.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "bench/columnNames.h"
#include "matching/columnNameScore.h"
#include "matching/normalizeColumnName.h"
#include "matching/reference/reference.h"

namespace columnimport::bench {
namespace {

/// Scores the pairs of neighbours in a list, one after the other. The argument is the length of
/// the names, 0 for names as they come.
void scorePairs(benchmark::State &state, double (*score)(std::string, std::string)) {
    const auto length = static_cast<std::size_t>(state.range(0));
    std::vector<std::string> names = length == 0 ? columnNames(500, 1) : longNames(16, length);
    for (std::string &name : names) {
        name = normalizeColumnName(name);
    }
    std::size_t i = 0;
    while (state.KeepRunning()) {
        const std::size_t next = i + 1 < names.size() ? i + 1 : 0;
        benchmark::DoNotOptimize(score(names[i], names[next]));
        i = next;
    }
}

void plain(benchmark::State &state) {
    scorePairs(state, reference::columnNameScore);
}
void fast(benchmark::State &state) {
    scorePairs(state, columnNameScore);
}
BENCHMARK(plain)->Name("columnNameScore/reference")->Arg(0)->Arg(100)->Arg(4000);
BENCHMARK(fast)->Name("columnNameScore")->Arg(0)->Arg(100)->Arg(4000);

} // namespace
} // namespace columnimport::bench
