#pragma once

#include <cstdint>

namespace columnimport {

/// A kept vote counts only if its score is above this.
inline constexpr double acceptanceThreshold = 0.4;

/// The application column that a file column fits best, as far as is known, and how well. One that
/// fits none so far stands at the threshold, where a vote can't be seen in a proposal.
struct Vote {
    double score = acceptanceThreshold;
    std::int32_t app = -1;

    /// Takes a better score, or for an equal one a column that stands before the present one, so
    /// that columns may be offered in any order.
    void offer(double otherScore, std::int32_t otherApp) {
        if (otherScore > score || (otherScore == score && otherApp < app)) {
            score = otherScore;
            app = otherApp;
        }
    }
};

} // namespace columnimport
