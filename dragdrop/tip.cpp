// SPDX-License-Identifier: MIT

#include "dragdrop/tip.h"

#include <wx/window.h>

namespace columnimport {

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
