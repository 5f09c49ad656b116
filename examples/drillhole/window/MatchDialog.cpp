// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/MatchDialog.h"

#include "examples/drillhole/rows/firstLine.h"
#include "examples/drillhole/rows/startDelimiter.h"

#include <algorithm>

#include <glibmm/convert.h>
#include <glibmm/miscutils.h>

namespace drillhole {

namespace {

constexpr int dialogWidth = 900;
constexpr int fileHeight = 840;
constexpr int tableHeight = 620;

std::vector<std::string> columnsOf(const Table &table) {
    std::vector<std::string> names;
    for (const Column &column : table.columns) {
        names.push_back(column.name);
    }
    return names;
}

std::string titleFor(const Table &table, const std::string &source) {
    return "Import " + Glib::ustring(table.title).lowercase() + " from " + source;
}

/// The matches, if the source has the columns that no row can do without. Those of another source
/// would leave rows unused that the dialog makes a proposal for when it is given none.
std::vector<std::string> matchesThatFit(const std::vector<std::string> &matches, const Table &table,
                                        const std::vector<std::string> &names) {
    bool anyFits = false;
    for (std::size_t i = 0; i < matches.size() && i < table.columns.size(); ++i) {
        const bool isThere = std::find(names.begin(), names.end(), matches[i]) != names.end();
        if (table.columns[i].isRequired && !matches[i].empty() && !isThere) {
            return {};
        }
        anyFits = anyFits || (isThere && !matches[i].empty());
    }
    return anyFits ? matches : std::vector<std::string>();
}

} // namespace

MatchDialog::MatchDialog(wxImportCSVDialogPeer &peer, Settings &settings)
    : m_peer(peer), m_settings(settings) {}

std::optional<FileMatch> MatchDialog::matchFile(Gtk::Window &owner, const Table &table,
                                                const std::string &path) {
    const std::string name = table.name + " from file";
    KeptMatch kept = m_settings.match(name);
    FileMatch match;
    match.stamp = stampOf(path);
    match.delimiter = startDelimiter(path, kept.delimiter);
    match.firstLineHoldsTitles = kept.firstLineHoldsTitles;
    match.matches =
        matchesThatFit(kept.matches, table, namesShown(firstLineOf(path), match.delimiter));

    bool useSavedMatches = true;
    if (!m_peer.showWindow(GTK_WIDGET(owner.gobj()),
                           titleFor(table, Glib::filename_display_basename(path)), columnsOf(table),
                           path, &useSavedMatches, &match.matches, &match.delimiter,
                           &match.firstLineHoldsTitles, dialogWidth, fileHeight)) {
        return std::nullopt;
    }
    // Without titles the matches are numbers, which say nothing about the next file.
    m_settings.keepMatch(name, {match.firstLineHoldsTitles ? match.matches : kept.matches,
                                match.delimiter, match.firstLineHoldsTitles});
    return match;
}

std::optional<std::vector<std::string>>
MatchDialog::matchTable(Gtk::Window &owner, const Table &table, const std::string &sourceTable,
                        const std::vector<std::string> &sourceColumns) {
    const std::string name = table.name + " from table";
    const KeptMatch kept = m_settings.match(name);
    std::vector<std::string> matches = matchesThatFit(kept.matches, table, sourceColumns);
    bool useSavedMatches = true;
    if (!m_peer.showWindow(GTK_WIDGET(owner.gobj()), titleFor(table, "table " + sourceTable),
                           columnsOf(table), sourceColumns, sourceTable, &useSavedMatches, &matches,
                           dialogWidth, tableHeight)) {
        return std::nullopt;
    }
    m_settings.keepMatch(name, {matches, std::nullopt, true});
    return matches;
}

} // namespace drillhole
