// SPDX-License-Identifier: MIT

#pragma once

#include "dragdrop/FileEntries.h"
#include "dragdrop/listMouse.h"

#include <cstdint>
#include <functional>
#include <unordered_set>
#include <utility>

#include <wx/arrstr.h>
#include <wx/listbox.h>

namespace columnimport {

/// The list of file columns, from which names are dragged onto rows of the match list.
///
/// It handles the left button itself: a press selects an entry, the first move with the button down
/// over an entry drags its text, and a double click picks the entry. A check mark precedes each
/// name that the match list uses; it is not part of the entry's text.
class ListBoxSource : public wxListBox {
public:
    ListBoxSource(wxWindow *parent, wxWindowID id, const wxPoint &position, const wxSize &size);

    /// Calls `picked` with the text of each picked entry. Set it before any pick.
    void onPick(std::function<void(const wxString &text)> picked) { m_picked = std::move(picked); }

    /// Picks the entry `row`, unless it is wxNOT_FOUND.
    void pick(int row);

    /// Replaces all entries by `names`, without check marks.
    void showNames(const wxArrayString &names);

    /// Puts check marks before the names at exactly these positions.
    void showUse(const std::unordered_set<std::int32_t> &used);
    bool isUsed(unsigned row) const { return m_entries.isMarked(row); }

    const wxArrayString &names() const { return m_names; }

    /// Selects the entry `row`; the arrow keys continue from it.
    void goTo(int row) { m_entries.goTo(row); }

    /// The name of an entry.
    wxString GetString(unsigned row) const override;

private:
    void onLeftDown(wxMouseEvent &event);
    void onLeftUp(wxMouseEvent &event);
    void onMouseMove(wxMouseEvent &event);

    std::function<void(const wxString &)> m_picked;
    wxArrayString m_names;
    FileEntries m_entries;
    SecondClick m_secondClick;
};

} // namespace columnimport
