// SPDX-License-Identifier: MIT

#include "host/X11Owner.h"

#include "host/toolkit.h"

#include <gdk/gdkx.h>
#include <gtk/gtk.h>

namespace columnimport {

namespace {

/// Has X errors do nothing while it lives: a window of another program may vanish at any time.
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

/// Whether a window manager has the window among those of programs.
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

/// The top-level that `window` is in; None if it is a screen's root, or there is none. Without a
/// window manager it is the one that stands on the root.
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

/// The dialog's owner is a widget of GTK, so a widget stands in front of the window. Pointer events
/// end in a window over all of its content, which shows nothing.
struct X11Owner::Native {
    GdkDisplay *display = gdk_display_get_default();
    GtkWidget *widget = nullptr;
    GdkWindow *window = nullptr;
    Window shield = None;
};

const char *X11Owner::hindrance() {
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
    // A realised widget lends its window to the dialogs that are transient for it.
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
    gdk_display_flush(native.display); // a host whose loop is not GLib's would never do it
    gtk_widget_set_realized(native.widget, FALSE);
    gtk_widget_set_window(native.widget, nullptr);
    gtk_widget_destroy(native.widget);
    g_object_unref(native.window);
}

HostWindow X11Owner::window() const {
    return m_native->widget;
}

} // namespace columnimport
