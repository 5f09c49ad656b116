// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/database/importRows.h"

#include <iosfwd>

namespace drillhole {

/// One import from the choice of its source to its end.
struct ImportStory {
    const Table *table = nullptr;
    std::string source;       ///< the file's name, or the table's
    bool isConfirmed = false; ///< with OK in the dialog
    Match match;
    ImportOutcome outcome;
    std::string fault; ///< why nothing was imported

    bool isDone() const { return isConfirmed && fault.empty() && outcome.isDone(); }
};

/// The outcome in a sentence.
std::string summaryOf(const ImportStory &story);

/// Writes it line by line: how the dialog ended, the columns with their matches, the rows taken
/// and refused, why, and what else is to be said of them.
void print(std::ostream &out, const ImportStory &story);

} // namespace drillhole
