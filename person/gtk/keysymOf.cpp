// SPDX-License-Identifier: MIT

#include "person/gtk/keysymOf.h"

#include <map>

#include <gdk/gdkkeysyms.h>
#include <wx/defs.h>

unsigned keysymOf(int key) {
    static const std::map<int, unsigned> named = {
        {WXK_TAB, GDK_KEY_Tab},        {WXK_RETURN, GDK_KEY_Return},
        {WXK_ESCAPE, GDK_KEY_Escape},  {WXK_DELETE, GDK_KEY_Delete},
        {WXK_SHIFT, GDK_KEY_Shift_L},  {WXK_CONTROL, GDK_KEY_Control_L},
        {WXK_ALT, GDK_KEY_Alt_L},      {WXK_WINDOWS_MENU, GDK_KEY_Menu},
        {WXK_PAGEUP, GDK_KEY_Page_Up}, {WXK_PAGEDOWN, GDK_KEY_Page_Down},
        {WXK_HOME, GDK_KEY_Home},      {WXK_END, GDK_KEY_End},
        {WXK_UP, GDK_KEY_Up},          {WXK_DOWN, GDK_KEY_Down}};
    const auto found = named.find(key);
    return found != named.end() ? found->second : static_cast<unsigned>(key);
}
