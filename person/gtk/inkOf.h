// SPDX-License-Identifier: MIT

#pragma once

#include <wx/gdicmn.h>

/// Where something is drawn in an entry of the file list, up to `width`; its upper left corner is
/// empty. To be called on the user-interface thread.
wxRect inkOf(int entry, int width);
