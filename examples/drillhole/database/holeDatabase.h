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

/// @param hole  counts only rows of holes whose names begin so
std::size_t rowCount(soci::session &session, const Table &table, const std::string &hole = {});

/// Which rows of a table are seen, and in what order.
struct RowView {
    const Table *table = nullptr;
    std::string hole; ///< how the names of their holes begin
    std::optional<std::size_t>
        sortedBy; ///< a column; without one they are as the database has them
    bool descends = false;
};

/// Where a page of rows stands in a view.
struct PagePlace {
    std::string key;       ///< of the row next to the page; empty for the view's begin or end
    bool isBefore = false; ///< the page is in front of that row, or at the view's end
    std::size_t skipped = 0;
};

/// A page of rows as texts, each behind its key.
std::vector<std::vector<std::string>> pageOf(soci::session &session, const RowView &view,
                                             const PagePlace &place, std::size_t count);

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
