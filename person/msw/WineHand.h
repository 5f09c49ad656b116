// SPDX-License-Identifier: MIT

#pragma once

#include "person/Hand.h"
#include "person/msw/Xdotool.h"

/// The hand under Wine.
class WineHand : public Hand {
public:
    void findDialog() override;
    void moveTo(wxPoint point) override;
    void setButton(int button, bool isDown) override;
    void setKey(int key, bool isDown) override;

private:
    Xdotool m_hand;
    wxPoint m_dialog;
};
