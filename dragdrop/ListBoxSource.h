// SPDX-License-Identifier: MIT

#pragma once

#include <wx/listbox.h>

namespace columnimport {

/// The list of file columns, from which names are dragged onto rows of the match list.
///
/// It takes the left button for itself: a press selects the entry under it, and the first move with
/// the button down over an entry drags that entry's text. The list is not changed by a drag.
class ListBoxSource : public wxListBox {
public:
    ListBoxSource(wxWindow *parent, wxWindowID id, const wxPoint &position, const wxSize &size);
    ~ListBoxSource() override;

private:
    void onLeftDown(wxMouseEvent &event);
    void onMouseMove(wxMouseEvent &event);
    void onKeyDown(wxKeyEvent &event);
};

} // namespace columnimport
