// SPDX-License-Identifier: MIT

// What is relied upon of the toolkit's drop source, whose members are open to all but told nowhere:
// `m_widget`, which the drag begins in, is there from its construction on. When a drag begins,
// `m_dragContext` is set to GTK's own drag, a window for an icon is made, kept in `m_iconWindow`
// and never destroyed, and a loop runs until `m_waiting` is false. So an idle call of a high
// priority, made before the drag, comes as the first thing in that loop, with all of these in
// place; or it comes later, without a drag, if the toolkit began none.

#include "RunningDrag.h"

#include "dragLabel.h"

#include <string_view>
#include <utility>

#include <gdk/gdkwayland.h>
#include <gtk/gtk.h>
#include <wayland-client.h>
#include <wx/dnd.h>
#include <wx/window.h>

namespace columnimport {

/// A pointer of our own beside the toolkit's, which tells whether a drag has begun: a drag takes
/// the pointer away from the program. To be made only if the screen has a pointer: a program that
/// asks for one where there is none is thrown out.
class WaylandPointer {
public:
    explicit WaylandPointer(GdkDisplay *display)
        : m_pointer(wl_seat_get_pointer(
              gdk_wayland_seat_get_wl_seat(gdk_display_get_default_seat(display)))) {
        wl_proxy_add_dispatcher(reinterpret_cast<wl_proxy *>(m_pointer), note, nullptr, &m_hasLeft);
    }

    ~WaylandPointer() {
        const bool canRelease =
            wl_pointer_get_version(m_pointer) >= WL_POINTER_RELEASE_SINCE_VERSION;
        (canRelease ? wl_pointer_release : wl_pointer_destroy)(m_pointer);
    }

    WaylandPointer(const WaylandPointer &) = delete;
    WaylandPointer &operator=(const WaylandPointer &) = delete;

    bool hasLeft() const { return m_hasLeft; }

private:
    static int note(const void *, void *pointer, std::uint32_t, const wl_message *event,
                    wl_argument *) {
        if (event->name == std::string_view("leave")) {
            *static_cast<bool *>(wl_pointer_get_user_data(static_cast<wl_pointer *>(pointer))) =
                true;
        }
        return 0;
    }

    wl_pointer *m_pointer;
    bool m_hasLeft = false;
};

namespace {

// A handler that says the failure is dealt with: otherwise the label would fly back to where the
// drag began, and take the presses on its way.
gboolean letItVanish(GtkWidget *, GdkDragContext *, GtkDragResult, void *) {
    return TRUE;
}

// A person may drag with a finger.
bool hasPointer(GdkDisplay *display) {
    return (gdk_seat_get_capabilities(gdk_display_get_default_seat(display)) &
            GDK_SEAT_CAPABILITY_POINTER) != 0;
}

} // namespace

// Two lines of text are higher than a row. Not every Wayland compositor heeds a place beside the
// pointer, but there what is not drawn of a label can be seen through.
RunningDrag::RunningDrag(wxDropSource &drag, const wxWindow &source, const wxString &shown)
    : m_drag(drag), m_label(makeDragLabel(shown)), m_right(source.GetCharWidth()),
      m_below(2 * source.GetCharHeight()),
      m_due(g_idle_add_full(G_PRIORITY_HIGH, begin, this, nullptr)),
      m_failing(g_signal_connect(drag.m_widget, "drag-failed", G_CALLBACK(letItVanish), nullptr)) {
    GdkDisplay *display = gtk_widget_get_display(drag.m_widget);
    if (GDK_IS_WAYLAND_DISPLAY(display)) {
        if (hasPointer(display)) {
            m_pointer = std::make_unique<WaylandPointer>(display);
        }
        gtk_widget_set_margin_start(m_label, std::exchange(m_right, 0));
        gtk_widget_set_margin_top(m_label, std::exchange(m_below, 0));
    }
}

RunningDrag::~RunningDrag() {
    if (m_due != 0) {
        g_source_remove(m_due);
    }
    if (m_context != nullptr) {
        g_signal_handlers_disconnect_by_data(m_context, this);
        g_object_unref(m_context);
    }
    g_signal_handler_disconnect(m_drag.m_widget, m_failing);
    gtk_widget_destroy(m_label);
    g_object_unref(m_label);
    if (m_drag.m_iconWindow != nullptr) {
        gtk_widget_destroy(m_drag.m_iconWindow);
        m_drag.m_iconWindow = nullptr;
    }
}

int RunningDrag::begin(void *self) {
    auto &drag = *static_cast<RunningDrag *>(self);
    drag.m_due = 0;
    drag.endIfIgnored();
    if (drag.m_drag.m_waiting) {
        drag.m_context = GDK_DRAG_CONTEXT(g_object_ref(drag.m_drag.m_dragContext));
        g_signal_connect(drag.m_context, "drop-performed", G_CALLBACK(limitDrop), self);
        // The toolkit's icon can't be given a place beside the pointer, and shows nothing under
        // Wayland.
        gtk_drag_set_icon_widget(drag.m_context, drag.m_label, -drag.m_right, -drag.m_below);
    }
    return G_SOURCE_REMOVE;
}

// A Wayland compositor starts no drag if the button is up by the time it is asked to, and tells
// nobody: the toolkit would wait for its end for ever.
void RunningDrag::endIfIgnored() {
    if (m_pointer == nullptr) {
        return;
    }
    // The compositor has answered to all requests when this returns.
    gdk_display_sync(gtk_widget_get_display(m_drag.m_widget));
    if (!m_pointer->hasLeft()) {
        gtk_drag_cancel(m_drag.m_dragContext);
    }
}

// The program that got the drop may hang. GTK would wait five minutes for it, and the toolkit keeps
// all events from the dialog meanwhile.
void RunningDrag::limitDrop(GdkDragContext *, int, void *self) {
    constexpr unsigned milliseconds = 2000;
    static_cast<RunningDrag *>(self)->m_due = g_timeout_add(milliseconds, endUnfinished, self);
}

int RunningDrag::endUnfinished(void *self) {
    auto &drag = *static_cast<RunningDrag *>(self);
    drag.m_due = 0;
    gtk_drag_cancel(drag.m_context);
    return G_SOURCE_REMOVE;
}

} // namespace columnimport
