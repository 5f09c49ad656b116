#pragma once

#include <chrono>
#include <functional>
#include <vector>

#include <gtk/gtk.h>

namespace columnimport::bench {

using Clock = std::chrono::steady_clock;

/// When something new has come onto the screen.
struct Appearance {
    Clock::time_point onScreen; ///< the first frame that shows it is drawn
    Clock::time_point atRest;   ///< nothing is left to be done, not even out of sight
};

/// Waits for the frame by which each of `widgets` has been drawn while `isNew` held, and for the
/// rest behind it. Then it calls `done`, once.
///
/// A frame is drawn when the window's frame clock says "after-paint" and the screen has carried out
/// all that was sent to it. Two kinds of drawing do not count: into a window that the window
/// manager has not yet put on the screen, since the screen drops it; and a control's that asks at
/// once to be drawn again, since it stays blank. At rest is the user-interface thread when it takes
/// up work of the lowest priority.
class FrameWatch {
public:
    FrameWatch(std::vector<GtkWidget *> widgets, std::function<bool()> isNew,
               std::function<void(Appearance)> done);
    ~FrameWatch();
    FrameWatch(const FrameWatch &) = delete;
    FrameWatch &operator=(const FrameWatch &) = delete;

private:
    static gboolean noteDraw(GtkWidget *widget, void *cairo, void *self);
    static void endFrame(GdkFrameClock *clock, void *self);
    static gboolean rest(void *self);
    void disconnect();

    std::vector<GtkWidget *> m_widgets;
    std::vector<GtkWidget *> m_waitingFor;
    std::function<bool()> m_isNew;
    std::function<void(Appearance)> m_done;
    GdkFrameClock *m_clock = nullptr;
    Appearance m_appearance;
};

} // namespace columnimport::bench
