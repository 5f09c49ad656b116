// SPDX-License-Identifier: MIT

#include "AccessibleRows.h"

#include "RowMarks.h"

#include <wx/access.h>
#include <wx/listctrl.h>

namespace columnimport {

#if wxUSE_ACCESSIBILITY

namespace {

/// Child number 1 is row 0; the list itself is number 0.
class Rows : public wxAccessible {
public:
    Rows(wxListCtrl &list, RowMarks &marks, const wxString &name)
        : wxAccessible(&list), m_list(list), m_marks(marks), m_name(name) {}

    wxAccStatus GetName(int child, wxString *name) override {
        const int row = child - 1;
        *name = child == wxACC_SELF ? m_name
                                    : m_list.GetItemText(row, 1) + ": " + m_list.GetItemText(row);
        return wxACC_OK;
    }

    wxAccStatus GetState(int child, long *states) override {
        const int row = child - 1;
        if (child == wxACC_SELF) {
            return wxACC_NOT_IMPLEMENTED;
        }
        const bool isCurrent = m_list.GetItemState(row, wxLIST_STATE_FOCUSED) != 0;
        *states = wxACC_STATE_SYSTEM_SELECTABLE | wxACC_STATE_SYSTEM_FOCUSABLE |
                  (m_marks.isMarked(row) ? wxACC_STATE_SYSTEM_SELECTED : 0) |
                  (isCurrent && m_list.HasFocus() ? wxACC_STATE_SYSTEM_FOCUSED : 0);
        return wxACC_OK;
    }

private:
    wxListCtrl &m_list;
    RowMarks &m_marks;
    wxString m_name;
};

} // namespace

AccessibleRows::AccessibleRows(wxListCtrl &list, RowMarks &marks, const wxString &name)
    : m_list(list) {
    list.SetAccessible(new Rows(list, marks, name));
}

void AccessibleRows::tell(const std::vector<long> &rows) {
    for (const long row : rows) {
        wxAccessible::NotifyEvent(wxACC_EVENT_OBJECT_NAMECHANGE, &m_list, wxOBJID_CLIENT,
                                  static_cast<int>(row) + 1);
    }
    wxAccessible::NotifyEvent(wxACC_EVENT_SYSTEM_ALERT, &m_list, wxOBJID_CLIENT,
                              static_cast<int>(rows.front()) + 1);
}

#else

// A toolkit that is built without it leaves the readers to the native control.
AccessibleRows::AccessibleRows(wxListCtrl &list, RowMarks &, const wxString &) : m_list(list) {}

void AccessibleRows::tell(const std::vector<long> &) {}

#endif

} // namespace columnimport
