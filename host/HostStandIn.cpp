// SPDX-License-Identifier: MIT

#include "host/HostStandIn.h"

#include "host/nativeWindow.h"

#include <wx/window.h>

namespace columnimport {

HostStandIn::HostStandIn(HostWindow hostWindow) {
    if (const HostWindow owner = ownerOf(hostWindow)) {
        m_window = std::make_unique<wxWindow>();
        attach(*m_window, owner);
        wxTopLevelWindows.Append(m_window.get());
    }
}

// Left in the list of top-level windows, an object without a handle would be taken for the owner of
// the next dialog; its destructor takes it out.
HostStandIn::~HostStandIn() {
    release();
}

void HostStandIn::release() {
    if (m_window) {
        detach(*m_window);
    }
}

} // namespace columnimport
