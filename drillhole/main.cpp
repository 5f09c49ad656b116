// SPDX-License-Identifier: MIT

// Drill holes in a database: imports files and tables into it, and shows them.

#include "drillhole/database/connection.h"
#include "drillhole/rows/Fault.h"
#include "drillhole/window/MainWindow.h"

#include <clocale>
#include <cstdlib>
#include <deque>
#include <fstream>
#include <iostream>

#include <glib/gstdio.h>
#include <wxImportCSVDialogPeer.h>

using namespace drillhole;

namespace {

std::string inFolder(const std::string &folder, const std::string &name) {
    return Glib::build_filename(folder, "drillhole", name);
}

/// What the command line asks for.
struct Options {
    std::string database;             ///< the connection to the drill holes
    std::string table;                ///< where to import to; empty if the file's name tells it
    std::deque<ImportSource> sources; ///< to import at once, one after the other
    bool thenQuits = false;           ///< when all that was asked for is imported
    bool acceptsGuesses = false;      ///< of required columns, when nobody is asked
};

Glib::OptionEntry entry(const char *name, const char *description) {
    Glib::OptionEntry entry;
    entry.set_long_name(name);
    entry.set_description(description);
    return entry;
}

std::string usualDatabase() {
    std::string path = inFolder(Glib::get_user_data_dir(), "holes.sqlite");
    g_mkdir_with_parents(Glib::path_get_dirname(path).c_str(), 0777);
    return path;
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

/// Reads the command line. Throws a Fault, or Glib::OptionError, if it makes no sense; ends the
/// program after --help.
Options readOptions(int &argc, char **&argv) {
    Options options;
    ImportSource source;
    std::string passwordFile;
    std::string sourcePasswordFile;
    std::vector<std::string> files;
    Glib::OptionGroup group("drillhole", "Drill holes");
    const auto add = [&group](const char *name, const char *value, std::string &text,
                              const char *description) {
        Glib::OptionEntry option = entry(name, description);
        option.set_arg_description(value);
        group.add_entry_filename(option, text);
    };
    add("database", "DATABASE", options.database,
        "Where the drill holes are: an SQLite file, made if it is missing, or a connection such as "
        "postgresql://host=... dbname=...");
    add("table", "TABLE", options.table, "Import into collar, survey, assay or lithology");
    add("from", "DATABASE", source.connection, "Import a table of another database");
    add("from-table", "NAME", source.table, "The table to import; without it you can choose one");
    add("password-file", "FILE", passwordFile,
        "A file whose first line is the password of --database");
    add("from-password-file", "FILE", sourcePasswordFile,
        "A file whose first line is the password of --from");
    group.add_entry(entry("then-quit", "End when what the command line names is imported"),
                    options.thenQuits);
    group.add_entry(entry("accept-guesses", "With --then-quit, import required columns that only "
                                            "similar names were found for"),
                    options.acceptsGuesses);
    group.add_entry_filename(entry(G_OPTION_REMAINING, "Files to import"), files);
    Glib::OptionContext context("[FILE...]");
    context.set_main_group(group);
    context.parse(argc, argv);

    if (!options.table.empty() && findTable(options.table) == nullptr) {
        throw Fault("There is no table " + options.table +
                    "; give --table=collar, survey, assay or lithology.");
    }
    if (source.connection.empty() && !source.table.empty()) {
        throw Fault("Give the database of that table too, with --from.");
    }
    options.database =
        connectionTo(options.database.empty() ? usualDatabase() : options.database, passwordFile);
    for (const std::string &path : files) {
        options.sources.push_back({path, {}, {}});
    }
    if (!source.connection.empty()) {
        source.connection = connectionTo(source.connection, sourcePasswordFile);
        options.sources.push_back(source);
    }
    return options;
}

/// The table that the file's name tells, as in collars_2021.csv or lith.csv. Null if it tells none.
const Table *tableFor(const std::string &path) {
    const std::string name = Glib::ustring(Glib::filename_display_basename(path)).lowercase();
    for (const Table &table : holeTables()) {
        if (name.find(table.name.substr(0, 4)) != std::string::npos) {
            return &table;
        }
    }
    return nullptr;
}

/// Words and elements of the user's own, beside those that the program comes with.
std::string ownWords() {
    std::ifstream file(inFolder(Glib::get_user_config_dir(), "words.txt"));
    return {std::istreambuf_iterator<char>(file), {}};
}

int run(int argc, char **argv) {
    holeTables(ownWords());
    Options options = readOptions(argc, argv);
    // In front of GTK's own start: behind it, GTK warns that the toolkit comes too late to keep it
    // from setting the locale.
    const wxImportCSVDialogPeer peer;
    const auto application = Gtk::Application::create("", Gio::APPLICATION_NON_UNIQUE);
    Settings settings(inFolder(Glib::get_user_config_dir(), "settings.ini"));
    MainWindow window(settings, inFolder(Glib::get_user_data_dir(), "reports"), !options.thenQuits,
                      options.acceptsGuesses);

    const auto importNext = [&] {
        const ImportSource source = options.sources.front();
        options.sources.pop_front();
        const std::string otherwise = source.path.empty() ? "collar" : source.path;
        const Table *table = options.table.empty() ? tableFor(otherwise) : findTable(options.table);
        window.importFrom(source, table);
    };
    bool areDone = true;
    sigc::connection atRest;
    atRest = window.signalAtRest().connect([&](const ImportRecord *ended) {
        if (ended != nullptr) {
            print(ended->fault.empty() ? std::cout : std::cerr, *ended);
            areDone = areDone && ended->isDone();
        }
        if (!options.sources.empty()) {
            Glib::signal_idle().connect_once(importNext);
            return;
        }
        atRest.disconnect(); // what follows is the user's own
        if (options.thenQuits) {
            Glib::signal_idle().connect_once([&] { window.hide(); });
        }
    });
    window.open(options.database);
    application->run(window);
    return areDone ? 0 : 1;
}

} // namespace

int main(int argc, char **argv) {
    std::setlocale(LC_ALL, "");
    std::setlocale(LC_MESSAGES,
                   "C"); // the program speaks English, and so should GTK and the dialog
    Glib::init();
    try {
        // A thread that waits for a database may outlive the window, and what it uses must, too.
        std::quick_exit(run(argc, argv));
    } catch (const Fault &fault) {
        std::cerr << fault.what() << '\n';
    } catch (const Glib::Error &error) {
        std::cerr << error.what() << '\n';
    }
    return 2;
}
