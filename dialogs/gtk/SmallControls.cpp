#include "dialogs/SmallControls.h"

#include <gtk/gtk.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace columnimport {

// The padding and the least height that themes give an entry leave nothing of 20 pixels.
void fitOneCharacter(wxTextCtrl &control) {
    GtkCssProvider *style = gtk_css_provider_new();
    gtk_css_provider_load_from_data(
        style, "entry { padding: 0 4px; min-height: 0; min-width: 0; font-size: 13px; }", -1,
        nullptr);
    gtk_style_context_add_provider(gtk_widget_get_style_context(control.GetHandle()),
                                   GTK_STYLE_PROVIDER(style),
                                   GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(style);
}

void cutLongLines(wxStaticText &text) {
    GtkLabel *label = GTK_LABEL(text.GetHandle());
    gtk_label_set_line_wrap(label, FALSE);
    gtk_label_set_ellipsize(label, PANGO_ELLIPSIZE_END);
}

} // namespace columnimport
