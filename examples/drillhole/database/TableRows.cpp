// SPDX-License-Identifier: MIT

#include "examples/drillhole/database/TableRows.h"

#include "examples/drillhole/database/connection.h"
#include "examples/drillhole/database/faultText.h"
#include "examples/drillhole/database/onOwnThread.h"
#include "examples/drillhole/database/sourceTables.h"
#include "examples/drillhole/rows/Fault.h"

#include <algorithm>
#include <optional>

namespace drillhole {

namespace {

constexpr std::size_t batchSize = 1000;

} // namespace

/// What the thread of the source works with.
struct TableRows::Source {
    std::string connection;
    std::string table;
    std::vector<std::string> columns;
    FieldPositions wanted;
    double count = 0;
    Session session;
    bool isCursor = false;
    std::vector<std::string> fields;
    std::vector<soci::indicator> indicators;
    std::optional<soci::statement> statement; // of the open session

    void open() {
        session = openSource(connection);
        const std::string name = nameInQuery(*session, table);
        if (columnNames(*session, name) != columns) {
            throw Fault("The columns of table " + table +
                        " were changed meanwhile. Import it again to match the present ones.");
        }
        *session << "select count(*) from " + name, soci::into(count);
        fields.resize(columns.size());
        indicators.resize(columns.size());
        statement.emplace(*session);
        std::string list;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            if (std::find(wanted.begin(), wanted.end(), i) != wanted.end()) {
                list += (list.empty() ? "" : ", ") + quotedName(columns[i]);
                statement->exchange(soci::into(fields[i], indicators[i]));
            }
        }
        std::string query = "select " + list + " from " + name;
        // The client of PostgreSQL takes the whole answer to a query into memory.
        isCursor = session->get_backend_name() == "postgresql";
        if (isCursor) {
            session->begin();
            *session << "declare all_rows no scroll cursor for " + query;
            query = "fetch " + std::to_string(batchSize) + " from all_rows";
        }
        statement->alloc();
        statement->prepare(query);
        statement->define_and_bind();
    }

    Batch read() {
        Batch batch;
        inPlainWords(connection, [&] {
            const bool isFirst = !session;
            if (isFirst) {
                open();
            }
            if (isFirst || isCursor) {
                statement->execute();
            }
            while (batch.size() < batchSize && statement->fetch()) {
                batch.push_back(fields);
                for (std::size_t i = 0; i < fields.size(); ++i) {
                    if (indicators[i] == soci::i_null) {
                        batch.back()[i].clear();
                    }
                }
            }
        });
        return batch;
    }
};

TableRows::TableRows(const std::string &connection, const std::string &table,
                     const std::vector<std::string> &columns, const FieldPositions &wanted,
                     const std::atomic<bool> &isCancelled)
    : m_source(std::make_shared<Source>()), m_isCancelled(isCancelled) {
    m_source->connection = connection;
    m_source->table = table;
    m_source->columns = columns;
    m_source->wanted = wanted;
    m_ahead = onOwnThread([source = m_source] { return source->read(); });
}

bool TableRows::next(Row &row) {
    if (m_nextOfBatch == m_batch.size()) {
        while (m_ahead.valid() &&
               m_ahead.wait_for(std::chrono::milliseconds(20)) != std::future_status::ready) {
            if (m_isCancelled) {
                return false;
            }
        }
        m_batch = m_ahead.valid() ? m_ahead.get() : Batch();
        m_nextOfBatch = 0;
        if (m_batch.size() == batchSize) {
            m_ahead = onOwnThread([source = m_source] { return source->read(); });
        }
        if (m_batch.empty()) {
            return false;
        }
    }
    const std::vector<std::string> &fields = m_batch[m_nextOfBatch++];
    row.firstLine = row.lastLine = ++m_read;
    row.fields.assign(fields.begin(), fields.end());
    return true;
}

double TableRows::share() const {
    return m_source->count > 0 ? static_cast<double>(m_read) / m_source->count : 1;
}

} // namespace drillhole
