// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/rows/RowSource.h"

#include <optional>
#include <string>

#include <soci/soci.h>

namespace drillhole {

/// The rows of a table, one at a time as the database sends them. A row's line is its number.
class TableRows : public RowSource {
public:
    /// Throws a Fault if the table has other columns than it had when the user matched them.
    TableRows(const std::string &connection, const std::string &table,
              const std::vector<std::string> &columns);

    bool next(Row &row) override;
    double share() const override;

private:
    bool fetch();

    soci::session m_source;
    double m_count = 0;
    std::size_t m_read = 0;
    bool m_isCursor = false;
    std::size_t m_readOfBatch = 0;
    std::vector<std::string> m_fields;
    std::vector<soci::indicator> m_indicators;
    std::optional<soci::statement> m_statement; // of the open session
};

} // namespace drillhole
