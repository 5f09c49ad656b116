// SPDX-License-Identifier: MIT

#include "person/x11/XTestHand.h"

#include "person/UserInterface.h"
#include "person/gtk/keysymOf.h"
#include "person/openDialog.h"

#include <X11/XKBlib.h>
#include <X11/extensions/XTest.h>

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

void XTestHand::findDialog() {
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
