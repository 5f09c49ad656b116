// SPDX-License-Identifier: MIT

#pragma once

#include "HostWindow.h"

#include <cstdint>
#include <memory>

namespace columnimport {

/// A window of X11, of this process or of another one, as the owner of a dialog. As long as the
/// object lives nothing can be clicked in it. It may be destroyed meanwhile.
class X11Owner {
public:
    /// Why no window of X11 can own a dialog here; null if one can. Starts what a dialog needs, on
    /// X11 if that is left open.
    static const char *hindrance();

    /// `window` stands for the top-level that it is in. Call only if there is no hindrance.
    explicit X11Owner(std::uint32_t window);
    ~X11Owner();
    X11Owner(const X11Owner &) = delete;
    X11Owner &operator=(const X11Owner &) = delete;

    /// For the dialog to be opened over; null if there is no such window of a program.
    HostWindow window() const;

private:
    struct Native;
    std::unique_ptr<Native> m_native;
};

} // namespace columnimport
