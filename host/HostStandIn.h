// SPDX-License-Identifier: MIT

#pragma once

#include "HostWindow.h"

#include <memory>

class wxWindow;

namespace columnimport {

/// The parent window object: a window without a native window of its own that stands for the host's
/// window during one run. Without a host's window there is none, and the dialog has no owner. Each
/// platform has a file of its own for it.
class HostStandIn {
public:
    explicit HostStandIn(HostWindow hostWindow);

    /// Takes the object out of the toolkit's top-level windows: one without a handle would be taken
    /// for the owner of the next dialog.
    ~HostStandIn();
    HostStandIn(const HostStandIn &) = delete;
    HostStandIn &operator=(const HostStandIn &) = delete;

    wxWindow *window() const { return m_window.get(); }

    /// Cuts the tie to the host's window: nothing that happens to the object afterwards reaches it.
    void release();

private:
    std::unique_ptr<wxWindow> m_window;
};

} // namespace columnimport
