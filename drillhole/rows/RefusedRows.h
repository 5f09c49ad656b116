// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/rows/Remarks.h"
#include "drillhole/rows/RowSource.h"

#include <fstream>

namespace drillhole {

/// The rows that an import refused, in a file.
///
/// The file is a table of its own, in UTF-8 and with the source's delimiter: lines, reason, and the
/// fields of the row. Its name is its own: no other import writes into it, and it is deleted unless
/// it is kept.
class RefusedRows {
public:
    /// Throws a Fault if the file can't be made.
    ///
    /// @param path       its path but for what makes it its own: "reports/refused_assay"
    /// @param delimiter  of the source
    /// @param titles     of the source, above its fields: the report can be corrected and imported
    RefusedRows(const std::string &path, char delimiter, const std::vector<std::string> &titles);
    ~RefusedRows();

    /// Gives the reason as it stands in the file.
    Remark add(const Row &row, const std::string &reason);

    /// Completes the file. Throws a Fault if it can't be written.
    void finish();

    /// Keeps the file, and gives its path.
    const std::string &keep();

private:
    void addField(std::string_view field);

    std::string m_path;
    char m_delimiter;
    std::ofstream m_file;
    bool m_isKept = false;
};

} // namespace drillhole
