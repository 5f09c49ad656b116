// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/database/QueryRows.h"
#include "drillhole/database/connection.h"

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

/// The names of the columns, each with the text before it, separated by commas.
std::string columnList(const Table &table, const std::string &before = {});

/// The first columns of all of the table's rows.
QueryRows rowsOf(soci::session &session, const Table &table, std::size_t width);

/// All holes that have a collar, with where the last of the table's rows in each ends.
Holes holesOf(soci::session &session, const Table &table);

/// Gives the holes the depths that all of the table's rows tell of.
void readDepths(soci::session &session, const Table &table, Holes &holes);

/// How many rows of all tables belong to no collar.
std::size_t orphanCount(soci::session &session);

} // namespace drillhole
