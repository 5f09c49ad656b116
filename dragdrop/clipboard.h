// SPDX-License-Identifier: MIT

#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>

#include <wx/string.h>
#include <wx/timer.h>

namespace columnimport {

// The way of a drag's text by the keyboard.

/// Puts `text` on the clipboard, for this dialog and for other programs.
void copyText(const wxString &text);

using TextAnswer = std::function<void(const std::optional<wxString> &text)>;

/// Asks the clipboard for its text, and its owner for no more than one form of it. `answer` is
/// called on the user-interface thread: before this returns, or from the event loop, or never if
/// the owner doesn't answer; without a text if it has none.
///
/// Each platform has a file of its own with this function.
void requestClipboardText(const TextAnswer &answer);

/// Text on its way from the clipboard into the dialog. Its owner may be slow or hang: the dialog
/// goes on meanwhile, and what must come behind the text waits for it, for two seconds at most.
class Paste {
public:
    Paste();

    /// Asks for the text and hands it to `take`, unless there is none.
    void start(std::function<void(const wxString &)> take);

    /// Does `work` behind all that has been asked for: at once, or when the text has come. If it
    /// does not come in time the work is dropped, and a bell tells so.
    void inTurn(std::function<void()> work);

    /// Forgets the text that is under way and what waits for it.
    void forget();

private:
    void goOn();

    std::shared_ptr<bool> m_request; // exists while a text is under way
    std::deque<std::function<void()>> m_waiting;
    wxTimer m_limit;
};

} // namespace columnimport
