// SPDX-License-Identifier: MIT

#pragma once

#include "dialogs/ImportOptions.h"
#include "names/ColumnMatch.h"

#include <string>
#include <vector>

class wxImportCSVDialog;

namespace columnimport {

struct Header;

/// Access to a dialog beyond its public members, for a run.
struct DialogAccess {
    /// Call it before `create`.
    static void setOptions(wxImportCSVDialog &dialog, ImportOptions options);

    /// The matches in the match list, one per row.
    static std::vector<SourceMatch> matches(wxImportCSVDialog &dialog);

    /// Moves the source columns, as last read, out of a dialog that has ended.
    static std::vector<std::string> takeSourceColumns(wxImportCSVDialog &dialog);

    /// What reading the first line gave, without the columns.
    static const Header &header(const wxImportCSVDialog &dialog);
};

} // namespace columnimport
