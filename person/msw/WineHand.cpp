// SPDX-License-Identifier: MIT

#include "person/msw/WineHand.h"

#include "person/UserInterface.h"
#include "person/openDialog.h"

#include <cstdio>
#include <map>

#include <wx/defs.h>

namespace {

/// The X11 name of a key.
std::string nameOf(int key) {
    static const std::map<int, const char *> named = {
        {WXK_TAB, "Tab"},       {WXK_RETURN, "Return"},     {WXK_ESCAPE, "Escape"},
        {WXK_DELETE, "Delete"}, {WXK_SHIFT, "Shift_L"},     {WXK_CONTROL, "Control_L"},
        {WXK_ALT, "Alt_L"},     {WXK_WINDOWS_MENU, "Menu"}, {WXK_PAGEUP, "Prior"},
        {WXK_PAGEDOWN, "Next"}, {WXK_HOME, "Home"},         {WXK_END, "End"},
        {WXK_UP, "Up"},         {WXK_DOWN, "Down"}};
    const auto found = named.find(key);
    if (found != named.end()) {
        return found->second;
    }
    char name[8];
    std::snprintf(name, sizeof name, "U%04X", static_cast<unsigned>(key));
    return name;
}

} // namespace

void WineHand::findDialog() {
    const std::string title = read([] { return openDialog().GetTitle().utf8_string(); });
    poll("the dialog has the keys", [&] { return m_hand.hasKeys(title); });
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
