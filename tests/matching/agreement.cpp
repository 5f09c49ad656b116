#include "tests/matching/agreement.h"

#include <algorithm>

#include "matching/columnNameScore.h"
#include "matching/matchColumns.h"
#include "matching/normalizeColumnName.h"
#include "matching/reference/reference.h"

namespace columnimport {

std::string disagreement(const std::vector<std::string> &app,
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
        const auto sizeA = static_cast<std::int32_t>(a.size());
        const auto sizeB = static_cast<std::int32_t>(b.size());
        if (longestCommonSubstringLength(a, b, sizeA, sizeB) !=
            reference::longestCommonSubstringLength(a, b, sizeA, sizeB)) {
            return "the run at " + std::to_string(i);
        }
        const double score = columnNameScore(a, b);
        if (score != reference::columnNameScore(a, b) || score != columnNameScore(b, a)) {
            return "the score at " + std::to_string(i);
        }
    }
    return matchColumns(app, file) == reference::matchColumns(app, file) ? "" : "the proposal";
}

} // namespace columnimport
