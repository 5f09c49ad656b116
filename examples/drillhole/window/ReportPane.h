// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/database/importRows.h"

#include <gtkmm/box.h>
#include <gtkmm/button.h>
#include <gtkmm/label.h>
#include <gtkmm/liststore.h>
#include <gtkmm/scrolledwindow.h>
#include <gtkmm/treeview.h>

namespace drillhole {

/// What came of the last import: a sentence, and the refused rows with their reasons.
class ReportPane : public Gtk::Box {
public:
    ReportPane();

    /// @param source  what was imported, and `table` where to
    void show(const ImportOutcome &outcome, const std::string &source, const Table &table);

private:
    void showRefused(const ImportOutcome &outcome);
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

/// The outcome in a sentence.
std::string summaryOf(const ImportOutcome &outcome, const std::string &source, const Table &table);

} // namespace drillhole
