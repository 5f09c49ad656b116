// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace drillhole {

enum class Kind { text, number };

struct Column {
    std::string name; ///< as the dialog shows it
    Kind kind;
    bool isRequired; ///< a row without it says nothing
    /// A number outside of these is worth a warning.
    double least = -std::numeric_limits<double>::infinity();
    double greatest = std::numeric_limits<double>::infinity();
    std::vector<std::string> words = {}; ///< what else it is called in files
    bool isGrade = false;                ///< of one element in one unit, for which no other will do

    /// As the database calls it: "Cu %" is cu_pct there.
    std::string sqlName() const;
};

/// A table of the drill holes. Its first column is the hole's name.
struct Table {
    std::string name;
    std::string title;
    std::string rowName; ///< what one of its rows is
    bool namesHoles;     ///< each row is a new hole; the rows of the other tables belong to one
    bool hasIntervals;   ///< the second and third columns are where an interval begins and ends
    std::vector<Column> columns;
};

/// Collars, surveys, assays and lithology, with the words of rows/words.txt.
///
/// @param moreWords  a text of the same form, with further words and further elements; it counts
///                   when this is called for the first time. Throws a Fault that names a wrong line
const std::vector<Table> &holeTables(const std::string &moreWords = {});

/// The table of that name, or null.
const Table *findTable(const std::string &name);

/// What a number is to be multiplied with to get from the unit in a title to that of a grade. Is
/// nothing if one of them names none.
///
///     unitFactor("Cu_ppm", "Cu %") == 0.0001
std::optional<double> unitFactor(const std::string &title, const std::string &grade);

/// The number multiplied with such a factor.
double converted(double number, double factor);

/// What is done with a number then: "divided by 10,000".
std::string conversionBy(double factor);

} // namespace drillhole
