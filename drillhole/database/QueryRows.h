// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/rows/RowCheck.h"

#include <soci/soci.h>

namespace drillhole {

/// The rows that a database answers a query with, one after the other.
class QueryRows {
public:
    /// @param kinds  what the columns of the answer are read as
    QueryRows(soci::session &session, const std::string &query, const std::vector<Kind> &kinds);
    QueryRows(const QueryRows &) = delete;
    QueryRows &operator=(const QueryRows &) = delete;

    /// Reads the next row, or returns false if there is none.
    bool next();

    /// The row that was read last; what is null is an empty text, too.
    const std::vector<Value> &row() const { return m_row; }

private:
    std::vector<Value> m_row;
    std::vector<soci::indicator> m_indicators;
    soci::statement m_statement;
};

} // namespace drillhole
