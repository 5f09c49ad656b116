// SPDX-License-Identifier: MIT

#pragma once

#include "UseMarks.h" // of the platform

#include <cstdint>
#include <unordered_set>

#include <wx/arrstr.h>
#include <wx/listbox.h>
#include <wx/longlong.h>

namespace columnimport {

/// The list of file columns, from which names are dragged onto rows of the match list.
///
/// It takes the left button for itself: a press selects the entry under it, and the first move with
/// the button down over an entry drags that entry's text. A second click, or Ctrl+Enter, writes the
/// text into the match list. The list is not changed by any of them, but for the check mark before
/// each name which the match list holds. The mark is no part of the entry's text.
///
/// What is typed selects the next entry that begins with it, or else the next one that contains it.
class ListBoxSource : public wxListBox {
public:
    ListBoxSource(wxWindow *parent, wxWindowID id, const wxPoint &position, const wxSize &size);
    ~ListBoxSource() override;

    /// Replaces all entries by `names`, none of which is in use.
    void showNames(const wxArrayString &names);

    /// Shows the columns at these positions, and no others, as in use.
    void showUse(const std::unordered_set<std::int32_t> &used);

    const wxArrayString &names() const { return m_names; }

    /// The name in an entry.
    wxString GetString(unsigned row) const override;

private:
    void onLeftDown(wxMouseEvent &event);
    void onMouseMove(wxMouseEvent &event);
    void onKeyDown(wxKeyEvent &event);
    void onReturn(wxKeyEvent &event);
    void onCharacter(wxKeyEvent &event);
    void assign(int row);

    wxArrayString m_names;
    UseMarks m_useMarks;
    wxString m_typed;     // to be found
    wxLongLong m_typedAt; // when its last character was typed, in milliseconds
};

} // namespace columnimport
