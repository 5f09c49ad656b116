// SPDX-License-Identifier: MIT

#pragma once

#include "dragdrop/ChangeQueue.h"
#include "names/ShownNames.h"

#include <functional>
#include <optional>

#include <wx/string.h>
#include <wx/timer.h>

namespace columnimport {

// Copy and paste: the keyboard equivalent of a drag.

/// Copies the name that reads `shown` to the clipboard, for this dialog and for other programs.
void copyName(ShownNames &names, const wxString &shown);

/// A paste into the dialog. The clipboard's owner may be slow or hang: the dialog stays responsive,
/// and the queue of changes is held until the text arrives. After two seconds, drops the paste and
/// the waiting changes, and rings the bell.
class Paste {
public:
    using Take = std::function<void(const wxString &text)>;

    /// `queue` must outlive this object.
    explicit Paste(ChangeQueue &queue);

    /// Requests the text once it is this change's turn, and passes it to `take` if there is one.
    void start(const Take &take);

private:
    void request(const Take &take);

    ChangeQueue &m_queue;
    ChangeQueue::Hold m_hold;
    wxTimer m_limit;
};

using TextAnswer = std::function<void(const std::optional<wxString> &text)>;

/// Asks the clipboard's owner for its text, in one form only. Calls `answer` on the user-interface
/// thread: before this returns, later from the event loop, or never if the owner does not answer.
/// The answer is empty if the owner has no text.
///
/// Each platform has a file of its own for it.
void requestClipboardText(const TextAnswer &answer);

} // namespace columnimport
