// SPDX-License-Identifier: MIT

#pragma once

#include <wx/gdicmn.h>

/// The hand that moves the pointer and strikes the keys. Each way of reaching a screen has one of
/// its own. Every operation returns when the screen has carried it out; the dialog may still have
/// to see it.
///
/// Points are places in the client area of the dialog: not every screen tells a program where its
/// windows stand. Places outside of the dialog are reached too, by numbers below 0 or beyond its
/// size.
///
/// Keys have the toolkit's numbers: 'a', WXK_ESCAPE, WXK_SHIFT.
class Hand {
public:
    Hand() = default;
    virtual ~Hand() = default;
    Hand(const Hand &) = delete;
    Hand &operator=(const Hand &) = delete;

    /// Finds out where the dialog is, which stands and stays in its place from now on. To be called
    /// before the first `moveTo`.
    virtual void findDialog() = 0;

    virtual void moveTo(wxPoint point) = 0;

    /// 1 is the left button, 2 the middle one, 3 the right one; 4 and 5 turn the wheel up and down.
    virtual void setButton(int button, bool isDown) = 0;

    /// A character that needs Shift on this keyboard comes with it.
    virtual void setKey(int key, bool isDown) = 0;
};
