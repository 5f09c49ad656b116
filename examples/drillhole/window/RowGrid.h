// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/rows/holeTables.h"

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/label.h>
#include <gtkmm/liststore.h>
#include <gtkmm/treeview.h>

namespace drillhole {

/// A stretch of a table's rows, with buttons to the rows before and behind it.
class RowGrid : public Gtk::Box {
public:
    static constexpr std::size_t pageSize = 500;

    RowGrid();

    /// Shows rows of the table, of which `first` is the number of the first, counted from 0.
    void show(const Table &table, const std::vector<std::vector<std::string>> &rows,
              std::size_t first, std::size_t count);

    /// The number of the first row on the page that the user asks for.
    sigc::signal<void, std::size_t> &signalPage() { return m_signalPage; }

private:
    void showColumns(const Table &table);

    std::string m_tableName;
    std::size_t m_first = 0;
    Gtk::TreeModelColumnRecord m_record;
    std::vector<Gtk::TreeModelColumn<Glib::ustring>> m_fields;
    Glib::RefPtr<Gtk::ListStore> m_rows;
    Gtk::TreeView m_view;
    Gtk::Label m_place;
    Gtk::Button m_before;
    Gtk::Button m_behind;
    sigc::signal<void, std::size_t> m_signalPage;
};

} // namespace drillhole
