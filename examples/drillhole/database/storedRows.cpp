// SPDX-License-Identifier: MIT

#include "examples/drillhole/database/storedRows.h"

#include "examples/drillhole/rows/text.h"

#include <boost/container_hash/hash.hpp>

namespace drillhole {

namespace {

/// Hands out the first columns of all of the table's rows.
template <typename Take>
void readRows(soci::session &session, const Table &table, std::size_t width, Take take) {
    std::vector<Value> values(width);
    std::vector<soci::indicator> indicators(width);
    soci::statement statement(session);
    std::string list;
    for (std::size_t i = 0; i < width; ++i) {
        list += (i == 0 ? "" : ", ") + table.columns[i].sqlName;
        if (table.columns[i].kind == Kind::number) {
            statement.exchange(soci::into(values[i].number, indicators[i]));
        } else {
            statement.exchange(soci::into(values[i].text, indicators[i]));
        }
    }
    statement.alloc();
    statement.prepare("select " + list + " from " + table.name);
    statement.define_and_bind();
    statement.execute();
    while (statement.fetch()) {
        for (std::size_t i = 0; i < width; ++i) {
            values[i].isNull = indicators[i] == soci::i_null;
        }
        take(values);
    }
}

std::size_t hashOf(const std::vector<Value> &values) {
    std::size_t hash = 0;
    for (const Value &value : values) {
        boost::hash_combine(hash, value.isNull);
        if (!value.isNull) {
            boost::hash_combine(hash, value.number);
            boost::hash_combine(hash, value.text);
        }
    }
    return hash;
}

} // namespace

Holes holesOf(soci::session &session, const Table &table) {
    Holes holes;
    const Table &collars = holeTables().front();
    readRows(session, collars, collars.columns.size(), [&](const std::vector<Value> &values) {
        Hole &hole = holes[values.front().text];
        if (!values.back().isNull) {
            hole.length = values.back().number;
        }
    });
    if (!table.namesHoles) {
        readRows(session, table, table.hasIntervals ? 3 : 2, [&](const std::vector<Value> &values) {
            const auto hole = holes.find(values.front().text);
            if (hole != holes.end()) {
                hole->second.depths += depthsOf(table, values);
            }
        });
    }
    return holes;
}

std::size_t orphanCount(soci::session &session, const Table &table) {
    long long count = 0;
    session << "select count(*) from " + table.name +
                   " where holename not in (select holename from collar)",
        soci::into(count);
    return static_cast<std::size_t>(count);
}

bool StoredRows::hold(const std::vector<Value> &values) {
    if (!m_isRead) {
        m_insertion.flush();
        readRows(m_session, m_table, m_table.columns.size(),
                 [this](const std::vector<Value> &each) { m_hashes.insert(hashOf(each)); });
        m_isRead = true;
    }
    return m_hashes.count(hashOf(values)) > 0;
}

void StoredRows::add(const std::vector<Value> &values) {
    if (m_isRead) {
        m_hashes.insert(hashOf(values));
    }
}

} // namespace drillhole
