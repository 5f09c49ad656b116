// SPDX-License-Identifier: MIT

#include "drillhole/database/holeDatabase.h"

#include "drillhole/database/sourceTables.h"
#include "drillhole/rows/text.h"

#include <algorithm>

#include <boost/algorithm/string/join.hpp>
#include <boost/algorithm/string/predicate.hpp>
#include <boost/range/adaptor/transformed.hpp>

namespace drillhole {

namespace {

std::string definitionOf(const Table &table) {
    const auto defined = [](const Column &column) {
        return column.sqlName() + (column.kind == Kind::text ? " text" : " double precision") +
               (column.isRequired ? " not null" : "");
    };
    const std::string key = table.namesHoles ? ", primary key (holename)" : "";
    return "create table if not exists " + table.name + " (" +
           boost::join(table.columns | boost::adaptors::transformed(defined), ", ") + key + ')';
}

void makeMissing(soci::session &session, const Table &table) {
    if (sourceTables(session).count(table.name) == 0) { // an account may not be let make one
        session << definitionOf(table);
    }
    const std::vector<std::string> present = columnsOf(session, table.name).names;
    for (const Column &column : table.columns) {
        const bool isPresent =
            std::any_of(present.begin(), present.end(), [&](const std::string &name) {
                return boost::iequals(name, column.sqlName(), std::locale::classic());
            });
        if (!isPresent && !column.isGrade) {
            throw Fault("The table " + table.name +
                        " there has other columns than the program's own. Choose another database "
                        "for the drill holes.");
        }
        if (!isPresent) { // the elements may have become more
            session << "alter table " + table.name + " add column " + column.sqlName() +
                           " double precision";
        }
    }
}

std::string isOfHole(const std::string &name) {
    const std::string text = inQuotes(name, '\'', '\'');
    return name.empty() ? "1 = 1" : "substr(holename, 1, length(" + text + ")) = " + text;
}

std::size_t countWhere(soci::session &session, const Table &table, const std::string &condition) {
    long long count = 0;
    session << "select count(*) from " + table.name + " where " + condition, soci::into(count);
    return static_cast<std::size_t>(count);
}

} // namespace

Session openHoles(const std::string &connection) {
    Session session = openDatabase(connection);
    inPlainWords(connection, [&] {
        for (const Table &table : holeTables()) {
            makeMissing(*session, table);
        }
    });
    return session;
}

std::size_t rowCount(soci::session &session, const Table &table, const std::string &hole) {
    return countWhere(session, table, isOfHole(hole));
}

// Pages go on behind the key of a row, whatever the order: with an offset each page would cost as
// much as all those before it.
std::vector<std::vector<std::string>> pageOf(soci::session &session, const RowView &view,
                                             const PagePlace &place, std::size_t count) {
    const std::string key = session.get_backend_name() == "postgresql" ? "ctid" : "rowid";
    const bool goesDown = view.descends != place.isBefore;
    std::vector<std::string> order = {key};
    if (view.sortedBy) {
        const Column &column = view.table->columns[*view.sortedBy];
        const char *filler = column.kind == Kind::text ? ", '')" : ", 0)";
        order = {column.sqlName() + " is null", "coalesce(" + column.sqlName() + filler, key};
    }
    std::string query = "select " + key + ", " + columnList(*view.table) + " from " +
                        view.table->name + " where " + isOfHole(view.hole);
    if (!place.key.empty()) {
        const std::string sorted = boost::join(order, ", ");
        query += " and (" + sorted + ") " + (goesDown ? "<" : ">") + " (select " + sorted +
                 " from " + view.table->name + " where " + key + " = '" + place.key + "')";
    }
    const std::string direction = goesDown ? " desc" : "";
    query += " order by " + boost::join(order, direction + ", ") + direction + " limit " +
             std::to_string(count) + " offset " + std::to_string(place.skipped);
    std::vector<std::vector<std::string>> rows;
    const std::vector<Kind> texts(view.table->columns.size() + 1, Kind::text);
    for (QueryRows answer(session, query, texts); answer.next();) {
        std::vector<std::string> &row = rows.emplace_back();
        for (const Value &value : answer.row()) {
            row.push_back(value.text);
        }
    }
    if (place.isBefore) {
        std::reverse(rows.begin(), rows.end());
    }
    return rows;
}

std::vector<Collar> collarsOf(soci::session &session) {
    std::vector<Collar> collars;
    for (QueryRows rows = rowsOf(session, holeTables().front(), 3); rows.next();) {
        collars.push_back({rows.row()[0].text, rows.row()[1].number, rows.row()[2].number});
    }
    return collars;
}

std::string columnList(const Table &table, const std::string &before) {
    const auto named = [&](const Column &column) { return before + column.sqlName(); };
    return boost::join(table.columns | boost::adaptors::transformed(named), ", ");
}

QueryRows rowsOf(soci::session &session, const Table &table, std::size_t width) {
    std::vector<std::string> names;
    std::vector<Kind> kinds;
    for (std::size_t i = 0; i < width; ++i) {
        names.push_back(table.columns[i].sqlName());
        kinds.push_back(table.columns[i].kind);
    }
    return {session, "select " + boost::join(names, ", ") + " from " + table.name, kinds};
}

Holes holesOf(soci::session &session, const Table &table) {
    const std::string end = table.columns[table.hasIntervals ? 2 : 1].sqlName();
    const std::string query =
        "select collar.holename, easting, northing, length, deepest from collar left join "
        "(select holename, max(" +
        end + ") as deepest from " + table.name +
        " group by holename) as ends on ends.holename = collar.holename";
    std::vector<Kind> kinds(5, Kind::number);
    kinds.front() = Kind::text;
    Holes holes;
    for (QueryRows rows(session, query, kinds); rows.next();) {
        const std::vector<Value> &row = rows.row();
        Hole &hole = holes[row[0].text];
        hole.easting = row[1].number;
        hole.northing = row[2].number;
        hole.length = row[3].isNull ? hole.length : row[3].number;
        hole.deepest =
            row[4].isNull ? hole.deepest : row[4].number + (table.hasIntervals ? 0 : 1e-5);
    }
    return holes;
}

void readDepths(soci::session &session, const Table &table, Holes &holes) {
    for (QueryRows rows = rowsOf(session, table, table.hasIntervals ? 3 : 2); rows.next();) {
        const auto hole = holes.find(rows.row().front().text);
        if (hole != holes.end()) {
            hole->second.depths += depthsOf(table, rows.row());
        }
    }
}

std::size_t orphanCount(soci::session &session) {
    std::size_t count = 0;
    for (const Table &table : holeTables()) {
        count += countWhere(session, table, "holename not in (select holename from collar)");
    }
    return count;
}

} // namespace drillhole
