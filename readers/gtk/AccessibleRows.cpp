// SPDX-License-Identifier: MIT

#include "AccessibleRows.h"

#include "dragdrop/ListCtrlSource.h"

#include <gtk/gtk-a11y.h>

namespace columnimport {

namespace {

/// The accessible object of the widget.
struct RowList {
    GtkWidgetAccessible parent;
    AccessibleRows *rows; // null once the list control is gone
};

AccessibleRows *rowsOf(void *accessible) {
    return static_cast<RowList *>(accessible)->rows;
}

AtkObjectClass *parentClass() {
    return ATK_OBJECT_CLASS(g_type_class_peek(GTK_TYPE_WIDGET_ACCESSIBLE));
}

int countItems(AtkObject *accessible) {
    const AccessibleRows *rows = rowsOf(accessible);
    return rows == nullptr ? 0 : rows->list().GetItemCount();
}

AtkObject *refItem(AtkObject *accessible, int row) {
    if (row < 0 || row >= countItems(accessible)) {
        return nullptr;
    }
    return ATK_OBJECT(g_object_ref(rowsOf(accessible)->item(row)));
}

// MANAGES_DESCENDANTS keeps a reader from fetching all items, which come and go.
AtkStateSet *refStates(AtkObject *accessible) {
    AtkStateSet *states = parentClass()->ref_state_set(accessible);
    const AccessibleRows *rows = rowsOf(accessible);
    atk_state_set_add_state(states, ATK_STATE_MANAGES_DESCENDANTS);
    atk_state_set_add_state(states, ATK_STATE_MULTISELECTABLE);
    if (rows != nullptr && rows->list().IsShownOnScreen()) {
        atk_state_set_add_state(states, ATK_STATE_SHOWING);
        atk_state_set_add_state(states, ATK_STATE_FOCUSABLE);
        if (rows->list().HasFocus()) {
            atk_state_set_add_state(states, ATK_STATE_FOCUSED);
        }
    }
    return states;
}

void initListClass(void *listClass, void *) {
    AtkObjectClass *accessible = ATK_OBJECT_CLASS(listClass);
    accessible->get_n_children = countItems;
    accessible->ref_child = refItem;
    accessible->ref_state_set = refStates;
}

int countMarked(AtkSelection *accessible) {
    const AccessibleRows *rows = rowsOf(accessible);
    return rows == nullptr ? 0 : rows->list().countMarkedRows();
}

/// The row of the selected item number `index`, or none.
int markedRow(AtkSelection *accessible, int index) {
    return index < 0 || index >= countMarked(accessible)
               ? wxNOT_FOUND
               : static_cast<int>(
                     rowsOf(accessible)->list().markedRows()[static_cast<std::size_t>(index)]);
}

AtkObject *refMarked(AtkSelection *accessible, int index) {
    return refItem(ATK_OBJECT(accessible), markedRow(accessible, index));
}

int isMarked(AtkSelection *accessible, int row) {
    const AccessibleRows *rows = rowsOf(accessible);
    return rows != nullptr && rows->list().marks().isMarked(row) ? TRUE : FALSE;
}

int setMark(AtkSelection *accessible, int row, bool marked) {
    if (row < 0 || row >= countItems(ATK_OBJECT(accessible))) {
        return FALSE;
    }
    rowsOf(accessible)->list().marks().set(row, marked);
    return TRUE;
}

int mark(AtkSelection *accessible, int row) {
    return setMark(accessible, row, true);
}

int unmark(AtkSelection *accessible, int index) {
    return setMark(accessible, markedRow(accessible, index), false);
}

int unmarkAll(AtkSelection *accessible) {
    if (const AccessibleRows *rows = rowsOf(accessible)) {
        rows->list().clearMarkedRows();
    }
    return TRUE;
}

int markAll(AtkSelection *accessible) {
    if (const AccessibleRows *rows = rowsOf(accessible)) {
        rows->list().markRows(0, rows->list().GetItemCount() - 1);
    }
    return TRUE;
}

void initSelection(void *iface, void *) {
    auto *selection = static_cast<AtkSelectionIface *>(iface);
    selection->add_selection = mark;
    selection->clear_selection = unmarkAll;
    selection->ref_selection = refMarked;
    selection->get_selection_count = countMarked;
    selection->is_child_selected = isMarked;
    selection->remove_selection = unmark;
    selection->select_all_selection = markAll;
}

GType listType() {
    static const GType type = [] {
        const GType list =
            g_type_register_static_simple(GTK_TYPE_WIDGET_ACCESSIBLE, "ColumnImportAccessibleRows",
                                          sizeof(GtkWidgetAccessibleClass), initListClass,
                                          sizeof(RowList), nullptr, GTypeFlags());
        const GInterfaceInfo selection = {initSelection, nullptr, nullptr};
        g_type_add_interface_static(list, ATK_TYPE_SELECTION, &selection);
        return list;
    }();
    return type;
}

void initWidgetClass(void *widgetClass, void *) {
    gtk_widget_class_set_accessible_type(GTK_WIDGET_CLASS(widgetClass), listType());
    gtk_widget_class_set_accessible_role(GTK_WIDGET_CLASS(widgetClass), ATK_ROLE_LIST);
}

GType widgetType() {
    static const GType type =
        g_type_register_static_simple(GTK_TYPE_WIDGET, "ColumnImportRows", sizeof(GtkWidgetClass),
                                      initWidgetClass, sizeof(GtkWidget), nullptr, GTypeFlags());
    return type;
}

} // namespace

AccessibleRows::AccessibleRows(ListCtrlSource &list, const wxString &name) : m_list(list) {
    auto *widget = static_cast<GtkWidget *>(g_object_new(widgetType(), nullptr));
    gtk_widget_set_has_window(widget, FALSE);
    GtkWidget *area = list.GetTargetWindow()->GetHandle(); // shows the rows and takes the keys
    gtk_container_add(GTK_CONTAINER(area), widget);
    gtk_widget_show(widget);
    m_accessible = ATK_OBJECT(g_object_ref(gtk_widget_get_accessible(widget)));
    reinterpret_cast<RowList *>(m_accessible)->rows = this;
    for (GtkWidget *part : {list.GetHandle(), area, widget}) {
        atk_object_set_name(gtk_widget_get_accessible(part), name.utf8_str());
    }

    list.marks().onChange([this](long row) { reportMark(row); });
    list.Bind(wxEVT_LIST_ITEM_FOCUSED, &AccessibleRows::onCurrentRow, this);
    list.Bind(wxEVT_LIST_DELETE_ALL_ITEMS, &AccessibleRows::onNoRows, this);
    list.Bind(wxEVT_SET_FOCUS, &AccessibleRows::onFocus, this);
    list.Bind(wxEVT_KILL_FOCUS, &AccessibleRows::onFocus, this);
}

AccessibleRows::~AccessibleRows() {
    m_list.marks().onChange(nullptr);
    forgetItems();
    reinterpret_cast<RowList *>(m_accessible)->rows = nullptr;
    g_object_unref(m_accessible);
}

void AccessibleRows::onCurrentRow(wxListEvent &event) {
    reportCurrentRow(event.GetIndex());
    event.Skip();
}

void AccessibleRows::onNoRows(wxListEvent &event) {
    forgetItems();
    event.Skip();
}

void AccessibleRows::onFocus(wxFocusEvent &event) {
    const bool isGained = event.GetEventType() == wxEVT_SET_FOCUS;
    atk_object_notify_state_change(m_accessible, ATK_STATE_FOCUSED, isGained ? TRUE : FALSE);
    reportCurrentRow(isGained ? m_list.currentRow() : wxNOT_FOUND);
    event.Skip();
}

void AccessibleRows::announce(const std::vector<long> &rows) {
    for (const long row : rows) {
        const auto known = m_items.find(row);
        if (known != m_items.end()) {
            atk_object_set_name(known->second, m_list.inWords(row).utf8_str());
        }
    }
    const wxString text = rowsText(m_list.inWords(rows.front()), rows.size());
    g_signal_emit_by_name(m_accessible, "announcement", text.utf8_str().data());
}

AtkObject *AccessibleRows::item(long row) {
    AtkObject *&known = m_items[row];
    if (known == nullptr) {
        known = makeItem(row);
    }
    return known;
}

void AccessibleRows::reportMark(long row) {
    const auto known = m_items.find(row);
    if (known != m_items.end()) {
        atk_object_notify_state_change(known->second, ATK_STATE_SELECTED,
                                       m_list.marks().isMarked(row) ? TRUE : FALSE);
    }
    g_signal_emit_by_name(m_accessible, "selection-changed");
}

void AccessibleRows::reportCurrentRow(long row) {
    const auto before = m_items.find(m_reportedRow);
    if (before != m_items.end()) {
        atk_object_notify_state_change(before->second, ATK_STATE_FOCUSED, FALSE);
    }
    m_reportedRow = row;
    if (row >= 0 && m_list.HasFocus()) {
        atk_object_notify_state_change(item(row), ATK_STATE_FOCUSED, TRUE);
        g_signal_emit_by_name(m_accessible, "active-descendant-changed", item(row));
    }
}

void AccessibleRows::forgetItems() {
    m_reportedRow = wxNOT_FOUND;
    for (const auto &[row, item] : m_items) {
        retireItem(item);
        g_object_unref(item);
    }
    m_items.clear();
}

} // namespace columnimport
