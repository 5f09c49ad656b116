// SPDX-License-Identifier: MIT

// Drill holes in a database: imports files and tables into it, and shows them.

#include "examples/drillhole/rows/Fault.h"
#include "examples/drillhole/window/MainWindow.h"
#include "examples/drillhole/window/options.h"

#include <clocale>
#include <cstdlib>
#include <filesystem>
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

/// The table that the file is for: the one named on the command line, or in the file's name, as in
/// collars_2021.csv. Null if neither tells.
const Table *tableFor(const std::string &path, const Options &options) {
    if (!options.table.empty()) {
        return findTable(options.table);
    }
    const std::string name = Glib::ustring(Glib::filename_display_basename(path)).lowercase();
    for (const Table &table : holeTables()) {
        if (name.find(table.name) != std::string::npos) {
            return &table;
        }
    }
    return nullptr;
}

/// Does what the command line asks for, one import after the other.
class Errands {
public:
    Errands(Options options, MainWindow &window) : m_options(std::move(options)), m_window(window) {
        m_window.signalEnded().connect([this](const ImportStory &story) { onEnded(story); });
        m_window.signalOpened().connect([this] {
            if (!std::exchange(m_isBegun, true)) {
                goOnWhenIdle();
            }
        });
    }

    bool areDone() const { return m_areDone; }

private:
    void goOnWhenIdle() {
        Glib::signal_idle().connect_once([this] { goOn(); });
    }

    void goOn() {
        if (!m_options.files.empty()) {
            const std::string path = m_options.files.front();
            m_options.files.pop_front();
            if (const Table *table = tableFor(path, m_options)) {
                m_window.choose(*table);
            }
            m_isRunning = true;
            m_window.importFile(path);
        } else if (!m_options.source.empty()) {
            m_window.choose(*findTable(m_options.table.empty() ? "collar" : m_options.table));
            const std::string source = std::exchange(m_options.source, {});
            m_isRunning = true;
            if (m_options.sourceTable.empty()) {
                m_window.chooseSourceTable(source);
            } else {
                m_window.importTable(source, m_options.sourceTable);
            }
        } else if (m_options.thenQuits) {
            m_window.hide();
        }
    }

    void onEnded(const ImportStory &story) {
        if (!std::exchange(m_isRunning, false)) {
            return;
        }
        print(story.fault.empty() ? std::cout : std::cerr, story);
        m_areDone = m_areDone && story.isDone();
        goOnWhenIdle();
    }

    Options m_options;
    MainWindow &m_window;
    bool m_isBegun = false;
    bool m_isRunning = false;
    bool m_areDone = true;
};

int run(int argc, char **argv) {
    const Options options = readOptions(argc, argv);
    // In front of GTK's own start: behind it, GTK warns that the toolkit comes too late to keep it
    // from setting the locale.
    const wxImportCSVDialogPeer peer;
    const auto application = Gtk::Application::create("", Gio::APPLICATION_NON_UNIQUE);
    Settings settings(inFolder(Glib::get_user_config_dir(), "settings.ini"));
    MainWindow window(settings, inFolder(Glib::get_user_data_dir(), "reports"));
    const Errands errands(options, window);
    window.open(options.connection, !options.thenQuits);
    application->run(window);
    return errands.areDone() ? 0 : 1;
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
