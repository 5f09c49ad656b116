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

Glib::OptionEntry entry(const char *name, const char *description) {
    Glib::OptionEntry entry;
    entry.set_long_name(name);
    entry.set_description(description);
    return entry;
}

std::string usualDatabase() {
    const std::string folder = Glib::build_filename(Glib::get_user_data_dir(), "drillhole");
    std::error_code ignored; // the database says what is wrong there
    std::filesystem::create_directories(folder, ignored);
    return Glib::build_filename(folder, "holes.sqlite");
}

/// The connection, with the password that the first line of a file holds, if there is one.
std::string connectionTo(const std::string &database, const std::string &passwordFile) {
    std::string password;
    if (!passwordFile.empty()) {
        std::ifstream file(passwordFile);
        if (!std::getline(file, password)) {
            throw Fault("There is no password in " + passwordFile + ", or it can't be read.");
        }
    }
    return withPassword(connectionFor(database), password);
}

} // namespace

Options readOptions(int &argc, char **&argv) {
    Options options;
    std::string passwordFile;
    std::string sourcePasswordFile;
    const struct {
        const char *name;
        const char *value;
        const char *description;
        std::string &text;
    } entries[] = {
        {"database", "DATABASE",
         "Where the drill holes are: an SQLite file, made if it is missing, or a connection such "
         "as "
         "postgresql://host=... dbname=...",
         options.database},
        {"table", "TABLE", "Import into collar, survey or assay", options.table},
        {"from", "DATABASE", "Import a table of another database", options.source},
        {"from-table", "NAME", "The table to import; without it you can choose one",
         options.sourceTable},
        {"password-file", "FILE", "A file whose first line is the password of --database",
         passwordFile},
        {"from-password-file", "FILE", "A file whose first line is the password of --from",
         sourcePasswordFile},
    };
    Glib::OptionGroup group("drillhole", "Drill holes");
    for (const auto &each : entries) {
        Glib::OptionEntry option = entry(each.name, each.description);
        option.set_arg_description(each.value);
        group.add_entry_filename(option, each.text);
    }
    group.add_entry(entry("then-quit", "End when what the command line names is imported"),
                    options.thenQuits);
    group.add_entry_filename(entry(G_OPTION_REMAINING, "Files to import"), options.files);
    Glib::OptionContext context("[FILE...]");
    context.set_main_group(group);
    context.parse(argc, argv);

    if (!options.table.empty() && findTable(options.table) == nullptr) {
        throw Fault("There is no table " + options.table +
                    "; give --table=collar, survey or assay.");
    }
    if (options.source.empty() && !options.sourceTable.empty()) {
        throw Fault("Give the database of that table too, with --from.");
    }
    options.database =
        connectionTo(options.database.empty() ? usualDatabase() : options.database, passwordFile);
    if (!options.source.empty()) {
        options.source = connectionTo(options.source, sourcePasswordFile);
    }
    return options;
}

} // namespace drillhole
