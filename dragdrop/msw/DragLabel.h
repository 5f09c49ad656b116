// SPDX-License-Identifier: MIT

#pragma once

class wxDropSource;
class wxString;
class wxWindow;

namespace columnimport {

/// What goes beside the pointer during one drag: here the toolkit's cursors, and no label.
class DragLabel {
public:
    DragLabel(wxDropSource &, const wxWindow &, const wxString &) {}
};

} // namespace columnimport
