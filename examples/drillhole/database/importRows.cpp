// SPDX-License-Identifier: MIT

#include "examples/drillhole/database/importRows.h"

#include "examples/drillhole/database/TableRows.h"
#include "examples/drillhole/database/connection.h"
#include "examples/drillhole/rows/CsvFile.h"
#include "examples/drillhole/rows/firstLine.h"

#include <algorithm>
#include <chrono>

namespace drillhole {

namespace {

using Clock = std::chrono::steady_clock;

/// The fields of a full row: those of the first one, or more if the second one shows that the rows
/// end in delimiters that the titles don't have.
std::size_t fieldCountOf(std::size_t firstCount, const Row &second) {
    const bool onlyEmptyMore =
        second.fields.size() > firstCount &&
        std::all_of(second.fields.begin() + static_cast<std::ptrdiff_t>(firstCount),
                    second.fields.end(), [](std::string_view field) { return field.empty(); });
    return onlyEmptyMore ? second.fields.size() : firstCount;
}

RowLayout layoutOf(const std::string &path, const FileMatch &match) {
    CsvFile file(path, match.delimiter);
    Row row;
    file.next(row);
    RowLayout layout;
    layout.positions = findFields(match.matches, namesShown(firstLineOf(path), match.delimiter),
                                  row, match.delimiter, match.firstLineHoldsTitles);
    layout.fieldCount = row.fields.size();
    layout.mustBeWhole = match.delimiter == ' ';
    if (file.next(row)) {
        layout.fieldCount = fieldCountOf(layout.fieldCount, row);
    }
    return layout;
}

std::unordered_set<std::string> holesBefore(const Destination &destination) {
    return destination.replaces && destination.table.namesHoles ? std::unordered_set<std::string>()
                                                                : holeNames(destination.session);
}

} // namespace

ImportOutcome importRows(const Destination &destination, RowSource &source, const RowLayout &layout,
                         ImportProgress &progress) {
    const Clock::time_point start = Clock::now();
    RefusedRows refused(destination.report);
    soci::transaction transaction(destination.session);
    RowCheck check(destination.table, layout, holesBefore(destination));
    if (destination.replaces) {
        destination.session << "delete from " + destination.table.name;
    }
    RowInsertion insertion(destination.session, destination.table);
    ImportOutcome outcome;
    outcome.replaces = destination.replaces;
    std::vector<Value> values;
    Row row;
    while (!progress.isCancelled && source.next(row)) {
        const std::string reason = check.check(row, values);
        if (reason.empty()) {
            insertion.insert(values);
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
        refused.finish();
        transaction.commit();
        refused.publish();
        outcome.refused = refused.count();
        outcome.firstRefused = refused.first();
        outcome.report = refused.count() > 0 ? destination.report : std::string();
    }
    outcome.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    return outcome;
}

ImportOutcome importFile(const Destination &destination, const std::string &path,
                         const FileMatch &match, ImportProgress &progress) {
    const RowLayout layout = layoutOf(path, match);
    CsvFile file(path, match.delimiter);
    if (match.firstLineHoldsTitles) {
        Row titles;
        file.next(titles);
    }
    return importRows(destination, file, layout, progress);
}

ImportOutcome importTable(const Destination &destination, const std::string &connection,
                          const std::string &table, const std::vector<std::string> &columns,
                          const std::vector<std::string> &matches, ImportProgress &progress) {
    TableRows rows(connection, table, columns);
    return importRows(destination, rows, {findColumns(matches, columns), columns.size(), false},
                      progress);
}

} // namespace drillhole
