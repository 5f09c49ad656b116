// SPDX-License-Identifier: MIT

#pragma once

#include "HostWindow.h"

#include <memory>

#include <wx/dialog.h>

namespace columnimport {

// What a modal run needs of the platform. Each platform has a file of its own for it.

/// The parent of the dialog: a toolkit window that stands for the host's native window during one
/// run. Without a host's window, there is no parent.
class HostStandIn {
public:
    explicit HostStandIn(HostWindow hostWindow);

    /// Also removes the object from the toolkit's top-level windows, since the toolkit would take
    /// it for the owner of the next dialog.
    ~HostStandIn() { release(); }
    HostStandIn(const HostStandIn &) = delete;
    HostStandIn &operator=(const HostStandIn &) = delete;

    wxWindow *window() const { return m_window.get(); }

    /// Detaches the object from the host's window: what happens to one no longer reaches the other.
    void release();

private:
    std::unique_ptr<wxWindow> m_window;
};

/// Gives `dialog` the size that a host asked for, or the nearest that the platform allows.
void resize(wxDialog &dialog, const wxSize &size);

/// Runs `dialog` modally at its present size and position, and returns its result code. The host's
/// event loops continue afterwards, even if the dialog throws.
int showModal(wxDialog &dialog);

/// Whether `dialog` still has its window. On some platforms, destroying the host's window also
/// destroys the dialog's.
bool hasWindow(const wxDialog &dialog);

} // namespace columnimport
