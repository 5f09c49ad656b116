// SPDX-License-Identifier: MIT

#include <wxImportCSVDialogPeer.h>

#include <clocale>
#include <iostream>

#include <gtk/gtk.h>

int main(int argc, char **argv) {
    std::setlocale(LC_ALL, "");
    wxImportCSVDialogPeer peer;
    gtk_init(&argc, &argv);
    GtkWidget *window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_widget_show(window);

    const std::vector<std::string> columns = {"holename", "easting", "northing", "elevation"};
    std::vector<std::string> matches;
    bool useSavedMatches = false;
    bool firstLineHeader = true;
    char delimiter = ',';

    const bool ok =
        peer.showWindow(window, "Import collars", columns, argc > 1 ? argv[1] : "",
                        &useSavedMatches, &matches, &delimiter, &firstLineHeader, 900, 840);
    for (std::size_t i = 0; i < matches.size(); ++i) {
        std::cout << columns[i] << " <- " << matches[i] << '\n';
    }
    return ok ? 0 : 1;
}
