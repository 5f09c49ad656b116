// SPDX-License-Identifier: MIT

#pragma once

#include "dialogs/ImportOptions.h"
#include "names/ColumnMatch.h"

#include <string>
#include <vector>

class wxImportCSVDialog;

namespace columnimport {

struct Header;

/// A run's access to a dialog, beyond its public members.
struct DialogAccess {
    /// To be called before `create`.
    static void setOptions(wxImportCSVDialog &dialog, ImportOptions options);

    /// The matches as the match list shows them, one for each row.
    static std::vector<SourceMatch> matches(wxImportCSVDialog &dialog);

    /// Moves the columns of the source, as they were cut last, out of a dialog that has ended.
    static std::vector<std::string> takeSourceColumns(wxImportCSVDialog &dialog);

    /// The report on the file's first line, without its columns.
    static const Header &header(const wxImportCSVDialog &dialog);
};

} // namespace columnimport
