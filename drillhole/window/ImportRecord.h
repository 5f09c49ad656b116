// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/database/importRows.h"

#include <iosfwd>

namespace drillhole {

/// A file, or a table in another database.
struct ImportSource {
    std::string path;       ///< of the file; empty for a table
    std::string connection; ///< to the table's database
    std::string table;
};

/// One import from the choice of its source to its end.
struct ImportRecord {
    const Table *table = nullptr; ///< where to
    ImportSource source;
    std::optional<Match> match; ///< nothing before OK in the dialog, and after Cancel
    ImportOutcome outcome;
    std::string fault; ///< why nothing was imported

    bool isDone() const { return match && fault.empty() && outcome.isDone(); }
};

/// What a person should be asked before the rows are imported so: units that differ, and no value
/// at all. Empty if nothing is in doubt.
std::string doubtsAbout(const Table &table, const Match &match);

/// The required columns that only similar names were found for; empty for none.
std::string requiredGuesses(const Table &table, const Match &match);

/// For each column what its numbers are to be multiplied with, by the units in the titles.
std::vector<double> unitFactors(const Table &table, const Match &match);

/// The outcome in a sentence.
std::string summaryOf(const ImportRecord &record);

/// What is to be said of rows and columns: what was left out or is odd, and the first of the
/// refused rows with their reasons, so many at most.
std::vector<Remark> remarksOf(const ImportOutcome &outcome, std::size_t mostRefused);

/// Writes it line by line: how the dialog ended, the columns with their matches, the rows taken
/// and refused, why, and what else is to be said of them.
void print(std::ostream &out, const ImportRecord &record);

} // namespace drillhole
