// SPDX-License-Identifier: MIT

#pragma once

#include <wx/event.h>
#include <wx/window.h>

namespace columnimport {

/// The identifiers of the two lists, and the column of the match list that holds the file column's
/// name. The dialog gives them to its hosts as constants of its own.
inline constexpr int fileListId = 2;
inline constexpr int matchListId = 3;
inline constexpr int matchColumn = 0;

/// The control with the identifier `id` in the dialog that `inside` is or belongs to; null if the
/// dialog has none of this class. A host may have windows of its own with the same identifiers, so
/// no other window is searched.
template <typename Control>
Control *findControl(wxWindow &inside, int id) {
    return dynamic_cast<Control *>(wxWindow::FindWindowById(id, wxGetTopLevelParent(&inside)));
}

/// Presses OK in the dialog that `inside` is or belongs to, once the present event is handled.
inline void pressOkSoon(wxWindow &inside) {
    wxCommandEvent ok(wxEVT_BUTTON, wxID_OK);
    wxGetTopLevelParent(&inside)->GetEventHandler()->AddPendingEvent(ok);
}

} // namespace columnimport
