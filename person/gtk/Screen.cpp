// SPDX-License-Identifier: MIT

#include "person/Screen.h"

#include "person/gtk/inkOf.h"
#include "person/openDialog.h"
#include "person/wayland/MutterHand.h"
#include "person/x11/XTestHand.h"

#include <exception>
#include <future>
#include <mutex>

#include <gdk/gdkwayland.h>
#include <gtk/gtk.h>
#include <wx/sizer.h>

namespace {

struct Call {
    const std::function<void()> &work;
    std::promise<void> done;
};

gboolean carryOut(void *data) {
    auto &call = *static_cast<Call *>(data);
    try {
        call.work();
        call.done.set_value();
    } catch (...) {
        call.done.set_exception(std::current_exception());
    }
    return G_SOURCE_REMOVE;
}

wxPoint originOf(GdkWindow *window) {
    wxPoint origin;
    gdk_window_get_origin(window, &origin.x, &origin.y);
    return origin;
}

/// The state of this process's drags.
struct DragState {
    bool isRunning = false;
    std::optional<wxPoint> place;
};

DragState dragState;

gboolean onDragBegin(GSignalInvocationHint *, unsigned, const GValue *, void *) {
    dragState.isRunning = true;
    dragState.place.reset();
    return TRUE;
}

gboolean onDragMotion(GSignalInvocationHint *, unsigned, const GValue *values, void *) {
    GdkWindow *target = gtk_widget_get_window(GTK_WIDGET(g_value_get_object(&values[0])));
    dragState.place = originOf(target) - openDialog().ClientToScreen(wxPoint()) +
                      wxPoint(g_value_get_int(&values[2]), g_value_get_int(&values[3]));
    return TRUE;
}

gboolean onDragEnd(GSignalInvocationHint *, unsigned, const GValue *, void *) {
    dragState.isRunning = false;
    return TRUE;
}

void onSignal(const char *signal, GSignalEmissionHook hook) {
    g_signal_add_emission_hook(g_signal_lookup(signal, GTK_TYPE_WIDGET), 0, hook, nullptr, nullptr);
}

void watchDrags() {
    static std::once_flag isWatched;
    std::call_once(isWatched, [] {
        onSignal("drag-begin", onDragBegin);
        onSignal("drag-motion", onDragMotion);
        onSignal("drag-end", onDragEnd);
    });
}

bool isWayland() {
    return GDK_IS_WAYLAND_DISPLAY(gdk_display_get_default());
}

void addTo(void *frame, GtkWidget *part) {
    GtkAllocation place;
    gtk_widget_get_allocation(part, &place);
    static_cast<wxRect *>(frame)->Union(wxRect(place.x, place.y, place.width, place.height));
}

} // namespace

// The environment variable for it would come too late: it is read when the program is loaded.
void abortOnWarnings() {
    g_log_set_always_fatal(
        static_cast<GLogLevelFlags>(G_LOG_FATAL_MASK | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING));
}

std::unique_ptr<Hand> makeHand() {
    if (isWayland()) {
        return std::make_unique<MutterHand>();
    }
    return std::make_unique<XTestHand>();
}

void onUserInterface(const std::function<void()> &work) {
    Call call{work, {}};
    std::future<void> done = call.done.get_future();
    // At a low priority, so that input already delivered is handled first.
    g_idle_add_full(G_PRIORITY_LOW + 50, carryOut, &call, nullptr);
    done.get();
}

void handleEvents() {
    g_main_context_iteration(nullptr, FALSE);
}

// The window manager gives the frame its place and its size in steps, and the controls follow. A
// button that moves under the pointer would not know of the press.
void allowSlowDoubleClicks() {
    g_object_set(gtk_settings_get_default(), "gtk-double-click-time", 5000, nullptr);
}

bool isDialogReady() {
    if (!isDialogOpen() || !openDialog().IsActive()) {
        return false;
    }
    watchDrags();
    const wxDialog &dialog = openDialog();
    const wxRect frame = frameOfDialog();
    GdkWindow *window = gtk_widget_get_window(dialog.GetHandle());
    if (dialog.GetSizer()->GetSize() != dialog.GetVirtualSize()) {
        return false;
    }
    if (isWayland()) {
        // Programs don't learn the place.
        return dialog.GetClientSize().x == frame.width &&
               dialog.GetSize() ==
                   wxSize(gdk_window_get_width(window), gdk_window_get_height(window));
    }
    const int clientWidth = gdk_window_get_width(window);
    constexpr int thickestBorders = 50;
    return frame.GetPosition() == dialog.GetPosition() && frame.width >= 100 &&
           frame.width - clientWidth < thickestBorders && dialog.GetClientSize().x == clientWidth;
}

bool placesWindows() {
    return !isWayland();
}

wxRect frameOfDialog() {
    if (isWayland()) {
        // GTK draws a shadow around the title bar and the content; it is not part of the frame.
        wxRect frame;
        gtk_container_forall(
            GTK_CONTAINER(openDialog().GetHandle()),
            [](GtkWidget *part, void *data) { addTo(data, part); }, &frame);
        return frame;
    }
    GdkRectangle frame;
    gdk_window_get_frame_extents(gtk_widget_get_window(openDialog().GetHandle()), &frame);
    return {frame.x, frame.y, frame.width, frame.height};
}

void pressCloseBox() {
    GdkEvent *event = gdk_event_new(GDK_DELETE);
    event->any.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(openDialog().GetHandle())));
    gtk_main_do_event(event);
    gdk_event_free(event);
}

bool isDragRunning() {
    return dragState.isRunning;
}

// A drop counts once the compositor knows that it is accepted, which takes a while.
std::optional<wxPoint> placeOfDrag() {
    gdk_display_sync(gdk_display_get_default());
    return dragState.place;
}

// A mark is visible by its highlight.
bool isShownAsMarked(int row) {
    const wxColour colour = matchList().GetItemBackgroundColour(row);
    return colour.IsOk() && colour != matchList().GetBackgroundColour();
}

// The name begins after the mark, which is half as wide as a line is high.
bool isShownAsUsed(int entry) {
    return !inkOf(entry, fileList().GetCharHeight() * 3 / 4).IsEmpty();
}
