// SPDX-License-Identifier: MIT

#include "drillhole/window/MatchDialog.h"

#include "drillhole/rows/CsvFile.h"
#include "drillhole/rows/Fault.h"

#include <algorithm>
#include <cstdio>

#include <columnimport.h>
#include <glibmm/convert.h>
#include <glibmm/fileutils.h>
#include <glibmm/miscutils.h>
#include <unistd.h>

namespace drillhole {

namespace {

using OwnedImport = std::unique_ptr<columnimport_import, decltype(&columnimport_free)>;

OwnedImport importInto(const Table &table, const std::string &source) {
    OwnedImport import(columnimport_new(), &columnimport_free);
    const Glib::ustring into = Glib::ustring(table.title).lowercase();
    columnimport_set_title(import.get(), ("Import " + into + " from " + source).c_str());
    for (const Column &column : table.columns) {
        columnimport_add_column(import.get(), column.name.c_str());
        const std::int32_t number = columnimport_column_count(import.get()) - 1;
        columnimport_set_required(import.get(), number, column.isRequired ? 1 : 0);
        columnimport_set_similar(import.get(), number, column.isGrade ? 0 : 1);
        for (const std::string &word : column.words) {
            columnimport_add_alternative(import.get(), number, word.c_str());
        }
    }
    return import;
}

using NameOf = const char *(columnimport_import *, std::int32_t, std::int64_t *);

std::vector<std::string> names(columnimport_import *import, std::int32_t count, NameOf nameOf) {
    std::vector<std::string> names;
    for (std::int32_t i = 0; i < count; ++i) {
        std::int64_t length = 0;
        const char *bytes = nameOf(import, i, &length);
        names.emplace_back(bytes == nullptr ? "" : bytes, static_cast<std::size_t>(length));
    }
    return names;
}

Match matchOf(columnimport_import *import) {
    Match match;
    const std::int32_t count = columnimport_column_count(import);
    match.names = names(import, count, columnimport_match_name);
    match.columns =
        names(import, columnimport_source_column_count(import), columnimport_source_column);
    match.delimiter = static_cast<char>(columnimport_delimiter(import));
    // Between blanks nothing is no field, neither in the dialog nor in the rows.
    const auto fieldOf =
        match.delimiter == ' ' ? columnimport_match_position : columnimport_match_field;
    for (std::int32_t i = 0; i < count; ++i) {
        const std::int32_t field = fieldOf(import, i);
        match.positions.push_back(field < 0 ? std::nullopt : std::optional<std::size_t>(field));
        match.areGuesses.push_back(columnimport_match_origin(import, i) ==
                                   columnimport_origin_similar);
    }
    match.firstLineHoldsTitles = columnimport_first_line_holds_titles(import) == 1;
    return match;
}

bool has(const std::vector<std::string> &names, const std::string &name) {
    return !name.empty() && std::find(names.begin(), names.end(), name) != names.end();
}

/// Has the dialog open as it was left for a source with the same titles; or else with the kept
/// matches that the source has, and the proposal for the rest. Gives the guesses in that.
std::vector<bool> openAsKept(columnimport_import *import, const Match &proposal,
                             const Settings &settings, const std::string &group) {
    std::vector<std::string> kept = settings.texts(group, "matches");
    kept.resize(proposal.names.size());
    const bool isSameSource = settings.texts(group, "titles of the source") == proposal.columns;
    std::vector<bool> areGuesses(kept.size());
    bool isProposal = true;
    for (std::size_t i = 0; i < kept.size(); ++i) {
        kept[i] = has(proposal.columns, kept[i]) ? kept[i] : std::string();
        isProposal = isProposal && (kept[i].empty() ? !isSameSource : kept[i] == proposal.names[i]);
    }
    for (std::size_t i = 0; i < kept.size() && !isProposal; ++i) {
        if (!isSameSource && kept[i].empty() && !has(kept, proposal.names[i])) {
            kept[i] = proposal.names[i];
            areGuesses[i] = proposal.areGuesses[i];
        }
        columnimport_set_saved_match(import, static_cast<std::int32_t>(i), kept[i].data(),
                                     static_cast<std::int64_t>(kept[i].size()));
    }
    return areGuesses;
}

std::string groupFor(const Table &table, const ImportSource &source) {
    return table.name + (source.path.empty() ? " from table" : " from file");
}

/// A temporary file, once it has a path.
struct TemporaryFile {
    std::string path;

    TemporaryFile() = default;
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;
    ~TemporaryFile() {
        if (!path.empty()) {
            std::remove(path.c_str());
        }
    }
};

/// Makes the file the source; or a copy of its head if something stands in front of the titles, as
/// the dialog reads those from the first line.
void setFile(columnimport_import *import, const CsvFile &file, std::string path,
             TemporaryFile &copy) {
    if (file.preamble().lineCount > 0) {
        close(Glib::file_open_tmp(copy.path, "drillhole"));
        Glib::file_set_contents(copy.path, file.head());
        path = copy.path;
    }
    columnimport_set_file(import, Glib::filename_to_utf8(path).c_str());
}

} // namespace

std::optional<Match> matchColumns(Gtk::Window &owner, const Settings &settings, const Table &table,
                                  const ImportSource &source,
                                  const std::vector<std::string> &columns) {
    const bool isFile = !source.path.empty();
    const std::string group = groupFor(table, source);
    const OwnedImport owned =
        importInto(table, isFile ? std::string(Glib::filename_display_basename(source.path))
                                 : "table " + source.table);
    columnimport_import *import = owned.get();
    TemporaryFile copy;
    std::optional<FileStamp> stamp;
    if (isFile) {
        const CsvFile file(source.path, ',');
        stamp = file.stamp();
        setFile(import, file, source.path, copy);
        const std::string kept = settings.text(group, "delimiter");
        const std::int32_t likely = columnimport_likely_delimiter(import);
        const char usual = kept.empty() ? ',' : kept[0];
        const char delimiter = likely >= 0 ? static_cast<char>(likely) : usual;
        columnimport_set_delimiter(import, file.preamble().delimiter.value_or(delimiter));
        columnimport_set_first_line_holds_titles(import, settings.text(group, "titles") != "no");
    } else {
        std::vector<const char *> names;
        names.reserve(columns.size());
        for (const std::string &column : columns) {
            names.push_back(column.c_str());
        }
        columnimport_set_table(import, names.data(), nullptr,
                               static_cast<std::int32_t>(names.size()));
    }
    std::vector<bool> guesses;
    std::int32_t outcome = columnimport_propose(import);
    if (outcome == columnimport_ok) {
        guesses = openAsKept(import, matchOf(import), settings, group);
        outcome = columnimport_show(import, owner.gobj());
    }
    if (outcome == columnimport_cancelled) {
        return std::nullopt;
    }
    if (outcome != columnimport_ok) {
        throw Fault(std::string("The dialog can't be shown. ") + columnimport_message(import));
    }
    Match match = matchOf(import);
    match.stamp = stamp;
    match.delimiter = isFile ? match.delimiter : '\0';
    for (std::size_t i = 0; i < guesses.size(); ++i) {
        const auto column = static_cast<std::int32_t>(i);
        if (columnimport_match_position(import, column) >= 0 && !match.positions[i]) {
            throw Fault("The first line has quotes by which nobody can tell the field of " +
                        match.names[i] + ". Correct them and import the file again.");
        }
        const bool isAsOpened =
            columnimport_match_origin(import, column) == columnimport_origin_saved;
        match.areGuesses[i] = match.areGuesses[i] || (isAsOpened && guesses[i]);
    }
    return match;
}

void keepMatch(Settings &settings, const Table &table, const ImportSource &source,
               const Match &match) {
    const std::string group = groupFor(table, source);
    if (!source.path.empty()) {
        settings.keep(group, "delimiter", {std::string(1, match.delimiter)});
        settings.keep(group, "titles", {match.firstLineHoldsTitles ? "yes" : "no"});
    }
    // Without titles the matches are numbers, which say nothing about the next file.
    if (match.firstLineHoldsTitles) {
        settings.keep(group, "matches", match.names);
        settings.keep(group, "titles of the source", match.columns);
    }
}

} // namespace drillhole
