// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/ReportPane.h"

#include <giomm/appinfo.h>
#include <glibmm/convert.h>

namespace drillhole {

ReportPane::ReportPane() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 6), m_open("_Open Report", true) {
    m_rows = Gtk::ListStore::create(m_columns);
    m_view.set_model(m_rows);
    m_view.append_column("Line", m_columns.lines);
    m_view.append_column("Why the row was refused", m_columns.reason);
    m_scrolled.set_shadow_type(Gtk::SHADOW_IN);
    m_scrolled.set_min_content_height(140);
    m_scrolled.add(m_view);
    m_heading.set_xalign(0);
    m_heading.set_ellipsize(Pango::ELLIPSIZE_MIDDLE);
    m_heading.set_text("Nothing imported yet in this session.");
    m_open.set_tooltip_text("All refused rows, with the fields as they were");
    m_open.signal_clicked().connect([this] { openReport(); });

    auto *top = Gtk::make_managed<Gtk::Box>(Gtk::ORIENTATION_HORIZONTAL, 6);
    top->pack_start(m_heading, Gtk::PACK_EXPAND_WIDGET);
    top->pack_start(m_open, Gtk::PACK_SHRINK);
    pack_start(*top, Gtk::PACK_SHRINK);
    pack_start(m_scrolled, Gtk::PACK_EXPAND_WIDGET);
    show_all_children();
    m_open.hide();
    m_scrolled.hide();
    m_open.set_no_show_all();
    m_scrolled.set_no_show_all();
}

void ReportPane::show(const ImportOutcome &outcome, const std::string &source, const Table &table) {
    m_heading.set_text(summaryOf(outcome, source, table));
    showRefused(outcome);
    m_report = outcome.report;
    m_open.set_visible(!m_report.empty());
    m_scrolled.set_visible(!m_report.empty());
}

void ReportPane::showRefused(const ImportOutcome &outcome) {
    m_rows->clear();
    for (const RefusedRow &refused : outcome.firstRefused) {
        const auto row = *m_rows->append();
        row[m_columns.lines] = refused.lines;
        row[m_columns.reason] = refused.reason;
    }
    if (outcome.refused > outcome.firstRefused.size()) {
        const auto row = *m_rows->append();
        row[m_columns.reason] =
            std::to_string(outcome.refused - outcome.firstRefused.size()) + " more in the report";
    }
}

void ReportPane::openReport() {
    try {
        Gio::AppInfo::launch_default_for_uri(Glib::filename_to_uri(m_report));
    } catch (const Glib::Error &) {
        m_heading.set_text("No program opens such files here. The report is " + m_report);
    }
}

std::string summaryOf(const ImportOutcome &outcome, const std::string &source, const Table &table) {
    const std::string into = Glib::ustring(table.title).lowercase();
    if (outcome.isCancelled) {
        return "Cancelled. The " + into + " are as they were before " + source + '.';
    }
    const auto rows = [](std::size_t count) {
        return std::to_string(count) + (count == 1 ? " row" : " rows");
    };
    return source + ": " + rows(outcome.taken) + " imported" +
           (outcome.replaces ? " in place of the earlier ones, " : ", ") +
           (outcome.refused == 0 ? "none" : rows(outcome.refused)) + " refused.";
}

} // namespace drillhole
