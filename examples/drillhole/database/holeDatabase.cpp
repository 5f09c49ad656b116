// SPDX-License-Identifier: MIT

#include "examples/drillhole/database/holeDatabase.h"

namespace drillhole {

namespace {

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

} // namespace

void makeHoleTables(soci::session &session) {
    for (const Table &table : holeTables()) {
        session << definitionOf(table);
    }
}

std::size_t rowCount(soci::session &session, const Table &table) {
    long long count = 0;
    session << "select count(*) from " + table.name, soci::into(count);
    return static_cast<std::size_t>(count);
}

std::unordered_set<std::string> holeNames(soci::session &session) {
    const soci::rowset<std::string> names = session.prepare << "select holename from collar";
    return {names.begin(), names.end()};
}

std::vector<std::vector<std::string>> rowsOf(soci::session &session, const Table &table,
                                             std::size_t first, std::size_t count) {
    const std::size_t width = table.columns.size();
    std::vector<std::string> fields(width);
    std::vector<soci::indicator> indicators(width);
    soci::statement statement(session);
    for (std::size_t i = 0; i < width; ++i) {
        statement.exchange(soci::into(fields[i], indicators[i]));
    }
    statement.alloc();
    statement.prepare("select " + columnList(table) + " from " + table.name + " limit " +
                      std::to_string(count) + " offset " + std::to_string(first));
    statement.define_and_bind();
    statement.execute();
    std::vector<std::vector<std::string>> rows;
    while (statement.fetch()) {
        std::vector<std::string> row(width);
        for (std::size_t i = 0; i < width; ++i) {
            if (indicators[i] == soci::i_ok) {
                row[i] = fields[i];
            }
        }
        rows.push_back(row);
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
    : m_table(table), m_numbers(table.columns.size()), m_texts(table.columns.size()),
      m_indicators(table.columns.size()), m_statement(session) {
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        if (table.columns[i].kind == Kind::number) {
            m_statement.exchange(soci::use(m_numbers[i], m_indicators[i]));
        } else {
            m_statement.exchange(soci::use(m_texts[i], m_indicators[i]));
        }
    }
    m_statement.alloc();
    m_statement.prepare("insert into " + table.name + " (" + columnList(table) + ") values (" +
                        columnList(table, ":") + ')');
    m_statement.define_and_bind();
}

void RowInsertion::insert(const std::vector<Value> &values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        m_indicators[i] = values[i].isNull ? soci::i_null : soci::i_ok;
        if (m_table.columns[i].kind == Kind::number) {
            m_numbers[i] = values[i].number;
        } else if (!values[i].isNull) {
            m_texts[i] = values[i].text;
        }
    }
    m_statement.execute(true);
}

} // namespace drillhole
