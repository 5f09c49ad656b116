// SPDX-License-Identifier: MIT

// The section for delimited files alone: the preview and the options.

#include "dialogs/wxImportCSVDialog.h"

#include "delimited/readHeader.h"
#include "dialogs/DelimiterField.h"
#include "dialogs/ImportLists.h"
#include "dialogs/ImportOptions.h"
#include "dialogs/StatusLine.h"
#include "dialogs/nativeControls.h"
#include "dialogs/screen.h"
#include "dragdrop/controls.h"
#include "languages/translated.h"
#include "names/nameText.h"
#include "readers/describe.h"

#include <mutex>

#include <wx/checkbox.h>
#include <wx/image.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

using columnimport::translated;

namespace {

/// Gives `text` a fixed-width font, shrunk until `lines` lines fit into `height`.
void fitLines(wxStaticText &text, int lines, int height) {
    wxFont font = text.GetFont();
    font.SetFamily(wxFONTFAMILY_TELETYPE);
    text.SetFont(font);
    while (lines * text.GetCharHeight() > height && font.GetPointSize() > 1) {
        font.SetFractionalPointSize(font.GetFractionalPointSize() - 0.5);
        text.SetFont(font);
    }
}

} // namespace

void wxImportCSVDialog::createHeaderDlg(wxBoxSizer *sizer) {
    if (!m_firstLineHeader) {
        m_useSavedMatches = false;
    }

    const columnimport::Scale scale(*this);
    auto *options = new wxStaticBoxSizer(wxVERTICAL, this, translated("Options"));
    auto *delimiterRow = new wxBoxSizer(wxHORIZONTAL);
    auto *preview = new wxStaticBoxSizer(wxHORIZONTAL, this, translated("File Preview"));
    // A second call would make the toolkit warn about each handler.
    static std::once_flag imageHandlers;
    std::call_once(imageHandlers, wxInitAllImageHandlers);
    sizer->Add(preview, wxSizerFlags().Border(wxALL, scale(10)));

    auto *label = new wxStaticText(options->GetStaticBox(), wxID_ANY,
                                   translated("Field Delimiter ('S' for 'space' 'T' for 'tab')"));
    auto *delimiter = new columnimport::DelimiterField(options->GetStaticBox(), TXT_DELIMITER,
                                                       m_delimiter, scale(wxSize(25, 20)));
    delimiterRow->Add(label);
    delimiterRow->AddSpacer(scale(10));
    delimiterRow->Add(delimiter);

    auto *firstLine = new wxCheckBox(options->GetStaticBox(), CHECK_HEADER,
                                     translated("First Line contain title"));
    firstLine->SetValue(m_firstLineHeader);
    options->Add(delimiterRow, wxSizerFlags().Align(wxALIGN_CENTER));
    options->Add(firstLine, wxSizerFlags().Align(wxALIGN_CENTER));
    const wxSize previewSize = scale(wxSize(850, 125));
    auto *optionsRow = new wxBoxSizer(wxHORIZONTAL);
    optionsRow->SetMinSize(previewSize.x, wxDefaultCoord);
    optionsRow->Add(options);
    m_status = new columnimport::StatusLine(*this);
    optionsRow->Add(m_status, columnimport::besideControls(scale(10)));
    sizer->Add(optionsRow, wxSizerFlags().Border(wxLEFT | wxRIGHT, scale(10)));

    auto *text = new wxStaticText(preview->GetStaticBox(), TEXT_FILE_PREVIEW, wxEmptyString,
                                  wxDefaultPosition, previewSize);
    fitLines(*text, columnimport::previewLines, previewSize.y);
    columnimport::cutLongLines(*text);
    // SetLabelText shows ampersands literally. A new label resizes the static text to fit, and the
    // box around it would follow, so the size is set again.
    text->SetLabelText(columnimport::previewText(columnimport::readPreview(
        m_fileName, columnimport::lengthToShow, m_options->byteOrderMark)));
    text->SetSize(previewSize);
    columnimport::setAccessibleName(*text, translated("File preview"));
    preview->Add(text, wxSizerFlags().Align(wxALIGN_CENTER));

    loadHeader();
}

void wxImportCSVDialog::onTxtDelimiter(wxCommandEvent &) {
    const auto *control = columnimport::findControl<wxTextCtrl>(*this, TXT_DELIMITER);
    const std::string typed = columnimport::encoded(control->GetValue());
    if (typed.empty() || typed.front() == m_delimiter) {
        return;
    }
    m_delimiter = typed.front();
    m_lists->makeRoom();
    loadHeader();
    wxCommandEvent refresh;
    onCheckHeader(refresh);
}
