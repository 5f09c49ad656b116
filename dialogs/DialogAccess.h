// SPDX-License-Identifier: MIT

#pragma once

#include "dialogs/ImportOptions.h"
#include "names/SourceMatch.h"

#include <string>
#include <vector>

class wxImportCSVDialog;

namespace columnimport {

/// What a run sets and reads of a dialog beyond its public members.
struct DialogAccess {
    /// To be called before `create`.
    static void setOptions(wxImportCSVDialog &dialog, ImportOptions options);

    /// The matches as the match list shows them, one for each row.
    static std::vector<SourceMatch> matches(wxImportCSVDialog &dialog);

    /// Takes the columns of the source out of a dialog that has ended, as they were cut last.
    static std::vector<std::string> takeSourceColumns(wxImportCSVDialog &dialog);

    /// Why the file could not be read; empty if it was read.
    static std::string fileProblem(const wxImportCSVDialog &dialog);
};

} // namespace columnimport
