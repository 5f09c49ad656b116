// SPDX-License-Identifier: MIT

#pragma once

#include "HostWindow.h"

#include <memory>

class wxWindow;

namespace columnimport {

/// The parent window object: a window without a native window of its own, which stands for the
/// host's window during one run. If the host passes no window there is none, and the dialog has no
/// owner. Each platform has a file of its own.
class HostStandIn {
public:
    explicit HostStandIn(HostWindow hostWindow);

    /// Removes the object from the toolkit's top-level windows, or the toolkit would take it for
    /// the owner of the next dialog.
    ~HostStandIn();
    HostStandIn(const HostStandIn &) = delete;
    HostStandIn &operator=(const HostStandIn &) = delete;

    wxWindow *window() const { return m_window.get(); }

    /// Cuts the tie to the host's window: nothing that later happens to the object reaches it.
    void release();

private:
    std::unique_ptr<wxWindow> m_window;
};

} // namespace columnimport
