// SPDX-License-Identifier: MIT

#pragma once

class wxMouseEvent;
class wxString;
class wxWindow;

namespace columnimport {

/// Whether the left button is down now and was so when `move` was made. A move that is handled late
/// can be older than the press: taken for a drag, it would cost a click its Control or Shift.
bool movedWithButtonDown(const wxMouseEvent &move);

/// Drags `text` out of `source` until it is dropped or given up; returns when the drag is over.
/// Meanwhile `shown` stands beside the pointer. If the window is to close, it closes afterwards.
///
/// To be called from the handler of the mouse event that begins the drag.
void dragText(wxWindow &source, const wxString &text, const wxString &shown);

} // namespace columnimport
