// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace columnimport {

/// A vote counts only if its score is above this.
inline constexpr double acceptanceThreshold = 0.4;

/// The application column that a file column fits best, as far as is known, and how well.
///
/// A vote for none has the threshold as its score, since a lower score makes no difference to a
/// proposal. `profondeur` fits `depth` best with 0.3. Whether that counts as a refused vote or as
/// none, `depth` is matched to the best file column above 0.4, or to none.
struct Vote {
    double score = acceptanceThreshold;
    std::int32_t app = -1;

    bool isForNone() const { return app < 0; }

    /// Accepts a better score, or an equal one for an earlier column, so that columns may be
    /// offered in any order.
    void offer(std::int32_t otherApp, double otherScore) {
        if (otherScore > score || (otherScore == score && otherApp < app)) {
            *this = {otherScore, otherApp};
        }
    }
};

} // namespace columnimport
