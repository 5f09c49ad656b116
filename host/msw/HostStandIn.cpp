// SPDX-License-Identifier: MIT

#include "host/HostStandIn.h"

#include <wx/msw/private.h>
#include <wx/window.h>

namespace columnimport {

namespace {

/// The bit of the host's extended style that the toolkit sets for the dialog.
LONG_PTR controlParentBit(HWND window) {
    return GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_CONTROLPARENT;
}

/// Its value before the run; there is one run at a time.
LONG_PTR formerControlParentBit = 0;

} // namespace

// A control's root is its window; the desktop and invalid handles have none.
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

HostStandIn::~HostStandIn() {
    release();
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

} // namespace columnimport
