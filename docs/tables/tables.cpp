// SPDX-License-Identifier: MIT

#include "docs/tables/tables.h"

#include "matching/columnNameScore.h"
#include "matching/matchColumns.h"
#include "matching/normalizeColumnName.h"
#include "matching/synonymTable.h"
#include "matching/vote.h"

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <utility>
#include <vector>

using namespace columnimport;

namespace {

using Names = std::vector<std::string>;

std::string code(std::string_view text) {
    return '`' + std::string(text) + '`';
}

std::string figure(double number) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(4) << number;
    return text.str();
}

std::string inARow(const Names &words) {
    std::string text;
    for (const std::string &word : words) {
        text += (text.empty() ? "" : ", ") + code(word);
    }
    return text;
}

std::size_t sharedBytes(std::string a, std::string b) {
    std::sort(a.begin(), a.end());
    std::sort(b.begin(), b.end());
    std::string shared;
    std::set_intersection(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(shared));
    return shared.size();
}

std::string reasonFor(const std::string &a, const std::string &b) {
    constexpr std::size_t leastMeasured = 3;
    if (a == b) {
        return "equal";
    }
    if (areSynonyms(a, b)) {
        return "synonyms";
    }
    if (a.size() < leastMeasured || b.size() < leastMeasured) {
        return "one is too short to be measured";
    }
    const auto run = longestCommonSubstringLength(a, b, static_cast<std::int32_t>(a.size()),
                                                  static_cast<std::int32_t>(b.size()));
    return "share " + std::to_string(sharedBytes(a, b)) + ", longest run " + std::to_string(run);
}

struct Ballot {
    double score = 0;
    std::size_t app = 0;
};

/// The vote of a file column.
Ballot ballotOf(const std::string &fileColumn, const Names &appColumns) {
    Ballot ballot;
    for (std::size_t app = 0; app < appColumns.size(); ++app) {
        const double score =
            columnNameScore(normalizeColumnName(appColumns[app]), normalizeColumnName(fileColumn));
        if (score > ballot.score) {
            ballot = {score, app};
        }
    }
    return ballot;
}

std::string outcomeOf(const Ballot &ballot, std::size_t file, std::int32_t match,
                      const Names &fileColumns) {
    if (match == static_cast<std::int32_t>(file)) {
        return "matched";
    }
    if (ballot.score <= acceptanceThreshold) {
        return "too weak";
    }
    return "lost to " + code(fileColumns[static_cast<std::size_t>(match)]);
}

} // namespace

std::string synonymsTable() {
    std::string table = "| Head word | is a synonym of |\n|---|---|\n";
    for (const auto &[head, listed] : synonymTable()) {
        table += "| " + code(head) + " | " + inARow(listed) + " |\n";
    }
    return table;
}

std::string scoresTable() {
    const std::vector<std::pair<std::string, std::string>> pairs = {
        {"easting", "Easting"},   {"Cu %", "CU_PCT"},         {"holename", "BHID"},
        {"easting", "UTM X"},     {"easting", "UTM X (m)"},   {"holename", "Hole-ID"},
        {"azimuth", "Azimut"},    {"fromdepth", "From (m)"},  {"Au g/t", "AU (G/T)"},
        {"Au g/t", "Ag g/t"},     {"depth", "Profondeur"},    {"dip", "Plongée"},
        {"elevation", "Easting"}, {"holename", "Drilled by"}, {"x", "X collar"},
    };
    std::string table =
        "| Application column | File column | Compared as | Because they are | Score |\n"
        "|---|---|---|---|--:|\n";
    for (const auto &[app, file] : pairs) {
        const std::string a = normalizeColumnName(app);
        const std::string b = normalizeColumnName(file);
        table += "| " + code(app) + " | " + code(file) + " | " + code(a) + ", " + code(b) + " | " +
                 reasonFor(a, b) + " | " + figure(columnNameScore(a, b)) + " |\n";
    }
    return table;
}

std::string votesTable() {
    const Names appColumns = {"holename", "fromdepth", "todepth", "depth", "Au g/t", "Cu %"};
    const Names fileColumns = {"HOLE-ID", "From (m)", "To",    "Sample No.", "Au g/t",
                               "Ag g/t",  "CU %",     "CU2 %", "Profondeur"};
    const std::vector<std::int32_t> matches = matchColumns(appColumns, fileColumns);
    std::string table = "| File column | votes for | Score | and is |\n|---|---|--:|---|\n";
    for (std::size_t file = 0; file < fileColumns.size(); ++file) {
        const Ballot ballot = ballotOf(fileColumns[file], appColumns);
        table += "| " + code(fileColumns[file]) + " | " + code(appColumns[ballot.app]) + " | " +
                 figure(ballot.score) + " | " +
                 outcomeOf(ballot, file, matches[ballot.app], fileColumns) + " |\n";
    }
    table += "\n| Application column | reads |\n|---|---|\n";
    for (std::size_t app = 0; app < appColumns.size(); ++app) {
        table += "| " + code(appColumns[app]) + " | " +
                 (matches[app] < 0 ? "**Not used**"
                                   : code(fileColumns[static_cast<std::size_t>(matches[app])])) +
                 " |\n";
    }
    return table;
}
