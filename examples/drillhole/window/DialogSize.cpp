#include "examples/drillhole/window/DialogSize.h"

namespace drillhole {

DialogSize::DialogSize(GtkWindow *ownWindow, int width, int height)
    : m_ownWindow(ownWindow), m_width(width), m_height(height),
      m_signal(g_signal_lookup("configure-event", GTK_TYPE_WIDGET)),
      m_hook(g_signal_add_emission_hook(m_signal, 0, onConfigured, this, nullptr)) {}

DialogSize::~DialogSize() {
    g_signal_remove_emission_hook(m_signal, m_hook);
}

gboolean DialogSize::onConfigured(GSignalInvocationHint *, guint, const GValue *arguments,
                                  void *self) {
    auto &size = *static_cast<DialogSize *>(self);
    auto *widget = GTK_WIDGET(g_value_get_object(arguments));
    if (GTK_IS_WINDOW(widget) && GTK_WINDOW(widget) != size.m_ownWindow &&
        gtk_window_get_window_type(GTK_WINDOW(widget)) == GTK_WINDOW_TOPLEVEL) {
        GdkRectangle frame;
        gdk_window_get_frame_extents(gtk_widget_get_window(widget), &frame);
        size.m_width = frame.width;
        size.m_height = frame.height;
    }
    return TRUE; // stay
}

} // namespace drillhole
