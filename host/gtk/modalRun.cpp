// SPDX-License-Identifier: MIT

#include "host/modalRun.h"

#include <algorithm>
#include <exception>

#include <gtk/gtk.h>

namespace columnimport {

namespace {

/// A gtk_main() of our own around the dialog's. A toolkit loop inside another one calls
/// gtk_main_quit() once too often at its end. That call must end this loop, not the host's.
class LoopAround {
public:
    explicit LoopAround(wxDialog &dialog)
        : m_dialog(dialog), m_due(g_idle_add_full(G_PRIORITY_HIGH, enter, this, nullptr)) {}

    // The loop may have ended before it got to the dialog.
    ~LoopAround() {
        if (m_due != 0) {
            g_source_remove(m_due);
        }
    }
    LoopAround(const LoopAround &) = delete;
    LoopAround &operator=(const LoopAround &) = delete;

    int run() {
        gtk_main();
        if (m_exception) {
            std::rethrow_exception(m_exception);
        }
        return m_result;
    }

private:
    static gboolean enter(void *self) {
        static_cast<LoopAround *>(self)->showModal();
        return G_SOURCE_REMOVE;
    }

    // No exception may pass through GLib's frames. Every way out ends the loop, even if the dialog
    // never ran one of its own; ending it twice is harmless.
    void showModal() {
        m_due = 0;
        const unsigned level = gtk_main_level();
        try {
            m_result = m_dialog.ShowModal();
        } catch (...) {
            // If the toolkit let the exception escape its own loop, neither loop can end normally.
            if (gtk_main_level() != level) {
                throw;
            }
            m_exception = std::current_exception();
        }
        gtk_main_quit();
    }

    wxDialog &m_dialog;
    unsigned m_due; // the call of `enter`, or 0
    int m_result = wxID_CANCEL;
    std::exception_ptr m_exception;
};

/// The length that a host asked for, within bounds; the toolkit's default stays.
int clampedLength(int length) {
    // A frame is at least its title bar and borders, whose size is unknown until it is shown. X11
    // counts in 16 bits, and under Wayland a window's pixels are in the program's own memory.
    constexpr int least = 100;
    constexpr int greatest = 8000;
    return length == wxDefaultCoord ? length : std::clamp(length, least, greatest);
}

GtkAllocation placeOf(GtkWidget *widget) {
    GtkAllocation place;
    gtk_widget_get_allocation(widget, &place);
    return place;
}

void include(GtkWidget *part, void *frame) {
    const GtkAllocation place = placeOf(part);
    auto *rectangle = static_cast<GdkRectangle *>(frame);
    gdk_rectangle_union(rectangle, &place, rectangle);
}

/// How much larger the size of the shown `dialog` is than its frame. If GTK draws the frame itself,
/// as under Wayland, the toolkit counts the shadow around it too.
wxSize frameShadow(const wxDialog &dialog) {
    GtkWidget *window = dialog.GetHandle();
    const GtkAllocation whole = placeOf(window);
    GdkRectangle frame = placeOf(gtk_bin_get_child(GTK_BIN(window)));
    gtk_container_forall(GTK_CONTAINER(window), include, &frame); // the title bar
    return {whole.width - frame.width, whole.height - frame.height};
}

} // namespace

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

void HostStandIn::release() {
    if (m_window) {
        g_clear_object(&m_window->m_widget);
    }
}

void resize(wxDialog &dialog, const wxSize &size) {
    dialog.SetSize(clampedLength(size.x), clampedLength(size.y));
}

int showModal(wxDialog &dialog) {
    // When the window is first shown, the toolkit realises it early to ask for its frame extents,
    // and loses the position.
    const wxPoint position = dialog.GetPosition();
    const wxSize size = dialog.GetSize();
    dialog.Bind(wxEVT_SHOW, [&dialog, position, size](wxShowEvent &event) {
        if (event.IsShown()) {
            dialog.SetSize(size + frameShadow(dialog));
            gtk_window_move(GTK_WINDOW(dialog.GetHandle()), position.x, position.y);
        }
        event.Skip();
    });
    return gtk_main_level() == 0 ? dialog.ShowModal() : LoopAround(dialog).run();
}

bool hasWindow(const wxDialog &) {
    return true;
}

} // namespace columnimport
