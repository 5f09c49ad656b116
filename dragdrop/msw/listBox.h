// SPDX-License-Identifier: MIT

#pragma once

#include <wx/listbox.h>

namespace columnimport {

// What the platform's list box does otherwise than others.

/// Has `list` hear of the Return key by wxEVT_CHAR_HOOK, as it does here of itself.
inline void hearReturn(wxListBox &) {}

/// Selects the entry `row` and has the arrow keys go on from it.
inline void goToEntry(wxListBox &list, int row) {
    list.SetSelection(row);
}

} // namespace columnimport
