// SPDX-License-Identifier: MIT

#include "bench/window/FrameWatch.h"

#include <algorithm>
#include <utility>

#include <wx/app.h>

#include <gdk/gdkx.h>

namespace columnimport::bench {

namespace {

bool canBeSeen(GtkWidget *widget) {
    GdkWindow *window = gtk_widget_get_window(gtk_widget_get_toplevel(widget));
    XWindowAttributes attributes;
    return XGetWindowAttributes(gdk_x11_display_get_xdisplay(gdk_window_get_display(window)),
                                gdk_x11_window_get_xid(window), &attributes) != 0 &&
           attributes.map_state == IsViewable;
}

} // namespace

FrameWatch::FrameWatch(std::vector<GtkWidget *> widgets, std::function<bool()> isNew,
                       std::function<void(Clock::time_point)> done)
    : m_widgets(std::move(widgets)), m_waitingFor(m_widgets), m_isNew(std::move(isNew)),
      m_done(std::move(done)) {
    for (GtkWidget *widget : m_widgets) {
        g_signal_connect_after(widget, "draw", G_CALLBACK(onDraw), this);
    }
}

FrameWatch::~FrameWatch() {
    disconnect();
}

void FrameWatch::disconnect() {
    for (GtkWidget *widget : m_widgets) {
        g_signal_handlers_disconnect_by_data(widget, this);
    }
    m_widgets.clear();
    if (m_clock != nullptr) {
        g_signal_handlers_disconnect_by_data(m_clock, this);
        m_clock = nullptr;
    }
}

gboolean FrameWatch::onDraw(GtkWidget *widget, void *, void *self) {
    auto &watch = *static_cast<FrameWatch *>(self);
    // A control that could not draw its content yet has asked to be drawn again.
    if (!watch.m_isNew() || !canBeSeen(widget) || wxTheApp->HasPendingEvents()) {
        return FALSE;
    }
    auto &waitingFor = watch.m_waitingFor;
    waitingFor.erase(std::remove(waitingFor.begin(), waitingFor.end(), widget), waitingFor.end());
    if (watch.m_clock == nullptr) {
        watch.m_clock = gtk_widget_get_frame_clock(widget);
        g_signal_connect(watch.m_clock, "after-paint", G_CALLBACK(endFrame), self);
    }
    return FALSE;
}

void FrameWatch::endFrame(GdkFrameClock *, void *self) {
    auto &watch = *static_cast<FrameWatch *>(self);
    if (!watch.m_waitingFor.empty()) {
        return;
    }
    gdk_display_sync(gdk_display_get_default());
    watch.m_onScreen = Clock::now();
    watch.disconnect();
    g_idle_add_full(GDK_PRIORITY_REDRAW + 1, finish, self, nullptr);
}

gboolean FrameWatch::finish(void *self) {
    auto &watch = *static_cast<FrameWatch *>(self);
    watch.m_done(watch.m_onScreen);
    return G_SOURCE_REMOVE;
}

} // namespace columnimport::bench
