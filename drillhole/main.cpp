// SPDX-License-Identifier: MIT

// Drill holes in a database: imports files and tables into it, and shows them.

#include "drillhole/database/connection.h"
#include "drillhole/rows/Fault.h"
#include "drillhole/window/MainWindow.h"

#include <clocale>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <system_error>
#include <vector>

#include <glibmm/convert.h>
#include <glibmm/init.h>
#include <glibmm/main.h>
#include <glibmm/miscutils.h>
#include <glibmm/optioncontext.h>
#include <gtkmm/application.h>
#include <wxImportCSVDialogPeer.h>

using namespace drillhole;

namespace {

std::string inFolder(const std::string &folder, const std::string &name) {
    return Glib::build_filename(folder, "drillhole", name);
}

/// What the command line asks for.
struct Options {
    std::string database;           ///< the connection to the drill holes
    std::string table;              ///< where to import to; empty if the file's name tells it
    std::vector<std::string> files; ///< to import at once, one after the other
    std::string source;             ///< the connection to import a table from, or empty
    std::string sourceTable;        ///< empty to let the user choose
    bool thenQuits = false;         ///< when all that was asked for is imported
    bool acceptsGuesses = false;    ///< of required columns, when nobody is asked
};

Glib::OptionEntry entry(const char *name, const char *description) {
    Glib::OptionEntry entry;
    entry.set_long_name(name);
    entry.set_description(description);
    return entry;
}

std::string usualDatabase() {
    const std::filesystem::path path = inFolder(Glib::get_user_data_dir(), "holes.sqlite");
    std::error_code ignored; // the database says what is wrong there
    std::filesystem::create_directories(path.parent_path(), ignored);
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
        {"table", "TABLE", "Import into collar, survey, assay or lithology", options.table},
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
    group.add_entry(entry("accept-guesses",
                          "With --then-quit, import required columns that only similar names were "
                          "found for"),
                    options.acceptsGuesses);
    group.add_entry_filename(entry(G_OPTION_REMAINING, "Files to import"), options.files);
    Glib::OptionContext context("[FILE...]");
    context.set_main_group(group);
    context.parse(argc, argv);

    if (!options.table.empty() && findTable(options.table) == nullptr) {
        throw Fault("There is no table " + options.table +
                    "; give --table=collar, survey, assay or lithology.");
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
    const Options options = readOptions(argc, argv);
    // In front of GTK's own start: behind it, GTK warns that the toolkit comes too late to keep it
    // from setting the locale.
    const wxImportCSVDialogPeer peer;
    const auto application = Gtk::Application::create("", Gio::APPLICATION_NON_UNIQUE);
    Settings settings(inFolder(Glib::get_user_config_dir(), "settings.ini"));
    MainWindow window(settings, inFolder(Glib::get_user_data_dir(), "reports"), !options.thenQuits,
                      options.acceptsGuesses);

    // What the command line asks for, one after the other; the last may be to quit.
    std::deque<std::function<void()>> requests;
    const auto chooseTable = [&](const Table *otherwise) {
        const Table *table = options.table.empty() ? otherwise : findTable(options.table);
        if (table != nullptr) {
            window.choose(*table);
        }
    };
    for (const std::string &path : options.files) {
        requests.emplace_back([&, path] {
            chooseTable(tableFor(path));
            window.importFile(path);
        });
    }
    if (!options.source.empty()) {
        requests.emplace_back([&] {
            chooseTable(findTable("collar"));
            window.importTable(options.source, options.sourceTable);
        });
    }
    if (options.thenQuits) {
        requests.emplace_back([&] { window.hide(); });
    }

    bool areDone = true;
    sigc::connection atRest;
    atRest = window.signalAtRest().connect([&](const ImportRecord *ended) {
        if (ended != nullptr) {
            print(ended->fault.empty() ? std::cout : std::cerr, *ended);
            areDone = areDone && ended->isDone();
        }
        if (requests.empty()) {
            atRest.disconnect(); // what follows is the user's own
        } else {
            Glib::signal_idle().connect_once(requests.front());
            requests.pop_front();
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
