// SPDX-License-Identifier: MIT

#include "readers/describe.h"

#include <gtk/gtk.h>
#include <wx/window.h>

namespace columnimport {

namespace {

void setName(GtkWidget *widget, const wxString &name) {
    atk_object_set_name(gtk_widget_get_accessible(widget), name.utf8_str());
}

} // namespace

// A list consists of several widgets, and a reader stops at the one that takes the keys. The cells
// of the file columns describe their check marks themselves.
void setAccessibleName(wxWindow &control, const wxString &name) {
    setName(control.GetHandle(), name);
    if (control.m_focusWidget != nullptr) {
        setName(control.m_focusWidget, name);
    }
    for (wxWindow *part : control.GetChildren()) {
        setAccessibleName(*part, name);
    }
}

void announceWhenShown(wxWindow &control) {
    atk_object_set_role(gtk_widget_get_accessible(control.GetHandle()), ATK_ROLE_NOTIFICATION);
}

} // namespace columnimport
