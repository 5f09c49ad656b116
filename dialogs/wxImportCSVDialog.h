// SPDX-License-Identifier: MIT

#pragma once

#include "columnimport_export.h"

#include <memory>
#include <string>
#include <vector>

#include <wx/dialog.h>

class wxBoxSizer;

namespace columnimport {
struct DialogAccess;
struct Header;
class ImportLists;
struct ImportOptions;
class StatusLine;
class TextDropTarget;
} // namespace columnimport

/// The dialog in which a user matches the columns of a delimited text file to the application
/// columns of the host.
///
/// Hosts without the toolkit run it through `wxImportCSVDialogPeer`. A host with a `wxWindow` of
/// its own may run it directly, on its user-interface thread and one dialog at a time:
///
///     wxImportCSVDialog dialog(frame, "Import assays", {"holename", "from", "to", "Au"},
///                              "assays.csv", false, {}, ',', true);
///     dialog.create();
///     if (dialog.ShowModal() == wxID_OK) {
///         std::vector<std::string> matches = dialog.getColumnNames(); // "HOLE", "From (m)", ...
///     }
///
/// The texts of the match list are the only record of the matches. It has one row per application
/// column, which reads the name of the file column or "Not used". Drops, keys and double clicks
/// write into these rows. Every refresh (the check box, another delimiter, "Reset to Default", or a
/// call of `onCheckHeader`) refills the list from the members and drops the user's changes. Ctrl+Z
/// undoes one change after the other, back to the last refresh and including it.
class COLUMNIMPORT_EXPORT wxImportCSVDialog : public wxDialog {
public:
    static const int BTN_ADD = 1;           ///< no control has it
    static const int LISTBOX_FILE = 2;      ///< the list of file columns
    static const int LISTBOX_MATCH = 3;     ///< the match list
    static const int LISTBOX_APP = 4;       ///< no control has it
    static const int TEXT_FILE_PREVIEW = 5; ///< the first lines of the file
    static const int CHECK_HEADER = 6;      ///< "First Line contain title"
    static const int TXT_DELIMITER = 7;     ///< the field delimiter, one character
    static const int BTN_OK = 8;            ///< no control has it: OK is wxID_OK
    static const int BTN_CANCEL = 9;        ///< no control has it: Cancel is wxID_CANCEL
    static const int BTN_REMATCH = 10;      ///< "Reset to Default"

    static const int COLUMN_MATCH = 0; ///< column of the match list: the file column's name
    static const int COLUMN_APP = 1;   ///< column of the match list: the application column

    /// Stores the values of one import. Opens no file and builds no control; `create` does.
    ///
    /// @param parent          owner of the dialog; may be null
    /// @param title           text of the title bar
    /// @param appColumns      the application columns, one row of the match list each
    /// @param fileName        path of the file, UTF-8; one that can't be read gives empty lists
    /// @param useSavedMatches whether to show `savedMatches` instead of a new proposal; no effect
    /// if
    ///                        they hold no name, or if `firstLineHeader` is false
    /// @param savedMatches    for each application column the name of a file column, or an empty
    ///                        string; entries beyond the application columns are dropped
    /// @param delimiter       the field delimiter to start with, one byte taken literally
    /// @param firstLineHeader whether the first line of the file holds titles
    wxImportCSVDialog(wxWindow *parent, const wxString &title, std::vector<std::string> appColumns,
                      std::string fileName, bool useSavedMatches,
                      std::vector<std::string> savedMatches, char delimiter, bool firstLineHeader);
    ~wxImportCSVDialog() override;

    wxImportCSVDialog(const wxImportCSVDialog &) = delete;
    wxImportCSVDialog &operator=(const wxImportCSVDialog &) = delete;

    /// Builds the controls, reads the first lines of the file and fills both lists. Call it once,
    /// after the constructor and before `ShowModal`.
    virtual void create();

    /// The matches in the match list, one per row in the order of the application columns; an empty
    /// string if the row reads "Not used". Call it after `create`, as often as you like.
    std::vector<std::string> getColumnNames();

    /// The delimiter in force: the last one typed, or the constructor's.
    char getDelimiter() const;

    /// Whether the first line holds titles, as of the last refresh.
    bool isFirstLineHeader() const;

    /// Always false. The result of `ShowModal` shows whether the user pressed OK.
    bool isOk() const;

protected:
    /// Builds the preview and the options on top of `sizer`, and reads the file.
    void createHeaderDlg(wxBoxSizer *sizer);

    /// Builds both lists and the buttons below the items of `sizer`, installs the sizer and fills
    /// the lists. Call it last.
    void createMainDlg(wxBoxSizer *sizer);

    /// Reads `m_fileSchema` from the first line of the file. Changes no control: the next
    /// `onCheckHeader` updates the lists and the status line.
    void loadHeader();

    /// The first lines of the file as raw bytes, each with one line feed. The preview cuts long
    /// lines.
    std::string getFilePreview();

    /// Refreshes both lists from the members: by position, from the saved matches or with a
    /// proposal. Ignores the event. Call it after `setFileSchema` or `loadHeader` too.
    void onCheckHeader(wxCommandEvent &event);

    /// Takes the first byte in the field as the delimiter. If it is new, reads the file again.
    void onTxtDelimiter(wxCommandEvent &event);

    /// Drops the saved matches for good and makes a new proposal.
    void onBtnRematch(wxCommandEvent &event);

    /// Shows rows that read "Not used" in bold and guesses in italics.
    void applyListBoxMatchFont();

    /// Replaces the file columns. Changes no control, like `loadHeader`.
    void setFileSchema(std::vector<std::string> fileSchema);

private:
    friend struct columnimport::DialogAccess;
    friend class columnimport::ImportLists;

    std::vector<std::string> m_appColumns;
    std::vector<std::string> m_fileSchema;
    char m_delimiter;
    bool m_firstLineHeader;
    std::string m_fileName;
    bool m_isOk;
    bool m_useSavedMatches;
    std::vector<std::string> m_savedMatches;
    columnimport::TextDropTarget *m_matchDropTarget; // owned by the match list
    columnimport::TextDropTarget *m_fileDropTarget;  // owned by the list of file columns

    std::unique_ptr<const columnimport::ImportOptions> m_options; // the host's further options
    std::unique_ptr<columnimport::Header> m_header;     // from loadHeader, without the columns
    columnimport::StatusLine *m_status;                 // owned by its sizer; null before `create`
    std::unique_ptr<columnimport::ImportLists> m_lists; // null before `create`

    wxDECLARE_EVENT_TABLE();
};
