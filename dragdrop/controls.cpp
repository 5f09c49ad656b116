// SPDX-License-Identifier: MIT

#include "dragdrop/controls.h"

#include <wx/event.h>

namespace columnimport {

void pressOkSoon(wxWindow &inside) {
    wxCommandEvent ok(wxEVT_BUTTON, wxID_OK);
    wxGetTopLevelParent(&inside)->GetEventHandler()->AddPendingEvent(ok);
}

void setTip(wxWindow &list, const wxString &tip) {
    if (tip == list.GetToolTipText()) {
        return;
    }
    if (tip.empty()) {
        list.UnsetToolTip();
    } else {
        list.SetToolTip(tip);
    }
}

void tipWhereCut(wxWindow &list, const wxString &name, int room) {
    setTip(list, list.GetTextExtent(name).x > room ? name : wxString());
}

} // namespace columnimport
