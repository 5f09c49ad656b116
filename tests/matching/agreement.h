// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "matching/columnNameScore.h"
#include "matching/fast/castVotes.h"
#include "matching/matchColumns.h"
#include "matching/normalizeColumnName.h"
#include "matching/reference/reference.h"

namespace columnimport {

/// What the matcher answers otherwise than its rules, or against its own laws, for two lists of
/// names as written; empty if all is well. The scores of votes are compared to the last bit.
inline std::string disagreement(std::vector<std::string> app, std::vector<std::string> file,
                                const Alternatives &alternatives = {}) {
    if (matchColumns(app, file, alternatives) != reference::matchColumns(app, file, alternatives)) {
        return "the proposal";
    }
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
    return "";
}

} // namespace columnimport
