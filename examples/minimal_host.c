/* SPDX-License-Identifier: MIT */

#include <columnimport.h>

#include <locale.h>
#include <stdio.h>

#include <gtk/gtk.h>

int main(int argc, char **argv) {
    setlocale(LC_ALL, "");
    gtk_init(&argc, &argv);
    GtkWidget *window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_widget_show(window);

    const char *const columns[] = {"holename", "easting", "northing", "elevation"};
    columnimport_import *import = columnimport_new();
    columnimport_set_title(import, "Import collars");
    columnimport_set_file(import, argc > 1 ? argv[1] : "");
    for (int32_t i = 0; i < 4; ++i) {
        columnimport_add_column(import, columns[i]);
    }
    columnimport_add_alternative(import, 3, "RL");
    columnimport_set_required(import, 0, 1);

    const int32_t outcome = columnimport_show(import, window);
    for (int32_t i = 0; outcome <= columnimport_cancelled && i < 4; ++i) {
        const char *name = columnimport_match_name(import, i, NULL);
        printf("%s <- %s\n", columns[i], name != NULL ? name : "");
    }
    if (outcome > columnimport_cancelled) {
        fprintf(stderr, "%s\n", columnimport_message(import));
    }
    columnimport_free(import);
    return outcome;
}
