// SPDX-License-Identifier: MIT

#pragma once

#include "HostWindow.h"

#include <cstdint>
#include <memory>
#include <type_traits>

namespace columnimport {

// Each platform has a file of its own for these.

/// Why no X11 window can own a dialog here; null if one can. Opens a display on X11 if none is open
/// yet, and sets the toolkit up.
const char *whyNoX11Owner();

/// An X11 window of this or another process, as the owner of a dialog.
using X11Owner = std::shared_ptr<std::remove_pointer_t<HostWindow>>;

/// The owner of a dialog over the top-level that contains the X11 window `window`; null if there is
/// no such window. Nothing in the top-level can be clicked while the owner lives. The top-level may
/// be destroyed meanwhile. Call it only if `whyNoX11Owner` is null.
X11Owner x11Owner(std::uint32_t window);

} // namespace columnimport
