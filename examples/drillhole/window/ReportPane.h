// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/window/ImportStory.h"

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/label.h>
#include <gtkmm/liststore.h>
#include <gtkmm/scrolledwindow.h>
#include <gtkmm/treeview.h>

namespace drillhole {

/// What came of the last import: a sentence, what is to be said of rows, and the refused
/// ones with their reasons.
class ReportPane : public Gtk::Box {
public:
    ReportPane();

    void show(const ImportStory &story);

    /// The report of refused rows; empty if there is none.
    const std::string &file() const { return m_report; }

private:
    void addRow(const Remark &remark);
    void openReport();

    struct Columns : Gtk::TreeModelColumnRecord {
        Columns() {
            add(lines);
            add(reason);
        }
        Gtk::TreeModelColumn<Glib::ustring> lines;
        Gtk::TreeModelColumn<Glib::ustring> reason;
    };

    Columns m_columns;
    Glib::RefPtr<Gtk::ListStore> m_rows;
    Gtk::Label m_heading;
    Gtk::Button m_open;
    Gtk::ScrolledWindow m_scrolled;
    Gtk::TreeView m_view;
    std::string m_report;
};

} // namespace drillhole
