// SPDX-License-Identifier: MIT

#pragma once

#include "names/ColumnMatch.h"
#include "names/NameBook.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <wx/arrstr.h>
#include <wx/string.h>

class wxImportCSVDialog;

namespace columnimport {

/// What one refresh of a dialog replaces: what the lists show, and all by which they were filled.
/// The file columns and the texts are kept as they were read and shown, since the file may be
/// another one by now, together with the book that knows what the texts stand for.
///
///     delimiter   comma, in the place of the semicolon that the dialog has now
///     columns     BHID and Depth, in the place of "BHID,Depth"
///     rows        "hole: BHID", in the place of "hole: Not used"
class RefreshStep {
public:
    /// Begins the history of `dialog` anew with the refresh that is about to be made. To be called
    /// before it changes anything but a control. `replaced` are the file columns if it reads
    /// others.
    static void begin(wxImportCSVDialog &dialog,
                      std::optional<std::vector<std::string>> replaced = std::nullopt);

private:
    RefreshStep(wxImportCSVDialog &dialog, std::optional<std::vector<std::string>> fileSchema);

    /// Puts all that is kept in its place, and keeps what was there.
    void exchange();

    wxImportCSVDialog &m_dialog;
    std::optional<std::vector<std::string>> m_fileSchema; // none if they stay the same
    char m_delimiter;
    bool m_firstLineHeader;
    bool m_useSavedMatches;
    std::vector<std::string> m_savedMatches;
    std::string m_fileProblem;
    std::vector<ColumnMatch> m_opening;
    wxString m_sentence; // on the source
    std::unique_ptr<NameBook> m_names;
    wxArrayString m_fileTexts;
    std::vector<wxString> m_matchTexts;
};

} // namespace columnimport
