// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "matching/matchColumns.h"

namespace columnimport {

/// The names under which an import knows the source's columns: their titles, or without titles
/// "Column1", "Column2" and so on.
std::vector<std::string> columnNames(const std::vector<std::string> &titles, bool holdsTitles);

/// Whether there is anything to find again: a saved match that is not empty.
bool holdsAName(const std::vector<std::string> &savedMatches);

/// With which source columns an import opens: one position for each application column, or -1.
///
///  - Without titles the columns are paired in their order.
///  - With `savedMatches` each is the first source column of the very name that was saved. There
///    is one position for each entry. One that is empty or names no source column gives -1 and is
///    emptied, so that it gives -1 from then on.
///  - Otherwise the names alone propose it.
///
/// @param appColumns   the application columns
/// @param alternatives the host's other words for them, as `matchColumns` takes them
/// @param titles       the fields of the source's first line
/// @param holdsTitles  whether that line holds titles
/// @param savedMatches the matches of an earlier import, or null to propose afresh
std::vector<std::int32_t> openingMatches(const std::vector<std::string> &appColumns,
                                         const Alternatives &alternatives,
                                         const std::vector<std::string> &titles, bool holdsTitles,
                                         std::vector<std::string> *savedMatches);

} // namespace columnimport
