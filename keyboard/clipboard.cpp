// SPDX-License-Identifier: MIT

#include "keyboard/clipboard.h"

#include "dragParts.h" // of the platform

#include <wx/clipbrd.h>
#include <wx/utils.h>

namespace columnimport {

void copyName(ShownNames &names, const wxString &shown) {
    const wxString text = names.textForOthers(shown, ShownNames::clipboard);
    const wxClipboardLocker open;
    if (!!open) {
        wxTheClipboard->SetData(new UnicodeText(text));
    }
}

Paste::Paste(ChangeQueue &queue) : m_queue(queue) {
    m_limit.Bind(wxEVT_TIMER, [this](wxTimerEvent &) {
        if (!m_hold.expired()) {
            m_queue.clear();
            wxBell();
        }
    });
}

void Paste::start(const Take &take) {
    m_queue.run([this, take] { request(take); });
}

void Paste::request(const Take &take) {
    constexpr int milliseconds = 2000;
    m_limit.StartOnce(milliseconds);
    m_hold = m_queue.hold();
    requestClipboardText([this, hold = m_hold, take](const std::optional<wxString> &text) {
        // The answer may come after a refresh, after the limit, or after the dialog's end.
        if (hold.expired()) {
            return;
        }
        m_limit.Stop();
        m_queue.release([&] {
            if (text) {
                take(*text);
            }
        });
    });
}

} // namespace columnimport
