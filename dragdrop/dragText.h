// SPDX-License-Identifier: MIT

#pragma once

class wxMouseEvent;
class wxString;
class wxWindow;

namespace columnimport {

/// Whether the left button is down now and was down at the time of `move`. A move that is handled
/// late may be older than the press; if it began a drag, a click with Control or Shift would be
/// lost.
bool movedWithButtonDown(const wxMouseEvent &move);

/// Drags `text` out of `source` until it is dropped or cancelled. Meanwhile shows `shown` beside
/// the pointer and keeps the window from closing. Call it from the handler of the mouse event that
/// begins the drag.
void dragText(wxWindow &source, const wxString &text, const wxString &shown);

} // namespace columnimport
