// The idea: work that belongs to one name is done once for that name. A file column that equals an
// application column or is a synonym of one is found by one look-up; the others are compared with
// all application columns side by side, and only the few whose bound reaches the best so far are
// measured. Votes at or below the acceptance threshold can't be seen in a proposal and are left
// unmeasured too.

#include "matching/matchColumns.h"

#include "matching/FitTable.h"
#include "matching/ShortNameIndex.h"
#include "matching/normalizeColumnName.h"
#include "matching/offerLongNames.h"
#include "matching/vote.h"

namespace columnimport {

namespace {

void normalizeAll(std::vector<std::string> &names) {
    for (std::string &name : names) {
        name = normalizeColumnName(std::move(name));
    }
}

std::vector<Vote> castVotes(const std::vector<std::string> &appColumns,
                            const std::vector<std::string> &fileColumns) {
    const FitTable fits(appColumns);
    ShortNameIndex index(appColumns);
    std::vector<Vote> votes;
    votes.reserve(fileColumns.size());
    for (const std::string &name : fileColumns) {
        const Vote fit = fits.find(name);
        votes.push_back(fit.app < 0 && ShortNameIndex::holds(name) ? index.vote(name) : fit);
    }
    offerLongNames(votes, appColumns, fileColumns);
    return votes;
}

/// Every application column keeps its strongest vote, the first of equals.
std::vector<std::int32_t> keepStrongest(const std::vector<Vote> &votes, std::size_t appCount) {
    std::vector<std::int32_t> proposal(appCount, -1);
    for (std::size_t file = 0; file < votes.size(); ++file) {
        if (votes[file].app < 0) {
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
                                       std::vector<std::string> fileColumns) {
    normalizeAll(appColumns);
    normalizeAll(fileColumns);
    return keepStrongest(castVotes(appColumns, fileColumns), appColumns.size());
}

} // namespace columnimport
