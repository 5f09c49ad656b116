// SPDX-License-Identifier: MIT

#pragma once

#include <wx/gdicmn.h>

/// The area in which something is drawn in an entry of the file list, up to `width`. The entry's
/// upper left corner must be empty. To be called on the user-interface thread.
wxRect inkOf(int entry, int width);
