// SPDX-License-Identifier: MIT

// The half of a dialog that both kinds of source share: the list of file columns, the match list
// and what refreshes them.

#include "dialogs/wxImportCSVDialog.h"

#include "dialogs/ImportDetails.h"
#include "dialogs/RefreshStep.h"
#include "dialogs/Scale.h"
#include "dialogs/arrowBitmap.h"
#include "dialogs/fitToScreen.h"
#include "dialogs/quietSentence.h"
#include "dialogs/requiredSentence.h"
#include "dragdrop/ListBoxSource.h"
#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/TextDropTarget.h"
#include "dragdrop/controls.h"
#include "languages/translated.h"
#include "matching/openingMatches.h"
#include "names/nameText.h"

#include <cassert>
#include <utility>

#include <wx/bitmap.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/statbox.h>
#include <wx/wupdlock.h>

using columnimport::findControl;
using columnimport::ImportDetails;
using columnimport::ListBoxSource;
using columnimport::ListCtrlSource;
using columnimport::RefreshStep;
using columnimport::TextDropTarget;
using columnimport::translated;

static_assert(wxImportCSVDialog::LISTBOX_FILE == columnimport::fileListId);
static_assert(wxImportCSVDialog::LISTBOX_MATCH == columnimport::matchListId);
static_assert(wxImportCSVDialog::COLUMN_MATCH == columnimport::matchColumn);

namespace {

ListBoxSource &fileListOf(wxWindow &dialog) {
    return *findControl<ListBoxSource>(dialog, wxImportCSVDialog::LISTBOX_FILE);
}

ListCtrlSource &matchListOf(wxWindow &dialog) {
    return *findControl<ListCtrlSource>(dialog, wxImportCSVDialog::LISTBOX_MATCH);
}

/// The check box for the first line, or null: a table has none.
wxCheckBox *firstLineBoxOf(wxWindow &dialog) {
    return findControl<wxCheckBox>(dialog, wxImportCSVDialog::CHECK_HEADER);
}

void showFileColumns(ListBoxSource &list, std::vector<std::string> names,
                     columnimport::NameBook &book) {
    wxArrayString items;
    items.reserve(names.size());
    for (std::string &name : names) {
        items.push_back(book.addColumn(std::move(name)));
    }
    list.showNames(items);
}

void showMatches(ListCtrlSource &list, const std::vector<columnimport::ColumnMatch> &opening,
                 const std::vector<std::string> &appColumns) {
    assert(opening.size() <= appColumns.size());
    for (std::size_t row = 0; row < opening.size(); ++row) {
        list.appendRow(list.names().textOf(opening[row].position),
                       columnimport::shownText(appColumns[row]));
    }
}

/// Says what there is to ask about the columns that the host requires; false if there is nothing.
bool askForRequired(wxImportCSVDialog &dialog, const std::vector<std::string> &appColumns) {
    const wxString sentence = columnimport::requiredSentence(
        appColumns, ImportDetails::of(dialog).required, ImportDetails::matches(dialog));
    columnimport::say(dialog, columnimport::Matter::matching, sentence);
    return !sentence.empty();
}

} // namespace

void wxImportCSVDialog::createMainDlg(wxBoxSizer *sizer) {
    const columnimport::Scale scale(*this);
    auto *rematch = new wxButton(this, BTN_REMATCH, translated("Reset to Default"));
    auto *matching = new wxStaticBoxSizer(wxHORIZONTAL, this, translated("Column Matching"));
    auto *arrow = new wxStaticBitmap(
        matching->GetStaticBox(), wxID_ANY,
        columnimport::arrowBitmap(*matching->GetStaticBox(), scale(wxSize(50, 50))));
    auto *buttons = CreateStdDialogButtonSizer(wxOK | wxCANCEL);
    auto *files = new ListBoxSource(matching->GetStaticBox(), LISTBOX_FILE, wxDefaultPosition,
                                    scale(wxSize(250, 450)));
    auto *matches = new ListCtrlSource(matching->GetStaticBox(), LISTBOX_MATCH, wxDefaultPosition,
                                       scale(wxSize(525, 450)));

    auto *rematchRow = new wxBoxSizer(wxHORIZONTAL);
    if (columnimport::hasQuietSentence(*this)) {
        rematchRow->AddStretchSpacer();
    } else { // a table has no options that it would stand beside
        columnimport::addQuietSentence(*this, *rematchRow, scale(10));
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

    if (!m_details->required.empty()) {
        Bind(
            wxEVT_BUTTON,
            [this](wxCommandEvent &event) {
                if (m_details->hasAskedBack || !askForRequired(*this, m_appColumns)) {
                    event.Skip();
                    return;
                }
                m_details->hasAskedBack = true;
                // What was asked stands there only as long as it is so.
                Bind(wxEVT_IDLE, [this](wxIdleEvent &idle) {
                    askForRequired(*this, m_appColumns);
                    idle.Skip();
                });
            },
            wxID_OK);
    }
    Bind(wxEVT_CHAR_HOOK, [matches](wxKeyEvent &key) {
        if (key.GetModifiers() == wxMOD_CONTROL && key.GetKeyCode() == 'Z') {
            matches->history().undo();
        } else if (key.GetModifiers() == wxMOD_CONTROL && key.GetKeyCode() == 'Y') {
            matches->history().redo();
        } else {
            key.Skip();
        }
    });

    columnimport::fitToScreen(*this, *sizer);
    SetSizerAndFit(sizer);
    // In a smaller frame the controls keep their sizes too, and are cut off by it.
    SetVirtualSize(sizer->GetMinSize());
    wxCommandEvent refresh;
    onCheckHeader(refresh);
}

void wxImportCSVDialog::onCheckHeader(wxCommandEvent &event) {
    // Whoever else refreshes the lists has changed something before.
    if (event.GetEventType() == wxEVT_CHECKBOX) {
        RefreshStep::begin(*this);
    }
    const wxCheckBox *firstLine = firstLineBoxOf(*this);
    ListBoxSource &files = fileListOf(*this);
    ListCtrlSource &matches = matchListOf(*this);
    const wxWindowUpdateLocker fileListLock(&files);
    const wxWindowUpdateLocker matchListLock(&matches);
    matches.DeleteAllItems();
    if (firstLine != nullptr) {
        m_firstLineHeader = firstLine->IsChecked();
    }

    // The matcher's copy of the names goes before the book gets one: a name may be a whole file.
    m_details->opening = columnimport::openingMatches(
        m_appColumns, m_details->alternatives, m_details->refusesSimilar, m_fileSchema,
        m_firstLineHeader, m_useSavedMatches ? &m_savedMatches : nullptr);
    showFileColumns(files, columnimport::columnNames(m_fileSchema, m_firstLineHeader),
                    matches.names());
    showMatches(matches, m_details->opening, m_appColumns);
    applyListBoxMatchFont();
    matches.showUse();
    matches.layOutRows();
}

void wxImportCSVDialog::applyListBoxMatchFont() {
    ListCtrlSource &list = matchListOf(*this);
    for (int row = 0; row < list.GetItemCount(); ++row) {
        list.applyMatchFont(row);
    }
}

void wxImportCSVDialog::onBtnRematch(wxCommandEvent &event) {
    RefreshStep::begin(*this);
    if (wxCheckBox *firstLine = firstLineBoxOf(*this)) {
        firstLine->SetValue(true);
    }
    m_useSavedMatches = false;
    onCheckHeader(event);
}
