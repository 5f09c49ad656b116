// SPDX-License-Identifier: MIT

#include "dragdrop/ListBoxSource.h"

#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/clipboard.h"
#include "dragdrop/controls.h"
#include "dragdrop/dragText.h"
#include "dragdrop/tipWhereCut.h"

namespace columnimport {

ListBoxSource::ListBoxSource(wxWindow *parent, wxWindowID id, const wxPoint &position,
                             const wxSize &size)
    : wxListBox(parent, id, position, size) {
    Bind(wxEVT_LEFT_DOWN, &ListBoxSource::onLeftDown, this, wxID_ANY, wxID_ANY);
    Bind(wxEVT_MOTION, &ListBoxSource::onMouseMove, this, wxID_ANY, wxID_ANY);
    Bind(wxEVT_LEFT_DCLICK, &ListBoxSource::onLeftDown, this);
    Bind(wxEVT_KEY_DOWN, &ListBoxSource::onKeyDown, this);
    // The control would select an entry with any button.
    for (const auto &press :
         {wxEVT_MIDDLE_DOWN, wxEVT_MIDDLE_DCLICK, wxEVT_RIGHT_DOWN, wxEVT_RIGHT_DCLICK}) {
        Bind(press, [](wxMouseEvent &) {});
    }
}

ListBoxSource::~ListBoxSource() = default;

// The control is not told of the press, so it takes no focus by itself.
void ListBoxSource::onLeftDown(wxMouseEvent &event) {
    SetFocus();
    const int row = HitTest(event.GetPosition());
    if (row >= 0) {
        SetSelection(row);
    }
}

void ListBoxSource::onMouseMove(wxMouseEvent &event) {
    const int row = HitTest(event.GetPosition());
    if (row < 0) {
        return;
    }
    tipWhereCut(*this, GetString(static_cast<unsigned>(row)), GetClientSize().x - GetCharWidth());
    if (!movedWithButtonDown(event)) {
        return;
    }
    findControl<ListCtrlSource>(*this, matchListId)->clearMarkedRows();
    SetSelection(row);
    const wxString name = GetString(static_cast<unsigned>(row));
    dragText(*this, name, name);
}

void ListBoxSource::onKeyDown(wxKeyEvent &event) {
    const int row = GetSelection();
    if (event.GetModifiers() == wxMOD_CONTROL && event.GetKeyCode() == 'C' && row != wxNOT_FOUND) {
        copyText(GetString(static_cast<unsigned>(row)));
    } else {
        event.Skip();
    }
}

} // namespace columnimport
