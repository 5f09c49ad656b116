// SPDX-License-Identifier: MIT

#pragma once

#include <wx/window.h>

namespace columnimport {

/// The identifiers by which the two lists are found, and the column of the match list that holds
/// the file column's name. The dialog gives them to its hosts as constants of its own.
inline constexpr int fileListId = 2;
inline constexpr int matchListId = 3;
inline constexpr int matchColumn = 0;

/// The control with the identifier `id` in the dialog that `inside` is or belongs to; null if the
/// dialog has none of this class. Nothing else is looked at: a host may have windows of its own
/// with the same identifiers.
template <typename Control>
Control *findControl(wxWindow &inside, int id) {
    return dynamic_cast<Control *>(wxWindow::FindWindowById(id, wxGetTopLevelParent(&inside)));
}

} // namespace columnimport
