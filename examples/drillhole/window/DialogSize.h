#pragma once

#include <gtk/gtk.h>

namespace drillhole {

/// While it lives, follows the size of the one other window of the process that is open: the
/// dialog, which the library opens and closes within a single call.
class DialogSize {
public:
    DialogSize(GtkWindow *ownWindow, int width, int height);
    ~DialogSize();
    DialogSize(const DialogSize &) = delete;
    DialogSize &operator=(const DialogSize &) = delete;

    /// The dialog's frame, as the user has left it.
    int width() const { return m_width; }
    int height() const { return m_height; }

private:
    static gboolean onConfigured(GSignalInvocationHint *, guint, const GValue *arguments,
                                 void *self);

    GtkWindow *m_ownWindow;
    int m_width;
    int m_height;
    guint m_signal;
    gulong m_hook;
};

} // namespace drillhole
