// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/window/DatabaseThread.h"

#include <optional>

#include <gtkmm/button.h>
#include <gtkmm/dialog.h>
#include <gtkmm/entry.h>
#include <gtkmm/grid.h>
#include <gtkmm/label.h>
#include <gtkmm/listviewtext.h>

namespace drillhole {

/// A table in another database.
struct SourceTable {
    std::string connection; ///< with its password
    std::string name;       ///< empty if only a database was to be chosen
};

/// Lets the user connect to a database and choose a table of it, or connect to one for the drill
/// holes.
class SourceDialog : public Gtk::Dialog {
public:
    enum class Choice { table, holes };

    /// @param connection  what to begin with, perhaps with a password
    /// @param message     what the user reads first
    SourceDialog(Gtk::Window &owner, Choice choice, const std::string &connection,
                 const std::string &message);

    /// Nothing if the user pressed Cancel.
    std::optional<SourceTable> choose();

private:
    void addRow(int row, const Glib::ustring &text, Gtk::Entry &entry, Gtk::Button &button);
    void chooseFile();
    void connectDatabase();

    Choice m_choice;
    std::string m_given;     ///< the connection to begin with; its password is not shown
    DatabaseThread m_source; ///< whose tables are shown
    Gtk::Grid m_grid;
    Gtk::Entry m_connection;
    Gtk::Entry m_password;
    Gtk::Button m_file;
    Gtk::Button m_connect;
    Gtk::Label m_message;
    Gtk::ListViewText m_tables;
};

} // namespace drillhole
