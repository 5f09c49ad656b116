// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/rows/RowCheck.h"

#include <soci/soci.h>

namespace drillhole {

/// The rows that a database answers a query with, one after the other.
class QueryRows {
public:
    /// @param kinds  what the columns of the answer are read as
    QueryRows(soci::session &session, const std::string &query, const std::vector<Kind> &kinds)
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
    QueryRows(const QueryRows &) = delete;
    QueryRows &operator=(const QueryRows &) = delete;

    /// Reads the next row, or returns false if there is none.
    bool next() {
        const bool isRead = m_statement.fetch();
        for (std::size_t i = 0; i < m_row.size() && isRead; ++i) {
            m_row[i].isNull = m_indicators[i] == soci::i_null;
            if (m_row[i].isNull) {
                m_row[i].text.clear();
            }
        }
        return isRead;
    }

    /// The row that was read last; what is null is an empty text, too.
    const std::vector<Value> &row() const { return m_row; }

private:
    std::vector<Value> m_row;
    std::vector<soci::indicator> m_indicators;
    soci::statement m_statement;
};

} // namespace drillhole
