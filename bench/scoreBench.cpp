// What one pair costs when the two functions are called alone, copies of the names included.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <vector>

#include "bench/columnNames.h"
#include "matching/columnNameScore.h"
#include "matching/normalizeColumnName.h"
#include "matching/reference/reference.h"

namespace columnimport::bench {
namespace {

using Score = double (*)(std::string, std::string);
using Length = std::int32_t (*)(std::string, std::string, std::int32_t, std::int32_t);

/// Names as the matcher sees them, or runs of such names of `length` bytes.
std::vector<std::string> normalisedNames(std::size_t count, std::size_t length) {
    std::vector<std::string> names = columnNames(count, 1);
    const std::string endless = endlessName(2 * count * length);
    for (std::size_t i = 0; i < count; ++i) {
        names[i] = normalizeColumnName(length == 0 ? names[i] : endless.substr(2 * i * length))
                       .substr(0, length == 0 ? std::string::npos : length);
    }
    return names;
}

/// Calls `measure` for the pairs of neighbours in a list, one after the other.
template <typename Measure>
void measurePairs(benchmark::State &state, Measure measure) {
    const auto length = static_cast<std::size_t>(state.range(0));
    const std::vector<std::string> names = normalisedNames(length < 1000 ? 500 : 8, length);
    std::size_t i = 0;
    while (state.KeepRunning()) {
        const std::size_t next = i + 1 < names.size() ? i + 1 : 0;
        benchmark::DoNotOptimize(measure(names[i], names[next]));
        i = next;
    }
}

void score(benchmark::State &state, Score function) {
    measurePairs(state, function);
}

void length(benchmark::State &state, Length function) {
    measurePairs(state, [function](const std::string &a, const std::string &b) {
        return function(a, b, static_cast<std::int32_t>(a.size()),
                        static_cast<std::int32_t>(b.size()));
    });
}

// The argument is the length of the names, 0 for names as they come.
BENCHMARK_CAPTURE(score, literal, reference::columnNameScore)->Arg(0)->Arg(100)->Arg(4000);
BENCHMARK_CAPTURE(score, current, columnNameScore)->Arg(0)->Arg(100)->Arg(4000);
BENCHMARK_CAPTURE(length, literal, reference::longestCommonSubstringLength)
    ->Arg(0)
    ->Arg(100)
    ->Arg(4000);
BENCHMARK_CAPTURE(length, current, longestCommonSubstringLength)->Arg(0)->Arg(100)->Arg(4000);

} // namespace
} // namespace columnimport::bench
