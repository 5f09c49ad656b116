// SPDX-License-Identifier: MIT

// This relies on undocumented public members of the toolkit's drop source. `m_widget`, where the
// drag begins, exists from the start. To begin a drag, the toolkit sets `m_dragContext` to GTK's
// own drag, creates a window for an icon, `m_iconWindow`, which it never destroys, and runs a loop
// until `m_waiting` is false. So a high-priority idle call added before the drag runs first in that
// loop. If the toolkit begins no drag, the call runs later, without one.

#include "dragParts.h"

#include <memory>
#include <string_view>
#include <utility>

#include <gdk/gdkwayland.h>
#include <gtk/gtk.h>
#include <wayland-client.h>
#include <wx/dnd.h>
#include <wx/window.h>

namespace columnimport {

namespace {

/// A pointer of our own beside the toolkit's. It leaves the program when a drag begins. Create it
/// only if the seat has a pointer: a compositor disconnects a program that asks for a missing one.
class WaylandPointer {
public:
    explicit WaylandPointer(GdkSeat *seat)
        : m_pointer(wl_seat_get_pointer(gdk_wayland_seat_get_wl_seat(seat))) {
        wl_proxy_add_dispatcher(reinterpret_cast<wl_proxy *>(m_pointer), onEvent, nullptr,
                                &m_hasLeft);
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
    static int onEvent(const void *, void *pointer, std::uint32_t, const wl_message *event,
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

/// Makes the label of a drag. The caller owns a reference.
GtkWidget *makeLabel(const wxString &text) {
    GtkWidget *label = gtk_label_new(text.utf8_str());
    gtk_label_set_single_line_mode(GTK_LABEL(label), TRUE);
    gtk_label_set_ellipsize(GTK_LABEL(label), PANGO_ELLIPSIZE_END);
    gtk_label_set_max_width_chars(GTK_LABEL(label), 40);
    GtkCssProvider *provider = gtk_css_provider_new();
    gtk_css_provider_load_from_data(provider, "label { padding: 2px 6px; border: 1px solid; }", -1,
                                    nullptr);
    GtkStyleContext *style = gtk_widget_get_style_context(label);
    gtk_style_context_add_class(style, GTK_STYLE_CLASS_VIEW); // the colours of a list
    gtk_style_context_add_provider(style, GTK_STYLE_PROVIDER(provider),
                                   GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(provider);
    gtk_widget_show(label);
    // Without a size request, the window would shrink a label that may be cut to its ellipsis.
    int width = 0;
    gtk_widget_get_preferred_width(label, nullptr, &width);
    gtk_widget_set_size_request(label, width, -1);
    return GTK_WIDGET(g_object_ref_sink(label));
}

// Reports the failure as handled. Otherwise GTK animates the label back to where the drag began,
// and the label takes button presses on its way.
gboolean reportHandled(GtkWidget *, GdkDragContext *, GtkDragResult, void *) {
    return TRUE;
}

/// Adds a label beside the pointer to the toolkit's drag, and ends the drag if the compositor
/// ignores it or the receiving program hangs. The label leaves the row under the pointer visible,
/// whose highlight shows where the drop will go.
class RunningDrag {
public:
    /// Create it before `drag` begins, and keep it until the drag ends.
    RunningDrag(wxDropSource &drag, const wxWindow &source, const wxString &shown);
    ~RunningDrag();
    RunningDrag(const RunningDrag &) = delete;
    RunningDrag &operator=(const RunningDrag &) = delete;

private:
    static gboolean begin(void *self);
    void endIfIgnored();
    static void limitDrop(GdkDragContext *, int, void *self);
    static gboolean endUnfinished(void *self);

    wxDropSource &m_drag;
    GtkWidget *m_label;
    int m_right; // of the label, from the pointer, in pixels
    int m_below;
    std::unique_ptr<WaylandPointer> m_pointer; // null without Wayland or a pointer
    GdkDragContext *m_context = nullptr;       // null until the drag runs
    unsigned m_due;                            // the call of `begin` or `endUnfinished`, or 0
    unsigned long m_failing;
};

// Two lines of text are taller than a row. Some Wayland compositors ignore an offset from the
// pointer, so there the label has a transparent margin instead.
RunningDrag::RunningDrag(wxDropSource &drag, const wxWindow &source, const wxString &shown)
    : m_drag(drag), m_label(makeLabel(shown)), m_right(source.GetCharWidth()),
      m_below(2 * source.GetCharHeight()),
      m_due(g_idle_add_full(G_PRIORITY_HIGH, begin, this, nullptr)),
      m_failing(
          g_signal_connect(drag.m_widget, "drag-failed", G_CALLBACK(reportHandled), nullptr)) {
    GdkDisplay *display = gtk_widget_get_display(drag.m_widget);
    if (GDK_IS_WAYLAND_DISPLAY(display)) {
        GdkSeat *seat = gdk_display_get_default_seat(display);
        // A person may drag with a finger.
        if ((gdk_seat_get_capabilities(seat) & GDK_SEAT_CAPABILITY_POINTER) != 0) {
            m_pointer = std::make_unique<WaylandPointer>(seat);
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

gboolean RunningDrag::begin(void *self) {
    auto &drag = *static_cast<RunningDrag *>(self);
    drag.m_due = 0;
    drag.endIfIgnored();
    if (drag.m_drag.m_waiting) {
        drag.m_context = GDK_DRAG_CONTEXT(g_object_ref(drag.m_drag.m_dragContext));
        g_signal_connect(drag.m_context, "drop-performed", G_CALLBACK(limitDrop), self);
        // The toolkit's icon has no offset from the pointer, and is empty under Wayland.
        gtk_drag_set_icon_widget(drag.m_context, drag.m_label, -drag.m_right, -drag.m_below);
    }
    return G_SOURCE_REMOVE;
}

// A Wayland compositor silently ignores a drag if the button is up by then, and the toolkit would
// wait for it for ever.
void RunningDrag::endIfIgnored() {
    if (m_pointer == nullptr) {
        return;
    }
    // Returns once the compositor has answered all requests.
    gdk_display_sync(gtk_widget_get_display(m_drag.m_widget));
    if (!m_pointer->hasLeft()) {
        gtk_drag_cancel(m_drag.m_dragContext);
    }
}

// The receiving program may hang. GTK would wait five minutes for it, and meanwhile the dialog gets
// no events.
void RunningDrag::limitDrop(GdkDragContext *, int, void *self) {
    constexpr unsigned milliseconds = 2000;
    static_cast<RunningDrag *>(self)->m_due = g_timeout_add(milliseconds, endUnfinished, self);
}

gboolean RunningDrag::endUnfinished(void *self) {
    auto &drag = *static_cast<RunningDrag *>(self);
    drag.m_due = 0;
    gtk_drag_cancel(drag.m_context);
    return G_SOURCE_REMOVE;
}

} // namespace

void runDrag(wxDropSource &drag, const wxWindow &source, const wxString &shown) {
    const RunningDrag running(drag, source, shown);
    drag.DoDragDrop(wxDrag_AllowMove);
}

} // namespace columnimport
