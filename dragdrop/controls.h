// SPDX-License-Identifier: MIT

#pragma once

#include <wx/event.h>
#include <wx/window.h>

namespace columnimport {

/// The identifiers of the two lists, and the column of the match list that holds the name of the
/// file column. `wxImportCSVDialog` has public constants with the same values.
inline constexpr int fileListId = 2;
inline constexpr int matchListId = 3;
inline constexpr int matchColumn = 0;

/// The control `id` of the dialog that `inside` is or belongs to; null if the dialog has none of
/// this class. The host's windows are not searched: they may use the same identifiers.
template <typename Control>
Control *findControl(wxWindow &inside, int id) {
    return dynamic_cast<Control *>(wxWindow::FindWindowById(id, wxGetTopLevelParent(&inside)));
}

/// Presses OK in the dialog that `inside` is or belongs to, after the current event.
inline void pressOkSoon(wxWindow &inside) {
    wxGetTopLevelParent(&inside)->GetEventHandler()->AddPendingEvent(
        wxCommandEvent(wxEVT_BUTTON, wxID_OK));
}

} // namespace columnimport
