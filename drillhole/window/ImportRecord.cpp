// SPDX-License-Identifier: MIT

#include "drillhole/window/ImportRecord.h"

#include "drillhole/rows/text.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
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

const char *resultOf(const ImportRecord &record) {
    if (!record.fault.empty()) {
        return "fault";
    }
    if (!record.match || record.outcome.isCancelled) {
        return "cancel";
    }
    return record.isDone() ? "ok" : "nothing imported";
}

std::string nameOf(const ImportSource &source) {
    if (!source.path.empty()) {
        return asUtf8(std::filesystem::path(source.path).filename().string());
    }
    return source.table.empty() ? "nothing" : source.table;
}

} // namespace

std::vector<double> unitFactors(const Table &table, const Match &match) {
    std::vector<double> factors(table.columns.size(), 1);
    for (std::size_t i = 0; i < factors.size(); ++i) {
        const Column &column = table.columns[i];
        if (column.isGrade && match.firstLineHoldsTitles && match.positions[i]) {
            factors[i] = unitFactor(match.names[i], column.name).value_or(1);
        }
    }
    return factors;
}

std::string doubtsAbout(const Table &table, const Match &match) {
    std::string doubts;
    const std::vector<double> factors = unitFactors(table, match);
    bool hasValues = !table.hasIntervals;
    for (std::size_t i = 0; i < factors.size(); ++i) {
        hasValues = hasValues || (i > 2 && match.positions[i]);
        if (factors[i] != 1) {
            doubts += match.names[i] + " is in another unit than " + table.columns[i].name +
                      ": its values would be " + conversionBy(factors[i]) + ". ";
        }
    }
    return doubts + (hasValues ? ""
                               : "No column fills a value: each " + table.rowName +
                                     " would have nothing but a hole and depths. ");
}

std::string requiredGuesses(const Table &table, const Match &match) {
    std::string guesses;
    for (std::size_t i = 0; i < match.areGuesses.size(); ++i) {
        if (match.areGuesses[i] && table.columns[i].isRequired) {
            guesses +=
                (guesses.empty() ? "" : ", ") + table.columns[i].name + " from " + match.names[i];
        }
    }
    return guesses;
}

std::string summaryOf(const ImportRecord &record) {
    const ImportOutcome &outcome = record.outcome;
    const std::string source = nameOf(record.source);
    const std::string before = ". The table is as it was.";
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
    std::copy_n(outcome.firstRefused.begin(), count, std::back_inserter(remarks));
    if (count < outcome.refused) {
        remarks.push_back({{}, countOf(outcome.refused - count, "more row") + " in the report"});
    }
    return remarks;
}

void print(std::ostream &out, const ImportRecord &record) {
    const Match match = record.match.value_or(Match());
    const ImportOutcome &outcome = record.outcome;
    out << "import: " << nameOf(record.source) << " into " << record.table->name << '\n'
        << "result: " << resultOf(record) << '\n';
    if (match.delimiter != '\0') {
        out << "delimiter: " << delimiterName(match.delimiter) << '\n'
            << "first line holds titles: " << (match.firstLineHoldsTitles ? "yes" : "no") << '\n';
    }
    for (std::size_t i = 0; i < match.names.size(); ++i) {
        out << record.table->columns[i].name << '\t' << match.names[i]
            << (match.areGuesses[i] ? "\ta guess: similar names" : "") << '\n';
    }
    if (!record.fault.empty()) {
        out << record.fault << '\n';
    } else if (record.match && !outcome.isCancelled) {
        out << outcome.question << (outcome.question.empty() ? "" : "\n")
            << "rows taken: " << (record.isDone() ? outcome.taken : 0) << '\n'
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
