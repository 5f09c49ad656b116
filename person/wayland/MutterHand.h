// SPDX-License-Identifier: MIT

#pragma once

#include "person/Hand.h"

#include <memory>

using GDBusProxy = struct _GDBusProxy; // NOLINT(bugprone-reserved-identifier): GLib's name for it

/// The hand on a Wayland screen. Wayland lets no program send input, so the hand uses the interface
/// of the compositor mutter for remote desktops.
class MutterHand : public Hand {
public:
    MutterHand();
    ~MutterHand() override;

    void findDialog() override;
    void moveTo(wxPoint point) override;
    void setButton(int button, bool isDown) override;
    void setKey(int key, bool isDown) override;

private:
    /// Moves to a place on the screen; the interface takes relative motions only.
    void moveOnScreen(wxPoint point);

    GDBusProxy *m_session;
    wxSize m_screen;
    wxPoint m_pointer; // on the screen
    wxPoint m_dialog;  // on the screen
};
