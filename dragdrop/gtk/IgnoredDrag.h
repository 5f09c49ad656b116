// SPDX-License-Identifier: MIT

#pragma once

struct wl_pointer;
class wxDropSource;

namespace columnimport {

/// Ends a drag that the screen ignores. A Wayland compositor starts no drag if the button is up by
/// the time it is asked to, and tells nobody: the toolkit would wait for its end for ever.
class IgnoredDrag {
public:
    /// To be made before `drag` begins, and to be kept until its end.
    explicit IgnoredDrag(wxDropSource &drag);
    ~IgnoredDrag();
    IgnoredDrag(const IgnoredDrag &) = delete;
    IgnoredDrag &operator=(const IgnoredDrag &) = delete;

private:
    static int endIfIgnored(void *self);

    wxDropSource &m_drag;
    wl_pointer *m_pointer = nullptr; // null if the screen is no Wayland one
    bool m_hasLeft = false;
    unsigned m_due = 0; // the call of `endIfIgnored`, or 0
};

} // namespace columnimport
