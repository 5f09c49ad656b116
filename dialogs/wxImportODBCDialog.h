// SPDX-License-Identifier: MIT

#pragma once

#include "wxImportCSVDialog.h"

/// The dialog in which a user matches the columns of a database table to the application columns.
///
/// It opens neither a file nor a database: the host passes in the names of the table's columns. It
/// has no preview, no delimiter and no check box, and otherwise equals `wxImportCSVDialog`.
class COLUMNIMPORT_EXPORT wxImportODBCDialog : public wxImportCSVDialog {
public:
    /// @param parent          owner of the dialog; may be null
    /// @param title           text of the title bar
    /// @param appColumns      the application columns, one row of the match list each
    /// @param fileName        name of the source; stored but never read
    /// @param useSavedMatches true shows the table's names: the saved matches if they hold a name,
    ///                        otherwise a proposal. False shows positional names such as "Column1"
    /// @param savedMatches    for each application column the name of a table column, or an empty
    ///                        string
    /// @param fileSchema      the columns of the table, in its order
    wxImportODBCDialog(wxWindow *parent, const wxString &title, std::vector<std::string> appColumns,
                       std::string fileName, bool useSavedMatches,
                       std::vector<std::string> savedMatches, std::vector<std::string> fileSchema);
    ~wxImportODBCDialog() override;

    /// Builds the two lists and the buttons, and fills the lists.
    void create() override;
};
