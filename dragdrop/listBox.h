// SPDX-License-Identifier: MIT

#pragma once

class wxListBox;

namespace columnimport {

// Workarounds for differences between list boxes. Each platform has a file of its own.

/// Sends `list` the Return key as wxEVT_CHAR_HOOK before the control acts on it.
void forwardReturn(wxListBox &list);

/// Selects the entry `row`; the arrow keys continue from it.
void goToEntry(wxListBox &list, int row);

} // namespace columnimport
