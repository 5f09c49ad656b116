// SPDX-License-Identifier: MIT

#include "person/msw/WineHand.h"

#include "person/UserInterface.h"
#include "person/openDialog.h"

#include <cstdio>

#include <wx/defs.h>

namespace {

/// What X11 calls a key.
std::string nameOf(int key) {
    switch (key) {
    case WXK_BACK:
        return "BackSpace";
    case WXK_TAB:
        return "Tab";
    case WXK_RETURN:
        return "Return";
    case WXK_ESCAPE:
        return "Escape";
    case WXK_DELETE:
        return "Delete";
    case WXK_SHIFT:
        return "Shift_L";
    case WXK_CONTROL:
        return "Control_L";
    case WXK_ALT:
        return "Alt_L";
    case WXK_PAGEUP:
        return "Prior";
    case WXK_PAGEDOWN:
        return "Next";
    case WXK_HOME:
        return "Home";
    case WXK_END:
        return "End";
    case WXK_LEFT:
        return "Left";
    case WXK_UP:
        return "Up";
    case WXK_RIGHT:
        return "Right";
    case WXK_DOWN:
        return "Down";
    case WXK_WINDOWS_MENU:
        return "Menu";
    default:
        char name[8];
        std::snprintf(name, sizeof name, "U%04X", static_cast<unsigned>(key));
        return name;
    }
}

} // namespace

void WineHand::findDialog() {
    const std::string title = read([] { return openDialog().GetTitle().utf8_string(); });
    poll("the dialog has the keys", [&] { return m_hand.isActive(title); });
    m_dialog = read([] { return openDialog().ClientToScreen(wxPoint()); });
}

void WineHand::moveTo(wxPoint point) {
    m_hand.order("mousemove " + std::to_string(m_dialog.x + point.x) + " " +
                 std::to_string(m_dialog.y + point.y));
}

void WineHand::setButton(int button, bool isDown) {
    m_hand.order((isDown ? "mousedown " : "mouseup ") + std::to_string(button));
}

void WineHand::setKey(int key, bool isDown) {
    m_hand.order((isDown ? "keydown " : "keyup ") + nameOf(key));
}
