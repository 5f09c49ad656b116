// SPDX-License-Identifier: MIT

#include "matching/reference/reference.h"

#include <algorithm>
#include <map>

#include "matching/columnNameScore.h"
#include "matching/normalizeColumnName.h"
#include "matching/vote.h"

namespace columnimport::reference {

std::vector<std::int32_t> matchColumns(std::vector<std::string> appColumns,
                                       std::vector<std::string> fileColumns,
                                       const Alternatives &alternatives) {
    const auto isAlternative = [&](std::size_t app, const std::string &file) {
        return app < alternatives.size() &&
               std::any_of(
                   alternatives[app].begin(), alternatives[app].end(),
                   [&](const std::string &word) { return normalizeColumnName(word) == file; });
    };
    for (std::string &name : appColumns) {
        name = normalizeColumnName(name);
    }
    for (std::string &name : fileColumns) {
        name = normalizeColumnName(name);
    }
    std::map<std::int32_t, double> bestScoreByApp;
    std::map<std::int32_t, std::int32_t> bestFileByApp;
    for (std::size_t j = 0; j < fileColumns.size(); ++j) {
        double score = 0.0;
        std::int32_t vote = 0;
        for (std::size_t i = 0; i < appColumns.size(); ++i) {
            const double least = isAlternative(i, fileColumns[j]) ? 0.99 : 0.0;
            const double candidate =
                std::max(least, columnNameScore(appColumns[i], fileColumns[j]));
            if (candidate > score) {
                score = candidate;
                vote = static_cast<std::int32_t>(i);
            }
        }
        const auto kept = bestScoreByApp.find(vote);
        if (kept == bestScoreByApp.end() || score > kept->second) {
            bestScoreByApp[vote] = score;
            bestFileByApp[vote] = static_cast<std::int32_t>(j);
        }
    }
    std::vector<std::int32_t> proposal;
    for (std::size_t i = 0; i < appColumns.size(); ++i) {
        const auto app = static_cast<std::int32_t>(i);
        const auto kept = bestScoreByApp.find(app);
        const bool counts = kept != bestScoreByApp.end() && kept->second > acceptanceThreshold;
        proposal.push_back(counts ? bestFileByApp[app] : -1);
    }
    return proposal;
}

} // namespace columnimport::reference
