#include "examples/drillhole/database/TableRows.h"

#include "examples/drillhole/database/sourceTables.h"
#include "examples/drillhole/rows/Fault.h"

namespace drillhole {

namespace {

double countRows(soci::session &source, const std::string &table) {
    double count = 0;
    source << "select count(*) from " + quotedName(table), soci::into(count);
    return count;
}

} // namespace

TableRows::TableRows(soci::session &source, const std::string &table,
                     const std::vector<std::string> &columns)
    : m_count(countRows(source, table)), m_fields(columns.size()), m_indicators(columns.size()),
      m_statement(source) {
    if (columnNames(source, table) != columns) {
        throw Fault("The columns of table " + table +
                    " were changed meanwhile. Import it again to match the present ones.");
    }
    for (std::size_t i = 0; i < columns.size(); ++i) {
        m_statement.exchange(soci::into(m_fields[i], m_indicators[i]));
    }
    m_statement.alloc();
    m_statement.prepare("select * from " + quotedName(table));
    m_statement.define_and_bind();
    m_statement.execute();
}

bool TableRows::next(Row &row) {
    if (!m_statement.fetch()) {
        return false;
    }
    row.firstLine = row.lastLine = ++m_read;
    row.fields.clear();
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        row.fields.push_back(m_indicators[i] == soci::i_null ? std::string_view() : m_fields[i]);
    }
    return true;
}

double TableRows::share() const {
    return m_count > 0 ? static_cast<double>(m_read) / m_count : 1;
}

} // namespace drillhole
