// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace columnimport {

/// A vote counts only if its score is above this.
inline constexpr double acceptanceThreshold = 0.4;

/// The application column that a file column fits best so far, and how well.
///
/// A vote for none has the threshold as its score, since a lower score changes no proposal:
/// `profondeur` fits `depth` best with 0.3. Whether that vote is refused or never cast, `depth`
/// gets the best file column above 0.4, or none.
struct Vote {
    double score = acceptanceThreshold;
    std::int32_t app = -1;

    bool isForNone() const { return app < 0; }

    /// Takes a better score, or an equal one for an earlier column, so that columns may be offered
    /// in any order.
    void offer(std::int32_t otherApp, double otherScore) {
        if (otherScore > score || (otherScore == score && otherApp < app)) {
            *this = {otherScore, otherApp};
        }
    }
};

} // namespace columnimport
