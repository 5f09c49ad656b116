// SPDX-License-Identifier: MIT

#include "SavedMatches.h"

bool SavedMatches::import(columnimport::HostWindow window, const std::string &fileName) {
    // The dialog writes its results after Cancel too, so it gets copies.
    bool useSavedMatches = true;
    std::vector<std::string> matches = m_matches;
    char delimiter = m_delimiter;
    bool firstLineHoldsTitles = m_firstLineHoldsTitles;

    wxImportCSVDialogPeer peer;
    if (!peer.showWindow(window, "Import collars", {"holename", "easting", "northing"}, fileName,
                         &useSavedMatches, &matches, &delimiter, &firstLineHoldsTitles, 900, 840)) {
        return false;
    }
    m_delimiter = delimiter;
    m_firstLineHoldsTitles = firstLineHoldsTitles;
    // Without titles the matches are "Column1" and so on, which no later run can show again.
    if (firstLineHoldsTitles) {
        m_matches = matches;
    }
    return true;
}
