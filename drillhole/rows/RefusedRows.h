// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/rows/Remarks.h"
#include "drillhole/rows/RowSource.h"

#include <fstream>

namespace drillhole {

/// The rows that an import refused: all of them in a file, the first ones in memory too.
///
/// The file is a table of its own: lines, reason, and the fields of the row as they were. It takes
/// its name when the import is done; until then, and after an import that is not, the report of the
/// last one stays as it was.
class RefusedRows {
public:
    /// Throws a Fault if the file can't be made.
    ///
    /// @param titles  of the source, above its fields: the report can be corrected and imported
    RefusedRows(const std::string &path, const std::vector<std::string> &titles);
    ~RefusedRows();

    void add(const Row &row, const std::string &reason);

    std::size_t count() const { return m_count; }

    /// The reasons of the first thousand.
    const std::vector<Remark> &first() const { return m_first; }

    /// Completes the file. Throws a Fault if it can't be written.
    void finish();

    /// Gives the file its name, or takes the last report away if no row was refused.
    void publish();

private:
    std::string m_path;
    std::string m_unfinished;
    std::ofstream m_file;
    std::size_t m_count = 0;
    std::vector<Remark> m_first;
};

} // namespace drillhole
