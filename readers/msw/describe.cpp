// SPDX-License-Identifier: MIT

#include "readers/describe.h"

#include "dragdrop/ListBoxSource.h"
#include "languages/translated.h"

#include <wx/access.h>
#include <wx/msw/private.h>

namespace columnimport {

#if wxUSE_ACCESSIBILITY

namespace {

class Named : public wxAccessible {
public:
    Named(wxWindow &window, const wxString &name) : wxAccessible(&window), m_name(name) {}

    wxAccStatus GetName(int child, wxString *name) override {
        if (child != wxACC_SELF) {
            return wxACC_NOT_IMPLEMENTED;
        }
        *name = m_name;
        return wxACC_OK;
    }

private:
    wxString m_name;
};

/// Child 0 is the list itself, child 1 is row 0. A reader may ask for a child that is gone.
class FileColumns : public Named {
public:
    FileColumns(ListBoxSource &list, const wxString &name) : Named(list, name), m_list(list) {}

    wxAccStatus GetName(int child, wxString *name) override {
        if (child == wxACC_SELF) {
            return Named::GetName(child, name);
        }
        if (child < 0 || static_cast<unsigned>(child) > m_list.GetCount()) {
            return wxACC_INVALID_ARG;
        }
        const unsigned row = static_cast<unsigned>(child) - 1;
        *name = m_list.GetString(row);
        if (m_list.isUsed(row)) {
            name->Printf(translated("%s, in use"), wxString(*name));
        }
        return wxACC_OK;
    }

private:
    ListBoxSource &m_list;
};

} // namespace

void setAccessibleName(wxWindow &control, const wxString &name) {
    control.SetAccessible(new Named(control, name));
}

void describeFileColumns(ListBoxSource &list, const wxString &name) {
    list.SetAccessible(new FileColumns(list, name));
}

#else

// Without accessibility in the toolkit, readers get the native controls.
void setAccessibleName(wxWindow &, const wxString &) {}

void describeFileColumns(ListBoxSource &, const wxString &) {}

#endif

void announceWhenShown(wxWindow &control) {
    control.Bind(wxEVT_SHOW, [&control](wxShowEvent &event) {
        if (event.IsShown()) {
            NotifyWinEvent(EVENT_SYSTEM_ALERT, control.GetHWND(), OBJID_CLIENT, CHILDID_SELF);
        }
        event.Skip();
    });
}

} // namespace columnimport
