// SPDX-License-Identifier: MIT

#include "host/X11Owner.h"

#include "host/toolkit.h"

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

namespace columnimport {

namespace {

/// Ignores X errors while it lives, since another program's window may vanish at any time.
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

/// Whether a window manager manages `window`, which then has the property `state`.
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

/// The top-level that contains `window`: a managed window, or without a window manager the child of
/// the root. None for the root of a screen or an unknown window.
Window topLevelOf(GdkDisplay *gdkDisplay, Window window) {
    Display *display = gdk_x11_display_get_xdisplay(gdkDisplay);
    const Atom state = gdk_x11_get_xatom_by_name_for_display(gdkDisplay, "WM_STATE");
    Window parent = parentOf(display, window);
    if (parent == None) {
        return None;
    }
    while (!isManaged(display, window, state)) {
        const Window beyond = parentOf(display, parent);
        if (beyond == None) {
            return window;
        }
        window = parent;
        parent = beyond;
    }
    return window;
}

} // namespace

const char *whyNoX11Owner() {
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

X11Owner x11Owner(std::uint32_t window) {
    GdkDisplay *gdkDisplay = gdk_display_get_default();
    Display *display = gdk_x11_display_get_xdisplay(gdkDisplay);
    const ErrorTrap trap(gdkDisplay);
    const Window topLevel = topLevelOf(gdkDisplay, window);
    GdkWindow *foreign =
        topLevel == None ? nullptr : gdk_x11_window_foreign_new_for_display(gdkDisplay, topLevel);
    if (foreign == nullptr) {
        return nullptr;
    }
    // The owner must be a GTK widget, so a widget stands for the window. Dialogs become transient
    // for the window of a realised widget.
    GtkWidget *widget = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_widget_set_window(widget, foreign);
    gtk_widget_set_realized(widget, TRUE);

    // An invisible window over all of the content takes the pointer events.
    constexpr unsigned largest = 32767;
    XSetWindowAttributes attributes{};
    attributes.event_mask = ButtonPressMask | ButtonReleaseMask | PointerMotionMask;
    const Window shield = XCreateWindow(display, topLevel, 0, 0, largest, largest, 0, 0, InputOnly,
                                        nullptr, CWEventMask, &attributes);
    XMapRaised(display, shield);

    return {widget, [=](GtkWidget *owner) {
                const ErrorTrap endTrap(gdkDisplay);
                XDestroyWindow(display, shield);
                gdk_display_flush(gdkDisplay); // a host without a GLib loop never would
                gtk_widget_set_realized(owner, FALSE);
                gtk_widget_set_window(owner, nullptr);
                gtk_widget_destroy(owner);
                g_object_unref(foreign);
            }};
}

} // namespace columnimport
