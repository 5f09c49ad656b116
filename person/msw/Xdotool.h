// SPDX-License-Identifier: MIT

#pragma once

#include <string>

/// xdotool, a program of the system around Wine, on the X11 screen where Wine shows its windows.
/// Wine's own SendInput releases Shift and Control at the next move of the pointer, and only the
/// screen knows where a window really is and whether it has the focus.
class Xdotool {
public:
    Xdotool();
    ~Xdotool();
    Xdotool(const Xdotool &) = delete;
    Xdotool &operator=(const Xdotool &) = delete;

    /// Runs a line of commands, waits for it and returns its output.
    std::string order(const std::string &commands);

    /// Whether the focused window on the screen has this title, in UTF-8.
    bool hasKeys(const std::string &title);

private:
    void write(const std::string &line);

    void *m_orders; // pipes to the program and from it
    void *m_answers;
};
