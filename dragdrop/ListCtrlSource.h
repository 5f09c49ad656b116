// SPDX-License-Identifier: MIT

#pragma once

#include "RowMarks.h" // of the platform
#include "dragdrop/ChangeQueue.h"
#include "dragdrop/RowMatch.h"
#include "dragdrop/SecondClick.h"
#include "names/ColumnMatch.h"
#include "names/ShownNames.h"

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include <wx/listctrl.h>

namespace columnimport {

/// The match list: one row per application column, with the matched file column's name in its first
/// column. The rows are the only record of the current matching. They hold shown texts; `names`
/// maps them to bytes. A row in bold reads "Not used", a row in italics is a guess.
///
/// A person's changes reach the rows only through `write`, `assign` and `confirm`, whether by drop,
/// key, double click or paste. The list reports every change to its listeners, and knows none of
/// them.
///
/// A row has three states, independent of each other:
///  - marked: it belongs to the user's multiple selection. A click marks one row, Control adds a
///    row, Shift adds the range from the row clicked last; a click below the rows clears all marks.
///  - hover: the row under the pointer, shown only while no row is marked; at most one.
///  - current: the row that the keys are at; at most one.
///
/// For example, after a click on row 2 and a Shift-click on row 4 the rows 2, 3 and 4 are marked,
/// and no row is in hover. Dragging row 3 onto the list of file columns then clears all three
/// matches; dragging row 7 first leaves row 7 alone marked.
class ListCtrlSource : public wxListCtrl {
public:
    using Rows = std::vector<long>;

    ListCtrlSource(wxWindow *parent, wxWindowID id, const wxPoint &position, const wxSize &size);
    ~ListCtrlSource() override;

    // ---- What the rows hold ----

    /// Replaces all rows. `names` are those of the source from now on, and must outlive the rows.
    void showRows(const std::vector<RowMatch> &matches, const wxArrayString &applications,
                  ShownNames &names);

    /// The names of the source's columns; to be called once rows have been shown.
    ShownNames &names() const { return *m_names; }

    /// The match text of `row`, as the bytes of a file column's name or "Not used".
    std::string getMatchText(int row) const;

    /// What stands in `row`.
    SourceMatch getMatch(int row) const;
    RowMatch rowMatch(long row) const;
    std::vector<RowMatch> rowMatches() const;

    /// The positions of the source columns that the rows hold.
    std::unordered_set<std::int32_t> usedColumns() const;

    /// Whether `row` reads "Not used".
    bool isUnused(long row) const;
    bool isGuess(long row) const;

    /// Shows `row` in bold if it reads "Not used", in italics if it is a guess.
    void applyMatchFont(long row);

    // ---- Changing them ----

    /// Writes a text into `rows` as the person's choice, in its turn. Skips rows that hold it
    /// already and rows that are gone; if none is left, nothing changes.
    void write(const Rows &rows, const wxString &text);

    /// The same with the text of "Not used".
    void clearMatches(const Rows &rows) { write(rows, m_names->textOf(ShownNames::noColumn)); }

    /// Writes a text into the marked rows or else the current one; before any row was chosen, into
    /// the first that reads "Not used". Then makes the next such row the current one and clears the
    /// marks, ready for the next name.
    void assign(const wxString &text);

    /// Makes the guesses in `rows` the person's choice.
    void confirm(const Rows &rows);

    /// The queue in which all these changes are made.
    ChangeQueue &changes() { return m_changes; }

    /// Calls `changed` after rows have been written, by undo too.
    void onChange(std::function<void(const Rows &)> changed) { m_changed = std::move(changed); }

    /// Calls `written` after a change by the person. The step swaps the rows' matches with those
    /// before: run once it undoes the change, run again it redoes it.
    void onWrite(std::function<void(std::function<void()> step)> written) {
        m_written = std::move(written);
    }

    // ---- Marks, hover and the current row ----

    RowMarks &marks() { return m_marks; }
    void clearMarkedRows();
    int countMarkedRows() const { return static_cast<int>(markedRows().size()); }
    Rows markedRows() const;

    /// Marks the rows from `one` to `other`, both included, in either order. Ignores rows behind
    /// the last one.
    void markRows(long one, long other);

    void clearHoverRows();

    /// Puts `row` alone in the hover state, unless a row is marked.
    void hoverOver(long row);

    long currentRow() const;

    /// The row from which Shift and a key mark a range. It survives a refresh.
    long keyAnchor() const { return m_keyAnchor; }
    void setKeyAnchor(long row) { m_keyAnchor = row; }

    /// Makes `row` the current one and brings it into view; the anchor of the keys stays.
    void moveTo(long row);

    /// The same, moves the anchor to `row`, and highlights the row.
    void goTo(long row);

    /// Goes to the next guess behind `row`, if there is one, and clears the marks.
    void goToNextGuess(long row);

    /// The marked rows, or else the current one, or none before a row was chosen.
    Rows chosenRows() const;

    // ---- The view ----

    /// The row at `position`, in the coordinates of the list's mouse and drag events, or
    /// wxNOT_FOUND.
    long rowAt(const wxPoint &position) const;

    /// The row that is being dragged, or wxNOT_FOUND.
    long draggedRow() const { return m_draggedRow; }

    /// Scrolls by one row if the pointer is at the upper or lower edge of the rows. The edge is
    /// thin, so that a drop on the first or last row in view does not scroll by accident.
    void scrollAtEdge();

    /// Lays out the rows at once. The control waits until the toolkit is idle, and with very many
    /// file columns the other list keeps it busy; the rows would stay blank until then.
    void layOutRows() { OnInternalIdle(); }

private:
    /// Gives `rows` these matches as one change, and skips rows that hold theirs already.
    void change(const Rows &rows, const std::vector<RowMatch> &matches);

    /// Swaps each of `matches` with what its row holds.
    void exchange(const Rows &rows, std::vector<RowMatch> &matches);

    /// The next row behind `row` that `isWanted`, from the first row on after the last; or
    /// wxNOT_FOUND.
    template <typename Wanted>
    long nextRow(long row, const Wanted &isWanted) const;

    /// The first marked row behind `row`, or wxNOT_FOUND, which starts at the first row.
    long nextMarkedRow(long row) const { return m_marks.next(row); }

    void onLeftDown(wxMouseEvent &event);
    void onLeftUp(wxMouseEvent &event);
    void onMouseMove(wxMouseEvent &event);

    /// Explains a guess in a tooltip, or gives the whole text at `position` if it is cut.
    void showTip(const wxPoint &position, long row);

    ShownNames *m_names = nullptr;
    std::vector<ColumnMatch> m_origins; // by row; the texts are the control's
    std::function<void(const Rows &)> m_changed;
    std::function<void(std::function<void()>)> m_written;
    ChangeQueue m_changes;
    RowMarks m_marks;
    SecondClick m_secondClick;
    std::int32_t m_lastClickedRow = wxNOT_FOUND; // the anchor of a Shift range; survives a refresh
    long m_keyAnchor = wxNOT_FOUND;
    long m_draggedRow = wxNOT_FOUND;
};

} // namespace columnimport
