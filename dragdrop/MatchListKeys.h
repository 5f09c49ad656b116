// SPDX-License-Identifier: MIT

#pragma once

#include "dragdrop/clipboard.h"

#include <functional>
#include <optional>
#include <vector>

class wxKeyEvent;

namespace columnimport {

class ListCtrlSource;

/// The match list without a mouse. Beside marks and hover a third state of a row comes in, which
/// every list control has: the current row, which the arrow keys move and show as the hover does.
/// What a key writes goes into the marked rows, or else into the current one.
class MatchListKeys {
public:
    /// Hears the keys of `list`, which holds this object.
    explicit MatchListKeys(ListCtrlSource &list);
    MatchListKeys(const MatchListKeys &) = delete;
    MatchListKeys &operator=(const MatchListKeys &) = delete;

    /// The keys go on from `row`, which was clicked on.
    void startFrom(long row);

    /// The same, and `row` is shown as the current one.
    void goTo(long row);

    /// The marked rows, or else the current one, or none before a row was chosen.
    std::vector<long> chosenRows() const;

private:
    void onKeyDown(wxKeyEvent &event);
    void onCharacter(wxKeyEvent &event);

    /// What a key does, as far as it is about the texts of rows; null if it is not used for that.
    std::function<void()> workOf(const wxKeyEvent &key);

    /// The row that a key leads to, which may be none that is there; nothing if it leads nowhere.
    std::optional<long> targetOf(int key) const;

    /// The row that the keys are at, or wxNOT_FOUND.
    long currentRow() const;
    void setCurrentRow(long row);
    void showCurrentRow();

    /// Moves it to `row`, or as near as there are rows, by a key with or without Control and Shift.
    void moveCurrentRow(long row, const wxKeyEvent &key);

    void markCurrentRow(bool alone);
    void copy(long row);
    void paste(const std::vector<long> &rows);
    void pressOk();

    ListCtrlSource &m_list;
    Paste m_paste;
    long m_anchor = wxNOT_FOUND; // of a range that Shift marks; survives a refresh
};

} // namespace columnimport
