// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/database/holeDatabase.h"

#include <unordered_set>

namespace drillhole {

/// All holes that have a collar, and the depths that the table's rows tell of.
Holes holesOf(soci::session &session, const Table &table);

/// How many of the table's rows belong to no collar.
std::size_t orphanCount(soci::session &session, const Table &table);

/// Tells rows that stand in a table already. The table is read when that is asked for the first
/// time, which an import of new rows never does.
class StoredRows {
public:
    StoredRows(soci::session &session, const Table &table, RowInsertion &insertion)
        : m_session(session), m_table(table), m_insertion(insertion) {}

    bool hold(const std::vector<Value> &values);

    /// Is to be told of each row that is inserted.
    void add(const std::vector<Value> &values);

private:
    soci::session &m_session;
    const Table &m_table;
    RowInsertion &m_insertion;
    bool m_isRead = false;
    std::unordered_set<std::size_t> m_hashes;
};

} // namespace drillhole
