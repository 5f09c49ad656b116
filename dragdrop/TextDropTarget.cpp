// SPDX-License-Identifier: MIT

#include "dragdrop/TextDropTarget.h"

#include "dragParts.h" // of the platform
#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/controls.h"

namespace columnimport {

TextDropTarget::TextDropTarget(wxWindow &owner) : m_owner(owner) {
    SetDataObject(new ForeignText(*this));
}

wxDragResult TextDropTarget::OnDragOver(wxCoord x, wxCoord y, wxDragResult suggested) {
    if (m_owner.GetId() == matchListId) {
        auto &list = *findControl<ListCtrlSource>(m_owner, matchListId);
        list.scrollAtEdge();
        const long row = list.rowAt(wxPoint(x, y));
        if (row >= 0) {
            list.hoverOver(row);
        }
    }
    return suggested;
}

bool TextDropTarget::OnDropText(wxCoord x, wxCoord y, const wxString &text) {
    if (m_matchList != nullptr) {
        m_matchList->clearMatches(m_matchList->markedRows());
        return true;
    }
    auto &list = *findControl<ListCtrlSource>(m_owner, matchListId);
    const long row = list.rowAt(wxPoint(x, y));
    // A row dropped on itself is a click with an unsteady mouse.
    if (row >= 0 && row != list.draggedRow()) {
        list.write({row}, list.names().textOfForeign(text, ShownNames::drag));
    }
    return true;
}

} // namespace columnimport
