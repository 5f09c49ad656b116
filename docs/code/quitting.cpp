// SPDX-License-Identifier: MIT

#include <wxImportCSVDialogPeer.h>

#include <gtk/gtk.h>

namespace {

bool importIsOpen = false;
bool quitIsWanted = false;

} // namespace

// Connected to the "destroy" signal of the host's window, and to its menu's Quit.
void quit() {
    quitIsWanted = true;
    if (!importIsOpen) {
        gtk_main_quit();
    }
}

void import(GtkWidget *window, const char *fileName) {
    bool useSavedMatches = true;
    bool firstLineHoldsTitles = true;
    char delimiter = ',';
    std::vector<std::string> matches;

    importIsOpen = true;
    wxImportCSVDialogPeer peer;
    peer.showWindow(window, "Import", {"holename", "x"}, fileName, &useSavedMatches, &matches,
                    &delimiter, &firstLineHoldsTitles, 900, 840);
    importIsOpen = false;
    if (quitIsWanted) {
        gtk_main_quit();
    }
}
