// SPDX-License-Identifier: MIT

#pragma once

#include <wx/textctrl.h>

namespace columnimport {

/// The field for the delimiter: one character, taken as it stands.
///
/// Whoever comes into it, by a click or by Tab, has selected what is there, so that the next
/// character replaces it. Its menu offers the usual delimiters by name: by the right button, the
/// menu key or the arrow down.
class DelimiterField : public wxTextCtrl {
public:
    DelimiterField(wxWindow *parent, wxWindowID id, char delimiter, const wxSize &size);

private:
    void selectSoon();
    void onKeyDown(wxKeyEvent &event);
    void onContextMenu(wxContextMenuEvent &event);

    /// Shows the menu at `position` in the field, and takes what is chosen as if it were typed.
    void offer(const wxPoint &position);
};

} // namespace columnimport
