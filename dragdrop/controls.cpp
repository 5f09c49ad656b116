// SPDX-License-Identifier: MIT

#include "dragdrop/controls.h"

#include <wx/event.h>

namespace columnimport {

void pressOkSoon(wxWindow &inside) {
    wxCommandEvent ok(wxEVT_BUTTON, wxID_OK);
    wxGetTopLevelParent(&inside)->GetEventHandler()->AddPendingEvent(ok);
}

void ignoreOtherButtons(wxWindow &list) {
    for (const auto &press :
         {wxEVT_MIDDLE_DOWN, wxEVT_MIDDLE_DCLICK, wxEVT_RIGHT_DOWN, wxEVT_RIGHT_DCLICK}) {
        list.Bind(press, [](wxMouseEvent &) {});
    }
}

void setTip(wxWindow &list, const wxString &tip) {
    if (tip != list.GetToolTipText()) {
        list.SetToolTip(tip);
    }
}

void tipWhereCut(wxWindow &list, const wxString &name, int room) {
    setTip(list, list.GetTextExtent(name).x > room ? name : wxString());
}

} // namespace columnimport
