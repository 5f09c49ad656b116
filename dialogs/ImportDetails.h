// SPDX-License-Identifier: MIT

#pragma once

#include "delimited/ByteOrderMark.h"
#include "names/SourceMatch.h"

#include <string>
#include <vector>

class wxImportCSVDialog;

namespace columnimport {

/// What the dialog takes and gives beyond its constructor and its public members.
struct ImportDetails {
    std::vector<std::vector<std::string>> alternatives; ///< by application column; may be shorter
    std::vector<bool> required;                         ///< by application column; may be shorter
    std::vector<bool> refusesSimilar;                   ///< by application column; may be shorter
    ByteOrderMark byteOrderMark = ByteOrderMark::kept;
    std::string fileProblem;          ///< why the file could not be read; empty if it was
    std::vector<ColumnMatch> opening; ///< what the last refresh matched
    bool hasAskedBack = false;        ///< whether OK has asked for the required columns

    /// Those of `dialog`; to be filled before its `create`.
    static ImportDetails &of(wxImportCSVDialog &dialog);

    /// Takes out of a dialog that is done the columns of the source as they were cut last, whether
    /// they are titles or not.
    static std::vector<std::string> takeSourceColumns(wxImportCSVDialog &dialog);

    /// What the rows of the match list show now.
    static std::vector<SourceMatch> matches(wxImportCSVDialog &dialog);
};

} // namespace columnimport
