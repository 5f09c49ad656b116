// SPDX-License-Identifier: MIT

#include "host/gtk/frameShadow.h"

#include <algorithm>

#include <gtk/gtk.h>
#include <wx/dialog.h>

namespace columnimport {

namespace {

/// The edges of a window's content, with the title bar if it is GTK's own.
struct Edges {
    int left = G_MAXINT;
    int top = G_MAXINT;
    int right = 0;
    int bottom = 0;
};

void include(GtkWidget *part, void *data) {
    auto &edges = *static_cast<Edges *>(data);
    GtkAllocation place;
    gtk_widget_get_allocation(part, &place);
    edges.left = std::min(edges.left, place.x);
    edges.top = std::min(edges.top, place.y);
    edges.right = std::max(edges.right, place.x + place.width);
    edges.bottom = std::max(edges.bottom, place.y + place.height);
}

} // namespace

wxSize frameShadow(const wxDialog &dialog) {
    GtkWidget *window = dialog.GetHandle();
    Edges edges;
    gtk_container_forall(GTK_CONTAINER(window), include, &edges);
    GtkAllocation whole;
    gtk_widget_get_allocation(window, &whole);
    return {whole.width - (edges.right - edges.left), whole.height - (edges.bottom - edges.top)};
}

} // namespace columnimport
