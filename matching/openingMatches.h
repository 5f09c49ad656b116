// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include "matching/matchColumns.h"
#include "names/ColumnMatch.h"

namespace columnimport {

/// Whether any saved match is not empty.
bool holdsAName(const std::vector<std::string> &savedMatches);

/// The matches that an import opens with, one for each application column.
///
///  - Without titles the columns are paired in their order.
///  - With `savedMatches`, one for each entry: the first source column with exactly the saved name.
///    An entry that is empty or names no source column gives no match and is emptied, so that it
///    gives none later either.
///  - Otherwise a proposal from the names alone, without the guesses of application columns that
///    refuse similar names. The source column of such a guess goes to no other application column.
///
/// @param appColumns     the application columns
/// @param alternatives   the host's other words for them, as `matchColumns` takes them
/// @param refusesSimilar whether each takes no similar name; entries at the end may be missing
/// @param titles         the fields of the source's first line
/// @param holdsTitles    whether that line holds titles
/// @param savedMatches   the matches of an earlier import, or null to propose afresh
std::vector<ColumnMatch> openingMatches(const std::vector<std::string> &appColumns,
                                        const Alternatives &alternatives,
                                        const std::vector<bool> &refusesSimilar,
                                        const std::vector<std::string> &titles, bool holdsTitles,
                                        std::vector<std::string> *savedMatches);

} // namespace columnimport
