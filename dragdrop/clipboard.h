// SPDX-License-Identifier: MIT

#pragma once

class wxString;

namespace columnimport {

// The way of a drag's text by the keyboard.

/// Puts `text` on the clipboard, for this dialog and for other programs.
void copyText(const wxString &text);

/// Takes the clipboard's text into `text`; false if it has none.
bool pasteText(wxString &text);

} // namespace columnimport
