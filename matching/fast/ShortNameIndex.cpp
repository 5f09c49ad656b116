// SPDX-License-Identifier: MIT

#include "matching/fast/ShortNameIndex.h"

#include <algorithm>
#include <array>
#include <cassert>

#include "matching/fast/offerMeasured.h"

namespace columnimport {

namespace {

/// The scores to reach, tried in this order. Most file columns that fit at all fit well, and a high
/// bar spares nearly all other columns the measure.
constexpr std::array bars = {0.7, 0.55, acceptanceThreshold};

/// A byte's first, second, third and any later occurrence are four features; a pair of neighbours
/// is one, however often it occurs. Merging features can only raise a bound.
constexpr std::size_t ranksPerSymbol = 4;
constexpr std::size_t featureCount =
    nameSymbols.size() * ranksPerSymbol + nameSymbols.size() * nameSymbols.size();

/// Calls `visit` with each feature of a name.
template <typename Visit>
void forEachFeature(std::string_view name, Visit visit) {
    std::array<std::uint8_t, nameSymbols.size()> seen{};
    std::size_t previous = nameSymbols.size();
    for (const char byte : name) {
        const std::size_t symbol = symbolOf(byte);
        const std::size_t rank = std::min<std::size_t>(seen[symbol]++, ranksPerSymbol - 1);
        visit(symbol * ranksPerSymbol + rank);
        if (previous != nameSymbols.size()) {
            visit(nameSymbols.size() * ranksPerSymbol + previous * nameSymbols.size() + symbol);
        }
        previous = symbol;
    }
}

} // namespace

ShortNameIndex::ShortNameIndex(std::vector<AppColumn> columns)
    : m_columns(std::move(columns)), m_blockCount((m_columns.size() + laneCount - 1) / laneCount),
      m_rowOfFeature(featureCount, emptyRow), m_rows(m_blockCount),
      m_starts(bars.size() * (maskedLength + 1)) {
    for (std::size_t column = 0; column < m_columns.size(); ++column) {
        assert(holds(m_columns[column].name.bytes));
        forEachFeature(m_columns[column].name.bytes,
                       [&](std::size_t feature) { addToRow(feature, column); });
    }
}

void ShortNameIndex::addToRow(std::size_t feature, std::size_t column) {
    std::size_t &row = m_rowOfFeature[feature];
    if (row == emptyRow) {
        row = m_rows.size();
        m_rows.resize(m_rows.size() + m_blockCount);
    }
    m_rows[row + column / laneCount].set(column % laneCount);
}

void ShortNameIndex::offer(Vote &vote, const PreparedName &file) {
    assert(holds(file.bytes) && vote.isForNone());
    findRows(file.bytes);
    for (std::size_t bar = 0; bar < bars.size() && vote.isForNone(); ++bar) {
        vote.score = bars[bar];
        const Starts &starts = startsFor(bar, file.bytes.size());
        for (std::size_t block = 0; block < m_blockCount; ++block) {
            offerBlock(vote, block, starts[block], file);
        }
    }
}

void ShortNameIndex::findRows(std::string_view name) {
    m_rowsOfFile.clear();
    forEachFeature(name, [this](std::size_t feature) {
        if (m_rowOfFeature[feature] != emptyRow) {
            m_rowsOfFile.push_back(m_rowOfFeature[feature]);
        }
    });
    while (m_rowsOfFile.size() % LaneCounters::rowsAtOnce != 0) {
        m_rowsOfFile.push_back(emptyRow);
    }
}

const ShortNameIndex::Starts &ShortNameIndex::startsFor(std::size_t bar, std::size_t length) {
    Starts &starts = m_starts[bar * (maskedLength + 1) + length];
    if (starts.empty()) {
        starts.resize(m_blockCount);
        Lanes sameLength;
        for (std::size_t column = 0; column < m_columns.size(); ++column) {
            sameLength.set(column % laneCount);
            const std::size_t next = column + 1;
            if (next == m_columns.size() || next % laneCount == 0 ||
                lengthOf(next) != lengthOf(column)) {
                starts[column / laneCount].set(sameLength,
                                               128 - leastSum(bars[bar], length, lengthOf(column)));
                sameLength.reset();
            }
        }
    }
    return starts;
}

void ShortNameIndex::offerBlock(Vote &vote, std::size_t block, const LaneCounters &start,
                                const PreparedName &file) const {
    LaneCounters counters = start;
    const Lanes *rows = &m_rows[block];
    for (std::size_t i = 0; i < m_rowsOfFile.size(); i += LaneCounters::rowsAtOnce) {
        const std::size_t *row = &m_rowsOfFile[i];
        counters.add(rows[row[0]], rows[row[1]], rows[row[2]], rows[row[3]]);
    }
    forEachLane(counters.atLeast128(), [&](std::size_t lane) {
        offerMeasured(vote, m_columns[block * laneCount + lane], file);
    });
}

} // namespace columnimport
