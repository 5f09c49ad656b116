// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/rows/RowCheck.h"
#include "drillhole/rows/RowSource.h"

#include <atomic>
#include <future>
#include <memory>

namespace drillhole {

/// The rows of a table in another database, read on a thread of their own some ahead of the import.
/// A row's line is its number; its fields are there for the columns that are wanted.
class TableRows : public RowSource {
public:
    /// @param layout       the columns that the user saw, and which of them are read; a Fault comes
    ///                     with the first row if the table has others now
    /// @param isCancelled  ends the wait for a row, also for that of a server that is silent
    TableRows(const std::string &connection, const std::string &table, const RowLayout &layout,
              const std::atomic<bool> &isCancelled);

    bool next(Row &row) override;
    double share() const override;

private:
    using Batch = std::vector<std::vector<std::string>>;
    struct Source;
    void readAhead();

    std::shared_ptr<Source> m_source;
    const std::atomic<bool> &m_isCancelled;
    std::future<Batch> m_ahead;
    Batch m_batch;
    std::size_t m_nextOfBatch = 0;
    std::size_t m_read = 0;
};

} // namespace drillhole
