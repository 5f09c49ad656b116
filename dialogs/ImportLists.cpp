// SPDX-License-Identifier: MIT

#include "dialogs/ImportLists.h"

#include "dialogs/ImportOptions.h"
#include "dialogs/ShownImport.h"
#include "dialogs/StatusLine.h"
#include "dialogs/sentences.h"
#include "dialogs/wxImportCSVDialog.h"
#include "dragdrop/ListBoxSource.h"
#include "dragdrop/ListCtrlSource.h"
#include "dragdrop/controls.h"
#include "languages/translated.h"
#include "names/nameText.h"
#include "readers/describe.h"

#include <utility>

#include <wx/checkbox.h>
#include <wx/textctrl.h>
#include <wx/wupdlock.h>

namespace columnimport {

ImportLists::ImportLists(wxImportCSVDialog &dialog, ListBoxSource &files, ListCtrlSource &matches,
                         StatusLine &status)
    : m_dialog(dialog), m_files(files), m_matches(matches), m_status(status),
      m_fileKeys(files, matches), m_matchKeys(matches),
      m_reader(matches, translated("Column matching")) {
    for (const std::string &name : dialog.m_appColumns) {
        m_applications.push_back(shownText(name));
    }
    setAccessibleName(files, translated("File columns"));
    files.onPick([this](const wxString &text) { m_matches.assign(text); });
    matches.onChange([this](const std::vector<long> &rows) { onRowsChanged(rows); });
    matches.onWrite([this](History::Exchange step) { m_history.add(std::move(step)); });
    dialog.Bind(wxEVT_BUTTON, &ImportLists::onOk, this, wxID_OK);
    dialog.Bind(wxEVT_CHAR_HOOK, &ImportLists::onKey, this);
}

void ImportLists::makeRoom() {
    if (m_shown && !m_shown->isSmallEnoughToKeep()) {
        m_history.clear();
        m_files.showNames({});
        m_matches.DeleteAllItems();
        m_shown.reset();
    }
}

void ImportLists::refresh(const std::vector<ColumnMatch> &opening) {
    // A paste under way was meant for the old rows.
    m_matches.changes().clear();
    m_history.clear();
    makeRoom();
    std::shared_ptr<ShownImport> before = std::move(m_shown);
    if (before) {
        before->rows = m_matches.rowMatches();
    }
    m_shown.reset(new ShownImport{m_dialog.m_delimiter,
                                  m_dialog.m_useSavedMatches,
                                  m_dialog.m_savedMatches,
                                  *m_dialog.m_header,
                                  {m_dialog.m_fileSchema, m_dialog.m_firstLineHeader},
                                  {}});
    for (const ColumnMatch &match : opening) {
        m_shown->rows.push_back({match, m_shown->names.textOf(match.position)});
    }
    show();
    if (before) {
        m_history.add([this, before]() mutable { exchange(before); });
    }
}

void ImportLists::exchange(std::shared_ptr<ShownImport> &other) {
    m_shown->rows = m_matches.rowMatches();
    m_shown.swap(other);
    m_dialog.m_delimiter = m_shown->delimiter;
    m_dialog.m_useSavedMatches = m_shown->useSavedMatches;
    m_dialog.m_savedMatches = m_shown->savedMatches;
    *m_dialog.m_header = m_shown->header;
    m_dialog.m_fileSchema = m_shown->names.titles();
    m_dialog.m_firstLineHeader = m_shown->names.holdsTitles();
    if (auto *field = findControl<wxTextCtrl>(m_dialog, wxImportCSVDialog::TXT_DELIMITER)) {
        field->ChangeValue(decoded(std::string(1, m_dialog.m_delimiter)));
    }
    if (auto *firstLine = findControl<wxCheckBox>(m_dialog, wxImportCSVDialog::CHECK_HEADER)) {
        firstLine->SetValue(m_dialog.m_firstLineHeader);
    }
    show();
}

void ImportLists::show() {
    const wxWindowUpdateLocker fileListLock(&m_files);
    const wxWindowUpdateLocker matchListLock(&m_matches);
    m_files.showNames(m_shown->names.texts());
    m_matches.showRows(m_shown->rows, m_applications, m_shown->names);
    m_shown->rows.clear();
    m_dialog.applyListBoxMatchFont();
    m_files.showUse(m_matches.usedColumns());
    m_matches.layOutRows();
    offerDelimiter();
    showStatus();
}

void ImportLists::offerDelimiter() {
    const std::optional<LikelyDelimiter> &likely = m_shown->header.likely;
    m_status.offer(likely ? offerOf(likely->delimiter) : wxString(), [this, likely] {
        // As if typed. The field takes the focus, since the button disappears.
        auto &field = *findControl<wxTextCtrl>(m_dialog, wxImportCSVDialog::TXT_DELIMITER);
        field.SetFocus();
        field.SetValue(wxString(likely->delimiter));
    });
}

void ImportLists::showStatus() {
    const std::vector<RowMatch> rows = m_matches.rowMatches();
    const wxString problem = headerSentence(m_shown->header);
    m_status.show(StatusLine::source, problem);
    // Guesses from wrongly cut names need no check, and the status line has room for three lines.
    m_status.show(StatusLine::guesses, problem.empty() ? guessSentence(rows) : wxString());
    if (m_hasAskedBack) {
        m_status.show(StatusLine::required,
                      requiredSentence(m_dialog.m_appColumns, m_dialog.m_options->required, rows));
    }
}

void ImportLists::onRowsChanged(const std::vector<long> &rows) {
    m_files.showUse(m_matches.usedColumns());
    m_reader.announce(rows);
    showStatus();
}

void ImportLists::onOk(wxCommandEvent &event) {
    if (m_matches.changes().isHeld()) {
        m_matches.changes().run([this] { pressOkSoon(m_dialog); });
        return;
    }
    if (m_hasAskedBack || requiredSentence(m_dialog.m_appColumns, m_dialog.m_options->required,
                                           m_matches.rowMatches())
                              .empty()) {
        event.Skip();
        return;
    }
    m_hasAskedBack = true;
    showStatus();
}

void ImportLists::onKey(wxKeyEvent &event) {
    const bool isControl = event.GetModifiers() == wxMOD_CONTROL;
    if (isControl && event.GetKeyCode() == 'Z') {
        m_matches.changes().run([this] { m_history.undo(); });
    } else if (isControl && event.GetKeyCode() == 'Y') {
        m_matches.changes().run([this] { m_history.redo(); });
    } else {
        event.Skip();
    }
}

} // namespace columnimport
