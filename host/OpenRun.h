// SPDX-License-Identifier: MIT

#pragma once

#include <wx/log.h>

namespace columnimport {

/// Holds while a dialog of the library is open: there is one at a time. Meanwhile the toolkit logs
/// nothing, neither to the host's console nor in windows of its own.
class OpenRun {
public:
    /// Whether there is one.
    static bool isOpen();

    OpenRun();
    ~OpenRun();
    OpenRun(const OpenRun &) = delete;
    OpenRun &operator=(const OpenRun &) = delete;

private:
    wxLogNull m_silence;
};

} // namespace columnimport
