#include "matching/ShortNameIndex.h"

#include <algorithm>
#include <cassert>

#include "matching/blendedMeasure.h"

namespace columnimport {

namespace {

/// The scores that are looked for, one after the other. Most file columns that fit at all fit well,
/// and a high bar spares nearly all others the measure.
constexpr std::array bars = {0.7, 0.55, acceptanceThreshold};

/// A byte's first, second, third and any later occurrence are four features; a pair of neighbours
/// is one, however often it occurs. What is not told apart can only raise a bound.
constexpr std::size_t ranksPerSymbol = 4;
constexpr std::size_t featureCount = symbolCount * ranksPerSymbol + symbolCount * symbolCount;

std::size_t byteFeature(std::size_t symbol, std::size_t rank) {
    return symbol * ranksPerSymbol + std::min(rank, ranksPerSymbol - 1);
}

std::size_t pairFeature(std::size_t symbol, std::size_t next) {
    return symbolCount * ranksPerSymbol + symbol * symbolCount + next;
}

using LengthRow = std::array<double, maskedLength + 1>;

/// For two lengths, what the shared bytes plus the run less one come to at a measure of exactly 1;
/// at any other measure it is in proportion.
constexpr std::array<LengthRow, maskedLength + 1> makeFullSums() {
    std::array<LengthRow, maskedLength + 1> sums{};
    for (std::size_t a = 1; a <= maskedLength; ++a) {
        for (std::size_t b = 1; b <= maskedLength; ++b) {
            sums[a][b] = 4.0 * static_cast<double>(a * b) / static_cast<double>(a + b);
        }
    }
    return sums;
}

constexpr std::array<LengthRow, maskedLength + 1> fullSums = makeFullSums();

/// The least sum of shared bytes and run less one that may reach `score`. The slack is far above
/// what rounding can make of a sum and far below 1, so no pair that reaches the score is left out;
/// the measure itself decides.
std::size_t leastSum(double score, std::size_t lengthA, std::size_t lengthB) {
    constexpr double slack = 1e-9;
    return static_cast<std::size_t>(score * fullSums[lengthA][lengthB] + (1.0 - slack));
}

} // namespace

/// A file column's name, taken apart once for all comparisons.
struct ShortNameIndex::FileName {
    void use(std::size_t row) {
        rows[rowCount] = row;
        rowCount += row != emptyRow ? 1 : 0;
    }

    std::size_t length = 0;
    std::array<std::uint8_t, symbolCount> counts{};
    std::array<std::uint64_t, symbolCount> positions{};
    std::size_t rowCount = 0;
    /// Filled up with empty rows to a multiple of those that are counted at once.
    std::array<std::size_t, 2 * maskedLength + LaneCounters::rowsAtOnce> rows;
};

ShortNameIndex::ShortNameIndex(const std::vector<std::string> &appColumns)
    : m_rowOfFeature(featureCount, emptyRow), m_starts(bars.size() * (maskedLength + 1)) {
    for (std::size_t i = 0; i < appColumns.size(); ++i) {
        if (holds(appColumns[i])) {
            m_columns.push_back({static_cast<std::int32_t>(i),
                                 static_cast<std::uint32_t>(appColumns[i].size()), 0});
        }
    }
    std::sort(m_columns.begin(), m_columns.end(),
              [](const Column &a, const Column &b) { return a.length < b.length; });
    m_blockCount = (m_columns.size() + Lanes::count - 1) / Lanes::count;
    m_rows.resize(m_blockCount);
    for (std::size_t lane = 0; lane < m_columns.size(); ++lane) {
        addColumn(lane, appColumns[static_cast<std::size_t>(m_columns[lane].app)]);
    }
}

void ShortNameIndex::addColumn(std::size_t lane, std::string_view name) {
    m_columns[lane].begin = m_symbols.size();
    std::array<std::uint8_t, symbolCount> counts{};
    for (std::size_t i = 0; i < name.size(); ++i) {
        const std::uint8_t symbol = symbolOf(name[i]);
        const std::uint8_t rank = counts[symbol]++;
        mark(byteFeature(symbol, rank), lane);
        if (i > 0) {
            mark(pairFeature(m_symbols.back(), symbol), lane);
        }
        m_symbols.push_back(symbol);
        m_ranks.push_back(rank);
    }
}

void ShortNameIndex::mark(std::size_t feature, std::size_t lane) {
    std::size_t &row = m_rowOfFeature[feature];
    if (row == emptyRow) {
        row = m_rows.size();
        m_rows.resize(m_rows.size() + m_blockCount);
    }
    m_rows[row + lane / Lanes::count].set(lane % Lanes::count);
}

Vote ShortNameIndex::vote(std::string_view fileColumn) {
    assert(holds(fileColumn));
    const FileName file = prepare(fileColumn);
    Vote vote;
    for (std::size_t bar = 0; bar < bars.size() && vote.app < 0; ++bar) {
        vote.score = bars[bar];
        const Starts &starts = startsFor(bar, file.length);
        for (std::size_t block = 0; block < m_blockCount; ++block) {
            offerBlock(vote, block, starts[block], file);
        }
    }
    return vote;
}

ShortNameIndex::FileName ShortNameIndex::prepare(std::string_view name) const {
    FileName file;
    file.length = name.size();
    std::uint8_t previous = 0;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const std::uint8_t symbol = symbolOf(name[i]);
        file.use(m_rowOfFeature[byteFeature(symbol, file.counts[symbol]++)]);
        if (i > 0) {
            file.use(m_rowOfFeature[pairFeature(previous, symbol)]);
        }
        file.positions[symbol] |= std::uint64_t{1} << i;
        previous = symbol;
    }
    std::fill_n(&file.rows[file.rowCount], LaneCounters::rowsAtOnce - 1, emptyRow);
    return file;
}

const ShortNameIndex::Starts &ShortNameIndex::startsFor(std::size_t bar, std::size_t length) {
    Starts &starts = m_starts[bar * (maskedLength + 1) + length];
    if (starts.empty()) {
        starts.resize(m_blockCount);
        for (std::size_t first = 0, last = 0; first < m_columns.size(); first = last) {
            const std::size_t block = first / Lanes::count;
            const std::size_t end = std::min((block + 1) * Lanes::count, m_columns.size());
            while (last < end && m_columns[last].length == m_columns[first].length) {
                ++last;
            }
            const std::size_t least = leastSum(bars[bar], length, m_columns[first].length);
            starts[block].set(Lanes::range(first % Lanes::count, last - block * Lanes::count),
                              128 - least);
        }
    }
    return starts;
}

void ShortNameIndex::offerBlock(Vote &vote, std::size_t block, const LaneCounters &start,
                                const FileName &file) const {
    LaneCounters counters = start;
    const Lanes *rows = &m_rows[block];
    for (std::size_t i = 0; i < file.rowCount; i += LaneCounters::rowsAtOnce) {
        counters.add(rows[file.rows[i]], rows[file.rows[i + 1]], rows[file.rows[i + 2]],
                     rows[file.rows[i + 3]]);
    }
    counters.atLeast128().forEach([&](std::size_t lane) {
        const Column &column = m_columns[block * Lanes::count + lane];
        const std::size_t sum = counters[lane] - start[lane];
        if (sum >= leastSum(vote.score, file.length, column.length)) {
            measure(vote, column, file);
        }
    });
}

void ShortNameIndex::measure(Vote &vote, const Column &column, const FileName &file) const {
    const std::uint8_t *symbols = &m_symbols[column.begin];
    const std::uint8_t *ranks = &m_ranks[column.begin];
    std::size_t shared = 0;
    for (std::size_t i = 0; i < column.length; ++i) {
        shared += ranks[i] < file.counts[symbols[i]] ? 1 : 0;
    }
    const std::size_t least = leastSum(vote.score, file.length, column.length);
    const std::size_t tooShort = least > shared ? least - shared : 0;
    const std::size_t run = longestRunAbove(tooShort, file.positions, symbols, column.length);
    if (run > tooShort) {
        vote.offer(blendedMeasure(shared, shared, run, column.length, file.length), column.app);
    }
}

} // namespace columnimport
