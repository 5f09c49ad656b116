// SPDX-License-Identifier: MIT

#pragma once

#include <wx/gdicmn.h>

class wxWindow;

namespace columnimport {

/// Where a run places the frame of its dialog, on platforms that let a program do so.
inline const wxPoint framePlace(100, 100);

// Each platform has a file of its own for these.

/// The size of a frame that reaches from its place to the end of the screen's work area.
wxSize frameRoom();

/// The size of what such a frame holds of `dialog`, which need not have been shown yet.
wxSize contentRoom(const wxWindow &dialog);

} // namespace columnimport
