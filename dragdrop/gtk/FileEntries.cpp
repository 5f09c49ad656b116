// SPDX-License-Identifier: MIT

#include "dragdrop/FileEntries.h"

#include "languages/translated.h"

#include <gtk/gtk.h>
#include <wx/arrstr.h>
#include <wx/listbox.h>

namespace columnimport {

namespace {

/// A cell that shows a name with space before it. Screen readers get the cell's text, which
/// describes the mark in words; only the name is measured and drawn.
struct NameCell {
    GtkCellRendererText parent;
    int room;         // before the name
    char *markedName; // null if the name has no mark
};

NameCell &nameCell(void *cell) {
    return *static_cast<NameCell *>(cell);
}

GtkCellRendererClass *parentClass() {
    return GTK_CELL_RENDERER_CLASS(g_type_class_peek(GTK_TYPE_CELL_RENDERER_TEXT));
}

void showNameOnly(GtkCellRenderer *cell) {
    if (const char *name = nameCell(cell).markedName) {
        g_object_set(cell, "text", name, nullptr);
    }
}

void getPreferredWidth(GtkCellRenderer *cell, GtkWidget *widget, int *least, int *natural) {
    showNameOnly(cell);
    parentClass()->get_preferred_width(cell, widget, least, natural);
    for (int *width : {least, natural}) {
        if (width != nullptr) {
            *width += nameCell(cell).room;
        }
    }
}

/// Draws a check mark in the middle of `area`, in the text colour. No font needs to have it.
void drawMark(cairo_t *context, GtkWidget *widget, const GdkRectangle &area) {
    GtkStyleContext *style = gtk_widget_get_style_context(widget);
    GdkRGBA colour;
    gtk_style_context_get_color(style, gtk_style_context_get_state(style), &colour);
    const double side = area.width / 2.0;
    cairo_save(context);
    gdk_cairo_set_source_rgba(context, &colour);
    cairo_set_line_width(context, side / 5);
    cairo_translate(context, area.x + side / 2, area.y + (area.height - side) / 2);
    cairo_move_to(context, 0, side * 0.55);
    cairo_line_to(context, side * 0.35, side * 0.9);
    cairo_line_to(context, side, side * 0.1);
    cairo_stroke(context);
    cairo_restore(context);
}

void render(GtkCellRenderer *cell, cairo_t *context, GtkWidget *widget,
            const GdkRectangle *background, const GdkRectangle *area, GtkCellRendererState state) {
    showNameOnly(cell);
    const int room = nameCell(cell).room;
    if (nameCell(cell).markedName != nullptr) {
        drawMark(context, widget, {area->x, area->y, room, area->height});
    }
    const GdkRectangle rest = {area->x + room, area->y, area->width - room, area->height};
    parentClass()->render(cell, context, widget, background, &rest, state);
}

void finalize(GObject *object) {
    g_free(nameCell(object).markedName);
    G_OBJECT_CLASS(parentClass())->finalize(object);
}

void initClass(void *cellClass, void *) {
    GTK_CELL_RENDERER_CLASS(cellClass)->get_preferred_width = getPreferredWidth;
    GTK_CELL_RENDERER_CLASS(cellClass)->render = render;
    G_OBJECT_CLASS(cellClass)->finalize = finalize;
}

GType cellType() {
    static const GType type = g_type_register_static_simple(
        GTK_TYPE_CELL_RENDERER_TEXT, "ColumnImportNameCell", sizeof(GtkCellRendererTextClass),
        initClass, sizeof(NameCell), nullptr, GTypeFlags());
    return type;
}

/// Called after the cell has received the text of its entry.
void markCell(GtkCellLayout *, GtkCellRenderer *cell, GtkTreeModel *model, GtkTreeIter *entry,
              void *marks) {
    GtkTreePath *path = gtk_tree_model_get_path(model, entry);
    const auto row = static_cast<unsigned>(*gtk_tree_path_get_indices(path));
    gtk_tree_path_free(path);
    char *&name = nameCell(cell).markedName;
    g_free(name);
    name = nullptr;
    if (static_cast<const FileEntries *>(marks)->isMarked(row)) {
        g_object_get(cell, "text", &name, nullptr);
        const wxString words = wxString::Format(translated("%s, in use"), wxString::FromUTF8(name));
        g_object_set(cell, "text", words.utf8_str().data(), nullptr);
    }
}

/// The toolkit handles Return before it sends any key event.
gboolean passReturnOn(GtkWidget *, GdkEvent *event, void *list) {
    const bool isReturn = event->type == GDK_KEY_PRESS && (event->key.keyval == GDK_KEY_Return ||
                                                           event->key.keyval == GDK_KEY_KP_Enter ||
                                                           event->key.keyval == GDK_KEY_ISO_Enter);
    if (!isReturn) {
        return FALSE;
    }
    wxKeyEvent key(wxEVT_CHAR_HOOK);
    key.m_keyCode = WXK_RETURN;
    key.SetControlDown((event->key.state & GDK_CONTROL_MASK) != 0);
    key.SetEventObject(static_cast<wxListBox *>(list));
    return static_cast<wxListBox *>(list)->HandleWindowEvent(key) ? TRUE : FALSE;
}

GtkTreeView *viewOf(const wxListBox &list) {
    return GTK_TREE_VIEW(list.m_focusWidget);
}

GtkCellLayout *cellsOf(const wxListBox &list) {
    return GTK_CELL_LAYOUT(gtk_tree_view_get_column(viewOf(list), 0));
}

} // namespace

// Replaces the toolkit's own cell, which shows the entry's text too.
FileEntries::FileEntries(wxListBox &list) : m_list(list) {
    GtkCellLayout *cells = cellsOf(list);
    auto *cell = static_cast<GtkCellRenderer *>(g_object_new(cellType(), nullptr));
    nameCell(cell).room = markWidth();
    gtk_cell_layout_clear(cells);
    gtk_cell_layout_pack_start(cells, cell, TRUE);
    gtk_cell_layout_add_attribute(cells, cell, "text", 0);
    gtk_cell_layout_set_cell_data_func(cells, cell, markCell, this, nullptr);
    g_signal_connect(list.m_focusWidget, "event", G_CALLBACK(passReturnOn), &list);
}

FileEntries::~FileEntries() {
    gtk_cell_layout_clear(cellsOf(m_list));
}

void FileEntries::showNames(const wxArrayString &names) {
    m_list.Clear();
    m_isMarked.assign(names.size(), false);
    if (!names.empty()) {
        m_list.Append(names);
    }
}

void FileEntries::mark(unsigned row, bool isUsed) {
    m_isMarked[row] = isUsed;
    GtkTreeModel *model = gtk_tree_view_get_model(viewOf(m_list));
    GtkTreePath *path = gtk_tree_path_new_from_indices(static_cast<int>(row), -1);
    GtkTreeIter entry;
    gtk_tree_model_get_iter(model, &entry, path);
    gtk_tree_model_row_changed(model, path, &entry);
    gtk_tree_path_free(path);
}

void FileEntries::goTo(int row) {
    GtkTreePath *path = gtk_tree_path_new_from_indices(row, -1);
    m_list.GTKDisableEvents();
    gtk_tree_view_set_cursor(viewOf(m_list), path, nullptr, FALSE);
    m_list.GTKEnableEvents();
    gtk_tree_path_free(path);
}

int FileEntries::markWidth() const {
    return m_list.GetCharHeight();
}

} // namespace columnimport
