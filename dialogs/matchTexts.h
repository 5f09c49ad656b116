// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace columnimport {

/// The name of a file column that is known by number only, counted from 1: "Column1", "Column2".
std::string positionalName(std::size_t number);

/// The match texts of `appCount` application columns that are paired with `fileCount` nameless file
/// columns by position.
///
///     positionalMatchTexts(3, 2) == {"Column1", "Column2", "Not used"}
std::vector<std::string> positionalMatchTexts(std::size_t appCount, std::size_t fileCount);

/// Rewrites as "Not used", in place, the saved matches that are empty or equal no file column byte
/// for byte.
void dropUnknownMatches(std::vector<std::string> &savedMatches,
                        const std::vector<std::string> &fileSchema);

/// The match texts that the names alone propose.
std::vector<std::string> proposedMatchTexts(const std::vector<std::string> &appColumns,
                                            const std::vector<std::string> &fileSchema);

} // namespace columnimport
