// SPDX-License-Identifier: MIT

#pragma once

#include <wx/textctrl.h>

namespace columnimport {

/// The field for the delimiter: one character, taken literally.
///
/// A click into it or Tab selects the character, so that the next one typed replaces it. The right
/// button, the menu key and the down arrow open a menu of the usual delimiters.
class DelimiterField : public wxTextCtrl {
public:
    DelimiterField(wxWindow *parent, wxWindowID id, char delimiter, const wxSize &size);

private:
    void selectSoon();
    void onKeyDown(wxKeyEvent &event);
    void onContextMenu(wxContextMenuEvent &event);

    /// Shows the menu at `position` in the field, and enters the choice as if typed.
    void offer(const wxPoint &position);
};

} // namespace columnimport
