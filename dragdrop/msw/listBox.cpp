// SPDX-License-Identifier: MIT

#include "dragdrop/listBox.h"

#include <wx/listbox.h>

namespace columnimport {

// On Windows the toolkit sends the event itself.
void forwardReturn(wxListBox &) {}

void goToEntry(wxListBox &list, int row) {
    list.SetSelection(row);
}

} // namespace columnimport
