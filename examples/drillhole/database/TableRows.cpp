// SPDX-License-Identifier: MIT

#include "examples/drillhole/database/TableRows.h"

#include "examples/drillhole/database/connection.h"
#include "examples/drillhole/database/sourceTables.h"
#include "examples/drillhole/rows/Fault.h"

namespace drillhole {

TableRows::TableRows(const std::string &connection, const std::string &table,
                     const std::vector<std::string> &columns)
    : m_fields(columns.size()), m_indicators(columns.size()) {
    openSource(m_source, connection);
    if (columnNames(m_source, table) != columns) {
        throw Fault("The columns of table " + table +
                    " were changed meanwhile. Import it again to match the present ones.");
    }
    m_source << "select count(*) from " + quotedName(table), soci::into(m_count);
    std::string query = "select * from " + quotedName(table);
    m_isCursor = m_source.get_backend_name() == "postgresql";
    if (m_isCursor) {
        m_source.begin();
        m_source << "declare all_rows no scroll cursor for " + query;
        query = "fetch 1000 from all_rows";
    }
    m_statement.emplace(m_source);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        m_statement->exchange(soci::into(m_fields[i], m_indicators[i]));
    }
    m_statement->alloc();
    m_statement->prepare(query);
    m_statement->define_and_bind();
    m_statement->execute();
}

bool TableRows::next(Row &row) {
    if (!fetch()) {
        return false;
    }
    row.firstLine = row.lastLine = ++m_read;
    row.fields.clear();
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        row.fields.push_back(m_indicators[i] == soci::i_null ? std::string_view() : m_fields[i]);
    }
    return true;
}

// The client of PostgreSQL takes the whole answer to a query into memory, so the rows come from a
// cursor, some at a time.
bool TableRows::fetch() {
    bool hasRow = m_statement->fetch();
    if (!hasRow && m_isCursor && m_readOfBatch > 0) {
        m_readOfBatch = 0;
        m_statement->execute();
        hasRow = m_statement->fetch();
    }
    ++m_readOfBatch;
    return hasRow;
}

double TableRows::share() const {
    return m_count > 0 ? static_cast<double>(m_read) / m_count : 1;
}

} // namespace drillhole
