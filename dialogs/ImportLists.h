// SPDX-License-Identifier: MIT

#pragma once

#include "dialogs/History.h"
#include "keyboard/listKeys.h"

#include "AccessibleRows.h" // of the platform

#include <memory>
#include <vector>

#include <wx/arrstr.h>
#include <wx/event.h>

class wxImportCSVDialog;

namespace columnimport {

class ListBoxSource;
class ListCtrlSource;
class StatusLine;
struct ColumnMatch;
struct ShownImport;

/// Connects the two lists of a dialog with each other, the keys, the screen reader, the history and
/// the status line. Fills the lists at each refresh.
class ImportLists : public wxEvtHandler {
public:
    /// The controls must outlive this object.
    ImportLists(wxImportCSVDialog &dialog, ListBoxSource &files, ListCtrlSource &matches,
                StatusLine &status);

    /// Empties both lists if their names are as large as a file, so that a refresh does not need
    /// memory for two copies.
    void makeRoom();

    /// Fills both lists from the dialog's members and the matches `opening`. Starts a new history,
    /// whose first step undoes the refresh.
    void refresh(const std::vector<ColumnMatch> &opening);

private:
    /// Shows `m_shown` in both lists.
    void show();
    void showStatus();

    /// Offers the likely delimiter, if the first line lacks the present one.
    void offerDelimiter();

    /// Swaps the shown import with `other`, and restores the dialog's members from it.
    void exchange(std::shared_ptr<ShownImport> &other);

    void onRowsChanged(const std::vector<long> &rows);
    void onOk(wxCommandEvent &event);
    void onKey(wxKeyEvent &event);

    wxImportCSVDialog &m_dialog;
    ListBoxSource &m_files;
    ListCtrlSource &m_matches;
    StatusLine &m_status;
    wxArrayString m_applications; // shown texts of the application columns
    FileListKeys m_fileKeys;
    MatchListKeys m_matchKeys;
    AccessibleRows m_reader;
    std::shared_ptr<ShownImport> m_shown; // null before the first refresh
    History m_history;
    bool m_hasAskedBack = false; // whether OK has asked about required columns
};

} // namespace columnimport
