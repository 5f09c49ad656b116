// SPDX-License-Identifier: MIT

#pragma once

#include "person/Hand.h"
#include "person/UserInterface.h"

#include <functional>
#include <memory>
#include <string>

#include <wx/gdicmn.h>

/// A simulated person at the screen, with a real pointer and real keys, on a thread of its own.
/// Finds controls by their identifiers and rows by their numbers, and reaches all of them by the
/// pointer. Points are in the dialog's client area, keys have the toolkit's numbers.
class Person {
public:
    Person();

    /// Releases a button that is still down.
    ~Person();

    Person(const Person &) = delete;
    Person &operator=(const Person &) = delete;

    void moveTo(wxPoint point);

    /// Moves to `point` and jitters there until `isSo` holds on the user-interface thread, since
    /// the toolkit drops a move that comes while it handles another.
    void hoverAt(wxPoint point, const std::string &expected, const std::function<bool()> &isSo);

    void press(int button = 1);
    void release(int button = 1);
    void click(wxPoint point, int button = 1);
    void click(int controlId) { click(middleOf(controlId)); }

    /// Presses at `from`, waits for the drag to begin, and moves on to `to` in a few steps. Leaves
    /// the button down.
    void dragTo(wxPoint from, wxPoint to);

    /// Releases the button and waits for the end of the drag.
    void drop();

    /// Both in a row.
    void drag(wxPoint from, wxPoint to);

    void keyDown(int key);
    void keyUp(int key);
    void strike(int key);

    /// Presses a key while `modifier` is held down.
    void strikeWith(int modifier, int key);

    /// Replaces the content of the delimiter field by one character.
    void typeDelimiter(char character);
    void emptyDelimiter();

    /// Waits until the dialog is on the screen.
    void waitForDialog();

    static wxPoint middleOf(int controlId);
    static wxPoint fileRow(int row);
    static wxPoint matchRow(int row);

    /// A place in the list below its last entry.
    static wxPoint belowFileRows();
    static wxPoint belowMatchRows();

private:
    std::unique_ptr<Hand> m_hand;
    int m_buttonDown = 0;
};
