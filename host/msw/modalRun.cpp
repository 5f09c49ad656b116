// SPDX-License-Identifier: MIT

#include "host/modalRun.h"

#include <optional>

#include <wx/msw/private.h>
#include <wx/msw/wrapcctl.h>

namespace columnimport {

namespace {

/// The bit of the host's extended style that the toolkit sets for the dialog.
LONG_PTR controlParentBit(HWND window) {
    return GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_CONTROLPARENT;
}

/// Its value before the run; there is one run at a time.
LONG_PTR formerControlParentBit = 0;

/// The exit code of a quit that the host posted during the run.
std::optional<int> quitCode;

LRESULT CALLBACK recordQuit(int code, WPARAM isTaken, LPARAM number) {
    const auto *message = reinterpret_cast<const MSG *>(number);
    if (code == HC_ACTION && isTaken == PM_REMOVE && message->message == WM_QUIT) {
        quitCode = static_cast<int>(message->wParam);
    }
    return CallNextHookEx(nullptr, code, isTaken, number);
}

/// Watches for a quit in the queue: the toolkit's loop takes it out and forgets its code.
class QuitWatch {
public:
    QuitWatch()
        : m_hook(SetWindowsHookExW(WH_GETMESSAGE, recordQuit, nullptr, GetCurrentThreadId())) {
        quitCode.reset();
    }
    ~QuitWatch() { UnhookWindowsHookEx(m_hook); }
    QuitWatch(const QuitWatch &) = delete;
    QuitWatch &operator=(const QuitWatch &) = delete;

private:
    HHOOK m_hook;
};

/// Ends the modal loop when the dialog is destroyed with its owner; the toolkit would wait on.
LRESULT CALLBACK onDialogMessage(HWND window, UINT message, WPARAM word, LPARAM number, UINT_PTR id,
                                 DWORD_PTR dialog) {
    if (message == WM_DESTROY) {
        RemoveWindowSubclass(window, onDialogMessage, id);
        auto &open = *reinterpret_cast<wxDialog *>(dialog);
        if (open.IsModal()) {
            open.EndModal(wxID_CANCEL);
        }
    }
    return DefSubclassProc(window, message, word, number);
}

} // namespace

// The root of a control is its window; the desktop and invalid handles have none.
HostStandIn::HostStandIn(HostWindow hostWindow) {
    HWND owner = IsWindow(hostWindow) != FALSE ? GetAncestor(hostWindow, GA_ROOT) : nullptr;
    if (owner == nullptr) {
        return;
    }
    formerControlParentBit = controlParentBit(owner);
    m_window = std::make_unique<wxWindow>();
    m_window->SetHWND(owner);
    m_window->AdoptAttributesFromHWND();
    wxTopLevelWindows.Append(m_window.get());
}

void HostStandIn::release() {
    if (!m_window) {
        return;
    }
    HWND window = m_window->GetHWND();
    if (IsWindow(window) != FALSE && controlParentBit(window) != formerControlParentBit) {
        const LONG_PTR style = GetWindowLongPtrW(window, GWL_EXSTYLE);
        SetWindowLongPtrW(window, GWL_EXSTYLE, style ^ WS_EX_CONTROLPARENT);
    }
    m_window->SetHWND(nullptr);
}

void resize(wxDialog &dialog, const wxSize &size) {
    dialog.SetSize(size);
}

// At a quit, the toolkit leaves its loop with the dialog open and the owner disabled.
int showModal(wxDialog &dialog) {
    const QuitWatch watch;
    const HWND owner = GetWindow(dialog.GetHWND(), GW_OWNER);
    SetWindowSubclass(dialog.GetHWND(), onDialogMessage, 0, reinterpret_cast<DWORD_PTR>(&dialog));
    const int result = dialog.ShowModal();
    if (quitCode) {
        EnableWindow(owner, TRUE);
        dialog.Hide();
        PostQuitMessage(*quitCode);
    }
    return result;
}

bool hasWindow(const wxDialog &dialog) {
    return IsWindow(dialog.GetHWND()) != FALSE;
}

} // namespace columnimport
