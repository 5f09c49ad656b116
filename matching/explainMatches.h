// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "matching/matchColumns.h"
#include "names/ColumnMatch.h"

namespace columnimport {

/// Why `matchColumns` gave `proposal` for the same three lists: the same positions, each with its
/// origin (same, synonym, alternative or similar, the first that holds) and the score of a similar
/// name, to the last bit of what decided.
///
/// Costs one comparison of names for each match. `matchColumns` itself costs no more.
///
///     {"holename", "dip"}, {"BHID", "Dips"}, {}, {0, 1}
///     gives {0, synonym} and {1, similar, 0.7292}
std::vector<ColumnMatch> explainMatches(const std::vector<std::string> &appColumns,
                                        const std::vector<std::string> &fileColumns,
                                        const Alternatives &alternatives,
                                        const std::vector<std::int32_t> &proposal);

} // namespace columnimport
