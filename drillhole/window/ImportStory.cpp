// SPDX-License-Identifier: MIT

#include "drillhole/window/ImportStory.h"

#include "drillhole/rows/text.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <ostream>

namespace drillhole {

namespace {

constexpr std::size_t refusedToPrint = 20;

std::string delimiterName(char delimiter) {
    static const std::map<char, const char *> names = {
        {',', "comma"}, {';', "semicolon"}, {'\t', "tab"}, {' ', "blank"}, {'|', "bar"}};
    const auto named = names.find(delimiter);
    if (named != names.end()) {
        return named->second;
    }
    return delimiter > ' ' && delimiter <= '~'
               ? std::string(1, delimiter)
               : "byte " + std::to_string(static_cast<unsigned char>(delimiter));
}

const char *resultOf(const ImportStory &story) {
    if (!story.fault.empty()) {
        return "fault";
    }
    if (!story.match || story.outcome.isCancelled) {
        return "cancel";
    }
    return story.isDone() ? "ok" : "nothing imported";
}

std::string nameOf(const ImportSource &source) {
    if (!source.path.empty()) {
        return asUtf8(std::filesystem::path(source.path).filename().string());
    }
    return source.table.empty() ? "nothing" : source.table;
}

} // namespace

std::string summaryOf(const ImportStory &story) {
    const ImportOutcome &outcome = story.outcome;
    const std::string source = nameOf(story.source);
    const std::string before = ". The " + story.table->name + "s are as they were.";
    if (outcome.isCancelled) {
        return source + " was cancelled" + before;
    }
    if (!outcome.question.empty()) {
        return source + ": nothing was replaced" + before;
    }
    const std::string refused =
        (outcome.refused == 0 ? "none" : countOf(outcome.refused, "row")) + " refused";
    if (outcome.taken == 0) {
        return source + ": no row imported, " + refused + before;
    }
    return source + ": " + countOf(outcome.taken, "row") + " imported" +
           (outcome.replaces ? " in place of the earlier ones, " : ", ") + refused + '.';
}

std::vector<Remark> remarksOf(const ImportOutcome &outcome, std::size_t mostRefused) {
    std::vector<Remark> remarks = outcome.remarks;
    const std::size_t count = std::min(outcome.firstRefused.size(), mostRefused);
    const auto first = outcome.firstRefused.begin();
    remarks.insert(remarks.end(), first, first + static_cast<std::ptrdiff_t>(count));
    if (count < outcome.refused) {
        remarks.push_back({{}, countOf(outcome.refused - count, "more row") + " in the report"});
    }
    return remarks;
}

void print(std::ostream &out, const ImportStory &story) {
    const Match match = story.match.value_or(Match());
    const ImportOutcome &outcome = story.outcome;
    out << "import: " << nameOf(story.source) << " into " << story.table->name << '\n'
        << "result: " << resultOf(story) << '\n';
    if (match.delimiter != '\0') {
        out << "delimiter: " << delimiterName(match.delimiter) << '\n'
            << "first line holds titles: " << (match.firstLineHoldsTitles ? "yes" : "no") << '\n';
    }
    for (std::size_t i = 0; i < match.names.size(); ++i) {
        out << story.table->columns[i].name << '\t' << match.names[i] << '\n';
    }
    if (!story.fault.empty()) {
        out << story.fault << '\n';
    } else if (story.match && !outcome.isCancelled) {
        out << outcome.question << (outcome.question.empty() ? "" : "\n")
            << "rows taken: " << (story.isDone() ? outcome.taken : 0) << '\n'
            << "rows refused: " << outcome.refused << '\n';
        for (const Remark &remark : remarksOf(outcome, refusedToPrint)) {
            out << (remark.lines.empty() ? "" : "line " + remark.lines + ": ") << remark.text
                << '\n';
        }
        out << (outcome.report.empty() ? "" : "report: " + outcome.report + '\n');
    }
    out << std::flush;
}

} // namespace drillhole
