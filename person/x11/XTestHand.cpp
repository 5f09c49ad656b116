// SPDX-License-Identifier: MIT

#include "person/x11/XTestHand.h"

#include "person/Screen.h"
#include "person/UserInterface.h"
#include "person/gtk/keysymOf.h"
#include "person/openDialog.h"

#include <X11/XKBlib.h>
#include <X11/extensions/XTest.h>
#include <gdk/gdk.h>

XTestHand::XTestHand() : m_display(XOpenDisplay(nullptr)) {
    if (m_display == nullptr) {
        throw GivenUp("no X11 display");
    }
}

XTestHand::~XTestHand() {
    XCloseDisplay(m_display);
}

void XTestHand::send() {
    XSync(m_display, False);
}

// A window manager first moves a dialog that is higher than the screen to the top, and then to
// where the program wants it. It answers a question about any window when it has done all of that.
void XTestHand::waitForWindowManager() {
    onUserInterface([] { gdk_display_sync(gdk_display_get_default()); });
    const Window root = DefaultRootWindow(m_display);
    const Window window = XCreateSimpleWindow(m_display, root, 0, 0, 1, 1, 0, 0, 0);
    XSelectInput(m_display, window, PropertyChangeMask);
    XEvent question{};
    question.xclient.type = ClientMessage;
    question.xclient.window = window;
    question.xclient.message_type = XInternAtom(m_display, "_NET_REQUEST_FRAME_EXTENTS", False);
    question.xclient.format = 32;
    XSendEvent(m_display, root, False, SubstructureNotifyMask | SubstructureRedirectMask,
               &question);
    poll("the window manager answers", [&] {
        XEvent answer;
        return XCheckWindowEvent(m_display, window, PropertyChangeMask, &answer) == True;
    });
    XDestroyWindow(m_display, window);
}

void XTestHand::findDialog() {
    waitForWindowManager();
    m_dialog = read([] { return openDialog().ClientToScreen(wxPoint()); });
}

void XTestHand::moveTo(wxPoint point) {
    XTestFakeMotionEvent(m_display, -1, m_dialog.x + point.x, m_dialog.y + point.y, 0);
    send();
}

void XTestHand::setButton(int button, bool isDown) {
    XTestFakeButtonEvent(m_display, static_cast<unsigned>(button), isDown ? True : False, 0);
    send();
}

void XTestHand::setKey(int key, bool isDown) {
    const KeySym symbol = keysymOf(key);
    const KeyCode code = XKeysymToKeycode(m_display, symbol);
    const bool isShifted = XkbKeycodeToKeysym(m_display, code, 0, 0) != symbol;
    if (isShifted && isDown) {
        setKey(WXK_SHIFT, true);
    }
    XTestFakeKeyEvent(m_display, code, isDown ? True : False, 0);
    send();
    if (isShifted && !isDown) {
        setKey(WXK_SHIFT, false);
    }
}
