// SPDX-License-Identifier: MIT

#pragma once

#include "keyboard/Paste.h"

#include <optional>

#include <wx/event.h>

namespace columnimport {

class ListCtrlSource;

/// The keys of the match list. The arrow keys move the current row and show it as the row under the
/// pointer is shown. A key that writes does so in the marked rows, or else in the current one.
class MatchListKeys : public wxEvtHandler {
public:
    /// Attaches itself to `list`, which must outlive this object.
    explicit MatchListKeys(ListCtrlSource &list);

private:
    void onKeyDown(wxKeyEvent &event);
    void onReturn(wxKeyEvent &event);
    void onCharacter(wxKeyEvent &event);

    /// Does what `key` does to the texts of rows; false if it does nothing to them.
    bool edit(const wxKeyEvent &key);

    /// The row that a key leads to, which may be out of range; none if it leads nowhere.
    std::optional<long> targetOf(int key) const;

    /// Moves the current row to `row`, or as near as there are rows, by a key that may come with
    /// Control or Shift.
    void moveCurrentRow(long row, const wxKeyEvent &key);

    void showCurrentRow();
    void markCurrentRow(bool alone);
    void copy(long row);

    ListCtrlSource &m_list;
    Paste m_paste;
};

} // namespace columnimport
