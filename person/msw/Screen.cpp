// SPDX-License-Identifier: MIT

#include "person/Screen.h"

#include "person/msw/WineHand.h"
#include "person/openDialog.h"

#include <exception>
#include <future>
#include <string>

#include <wx/msw/private.h>

namespace {

struct Call {
    const std::function<void()> &work;
    std::promise<void> done;
};

constexpr UINT carryOut = WM_APP;

// Posted messages overtake input, and timers do not.
LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM word, LPARAM number) {
    if (message != carryOut && message != WM_TIMER) {
        return DefWindowProcW(window, message, word, number);
    }
    auto *call = reinterpret_cast<Call *>(message == WM_TIMER ? word : number);
    const auto timer = reinterpret_cast<UINT_PTR>(call);
    if (HIWORD(GetQueueStatus(QS_INPUT)) != 0) {
        SetTimer(window, timer, USER_TIMER_MINIMUM, nullptr);
        return 0;
    }
    KillTimer(window, timer);
    try {
        call->work();
        call->done.set_value();
    } catch (...) {
        call->done.set_exception(std::current_exception());
    }
    return 0;
}

HWND makeMailbox() {
    WNDCLASSW kind = {};
    kind.lpszClassName = L"columnimport person";
    kind.lpfnWndProc = onMessage;
    RegisterClassW(&kind);
    return CreateWindowExW(0, kind.lpszClassName, nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                           nullptr, nullptr);
}

/// Created on the program's first thread, its user-interface thread.
const HWND mailbox = makeMailbox();

/// The pointer's place at the last move that the user-interface thread has handled.
POINT lastMove = {};

LRESULT CALLBACK recordMove(int code, WPARAM isTaken, LPARAM number) {
    const auto *message = reinterpret_cast<const MSG *>(number);
    if (code == HC_ACTION && isTaken == PM_REMOVE && message->message == WM_MOUSEMOVE) {
        lastMove = message->pt;
    }
    return CallNextHookEx(nullptr, code, isTaken, number);
}

void watchMoves() {
    static const HHOOK hook =
        SetWindowsHookExW(WH_GETMESSAGE, recordMove, nullptr, GetCurrentThreadId());
    static_cast<void>(hook);
}

} // namespace

// The platform does not complain; its calls fail.
void abortOnWarnings() {}

std::unique_ptr<Hand> makeHand() {
    return std::make_unique<WineHand>();
}

void onUserInterface(const std::function<void()> &work) {
    Call call{work, {}};
    std::future<void> done = call.done.get_future();
    PostMessageW(mailbox, carryOut, 0, reinterpret_cast<LPARAM>(&call));
    done.get();
}

void handleEvents() {
    MSG message;
    if (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

void allowSlowDoubleClicks() {
    SetDoubleClickTime(5000);
}

bool isDialogReady() {
    watchMoves();
    return isDialogOpen() && openDialog().IsActive();
}

bool placesWindows() {
    return true;
}

wxRect frameOfDialog() {
    RECT frame = {};
    GetWindowRect(openDialog().GetHWND(), &frame);
    return wxRectFromRECT(frame);
}

void pressCloseBox() {
    PostMessageW(openDialog().GetHWND(), WM_SYSCOMMAND, SC_CLOSE, 0);
}

// During a drag a window that is not the dialog's captures the pointer.
bool isDragRunning() {
    const HWND holder = GetCapture();
    return holder != nullptr && wxFindWinFromHandle(holder) == nullptr;
}

std::optional<wxPoint> placeOfDrag() {
    if (!isDragRunning()) {
        return std::nullopt;
    }
    return openDialog().ScreenToClient(wxPoint(lastMove.x, lastMove.y));
}

bool isShownAsMarked(int row) {
    return matchList().GetItemState(row, wxLIST_STATE_DROPHILITED) != 0;
}

bool isShownAsUsed(int entry) {
    const HWND list = fileList().GetHWND();
    const auto row = static_cast<WPARAM>(entry);
    std::wstring text(static_cast<std::size_t>(SendMessageW(list, LB_GETTEXTLEN, row, 0)) + 1,
                      L'\0');
    SendMessageW(list, LB_GETTEXT, row, reinterpret_cast<LPARAM>(text.data()));
    return text.front() == L'\x2713';
}
