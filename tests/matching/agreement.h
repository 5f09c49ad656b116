// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "matching/columnNameScore.h"
#include "matching/matchColumns.h"
#include "matching/normalizeColumnName.h"
#include "matching/reference/reference.h"

namespace columnimport {

/// What the matcher answers otherwise than the reference, or against its own laws, for two lists of
/// names as written; empty if all is well. Scores are compared to the last bit, those of the names
/// that stand at the same place in both lists.
inline std::string disagreement(const std::vector<std::string> &app,
                                const std::vector<std::string> &file) {
    for (const auto *names : {&app, &file}) {
        for (const std::string &written : *names) {
            const std::string name = normalizeColumnName(written);
            if (name != reference::normalizeColumnName(written) ||
                name != normalizeColumnName(name)) {
                return "the normal form of " + written;
            }
        }
    }
    for (std::size_t i = 0; i < std::min(app.size(), file.size()); ++i) {
        const std::string &a = app[i], &b = file[i];
        const double score = columnNameScore(a, b);
        if (score != reference::columnNameScore(a, b) || score != columnNameScore(b, a)) {
            return "the score at " + std::to_string(i);
        }
    }
    return matchColumns(app, file) == reference::matchColumns(app, file) ? "" : "the proposal";
}

} // namespace columnimport
