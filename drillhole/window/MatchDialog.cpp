// SPDX-License-Identifier: MIT

#include "drillhole/window/MatchDialog.h"

#include "drillhole/rows/Fault.h"
#include "drillhole/rows/startDelimiter.h"

#include <algorithm>
#include <functional>

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

using NameOf = const char *(columnimport_import *, std::int32_t, std::int64_t *);

std::vector<std::string> names(columnimport_import *door, std::int32_t count, NameOf nameOf) {
    std::vector<std::string> names;
    for (std::int32_t i = 0; i < count; ++i) {
        std::int64_t length = 0;
        const char *bytes = nameOf(door, i, &length);
        names.emplace_back(bytes == nullptr ? "" : bytes, static_cast<std::size_t>(length));
    }
    return names;
}

Match matchOf(columnimport_import *door) {
    Match match;
    const std::int32_t count = columnimport_column_count(door);
    match.names = names(door, count, columnimport_match_name);
    match.columns = names(door, columnimport_source_column_count(door), columnimport_source_column);
    for (std::int32_t i = 0; i < count; ++i) {
        const std::int32_t position = columnimport_match_position(door, i);
        match.positions.push_back(position < 0 ? std::nullopt
                                               : std::optional<std::size_t>(position));
    }
    match.delimiter = static_cast<char>(columnimport_delimiter(door));
    match.firstLineHoldsTitles = columnimport_first_line_holds_titles(door) == 1;
    return match;
}

bool has(const std::vector<std::string> &names, const std::string &name) {
    return !name.empty() && std::find(names.begin(), names.end(), name) != names.end();
}

/// Opens the dialog with the kept matches that the source has, and a proposal for the rest.
void openWith(std::vector<std::string> kept, columnimport_import *door) {
    if (columnimport_propose(door) != columnimport_ok) {
        return;
    }
    const Match proposal = matchOf(door);
    kept.resize(proposal.names.size());
    std::replace_if(
        kept.begin(), kept.end(),
        [&](const std::string &name) { return !has(proposal.columns, name); }, std::string());
    if (std::all_of(kept.begin(), kept.end(), std::mem_fn(&std::string::empty))) {
        return;
    }
    for (std::size_t i = 0; i < kept.size(); ++i) {
        if (kept[i].empty() && !has(kept, proposal.names[i])) {
            kept[i] = proposal.names[i];
        }
        columnimport_set_saved_match(door, static_cast<std::int32_t>(i), kept[i].data(),
                                     static_cast<std::int64_t>(kept[i].size()));
    }
}

} // namespace

std::optional<Match> matchColumns(Gtk::Window &owner, Settings &settings, const Table &table,
                                  const ImportSource &source,
                                  const std::vector<std::string> &columns) {
    const bool isFile = !source.path.empty();
    const std::string group = table.name + (isFile ? " from file" : " from table");
    const Door owned =
        doorTo(table, isFile ? std::string(Glib::filename_display_basename(source.path))
                             : "table " + source.table);
    columnimport_import *door = owned.get();
    std::optional<FileStamp> stamp;
    if (isFile) {
        stamp = stampOf(source.path);
        const std::string kept = settings.text(group, "delimiter");
        columnimport_set_file(door, Glib::filename_to_utf8(source.path).c_str());
        columnimport_set_delimiter(
            door,
            startDelimiter(source.path, kept.empty() ? std::nullopt : std::optional(kept[0])));
        columnimport_set_first_line_holds_titles(door, settings.text(group, "titles") != "no");
    } else {
        std::vector<const char *> names;
        names.reserve(columns.size());
        for (const std::string &column : columns) {
            names.push_back(column.c_str());
        }
        columnimport_set_table(door, names.data(), nullptr,
                               static_cast<std::int32_t>(names.size()));
    }
    openWith(settings.texts(group, "matches"), door);
    switch (columnimport_show(door, owner.gobj())) {
    case columnimport_ok:
        break;
    case columnimport_cancelled:
        return std::nullopt;
    default:
        throw Fault(std::string("The dialog can't be shown. ") + columnimport_message(door));
    }
    Match match = matchOf(door);
    match.stamp = stamp;
    if (isFile) {
        settings.keep(group, "delimiter", {std::string(1, match.delimiter)});
        settings.keep(group, "titles", {match.firstLineHoldsTitles ? "yes" : "no"});
    } else {
        match.delimiter = '\0';
    }
    // Without titles the matches are numbers, which say nothing about the next file.
    if (match.firstLineHoldsTitles) {
        settings.keep(group, "matches", match.names);
    }
    return match;
}

} // namespace drillhole
