// SPDX-License-Identifier: MIT

#pragma once

#include <wx/gdicmn.h>

/// The hand that moves the pointer and presses the keys. Each kind of screen has a class of its
/// own. Every operation returns when the screen has carried it out; the dialog may see it later.
///
/// Points are in the dialog's client area, since not every screen tells a program where its windows
/// are. Coordinates below 0 or beyond its size reach places outside of the dialog.
///
/// Keys have the toolkit's numbers: 'a', WXK_ESCAPE, WXK_SHIFT.
class Hand {
public:
    Hand() = default;
    virtual ~Hand() = default;
    Hand(const Hand &) = delete;
    Hand &operator=(const Hand &) = delete;

    /// Finds out where the dialog is. To be called once it is in its final place, before the first
    /// `moveTo`.
    virtual void findDialog() = 0;

    virtual void moveTo(wxPoint point) = 0;

    /// 1 is the left button, 2 the middle one, 3 the right one; 4 and 5 turn the wheel up and down.
    virtual void setButton(int button, bool isDown) = 0;

    /// Adds Shift if the character needs it on this keyboard.
    virtual void setKey(int key, bool isDown) = 0;
};
