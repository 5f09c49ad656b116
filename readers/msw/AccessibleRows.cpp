// SPDX-License-Identifier: MIT

#include "AccessibleRows.h"

#include "dragdrop/ListCtrlSource.h"
#include "readers/describe.h"

#include <wx/access.h>

namespace columnimport {

#if wxUSE_ACCESSIBILITY

namespace {

/// Child 0 is the list itself, child 1 is row 0. A reader may ask for a child that is gone.
class Rows : public wxAccessible {
public:
    Rows(ListCtrlSource &list, const wxString &name)
        : wxAccessible(&list), m_list(list), m_name(name) {}

    wxAccStatus GetName(int child, wxString *name) override {
        if (child != wxACC_SELF && !isRow(child)) {
            return wxACC_INVALID_ARG;
        }
        *name = child == wxACC_SELF ? m_name : rowText(m_list, child - 1);
        return wxACC_OK;
    }

    wxAccStatus GetState(int child, long *states) override {
        if (child == wxACC_SELF) {
            return wxACC_NOT_IMPLEMENTED;
        }
        if (!isRow(child)) {
            return wxACC_INVALID_ARG;
        }
        const int row = child - 1;
        const bool isCurrent = m_list.GetItemState(row, wxLIST_STATE_FOCUSED) != 0;
        *states = wxACC_STATE_SYSTEM_SELECTABLE | wxACC_STATE_SYSTEM_FOCUSABLE |
                  (m_list.marks().isMarked(row) ? wxACC_STATE_SYSTEM_SELECTED : 0) |
                  (isCurrent && m_list.HasFocus() ? wxACC_STATE_SYSTEM_FOCUSED : 0);
        return wxACC_OK;
    }

private:
    bool isRow(int child) const { return child > 0 && child <= m_list.GetItemCount(); }

    ListCtrlSource &m_list;
    wxString m_name;
};

} // namespace

AccessibleRows::AccessibleRows(ListCtrlSource &list, const wxString &name) : m_list(list) {
    list.SetAccessible(new Rows(list, name));
}

void AccessibleRows::announce(const std::vector<long> &rows) {
    for (const long row : rows) {
        wxAccessible::NotifyEvent(wxACC_EVENT_OBJECT_NAMECHANGE, &m_list, wxOBJID_CLIENT,
                                  static_cast<int>(row) + 1);
    }
    wxAccessible::NotifyEvent(wxACC_EVENT_SYSTEM_ALERT, &m_list, wxOBJID_CLIENT,
                              static_cast<int>(rows.front()) + 1);
}

#else

// Without accessibility in the toolkit, readers get the native control.
AccessibleRows::AccessibleRows(ListCtrlSource &list, const wxString &) : m_list(list) {}

void AccessibleRows::announce(const std::vector<long> &) {}

#endif

} // namespace columnimport
