#include "dialogs/SmallControls.h"

#include <gtk/gtk.h>
#include <wx/arrstr.h>
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

// The label is given no more of each line than can be seen: it would lay out the whole text, which
// takes longer than everything else in the dialog, several times for each showing.
void cutLongLines(wxStaticText &text) {
    GtkLabel *label = GTK_LABEL(text.GetHandle());
    gtk_label_set_line_wrap(label, FALSE);
    gtk_label_set_ellipsize(label, PANGO_ELLIPSIZE_END);

    // Characters narrower than the average one have room for as many again.
    const auto length = static_cast<std::size_t>(2 * text.GetSize().x / text.GetCharWidth());
    wxString shown;
    for (const wxString &line :
         wxSplit(wxString::FromUTF8(gtk_label_get_text(label)), '\n', '\0')) {
        shown += line.length() > length ? line.substr(0, length) + L'\x2026' : line;
        shown += '\n';
    }
    shown.RemoveLast();
    gtk_label_set_text(label, shown.utf8_str());
}

} // namespace columnimport
