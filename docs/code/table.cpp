// SPDX-License-Identifier: MIT

#include <wxImportCSVDialogPeer.h>

// The names come from the host's own connection; the library opens no database.
std::vector<std::string> matchTable(columnimport::HostWindow window,
                                    const std::vector<std::string> &tableColumns) {
    bool useSavedMatches = true; // show the table's names; false would number them
    std::vector<std::string> matches;
    wxImportCSVDialogPeer peer;
    if (!peer.showWindow(window, "Import holes", {"holename", "easting", "northing"}, tableColumns,
                         "DRILL_HOLES", &useSavedMatches, &matches, 900, 620)) {
        matches.clear();
    }
    return matches;
}
