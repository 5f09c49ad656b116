// SPDX-License-Identifier: MIT

#include "keyboard/clipboard.h"

#include <memory>
#include <new>
#include <string>
#include <system_error>
#include <thread>

#include <windows.h>

namespace columnimport {

namespace {

/// Opens the clipboard while it lives. Tries again if another program has it open for a moment.
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

    /// Blocks until the owner has delivered its text.
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

/// A request, answered by a thread of its own with a message to the window below. The thread does
/// not use the toolkit: the host may end or replace its application meanwhile.
struct Request {
    TextAnswer answer;
    std::optional<std::wstring> text;
};

constexpr UINT answered = WM_APP;

LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM word, LPARAM number) {
    if (message != answered) {
        return DefWindowProcW(window, message, word, number);
    }
    const std::unique_ptr<Request> request(reinterpret_cast<Request *>(number));
    DestroyWindow(window);
    request->answer(request->text ? std::optional<wxString>(*request->text) : std::nullopt);
    return 0;
}

/// An invisible window on the user-interface thread that receives one message.
HWND newMessageWindow() {
    static const ATOM windowClass = [] {
        WNDCLASSW description = {};
        description.lpfnWndProc = onMessage;
        description.hInstance = GetModuleHandleW(nullptr);
        description.lpszClassName = L"ColumnImportClipboardText";
        return RegisterClassW(&description);
    }();
    return CreateWindowExW(0, MAKEINTATOM(windowClass), nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE,
                           nullptr, GetModuleHandleW(nullptr), nullptr);
}

void answerRequest(std::unique_ptr<Request> request, HWND window) {
    try {
        request->text = OpenedClipboard().text();
    } catch (const std::bad_alloc &) {
        request->text.reset(); // too large counts as no text
    }
    if (PostMessageW(window, answered, 0, reinterpret_cast<LPARAM>(request.get())) != FALSE) {
        static_cast<void>(request.release()); // the window owns it now
    }
}

} // namespace

// Windows has only a blocking call, so a thread makes it. The thread may outlive the dialog, but
// not this library, which stays in the process.
void requestClipboardText(const TextAnswer &answer) {
    HWND window = newMessageWindow();
    try {
        std::thread(answerRequest, std::make_unique<Request>(Request{answer, std::nullopt}), window)
            .detach();
    } catch (const std::system_error &) {
        DestroyWindow(window);
        answer(std::nullopt);
    }
}

} // namespace columnimport
