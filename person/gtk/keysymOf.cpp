// SPDX-License-Identifier: MIT

#include "person/gtk/keysymOf.h"

#include <gdk/gdkkeysyms.h>
#include <wx/defs.h>

unsigned keysymOf(int key) {
    switch (key) {
    case WXK_BACK:
        return GDK_KEY_BackSpace;
    case WXK_TAB:
        return GDK_KEY_Tab;
    case WXK_RETURN:
        return GDK_KEY_Return;
    case WXK_ESCAPE:
        return GDK_KEY_Escape;
    case WXK_DELETE:
        return GDK_KEY_Delete;
    case WXK_SHIFT:
        return GDK_KEY_Shift_L;
    case WXK_CONTROL:
        return GDK_KEY_Control_L;
    case WXK_ALT:
        return GDK_KEY_Alt_L;
    case WXK_PAGEUP:
        return GDK_KEY_Page_Up;
    case WXK_PAGEDOWN:
        return GDK_KEY_Page_Down;
    case WXK_HOME:
        return GDK_KEY_Home;
    case WXK_END:
        return GDK_KEY_End;
    case WXK_LEFT:
        return GDK_KEY_Left;
    case WXK_UP:
        return GDK_KEY_Up;
    case WXK_RIGHT:
        return GDK_KEY_Right;
    case WXK_DOWN:
        return GDK_KEY_Down;
    case WXK_WINDOWS_MENU:
        return GDK_KEY_Menu;
    default:
        return static_cast<unsigned>(key);
    }
}
