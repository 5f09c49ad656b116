// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/window/ImportRecord.h"

#include <gtkmm.h>

namespace drillhole {

/// What came of the last import: a sentence, what is to be said of rows, and the refused
/// ones with their reasons.
class ReportPane : public Gtk::Box {
public:
    ReportPane();

    void show(const ImportRecord &record);

    /// The report of refused rows; empty if there is none.
    const std::string &file() const { return m_report; }

private:
    Gtk::Label m_heading;
    Gtk::Button m_open;
    Gtk::ScrolledWindow m_scrolled;
    Gtk::ListViewText m_rows;
    std::string m_report;
};

} // namespace drillhole
