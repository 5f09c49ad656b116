// SPDX-License-Identifier: MIT

#pragma once

#include <wx/textctrl.h>

namespace columnimport {

/// The field for the delimiter: one character, taken literally.
///
/// A click into it or Tab selects its character, so that the next one replaces it. Its menu offers
/// the usual delimiters by name: press the right button, the menu key or the arrow down.
class DelimiterField : public wxTextCtrl {
public:
    DelimiterField(wxWindow *parent, wxWindowID id, char delimiter, const wxSize &size);

private:
    void selectSoon();
    void onKeyDown(wxKeyEvent &event);
    void onContextMenu(wxContextMenuEvent &event);

    /// Shows the menu at `position` in the field, and takes the choice as if it were typed.
    void offer(const wxPoint &position);
};

} // namespace columnimport
