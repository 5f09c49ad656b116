// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/database/holeDatabase.h"
#include "examples/drillhole/window/DatabaseThread.h"

#include <gtkmm/box.h>
#include <gtkmm/label.h>
#include <gtkmm/liststore.h>
#include <gtkmm/searchentry.h>
#include <gtkmm/treeview.h>

namespace drillhole {

/// A page of a table's rows, with the ways to the others. A click on a title sorts, a second one
/// the other way round, a third one not at all.
class RowGrid : public Gtk::Box {
public:
    /// @param ask  has work done with the database, and calls the second function after it went
    /// well
    using Ask = std::function<void(DatabaseThread::Work, std::function<void()>)>;
    explicit RowGrid(Ask ask);

    /// Shows the first rows of the table, or its last ones.
    ///
    /// @param count  the rows that the table has
    void show(const Table &table, std::size_t count, bool isAtEnd);

private:
    using Rows = std::vector<std::vector<std::string>>;

    void addButton(Gtk::Box &pager, const char *icon, const char *tip, void (RowGrid::*go)());
    void goToFirst() { load({}, 0); }
    void goBack();
    void goOn();
    void goToLast();
    void goTo(const std::string &number);
    void filter();
    void sortBy(std::size_t column);
    void load(const PagePlace &place, std::size_t first);
    void showColumns();
    void showRows(const Rows &rows, std::size_t first);

    Ask m_ask;
    RowView m_shown;
    std::size_t m_total = 0; ///< rows of the table
    std::size_t m_count = 0; ///< those of them that pass the filter
    std::size_t m_first = 0; ///< the number of the first one on the page, counted from 0
    Rows m_page;
    Gtk::TreeModelColumnRecord m_record;
    std::vector<Gtk::TreeModelColumn<Glib::ustring>> m_fields;
    Glib::RefPtr<Gtk::ListStore> m_rows;
    Gtk::TreeView m_view;
    Gtk::Label m_place;
    Gtk::Entry m_number;
    Gtk::SearchEntry m_hole;
};

} // namespace drillhole
