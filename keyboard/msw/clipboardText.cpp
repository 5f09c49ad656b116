// SPDX-License-Identifier: MIT

#include "dragdrop/clipboard.h"

#include <new>
#include <string>
#include <thread>

#include <windows.h>
#include <wx/app.h>

namespace columnimport {

namespace {

/// The clipboard while it is open. Any program may have it open for a moment.
class OpenedClipboard {
public:
    OpenedClipboard() {
        constexpr DWORD milliseconds = 50;
        for (int attempt = 0; attempt < 20 && !m_isOpen; ++attempt) {
            m_isOpen = OpenClipboard(nullptr) != FALSE;
            if (!m_isOpen) {
                Sleep(milliseconds);
            }
        }
    }
    ~OpenedClipboard() {
        if (m_isOpen) {
            CloseClipboard();
        }
    }
    OpenedClipboard(const OpenedClipboard &) = delete;
    OpenedClipboard &operator=(const OpenedClipboard &) = delete;

    /// Waits for as long as the owner takes to hand its text over.
    std::optional<std::wstring> text() const {
        std::optional<std::wstring> text;
        HANDLE memory = m_isOpen ? GetClipboardData(CF_UNICODETEXT) : nullptr;
        if (const auto *given = static_cast<const wchar_t *>(GlobalLock(memory))) {
            text.emplace(given, wcsnlen(given, GlobalSize(memory) / sizeof *given));
            GlobalUnlock(memory);
        }
        return text;
    }

private:
    bool m_isOpen = false;
};

} // namespace

// Windows has no way to ask that does not wait, so a thread of its own does. It may outlive the
// dialog, but not this library, which stays in the process.
void requestClipboardText(const TextAnswer &answer) {
    std::thread([answer] {
        try {
            const std::optional<std::wstring> text = OpenedClipboard().text();
            if (wxTheApp != nullptr) { // a host of the same toolkit ends it
                wxTheApp->CallAfter([answer, text] {
                    answer(text ? std::optional<wxString>(*text) : std::nullopt);
                });
            }
        } catch (const std::bad_alloc &) {
            return; // what is too much to take has not come
        }
    }).detach();
}

} // namespace columnimport
