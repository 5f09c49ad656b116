// SPDX-License-Identifier: MIT

#pragma once

#include "AccessibleRows.h" // of the platform
#include "RowMarks.h"       // of the platform
#include "dragdrop/History.h"
#include "dragdrop/MatchListKeys.h"
#include "names/NameBook.h"
#include "names/SourceMatch.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

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

    /// Appends a row with these texts.
    void appendRow(const wxString &matchText, const wxString &application);

    /// The match texts of all rows, as they are shown.
    std::vector<wxString> matchTexts() const;

    /// Writes a match text into `rows`, as it is to be shown, gives them the weight that goes with
    /// it, and tells all who are concerned. It is one step of the history.
    void setMatchTexts(const std::vector<long> &rows, const wxString &text);

    /// Writes it into the marked rows or else into the current one, which before anything was
    /// chosen is the first that reads "Not used". Then no row is marked, and the next one that
    /// reads "Not used" is the current one: a person goes on with the next name.
    void assign(const wxString &text);

    /// What was done in this list, or made it anew.
    History &history() { return m_history; }

    /// The book of the columns that this dialog shows.
    NameBook &names() { return *m_names; }

    /// Goes by `names` from now on, and gives the book back by which it went so far. The rows are
    /// to be made anew.
    void exchangeNames(std::unique_ptr<NameBook> &names) { m_names.swap(names); }

    /// Whether `row` reads "Not used".
    bool isUnused(long row) const;

    /// Shows `row` in bold if it reads "Not used" and at normal weight otherwise.
    void applyMatchFont(long row);

    /// The row at `position`, in the coordinates of the list's mouse and drag events, or
    /// wxNOT_FOUND.
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

    /// Has the list of file columns tell which of them the rows hold.
    void showUse();

    void clearMarkedRows();
    int countMarkedRows() const;
    std::vector<long> markedRows() const;

    /// The first marked row behind `row`, or wxNOT_FOUND, which starts at the first row.
    long nextMarkedRow(long row) const;

private:
    /// Writes one text into each of `rows`, and keeps in its place what the row held before.
    void exchange(const std::vector<long> &rows, std::vector<wxString> &texts);

    /// The first row behind `row`, or else from the first one on, that reads "Not used"; or
    /// wxNOT_FOUND.
    long nextUnusedRow(long row) const;

    void onLeftDown(wxMouseEvent &event);
    void onLeftUp(wxMouseEvent &event);
    void onMouseMove(wxMouseEvent &event);

    /// Tells the whole name in `row` at `position` if the column is too narrow for it.
    void tipWhereCutAt(const wxPoint &position, long row);

    std::unique_ptr<NameBook> m_names = std::make_unique<NameBook>();
    History m_history;
    RowMarks m_marks;
    AccessibleRows m_accessible;
    std::int32_t m_lastClickedRow = wxNOT_FOUND; // the anchor of a Shift range; survives a refresh
    MatchListKeys m_keys;
};

} // namespace columnimport
