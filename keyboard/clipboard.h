// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>

#include <wx/string.h>

namespace columnimport {

// Copy and paste: the keyboard's equivalent of a drag.

/// Puts `text` on the clipboard, for this dialog and for other programs.
void copyText(const wxString &text);

using TextAnswer = std::function<void(const std::optional<wxString> &text)>;

/// Asks the clipboard's owner for its text, in one form only. `answer` is called on the
/// user-interface thread: before this returns, or from the event loop, or never if the owner does
/// not answer. It gets no text if the owner has none.
///
/// Each platform has a file of its own with this function.
void requestClipboardText(const TextAnswer &answer);

} // namespace columnimport
