#pragma once

#include "examples/drillhole/rows/RowSource.h"

#include <string>

#include <soci/soci.h>

namespace drillhole {

/// The rows of a table, one at a time as the database sends them. A row's line is its number.
class TableRows : public RowSource {
public:
    /// Throws a Fault if the table has other columns than it had when the user matched them.
    TableRows(soci::session &source, const std::string &table,
              const std::vector<std::string> &columns);

    bool next(Row &row) override;
    double share() const override;

private:
    double m_count;
    std::size_t m_read = 0;
    std::vector<std::string> m_fields;
    std::vector<soci::indicator> m_indicators;
    soci::statement m_statement;
};

} // namespace drillhole
