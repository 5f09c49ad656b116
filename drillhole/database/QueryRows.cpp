// SPDX-License-Identifier: MIT

#include "drillhole/database/QueryRows.h"

namespace drillhole {

QueryRows::QueryRows(soci::session &session, const std::string &query,
                     const std::vector<Kind> &kinds)
    : m_row(kinds.size()), m_indicators(kinds.size()), m_statement(session) {
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        if (kinds[i] == Kind::number) {
            m_statement.exchange(soci::into(m_row[i].number, m_indicators[i]));
        } else {
            m_statement.exchange(soci::into(m_row[i].text, m_indicators[i]));
        }
    }
    m_statement.alloc();
    m_statement.prepare(query);
    m_statement.define_and_bind();
    m_statement.execute();
}

bool QueryRows::next() {
    const bool isRead = m_statement.fetch();
    for (std::size_t i = 0; i < m_row.size() && isRead; ++i) {
        m_row[i].isNull = m_indicators[i] == soci::i_null;
        if (m_row[i].isNull) {
            m_row[i].text.clear();
        }
    }
    return isRead;
}

} // namespace drillhole
