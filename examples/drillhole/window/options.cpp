// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/options.h"

#include "examples/drillhole/database/connection.h"
#include "examples/drillhole/rows/Fault.h"
#include "examples/drillhole/rows/holeTables.h"

#include <filesystem>
#include <fstream>
#include <system_error>
#include <vector>

#include <glibmm/miscutils.h>
#include <glibmm/optioncontext.h>

namespace drillhole {

namespace {

Glib::OptionEntry entry(const char *name, const char *description, const char *value = "") {
    Glib::OptionEntry entry;
    entry.set_long_name(name);
    entry.set_description(description);
    entry.set_arg_description(value);
    return entry;
}

std::string usualDatabase() {
    const std::string folder = Glib::build_filename(Glib::get_user_data_dir(), "drillhole");
    std::error_code ignored; // the database says what is wrong there
    std::filesystem::create_directories(folder, ignored);
    return Glib::build_filename(folder, "holes.sqlite");
}

/// The connection with the password that the first line of a file holds.
std::string withPasswordIn(const std::string &path, const std::string &connection) {
    if (path.empty()) {
        return connection;
    }
    std::ifstream file(path);
    std::string password;
    if (!std::getline(file, password)) {
        throw Fault("There is no password in " + path + ", or it can't be read.");
    }
    return withPassword(connection, password);
}

} // namespace

Options readOptions(int &argc, char **&argv) {
    Options options;
    std::string database;
    Glib::ustring table;
    Glib::ustring source;
    Glib::ustring sourceTable;
    std::vector<std::string> files;
    std::string passwordFile;
    std::string sourcePasswordFile;

    Glib::OptionGroup group("drillhole", "Drill holes");
    group.add_entry_filename(
        entry("database",
              "Where the drill holes are: an SQLite file, made if it is missing, or a "
              "connection such as postgresql://host=... dbname=...",
              "DATABASE"),
        database);
    group.add_entry(entry("table", "Import into collar, survey or assay", "TABLE"), table);
    group.add_entry(entry("from", "Import a table of another database", "DATABASE"), source);
    group.add_entry(
        entry("from-table", "The table to import; without it you can choose one", "NAME"),
        sourceTable);
    group.add_entry_filename(
        entry("password-file", "A file whose first line is the password of --database", "FILE"),
        passwordFile);
    group.add_entry_filename(
        entry("from-password-file", "A file whose first line is the password of --from", "FILE"),
        sourcePasswordFile);
    group.add_entry(entry("then-quit", "End when what the command line names is imported"),
                    options.thenQuits);
    Glib::OptionEntry remaining = entry(G_OPTION_REMAINING, "Files to import");
    group.add_entry_filename(remaining, files);

    Glib::OptionContext context("[FILE...]");
    context.set_main_group(group);
    context.parse(argc, argv);

    options.connection =
        withPasswordIn(passwordFile, connectionFor(database.empty() ? usualDatabase() : database));
    options.table = table;
    options.files.assign(files.begin(), files.end());
    options.source =
        source.empty() ? std::string() : withPasswordIn(sourcePasswordFile, connectionFor(source));
    options.sourceTable = sourceTable;
    if (!options.table.empty() && findTable(options.table) == nullptr) {
        throw Fault("There is no table " + options.table +
                    "; give --table=collar, survey or assay.");
    }
    if (options.source.empty() && !options.sourceTable.empty()) {
        throw Fault("Give the database of that table too, with --from.");
    }
    return options;
}

} // namespace drillhole
