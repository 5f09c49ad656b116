// SPDX-License-Identifier: MIT

// The section that both dialogs share: the list of file columns, the match list, and their refresh.

#include "dialogs/wxImportCSVDialog.h"

#include "dialogs/ImportLists.h"
#include "dialogs/ImportOptions.h"
#include "dialogs/StatusLine.h"
#include "dialogs/arrow.xpm"
#include "dialogs/screen.h"
#include "dragdrop/ListBoxSource.h"
#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/TextDropTarget.h"
#include "dragdrop/controls.h"
#include "languages/translated.h"
#include "matching/openingMatches.h"

#include <wx/bitmap.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/image.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/statbox.h>

using columnimport::findControl;
using columnimport::ListBoxSource;
using columnimport::ListCtrlSource;
using columnimport::TextDropTarget;
using columnimport::translated;

static_assert(wxImportCSVDialog::LISTBOX_FILE == columnimport::fileListId);
static_assert(wxImportCSVDialog::LISTBOX_MATCH == columnimport::matchListId);
static_assert(wxImportCSVDialog::COLUMN_MATCH == columnimport::matchColumn);

namespace {

/// The check box for the first line; null for a table.
wxCheckBox *firstLineBoxOf(wxWindow &dialog) {
    return findControl<wxCheckBox>(dialog, wxImportCSVDialog::CHECK_HEADER);
}

/// The arrow between the two lists, in the text colour of `window`. It uses an alpha channel, since
/// the toolkit leaks one picture of a masked bitmap for each control that shows it.
wxBitmap arrowBitmap(const wxWindow &window, const wxSize &size) {
    wxImage arrow(arrow_xpm);
    arrow.InitAlpha();
    const wxColour colour = window.GetForegroundColour();
    arrow.SetRGB(wxRect(arrow.GetSize()), colour.Red(), colour.Green(), colour.Blue());
    const double scale = window.GetContentScaleFactor();
    const wxSize onScreen = size * scale;
    if (onScreen != arrow.GetSize()) {
        arrow.Rescale(onScreen.x, onScreen.y, wxIMAGE_QUALITY_HIGH);
    }
    return wxBitmap(arrow, wxBITMAP_SCREEN_DEPTH, scale);
}

} // namespace

void wxImportCSVDialog::createMainDlg(wxBoxSizer *sizer) {
    const columnimport::Scale scale(*this);
    auto *rematch = new wxButton(this, BTN_REMATCH, translated("Reset to Default"));
    auto *matching = new wxStaticBoxSizer(wxHORIZONTAL, this, translated("Column Matching"));
    auto *arrow = new wxStaticBitmap(matching->GetStaticBox(), wxID_ANY,
                                     arrowBitmap(*matching->GetStaticBox(), scale(wxSize(50, 50))));
    auto *buttons = CreateStdDialogButtonSizer(wxOK | wxCANCEL);
    auto *files = new ListBoxSource(matching->GetStaticBox(), LISTBOX_FILE, wxDefaultPosition,
                                    scale(wxSize(250, 450)));
    auto *matches = new ListCtrlSource(matching->GetStaticBox(), LISTBOX_MATCH, wxDefaultPosition,
                                       scale(wxSize(525, 450)));

    auto *rematchRow = new wxBoxSizer(wxHORIZONTAL);
    if (m_status != nullptr) {
        rematchRow->AddStretchSpacer();
    } else { // a table has no options to put the line beside
        m_status = new columnimport::StatusLine(*this);
        rematchRow->Add(m_status, columnimport::besideControls(scale(10)));
    }
    rematchRow->Add(rematch, wxSizerFlags().Border(wxLEFT | wxRIGHT, scale(25)));
    sizer->Add(rematchRow, wxSizerFlags().Expand());
    matching->Add(files, wxSizerFlags().Align(wxALIGN_CENTER));
    matching->Add(arrow, wxSizerFlags().Align(wxALIGN_CENTER));
    matching->Add(matches, wxSizerFlags().Align(wxALIGN_CENTER));
    matching->AddSpacer(scale(20));
    sizer->Add(matching, wxSizerFlags().Border(wxLEFT | wxRIGHT, scale(10)));
    sizer->AddSpacer(scale(20));
    sizer->Add(buttons, wxSizerFlags().Align(wxALIGN_RIGHT));

    matches->InsertColumn(COLUMN_MATCH, translated("Matching"), wxLIST_FORMAT_LEFT, scale(245));
    matches->InsertColumn(COLUMN_APP, translated("Application"), wxLIST_FORMAT_LEFT, scale(245));

    m_matchDropTarget = new TextDropTarget(*matches);
    matches->SetDropTarget(m_matchDropTarget);
    m_fileDropTarget = new TextDropTarget(*files);
    files->SetDropTarget(m_fileDropTarget);
    m_fileDropTarget->setMatchList(matches);

    m_lists = std::make_unique<columnimport::ImportLists>(*this, *files, *matches, *m_status);

    columnimport::fitToScreen(*this, *sizer);
    SetSizerAndFit(sizer);
    // In a smaller frame, the controls keep their sizes and are cut off.
    SetVirtualSize(sizer->GetMinSize());
    wxCommandEvent refresh;
    onCheckHeader(refresh);
}

void wxImportCSVDialog::onCheckHeader(wxCommandEvent &) {
    if (const wxCheckBox *firstLine = firstLineBoxOf(*this)) {
        m_firstLineHeader = firstLine->IsChecked();
    }
    m_lists->refresh(columnimport::openingMatches(
        m_appColumns, m_options->alternatives, m_options->refusesSimilar, m_fileSchema,
        m_firstLineHeader, m_useSavedMatches ? &m_savedMatches : nullptr));
}

void wxImportCSVDialog::applyListBoxMatchFont() {
    auto &list = *findControl<ListCtrlSource>(*this, LISTBOX_MATCH);
    for (int row = 0; row < list.GetItemCount(); ++row) {
        list.applyMatchFont(row);
    }
}

void wxImportCSVDialog::onBtnRematch(wxCommandEvent &event) {
    if (wxCheckBox *firstLine = firstLineBoxOf(*this)) {
        firstLine->SetValue(true);
    }
    m_useSavedMatches = false;
    onCheckHeader(event);
}
