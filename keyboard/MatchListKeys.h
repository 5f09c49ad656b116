// SPDX-License-Identifier: MIT

#pragma once

#include "keyboard/Paste.h"

#include <optional>

#include <wx/event.h>

namespace columnimport {

class ListCtrlSource;

/// The keys of the match list. The arrow keys move the current row and highlight it. A key that
/// writes does so in the marked rows, or else in the current one.
class MatchListKeys : public wxEvtHandler {
public:
    /// Attaches itself to `list`, which must outlive this object.
    explicit MatchListKeys(ListCtrlSource &list);

private:
    void onKeyDown(wxKeyEvent &event);
    void onReturn(wxKeyEvent &event);
    void onCharacter(wxKeyEvent &event);

    /// Handles a key that changes or copies a row's text; false if it is another key.
    bool edit(const wxKeyEvent &key);

    /// The row to which a key moves, which may be out of range; none for other keys.
    std::optional<long> targetOf(int key) const;

    /// Moves the current row to `row` or to the nearest one there is. Control and Shift of `key`
    /// count.
    void moveCurrentRow(long row, const wxKeyEvent &key);

    void showCurrentRow();
    void markCurrentRow(bool alone);
    void copy(long row);

    ListCtrlSource &m_list;
    Paste m_paste;
};

} // namespace columnimport
