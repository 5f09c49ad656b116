// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/ImportStory.h"

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

std::string resultOf(const ImportStory &story) {
    if (!story.fault.empty()) {
        return "fault";
    }
    return story.isDone() ? "ok" : "cancel";
}

void printRefused(std::ostream &out, const ImportOutcome &outcome) {
    const std::size_t count = std::min(outcome.firstRefused.size(), refusedToPrint);
    for (std::size_t i = 0; i < count; ++i) {
        const RefusedRow &row = outcome.firstRefused[i];
        out << "line " << row.lines << ": " << row.reason << '\n';
    }
    if (count < outcome.refused) {
        out << "and " << outcome.refused - count << " more in the report\n";
    }
}

} // namespace

void print(std::ostream &out, const ImportStory &story) {
    out << "import: " << story.source << " into " << story.table->name << '\n'
        << "result: " << resultOf(story) << '\n';
    if (story.file) {
        out << "delimiter: " << delimiterName(story.file->delimiter) << '\n'
            << "first line holds titles: " << (story.file->firstLineHoldsTitles ? "yes" : "no")
            << '\n';
    }
    for (std::size_t i = 0; i < story.matches.size(); ++i) {
        out << story.table->columns[i].name << '\t' << story.matches[i] << '\n';
    }
    if (!story.fault.empty()) {
        out << story.fault << '\n';
    }
    if (story.isDone()) {
        out << "rows taken: " << story.outcome.taken << '\n'
            << "rows refused: " << story.outcome.refused << '\n';
        printRefused(out, story.outcome);
        if (!story.outcome.report.empty()) {
            out << "report: " << story.outcome.report << '\n';
        }
    }
    out << std::flush;
}

} // namespace drillhole
