// SPDX-License-Identifier: MIT

#include "DragLabel.h"

#include <utility>

#include <gdk/gdkwayland.h>
#include <gtk/gtk.h>
#include <wx/dnd.h>
#include <wx/settings.h>
#include <wx/window.h>

namespace columnimport {

namespace {

wxString cssColour(wxSystemColour colour) {
    return wxSystemSettings::GetColour(colour).GetAsString(wxC2S_CSS_SYNTAX);
}

GtkWidget *makeLabel(const wxString &text) {
    GtkWidget *label = gtk_label_new(text.utf8_str());
    gtk_label_set_single_line_mode(GTK_LABEL(label), TRUE);
    gtk_label_set_ellipsize(GTK_LABEL(label), PANGO_ELLIPSIZE_END);
    gtk_label_set_max_width_chars(GTK_LABEL(label), 40);
    const wxString style = wxString::Format(
        "label { padding: 2px 6px; border: 1px solid %s; background-color: %s; color: %s; }",
        cssColour(wxSYS_COLOUR_LISTBOXTEXT), cssColour(wxSYS_COLOUR_LISTBOX),
        cssColour(wxSYS_COLOUR_LISTBOXTEXT));
    GtkCssProvider *provider = gtk_css_provider_new();
    gtk_css_provider_load_from_data(provider, style.utf8_str(), -1, nullptr);
    gtk_style_context_add_provider(gtk_widget_get_style_context(label),
                                   GTK_STYLE_PROVIDER(provider),
                                   GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(provider);
    gtk_widget_show(label);
    // Its window would give a text that can be cut no room but for an ellipsis.
    int width = 0;
    gtk_widget_get_preferred_width(label, nullptr, &width);
    gtk_widget_set_size_request(label, width, -1);
    return GTK_WIDGET(g_object_ref_sink(label));
}

// A handler that says the failure is dealt with: otherwise the label would fly back to where the
// drag began, and take the presses on its way.
gboolean letItVanish(GtkWidget *, GdkDragContext *, GtkDragResult, void *) {
    return TRUE;
}

} // namespace

// Two lines of text are higher than a row. Not every Wayland compositor heeds a place beside the
// pointer, but there what is not drawn of a label can be seen through.
DragLabel::DragLabel(wxDropSource &drag, const wxWindow &source, const wxString &text)
    : m_drag(drag), m_label(makeLabel(text)), m_right(source.GetCharWidth()),
      m_below(2 * source.GetCharHeight()),
      m_showing(g_idle_add_full(G_PRIORITY_HIGH, show, this, nullptr)),
      m_failing(g_signal_connect(drag.m_widget, "drag-failed", G_CALLBACK(letItVanish), nullptr)) {
    if (GDK_IS_WAYLAND_DISPLAY(gtk_widget_get_display(drag.m_widget))) {
        gtk_widget_set_margin_start(m_label, std::exchange(m_right, 0));
        gtk_widget_set_margin_top(m_label, std::exchange(m_below, 0));
    }
}

DragLabel::~DragLabel() {
    if (m_showing != 0) {
        g_source_remove(m_showing);
    }
    g_signal_handler_disconnect(m_drag.m_widget, m_failing);
    gtk_widget_destroy(m_label);
    g_object_unref(m_label);
    // The toolkit makes a window for its own icon and leaves that behind.
    if (m_drag.m_iconWindow != nullptr) {
        gtk_widget_destroy(m_drag.m_iconWindow);
        m_drag.m_iconWindow = nullptr;
    }
}

// The toolkit's icon can't be given a place beside the pointer, and shows nothing under Wayland. It
// is set as the last thing before the loop of the drag runs, and replaced as the first thing there,
// unless the drag is over by then.
int DragLabel::show(void *self) {
    auto &label = *static_cast<DragLabel *>(self);
    label.m_showing = 0;
    if (label.m_drag.m_waiting) {
        gtk_drag_set_icon_widget(label.m_drag.m_dragContext, label.m_label, -label.m_right,
                                 -label.m_below);
    }
    return G_SOURCE_REMOVE;
}

} // namespace columnimport
