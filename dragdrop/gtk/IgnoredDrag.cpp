// SPDX-License-Identifier: MIT

#include "IgnoredDrag.h"

#include <string_view>

#include <gdk/gdkwayland.h>
#include <gtk/gtk.h>
#include <wayland-client.h>
#include <wx/dnd.h>

namespace columnimport {

namespace {

int noteLeave(const void *, void *pointer, std::uint32_t, const wl_message *event, wl_argument *) {
    if (event->name == std::string_view("leave")) {
        *static_cast<bool *>(wl_pointer_get_user_data(static_cast<wl_pointer *>(pointer))) = true;
    }
    return 0;
}

} // namespace

// A drag takes the pointer away from the program that began it, which a pointer of our own is told.
IgnoredDrag::IgnoredDrag(wxDropSource &drag) : m_drag(drag) {
    GdkDisplay *display = gtk_widget_get_display(drag.m_widget);
    if (GDK_IS_WAYLAND_DISPLAY(display)) {
        m_pointer = wl_seat_get_pointer(
            gdk_wayland_seat_get_wl_seat(gdk_display_get_default_seat(display)));
        wl_proxy_add_dispatcher(reinterpret_cast<wl_proxy *>(m_pointer), noteLeave, nullptr,
                                &m_hasLeft);
        m_due = g_idle_add_full(G_PRIORITY_HIGH, endIfIgnored, this, nullptr);
    }
}

IgnoredDrag::~IgnoredDrag() {
    if (m_due != 0) {
        g_source_remove(m_due);
    }
    if (m_pointer != nullptr) {
        const bool canRelease =
            wl_pointer_get_version(m_pointer) >= WL_POINTER_RELEASE_SINCE_VERSION;
        (canRelease ? wl_pointer_release : wl_pointer_destroy)(m_pointer);
    }
}

// Called as the drag begins to wait for its end.
int IgnoredDrag::endIfIgnored(void *self) {
    auto &ignored = *static_cast<IgnoredDrag *>(self);
    ignored.m_due = 0;
    // The compositor has answered to all requests when this returns.
    gdk_display_sync(gtk_widget_get_display(ignored.m_drag.m_widget));
    if (!ignored.m_hasLeft) {
        gtk_drag_cancel(ignored.m_drag.m_dragContext);
    }
    return G_SOURCE_REMOVE;
}

} // namespace columnimport
