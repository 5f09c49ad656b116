// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/rows/Remarks.h"
#include "drillhole/rows/RowSource.h"
#include "drillhole/rows/holeTables.h"

#include <functional>
#include <optional>
#include <unordered_map>

#include <boost/icl/interval_set.hpp>

namespace drillhole {

/// What goes into one column of one row.
struct Value {
    bool isNull = true;
    double number = 0;
    std::string text; ///< UTF-8
};

/// What becomes of a value such as <0.01.
enum class BelowDetection { refused, half, negative, empty };

/// What the user says of the values in a source.
struct ValueChoices {
    BelowDetection belowDetection = BelowDetection::refused;
    std::vector<std::string> noValue; ///< words that stand where there is none, such as NA or -9999
    bool hasDecimalCommas = true;     ///< 1,5 is a number where semicolons part the fields
};

/// For each application column the position of its field in every row, or nothing where the column
/// was not matched.
using FieldPositions = std::vector<std::optional<std::size_t>>;

/// How the rows of a source are laid out.
struct RowLayout {
    FieldPositions positions;
    char delimiter = '\0';            ///< of a file
    std::vector<std::string> columns; ///< the titles of the fields
};

using Depths = boost::icl::interval_set<double>;

/// What is known of a hole: its length, and the depths that its rows tell of.
struct Hole {
    double length = std::numeric_limits<double>::infinity();
    Depths depths;
};

using Holes = std::unordered_map<std::string, Hole>;

/// The depths that a row of surveys or assays tells of.
Depths::interval_type depthsOf(const Table &table, const std::vector<Value> &values);

/// Takes the values of a table out of rows, and refuses those that don't fit.
class RowCheck {
public:
    /// Throws a Fault if a required column was not matched.
    ///
    /// @param holes    all that have a collar
    /// @param isThere  whether the table has a row of just the values written last; it is asked
    ///                 where rows of a hole meet
    RowCheck(const Table &table, RowLayout layout, ValueChoices choices, Holes holes,
             std::function<bool()> isThere);

    /// Writes the values of the table's columns, in their order. Returns why the row is refused, or
    /// an empty string if it fits. A row that fits stands in its hole from then on.
    std::string check(const Row &row, std::vector<Value> &values);

    /// What is to be said of rows that fit.
    const Remarks &remarks() const { return m_remarks; }

private:
    std::string checkLayout(const Row &row);
    std::string takeValue(const Column &column, std::string_view text, Value &value);
    bool isNoValue(std::string_view text, std::optional<double> number) const;
    std::optional<double> numberIn(std::string_view text) const;
    std::string checkHole(const std::vector<Value> &values);

    const Table &m_table;
    RowLayout m_layout;
    ValueChoices m_choices;
    std::size_t m_fieldsNeeded = 0;
    std::size_t m_fieldCount; // of a full row; one of more has been cut in the wrong place
    bool m_hasRows = false;   // that were seen
    Holes m_holes;
    Holes::iterator m_lastHole;
    std::function<bool()> m_isThere;
    std::vector<std::string> m_found; // to be said of the row if it fits
    Remarks m_remarks;
};

} // namespace drillhole
