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

/// The clipboard's text. Blocks until the owner has delivered it. Tries again if another program
/// has the clipboard open for a moment.
std::optional<std::wstring> clipboardText() {
    constexpr DWORD milliseconds = 50;
    for (int attempt = 1; OpenClipboard(nullptr) == FALSE; ++attempt) {
        if (attempt == 20) {
            return std::nullopt;
        }
        Sleep(milliseconds);
    }
    std::optional<std::wstring> text;
    HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    if (const auto *given = static_cast<const wchar_t *>(GlobalLock(memory))) {
        try {
            text.emplace(given, wcsnlen(given, GlobalSize(memory) / sizeof *given));
        } catch (const std::bad_alloc &) {
            text.reset(); // too large counts as no text
        }
        GlobalUnlock(memory);
    }
    CloseClipboard();
    return text;
}

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
    HWND window = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                  nullptr, nullptr);
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(onMessage));
    return window;
}

void answerRequest(std::unique_ptr<Request> request, HWND window) {
    request->text = clipboardText();
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
