// SPDX-License-Identifier: MIT

#include "dialogs/screenRoom.h"

#include <wx/display.h>
#include <wx/window.h>

namespace columnimport {

wxSize frameRoom() {
    const int screen = wxDisplay::GetFromPoint(framePlace);
    const wxRect area = wxDisplay(screen != wxNOT_FOUND ? screen : 0).GetClientArea();
    return {area.x + area.width - framePlace.x, area.y + area.height - framePlace.y};
}

wxSize contentRoom(const wxWindow &dialog) {
    return frameRoom() - (dialog.GetSize() - dialog.GetClientSize());
}

} // namespace columnimport
