// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/DialogSize.h"

#include <glibmm/main.h>

namespace drillhole {

namespace {

constexpr unsigned int interval = 50; // milliseconds

void include(GtkWidget *part, void *whole) {
    GtkAllocation place;
    gtk_widget_get_allocation(part, &place);
    auto *all = static_cast<GdkRectangle *>(whole);
    gdk_rectangle_union(all, &place, all);
}

/// The window with its title bar and borders. Where GTK draws these itself, there is a shadow
/// around them that counts as a part of the window's extents.
GdkRectangle frameOf(GtkWidget *window) {
    GdkRectangle frame{};
    if (gtk_style_context_has_class(gtk_widget_get_style_context(window), GTK_STYLE_CLASS_CSD)) {
        GtkAllocation child;
        gtk_widget_get_allocation(gtk_bin_get_child(GTK_BIN(window)), &child);
        frame = child;
        gtk_container_forall(GTK_CONTAINER(window), include, &frame);
    } else {
        gdk_window_get_frame_extents(gtk_widget_get_window(window), &frame);
    }
    return frame;
}

} // namespace

DialogSize::DialogSize(Gtk::Window &ownWindow, int width, int height)
    : m_ownWindow(ownWindow.gobj()), m_width(width), m_height(height),
      m_timer(Glib::signal_timeout().connect([this] { return look(); }, interval)) {}

DialogSize::~DialogSize() {
    m_timer.disconnect();
}

bool DialogSize::look() {
    GList *windows = gtk_window_list_toplevels();
    for (GList *each = windows; each != nullptr; each = each->next) {
        auto *window = GTK_WINDOW(each->data);
        if (window != m_ownWindow && gtk_widget_get_mapped(GTK_WIDGET(window)) != FALSE &&
            gtk_window_get_window_type(window) == GTK_WINDOW_TOPLEVEL) {
            const GdkRectangle frame = frameOf(GTK_WIDGET(window));
            m_width = frame.width;
            m_height = frame.height;
        }
    }
    g_list_free(windows);
    return true;
}

} // namespace drillhole
