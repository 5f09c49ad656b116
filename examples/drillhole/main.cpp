// SPDX-License-Identifier: MIT

// Drill holes in a database: imports files and tables into it, and shows them.

#include "examples/drillhole/rows/Fault.h"
#include "examples/drillhole/window/MainWindow.h"
#include "examples/drillhole/window/options.h"

#include <clocale>
#include <cstdlib>
#include <deque>
#include <iostream>

#include <glibmm/convert.h>
#include <glibmm/init.h>
#include <glibmm/main.h>
#include <glibmm/miscutils.h>
#include <gtkmm/application.h>
#include <wxImportCSVDialogPeer.h>

using namespace drillhole;

namespace {

std::string inFolder(const std::string &folder, const std::string &name) {
    return Glib::build_filename(folder, "drillhole", name);
}

/// The table that the file's name tells, as in collars_2021.csv. Null if it tells none.
const Table *tableFor(const std::string &path) {
    const std::string name = Glib::ustring(Glib::filename_display_basename(path)).lowercase();
    for (const Table &table : holeTables()) {
        if (name.find(table.name) != std::string::npos) {
            return &table;
        }
    }
    return nullptr;
}

int run(int argc, char **argv) {
    const Options options = readOptions(argc, argv);
    // In front of GTK's own start: behind it, GTK warns that the toolkit comes too late to keep it
    // from setting the locale.
    const wxImportCSVDialogPeer peer;
    const auto application = Gtk::Application::create("", Gio::APPLICATION_NON_UNIQUE);
    Settings settings(inFolder(Glib::get_user_config_dir(), "settings.ini"));
    MainWindow window(settings, inFolder(Glib::get_user_data_dir(), "reports"), !options.thenQuits);

    // What the command line asks for, one import after the other.
    std::deque<std::function<void()>> errands;
    const auto chooseTable = [&](const Table *otherwise) {
        const Table *table = options.table.empty() ? otherwise : findTable(options.table);
        if (table != nullptr) {
            window.choose(*table);
        }
    };
    for (const std::string &path : options.files) {
        errands.emplace_back([&, path] {
            chooseTable(tableFor(path));
            window.importFile(path);
        });
    }
    if (!options.source.empty()) {
        errands.emplace_back([&] {
            chooseTable(findTable("collar"));
            window.importTable(options.source, options.sourceTable);
        });
    }
    if (options.thenQuits) {
        errands.emplace_back([&] { window.hide(); });
    }

    bool areDone = true;
    sigc::connection atRest;
    atRest = window.signalAtRest().connect([&](const ImportStory *ended) {
        if (ended != nullptr) {
            print(ended->fault.empty() ? std::cout : std::cerr, *ended);
            areDone = areDone && ended->isDone();
        }
        if (errands.empty()) {
            atRest.disconnect(); // what follows is the user's own
        } else {
            Glib::signal_idle().connect_once(errands.front());
            errands.pop_front();
        }
    });
    window.open(options.database);
    application->run(window);
    return areDone ? 0 : 1;
}

} // namespace

int main(int argc, char **argv) {
    std::setlocale(LC_ALL, "");
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
