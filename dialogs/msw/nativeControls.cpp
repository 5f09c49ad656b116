// SPDX-License-Identifier: MIT

#include "dialogs/nativeControls.h"

#include <wx/access.h>
#include <wx/msw/private.h>
#include <wx/stattext.h>
#include <wx/window.h>

namespace columnimport {

// The native control shows its character at any height.
void fitOneCharacter(wxTextCtrl &) {}

// The native control wraps lines unless it is told that each stays one, and cuts it at its edge.
void cutLongLines(wxStaticText &text) {
    const LONG_PTR style = GetWindowLongPtrW(text.GetHWND(), GWL_STYLE);
    SetWindowLongPtrW(text.GetHWND(), GWL_STYLE, (style & ~SS_TYPEMASK) | SS_LEFTNOWORDWRAP);
}

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

} // namespace

void setAccessibleName(wxWindow &control, const wxString &name) {
    control.SetAccessible(new Named(control, name));
}

#else

// A toolkit that is built without it leaves the readers to the native controls.
void setAccessibleName(wxWindow &, const wxString &) {}

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
