// SPDX-License-Identifier: MIT

#pragma once

#include <unordered_map>
#include <vector>

#include <wx/event.h>

using AtkObject = struct _AtkObject; // NOLINT(bugprone-reserved-identifier): ATK's name for it

class wxListCtrl;
class wxListEvent;

namespace columnimport {

class RowMarks;

/// The rows of the match list for a screen reader. The list control draws them itself, so that a
/// reader would find one empty area. A widget that shows nothing stands in that area and speaks
/// for the rows: it is a list, and each row an item of it.
///
///     gold is to get Au g/t       an item "gold: Au g/t"
///     gold gets nothing           an item "gold: Not used"
///     the row is marked           the item is selected
///     the keyboard is at it       the item has the focus
///
/// An item is made when a reader first asks for it, and all go with the rows: a list of very many
/// rows costs nothing where nobody listens.
///
/// The control deletes its rows, and may lose the focus, as it goes itself: an event handler that
/// has gone hears nothing of that.
class AccessibleRows : public wxEvtHandler {
public:
    /// To be made after the control and its marks, and to go before them. `name` tells the list
    /// from other lists.
    AccessibleRows(wxListCtrl &list, RowMarks &marks, const wxString &name);
    ~AccessibleRows() override;
    AccessibleRows(const AccessibleRows &) = delete;
    AccessibleRows &operator=(const AccessibleRows &) = delete;

    /// Has the reader say what now stands in `rows`, which are not none, wherever it is.
    void tell(const std::vector<long> &rows);

    // What the items ask for.
    wxListCtrl &list() const { return m_list; }
    RowMarks &marks() const { return m_marks; }
    wxString textOf(long row) const;
    AtkObject *item(long row);
    bool hasFocus() const;

private:
    void noteMark(long row);
    void noteCurrentRow(long row);
    void onCurrentRow(wxListEvent &event);
    void onNoRows(wxListEvent &event);
    void onFocus(wxFocusEvent &event);
    void forgetItems();

    wxListCtrl &m_list;
    RowMarks &m_marks;
    AtkObject *m_accessible; // of the widget that speaks for the rows
    std::unordered_map<long, AtkObject *> m_items;
    long m_toldRow = wxNOT_FOUND; // the current row, as the reader has been told
};

} // namespace columnimport
