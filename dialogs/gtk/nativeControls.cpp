// SPDX-License-Identifier: MIT

#include "dialogs/nativeControls.h"

#include <gtk/gtk.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/window.h>

namespace columnimport {

// The padding and the least height that themes give an entry leave nothing of a height that is less
// than theirs. Two thirds of it are room for a character with its ascenders and descenders. The
// entry is as wide as the control but for a gap on the right, where the frame around it stands.
void fitOneCharacter(wxTextCtrl &control) {
    const int height = control.GetMinSize().y;
    const wxString rules =
        wxString::Format("entry { margin-right: %dpx; padding: 0 %dpx; min-height: 0; "
                         "min-width: 0; font-size: %dpx; }",
                         height / 6, height / 8, height * 2 / 3);
    GtkCssProvider *style = gtk_css_provider_new();
    gtk_css_provider_load_from_data(style, rules.utf8_str(), -1, nullptr);
    gtk_style_context_add_provider(gtk_widget_get_style_context(control.GetHandle()),
                                   GTK_STYLE_PROVIDER(style),
                                   GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(style);
}

void cutLongLines(wxStaticText &text) {
    gtk_label_set_ellipsize(GTK_LABEL(text.GetHandle()), PANGO_ELLIPSIZE_END);
}

namespace {

void setName(GtkWidget *widget, const wxString &name) {
    atk_object_set_name(gtk_widget_get_accessible(widget), name.utf8_str());
}

} // namespace

// A list is several widgets, and the reader stops at the one that takes the keys.
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
