#pragma once

#include "HostWindow.h"

#include <cstdint>
#include <memory>

#include <wx/log.h>

class wxImportCSVDialog;
class wxWindow;

namespace columnimport {

/// The parent window object: a window without a native window of its own that stands for the host's
/// window during one run. Without a host's window there is none, and the dialog has no owner.
class HostStandIn {
public:
    explicit HostStandIn(HostWindow hostWindow);
    ~HostStandIn();
    HostStandIn(const HostStandIn &) = delete;
    HostStandIn &operator=(const HostStandIn &) = delete;

    wxWindow *window() const { return m_window.get(); }

    /// Cuts the tie to the host's window.
    void release();

private:
    std::unique_ptr<wxWindow> m_window;
};

/// Holds while a dialog of the library is open: there is one at a time. Meanwhile the toolkit logs
/// nothing, neither to the host's console nor in windows of its own.
class OpenRun {
public:
    /// Whether a run can be opened now.
    static bool isPossible();

    OpenRun();
    ~OpenRun();
    OpenRun(const OpenRun &) = delete;
    OpenRun &operator=(const OpenRun &) = delete;

private:
    wxLogNull m_silence;
};

/// Builds `dialog`, shows it at 100, 100 in the given size and returns whether it ended with OK.
bool runDialog(wxImportCSVDialog &dialog, std::int32_t width, std::int32_t height);

} // namespace columnimport
