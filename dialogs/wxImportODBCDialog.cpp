// SPDX-License-Identifier: MIT

#include "dialogs/wxImportODBCDialog.h"

#include "dialogs/screen.h"
#include "languages/translated.h"

#include <utility>

wxImportODBCDialog::wxImportODBCDialog(wxWindow *parent, const wxString &title,
                                       std::vector<std::string> appColumns, std::string fileName,
                                       bool useSavedMatches, std::vector<std::string> savedMatches,
                                       std::vector<std::string> fileSchema)
    : wxImportCSVDialog(parent, title, std::move(appColumns), std::move(fileName), useSavedMatches,
                        std::move(savedMatches), ',', useSavedMatches) {
    setFileSchema(std::move(fileSchema));
}

wxImportODBCDialog::~wxImportODBCDialog() = default;

void wxImportODBCDialog::create() {
    columnimport::chooseLanguage();
    createMainDlg(new columnimport::VisibleColumn(*this));
}
