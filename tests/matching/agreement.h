// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "matching/columnNameScore.h"
#include "matching/fast/castVotes.h"
#include "matching/matchColumns.h"
#include "matching/normalizeColumnName.h"
#include "matching/openingMatches.h"
#include "matching/reference/reference.h"

namespace columnimport {

/// How the matcher departs from its rules or laws for two lists of names as written; empty if it
/// does not. Scores of votes are compared to the last bit.
inline std::string disagreement(std::vector<std::string> app, std::vector<std::string> file,
                                const Alternatives &alternatives = {}) {
    const std::vector<std::int32_t> proposal = matchColumns(app, file, alternatives);
    if (proposal != reference::matchColumns(app, file, alternatives)) {
        return "the proposal";
    }
    const std::vector<ColumnMatch> explained = explainMatches(app, file, alternatives, proposal);
    for (auto *names : {&app, &file}) {
        for (std::string &name : *names) {
            name = normalizeColumnName(name);
            if (name != normalizeColumnName(name)) {
                return "the normal form " + name;
            }
        }
    }
    const std::vector<Vote> votes = castVotes(app, file, {});
    for (std::size_t i = 0; i < file.size(); ++i) {
        if (!votes[i].isForNone() &&
            votes[i].score !=
                columnNameScore(file[i], app[static_cast<std::size_t>(votes[i].app)])) {
            return "the score of " + file[i];
        }
    }
    for (std::size_t i = 0; i < app.size(); ++i) {
        const auto &[position, origin, score] = explained[i];
        const bool isKnown = origin == MatchOrigin::synonym || origin == MatchOrigin::alternative;
        const double measured =
            position < 0 ? noScore
                         : columnNameScore(app[i], file[static_cast<std::size_t>(position)]);
        if (position != proposal[i] || (origin == MatchOrigin::none) != (position < 0) ||
            (origin == MatchOrigin::same) != (measured == 1.0) || (measured == 0.99 && !isKnown) ||
            score != (origin == MatchOrigin::similar ? measured : noScore)) {
            return "the origin of the match of " + app[i];
        }
    }
    return "";
}

} // namespace columnimport
