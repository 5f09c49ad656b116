// SPDX-License-Identifier: MIT

#pragma once

#include "person/Hand.h"

#include <memory>

using GDBusProxy = struct _GDBusProxy; // NOLINT(bugprone-reserved-identifier): GLib's name for it

/// The hand on a Wayland screen, which takes no input from a program beside its own devices: the
/// compositor mutter has a door for remote desktops, and through that the hand comes in.
class MutterHand : public Hand {
public:
    MutterHand();
    ~MutterHand() override;

    void findDialog() override;
    void moveTo(wxPoint point) override;
    void setButton(int button, bool isDown) override;
    void setKey(int key, bool isDown) override;

private:
    /// Moves to a place on the screen, which the door knows by the way from the place before.
    void moveOnScreen(wxPoint point);

    GDBusProxy *m_session;
    wxSize m_screen;
    wxPoint m_pointer; // on the screen
    wxPoint m_dialog;  // on the screen
};
