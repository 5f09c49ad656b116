// SPDX-License-Identifier: MIT

#pragma once

#include <wx/dnd.h>

namespace columnimport {

class ListCtrlSource;

/// Receives text dropped on one of the two lists, from the dialog itself or from any program.
///
/// A drop on the match list writes the text into the row under the pointer. A drop on the list of
/// file columns ignores the text and sets all marked rows of the match list to "Not used".
///
/// A move along the very edge of the match list scrolls it by a row, so that a drag reaches rows
/// out of view. The row in the hover state is always the one that a drop would write to.
class TextDropTarget : public wxTextDropTarget {
public:
    /// `owner` is the list that will own the target.
    explicit TextDropTarget(wxWindow &owner);

    /// Makes this the target of the list of file columns. `matchList` must outlive the target.
    void setMatchList(ListCtrlSource *matchList) { m_matchList = matchList; }

    wxDragResult OnDragOver(wxCoord x, wxCoord y, wxDragResult suggested) override;
    bool OnDropText(wxCoord x, wxCoord y, const wxString &text) override;

private:
    ListCtrlSource *m_matchList = nullptr; // null in the target of the match list itself
    wxWindow &m_owner;
};

} // namespace columnimport
