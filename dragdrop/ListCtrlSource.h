// SPDX-License-Identifier: MIT

#pragma once

#include "RowMarks.h" // of the platform
#include "dragdrop/ChangeQueue.h"
#include "dragdrop/listMouse.h"
#include "names/ColumnMatch.h"
#include "names/ShownNames.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include <wx/arrstr.h>
#include <wx/listctrl.h>
#include <wx/string.h>

namespace columnimport {

/// What a row of the match list shows, and where it came from.
struct RowMatch : ColumnMatch {
    wxString text;
};

/// The text for `count` rows, the first of which reads `first`: "Au g/t", or "Au g/t (3 rows)".
wxString rowsText(const wxString &first, std::size_t count);

/// The match list: one row per application column, with the name of its file column in the first
/// column. The rows are the only record of the matching. They hold shown texts, which `names` maps
/// to bytes. Rows in bold read "Not used", rows in italics are guesses.
///
/// Drops, keys, double clicks and pastes change rows only through `write`, `assign` and `confirm`.
/// The list reports every change to its listeners, and knows none of them.
///
/// A row has three states, independent of each other:
///  - marked: part of the user's multiple selection. A click marks one row, Control adds a row,
///    Shift adds the range from the row clicked last; a click below the rows clears all marks.
///  - hover: under the pointer, shown only while no row is marked; at most one row.
///  - current: the keyboard's row; at most one.
///
/// For example, a click on row 2 and a Shift-click on row 4 mark rows 2, 3 and 4, and no row is in
/// hover. Dragging row 3 onto the list of file columns then clears all three matches; dragging
/// row 7 would first mark row 7 alone.
class ListCtrlSource : public wxListCtrl {
public:
    using Rows = std::vector<long>;

    ListCtrlSource(wxWindow *parent, wxWindowID id, const wxPoint &position, const wxSize &size);
    ~ListCtrlSource() override;

    // ---- What the rows hold ----

    /// Replaces all rows. `names` are the names of their source, and must outlive them.
    void showRows(const std::vector<RowMatch> &matches, const wxArrayString &applications,
                  ShownNames &names);

    /// The names of the source's columns. Call it only once rows have been shown.
    ShownNames &names() const { return *m_names; }

    /// The match text of `row`, as the bytes of a file column's name or "Not used".
    std::string getMatchText(int row) const;

    /// The match of `row`.
    SourceMatch getMatch(int row) const;
    RowMatch rowMatch(long row) const;
    std::vector<RowMatch> rowMatches() const;

    /// The positions of the source columns that the rows hold.
    std::unordered_set<std::int32_t> usedColumns() const;

    /// Whether `row` reads "Not used".
    bool isUnused(long row) const;
    bool isGuess(long row) const;

    /// `row` in words: "gold: Au g/t", or "gold: Au g/t, a guess".
    wxString inWords(long row) const;

    /// Shows `row` in bold if it reads "Not used", in italics if it is a guess.
    void applyMatchFont(long row);

    // ---- Changing them ----

    /// Writes a text into `rows` as the person's choice, in the order of the queue. Skips rows that
    /// hold it already and rows that are gone; if none is left, nothing changes.
    void write(const Rows &rows, const wxString &text);

    /// Writes "Not used" into `rows`.
    void clearMatches(const Rows &rows) { write(rows, m_names->textOf(ShownNames::noColumn)); }

    /// Writes a text into the marked rows, or else into the current one, or else into the first one
    /// that reads "Not used". Then clears the marks and goes to the next row that reads "Not used",
    /// ready for the next name.
    void assign(const wxString &text);

    /// Makes the guesses in `rows` the person's choice.
    void confirm(const Rows &rows);

    /// The queue that keeps all changes in order.
    ChangeQueue &changes() { return m_changes; }

    /// Calls `changed` after each change of rows, including undo and redo. Set it before any
    /// change.
    void onChange(std::function<void(const Rows &)> changed) { m_changed = std::move(changed); }

    /// Calls `written` after each change by the person, with a step that undoes the change when run
    /// once and redoes it when run again. Set it before any change.
    void onWrite(std::function<void(std::function<void()> step)> written) {
        m_written = std::move(written);
    }

    // ---- Marks, hover and the current row ----

    RowMarks &marks() { return m_marks; }
    void clearMarkedRows();
    int countMarkedRows() const { return static_cast<int>(markedRows().size()); }
    Rows markedRows() const { return m_marks.rows(); }

    /// Marks the rows from `one` to `other`, both included, in either order. Ignores rows beyond
    /// the last one.
    void markRows(long one, long other);

    void clearHoverRows();

    /// Puts `row` alone in the hover state, unless a row is marked.
    void hoverOver(long row);

    long currentRow() const;

    /// The row from which Shift and a key mark a range; kept across refreshes.
    long keyAnchor() const { return m_keyAnchor; }
    void setKeyAnchor(long row) { m_keyAnchor = row; }

    /// Makes `row` the current one and scrolls to it. The anchor stays.
    void moveTo(long row);

    /// Moves to `row`, makes it the anchor, and highlights it.
    void goTo(long row);

    /// Clears the marks and goes to the next guess behind `row`, if there is one.
    void goToNextGuess(long row);

    /// The marked rows, or else the current one, if any.
    Rows chosenRows() const;

    // ---- The view ----

    /// The row at `position`, in the coordinates of the list's mouse and drag events; wxNOT_FOUND
    /// if there is none.
    long rowAt(const wxPoint &position) const;

    /// The row that is being dragged, or wxNOT_FOUND.
    long draggedRow() const { return m_draggedRow; }

    /// Scrolls by one row if the pointer is at the upper or lower edge of the rows. The edge is
    /// thin, so that a drop on the first or last visible row does not scroll.
    void scrollAtEdge();

    /// Lays out the rows at once. The control itself waits for the toolkit to be idle, and a very
    /// long list of file columns keeps the toolkit busy: the rows would stay blank meanwhile.
    void layOutRows() { OnInternalIdle(); }

private:
    using Matches = std::map<long, RowMatch>; // by row

    /// Gives rows these matches as one change. Skips rows that hold theirs already.
    void change(const Matches &matches);

    /// Swaps each of `matches` with what its row holds.
    void exchange(Matches &matches);

    /// The next row behind `row` that `isWanted`, wrapping at the end; wxNOT_FOUND if there is
    /// none.
    long nextRow(long row, bool (ListCtrlSource::*isWanted)(long) const) const;

    void onLeftDown(wxMouseEvent &event);
    void onLeftUp(wxMouseEvent &event);
    void onMouseMove(wxMouseEvent &event);

    /// Sets the tooltip: it explains a guess, or shows the text at `position` in full if it is cut.
    void showTip(const wxPoint &position, long row);

    ShownNames *m_names = nullptr;
    std::vector<ColumnMatch> m_origins; // by row; the texts are the control's
    std::function<void(const Rows &)> m_changed;
    std::function<void(std::function<void()>)> m_written;
    ChangeQueue m_changes;
    RowMarks m_marks;
    SecondClick m_secondClick;
    std::int32_t m_lastClickedRow = wxNOT_FOUND; // anchor of a Shift-click; kept across refreshes
    long m_keyAnchor = wxNOT_FOUND;
    long m_draggedRow = wxNOT_FOUND;
};

} // namespace columnimport
