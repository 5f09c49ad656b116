// SPDX-License-Identifier: MIT

// Measures a proposal, including the copies of both lists and the normalization.

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "bench/columnNames.h"
#include "matching/matchColumns.h"
#include "matching/reference/reference.h"

namespace columnimport::bench {
namespace {

using Names = std::vector<std::string>;

constexpr auto ourMatcher = [](const Names &app, const Names &file) {
    return matchColumns(app, file);
};

template <typename Matcher>
void propose(benchmark::State &state, Matcher matcher, const Names &app, const Names &file) {
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(matcher(app, file));
    }
    const auto pairs = static_cast<double>(app.size()) * static_cast<double>(file.size());
    using benchmark::Counter;
    state.counters["time/pair"] =
        Counter(pairs, Counter::kIsIterationInvariantRate | Counter::kInvert);
}

/// The arguments are the numbers of application columns and file columns.
template <typename Matcher>
void proposeForLists(benchmark::State &state, Matcher matcher) {
    propose(state, matcher, columnNames(static_cast<std::size_t>(state.range(0)), 1),
            columnNames(static_cast<std::size_t>(state.range(1)), 2));
}

void plain(benchmark::State &state) {
    proposeForLists(state, [](const Names &app, const Names &file) {
        return reference::matchColumns(app, file);
    });
}
void fast(benchmark::State &state) {
    proposeForLists(state, ourMatcher);
}

// Five file columns for each application column, in lists of up to 4,096 times as many pairs.
BENCHMARK(plain)
    ->Name("matchColumns/reference")
    ->Args({25, 125})
    ->Args({50, 250})
    ->Args({100, 500})
    ->Args({200, 1000})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(fast)
    ->Name("matchColumns")
    ->Args({25, 125})
    ->Args({50, 250})
    ->Args({100, 500})
    ->Args({200, 1000})
    ->Args({400, 2000})
    ->Args({800, 4000})
    ->Args({1600, 8000})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(fast)
    ->Name("matchColumns/wideTable")
    ->Args({2000, 5000})
    ->Args({100, 100000})
    ->Unit(benchmark::kMicrosecond);

/// 200 application columns and 1,000 file columns with names of a hundred bytes.
void longTitles(benchmark::State &state) {
    const Names names = longNames(1200, 100);
    propose(state, ourMatcher, {names.begin(), names.begin() + 200},
            {names.begin() + 200, names.end()});
}
BENCHMARK(longTitles)->Name("matchColumns/namesOf100Bytes")->Unit(benchmark::kMicrosecond);

/// A file without a line feed, whose first line is one name.
void endlessLine(benchmark::State &state) {
    const Names file = {endlessName(static_cast<std::size_t>(state.range(0)) << 20U)};
    propose(state, ourMatcher, columnNames(100, 1), file);
}
BENCHMARK(endlessLine)
    ->Name("matchColumns/nameOfMegabytes")
    ->Arg(1)
    ->Arg(64)
    ->Unit(benchmark::kMicrosecond);

/// One pair of names that are both long.
void hugePair(benchmark::State &state) {
    const Names names = longNames(2, static_cast<std::size_t>(state.range(0)) << 10U);
    propose(state, ourMatcher, {names[0]}, {names[1]});
}
BENCHMARK(hugePair)
    ->Name("matchColumns/pairOfKilobytes")
    ->Arg(8)
    ->Arg(64)
    ->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace columnimport::bench
