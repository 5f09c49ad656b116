// SPDX-License-Identifier: MIT

#include "dialogs/wxImportCSVDialog.h"

#include "delimited/readHeader.h"
#include "dialogs/ImportLists.h"
#include "dialogs/ImportOptions.h"
#include "dialogs/screen.h"
#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/controls.h"
#include "languages/translated.h"
#include "matching/openingMatches.h"
#include "names/ColumnMatch.h"

#include <utility>

// Hosts may bind references to these.
const int wxImportCSVDialog::BTN_ADD;
const int wxImportCSVDialog::LISTBOX_FILE;
const int wxImportCSVDialog::LISTBOX_MATCH;
const int wxImportCSVDialog::LISTBOX_APP;
const int wxImportCSVDialog::TEXT_FILE_PREVIEW;
const int wxImportCSVDialog::CHECK_HEADER;
const int wxImportCSVDialog::TXT_DELIMITER;
const int wxImportCSVDialog::BTN_OK;
const int wxImportCSVDialog::BTN_CANCEL;
const int wxImportCSVDialog::BTN_REMATCH;
const int wxImportCSVDialog::COLUMN_MATCH;
const int wxImportCSVDialog::COLUMN_APP;

wxBEGIN_EVENT_TABLE(wxImportCSVDialog, wxDialog)
    EVT_CHECKBOX(CHECK_HEADER, wxImportCSVDialog::onCheckHeader)
    EVT_TEXT(TXT_DELIMITER, wxImportCSVDialog::onTxtDelimiter)
    EVT_BUTTON(BTN_REMATCH, wxImportCSVDialog::onBtnRematch)
wxEND_EVENT_TABLE()

wxImportCSVDialog::wxImportCSVDialog(wxWindow *parent, const wxString &title,
                                     std::vector<std::string> appColumns, std::string fileName,
                                     bool useSavedMatches, std::vector<std::string> savedMatches,
                                     char delimiter, bool firstLineHeader)
    : wxDialog(parent, wxID_ANY, title, wxDefaultPosition, wxSize(300, 200),
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      m_appColumns(std::move(appColumns)), m_delimiter(delimiter),
      m_firstLineHeader(firstLineHeader), m_fileName(std::move(fileName)), m_isOk(false),
      m_useSavedMatches(useSavedMatches), m_savedMatches(std::move(savedMatches)),
      m_matchDropTarget(nullptr), m_fileDropTarget(nullptr),
      m_options(std::make_unique<const columnimport::ImportOptions>()),
      m_header(std::make_unique<columnimport::Header>()), m_status(nullptr) {
    if (!columnimport::holdsAName(m_savedMatches)) {
        m_useSavedMatches = false;
    }
    // Entries beyond the application columns have no row.
    if (m_savedMatches.size() > m_appColumns.size()) {
        m_savedMatches.resize(m_appColumns.size());
    }
}

wxImportCSVDialog::~wxImportCSVDialog() = default;

void wxImportCSVDialog::create() {
    columnimport::chooseLanguage();
    auto *sizer = new columnimport::VisibleColumn(*this);
    createHeaderDlg(sizer);
    createMainDlg(sizer);
}

std::vector<std::string> wxImportCSVDialog::getColumnNames() {
    const auto &matchList =
        *columnimport::findControl<columnimport::ListCtrlSource>(*this, LISTBOX_MATCH);
    std::vector<std::string> names;
    for (int row = 0; row < matchList.GetItemCount(); ++row) {
        std::string name = matchList.getMatchText(row);
        if (name == columnimport::notUsed) {
            name.clear();
        }
        names.push_back(std::move(name));
    }
    return names;
}

char wxImportCSVDialog::getDelimiter() const {
    return m_delimiter;
}

bool wxImportCSVDialog::isFirstLineHeader() const {
    return m_firstLineHeader;
}

bool wxImportCSVDialog::isOk() const {
    return m_isOk;
}

void wxImportCSVDialog::setFileSchema(std::vector<std::string> fileSchema) {
    m_fileSchema = std::move(fileSchema);
    *m_header = {};
    m_header->firstLine = columnimport::FirstLine::cut;
}
