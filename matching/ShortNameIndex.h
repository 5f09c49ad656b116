#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "matching/Lanes.h"
#include "matching/longestRun.h"
#include "matching/nameSymbols.h"
#include "matching/vote.h"

namespace columnimport {

/// The application columns' names of 3 to `maskedLength` bytes, prepared for being compared with
/// one file column's name after the other by the measure for names that are neither equal nor
/// synonyms.
///
/// The measure of two names grows with the bytes that they share plus the longest run less one. A
/// run of L bytes has L - 1 pairs of neighbours, so the bytes and the pairs that two names share
/// bound that sum. The index has a row with one bit per application column for each byte and each
/// pair of neighbours that occurs; counting the rows of a file column's name bounds its measure
/// for 128 application columns at once. Only those whose bound reaches a good score are measured,
/// and only if none has it the bar is lowered, down to the acceptance threshold.
///
/// With A application columns, counting a name of n bytes takes about n * A / 3 operations on words
/// for each bar; the measure is left for a handful of columns, however many there are. The index
/// takes at most 190 * A bytes, and 3 * A for each length of a file column's name.
class ShortNameIndex {
public:
    static bool holds(std::string_view name) {
        return name.size() >= 3 && name.size() <= maskedLength;
    }

    /// Takes the normalised names that it `holds` and leaves the others out.
    explicit ShortNameIndex(const std::vector<std::string> &appColumns);

    /// The vote of a file column with a normalised name of a length that the index `holds`.
    Vote vote(std::string_view fileColumn);

private:
    struct Column {
        std::int32_t app;
        std::uint32_t length;
        std::size_t begin; ///< of its name in m_symbols and m_ranks
    };

    /// Counters of one block of columns. A column's counter starts as far below 128 as the sum
    /// that is the least for the bar with its own length and the file column's.
    using Starts = std::vector<LaneCounters>;

    struct FileName;

    void addColumn(std::size_t lane, std::string_view name);
    void mark(std::size_t feature, std::size_t lane);
    FileName prepare(std::string_view name) const;
    const Starts &startsFor(std::size_t bar, std::size_t length);
    void offerBlock(Vote &vote, std::size_t block, const LaneCounters &start,
                    const FileName &file) const;
    void measure(Vote &vote, const Column &column, const FileName &file) const;

    static constexpr std::size_t emptyRow = 0;

    std::vector<Column> m_columns; ///< by length, so that equal starts stand side by side
    std::vector<std::uint8_t> m_symbols;
    std::vector<std::uint8_t> m_ranks; ///< how often the same byte stands before this one
    std::size_t m_blockCount;
    std::vector<std::size_t> m_rowOfFeature; ///< where the feature's row begins in m_rows
    std::vector<Lanes> m_rows;               ///< m_blockCount entries for each row
    std::vector<Starts> m_starts;            ///< by bar and length, made when first needed
};

} // namespace columnimport
