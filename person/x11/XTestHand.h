// SPDX-License-Identifier: MIT

#pragma once

#include "person/Hand.h"

// The macros of the X11 headers break other headers.
struct _XDisplay; // NOLINT(bugprone-reserved-identifier): the name that X11 gives it

/// The hand on an X11 screen: the server treats its input like that of real devices.
class XTestHand : public Hand {
public:
    XTestHand();
    ~XTestHand() override;

    void findDialog() override;
    void moveTo(wxPoint point) override;
    void setButton(int button, bool isDown) override;
    void setKey(int key, bool isDown) override;

private:
    void send();
    void waitForWindowManager();

    _XDisplay *m_display;
    wxPoint m_dialog;
};
