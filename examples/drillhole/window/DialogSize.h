// SPDX-License-Identifier: MIT

#pragma once

#include <gtkmm/window.h>

namespace drillhole {

/// While it lives, follows the size of the one other window of the process that is open: the
/// dialog, which the library opens and closes within a single call.
class DialogSize {
public:
    /// @param width, height  of the frame, until the dialog shows another size
    DialogSize(Gtk::Window &ownWindow, int width, int height);
    ~DialogSize();
    DialogSize(const DialogSize &) = delete;
    DialogSize &operator=(const DialogSize &) = delete;

    /// The dialog's frame, as the user has left it.
    int width() const { return m_width; }
    int height() const { return m_height; }

private:
    bool look();

    GtkWindow *m_ownWindow;
    int m_width;
    int m_height;
    sigc::connection m_timer;
};

} // namespace drillhole
