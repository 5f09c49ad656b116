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
struct ImportStory {
    const Table *table = nullptr; ///< where to
    ImportSource source;
    std::optional<Match> match; ///< nothing before OK in the dialog, and after Cancel
    ImportOutcome outcome;
    std::string fault; ///< why nothing was imported

    bool isDone() const { return match && fault.empty() && outcome.isDone(); }
};

/// The outcome in a sentence.
std::string summaryOf(const ImportStory &story);

/// What is to be said of rows and columns: what was left out or is odd, and the first of the
/// refused rows with their reasons, so many at most.
std::vector<Remark> remarksOf(const ImportOutcome &outcome, std::size_t mostRefused);

/// Writes it line by line: how the dialog ended, the columns with their matches, the rows taken
/// and refused, why, and what else is to be said of them.
void print(std::ostream &out, const ImportStory &story);

} // namespace drillhole
