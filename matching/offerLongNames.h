#pragma once

#include <string>
#include <vector>

#include "matching/vote.h"

namespace columnimport {

/// Offers the votes of the file columns each application column where at least one of the two
/// names is longer than `maskedLength`. The names are normalised; `votes` belong to the file
/// columns in their order, and those that equality or a synonym settled are left alone.
///
/// The longer name of a pair is read once for a whole group of the shorter ones, so its length
/// counts once and not once for each pair. Two names that are both too long for a group are
/// compared directly.
void offerLongNames(std::vector<Vote> &votes, const std::vector<std::string> &appColumns,
                    const std::vector<std::string> &fileColumns);

} // namespace columnimport
