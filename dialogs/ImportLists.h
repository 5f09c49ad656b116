// SPDX-License-Identifier: MIT

#pragma once

#include "dialogs/History.h"
#include "keyboard/FileListKeys.h"
#include "keyboard/MatchListKeys.h"

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

/// Connects the two lists of a dialog with each other, with the keys, the screen reader, the
/// history and the status line. Fills the lists at each refresh.
class ImportLists : public wxEvtHandler {
public:
    /// The controls must outlive this object.
    ImportLists(wxImportCSVDialog &dialog, ListBoxSource &files, ListCtrlSource &matches,
                StatusLine &status);
    ~ImportLists() override;

    /// Empties both lists if they show names as large as a file, so that a refresh does not keep
    /// two copies.
    void makeRoom();

    /// Fills both lists from the dialog's members and with the matches `opening`. The history
    /// begins anew; its first step leads back to what the lists showed before.
    void refresh(const std::vector<ColumnMatch> &opening);

private:
    /// Shows `m_shown` in both lists.
    void show();
    void showStatus();

    /// Offers the delimiter that the first line contains, if it lacks the present one.
    void offerDelimiter();

    /// Shows `other` instead of the present import, restores the dialog's members from it, and
    /// keeps the present one in it.
    void exchange(std::shared_ptr<ShownImport> &other);

    void onRowsChanged(const std::vector<long> &rows);
    void onOk(wxCommandEvent &event);
    void onKey(wxKeyEvent &event);

    wxImportCSVDialog &m_dialog;
    ListBoxSource &m_files;
    ListCtrlSource &m_matches;
    StatusLine &m_status;
    wxArrayString m_applications; // the shown texts of the application columns
    FileListKeys m_fileKeys;
    MatchListKeys m_matchKeys;
    AccessibleRows m_reader;
    std::shared_ptr<ShownImport> m_shown; // null before the first refresh
    History m_history;
    bool m_hasAskedBack = false; // whether OK has asked for the required columns
};

} // namespace columnimport
