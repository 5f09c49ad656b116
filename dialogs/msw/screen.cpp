// SPDX-License-Identifier: MIT

#include "dialogs/screen.h"

#include <algorithm>

#include <wx/display.h>
#include <wx/window.h>

namespace columnimport {

// The factor is 1 if the host lets the system enlarge its windows.
Scale::Scale(const wxWindow &window) : m_ratio(window.GetDPIScaleFactor()) {}

wxSize frameRoom(const wxWindow &dialog) {
    const wxPoint place = dialog.GetPosition();
    const int screen = wxDisplay::GetFromPoint(place);
    const wxRect area = wxDisplay(screen != wxNOT_FOUND ? screen : 0).GetClientArea();
    return {area.x + area.width - std::max(place.x, area.x),
            area.y + area.height - std::max(place.y, area.y)};
}

wxSize contentRoom(const wxWindow &dialog) {
    return frameRoom(dialog) - (dialog.GetSize() - dialog.GetClientSize());
}

} // namespace columnimport
