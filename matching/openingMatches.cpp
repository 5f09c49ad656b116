// SPDX-License-Identifier: MIT

#include "matching/openingMatches.h"

#include <algorithm>
#include <cassert>
#include <string_view>
#include <unordered_map>

#include "matching/fast/offerMeasured.h"
#include "matching/normalizeColumnName.h"
#include "matching/synonymTable.h"

namespace columnimport {

namespace {

/// The score with which two similar names were matched.
double similarity(const std::string &app, const std::string &file) {
    Vote vote;
    offerMeasured(vote, {0, PreparedName(app)}, PreparedName(file));
    assert(!vote.isForNone());
    return vote.score;
}

std::vector<ColumnMatch> pairedInOrder(std::size_t appCount, std::size_t sourceCount) {
    std::vector<ColumnMatch> matches(appCount);
    for (std::size_t app = 0; app < appCount && app < sourceCount; ++app) {
        matches[app] = {static_cast<std::int32_t>(app), MatchOrigin::inOrder};
    }
    return matches;
}

std::vector<ColumnMatch> foundAgain(std::vector<std::string> &savedMatches,
                                    const std::vector<std::string> &titles) {
    std::unordered_map<std::string_view, std::int32_t> firstOfName;
    for (const std::string &title : titles) {
        firstOfName.emplace(title, static_cast<std::int32_t>(&title - titles.data()));
    }
    std::vector<ColumnMatch> matches;
    matches.reserve(savedMatches.size());
    for (std::string &saved : savedMatches) {
        const auto found = saved.empty() ? firstOfName.end() : firstOfName.find(saved);
        if (found == firstOfName.end()) {
            saved.clear();
            matches.emplace_back();
        } else {
            matches.push_back({found->second, MatchOrigin::saved});
        }
    }
    return matches;
}

void refuse(std::vector<ColumnMatch> &matches, const std::vector<bool> &refusesSimilar) {
    assert(refusesSimilar.size() <= matches.size());
    for (std::size_t app = 0; app < refusesSimilar.size(); ++app) {
        if (refusesSimilar[app] && matches[app].origin == MatchOrigin::similar) {
            matches[app] = {};
        }
    }
}

} // namespace

std::vector<ColumnMatch> explainMatches(const std::vector<std::string> &appColumns,
                                        const std::vector<std::string> &fileColumns,
                                        const Alternatives &alternatives,
                                        const std::vector<std::int32_t> &proposal) {
    assert(proposal.size() == appColumns.size());
    const SynonymTable synonyms = synonymTable();
    std::vector<ColumnMatch> matches(proposal.size());
    for (std::size_t i = 0; i < proposal.size(); ++i) {
        if (proposal[i] < 0) {
            continue;
        }
        const std::string app = normalizeColumnName(appColumns[i]);
        const std::string file =
            normalizeColumnName(fileColumns[static_cast<std::size_t>(proposal[i])]);
        const auto isCalled = [&file](const std::string &word) {
            return normalizeColumnName(word) == file;
        };
        ColumnMatch &match = matches[i];
        match.position = proposal[i];
        if (app == file) {
            match.origin = MatchOrigin::same;
        } else if (areSynonyms(synonyms, app, file)) {
            match.origin = MatchOrigin::synonym;
        } else if (i < alternatives.size() &&
                   std::any_of(alternatives[i].begin(), alternatives[i].end(), isCalled)) {
            match.origin = MatchOrigin::alternative;
        } else {
            match.origin = MatchOrigin::similar;
            match.score = similarity(app, file);
        }
    }
    return matches;
}

bool holdsAName(const std::vector<std::string> &savedMatches) {
    return std::any_of(savedMatches.begin(), savedMatches.end(),
                       [](const std::string &match) { return !match.empty(); });
}

std::vector<ColumnMatch> openingMatches(const std::vector<std::string> &appColumns,
                                        const Alternatives &alternatives,
                                        const std::vector<bool> &refusesSimilar,
                                        const std::vector<std::string> &titles, bool holdsTitles,
                                        std::vector<std::string> *savedMatches) {
    if (!holdsTitles) {
        return pairedInOrder(appColumns.size(), titles.size());
    }
    if (savedMatches != nullptr) {
        return foundAgain(*savedMatches, titles);
    }
    std::vector<ColumnMatch> matches = explainMatches(
        appColumns, titles, alternatives, matchColumns(appColumns, titles, alternatives));
    refuse(matches, refusesSimilar);
    return matches;
}

} // namespace columnimport
