// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/rows/DecimalMarks.h"
#include "drillhole/rows/Remarks.h"
#include "drillhole/rows/RowSource.h"
#include "drillhole/rows/holeTables.h"

#include <functional>
#include <optional>
#include <set>
#include <tuple>
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
    DecimalMark decimalMark = DecimalMark::asShown;
};

/// For each application column the position of its field in every row, or nothing where the column
/// was not matched.
using FieldPositions = std::vector<std::optional<std::size_t>>;

/// How the rows of a source are laid out.
struct RowLayout {
    FieldPositions positions;
    char delimiter = '\0';             ///< of a file
    std::vector<std::string> columns;  ///< the titles of the fields
    std::vector<double> factors = {};  ///< of numbers whose unit is converted; empty for none
    std::vector<bool> areGuesses = {}; ///< columns that only a similar name was found for
};

using Depths = boost::icl::interval_set<double>;

/// What is known of a hole: its collar, and the depths that its rows tell of.
struct Hole {
    double length = std::numeric_limits<double>::infinity();
    double easting = 0;
    double northing = 0;
    double deepest = -std::numeric_limits<double>::infinity(); ///< where its last row ends
    Depths depths = {}; ///< of all its rows; they are there once RowQuestions gave them
    double lastDip = 0;
};

using Holes = std::unordered_map<std::string, Hole>;

/// The depths that a row of surveys or assays tells of.
Depths::interval_type depthsOf(const Table &table, const std::vector<Value> &values);

/// What an import is asked about the table, with the rows that it has put there itself.
struct RowQuestions {
    std::function<bool()> isThere;           ///< whether it has a row of just these values
    std::function<void(Holes &)> readDepths; ///< the depths of all its rows, into their holes
};

/// Takes the values of a table out of rows, and refuses those that don't fit.
class RowCheck {
public:
    /// Throws a Fault if a required column was not matched.
    ///
    /// @param holes      all that have a collar, with where their last rows end
    /// @param questions  are asked where rows of a hole meet, or don't follow one another
    RowCheck(const Table &table, RowLayout layout, ValueChoices choices, Holes holes,
             RowQuestions questions);

    /// Where true, each row of the source is to be shown to `learn` before the first is checked.
    bool mustLearn() const { return m_marks.mustLearn(); }
    void learn(const Row &row);

    /// Writes the values of the table's columns, in their order. Returns why the row is refused, or
    /// an empty string if it fits. A row that fits stands in its hole from then on.
    std::string check(const Row &row, std::vector<Value> &values);

    /// What is to be said of rows that fit.
    const Remarks &remarks() const { return m_remarks; }

private:
    std::string checkLayout(const Row &row);
    bool mayBeCutInANumber(const Row &row) const;
    std::string takeValue(std::size_t place, std::string_view text, Value &value);
    std::string takeNumber(std::size_t place, std::string_view whole, Value &value);
    bool isNoValue(std::size_t column, std::string_view text) const;
    std::string checkHole(const std::vector<Value> &values);
    std::string checkCollar(const std::vector<Value> &values);
    bool isFirstAt(double easting, double northing, const std::string &name);
    std::string checkDepths(Hole &hole, const std::vector<Value> &values);

    const Table &m_table;
    RowLayout m_layout;
    ValueChoices m_choices;
    DecimalMarks m_marks;
    std::size_t m_fieldsNeeded = 0;
    std::size_t m_fieldCount;     // of a full row; one of more has been cut in the wrong place
    bool m_hasRows = false;       // that were seen
    std::vector<bool> m_hadWhole; // for each field whether a full row had a whole number there
    bool m_hasDepths = false;     // the holes have the depths of all rows
    Holes m_holes;
    std::set<std::tuple<double, double, std::string>> m_places; // with names in small letters
    RowQuestions m_questions;
    std::vector<std::string> m_found; // to be said of the row if it fits
    Remarks m_remarks;
};

} // namespace drillhole
