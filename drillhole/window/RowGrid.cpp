// SPDX-License-Identifier: MIT

#include "drillhole/window/RowGrid.h"

#include "drillhole/rows/text.h"

#include <algorithm>

namespace drillhole {

constexpr std::size_t pageSize = 500;

RowGrid::RowGrid(Gtk::Stack &tables, const Table &table, DatabaseThread &holes)
    : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 6), m_tables(tables),
      m_holes(holes), m_shown{&table, {}, {}, false},
      m_view(static_cast<unsigned int>(table.columns.size())) {
    for (unsigned int i = 0; i < table.columns.size(); ++i) {
        addColumn(i, table.columns[i]);
    }
    // The last column takes the room that is left; that should not be one of numbers.
    m_view.append_column(*Gtk::make_managed<Gtk::TreeViewColumn>());
    m_scrolled.set_shadow_type(Gtk::SHADOW_IN);
    m_scrolled.add(m_view);
    pack_start(m_scrolled, Gtk::PACK_EXPAND_WIDGET);

    auto *pager = Gtk::make_managed<Gtk::Box>(Gtk::ORIENTATION_HORIZONTAL, 6);
    addButton(*pager, "go-first-symbolic", "First rows", &RowGrid::goToFirst);
    addButton(*pager, "go-previous-symbolic", "Earlier rows", &RowGrid::goBack);
    addButton(*pager, "go-next-symbolic", "Later rows", &RowGrid::goOn);
    addButton(*pager, "go-last-symbolic", "Last rows", &RowGrid::goToLast);
    m_number.set_width_chars(9);
    m_number.set_placeholder_text("Go to row");
    m_number.set_tooltip_text("Shows the rows from this number on");
    m_number.signal_activate().connect([this] { goTo(m_number.get_text()); });
    pager->pack_start(m_number, Gtk::PACK_SHRINK);
    m_place.set_ellipsize(Pango::ELLIPSIZE_END);
    m_place.set_xalign(0);
    m_place.set_width_chars(20);
    pager->pack_start(m_place, Gtk::PACK_EXPAND_WIDGET);
    m_hole.set_width_chars(16);
    m_hole.set_placeholder_text("Holes like LR-1");
    m_hole.set_tooltip_text("Shows only the rows of holes whose names begin so");
    m_hole.signal_search_changed().connect([this] { refresh(false); });
    pager->pack_start(m_hole, Gtk::PACK_SHRINK);
    pack_start(*pager, Gtk::PACK_SHRINK);
    tables.add(*this, table.name, table.title);
}

void RowGrid::addColumn(unsigned int number, const Column &column) {
    m_view.set_column_title(number, column.name);
    Gtk::TreeViewColumn *shown = m_view.get_column(static_cast<int>(number));
    shown->set_resizable();
    shown->set_clickable();
    shown->signal_clicked().connect([this, number] { sortBy(number); });
    if (column.kind == Kind::number) {
        shown->get_first_cell()->set_alignment(1, 0.5);
        shown->set_alignment(Gtk::ALIGN_END);
    }
}

void RowGrid::addButton(Gtk::Box &pager, const char *icon, const char *tip, void (RowGrid::*go)()) {
    auto *button = Gtk::make_managed<Gtk::Button>();
    button->set_image_from_icon_name(icon);
    button->set_tooltip_text(tip);
    button->signal_clicked().connect(sigc::mem_fun(*this, go));
    pager.pack_start(*button, Gtk::PACK_SHRINK);
}

void RowGrid::refresh(bool isAtEnd) {
    m_shown.hole = m_hole.get_text();
    m_holes.ask(
        [view = m_shown](soci::session &holes) {
            const std::size_t all = rowCount(holes, *view.table);
            return std::pair(all,
                             view.hole.empty() ? all : rowCount(holes, *view.table, view.hole));
        },
        [this, isAtEnd](const auto &counts) {
            m_tables.child_property_title(*this) =
                table().title + " (" + grouped(counts.first) + ')';
            m_count = counts.second;
            isAtEnd ? goToLast() : goToFirst();
        });
}

void RowGrid::goBack() {
    if (m_first > pageSize && !m_page.empty()) {
        load({m_page.front().front(), true, 0}, m_first - pageSize);
    } else {
        goToFirst();
    }
}

void RowGrid::goOn() {
    if (m_first + m_page.size() < m_count && !m_page.empty()) {
        load({m_page.back().front(), false, 0}, m_first + m_page.size());
    }
}

void RowGrid::goToLast() {
    load({{}, true, 0}, m_count - std::min(m_count, pageSize));
}

void RowGrid::goTo(const std::string &number) {
    const double row = parseNumber(number).value_or(0);
    if (row >= 1 && row <= static_cast<double>(m_count)) {
        const auto first = static_cast<std::size_t>(row) - 1;
        load({{}, false, first}, first);
    }
}

void RowGrid::sortBy(std::size_t column) {
    const bool isSorted = m_shown.sortedBy == column;
    m_shown.sortedBy = isSorted && m_shown.descends ? std::nullopt : std::optional(column);
    m_shown.descends = isSorted && !m_shown.descends;
    for (std::size_t i = 0; i < m_shown.table->columns.size(); ++i) {
        Gtk::TreeViewColumn *title = m_view.get_column(static_cast<int>(i));
        title->set_sort_indicator(m_shown.sortedBy == i);
        title->set_sort_order(m_shown.descends ? Gtk::SORT_DESCENDING : Gtk::SORT_ASCENDING);
    }
    goToFirst();
}

void RowGrid::load(const PagePlace &place, std::size_t first) {
    const auto read = [view = m_shown, place](soci::session &holes) {
        return pageOf(holes, view, place, pageSize);
    };
    m_holes.ask(read, [this, first](const auto &rows) {
        m_page = rows;
        m_first = first;
        m_view.clear_items();
        for (const std::vector<std::string> &row : rows) {
            const unsigned int shown = m_view.append();
            for (unsigned int i = 1; i < row.size(); ++i) {
                m_view.set_text(shown, i - 1, row[i]);
            }
        }
        m_scrolled.get_vadjustment()->set_value(0);
        m_place.set_text(rows.empty() ? "No rows"
                                      : grouped(first + 1) + " to " + grouped(first + rows.size()) +
                                            " of " + grouped(m_count));
    });
}

} // namespace drillhole
