// What a proposal costs, copies of the two lists and normalisation included.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <vector>

#include "bench/columnNames.h"
#include "matching/matchColumns.h"
#include "matching/reference/reference.h"

namespace columnimport::bench {
namespace {

using Names = std::vector<std::string>;
using Matcher = std::vector<std::int32_t> (*)(Names, Names);

void propose(benchmark::State &state, Matcher matcher, const Names &app, const Names &file) {
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(matcher(app, file));
    }
    const auto pairs = static_cast<double>(app.size()) * static_cast<double>(file.size());
    using benchmark::Counter;
    state.counters["pairs/s"] = Counter(pairs, Counter::kIsIterationInvariantRate);
    state.counters["time/pair"] =
        Counter(pairs, Counter::kIsIterationInvariantRate | Counter::kInvert);
    state.SetComplexityN(static_cast<std::int64_t>(pairs));
}

/// The arguments are the numbers of application columns and file columns.
void proposeForLists(benchmark::State &state, Matcher matcher) {
    propose(state, matcher, columnNames(static_cast<std::size_t>(state.range(0)), 1),
            columnNames(static_cast<std::size_t>(state.range(1)), 2));
}

void literal(benchmark::State &state) {
    proposeForLists(state, reference::matchColumns);
}
void current(benchmark::State &state) {
    proposeForLists(state, matchColumns);
}

// Five file columns for each application column, in lists of up to 512 times as many pairs.
BENCHMARK(literal)
    ->Name("matchColumns/literal")
    ->Args({25, 125})
    ->Args({50, 250})
    ->Args({100, 500})
    ->Args({200, 1000})
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);
BENCHMARK(current)
    ->Name("matchColumns/current")
    ->Args({25, 125})
    ->Args({50, 250})
    ->Args({100, 500})
    ->Args({200, 1000})
    ->Args({400, 2000})
    ->Args({800, 4000})
    ->Args({1600, 8000})
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);
BENCHMARK(current)
    ->Name("matchColumns/current/wideTable")
    ->Args({2000, 5000})
    ->Args({100, 100000})
    ->Unit(benchmark::kMicrosecond);

/// A file without a line feed, whose first line is one name.
void endlessLine(benchmark::State &state) {
    const Names file = {endlessName(static_cast<std::size_t>(state.range(0)) << 20U)};
    propose(state, matchColumns, columnNames(100, 1), file);
}
BENCHMARK(endlessLine)
    ->Name("matchColumns/current/nameOfMegabytes")
    ->Arg(1)
    ->Arg(64)
    ->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace columnimport::bench
