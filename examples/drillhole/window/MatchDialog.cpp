// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/MatchDialog.h"

#include "examples/drillhole/rows/Fault.h"
#include "examples/drillhole/rows/startDelimiter.h"

#include <algorithm>

#include <columnimport.h>
#include <glibmm/convert.h>
#include <glibmm/miscutils.h>

namespace drillhole {

namespace {

using Door = std::unique_ptr<columnimport_import, decltype(&columnimport_free)>;

Door doorTo(const Table &table, const std::string &source) {
    Door door(columnimport_new(), &columnimport_free);
    const Glib::ustring into = Glib::ustring(table.title).lowercase();
    columnimport_set_title(door.get(), ("Import " + into + " from " + source).c_str());
    for (const Column &column : table.columns) {
        columnimport_add_column(door.get(), column.name.c_str());
        const std::int32_t number = columnimport_column_count(door.get()) - 1;
        columnimport_set_required(door.get(), number, column.isRequired ? 1 : 0);
        for (const char *alternative : column.alternatives) {
            columnimport_add_alternative(door.get(), number, alternative);
        }
    }
    return door;
}

std::string textOf(const char *bytes, std::int64_t length) {
    return bytes == nullptr ? std::string() : std::string(bytes, static_cast<std::size_t>(length));
}

Match matchOf(columnimport_import *door) {
    Match match;
    std::int64_t length = 0;
    for (std::int32_t i = 0; i < columnimport_column_count(door); ++i) {
        const char *name = columnimport_match_name(door, i, &length);
        match.names.push_back(textOf(name, length));
        const std::int32_t position = columnimport_match_position(door, i);
        match.positions.push_back(position < 0 ? std::nullopt
                                               : std::optional<std::size_t>(position));
    }
    for (std::int32_t i = 0; i < columnimport_source_column_count(door); ++i) {
        const char *name = columnimport_source_column(door, i, &length);
        match.columns.push_back(textOf(name, length));
    }
    match.delimiter = static_cast<char>(columnimport_delimiter(door));
    match.firstLineHoldsTitles = columnimport_first_line_holds_titles(door) == 1;
    return match;
}

bool has(const std::vector<std::string> &names, const std::string &name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// Opens the dialog with the kept matches that the source has, and a proposal for the rest.
void keepOpen(columnimport_import *door, const std::vector<std::string> &kept) {
    if (columnimport_propose(door) != columnimport_ok) {
        return;
    }
    const Match proposal = matchOf(door);
    std::vector<std::string> names(proposal.names.size());
    bool anyIsKept = false;
    for (std::size_t i = 0; i < names.size() && i < kept.size(); ++i) {
        names[i] = has(proposal.columns, kept[i]) ? kept[i] : std::string();
        anyIsKept = anyIsKept || !names[i].empty();
    }
    for (std::size_t i = 0; i < names.size() && anyIsKept; ++i) {
        if (names[i].empty() && !has(names, proposal.names[i])) {
            names[i] = proposal.names[i];
        }
        columnimport_set_saved_match(door, static_cast<std::int32_t>(i), names[i].data(),
                                     static_cast<std::int64_t>(names[i].size()));
    }
}

std::optional<Match> show(columnimport_import *door, Gtk::Window &owner, Settings &settings,
                          const std::string &name, const KeptMatch &kept) {
    keepOpen(door, kept.names);
    switch (columnimport_show(door, owner.gobj())) {
    case columnimport_ok:
        break;
    case columnimport_cancelled:
        return std::nullopt;
    default:
        throw Fault(std::string("The dialog can't be shown. ") + columnimport_message(door));
    }
    const Match match = matchOf(door);
    // Without titles the matches are numbers, which say nothing about the next file.
    settings.keepMatch(name, {match.firstLineHoldsTitles ? match.names : kept.names,
                              match.delimiter, match.firstLineHoldsTitles});
    return match;
}

} // namespace

std::optional<Match> matchFile(Gtk::Window &owner, Settings &settings, const Table &table,
                               const std::string &path) {
    const std::string name = table.name + " from file";
    const KeptMatch kept = settings.match(name);
    const FileStamp stamp = stampOf(path);
    const Door door = doorTo(table, Glib::filename_display_basename(path));
    columnimport_set_file(door.get(), Glib::filename_to_utf8(path).c_str());
    columnimport_set_delimiter(door.get(), startDelimiter(path, kept.delimiter));
    columnimport_set_first_line_holds_titles(door.get(), kept.firstLineHoldsTitles ? 1 : 0);
    std::optional<Match> match = show(door.get(), owner, settings, name, kept);
    if (match) {
        match->stamp = stamp;
    }
    return match;
}

std::optional<Match> matchTable(Gtk::Window &owner, Settings &settings, const Table &table,
                                const std::string &sourceTable,
                                const std::vector<std::string> &sourceColumns) {
    const std::string name = table.name + " from table";
    const Door door = doorTo(table, "table " + sourceTable);
    std::vector<const char *> names;
    names.reserve(sourceColumns.size());
    for (const std::string &column : sourceColumns) {
        names.push_back(column.c_str());
    }
    columnimport_set_table(door.get(), names.data(), nullptr,
                           static_cast<std::int32_t>(names.size()));
    std::optional<Match> match = show(door.get(), owner, settings, name, settings.match(name));
    if (match) {
        match->delimiter = '\0';
    }
    return match;
}

} // namespace drillhole
