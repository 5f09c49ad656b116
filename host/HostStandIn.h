// SPDX-License-Identifier: MIT

#pragma once

#include "HostWindow.h"

#include <memory>

class wxWindow;

namespace columnimport {

/// The dialog's parent object: a toolkit window that stands for the host's native window during one
/// run. Without a host's window there is none, and the dialog has no owner. Each platform has a
/// file of its own for it.
class HostStandIn {
public:
    explicit HostStandIn(HostWindow hostWindow);

    /// Removes the object from the toolkit's top-level windows, or the toolkit would take it for
    /// the owner of the next dialog.
    ~HostStandIn();
    HostStandIn(const HostStandIn &) = delete;
    HostStandIn &operator=(const HostStandIn &) = delete;

    wxWindow *window() const { return m_window.get(); }

    /// Detaches the object from the host's window: what happens to one no longer reaches the other.
    void release();

private:
    std::unique_ptr<wxWindow> m_window;
};

} // namespace columnimport
