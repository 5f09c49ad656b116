// SPDX-License-Identifier: MIT

#include "drillhole/window/ReportPane.h"

namespace drillhole {

ReportPane::ReportPane()
    : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 6), m_open("_Open Report", true), m_rows(2) {
    m_rows.set_column_title(0, "Line");
    m_rows.set_column_title(1, "Why rows were refused, and what else is to be said");
    m_scrolled.set_shadow_type(Gtk::SHADOW_IN);
    m_scrolled.set_min_content_height(140);
    m_scrolled.add(m_rows);
    m_heading.set_xalign(0);
    m_heading.set_ellipsize(Pango::ELLIPSIZE_MIDDLE);
    m_heading.set_text("Nothing imported yet in this session.");
    m_open.set_tooltip_text("All refused rows, with the fields as they were");
    m_open.signal_clicked().connect([this] {
        try {
            Gio::AppInfo::launch_default_for_uri(Glib::filename_to_uri(m_report));
        } catch (const Glib::Error &) {
            m_heading.set_text("No program opens such files here. The report is " + m_report);
        }
    });

    auto *top = Gtk::make_managed<Gtk::Box>(Gtk::ORIENTATION_HORIZONTAL, 6);
    top->pack_start(m_heading, Gtk::PACK_EXPAND_WIDGET);
    top->pack_start(m_open, Gtk::PACK_SHRINK);
    pack_start(*top, Gtk::PACK_SHRINK);
    pack_start(m_scrolled, Gtk::PACK_EXPAND_WIDGET);
    m_rows.show();
    m_open.set_no_show_all();
    m_scrolled.set_no_show_all();
}

void ReportPane::show(const ImportRecord &record) {
    m_heading.set_text(summaryOf(record));
    m_rows.clear_items();
    for (const Remark &remark : remarksOf(record.outcome, record.outcome.firstRefused.size())) {
        m_rows.set_text(m_rows.append(remark.lines), 1, remark.text);
    }
    m_report = record.outcome.report;
    m_open.set_visible(!m_report.empty());
    m_scrolled.set_visible(m_rows.size() > 0);
}

} // namespace drillhole
