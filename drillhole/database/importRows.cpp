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

/// The columns of both sides that the import passes over.
std::vector<Remark> columnsLeftOut(const Table &table, const RowLayout &layout) {
    std::vector<std::string> unfilled;
    std::vector<std::string> nowhere = layout.columns;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        if (const std::optional<std::size_t> position = layout.positions[i]) {
            nowhere[*position].clear();
        } else {
            unfilled.push_back(table.columns[i].name);
        }
    }
    nowhere.erase(std::remove(nowhere.begin(), nowhere.end(), ""), nowhere.end());
    std::vector<Remark> remarks;
    if (!unfilled.empty()) {
        remarks.push_back({{}, "not filled: " + boost::join(unfilled, ", ")});
    }
    if (!nowhere.empty()) {
        const std::string names = shortened(boost::join(nowhere, ", "), namesToTell);
        remarks.push_back({{}, "not imported: " + names});
    }
    return remarks;
}

/// Where the rows have the columns that were matched. The dialog cuts the first line without regard
/// to quotes, so a quoted title with delimiters in it is several columns there, and one field here.
/// Fields of nothing between tabs or blanks are none there.
FieldPositions fieldsOf(const Match &match, const Row &first) {
    if (first.refusal != nullptr || first.firstLine > 1) {
        throw Fault("The first line " +
                    (first.refusal != nullptr ? std::string("can't be cut: ") + first.refusal
                                              : std::string("of the file is blank")) +
                    ". Correct it and import the file again.");
    }
    const bool cutsRuns = match.delimiter == ' ' || match.delimiter == '\t';
    const auto isRun = [&](char left, char right) {
        return cutsRuns && left == match.delimiter && right == match.delimiter;
    };
    std::vector<std::size_t> fields;
    for (std::size_t i = 0; i < first.fields.size(); ++i) {
        std::string text(first.fields[i]);
        text.erase(std::unique(text.begin(), text.end(), isRun), text.end());
        const auto cuts = std::count(text.begin(), text.end(), match.delimiter);
        const bool isNone = cutsRuns && first.fields[i].data() == nullptr;
        fields.insert(fields.end(), isNone ? 0 : static_cast<std::size_t>(cuts) + 1, i);
    }
    if (fields.size() < match.columns.size()) {
        throw Fault("The rows have " + countOf(fields.size(), "column") + ", the dialog showed " +
                    std::to_string(match.columns.size()) +
                    ". Correct the quotes in the first line, or choose another delimiter.");
    }
    FieldPositions positions = match.positions;
    for (std::optional<std::size_t> &position : positions) {
        if (position) {
            position = fields.at(*position);
        }
    }
    return positions;
}

} // namespace

ImportOutcome importRows(const Destination &destination, RowSource &source, const RowLayout &layout,
                         ImportProgress &progress) {
    const Table &table = destination.table;
    soci::session &session = destination.session;
    RefusedRows refused(destination.report, layout.columns);
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
                   [&] { return insertion.isThere(); });
    Row row;
    while (!progress.isCancelled && source.next(row)) {
        const std::string reason = check.check(row, insertion.row());
        if (reason.empty()) {
            insertion.insert();
            ++outcome.taken;
        } else {
            refused.add(row, reason);
        }
        ++progress.rows;
        progress.share = source.share();
    }
    outcome.refused = refused.count();
    outcome.firstRefused = refused.first();
    outcome.remarks = columnsLeftOut(table, layout);
    const std::vector<Remark> odd = check.remarks().byKind();
    outcome.remarks.insert(outcome.remarks.end(), odd.begin(), odd.end());
    outcome.isCancelled = progress.isCancelled;
    if (outcome.isCancelled) {
        return outcome;
    }
    insertion.flush();
    if (destination.replace == Replace::ifAgreed && before > 0 && outcome.taken > 0) {
        outcome.question = "Replace " + countOf(before, table.name) + " by " +
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
    if (outcome.question.empty()) {
        refused.finish();
        if (outcome.taken > 0) {
            transaction.commit();
        }
        refused.publish();
        outcome.report = refused.count() > 0 ? destination.report : std::string();
    }
    return outcome;
}

ImportOutcome importFile(const Destination &destination, const std::string &path,
                         const Match &match, ImportProgress &progress) {
    CsvFile file(path, match.delimiter);
    if (match.stamp && *match.stamp != file.stamp()) {
        throw Fault("The file " + path + " was changed meanwhile. Import it again.");
    }
    Row first;
    file.next(first);
    RowLayout layout{fieldsOf(match, first), match.delimiter, {}};
    for (const std::string_view field : first.fields) {
        layout.columns.push_back(match.firstLineHoldsTitles
                                     ? asUtf8(field)
                                     : "Column" + std::to_string(layout.columns.size() + 1));
    }
    if (!match.firstLineHoldsTitles) {
        file.putBack(first);
    }
    return importRows(destination, file, layout, progress);
}

ImportOutcome importTable(const Destination &destination, const std::string &connection,
                          const std::string &table, const Match &match, ImportProgress &progress) {
    TableRows rows(connection, table, match, progress.isCancelled);
    return importRows(destination, rows, match, progress);
}

} // namespace drillhole
