// SPDX-License-Identifier: MIT

#pragma once

#include <string>

/// xdotool, a program of the system around Wine, at work on the X11 screen where Wine shows its
/// windows. Of the input that Wine's own SendInput makes, Shift and Control are let go by the next
/// move of the pointer; and where a window really is on the screen, and whether it has the focus,
/// only the screen knows.
class Xdotool {
public:
    Xdotool();
    ~Xdotool();
    Xdotool(const Xdotool &) = delete;
    Xdotool &operator=(const Xdotool &) = delete;

    /// Has a line of commands carried out, waits for it and returns what they print.
    std::string order(const std::string &commands);

    /// Whether the window that has the keys on the screen has this title, in UTF-8.
    bool hasKeys(const std::string &title);

private:
    void write(const std::string &line);

    void *m_orders; // pipes to the program and from it
    void *m_answers;
};
