// SPDX-License-Identifier: MIT

#include "drillhole/database/importRows.h"

#include "drillhole/database/RowInsertion.h"
#include "drillhole/database/TableRows.h"
#include "drillhole/rows/Fault.h"
#include "drillhole/rows/text.h"

#include <algorithm>
#include <utility>

#include <boost/algorithm/string/join.hpp>

namespace drillhole {

namespace {

constexpr long namesToTell = 1000; // characters of all of them
constexpr std::size_t refusedInMemory = 1000;

/// Which column went where, and the columns of both sides that the import passes over.
std::vector<Remark> columnsTaken(const Table &table, const RowLayout &layout) {
    std::vector<std::string> filled;
    std::vector<std::string> guessed;
    std::vector<std::string> unfilled;
    std::vector<std::string> nowhere = layout.columns;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const std::string &name = table.columns[i].name;
        if (!layout.positions[i]) {
            unfilled.push_back(name);
            continue;
        }
        const std::string &title = layout.columns[*layout.positions[i]];
        const double factor = layout.factors.empty() ? 1 : layout.factors[i];
        const bool isGuess = !layout.areGuesses.empty() && layout.areGuesses[i];
        std::string entry = name;
        if (title != name) {
            entry.append(" from ").append(title);
        }
        if (factor != 1) {
            entry.append(", ").append(conversionBy(factor));
        }
        (isGuess ? guessed : filled).push_back(std::move(entry));
        nowhere[*layout.positions[i]].clear();
    }
    nowhere.erase(std::remove(nowhere.begin(), nowhere.end(), ""), nowhere.end());
    const std::pair<const char *, std::vector<std::string>> lists[] = {
        {"filled by a guess, as the names are similar: ", guessed},
        {"filled: ", filled},
        {"not filled: ", unfilled},
        {"not imported: ", nowhere}};
    std::vector<Remark> remarks;
    for (const auto &[what, names] : lists) {
        if (!names.empty()) {
            remarks.push_back({{}, what + shortened(boost::join(names, ", "), namesToTell)});
        }
    }
    return remarks;
}

/// Throws a Fault if the rows can't be those that the dialog showed.
void expectRows(const Match &match, const Row &first, std::size_t preamble) {
    const std::string correct = ". Correct it and import the file again.";
    if (first.refusal != nullptr) {
        throw Fault("The first line can't be cut: " + (first.refusal + correct));
    }
    if (first.firstLine > preamble + 1) {
        throw Fault("The first line of the file is blank" + correct);
    }
    for (const std::optional<std::size_t> &position : match.positions) {
        if (position && *position >= first.fields.size()) {
            throw Fault("The rows have " + countOf(first.fields.size(), "column") +
                        ", and the dialog showed more. Correct the quotes in the first line, or "
                        "choose another delimiter.");
        }
    }
}

/// @param again  opens the source once more, where its numbers are to be learned from; or nothing
ImportOutcome importRows(const Destination &destination, RowSource &source, const RowLayout &layout,
                         ImportProgress &progress,
                         const std::function<std::unique_ptr<RowSource>()> &again = {}) {
    const Table &table = destination.table;
    soci::session &session = destination.session;
    RefusedRows refused(destination.report, layout.delimiter, layout.columns);
    soci::transaction transaction(session);
    ImportOutcome outcome;
    outcome.replaces = destination.replace != Replace::no;
    const std::size_t before = outcome.replaces ? rowCount(session, table) : 0;
    const std::size_t orphans = outcome.replaces ? orphanCount(session) : 0;
    if (outcome.replaces) {
        session << "delete from " + table.name;
    }
    RowInsertion insertion(session, table);
    RowCheck check(table, layout, destination.choices, holesOf(session, table),
                   {[&] { return insertion.isThere(); },
                    [&](Holes &holes) {
                        insertion.flush();
                        readDepths(session, table, holes);
                    }});
    Row row;
    if (again && check.mustLearn()) {
        const std::unique_ptr<RowSource> rows = again();
        while (!progress.isCancelled && rows->next(row)) {
            check.learn(row);
            progress.share = rows->share();
        }
    }
    while (!progress.isCancelled && source.next(row)) {
        const std::string reason = check.check(row, insertion.row());
        if (reason.empty()) {
            insertion.insert();
            ++outcome.taken;
        } else {
            const Remark remark = refused.add(row, reason);
            if (++outcome.refused <= refusedInMemory) {
                outcome.firstRefused.push_back(remark);
            }
        }
        ++progress.rows;
        progress.share = source.share();
    }
    outcome.remarks = columnsTaken(table, layout);
    const std::vector<Remark> odd = check.remarks().byKind();
    outcome.remarks.insert(outcome.remarks.end(), odd.begin(), odd.end());
    outcome.isCancelled = progress.isCancelled;
    if (outcome.isCancelled) {
        return outcome;
    }
    insertion.flush();
    if (destination.replace == Replace::ifAgreed && before > 0 && outcome.taken > 0) {
        outcome.question = "Replace " + countOf(before, table.rowName) + " by " +
                           countOf(outcome.taken, "new one") + '?';
        if (outcome.refused > 0) {
            outcome.question +=
                ' ' + countOf(outcome.refused, "row") + " of the source would be left out.";
        }
        if (const std::size_t now = orphanCount(session); now > orphans) {
            outcome.question += ' ' + countOf(now - orphans, "row") +
                                " of the other tables would lose their collar.";
        }
    }
    if (!outcome.question.empty()) {
        return outcome;
    }
    refused.finish();
    if (outcome.taken > 0) {
        progress.isCommitting = true;
        outcome.isCancelled = progress.isCancelled; // while the database was silent
        if (outcome.isCancelled) {
            return outcome;
        }
        transaction.commit();
    }
    if (outcome.refused > 0) {
        outcome.report = refused.keep();
    }
    return outcome;
}

} // namespace

ImportOutcome importFile(const Destination &destination, const std::string &path,
                         const Match &match, ImportProgress &progress) {
    const auto open = [&] {
        auto file = std::make_unique<CsvFile>(path, match.delimiter);
        if (match.stamp && *match.stamp != file->stamp()) {
            throw Fault("The file " + path + " was changed meanwhile. Import it again.");
        }
        return file;
    };
    std::unique_ptr<CsvFile> file = open();
    const std::size_t preamble = file->preamble().lineCount;
    Row first;
    file->next(first);
    expectRows(match, first, preamble);
    RowLayout layout = match;
    layout.columns.clear();
    for (const std::string_view field : first.fields) {
        layout.columns.push_back(match.firstLineHoldsTitles
                                     ? asUtf8(field)
                                     : "Column" + std::to_string(layout.columns.size() + 1));
    }
    if (!match.firstLineHoldsTitles) {
        file = open(); // the first line is a row, too
    }
    ImportOutcome outcome = importRows(destination, *file, layout, progress, open);
    if (preamble > 0) {
        outcome.remarks.push_back({linesOf(1, preamble), "passed over in front of the titles"});
    }
    return outcome;
}

ImportOutcome importTable(const Destination &destination, const std::string &connection,
                          const std::string &table, const Match &match, ImportProgress &progress) {
    TableRows rows(connection, table, match, progress.isCancelled);
    return importRows(destination, rows, match, progress);
}

} // namespace drillhole
