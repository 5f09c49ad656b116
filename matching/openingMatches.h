// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "matching/matchColumns.h"
#include "names/ColumnMatch.h"

namespace columnimport {

/// Explains the `proposal` of `matchColumns` for the same three lists: the same positions, each
/// with the first origin that holds (same, synonym, alternative, similar), and for a similar name
/// the exact score that decided. Costs one comparison of names for each match.
///
///     {"holename", "dip"}, {"BHID", "Dips"}, {}, {0, 1}
///     gives {0, synonym} and {1, similar, 0.7292}
std::vector<ColumnMatch> explainMatches(const std::vector<std::string> &appColumns,
                                        const std::vector<std::string> &fileColumns,
                                        const Alternatives &alternatives,
                                        const std::vector<std::int32_t> &proposal);

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
