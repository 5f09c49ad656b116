// SPDX-License-Identifier: MIT

#include "host/X11Owner.h"

#include "host/toolkit.h"

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

namespace columnimport {

namespace {

/// Ignores X errors while it lives: another program's window may vanish at any time.
class ErrorTrap {
public:
    explicit ErrorTrap(GdkDisplay *display) : m_display(display) {
        gdk_x11_display_error_trap_push(display);
    }
    ~ErrorTrap() { gdk_x11_display_error_trap_pop_ignored(m_display); }
    ErrorTrap(const ErrorTrap &) = delete;
    ErrorTrap &operator=(const ErrorTrap &) = delete;

private:
    GdkDisplay *m_display;
};

Window parentOf(Display *display, Window window) {
    Window root = None;
    Window parent = None;
    Window *children = nullptr;
    unsigned count = 0;
    if (XQueryTree(display, window, &root, &parent, &children, &count) == 0) {
        return None;
    }
    if (children != nullptr) {
        XFree(children);
    }
    return parent;
}

/// Whether a window manager treats the window as a program's.
bool isManaged(Display *display, Window window, Atom state) {
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char *value = nullptr;
    XGetWindowProperty(display, window, state, 0, 0, False, AnyPropertyType, &type, &format, &count,
                       &left, &value);
    if (value != nullptr) {
        XFree(value);
    }
    return type != None;
}

/// The top-level that contains `window`; None for a screen's root or an unknown window. Without a
/// window manager, the child of the root.
Window topLevelOf(GdkDisplay *gdkDisplay, Window window) {
    Display *display = gdk_x11_display_get_xdisplay(gdkDisplay);
    const Atom state = gdk_x11_get_xatom_by_name_for_display(gdkDisplay, "WM_STATE");
    Window parent = parentOf(display, window);
    Window topLevel = parent == None ? None : window;
    while (topLevel != None && !isManaged(display, window, state)) {
        topLevel = window;
        window = parent;
        parent = parentOf(display, window);
        if (parent == None) {
            return topLevel;
        }
    }
    return topLevel == None ? None : window;
}

} // namespace

/// The dialog's owner has to be a GTK widget, so a widget stands for the window. An invisible
/// window over all of its content takes the pointer events.
struct X11Owner::Native {
    GdkDisplay *display = gdk_display_get_default();
    GtkWidget *widget = nullptr;
    GdkWindow *window = nullptr;
    Window shield = None;
};

const char *X11Owner::whyUnavailable() {
    if (gdk_display_get_default() == nullptr) {
        gdk_set_allowed_backends("x11");
        gdk_display_open(nullptr);
        gdk_set_allowed_backends("*");
    }
    GdkDisplay *display = gdk_display_get_default();
    if (display == nullptr) {
        return "There is no X11 display.";
    }
    if (!GDK_IS_X11_DISPLAY(display)) {
        return "This process has its windows on Wayland, where none belongs to a window of X11.";
    }
    setUpToolkit();
    return nullptr;
}

X11Owner::X11Owner(std::uint32_t window) : m_native(std::make_unique<Native>()) {
    Native &native = *m_native;
    const ErrorTrap trap(native.display);
    const Window topLevel = topLevelOf(native.display, window);
    if (topLevel != None) {
        native.window = gdk_x11_window_foreign_new_for_display(native.display, topLevel);
    }
    if (native.window == nullptr) {
        return;
    }
    // Dialogs become transient for the window of a realised widget.
    native.widget = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_widget_set_window(native.widget, native.window);
    gtk_widget_set_realized(native.widget, TRUE);

    constexpr unsigned largest = 32767;
    XSetWindowAttributes attributes{};
    attributes.event_mask = ButtonPressMask | ButtonReleaseMask | PointerMotionMask;
    Display *display = gdk_x11_display_get_xdisplay(native.display);
    native.shield = XCreateWindow(display, topLevel, 0, 0, largest, largest, 0, 0, InputOnly,
                                  nullptr, CWEventMask, &attributes);
    XMapRaised(display, native.shield);
}

X11Owner::~X11Owner() {
    Native &native = *m_native;
    if (native.widget == nullptr) {
        return;
    }
    const ErrorTrap trap(native.display);
    XDestroyWindow(gdk_x11_display_get_xdisplay(native.display), native.shield);
    gdk_display_flush(native.display); // a host without a GLib loop never would
    gtk_widget_set_realized(native.widget, FALSE);
    gtk_widget_set_window(native.widget, nullptr);
    gtk_widget_destroy(native.widget);
    g_object_unref(native.window);
}

HostWindow X11Owner::window() const {
    return m_native->widget;
}

} // namespace columnimport
