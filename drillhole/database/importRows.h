// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/database/holeDatabase.h"
#include "drillhole/rows/CsvFile.h"
#include "drillhole/rows/RefusedRows.h"

#include <atomic>

namespace drillhole {

/// What the window and a running import say to each other, from two threads.
struct ImportProgress {
    std::atomic<double> share{0}; ///< of the source, from 0 to 1
    std::atomic<std::size_t> rows{0};
    std::atomic<bool> isCancelled{false};  ///< set to end the import
    std::atomic<bool> isCommitting{false}; ///< from here on nobody knows until it has ended
};

/// What becomes of the rows that the table holds.
enum class Replace {
    no,       ///< they stay
    ifAgreed, ///< the outcome asks before they are deleted
    anyway    ///< they make room for the new ones
};

struct ImportOutcome {
    bool isCancelled = false;
    bool replaces = false;
    std::string question; ///< with the numbers, where nothing was replaced without an answer to it
    std::size_t taken = 0;
    std::size_t refused = 0;
    std::vector<Remark> firstRefused; ///< the reasons of the first thousand
    std::vector<Remark> remarks;      ///< what was left out, and what is odd about the rows taken
    std::string report;               ///< the file of all refused rows; empty if there are none

    /// Whether the database has new rows.
    bool isDone() const { return !isCancelled && question.empty() && taken > 0; }
};

/// Where an import goes.
struct Destination {
    soci::session &session;
    const Table &table;
    std::string report; ///< the path of one but for what makes it its own
    Replace replace = Replace::no;
    ValueChoices choices;
};

/// How the dialog was left with OK: the columns are those of the source as the dialog cut them.
struct Match : RowLayout {
    bool firstLineHoldsTitles = true;
    std::vector<std::string> names; ///< for each column of the table, empty for none
    std::optional<FileStamp> stamp; ///< of the file when the dialog read it
};

/// Puts the rows of a file that fit into the table, in one transaction: a fault, a cancelled import
/// and the end of the process leave the database as it was, and so does a source of which nothing
/// fits. Refused rows go to the report.
///
/// Throws a Fault, or what the database throws.
ImportOutcome importFile(const Destination &destination, const std::string &path,
                         const Match &match, ImportProgress &progress);

/// The same for the rows of a table of another database.
ImportOutcome importTable(const Destination &destination, const std::string &connection,
                          const std::string &table, const Match &match, ImportProgress &progress);

} // namespace drillhole
