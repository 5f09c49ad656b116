// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/rows/RowCheck.h"

#include <unordered_set>

#include <libpq-fe.h>
#include <soci/soci.h>

namespace drillhole {

/// Puts rows into a table, one after the other. A server of PostgreSQL gets them in bulk.
class RowInsertion {
public:
    RowInsertion(soci::session &session, const Table &table);

    /// What is inserted next: a value for each column, which may change and keep their places.
    std::vector<Value> &row() { return m_row; }

    void insert();

    /// Whether the table has a row of just these values. It is read when that is asked for the
    /// first time, which an import of new rows never does.
    bool isThere();

    /// From here on the database answers with all rows that were inserted. It is not to be asked
    /// for anything between an insertion and this.
    void flush();

private:
    std::string lineOf(const std::vector<Value> &values) const;
    std::size_t hashOf(const std::vector<Value> &values) const {
        return std::hash<std::string>()(lineOf(values));
    }
    void sendLines(std::size_t least);

    soci::session &m_session;
    const Table &m_table;
    const std::string m_target;
    PGconn *m_server = nullptr; ///< null if it is no server of PostgreSQL
    bool m_isCopying = false;
    std::string m_lines;                       ///< for the server, as COPY wants them
    std::vector<Value> m_row;                  ///< the statement is bound to its values
    std::vector<soci::indicator> m_indicators; ///< and to these
    soci::statement m_statement;
    std::unordered_set<std::size_t> m_hashes; ///< of the lines of all rows, once they were read
};

} // namespace drillhole
