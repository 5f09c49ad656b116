// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace drillhole {

/// One row of a source. The fields stay valid until the source is asked for its next row.
struct Row {
    std::size_t firstLine = 0; ///< where it begins: the line of a file, the number of a table's row
    std::size_t lastLine = 0;  ///< where it ends; a quoted field may hold line ends
    std::vector<std::string_view> fields;
    const char *refusal = nullptr; ///< why it can't be cut into fields; it has its text as one then
};

/// Rows that come one after the other, from a file or from a table.
class RowSource {
public:
    virtual ~RowSource() = default;

    /// Reads the next row, or returns false if there is none. Throws a Fault if it can't be read.
    virtual bool next(Row &row) = 0;

    /// How much of the source has been read, from 0 to 1.
    virtual double share() const = 0;
};

} // namespace drillhole
