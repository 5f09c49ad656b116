// SPDX-License-Identifier: MIT

#pragma once

#include <wx/event.h>
#include <wx/string.h>

namespace columnimport {

// What both lists do with the mouse.

/// Distinguishes a double click on a row from a drag. A double click is two clicks on one row, and
/// counts when the button goes up. A press that begins a drag is not a click.
///
///     press AA, release, press AA again, release           a double click
///     press AA, release, press AA again, drag              a click and a drag
///     drag AA, press AA, release                           a drag and a click
class SecondClick {
public:
    /// Call it when the system reports the second press of a double click.
    void pressAgain(int row) { m_isPressedAgain = row >= 0 && row == m_clicked; }

    /// Whether the release over `row` completes a double click.
    bool release(int row) {
        const bool isSecond = m_isPressedAgain && row == m_clicked;
        m_clicked = isSecond ? none : row;
        m_isPressedAgain = false;
        return isSecond;
    }

    void drag() { *this = {}; }

private:
    static constexpr int none = -1;
    int m_clicked = none; // the row of the last press and release
    bool m_isPressedAgain = false;
};

/// Keeps the middle and the right button from `list`, which would select with them.
void ignoreOtherButtons(wxWindow &list);

/// Sets the tooltip of `list`; an empty one removes it.
void setTip(wxWindow &list, const wxString &tip);

/// Sets `name` as the tooltip if it is wider than `room` pixels, which the list has for it; else
/// removes the tooltip.
void tipWhereCut(wxWindow &list, const wxString &name, int room);

/// Whether the left button is down now and was down at the time of `move`. A move that is handled
/// late may be older than the press; if it began a drag, a click with Control or Shift would be
/// lost.
bool movedWithButtonDown(const wxMouseEvent &move);

/// Drags `text` out of `list` until it is dropped or cancelled. Meanwhile shows `shown` beside the
/// pointer and keeps the window from closing. Call it from the handler of the mouse event that
/// begins the drag.
void dragText(wxWindow &list, const wxString &text, const wxString &shown);

} // namespace columnimport
