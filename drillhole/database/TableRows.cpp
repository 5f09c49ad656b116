// SPDX-License-Identifier: MIT

#include "drillhole/database/TableRows.h"

#include "drillhole/database/QueryRows.h"
#include "drillhole/database/connection.h"
#include "drillhole/database/onOwnThread.h"
#include "drillhole/database/sourceTables.h"
#include "drillhole/rows/text.h"

#include <algorithm>
#include <cmath>

#include <boost/algorithm/string/join.hpp>

namespace drillhole {

namespace {

constexpr std::size_t batchSize = 1000;
constexpr double shownDigits = 1e-13; // of what a text shows

/// The text, or the number that it shows the first digits of.
std::string inFull(const std::string &text, double number) {
    const std::optional<double> shown = parseNumber(text);
    return shown && *shown != number && std::abs(*shown - number) <= std::abs(number) * shownDigits
               ? digitsOf(number)
               : text;
}

} // namespace

/// What the thread of the source works with.
struct TableRows::Source {
    std::string connection;
    std::string table;
    RowLayout layout;
    double count = 0;
    Session session = {};
    std::vector<std::size_t> read = {}; // the positions of the columns that are
    std::string query = {};
    std::vector<Kind> kinds = {};         // of the query's columns
    bool isCursor = false;                // each query gives a batch
    std::optional<QueryRows> answer = {}; // of the open session

    void open() {
        session = openSource(connection);
        const std::string name = nameInQuery(*session, table);
        const SourceColumns columns = columnsOf(*session, name);
        if (columns.names != layout.columns) {
            throw Fault("The columns of table " + table +
                        " were changed meanwhile. Import it again to match the present ones.");
        }
        *session << "select count(*) from " + name, soci::into(count);
        // As a text a number may be cut, so that it comes as a number too.
        std::vector<std::string> texts;
        std::vector<std::string> numbers;
        for (std::size_t i = 0; i < columns.names.size(); ++i) {
            const auto &wanted = layout.positions;
            if (std::find(wanted.begin(), wanted.end(), i) != wanted.end()) {
                read.push_back(i);
                texts.push_back(inQuotes(columns.names[i], '"', '"'));
                numbers.push_back(columns.areNumbers[i] ? texts.back() : "0");
            }
        }
        kinds.assign(texts.size(), Kind::text);
        kinds.resize(2 * texts.size(), Kind::number);
        query = "select " + boost::join(texts, ", ") + ", " + boost::join(numbers, ", ") +
                " from " + name;
        // The client of PostgreSQL takes the whole answer to a query into memory.
        isCursor = session->get_backend_name() == "postgresql";
        if (isCursor) {
            session->begin();
            *session << "set extra_float_digits = 3";
            *session << "declare all_rows no scroll cursor for " + query;
            query = "fetch " + std::to_string(batchSize) + " from all_rows";
        }
    }

    Batch readBatch() {
        if (!session) {
            open();
        }
        if (!answer || isCursor) {
            answer.emplace(*session, query, kinds);
        }
        Batch batch;
        while (batch.size() < batchSize && answer->next()) {
            std::vector<std::string> &fields = batch.emplace_back(layout.columns.size());
            const std::vector<Value> &row = answer->row();
            for (std::size_t i = 0; i < read.size(); ++i) {
                fields[read[i]] = inFull(row[i].text, row[read.size() + i].number);
            }
        }
        return batch;
    }
};

TableRows::TableRows(const std::string &connection, const std::string &table,
                     const RowLayout &layout, const std::atomic<bool> &isCancelled)
    : m_source(new Source{connection, table, layout}), m_isCancelled(isCancelled) {
    readAhead();
}

void TableRows::readAhead() {
    m_ahead = onOwnThread([source = m_source] {
        return inPlainWords(source->connection, [&] { return source->readBatch(); });
    });
}

bool TableRows::next(Row &row) {
    if (m_nextOfBatch == m_batch.size()) {
        while (m_ahead.wait_for(std::chrono::milliseconds(20)) != std::future_status::ready) {
            if (m_isCancelled) {
                return false;
            }
        }
        m_batch = m_ahead.get();
        m_nextOfBatch = 0;
        if (m_batch.empty()) {
            return false;
        }
        readAhead();
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
