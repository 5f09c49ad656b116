// SPDX-License-Identifier: MIT

#include "dragdrop/clipboard.h"

#include "UnicodeText.h" // of the platform

#include <utility>

#include <wx/clipbrd.h>
#include <wx/utils.h>

namespace columnimport {

void copyText(const wxString &text) {
    const wxClipboardLocker open;
    if (!!open) {
        wxTheClipboard->SetData(new UnicodeText(text));
    }
}

Paste::Paste() {
    m_limit.Bind(wxEVT_TIMER, [this](wxTimerEvent &) {
        forget();
        wxBell();
    });
}

void Paste::start(std::function<void(const wxString &)> take) {
    constexpr int milliseconds = 2000;
    m_limit.StartOnce(milliseconds);
    m_request = std::make_shared<bool>();
    requestClipboardText([this, request = std::weak_ptr<bool>(m_request),
                          take = std::move(take)](const std::optional<wxString> &text) {
        // An answer may come when nobody waits for it any more.
        if (request.expired()) {
            return;
        }
        if (text) {
            take(*text);
        }
        m_limit.Stop();
        m_request.reset();
        goOn();
    });
}

void Paste::inTurn(std::function<void()> work) {
    m_waiting.push_back(std::move(work));
    goOn();
}

void Paste::goOn() {
    while (m_request == nullptr && !m_waiting.empty()) {
        const std::function<void()> work = std::move(m_waiting.front());
        m_waiting.pop_front();
        work();
    }
}

void Paste::forget() {
    m_limit.Stop();
    m_request.reset();
    m_waiting.clear();
}

} // namespace columnimport
