// SPDX-License-Identifier: MIT

#pragma once

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
void pressOkSoon(wxWindow &inside);

/// Keeps the middle and the right button from `list`, which would select with them.
void ignoreOtherButtons(wxWindow &list);

/// Sets the tooltip of `list`; an empty one removes it.
void setTip(wxWindow &list, const wxString &tip);

/// Sets `name` as the tooltip if it is wider than `room` pixels, which the list has for it; else
/// removes the tooltip.
void tipWhereCut(wxWindow &list, const wxString &name, int room);

} // namespace columnimport
