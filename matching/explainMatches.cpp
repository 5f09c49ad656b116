// SPDX-License-Identifier: MIT

#include "matching/explainMatches.h"

#include <algorithm>
#include <cassert>

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

} // namespace columnimport
