// SPDX-License-Identifier: MIT

#include "host/nativeWindow.h"

#include <gtk/gtk.h>
#include <wx/window.h>

namespace columnimport {

HostWindow ownerOf(HostWindow hostWindow) {
    if (hostWindow == nullptr) {
        return nullptr;
    }
    GtkWidget *topLevel = gtk_widget_get_toplevel(hostWindow);
    return GTK_IS_WINDOW(topLevel) ? topLevel : nullptr;
}

// The reference keeps the widget's memory for the run, should the host destroy its window
// meanwhile.
void attach(wxWindow &standIn, HostWindow hostWindow) {
    standIn.m_widget = GTK_WIDGET(g_object_ref(hostWindow));
    GtkWindow *window = GTK_WINDOW(hostWindow);
    gtk_window_get_position(window, &standIn.m_x, &standIn.m_y);
    gtk_window_get_size(window, &standIn.m_width, &standIn.m_height);
}

void detach(wxWindow &standIn) {
    g_clear_object(&standIn.m_widget);
}

} // namespace columnimport
