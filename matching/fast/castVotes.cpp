// SPDX-License-Identifier: MIT

#include "matching/fast/castVotes.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

#include "matching/columnNameScore.h"
#include "matching/fast/PreparedName.h"
#include "matching/fast/ShortNameIndex.h"
#include "matching/fast/offerMeasured.h"
#include "matching/synonymTable.h"

namespace columnimport {

namespace {

/// A shorter name measures less than 0.99 with any other. Of n bytes, it measures at most
/// (4 * n * n - 1) / (4 * n * n + 4 * n), with a name of one byte more.
constexpr std::size_t leastLengthAboveSynonym = 100;
static_assert(leastLengthAboveSynonym > maskedLength, "the index holds no name this long");

/// By word, the vote of a file column that equals an application column, or is a synonym or an
/// alternative of one. The words are views of the names that it was made from.
using KnownWords = std::unordered_map<std::string_view, Vote>;

KnownWords knownWords(const std::vector<std::string> &appColumns, const SynonymTable &synonyms,
                      const Alternatives &alternatives) {
    KnownWords votes;
    votes.reserve(appColumns.size());
    for (std::size_t i = 0; i < appColumns.size(); ++i) {
        votes[appColumns[i]].offer(static_cast<std::int32_t>(i), 1.0);
    }
    const auto link = [&votes](std::string_view appColumn, std::string_view synonym) {
        const auto found = votes.find(appColumn);
        if (found != votes.end() && found->second.score == 1.0) {
            const std::int32_t app = found->second.app;
            votes[synonym].offer(app, 0.99);
        }
    };
    for (const auto &[head, listed] : synonyms) {
        for (const std::string &word : listed) {
            link(head, word);
            link(word, head);
        }
    }
    for (std::size_t i = 0; i < alternatives.size(); ++i) {
        for (const std::string &word : alternatives[i]) {
            votes[word].offer(static_cast<std::int32_t>(i), 0.99);
        }
    }
    return votes;
}

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
    const SynonymTable synonyms = synonymTable();
    const KnownWords known = knownWords(appColumns, synonyms, alternatives);
    const std::vector<AppColumn> columns = longestFirst(appColumns);
    const auto firstShort = std::find_if(columns.begin(), columns.end(), [](const AppColumn &one) {
        return ShortNameIndex::holds(one.name.bytes);
    });
    ShortNameIndex index({firstShort, columns.end()});

    std::vector<Vote> votes;
    votes.reserve(fileColumns.size());
    for (const std::string &name : fileColumns) {
        const auto found = known.find(name);
        Vote vote = found == known.end() ? Vote() : found->second;
        // Every synonym is shorter than that; an alternative may be longer.
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
