// SPDX-License-Identifier: MIT

#include "examples/drillhole/database/importRows.h"

#include "examples/drillhole/database/TableRows.h"
#include "examples/drillhole/database/storedRows.h"
#include "examples/drillhole/rows/Fault.h"
#include "examples/drillhole/rows/text.h"

#include <algorithm>

namespace drillhole {

namespace {

constexpr std::size_t mostNames = 20;

/// How many rows of each other table have no collar.
std::vector<std::size_t> orphanCounts(const Destination &destination) {
    std::vector<std::size_t> counts;
    for (const Table &table : holeTables()) {
        const bool mayHave = destination.table.namesHoles && !table.namesHoles;
        counts.push_back(mayHave ? orphanCount(destination.session, table) : 0);
    }
    return counts;
}

/// What would be lost if the rows were replaced, or nothing.
std::string questionOf(const Destination &destination, std::size_t before, std::size_t taken,
                       std::size_t refused, const std::vector<std::size_t> &orphansBefore) {
    std::string lost =
        refused > 0 ? ' ' + countOf(refused, "row") + " of the source would be left out." : "";
    const std::vector<std::size_t> orphans = orphanCounts(destination);
    for (std::size_t i = 0; i < orphans.size(); ++i) {
        if (orphans[i] > orphansBefore[i]) {
            lost += ' ' + countOf(orphans[i] - orphansBefore[i], holeTables()[i].name) +
                    " would lose their collar.";
        }
    }
    return lost.empty() || before == 0 ? std::string()
                                       : "Replace " + countOf(before, destination.table.name) +
                                             " by " + countOf(taken, "new one") + '?' + lost;
}

void addNames(const char *what, const std::vector<std::string> &names,
              std::vector<Remark> &remarks) {
    std::string list;
    for (std::size_t i = 0; i < names.size() && i < mostNames; ++i) {
        list += (i == 0 ? "" : ", ") + shortened(names[i], 60);
    }
    if (names.size() > mostNames) {
        list += " and " + std::to_string(names.size() - mostNames) + " more";
    }
    if (!names.empty()) {
        remarks.push_back({{}, what + list});
    }
}

/// The columns of both sides that the import passes over.
std::vector<Remark> columnsLeftOut(const Table &table, const RowLayout &layout) {
    std::vector<std::string> unused;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        if (!layout.positions[i]) {
            unused.push_back(table.columns[i].name);
        }
    }
    std::vector<std::string> nowhere;
    for (std::size_t i = 0; i < layout.titles.size(); ++i) {
        const auto &used = layout.positions;
        if (!layout.titles[i].empty() && std::find(used.begin(), used.end(), i) == used.end()) {
            nowhere.push_back(layout.titles[i]);
        }
    }
    std::vector<Remark> remarks;
    addNames("not filled: ", unused, remarks);
    addNames("not imported: ", nowhere, remarks);
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
    std::vector<std::size_t> fields;
    for (std::size_t i = 0; i < first.fields.size(); ++i) {
        const std::string_view field = first.fields[i];
        if (cutsRuns && field.data() == nullptr) {
            continue;
        }
        fields.push_back(i);
        for (std::size_t at = 0; at < field.size(); ++at) {
            const bool isInRun = cutsRuns && at > 0 && field[at - 1] == match.delimiter;
            fields.insert(fields.end(), field[at] == match.delimiter && !isInRun ? 1 : 0, i);
        }
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
    RefusedRows refused(destination.report, layout.titles);
    soci::transaction transaction(destination.session);
    ImportOutcome outcome;
    outcome.replaces = destination.replace != Replace::no;
    const std::size_t before = outcome.replaces ? rowCount(destination.session, table) : 0;
    const auto orphans = orphanCounts(destination);
    if (outcome.replaces) {
        destination.session << "delete from " + table.name;
    }
    Holes holes = holesOf(destination.session, table);
    RowInsertion insertion(destination.session, table);
    StoredRows stored(destination.session, table, insertion);
    RowCheck check(table, layout, destination.choices, std::move(holes),
                   [&](const std::vector<Value> &values) { return stored.hold(values); });
    std::vector<Value> values;
    Row row;
    while (!progress.isCancelled && source.next(row)) {
        const std::string reason = check.check(row, values);
        if (reason.empty()) {
            insertion.insert(values);
            stored.add(values);
            ++outcome.taken;
        } else {
            refused.add(row, reason);
        }
        ++progress.rows;
        progress.share = source.share();
    }
    outcome.isCancelled = progress.isCancelled;
    if (!outcome.isCancelled) {
        insertion.flush();
    }
    if (!outcome.isCancelled && destination.replace == Replace::ifNothingIsLost &&
        outcome.taken > 0) {
        outcome.question = questionOf(destination, before, outcome.taken, refused.count(), orphans);
    }
    if (!outcome.isCancelled && outcome.question.empty()) {
        refused.finish();
        if (outcome.taken > 0) {
            transaction.commit();
        }
        refused.publish();
        outcome.report = refused.count() > 0 ? destination.report : std::string();
    }
    outcome.refused = refused.count();
    outcome.firstRefused = refused.first();
    outcome.remarks = columnsLeftOut(table, layout);
    const std::vector<Remark> odd = check.remarks().byKind();
    outcome.remarks.insert(outcome.remarks.end(), odd.begin(), odd.end());
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
    RowLayout layout{fieldsOf(match, first), first.fields.size(), match.delimiter, {}};
    for (std::size_t i = 0; i < first.fields.size(); ++i) {
        layout.titles.push_back(match.firstLineHoldsTitles ? asUtf8(first.fields[i])
                                                           : "Column" + std::to_string(i + 1));
    }
    if (!match.firstLineHoldsTitles) {
        file.putBack(first);
    }
    return importRows(destination, file, layout, progress);
}

ImportOutcome importTable(const Destination &destination, const std::string &connection,
                          const std::string &table, const Match &match, ImportProgress &progress) {
    TableRows rows(connection, table, match.columns, match.positions, progress.isCancelled);
    return importRows(destination, rows,
                      {match.positions, match.columns.size(), '\0', match.columns}, progress);
}

} // namespace drillhole
