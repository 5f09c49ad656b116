// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace columnimport {

/// A host's other words for its application columns: a list for each, in their order. Lists at the
/// end may be missing.
using Alternatives = std::vector<std::vector<std::string>>;

/// Proposes a file column for each application column, from the names alone.
///
/// Every file column casts one vote, for the application column that it fits best by
/// `columnNameScore` (the first of equals); every application column keeps the strongest vote that
/// it received (the first of equals), and the vote counts only if its score is above 0.4.
///
/// A file column with the name of an alternative fits that application column with at least 0.99,
/// as a synonym does. No name is measured against alternatives.
///
/// Returns one entry per application column, in their order: a position in `fileColumns`, or -1
/// for no match. No position occurs twice. Names are taken as written and normalised here; empty
/// names, equal names and empty lists are all allowed. Keeps nothing between calls.
///
///     matchColumns({"holename", "x", "dip"}, {"BHID", "UTM X", "Au g/t"}) == {0, 1, -1}
///     matchColumns({"collar"}, {"Easting", "RL"}, {{"rl"}})                     == {1}
std::vector<std::int32_t> matchColumns(std::vector<std::string> appColumns,
                                       std::vector<std::string> fileColumns,
                                       Alternatives alternatives = {});

} // namespace columnimport
