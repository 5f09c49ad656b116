// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "matching/columnNameScore.h"
#include "matching/fast/LaneCounters.h"
#include "matching/fast/PreparedName.h"
#include "matching/vote.h"

namespace columnimport {

/// The application columns with names of 3 to `maskedLength` bytes, prepared for being measured
/// with one file column after the other. Equal names and synonyms are not looked for here.
///
/// The measure of two names grows with the bytes that they share plus the longest run less one. A
/// run of L bytes has L - 1 pairs of neighbours, so the bytes and the pairs that two names share
/// bound that sum. Each is a feature of a name: its first d, its second d, its de. For each feature
/// the index has a row with one bit per application column, its lane. Adding up the rows of a file
/// column's features bounds its measure for 128 application columns at once.
///
/// Each counter starts at 128 less the `leastSum` for a given score, so its top bit shows whether
/// the bound reaches the score. Only such columns are measured. A good score is tried first; if no
/// column reaches it, the bar is lowered, down to the acceptance threshold.
///
/// The application columns `depth`, `dips` and `dip`, and a file column `dept` tried for 0.7:
///
///     lane          depth   dips   dip
///     row of d          1      1     1
///     row of e          1      0     0
///     row of p          1      1     1
///     row of t          1      0     0
///     row of de         1      0     0
///     row of ep         1      0     0
///     row of pt         1      0     0
///     sum               7      2     2
///     start           121    122   123     128 less the least sums 7, 6 and 5
///     counter         128    124   125     only depth is measured: 0.7875
///
/// With A application columns, counting a name of n bytes takes about n * A / 3 operations on words
/// for each bar; the measure is left for a handful of columns, however many there are. The index
/// takes at most 700 * A bytes, and 3 * A for each length of a file column's name.
class ShortNameIndex {
public:
    static bool holds(std::string_view name) {
        return name.size() >= leastMeasuredLength && name.size() <= maskedLength;
    }

    /// Takes columns that it `holds`, sorted by length.
    explicit ShortNameIndex(std::vector<AppColumn> columns);

    /// Offers all columns to the vote of the file column `file`, whose name the index `holds`. The
    /// vote must be for none so far.
    void offer(Vote &vote, const PreparedName &file);

private:
    /// The counters of each block of columns.
    using Starts = std::vector<LaneCounters>;

    std::size_t lengthOf(std::size_t column) const { return m_columns[column].name.bytes.size(); }
    void addToRow(std::size_t feature, std::size_t column);
    void findRows(std::string_view name);
    const Starts &startsFor(std::size_t bar, std::size_t length);
    void offerBlock(Vote &vote, std::size_t block, const LaneCounters &start,
                    const PreparedName &file) const;

    static constexpr std::size_t emptyRow = 0;

    std::vector<AppColumn> m_columns; ///< in blocks of 128
    std::size_t m_blockCount;
    std::vector<std::size_t> m_rowOfFeature; ///< where the feature's row begins in m_rows
    std::vector<Lanes> m_rows;               ///< m_blockCount entries for each row
    std::vector<Starts> m_starts;            ///< by bar and length, made when first needed
    /// The rows of the present file column, padded with empty rows to a multiple of `rowsAtOnce`.
    std::vector<std::size_t> m_rowsOfFile;
};

} // namespace columnimport
