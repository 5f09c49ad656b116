// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/RowGrid.h"

#include <algorithm>

#include <gtkmm/cellrenderertext.h>
#include <gtkmm/scrolledwindow.h>

namespace drillhole {

namespace {

std::size_t widestTable() {
    std::size_t width = 0;
    for (const Table &table : holeTables()) {
        width = std::max(width, table.columns.size());
    }
    return width;
}

} // namespace

RowGrid::RowGrid() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 6), m_fields(widestTable()) {
    for (auto &field : m_fields) {
        m_record.add(field);
    }
    m_rows = Gtk::ListStore::create(m_record);
    m_view.set_model(m_rows);
    auto *scrolled = Gtk::make_managed<Gtk::ScrolledWindow>();
    scrolled->set_shadow_type(Gtk::SHADOW_IN);
    scrolled->add(m_view);
    pack_start(*scrolled, Gtk::PACK_EXPAND_WIDGET);

    m_before.set_image_from_icon_name("go-previous-symbolic");
    m_before.set_tooltip_text("Earlier rows");
    m_before.signal_clicked().connect(
        [this] { m_signalPage.emit(m_first > pageSize ? m_first - pageSize : 0); });
    m_behind.set_image_from_icon_name("go-next-symbolic");
    m_behind.set_tooltip_text("Later rows");
    m_behind.signal_clicked().connect([this] { m_signalPage.emit(m_first + pageSize); });
    auto *pager = Gtk::make_managed<Gtk::Box>(Gtk::ORIENTATION_HORIZONTAL, 6);
    pager->pack_start(m_before, Gtk::PACK_SHRINK);
    pager->pack_start(m_behind, Gtk::PACK_SHRINK);
    pager->pack_start(m_place, Gtk::PACK_SHRINK);
    pack_start(*pager, Gtk::PACK_SHRINK);
}

void RowGrid::show(const Table &table, const std::vector<std::vector<std::string>> &rows,
                   std::size_t first, std::size_t count) {
    if (table.name != m_tableName) {
        m_tableName = table.name;
        showColumns(table);
    }
    m_first = first;
    m_view.unset_model();
    m_rows->clear();
    for (const std::vector<std::string> &row : rows) {
        const auto shown = *m_rows->append();
        for (std::size_t i = 0; i < row.size(); ++i) {
            shown[m_fields[i]] = row[i];
        }
    }
    m_view.set_model(m_rows);
    m_place.set_text(rows.empty() ? "No rows yet"
                                  : "Rows " + std::to_string(first + 1) + " to " +
                                        std::to_string(first + rows.size()) + " of " +
                                        std::to_string(count));
    m_before.set_sensitive(first > 0);
    m_behind.set_sensitive(first + rows.size() < count);
}

void RowGrid::showColumns(const Table &table) {
    m_view.remove_all_columns();
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        auto *cell = Gtk::make_managed<Gtk::CellRendererText>();
        auto *column = Gtk::make_managed<Gtk::TreeViewColumn>(table.columns[i].name, *cell);
        column->add_attribute(cell->property_text(), m_fields[i]);
        column->set_resizable();
        if (table.columns[i].kind == Kind::number) {
            cell->property_xalign() = 1;
            column->set_alignment(Gtk::ALIGN_END);
        }
        m_view.append_column(*column);
    }
    // The last column takes the room that is left; that should not be one of numbers.
    m_view.append_column(*Gtk::make_managed<Gtk::TreeViewColumn>());
}

} // namespace drillhole
