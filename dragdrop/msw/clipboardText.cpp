// SPDX-License-Identifier: MIT

#include "dragdrop/clipboard.h"

#include <string>
#include <thread>

#include <windows.h>
#include <wx/app.h>

namespace columnimport {

namespace {

/// Opens the clipboard, which any program may have open for a moment.
bool openClipboard() {
    constexpr DWORD milliseconds = 50;
    for (int attempt = 0; attempt < 20; ++attempt) {
        if (OpenClipboard(nullptr) != FALSE) {
            return true;
        }
        Sleep(milliseconds);
    }
    return false;
}

/// Waits for as long as the owner takes to hand its text over.
std::optional<std::wstring> clipboardText() {
    if (!openClipboard()) {
        return std::nullopt;
    }
    std::optional<std::wstring> text;
    HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    if (const auto *given = static_cast<const wchar_t *>(GlobalLock(memory))) {
        text.emplace(given, wcsnlen(given, GlobalSize(memory) / sizeof *given));
        GlobalUnlock(memory);
    }
    CloseClipboard();
    return text;
}

} // namespace

// Windows has no way to ask that does not wait, so a thread of its own does. It may outlive the
// dialog, but not this library, which stays in the process.
void requestClipboardText(const TextAnswer &answer) {
    std::thread([answer] {
        const std::optional<std::wstring> text = clipboardText();
        if (wxTheApp != nullptr) { // a host of the same toolkit ends it
            wxTheApp->CallAfter(
                [answer, text] { answer(text ? std::optional<wxString>(*text) : std::nullopt); });
        }
    }).detach();
}

} // namespace columnimport
