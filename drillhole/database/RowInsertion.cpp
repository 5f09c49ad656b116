// SPDX-License-Identifier: MIT

#include "drillhole/database/RowInsertion.h"

#include "drillhole/database/holeDatabase.h"
#include "drillhole/rows/text.h"

#include <utility>

#include <soci/postgresql/soci-postgresql.h>

namespace drillhole {

namespace {

constexpr std::size_t linesAtOnce = 65536; // bytes

/// Throws what the server reports instead of the result that was expected.
void expectOf(PGconn *server, PGresult *given, ExecStatusType expected) {
    const std::unique_ptr<PGresult, decltype(&PQclear)> result(given, &PQclear);
    if (PQresultStatus(given) != expected) {
        const char *state = PQresultErrorField(given, PG_DIAG_SQLSTATE);
        throw soci::postgresql_soci_error(PQerrorMessage(server), state ? state : "08006");
    }
}

} // namespace

RowInsertion::RowInsertion(soci::session &session, const Table &table)
    : m_session(session), m_table(table), m_target(table.name + " (" + columnList(table) + ')'),
      m_row(table.columns.size()), m_indicators(table.columns.size()), m_statement(session) {
    if (session.get_backend_name() == "postgresql") {
        m_server = static_cast<soci::postgresql_session_backend *>(session.get_backend())->conn_;
        return;
    }
    for (std::size_t i = 0; i < m_row.size(); ++i) {
        if (table.columns[i].kind == Kind::number) {
            m_statement.exchange(soci::use(m_row[i].number, m_indicators[i]));
        } else {
            m_statement.exchange(soci::use(m_row[i].text, m_indicators[i]));
        }
    }
    m_statement.alloc();
    m_statement.prepare("insert into " + m_target + " values (" + columnList(table, ":") + ')');
    m_statement.define_and_bind();
}

void RowInsertion::insert() {
    if (!m_hashes.empty()) {
        m_hashes.insert(hashOf(m_row));
    }
    if (m_server != nullptr) {
        m_lines += lineOf(m_row);
        sendLines(linesAtOnce);
        return;
    }
    for (std::size_t i = 0; i < m_row.size(); ++i) {
        m_indicators[i] = m_row[i].isNull ? soci::i_null : soci::i_ok;
    }
    m_statement.execute(true);
}

bool RowInsertion::isThere() {
    if (m_hashes.empty()) {
        flush();
        for (QueryRows rows = rowsOf(m_session, m_table, m_table.columns.size()); rows.next();) {
            m_hashes.insert(hashOf(rows.row()));
        }
    }
    return m_hashes.count(hashOf(m_row)) > 0;
}

std::string RowInsertion::lineOf(const std::vector<Value> &values) const {
    std::string line;
    for (std::size_t i = 0; i < values.size(); ++i) {
        line += i == 0 ? "" : ",";
        if (!values[i].isNull) {
            // A database may keep -0 as 0.
            line += m_table.columns[i].kind == Kind::number ? digitsOf(values[i].number + 0.0)
                                                            : inQuotes(values[i].text, '"', '"');
        }
    }
    return line += '\n';
}

void RowInsertion::sendLines(std::size_t least) {
    if (m_lines.size() < least) {
        return;
    }
    if (!m_isCopying) {
        const std::string copy = "copy " + m_target + " from stdin (format csv)";
        expectOf(m_server, PQexec(m_server, copy.c_str()), PGRES_COPY_IN);
        m_isCopying = true;
    }
    if (PQputCopyData(m_server, m_lines.data(), static_cast<int>(m_lines.size())) != 1) {
        throw soci::postgresql_soci_error(PQerrorMessage(m_server), "08006");
    }
    m_lines.clear();
}

void RowInsertion::flush() {
    sendLines(1);
    if (std::exchange(m_isCopying, false)) {
        PQputCopyEnd(m_server, nullptr);
        expectOf(m_server, PQgetResult(m_server), PGRES_COMMAND_OK);
        PQclear(PQgetResult(m_server)); // none: the COPY is over
    }
}

} // namespace drillhole
