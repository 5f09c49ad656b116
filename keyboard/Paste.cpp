// SPDX-License-Identifier: MIT

#include "keyboard/Paste.h"

#include "keyboard/clipboard.h"

#include <wx/utils.h>

namespace columnimport {

Paste::Paste(ChangeQueue &queue) : m_queue(queue) {
    m_limit.Bind(wxEVT_TIMER, [this](wxTimerEvent &) {
        if (!m_hold.expired()) {
            m_queue.clear();
            wxBell();
        }
    });
}

void Paste::start(const std::function<void(const wxString &)> &take) {
    m_queue.run([this, take] { request(take); });
}

void Paste::request(const std::function<void(const wxString &)> &take) {
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
