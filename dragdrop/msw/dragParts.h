// SPDX-License-Identifier: MIT

#pragma once

#include <wx/dnd.h>

class wxWindow;

namespace columnimport {

// The parts of a drag that differ between platforms. On Windows the toolkit's own are enough: texts
// are Unicode, the cursor shows the drag, and each drag ends.

using UnicodeText = wxTextDataObject;

class ForeignText : public wxTextDataObject {
public:
    explicit ForeignText(const wxDropTarget &) {}
};

inline void runDrag(wxDropSource &drag, const wxWindow &, const wxString &) {
    drag.DoDragDrop(wxDrag_AllowMove);
}

} // namespace columnimport
