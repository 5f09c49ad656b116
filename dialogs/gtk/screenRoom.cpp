// SPDX-License-Identifier: MIT

#include "dialogs/screenRoom.h"

#include "dialogs/Scale.h"

#include <gdk/gdkwayland.h>
#include <wx/display.h>

namespace columnimport {

wxSize frameRoom() {
    const int screen = wxDisplay::GetFromPoint(framePlace);
    const wxRect area =
        wxDisplay(static_cast<unsigned>(screen != wxNOT_FOUND ? screen : 0)).GetClientArea();
    if (GDK_IS_WAYLAND_DISPLAY(gdk_display_get_default())) {
        return area.GetSize(); // the compositor places the frame
    }
    return {area.x + area.width - framePlace.x, area.y + area.height - framePlace.y};
}

// How thick a frame is, nobody says before it is shown: title bars are 20 to 40 pixels high.
wxSize contentRoom(const wxWindow &dialog) {
    return frameRoom() - Scale(dialog)(wxSize(10, 40));
}

} // namespace columnimport
