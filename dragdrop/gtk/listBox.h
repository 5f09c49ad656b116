// SPDX-License-Identifier: MIT

#pragma once

class wxListBox;

namespace columnimport {

// What the platform's list box does otherwise than others.

/// Has `list` hear of the Return key by wxEVT_CHAR_HOOK, before the control acts on it.
void hearReturn(wxListBox &list);

/// Selects the entry `row` and has the arrow keys go on from it.
void goToEntry(wxListBox &list, int row);

} // namespace columnimport
