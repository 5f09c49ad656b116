// SPDX-License-Identifier: MIT

#pragma once

#include "HostWindow.h"

#include <cstdint>
#include <memory>

namespace columnimport {

/// An X11 window of this or another process, as the owner of a dialog. Nothing in it can be clicked
/// while this object lives. The window may be destroyed meanwhile.
class X11Owner {
public:
    /// Why no X11 window can own a dialog here; null if one can. Opens a display on X11 if none is
    /// open yet, and sets the toolkit up.
    static const char *whyUnavailable();

    /// `window` stands for the top-level that contains it. Call it only if `whyUnavailable` is
    /// null.
    explicit X11Owner(std::uint32_t window);
    ~X11Owner();
    X11Owner(const X11Owner &) = delete;
    X11Owner &operator=(const X11Owner &) = delete;

    /// The window to open the dialog over; null if no program has such a window.
    HostWindow window() const;

private:
    struct Native;
    std::unique_ptr<Native> m_native;
};

} // namespace columnimport
