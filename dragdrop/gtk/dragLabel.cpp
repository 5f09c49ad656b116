// SPDX-License-Identifier: MIT

#include "RunningDrag.h"

#include <gtk/gtk.h>
#include <wx/settings.h>

namespace columnimport {

namespace {

wxString cssColour(wxSystemColour colour) {
    return wxSystemSettings::GetColour(colour).GetAsString(wxC2S_CSS_SYNTAX);
}

} // namespace

GtkWidget *RunningDrag::makeLabel(const wxString &text) {
    GtkWidget *label = gtk_label_new(text.utf8_str());
    gtk_label_set_single_line_mode(GTK_LABEL(label), TRUE);
    gtk_label_set_ellipsize(GTK_LABEL(label), PANGO_ELLIPSIZE_END);
    gtk_label_set_max_width_chars(GTK_LABEL(label), 40);
    const wxString style = wxString::Format(
        "label { padding: 2px 6px; border: 1px solid %s; background-color: %s; color: %s; }",
        cssColour(wxSYS_COLOUR_LISTBOXTEXT), cssColour(wxSYS_COLOUR_LISTBOX),
        cssColour(wxSYS_COLOUR_LISTBOXTEXT));
    GtkCssProvider *provider = gtk_css_provider_new();
    gtk_css_provider_load_from_data(provider, style.utf8_str(), -1, nullptr);
    gtk_style_context_add_provider(gtk_widget_get_style_context(label),
                                   GTK_STYLE_PROVIDER(provider),
                                   GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(provider);
    gtk_widget_show(label);
    // Without a size request, the window would shrink a label that may be cut to its ellipsis.
    int width = 0;
    gtk_widget_get_preferred_width(label, nullptr, &width);
    gtk_widget_set_size_request(label, width, -1);
    return GTK_WIDGET(g_object_ref_sink(label));
}

} // namespace columnimport
