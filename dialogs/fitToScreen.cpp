// SPDX-License-Identifier: MIT

#include "dialogs/screen.h"

#include "dialogs/wxImportCSVDialog.h"
#include "dragdrop/controls.h"

#include <algorithm>

#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/tokenzr.h>

namespace columnimport {

namespace {

/// Lowers both lists by `missing`, but not below five rows and the headings; returns the rest.
int lowerLists(wxWindow &files, wxWindow &matches, int missing) {
    const int least = Scale(matches)(150);
    const int lower = std::min(missing, matches.GetMinSize().y - least);
    for (wxWindow *list : {&files, &matches}) {
        list->SetMinSize(list->GetMinSize() - wxSize(0, lower));
    }
    return missing - lower;
}

/// Removes lines from the preview until it is lower by `missing`, but keeps one.
void lowerPreview(wxStaticText &preview, int missing) {
    const int lineHeight = preview.GetCharHeight();
    const int lines = std::max((preview.GetMinSize().y - missing) / lineHeight, 1);
    wxArrayString shown = wxStringTokenize(preview.GetLabelText(), "\n", wxTOKEN_RET_EMPTY_ALL);
    shown.resize(std::min(shown.size(), static_cast<std::size_t>(lines)));
    preview.SetLabelText(wxJoin(shown, '\n'));
    preview.SetMinSize(wxSize(preview.GetMinSize().x, lines * lineHeight));
}

/// Narrows the match list by `missing`, but keeps a third of it. Each of its columns loses half of
/// that width.
void narrowMatches(wxListCtrl &matches, int missing) {
    const wxSize size = matches.GetMinSize();
    const int narrower = std::min(missing, size.x * 2 / 3);
    matches.SetMinSize(size - wxSize(narrower, 0));
    for (int column = 0; column < matches.GetColumnCount(); ++column) {
        matches.SetColumnWidth(column, matches.GetColumnWidth(column) - narrower / 2);
    }
}

/// Narrows each row that requests a width.
void letRowsBeNarrower(wxSizer &sizer, int missing) {
    for (const wxSizerItem *item : sizer.GetChildren()) {
        if (wxSizer *row = item->GetSizer()) {
            row->SetMinSize(row->GetMinSize().x - missing, wxDefaultCoord);
        }
    }
}

} // namespace

VisibleColumn::VisibleColumn(const wxWindow &dialog)
    : wxBoxSizer(wxVERTICAL), m_room(contentRoom(dialog).x) {}

void VisibleColumn::RepositionChildren(const wxSize &minSize) {
    const wxSize whole = m_size;
    m_size.x = std::min(whole.x, std::max(m_room, minSize.x));
    wxBoxSizer::RepositionChildren(minSize);
    m_size = whole;
}

void fitToScreen(wxWindow &dialog, wxSizer &sizer) {
    auto &files = *findControl<wxWindow>(dialog, wxImportCSVDialog::LISTBOX_FILE);
    auto &matches = *findControl<wxListCtrl>(dialog, wxImportCSVDialog::LISTBOX_MATCH);
    auto *preview = findControl<wxStaticText>(dialog, wxImportCSVDialog::TEXT_FILE_PREVIEW);
    wxSize missing = sizer.GetMinSize() - contentRoom(dialog);
    missing.IncTo(wxSize());
    narrowMatches(matches, missing.x);
    letRowsBeNarrower(sizer, missing.x);
    const int rest = lowerLists(files, matches, missing.y);
    if (preview != nullptr) {
        preview->SetMinSize(preview->GetMinSize() - wxSize(missing.x, 0));
        if (rest != 0) {
            lowerPreview(*preview, rest);
        }
    }
}

} // namespace columnimport
