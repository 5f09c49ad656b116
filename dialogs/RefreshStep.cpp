// SPDX-License-Identifier: MIT

#include "dialogs/RefreshStep.h"

#include "dialogs/ImportDetails.h"
#include "dialogs/quietSentence.h"
#include "dialogs/wxImportCSVDialog.h"
#include "dragdrop/ListBoxSource.h"
#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/controls.h"
#include "names/nameText.h"

#include <utility>

#include <wx/checkbox.h>
#include <wx/textctrl.h>
#include <wx/wupdlock.h>

namespace columnimport {

void RefreshStep::begin(wxImportCSVDialog &dialog,
                        std::optional<std::vector<std::string>> replaced) {
    History &history = findControl<ListCtrlSource>(dialog, matchListId)->history();
    history.clear();
    const std::shared_ptr<RefreshStep> step(new RefreshStep(dialog, std::move(replaced)));
    history.add([step] { step->exchange(); });
}

RefreshStep::RefreshStep(wxImportCSVDialog &dialog,
                         std::optional<std::vector<std::string>> fileSchema)
    : m_dialog(dialog), m_fileSchema(std::move(fileSchema)), m_delimiter(dialog.m_delimiter),
      m_firstLineHeader(dialog.m_firstLineHeader), m_useSavedMatches(dialog.m_useSavedMatches),
      m_savedMatches(dialog.m_savedMatches), m_fileProblem(ImportDetails::of(dialog).fileProblem),
      m_opening(ImportDetails::of(dialog).opening), m_sentence(said(dialog, Matter::source)),
      m_names(std::make_unique<NameBook>()),
      m_fileTexts(findControl<ListBoxSource>(dialog, fileListId)->names()) {
    auto &matches = *findControl<ListCtrlSource>(dialog, matchListId);
    m_matchTexts = matches.matchTexts();
    matches.exchangeNames(m_names);
}

void RefreshStep::exchange() {
    if (m_fileSchema) {
        m_dialog.m_fileSchema.swap(*m_fileSchema);
    }
    std::swap(m_dialog.m_delimiter, m_delimiter);
    std::swap(m_dialog.m_firstLineHeader, m_firstLineHeader);
    std::swap(m_dialog.m_useSavedMatches, m_useSavedMatches);
    std::swap(m_dialog.m_savedMatches, m_savedMatches);
    std::swap(ImportDetails::of(m_dialog).fileProblem, m_fileProblem);
    std::swap(ImportDetails::of(m_dialog).opening, m_opening);
    if (auto *field = findControl<wxTextCtrl>(m_dialog, wxImportCSVDialog::TXT_DELIMITER)) {
        field->ChangeValue(decoded(std::string(1, m_dialog.m_delimiter)));
    }
    if (auto *firstLine = findControl<wxCheckBox>(m_dialog, wxImportCSVDialog::CHECK_HEADER)) {
        firstLine->SetValue(m_dialog.m_firstLineHeader);
    }
    const wxString sentence = said(m_dialog, Matter::source);
    say(m_dialog, Matter::source, m_sentence);
    m_sentence = sentence;

    auto &files = *findControl<ListBoxSource>(m_dialog, fileListId);
    auto &matches = *findControl<ListCtrlSource>(m_dialog, matchListId);
    const wxWindowUpdateLocker fileListLock(&files);
    const wxWindowUpdateLocker matchListLock(&matches);
    const wxArrayString fileTexts = files.names();
    const std::vector<wxString> matchTexts = matches.matchTexts();
    matches.exchangeNames(m_names);
    files.showNames(m_fileTexts);
    matches.DeleteAllItems();
    for (std::size_t row = 0; row < m_matchTexts.size(); ++row) {
        matches.appendRow(m_matchTexts[row], shownText(m_dialog.m_appColumns[row]));
    }
    m_fileTexts = fileTexts;
    m_matchTexts = matchTexts;
    m_dialog.applyListBoxMatchFont();
    matches.showUse();
    matches.layOutRows();
}

} // namespace columnimport
