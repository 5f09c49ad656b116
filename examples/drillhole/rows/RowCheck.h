// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/rows/findFields.h"
#include "examples/drillhole/rows/holeTables.h"

#include <unordered_set>

namespace drillhole {

/// What goes into one column of one row.
struct Value {
    bool isNull = true;
    double number = 0;
    std::string text; ///< UTF-8
};

/// How the rows of a source are laid out.
struct RowLayout {
    FieldPositions positions;
    std::size_t fieldCount = 0; ///< of a full row; one of more has been cut in the wrong place
    bool mustBeWhole = false;   ///< a field left out moves those behind it, as between blanks
};

/// Takes the values of a table out of rows, and refuses those that don't fit.
class RowCheck {
public:
    /// Throws a Fault if a required column was not matched.
    ///
    /// @param holes  the names of all holes that have a collar
    RowCheck(const Table &table, RowLayout layout, std::unordered_set<std::string> holes);

    /// Writes the values of the table's columns, in their order. Returns why the row is refused, or
    /// an empty string if it fits. A collar that fits is a hole from then on.
    std::string check(const Row &row, std::vector<Value> &values);

private:
    std::string checkLayout(std::size_t count) const;
    std::string checkHole(const std::string &hole);

    const Table &m_table;
    RowLayout m_layout;
    std::size_t m_fieldsNeeded = 0;
    std::unordered_set<std::string> m_holes;
};

/// The number that the whole text is, with a decimal point, or nothing.
std::optional<double> parseNumber(std::string_view text);

/// The text in UTF-8: what is no UTF-8 is taken for Latin-1.
std::string asUtf8(std::string_view bytes);

} // namespace drillhole
