// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/database/holeDatabase.h"
#include "examples/drillhole/rows/RefusedRows.h"

#include <atomic>

namespace drillhole {

/// What the window and a running import say to each other, from two threads.
struct ImportProgress {
    std::atomic<double> share{0}; ///< of the source, from 0 to 1
    std::atomic<std::size_t> rows{0};
    std::atomic<bool> isCancelled{false}; ///< set to end the import
};

struct ImportOutcome {
    bool isCancelled = false;
    bool replaces = false;
    std::size_t taken = 0;
    std::size_t refused = 0;
    std::vector<RefusedRow> firstRefused;
    std::string report; ///< the file of all refused rows; empty if there are none
    double seconds = 0;
};

/// Where an import goes.
struct Destination {
    soci::session &session;
    const Table &table;
    std::string report;
    bool replaces; ///< the rows that the table holds make room for the new ones
};

/// Puts the rows that fit into the table, in one transaction: a fault, a cancelled import and the
/// end of the process leave the database as it was. Refused rows go to the report.
///
/// Throws a Fault, or what the database throws.
ImportOutcome importRows(const Destination &destination, RowSource &source, const RowLayout &layout,
                         ImportProgress &progress);

/// How the dialog was left with OK over a file.
struct FileMatch {
    std::vector<std::string> matches;
    char delimiter = ',';
    bool firstLineHoldsTitles = true;
};

/// Imports a file. As `importRows`.
ImportOutcome importFile(const Destination &destination, const std::string &path,
                         const FileMatch &match, ImportProgress &progress);

/// Imports a table of another database. As `importRows`.
///
/// @param columns  the columns that the dialog showed
ImportOutcome importTable(const Destination &destination, const std::string &connection,
                          const std::string &table, const std::vector<std::string> &columns,
                          const std::vector<std::string> &matches, ImportProgress &progress);

} // namespace drillhole
