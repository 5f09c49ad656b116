// SPDX-License-Identifier: MIT

#pragma once

#include <wx/dataobj.h>

class wxDropSource;
class wxDropTarget;
class wxWindow;

namespace columnimport {

// The classes of a drag that differ between platforms. The toolkit's own classes are enough here:
// texts are Unicode, cursors follow the pointer, and each drag ends.

using UnicodeText = wxTextDataObject;

class ForeignText : public wxTextDataObject {
public:
    explicit ForeignText(const wxDropTarget &) {}
};

class RunningDrag {
public:
    RunningDrag(wxDropSource &, const wxWindow &, const wxString &) {}
};

} // namespace columnimport
