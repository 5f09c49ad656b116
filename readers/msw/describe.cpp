// SPDX-License-Identifier: MIT

#include "readers/describe.h"

#include "AccessibleRows.h"
#include "dragdrop/ListBoxSource.h"
#include "dragdrop/ListCtrlSource.h"
#include "languages/translated.h"

#include <wx/access.h>
#include <wx/msw/private.h>

namespace columnimport {

namespace {

/// Child 0 of a list is the list itself, child 1 is row 0. A reader may ask for a child that is
/// gone.
class Named : public wxAccessible {
public:
    Named(wxWindow &window, const wxString &name) : wxAccessible(&window), m_name(name) {}

    wxAccStatus GetName(int child, wxString *name) override {
        if (child == wxACC_SELF) {
            *name = m_name;
            return wxACC_OK;
        }
        const auto *files = dynamic_cast<ListBoxSource *>(GetWindow());
        if (files == nullptr) {
            return wxACC_NOT_IMPLEMENTED;
        }
        if (child < 0 || static_cast<unsigned>(child) > files->GetCount()) {
            return wxACC_INVALID_ARG;
        }
        const unsigned row = static_cast<unsigned>(child) - 1;
        const wxString text = files->GetString(row);
        *name = files->isUsed(row) ? wxString::Format(translated("%s, in use"), text) : text;
        return wxACC_OK;
    }

private:
    wxString m_name;
};

class Rows : public Named {
public:
    Rows(ListCtrlSource &list, const wxString &name) : Named(list, name), m_list(list) {}

    wxAccStatus GetName(int child, wxString *name) override {
        if (child == wxACC_SELF) {
            return Named::GetName(child, name);
        }
        if (!isRow(child)) {
            return wxACC_INVALID_ARG;
        }
        *name = m_list.inWords(child - 1);
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
        *states =
            wxACC_STATE_SYSTEM_SELECTABLE | wxACC_STATE_SYSTEM_FOCUSABLE |
            (m_list.marks().isMarked(row) ? wxACC_STATE_SYSTEM_SELECTED : 0) |
            (m_list.currentRow() == row && m_list.HasFocus() ? wxACC_STATE_SYSTEM_FOCUSED : 0);
        return wxACC_OK;
    }

private:
    bool isRow(int child) const { return child > 0 && child <= m_list.GetItemCount(); }

    ListCtrlSource &m_list;
};

} // namespace

void setAccessibleName(wxWindow &control, const wxString &name) {
    control.SetAccessible(new Named(control, name));
}

void announceWhenShown(wxWindow &control) {
    control.Bind(wxEVT_SHOW, [&control](wxShowEvent &event) {
        if (event.IsShown()) {
            NotifyWinEvent(EVENT_SYSTEM_ALERT, control.GetHWND(), OBJID_CLIENT, CHILDID_SELF);
        }
        event.Skip();
    });
}

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

} // namespace columnimport
