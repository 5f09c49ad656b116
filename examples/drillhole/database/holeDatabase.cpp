// SPDX-License-Identifier: MIT

#include "examples/drillhole/database/holeDatabase.h"

#include "examples/drillhole/database/faultText.h"
#include "examples/drillhole/rows/Fault.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <regex>
#include <utility>

#include <soci/postgresql/soci-postgresql.h>

namespace drillhole {

namespace {

constexpr std::size_t linesAtOnce = 65536; // bytes

/// The names of the columns, each with the text before it, separated by commas.
std::string columnList(const Table &table, const std::string &before = {}) {
    std::string list;
    for (const Column &column : table.columns) {
        list += (list.empty() ? "" : ", ") + before + column.sqlName;
    }
    return list;
}

std::string definitionOf(const Table &table) {
    std::string definition;
    for (const Column &column : table.columns) {
        definition += (definition.empty() ? "" : ", ") + column.sqlName +
                      (column.kind == Kind::text ? " text" : " double precision") +
                      (column.isRequired ? " not null" : "");
    }
    const std::string key = table.namesHoles ? ", primary key (holename)" : "";
    return "create table if not exists " + table.name + " (" + definition + key + ')';
}

std::string isOfHole(const std::string &name) {
    const std::string text = "'" + std::regex_replace(name, std::regex("'"), "''") + "'";
    return name.empty() ? "1 = 1" : "substr(holename, 1, length(" + text + ")) = " + text;
}

bool hasColumns(soci::session &session, const Table &table) {
    try {
        session << "select " + columnList(table) + " from " + table.name + " where 1 = 0";
        return true;
    } catch (const soci::soci_error &) {
        return false;
    }
}

void appendText(std::string &line, const std::string &text) {
    for (const char byte : text) {
        switch (byte) {
        case '\\':
            line += "\\\\";
            break;
        case '\t':
            line += "\\t";
            break;
        case '\n':
            line += "\\n";
            break;
        case '\r':
            line += "\\r";
            break;
        default:
            line += byte;
        }
    }
}

void appendNumber(std::string &line, double number) {
    std::array<char, 32> digits{};
    line.append(digits.data(), std::to_chars(digits.begin(), digits.end(), number).ptr);
}

/// Throws what the server reports instead of the result that was expected.
void expectOf(PGconn *server, PGresult *given, ExecStatusType expected) {
    const std::unique_ptr<PGresult, decltype(&PQclear)> result(given, &PQclear);
    if (PQresultStatus(given) != expected) {
        const char *state = PQresultErrorField(given, PG_DIAG_SQLSTATE);
        throw soci::postgresql_soci_error(PQerrorMessage(server), state ? state : "08006");
    }
}

} // namespace

Session openHoles(const std::string &connection) {
    Session session = openDatabase(connection);
    for (const Table &table : holeTables()) {
        if (hasColumns(*session, table)) {
            continue; // also where the account may not make a table
        }
        inPlainWords(connection, [&] { *session << definitionOf(table); });
        if (!hasColumns(*session, table)) {
            throw Fault("The table " + table.name +
                        " there has other columns than the program's "
                        "own. Choose another database for the drill holes.");
        }
    }
    return session;
}

std::size_t rowCount(soci::session &session, const Table &table, const std::string &hole) {
    long long count = 0;
    session << "select count(*) from " + table.name + " where " + isOfHole(hole), soci::into(count);
    return static_cast<std::size_t>(count);
}

// Pages go on behind the key of a row, whatever the order: with an offset each page would cost as
// much as all those before it.
std::vector<std::vector<std::string>> pageOf(soci::session &session, const RowView &view,
                                             const PagePlace &place, std::size_t count) {
    const std::string key = session.get_backend_name() == "postgresql" ? "ctid" : "rowid";
    const bool goesDown = view.descends != place.isBefore;
    std::string sorted = key;
    std::string order = key + (goesDown ? " desc" : "");
    if (view.sortedBy) {
        const Column &column = view.table->columns[*view.sortedBy];
        const std::string filled =
            "coalesce(" + column.sqlName + (column.kind == Kind::text ? ", '')" : ", 0)");
        sorted = column.sqlName + " is null, " + filled + ", " + key;
        order = column.sqlName + " is null" + (goesDown ? " desc, " : ", ") + filled +
                (goesDown ? " desc, " : ", ") + order;
    }
    std::string query = "select " + key + ", " + columnList(*view.table) + " from " +
                        view.table->name + " where " + isOfHole(view.hole);
    if (!place.key.empty()) {
        query += " and (" + sorted + ") " + (goesDown ? "<" : ">") + " (select " + sorted +
                 " from " + view.table->name + " where " + key + " = '" + place.key + "')";
    }
    query += " order by " + order + " limit " + std::to_string(count) + " offset " +
             std::to_string(place.skipped);
    std::vector<std::string> fields(view.table->columns.size() + 1);
    std::vector<soci::indicator> indicators(fields.size());
    soci::statement statement(session);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        statement.exchange(soci::into(fields[i], indicators[i]));
    }
    statement.alloc();
    statement.prepare(query);
    statement.define_and_bind();
    statement.execute();
    std::vector<std::vector<std::string>> rows;
    while (statement.fetch()) {
        for (std::size_t i = 0; i < fields.size(); ++i) {
            if (indicators[i] == soci::i_null) {
                fields[i].clear();
            }
        }
        rows.push_back(fields);
    }
    if (place.isBefore) {
        std::reverse(rows.begin(), rows.end());
    }
    return rows;
}

std::vector<Collar> collarsOf(soci::session &session) {
    Collar collar{};
    soci::statement statement =
        (session.prepare << "select holename, easting, northing from collar",
         soci::into(collar.name), soci::into(collar.easting), soci::into(collar.northing));
    statement.execute();
    std::vector<Collar> collars;
    while (statement.fetch()) {
        collars.push_back(collar);
    }
    return collars;
}

RowInsertion::RowInsertion(soci::session &session, const Table &table)
    : m_table(table), m_target(table.name + " (" + columnList(table) + ')'),
      m_numbers(table.columns.size()), m_texts(table.columns.size()),
      m_indicators(table.columns.size()), m_statement(session) {
    if (session.get_backend_name() == "postgresql") {
        m_server = static_cast<soci::postgresql_session_backend *>(session.get_backend())->conn_;
        return;
    }
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        if (table.columns[i].kind == Kind::number) {
            m_statement.exchange(soci::use(m_numbers[i], m_indicators[i]));
        } else {
            m_statement.exchange(soci::use(m_texts[i], m_indicators[i]));
        }
    }
    m_statement.alloc();
    m_statement.prepare("insert into " + m_target + " values (" + columnList(table, ":") + ')');
    m_statement.define_and_bind();
}

void RowInsertion::insert(const std::vector<Value> &values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        const bool isNumber = m_table.columns[i].kind == Kind::number;
        if (m_server != nullptr) {
            m_lines += i == 0 ? "" : "\t";
            if (values[i].isNull) {
                m_lines += "\\N";
            } else if (isNumber) {
                appendNumber(m_lines, values[i].number);
            } else {
                appendText(m_lines, values[i].text);
            }
            continue;
        }
        m_indicators[i] = values[i].isNull ? soci::i_null : soci::i_ok;
        if (isNumber) {
            m_numbers[i] = values[i].number;
        } else if (!values[i].isNull) {
            m_texts[i] = values[i].text;
        }
    }
    if (m_server == nullptr) {
        m_statement.execute(true);
        return;
    }
    m_lines += '\n';
    if (m_lines.size() > linesAtOnce) {
        sendLines();
    }
}

void RowInsertion::sendLines() {
    if (!m_isCopying) {
        expectOf(m_server, PQexec(m_server, ("copy " + m_target + " from stdin").c_str()),
                 PGRES_COPY_IN);
        m_isCopying = true;
    }
    if (PQputCopyData(m_server, m_lines.data(), static_cast<int>(m_lines.size())) != 1) {
        throw soci::postgresql_soci_error(PQerrorMessage(m_server), "08006");
    }
    m_lines.clear();
}

void RowInsertion::flush() {
    if (!m_lines.empty()) {
        sendLines();
    }
    if (std::exchange(m_isCopying, false)) {
        PQputCopyEnd(m_server, nullptr);
        expectOf(m_server, PQgetResult(m_server), PGRES_COMMAND_OK);
        PQclear(PQgetResult(m_server)); // none: the COPY is over
    }
}

} // namespace drillhole
