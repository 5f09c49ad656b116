// SPDX-License-Identifier: MIT

#pragma once

#include <cmath>
#include <cstddef>

#include "matching/fast/PreparedName.h"
#include "matching/vote.h"

namespace columnimport {

/// The least sum of shared bytes and run minus one with which two names of these lengths may
/// measure `score`: but for rounding, the measure is proportional to that sum. The slack is far
/// above any rounding error, so no pair that reaches the score has a smaller sum.
inline std::size_t leastSum(double score, std::size_t lengthA, std::size_t lengthB) {
    constexpr double slack = 1e-9;
    const auto a = static_cast<double>(lengthA);
    const auto b = static_cast<double>(lengthB);
    return static_cast<std::size_t>(std::ceil(score * (1.0 - slack) * 4.0 * a * b / (a + b)));
}

/// Offers `vote` an application column by the measure, for two names that are long enough and
/// neither equal nor synonyms.
///
/// The lengths and the shared bytes bound the measure. The longest run is searched for only if the
/// column can still win, and only above the length that it needs; so most bytes of a long text are
/// skipped.
void offerMeasured(Vote &vote, const AppColumn &column, const PreparedName &file);

} // namespace columnimport
