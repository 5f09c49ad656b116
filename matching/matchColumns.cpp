// SPDX-License-Identifier: MIT

#include "matching/matchColumns.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "matching/fast/castVotes.h"
#include "matching/normalizeColumnName.h"

namespace columnimport {

namespace {

void normalizeAll(std::vector<std::string> &names) {
    for (std::string &name : names) {
        name = normalizeColumnName(std::move(name));
    }
}

/// Each application column keeps its strongest vote, the first of equals.
std::vector<std::int32_t> keepStrongest(const std::vector<Vote> &votes, std::size_t appCount) {
    std::vector<std::int32_t> proposal(appCount, -1);
    for (std::size_t file = 0; file < votes.size(); ++file) {
        if (votes[file].isForNone()) {
            continue;
        }
        std::int32_t &kept = proposal[static_cast<std::size_t>(votes[file].app)];
        if (kept < 0 || votes[file].score > votes[static_cast<std::size_t>(kept)].score) {
            kept = static_cast<std::int32_t>(file);
        }
    }
    return proposal;
}

} // namespace

std::vector<std::int32_t> matchColumns(std::vector<std::string> appColumns,
                                       std::vector<std::string> fileColumns,
                                       Alternatives alternatives) {
    assert(alternatives.size() <= appColumns.size());
    normalizeAll(appColumns);
    normalizeAll(fileColumns);
    std::for_each(alternatives.begin(), alternatives.end(), normalizeAll);
    return keepStrongest(castVotes(appColumns, fileColumns, alternatives), appColumns.size());
}

} // namespace columnimport
