// SPDX-License-Identifier: MIT

#pragma once

#include <limits>
#include <string>
#include <vector>

namespace drillhole {

enum class Kind { text, number };

struct Column {
    std::string name;    ///< as the dialog shows it
    std::string sqlName; ///< as the database calls it
    Kind kind;
    bool isRequired;                        ///< a row without it says nothing
    std::vector<const char *> alternatives; ///< what else it is called in files
    /// A number outside of these is worth a warning.
    double least = -std::numeric_limits<double>::infinity();
    double greatest = std::numeric_limits<double>::infinity();
};

/// A table of the drill holes. Its first column is the hole's name.
struct Table {
    std::string name;
    std::string title;
    std::vector<Column> columns;
    bool namesHoles;   ///< each row is a new hole; the rows of the other tables belong to one
    bool hasIntervals; ///< the second and third columns are where an interval begins and ends
};

/// Collars, surveys and assays.
const std::vector<Table> &holeTables();

/// The table of that name, or null.
const Table *findTable(const std::string &name);

} // namespace drillhole
