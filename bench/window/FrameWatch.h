// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <functional>
#include <vector>

#include <gtk/gtk.h>

namespace columnimport::bench {

using Clock = std::chrono::steady_clock;

/// Waits for the first frame in which each of `widgets` has been drawn while `isNew` held. Then
/// calls `done` once, after all that GTK does for that frame.
///
/// A frame is drawn when the window's frame clock says "after-paint" and the screen has processed
/// all requests. Two kinds of drawing do not count: into a window that the window manager has not
/// shown yet, since the screen drops it; and by a control that asks at once to be drawn again,
/// since it stays blank.
class FrameWatch {
public:
    FrameWatch(std::vector<GtkWidget *> widgets, std::function<bool()> isNew,
               std::function<void(Clock::time_point)> done);
    ~FrameWatch();
    FrameWatch(const FrameWatch &) = delete;
    FrameWatch &operator=(const FrameWatch &) = delete;

private:
    static gboolean onDraw(GtkWidget *widget, void *cairo, void *self);
    static void endFrame(GdkFrameClock *clock, void *self);
    static gboolean finish(void *self);
    void disconnect();

    std::vector<GtkWidget *> m_widgets;
    std::vector<GtkWidget *> m_waitingFor;
    std::function<bool()> m_isNew;
    std::function<void(Clock::time_point)> m_done;
    GdkFrameClock *m_clock = nullptr;
    Clock::time_point m_onScreen;
};

} // namespace columnimport::bench
