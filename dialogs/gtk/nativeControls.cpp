// SPDX-License-Identifier: MIT

#include "dialogs/nativeControls.h"

#include <gtk/gtk.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace columnimport {

// Themes give entries more padding and a greater minimum height. A character with ascenders and
// descenders fits at two thirds of the height. A margin on the right keeps the frame around the
// entry visible.
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

} // namespace columnimport
