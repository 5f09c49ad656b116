// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/rows/Remarks.h"
#include "drillhole/rows/RowSource.h"

#include <fstream>

namespace drillhole {

/// The rows that an import refused: all of them in a file, the first ones in memory too.
///
/// The file is a table of its own, in UTF-8 and with the source's delimiter: lines, reason, and the
/// fields of the row. Its name is its own: no other import writes into it, and it is deleted only
/// if this import is not done, or refused nothing.
class RefusedRows {
public:
    /// Throws a Fault if the file can't be made.
    ///
    /// @param path       its path but for what makes it its own: "reports/refused_assay"
    /// @param delimiter  of the source
    /// @param titles     of the source, above its fields: the report can be corrected and imported
    RefusedRows(const std::string &path, char delimiter, const std::vector<std::string> &titles);
    ~RefusedRows();

    void add(const Row &row, const std::string &reason);

    std::size_t count() const { return m_count; }

    /// The reasons of the first thousand.
    const std::vector<Remark> &first() const { return m_first; }

    /// Completes the file. Throws a Fault if it can't be written.
    void finish();

    /// Keeps the file if there are rows in it. Gives its path, or nothing.
    std::string keep();

private:
    void addField(std::string_view field);

    std::string m_path;
    char m_delimiter;
    std::ofstream m_file;
    bool m_isKept = false;
    std::size_t m_count = 0;
    std::vector<Remark> m_first;
};

} // namespace drillhole
