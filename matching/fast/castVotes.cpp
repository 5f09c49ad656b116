// SPDX-License-Identifier: MIT

#include "matching/fast/castVotes.h"

#include <algorithm>

#include "matching/blendedMeasure.h"
#include "matching/fast/FitTable.h"
#include "matching/fast/PreparedName.h"
#include "matching/fast/ShortNameIndex.h"
#include "matching/fast/offerMeasured.h"

namespace columnimport {

namespace {

/// A shorter name measures less than 0.99 with any other. Of n bytes, it measures at most
/// (4 * n * n - 1) / (4 * n * n + 4 * n), with a name of one byte more.
constexpr std::size_t leastLengthAboveSynonym = 100;
static_assert(leastLengthAboveSynonym > maskedLength, "the index holds no name this long");

/// The application columns that can be measured, longest first: of two names that a long one
/// contains, the longer scores higher, and the shorter need not be searched for.
std::vector<AppColumn> longestFirst(const std::vector<std::string> &names) {
    std::vector<AppColumn> columns;
    columns.reserve(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i].size() >= leastMeasuredLength) {
            columns.push_back({static_cast<std::int32_t>(i), PreparedName(names[i])});
        }
    }
    std::sort(columns.begin(), columns.end(), [](const AppColumn &a, const AppColumn &b) {
        return a.name.bytes.size() > b.name.bytes.size();
    });
    return columns;
}

} // namespace

std::vector<Vote> castVotes(const std::vector<std::string> &appColumns,
                            const std::vector<std::string> &fileColumns,
                            const Alternatives &alternatives) {
    const FitTable fits(appColumns, alternatives);
    const std::vector<AppColumn> columns = longestFirst(appColumns);
    const auto firstShort = std::find_if(columns.begin(), columns.end(), [](const AppColumn &one) {
        return ShortNameIndex::holds(one.name.bytes);
    });
    ShortNameIndex index({firstShort, columns.end()});

    std::vector<Vote> votes;
    votes.reserve(fileColumns.size());
    for (const std::string &name : fileColumns) {
        Vote vote = fits.find(name);
        const std::size_t leastLength =
            vote.isForNone() ? leastMeasuredLength : leastLengthAboveSynonym;
        if (vote.score < 1.0 && name.size() >= leastLength) {
            const PreparedName file(name);
            const bool isShort = ShortNameIndex::holds(name);
            if (isShort) {
                index.offer(vote, file);
            }
            std::for_each(columns.begin(), isShort ? firstShort : columns.end(),
                          [&](const AppColumn &column) { offerMeasured(vote, column, file); });
        }
        votes.push_back(vote);
    }
    return votes;
}

} // namespace columnimport
