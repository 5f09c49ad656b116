// SPDX-License-Identifier: MIT

#include "dragdrop/tipWhereCut.h"

#include <wx/window.h>

namespace columnimport {

void tipWhereCut(wxWindow &list, const wxString &name, int room) {
    const wxString tip = list.GetTextExtent(name).x > room ? name : wxString();
    if (tip == list.GetToolTipText()) {
        return;
    }
    if (tip.empty()) {
        list.UnsetToolTip();
    } else {
        list.SetToolTip(tip);
    }
}

} // namespace columnimport
