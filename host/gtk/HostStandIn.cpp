// SPDX-License-Identifier: MIT

#include "host/HostStandIn.h"

#include <gtk/gtk.h>
#include <wx/window.h>

namespace columnimport {

// The reference keeps the widget's memory valid if the host destroys its window during the run.
HostStandIn::HostStandIn(HostWindow hostWindow) {
    GtkWidget *owner = hostWindow != nullptr ? gtk_widget_get_toplevel(hostWindow) : nullptr;
    if (!GTK_IS_WINDOW(owner)) {
        return;
    }
    m_window = std::make_unique<wxWindow>();
    m_window->m_widget = GTK_WIDGET(g_object_ref(owner));
    wxTopLevelWindows.Append(m_window.get());
}

HostStandIn::~HostStandIn() {
    release();
}

void HostStandIn::release() {
    if (m_window) {
        g_clear_object(&m_window->m_widget);
    }
}

} // namespace columnimport
