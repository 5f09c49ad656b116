// SPDX-License-Identifier: MIT

#pragma once

class wxMouseEvent;
class wxString;
class wxWindow;

namespace columnimport {

/// Whether the left button is down now and was down when `move` was made. A move that is handled
/// late may be older than the press; taken for a drag, it would lose the Control or Shift of a
/// click.
bool movedWithButtonDown(const wxMouseEvent &move);

/// Drags `text` out of `source` until it is dropped or cancelled. Shows `shown` beside the pointer
/// meanwhile, and delays the closing of the window.
///
/// To be called from the handler of the mouse event that begins the drag.
void dragText(wxWindow &source, const wxString &text, const wxString &shown);

} // namespace columnimport
