// SPDX-License-Identifier: MIT

#pragma once

#include <unordered_map>
#include <vector>

#include <wx/event.h>

using AtkObject = struct _AtkObject; // NOLINT(bugprone-reserved-identifier): ATK's name for it

class wxListEvent;

namespace columnimport {

class ListCtrlSource;

/// The rows of the match list for a screen reader. The list control draws them itself, so a reader
/// would find one empty area. An invisible widget in that area represents them as a list of items.
///
///     gold is to get Au g/t       an item "gold: Au g/t"
///     the same as a guess         an item "gold: Au g/t, a guess"
///     gold gets nothing           an item "gold: Not used"
///     the row is marked           the item is selected
///     the keyboard is at it       the item has the focus
///
/// An item is created when a reader first asks for it and retired with its row, so rows cost
/// nothing where no reader runs.
///
/// It is an event handler, so that it gets no events from a control that is being destroyed.
class AccessibleRows : public wxEvtHandler {
public:
    /// Attaches itself to `list`, which must outlive this object. `name` is the list's name.
    AccessibleRows(ListCtrlSource &list, const wxString &name);
    ~AccessibleRows() override;
    AccessibleRows(const AccessibleRows &) = delete;
    AccessibleRows &operator=(const AccessibleRows &) = delete;

    /// Lets the reader announce the present texts of `rows`, wherever the focus is. `rows` must not
    /// be empty.
    void announce(const std::vector<long> &rows);

    // For the accessible objects.
    ListCtrlSource &list() const { return m_list; }
    AtkObject *item(long row);

private:
    /// Creates the item of `row`. The caller owns a reference; a reader may keep one longer.
    AtkObject *makeItem(long row);

    /// Reports to readers that still have `item` that its row is gone.
    static void retireItem(AtkObject *item);

    void reportMark(long row);
    void reportCurrentRow(long row);
    void onCurrentRow(wxListEvent &event);
    void onNoRows(wxListEvent &event);
    void onFocus(wxFocusEvent &event);
    void forgetItems();

    ListCtrlSource &m_list;
    AtkObject *m_accessible; // of the widget that represents the rows
    std::unordered_map<long, AtkObject *> m_items;
    long m_reportedRow = wxNOT_FOUND; // the current row that was last reported
};

} // namespace columnimport
