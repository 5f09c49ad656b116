// SPDX-License-Identifier: MIT

#pragma once

#include "AccessibleRows.h" // of the platform
#include "RowMarks.h"       // of the platform
#include "dragdrop/MatchListKeys.h"
#include "names/NameBook.h"
#include "names/SourceMatch.h"

#include <cstdint>
#include <string>

#include <wx/listctrl.h>

namespace columnimport {

/// The match list: one row per application column, with the matched file column's name in its first
/// column. The rows are the only record of the current matching. They hold the texts under which
/// the names are shown; `names` knows the bytes that these stand for.
///
/// Two states of a row, independent of each other:
///  - marked: the row belongs to the user's multiple selection. A click marks one row, Control adds
///    a row, Shift adds the range from the row clicked last; a click below the rows clears all.
///  - hover: the row under the pointer, shown only while no row is marked; at most one.
///
/// For example, after a click on row 2 and a Shift-click on row 4 the rows 2, 3 and 4 are marked,
/// and no row is in hover. Dragging row 3 onto the list of file columns then clears all three
/// matches; dragging row 7 first leaves row 7 alone marked.
class ListCtrlSource : public wxListCtrl {
public:
    ListCtrlSource(wxWindow *parent, wxWindowID id, const wxPoint &position, const wxSize &size);
    ~ListCtrlSource() override;

    /// The match text of `row`, as the bytes of a file column's name or "Not used".
    std::string getMatchText(int row) const;

    /// What stands in `row`.
    SourceMatch getMatch(int row) const;

    /// Writes a match text into `row`, as it is to be shown, and gives the row the weight that goes
    /// with it.
    void setMatchText(long row, const wxString &text);

    /// The same for all marked rows.
    void setMarkedMatchTexts(const wxString &text);

    /// The book of the columns that this dialog shows.
    NameBook &names() { return m_names; }

    /// Shows `row` in bold if it reads "Not used" and at normal weight otherwise.
    void applyMatchFont(long row);

    /// The row at `position`, in the coordinates of the list's mouse and drag events, or -1.
    long rowAt(const wxPoint &position) const;

    /// Puts `row` alone in the hover state, unless a row is marked.
    void hoverOver(long row);

    /// Scrolls by one row if the pointer is at the upper or lower edge of the rows, which moves
    /// another row under it. The edge is thin, so that a drop on the first or last row in view is
    /// no matter of luck.
    void scrollAtEdge();

    /// Gives the rows their places at once. Left to the control, which waits until the toolkit is
    /// idle, they are blank till then: with very many file columns, for as long as the list of
    /// those takes to measure its own rows.
    void layOutRows();

    void clearHoverRows();

    /// Marks the rows from `one` to `other`, both included, in either order.
    void markRows(long one, long other);

    void clearMarkedRows();
    int countMarkedRows() const;

    /// The first marked row behind `row`, or -1; -1 starts at the first row.
    long nextMarkedRow(long row) const;

private:
    void onLeftDown(wxMouseEvent &event);
    void onLeftUp(wxMouseEvent &event);
    void onMouseMove(wxMouseEvent &event);

    /// Tells the whole name in `row` at `position` if the column is too narrow for it.
    void tipWhereCutAt(const wxPoint &position, long row);

    NameBook m_names;
    RowMarks m_marks;
    AccessibleRows m_accessible;
    std::int32_t m_lastClickedRow = -1; // the anchor of a Shift range; survives a refresh
    MatchListKeys m_keys;
};

} // namespace columnimport
