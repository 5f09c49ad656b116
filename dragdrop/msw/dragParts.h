// SPDX-License-Identifier: MIT

#pragma once

#include <wx/dataobj.h>

class wxDropSource;
class wxDropTarget;
class wxWindow;

namespace columnimport {

// The classes of a drag that differ between platforms. On Windows the toolkit's own classes are
// enough: texts are Unicode, the cursor shows the drag, and each drag ends.

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
