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
/// the exact score that decided.
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
