#pragma once

class wxString;
class wxWindow;

namespace columnimport {

/// Drags `text` out of `source` until it is dropped or given up; returns when the drag is over.
///
/// To be called from the handler of the mouse event that begins the drag.
void dragText(wxWindow &source, const wxString &text);

} // namespace columnimport
