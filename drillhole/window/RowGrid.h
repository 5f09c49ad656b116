// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/database/holeDatabase.h"
#include "drillhole/window/DatabaseThread.h"

#include <gtkmm.h>

namespace drillhole {

/// A page of a table's rows, with the ways to the others. A click on a title sorts, a second one
/// the other way round, a third one not at all.
class RowGrid : public Gtk::Box {
public:
    /// Goes into the stack of all tables, where its title tells how many rows there are.
    RowGrid(Gtk::Stack &tables, const Table &table, DatabaseThread &holes);

    const Table &table() const { return *m_shown.table; }

    /// Counts the rows, and shows the first or the last ones of those that pass the filter.
    void refresh(bool isAtEnd);

private:
    void addColumn(unsigned int number, const Column &column);
    void addButton(Gtk::Box &pager, const char *icon, const char *tip, void (RowGrid::*go)());
    void goToFirst() { load({}, 0); }
    void goBack();
    void goOn();
    void goToLast();
    void goTo(const std::string &number);
    void sortBy(std::size_t column);
    void load(const PagePlace &place, std::size_t first);

    Gtk::Stack &m_tables;
    DatabaseThread &m_holes;
    RowView m_shown;
    std::size_t m_count = 0; ///< rows that pass the filter
    std::size_t m_first = 0; ///< the number of the first one on the page, counted from 0
    std::vector<std::vector<std::string>> m_page; ///< each row behind its key
    Gtk::ScrolledWindow m_scrolled;
    Gtk::ListViewText m_view;
    Gtk::Label m_place;
    Gtk::Entry m_number;
    Gtk::SearchEntry m_hole;
};

} // namespace drillhole
