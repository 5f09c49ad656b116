// SPDX-License-Identifier: MIT

#include "person/gtk/inkOf.h"

#include "person/openDialog.h"

#include <cstdlib>

#include <gtk/gtk.h>
#include <wx/bitmap.h>
#include <wx/image.h>

// Uses the entry's drag picture, which exists before the entry has its place.
wxRect inkOf(int entry, int width) {
    GtkTreePath *path = gtk_tree_path_new_from_indices(entry, -1);
    cairo_surface_t *dragged =
        gtk_tree_view_create_row_drag_icon(GTK_TREE_VIEW(fileList().m_focusWidget), path);
    gtk_tree_path_free(path);
    constexpr int border = 2;
    const int height = fileList().GetCharHeight();
    const wxImage picture =
        wxBitmap(gdk_pixbuf_get_from_surface(dragged, border, border, width, height))
            .ConvertToImage();
    cairo_surface_destroy(dragged);
    wxRect ink;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            if (std::abs(picture.GetRed(x, y) - picture.GetRed(0, 0)) > 60) {
                ink.Union(wxRect(x, y, 1, 1));
            }
        }
    }
    return ink;
}
