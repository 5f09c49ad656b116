// SPDX-License-Identifier: MIT

#include "dragdrop/listBox.h"

#include <wx/listbox.h>

namespace columnimport {

// The toolkit sends the event by itself here.
void forwardReturn(wxListBox &) {}

void goToEntry(wxListBox &list, int row) {
    list.SetSelection(row);
}

} // namespace columnimport
