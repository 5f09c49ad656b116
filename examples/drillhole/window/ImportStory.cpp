// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/ImportStory.h"

#include "examples/drillhole/rows/text.h"

#include <algorithm>
#include <ostream>

namespace drillhole {

namespace {

constexpr std::size_t refusedToPrint = 20;

std::string delimiterName(char delimiter) {
    switch (delimiter) {
    case ',':
        return "comma";
    case ';':
        return "semicolon";
    case '\t':
        return "tab";
    case ' ':
        return "blank";
    case '|':
        return "bar";
    default:
        return delimiter > ' ' && delimiter <= '~'
                   ? std::string(1, delimiter)
                   : "byte " + std::to_string(static_cast<unsigned char>(delimiter));
    }
}

const char *resultOf(const ImportStory &story) {
    if (!story.fault.empty()) {
        return "fault";
    }
    if (!story.isConfirmed || story.outcome.isCancelled) {
        return "cancel";
    }
    return story.isDone() ? "ok" : "nothing imported";
}

void printRefused(std::ostream &out, const ImportOutcome &outcome) {
    const std::size_t count = std::min(outcome.firstRefused.size(), refusedToPrint);
    for (std::size_t i = 0; i < count; ++i) {
        const Remark &row = outcome.firstRefused[i];
        out << "line " << row.lines << ": " << row.text << '\n';
    }
    if (count < outcome.refused) {
        out << "and " << outcome.refused - count << " more in the report\n";
    }
    for (const Remark &remark : outcome.remarks) {
        out << remark.text << (remark.lines.empty() ? "" : ", line " + remark.lines) << '\n';
    }
}

} // namespace

std::string summaryOf(const ImportStory &story) {
    const ImportOutcome &outcome = story.outcome;
    const std::string before = ". The " + story.table->name + "s are as they were.";
    if (outcome.isCancelled) {
        return story.source + " was cancelled" + before;
    }
    const std::string refused =
        (outcome.refused == 0 ? "none" : countOf(outcome.refused, "row")) + " refused";
    if (outcome.taken == 0) {
        return story.source + ": no row imported, " + refused + before;
    }
    return outcome.question.empty()
               ? story.source + ": " + countOf(outcome.taken, "row") + " imported" +
                     (outcome.replaces ? " in place of the earlier ones, " : ", ") + refused + '.'
               : story.source + ": nothing was replaced" + before;
}

void print(std::ostream &out, const ImportStory &story) {
    out << "import: " << story.source << " into " << story.table->name << '\n'
        << "result: " << resultOf(story) << '\n';
    if (story.match.delimiter != '\0') {
        out << "delimiter: " << delimiterName(story.match.delimiter) << '\n'
            << "first line holds titles: " << (story.match.firstLineHoldsTitles ? "yes" : "no")
            << '\n';
    }
    for (std::size_t i = 0; i < story.match.names.size(); ++i) {
        out << story.table->columns[i].name << '\t' << story.match.names[i] << '\n';
    }
    if (!story.fault.empty()) {
        out << story.fault << '\n';
    } else if (story.isConfirmed && !story.outcome.isCancelled) {
        out << story.outcome.question << (story.outcome.question.empty() ? "" : "\n")
            << "rows taken: " << (story.isDone() ? story.outcome.taken : 0) << '\n'
            << "rows refused: " << story.outcome.refused << '\n';
        printRefused(out, story.outcome);
        if (!story.outcome.report.empty()) {
            out << "report: " << story.outcome.report << '\n';
        }
    }
    out << std::flush;
}

} // namespace drillhole
