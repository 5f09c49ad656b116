// SPDX-License-Identifier: MIT

#include "readers/describe.h"

#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/controls.h"
#include "languages/translated.h"

namespace columnimport {

wxString rowText(const ListCtrlSource &list, long row) {
    const wxString text =
        list.GetItemText(row, matchColumn + 1) + ": " + list.GetItemText(row, matchColumn);
    return list.isGuess(row) ? wxString::Format(translated("%s, a guess"), text) : text;
}

} // namespace columnimport
