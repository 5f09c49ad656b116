// SPDX-License-Identifier: MIT

#pragma once

#include "HostWindow.h"

class wxWindow;

namespace columnimport {

// Each platform has a file of its own for these.

/// The window of the host that can own a dialog: its top-level, or null if it has none.
HostWindow ownerOf(HostWindow hostWindow);

/// Gives `standIn`, which has no native window of its own, the host's native window to read.
/// `detach` takes it back; nothing that happens to `standIn` afterwards reaches the host's window.
void attach(wxWindow &standIn, HostWindow hostWindow);
void detach(wxWindow &standIn);

} // namespace columnimport
