// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/database/connection.h"
#include "examples/drillhole/rows/RowCheck.h"

#include <libpq-fe.h>
#include <soci/soci.h>

namespace drillhole {

// What the program asks of the database that its drill holes are in.

/// Opens the database of the drill holes, as openDatabase, and makes those of the tables that are
/// missing. Throws a Fault also if one has other columns.
Session openHoles(const std::string &connection);

std::size_t rowCount(soci::session &session, const Table &table);

/// A stretch of the table's rows as texts, in the order in which the database keeps them.
std::vector<std::vector<std::string>> rowsOf(soci::session &session, const Table &table,
                                             std::size_t first, std::size_t count);

struct Collar {
    std::string name;
    double easting;
    double northing;
};

std::vector<Collar> collarsOf(soci::session &session);

/// Puts rows into a table, one after the other. A server of PostgreSQL gets them in bulk.
class RowInsertion {
public:
    RowInsertion(soci::session &session, const Table &table);

    void insert(const std::vector<Value> &values);

    /// From here on the database answers with all rows that were inserted. It is not to be asked
    /// for anything between an insertion and this.
    void flush();

private:
    void sendLines();

    const Table &m_table;
    const std::string m_target;
    PGconn *m_server = nullptr; ///< null if it is no server of PostgreSQL
    bool m_isCopying = false;
    std::string m_lines; ///< for the server, as COPY wants them
    // What the statement is bound to: one of each for every column.
    std::vector<double> m_numbers;
    std::vector<std::string> m_texts;
    std::vector<soci::indicator> m_indicators;
    soci::statement m_statement;
};

} // namespace drillhole
